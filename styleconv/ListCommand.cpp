#include "styleconv/ListCommand.h"

#include "styleconv/BlocksCommand.h"
#include "styleconv/FileKind.h"
#include "styleconv/GlyphsCommand.h"
#include "styleconv/InputFile.h"
#include "styleconv/LinetypesCommand.h"
#include "styleconv/Messages.h"
#include "styleconv/OutputFile.h"
#include "styleconv/PatternsCommand.h"

#include <memory>

namespace styleconv {
namespace {

using Lister = bool (*)(const InputFile& input, std::vector<std::string>& names);

Lister FindLister(const std::string& path) {
    switch (FileKindOf(path)) {
    case FileKind::kLinetypes:
        return ListLinetypes;
    case FileKind::kPatterns:
        return ListPatterns;
    case FileKind::kShapes:
        return ListShapes;
    case FileKind::kDrawing:
        return ListBlocks;
    case FileKind::kUnknown:
        break;
    }
    return nullptr;
}

struct ListOptions {
    std::string file;
    std::string output;
    std::string codePage;
};

ExitStatus List(const ListOptions& options) {
    if (options.file == "-") {
        Say("list", "standard input has no kind to go by: give a file");
        return kUsageFault;
    }
    InputFile input(options.file);
    const Lister lister = FindLister(options.file);
    // Drawings are read as they come, for they may be large; what else there is, as a whole.
    if (!(lister == ListBlocks ? input.Open() : input.Read())) {
        return kInputFault;
    }
    if (lister == nullptr) {
        Say(input.Name(), kUnknownKind);
        return kInputFault;
    }
    if (!ChooseCodePage(input, options.codePage)) {
        return kUsageFault;
    }
    std::vector<std::string> names;
    if (!lister(input, names)) {
        return kInputFault;
    }
    OutputFile output(options.output);
    for (const std::string& name : names) {
        if (!output.Write(name) || !output.Write("\n")) {
            return kInputFault;
        }
    }
    return output.Commit() ? kDone : kInputFault;
}

} // namespace

void AddListCommand(CommandLine& line) {
    const auto options = std::make_shared<ListOptions>();
    Command command = line.AddCommand("list", "Print the names of what a file holds, one a line",
                                      [options] { return List(*options); });
    command.AddFile(options->file, "A .lin, .pat, .shx or drawing .json file");
    AddOutputOption(command, options->output);
    // For those who give it to every command.
    command.AddOnlyChoice("--format", "json");
    AddCodePageOption(command, options->codePage);
}

} // namespace styleconv
