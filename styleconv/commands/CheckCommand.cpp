// styleconv check: errors and likely surprises in files.
#include "conversions/checking/Check.h"
#include "diagnostics/Sentences.h"
#include "documents/DiagnosticsDocument.h"
#include "styleconv/commands/Commands.h"
#include "styleconv/commands/DrawingViewOptions.h"
#include "styleconv/commands/Job.h"
#include "styleconv/commands/ManyFiles.h"
#include "styleconv/files/InputFile.h"
#include "styleconv/files/ShapeSearch.h"
#include "styleconv/process/Messages.h"

#include <algorithm>
#include <memory>
#include <optional>

namespace styleconv {
namespace {

using conversions::FileKind;
using diagnostics::Code;
using diagnostics::Diagnostic;
using diagnostics::Diagnostics;
using diagnostics::Severity;

struct CheckOptions : StyleOptions, DrawingViewOptions {
    std::vector<std::string> files;
    std::string output;
    std::string format = "text";
    std::string codePage;
    std::vector<std::string> layersToIgnore;
    bool notes = false;
};

std::unique_ptr<conversions::Front> FrontFor(FileKind kind, const std::string& file,
                                             const CheckOptions& options) {
    const bool toStandardOutput = options.output.empty();
    switch (kind) {
    case FileKind::kLinetypes:
        return FrontForLinetypes({file, options.shapeFolders, options.font}, toStandardOutput);
    case FileKind::kDrawing:
        return FrontForDrawing({file, options.shapeFolders, {}}, toStandardOutput);
    default:
        return FrontWithoutFiles(toStandardOutput);
    }
}

Diagnostics CheckOne(const CheckOptions& options, const std::string& path) {
    InputFile input(path);
    FileKind kind = FileKind::kUnknown;
    if (const auto problem = OpenForKind(input, path, kind)) {
        return {*problem};
    }
    if (kind == FileKind::kUnknown) {
        return {{Severity::kError, Code::kUnknownFileKind, {input.Name()}, {}}};
    }
    conversions::CheckOptions job;
    job.linetypes.font = options.font;
    job.layersToIgnore = WideTexts(options.layersToIgnore);
    job.view = ViewOf(options);
    InputFile drawing(options.drawing);
    if (kind == FileKind::kLinetypes && !options.drawing.empty()) {
        if (const auto problem = drawing.Open()) {
            return {*problem};
        }
        job.linetypes.drawing = drawing.ForJob();
    }
    return Check(kind, input.ForJob(options.codePage), job, *FrontFor(kind, path, options));
}

std::string Text(const Diagnostics& found, std::size_t files) {
    std::string text;
    for (const Diagnostic& diagnostic : found) {
        text += diagnostics::MessageWithCode(diagnostic) + "\n";
    }
    return text + Counted(CountOf(found, Severity::kError), "error") + ", " +
           Counted(CountOf(found, Severity::kWarning), "warning") + " in " + Counted(files, "file") + "\n";
}

ExitStatus CheckFiles(const CheckOptions& options) {
    if (!CheckStyleOptions(options) || !CheckEncoding(options.codePage)) {
        return kUsageFault;
    }
    std::vector<std::string> files = options.files;
    std::sort(files.begin(), files.end());
    if (std::find(files.begin(), files.end(), "-") != files.end()) {
        SayLine("styleconv: check: the kind of standard input is unknown; give a file");
        return kUsageFault;
    }
    Diagnostics found;
    for (const std::string& file : files) {
        Append(found, CheckOne(options, file));
    }
    if (!options.notes) {
        std::erase_if(found,
                      [](const Diagnostic& diagnostic) { return diagnostic.severity == Severity::kNote; });
    }
    const ExitStatus status = WriteResult(options.output, [&](const conversions::TextSink& sink) {
        return sink(options.format == "json" ? documents::DiagnosticsText(found) : Text(found, files.size()));
    });
    return status == kDone && CountOf(found, Severity::kError) > 0 ? kInputFault : status;
}

} // namespace

void AddCheckCommand(CommandLine& line) {
    const auto options = std::make_shared<CheckOptions>();
    Command command = line.AddCommand("check", "Report errors and likely surprises, one per line",
                                      [options] { return CheckFiles(*options); });
    command.AddFiles(options->files, ".lin, .pat, .shx, .dxf and drawing .json files");
    AddStyleOptions(command, *options);
    AddIgnoreLayerOption(command, options->layersToIgnore);
    AddDrawingViewOptions(command, *options);
    command.AddFlag("--notes", options->notes,
                    "Also report what is as it should be: families with an exact tile, unused shapes");
    AddCodePageOption(command, options->codePage);
    AddOutputOption(command, options->output);
    command.AddChoice("--format", options->format, {"text", "json"}, "Form of the result: text or json");
}

} // namespace styleconv
