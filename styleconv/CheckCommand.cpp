#include "styleconv/CheckCommand.h"

#include "styleconv/CheckedDrawing.h"
#include "styleconv/CheckedLinetypes.h"
#include "styleconv/CheckedShapes.h"
#include "styleconv/FileKind.h"
#include "styleconv/Finding.h"
#include "styleconv/InputFile.h"
#include "styleconv/Messages.h"
#include "styleconv/OutputFile.h"
#include "styleconv/PatternsCommand.h"

#include <algorithm>
#include <memory>

namespace styleconv {
namespace {

struct CheckOptions : LinetypeSourceOptions {
    std::vector<std::string> files;
    std::string output;
    std::string format = "text";
    std::string codePage;
    std::vector<std::string> layersToIgnore;
    bool notes = false;
};

// A status other than kDone ends the check.
ExitStatus CheckOne(const CheckOptions& options, const std::string& path, std::vector<Finding>& findings) {
    const FileKind kind = FileKindOf(path);
    InputFile input(path);
    if (kind == FileKind::kUnknown) {
        findings.push_back({input.Name(), 0, Severity::kError, kUnknownKind, ""});
        return kDone;
    }
    // Drawings are read as they come, for they may be large; what else there is, as a whole.
    if (!(kind == FileKind::kDrawing ? input.Open() : input.Read() && input.ProvidePath())) {
        findings.push_back({input.Name(), 0, Severity::kError, "cannot be read", ""});
        return kDone;
    }
    if (!ChooseCodePage(input, options.codePage)) {
        return kUsageFault;
    }
    switch (kind) {
    case FileKind::kLinetypes:
        return CheckLinetypes(input, options, findings) ? kDone : kInputFault;
    case FileKind::kPatterns:
        CheckPatterns(input, findings);
        return kDone;
    case FileKind::kShapes:
        CheckShapes(input, findings);
        return kDone;
    case FileKind::kDrawing:
        CheckDrawing(input, {options.shapeFolders, WideTexts(options.layersToIgnore)}, findings);
        return kDone;
    case FileKind::kUnknown:
        break;
    }
    return kDone;
}

std::string Counted(std::size_t count, const std::string& what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

std::string Text(const std::vector<Finding>& findings, std::size_t files) {
    std::string text;
    for (const Finding& finding : findings) {
        text += FindingText(finding) + "\n";
    }
    return text + Counted(documents::CountOf(findings, Severity::kError), "error") + ", " +
           Counted(documents::CountOf(findings, Severity::kWarning), "warning") + " in " +
           Counted(files, "file") + "\n";
}

ExitStatus Check(const CheckOptions& options) {
    if (!CheckLinetypeSourceOptions(options)) {
        return kUsageFault;
    }
    std::vector<std::string> files = options.files;
    std::sort(files.begin(), files.end());
    std::vector<Finding> findings;
    for (const std::string& file : files) {
        if (file == "-") {
            Say("check", "standard input has no kind to go by: give a file");
            return kUsageFault;
        }
        if (const ExitStatus status = CheckOne(options, file, findings); status != kDone) {
            return status;
        }
    }
    if (!options.notes) {
        std::erase_if(findings, [](const Finding& finding) { return finding.severity == Severity::kNote; });
    }
    OutputFile output(options.output);
    if (!output.Write(options.format == "json" ? documents::FindingsText(findings)
                                               : Text(findings, files.size())) ||
        !output.Commit()) {
        return kInputFault;
    }
    return documents::CountOf(findings, Severity::kError) == 0 ? kDone : kInputFault;
}

} // namespace

void AddCheckCommand(CommandLine& line) {
    const auto options = std::make_shared<CheckOptions>();
    Command command =
        line.AddCommand("check", "Say what is wrong with files, or will surprise, one finding a line",
                        [options] { return Check(*options); });
    command.AddFiles(options->files, ".lin, .pat, .shx and drawing .json files");
    AddLinetypeSourceOptions(command, *options);
    AddIgnoreLayerOption(command, options->layersToIgnore);
    command.AddFlag(
        "--notes", options->notes,
        "Also say what is as it should be: families with an exact tile, shapes that nothing uses");
    AddCodePageOption(command, options->codePage);
    AddOutputOption(command, options->output);
    command.AddChoice("--format", options->format, {"text", "json"}, "Form of the result: text or json");
}

} // namespace styleconv
