// Starts styleconv: which commands there are, and what surrounds the one that runs.
#include "StyleConversion/platform/Files.h"
#include "styleconv/commands/Commands.h"
#include "styleconv/commands/Options.h"
#include "styleconv/process/Interruption.h"
#include "styleconv/process/Progress.h"
#include "styleconv/process/WorkLimits.h"

#include <csignal>
#include <cstdio>
#include <exception>
#include <new>
#include <string>
#include <vector>

#if defined(_WIN32)
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#endif

namespace {

using namespace styleconv;

void AddCommands(CommandLine& line, LimitOptions& limits, bool& quiet) {
    AddConvertCommand(line);
    AddShowCommand(line);
    AddLinetypesCommand(line);
    AddPatternsCommand(line);
    AddBlocksCommand(line);
    AddDrawingCommand(line);
    AddGlyphsCommand(line);
    AddListCommand(line);
    AddCheckCommand(line);
    for (Command command : line.Commands()) {
        AddLimitOptions(command, limits);
        command.AddFlag("--quiet", quiet, "Do not show progress");
    }
}

ExitStatus Run(int argc, char** argv) {
    CommandLine line("Turns CAD linetypes, hatch patterns, blocks and shape fonts into map symbols.",
                     STYLECONVERSION_VERSION);
    LimitOptions limits;
    bool quiet = false;
    AddCommands(line, limits, quiet);
    Runner run;
    if (const ExitStatus status = line.Parse(argc, argv, run); !run) {
        return status;
    }
    if (!quiet) {
        AllowProgress();
    }
    NoteInterruptions();
    const WorkLimits kept(limits);
    const ExitStatus status = run();
    ClearProgress();
    return status;
}

#if defined(_WIN32)
// The same bytes go in and come out as on every other system, and the console shows them as UTF-8.
void UseStreamsAsBytes() {
    for (std::FILE* const stream : {stdin, stdout, stderr}) {
        static_cast<void>(_setmode(_fileno(stream), _O_BINARY));
    }
    SetConsoleOutputCP(CP_UTF8);
}
#endif

// What the process does, whatever its system calls main.
ExitStatus RunSafely(int argc, char** argv) {
    try {
        return Run(argc, argv);
    } catch (const std::bad_alloc&) {
        ClearProgress();
        std::fputs("styleconv: not enough memory\n", stderr);
    } catch (const std::exception& error) {
        ClearProgress();
        std::fprintf(stderr, "styleconv: %s\n", error.what());
    }
    return kInputFault;
}

} // namespace

#if defined(_WIN32)

// Arguments are wide there, and inside the tool UTF-8 as everywhere.
int wmain(int argc, wchar_t** argv) {
    try {
        UseStreamsAsBytes();
        std::vector<std::string> arguments;
        for (int i = 0; i < argc; ++i) {
            arguments.push_back(platform::PathToBytes(argv[i]));
        }
        std::vector<char*> pointers;
        for (std::string& argument : arguments) {
            pointers.push_back(argument.data());
        }
        pointers.push_back(nullptr);
        return RunSafely(argc, pointers.data());
    } catch (const std::bad_alloc&) {
        std::fputs("styleconv: not enough memory\n", stderr);
        return kInputFault;
    }
}

#else

int main(int argc, char** argv) {
#if defined(SIGPIPE)
    // A reader that went away shows as a failed write, which has a message of its own.
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
#endif
#if defined(SIGXFSZ)
    // As does a file that may not grow any more.
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
#endif
    return RunSafely(argc, argv);
}

#endif
