// The command line of styleconv: which commands there are, and what a wrong command line gets.
#include "StyleConversion/platform/Files.h"
#include "styleconv/BlocksCommand.h"
#include "styleconv/CheckCommand.h"
#include "styleconv/GlyphsCommand.h"
#include "styleconv/Interruption.h"
#include "styleconv/LinetypesCommand.h"
#include "styleconv/ListCommand.h"
#include "styleconv/PatternsCommand.h"
#include "styleconv/Progress.h"
#include "styleconv/WorkLimits.h"

#include <CLI/CLI.hpp>
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

void AddCommands(CLI::App& app, Runner& runner, LimitOptions& limits, bool& quiet) {
    AddLinetypesCommand(app, runner);
    AddPatternsCommand(app, runner);
    AddBlocksCommand(app, runner);
    AddGlyphsCommand(app, runner);
    AddListCommand(app, runner);
    AddCheckCommand(app, runner);
    for (CLI::App* const command : app.get_subcommands({})) {
        command->group("Commands");
        AddLimitOptions(*command, limits);
        command->add_flag("--quiet", quiet, "Do not show how far the work has come");
    }
}

// Help and version are no errors and go to standard output.
ExitStatus Explain(const CLI::App& app, const CLI::ParseError& error) {
    if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success)) {
        app.exit(error);
        return kDone;
    }
    const bool noCommand = app.get_subcommands().empty() && error.get_name() == "RequiredError";
    std::fprintf(stderr, "styleconv: %s\nTry \"styleconv --help\" or \"styleconv COMMAND --help\".\n",
                 noCommand ? "a command is missing" : error.what());
    return kUsageFault;
}

ExitStatus Run(int argc, char** argv) {
    CLI::App app("Turns CAD linetypes, hatch patterns, blocks and shape fonts into map symbols.",
                 "styleconv");
    app.set_version_flag("--version", "styleconv " STYLECONVERSION_VERSION);
    app.require_subcommand(1);
    // A path may begin with a slash, on every system.
    app.allow_windows_style_options(false);
    app.get_formatter()->label("SUBCOMMAND", "COMMAND");
    Runner runner;
    LimitOptions limits;
    bool quiet = false;
    AddCommands(app, runner, limits, quiet);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return Explain(app, error);
    }
    if (!quiet) {
        AllowProgress();
    }
    NoteInterruptions();
    const WorkLimits kept(limits);
    const ExitStatus status = runner();
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
        std::fputs("styleconv: there is not enough memory\n", stderr);
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
        std::fputs("styleconv: there is not enough memory\n", stderr);
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
