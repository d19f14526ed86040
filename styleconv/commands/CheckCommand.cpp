// styleconv check: errors and likely surprises in files.
#include "conversions/SymbolsDocuments.h"
#include "conversions/TolerantCheck.h"
#include "conversions/checking/Check.h"
#include "diagnostics/Sentences.h"
#include "diagnostics/ShownText.h"
#include "documents/DiagnosticsDocument.h"
#include "documents/SarifDocument.h"
#include "styleconv/commands/Commands.h"
#include "styleconv/commands/DrawingViewOptions.h"
#include "styleconv/commands/FilesInOrder.h"
#include "styleconv/commands/FontArguments.h"
#include "styleconv/commands/Job.h"
#include "styleconv/commands/ManyFiles.h"
#include "styleconv/commands/Spelling.h"
#include "styleconv/files/FileWalk.h"
#include "styleconv/files/InputFile.h"
#include "styleconv/files/ShapeSearch.h"
#include "styleconv/process/Messages.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <set>
#include <string_view>

namespace styleconv {
namespace {

using conversions::FileKind;
using diagnostics::Code;
using diagnostics::Diagnostic;
using diagnostics::Diagnostics;
using diagnostics::Severity;

struct CheckOptions : StyleOptions, DrawingViewOptions {
    std::vector<std::string> paths;
    WalkOptions walk;
    std::string output;
    std::string format = "text";
    std::string failOn = "error";
    std::vector<std::string> codesToIgnore;
    std::string codePage;
    std::vector<std::string> layersToIgnore;
    bool notes = false;
    bool tolerant = false;
};

// What the files come to.
struct Findings {
    Diagnostics found;
    std::size_t files = 0;
    std::size_t ignored = 0;
};

std::unique_ptr<conversions::Front> FrontFor(FileKind kind, const std::string& file,
                                             const CheckOptions& options) {
    const bool toStandardOutput = options.output.empty();
    switch (kind) {
    case FileKind::kLinetypes:
        return FrontForLinetypes({file, options.shapeFolders, FontsOf(options)}, toStandardOutput);
    case FileKind::kDrawing:
        return FrontForDrawing({file, options.shapeFolders, {}}, toStandardOutput);
    default:
        return FrontWithoutFiles(toStandardOutput);
    }
}

// A tolerant conversion of the file, which opens it anew: it may be read as it comes.
Diagnostics Judged(const std::string& path, FileKind kind, const std::string& codePage,
                   const conversions::CheckOptions& job, conversions::Front& front, Diagnostics found) {
    InputFile input(path);
    const auto problem = kind == FileKind::kDrawing ? input.Open() : input.Read();
    InputFile drawing(job.linetypes.drawing ? job.linetypes.drawing->name : "");
    conversions::CheckOptions again = job;
    if (problem || (job.linetypes.drawing && drawing.Open())) {
        return found;
    }
    if (job.linetypes.drawing) {
        again.linetypes.drawing = drawing.ForJob();
    }
    return JudgedTolerantly(std::move(found), ConvertTolerantly(kind, input.ForJob(codePage), again, front));
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
    job.linetypes.styleFonts = &options.fonts;
    job.layersToIgnore = WideTexts(options.layersToIgnore);
    job.view = ViewOf(options);
    InputFile drawing(options.drawing);
    if (kind == FileKind::kLinetypes && !options.drawing.empty()) {
        if (const auto problem = drawing.Open()) {
            return {*problem};
        }
        job.linetypes.drawing = drawing.ForJob();
    }
    const auto front = FrontFor(kind, path, options);
    Diagnostics found = kind == FileKind::kSymbols ? conversions::CheckSymbols(input.ForJob())
                                                   : Check(kind, input.ForJob(options.codePage), job, *front);
    return options.tolerant && CountOf(found, Severity::kError) > 0
               ? Judged(path, kind, options.codePage, job, *front, std::move(found))
               : found;
}

std::string Text(const Findings& findings) {
    std::string text;
    for (const Diagnostic& diagnostic : findings.found) {
        text += diagnostics::MessageWithCode(diagnostic) + "\n";
    }
    text += Counted(CountOf(findings.found, Severity::kError), "error") + ", " +
            Counted(CountOf(findings.found, Severity::kWarning), "warning") + " in " +
            Counted(findings.files, "file");
    return text + (findings.ignored > 0 ? "; " + std::to_string(findings.ignored) + " ignored\n" : "\n");
}

std::string TextOf(const Findings& findings, const std::string& format) {
    return format == "json"    ? documents::DiagnosticsText(findings.found)
           : format == "sarif" ? documents::SarifText(findings.found, STYLECONVERSION_VERSION)
                               : Text(findings);
}

// False, with a message, where one is not known.
bool ReadCodes(const std::vector<std::string>& names, std::set<Code>& codes) {
    for (const std::string& name : names) {
        const std::optional<Code> code = diagnostics::CodeNamed(name);
        if (!code) {
            std::vector<std::string_view> known;
            for (const Code each : diagnostics::AllCodes()) {
                known.push_back(NameOf(each));
            }
            SayLine("styleconv: --ignore: unknown code " + diagnostics::ShownText(name) + "; did you mean " +
                    NearestOf(name, known) + "?");
            return false;
        }
        codes.insert(*code);
    }
    return true;
}

Findings FindingsOf(const CheckOptions& options, const std::set<Code>& codesToIgnore) {
    Walk walk = FilesBehind(options.paths, options.walk);
    std::sort(walk.files.begin(), walk.files.end());
    Findings findings;
    findings.files = walk.files.size();
    findings.found = std::move(walk.diagnostics);
    std::vector<Diagnostics> found(walk.files.size());
    FileWork work;
    work.work = [&](std::size_t i) { found[i] = CheckOne(options, walk.files[i]); };
    work.take = [&](std::size_t i) { Append(findings.found, std::move(found[i])); };
    WorkOnFiles(walk.files, work);
    std::erase_if(findings.found, [&](const Diagnostic& diagnostic) {
        return diagnostic.severity == Severity::kNote && !options.notes;
    });
    findings.ignored = std::erase_if(findings.found, [&](const Diagnostic& diagnostic) {
        return codesToIgnore.count(diagnostic.code) > 0;
    });
    // Programs want the place of each; who reads does not.
    if (options.format == "text") {
        MergeAcrossFiles(findings.found);
    }
    return findings;
}

ExitStatus CheckFiles(CheckOptions& options) {
    std::set<Code> codesToIgnore;
    if (!ReadStyleOptions(options) || !CheckEncoding(options.codePage) ||
        !ReadCodes(options.codesToIgnore, codesToIgnore)) {
        return kUsageFault;
    }
    if (std::find(options.paths.begin(), options.paths.end(), "-") != options.paths.end()) {
        SayLine("styleconv: check: the kind of standard input is unknown; give a file");
        return kUsageFault;
    }
    const Findings findings = FindingsOf(options, codesToIgnore);
    const ExitStatus status = WriteResult(options.output, [&](const conversions::TextSink& sink) {
        return sink(TextOf(findings, options.format));
    });
    SayUnusedFonts(options);
    if (findings.files == 0 && findings.found.empty()) {
        SayNoFiles();
        return kInputFault;
    }
    const std::size_t failures =
        CountOf(findings.found, Severity::kError) +
        (options.failOn == "warning" ? CountOf(findings.found, Severity::kWarning) : 0);
    return status == kDone && failures > 0 ? kInputFault : status;
}

} // namespace

void AddCheckCommand(CommandLine& line) {
    const auto options = std::make_shared<CheckOptions>();
    Command command = line.AddCommand("check", "Report errors and likely surprises, one per line",
                                      [options] { return CheckFiles(*options); });
    command.AddFiles(options->paths, ".lin, .pat, .shx, .dxf and drawing .json files, and folders");
    AddWalkOptions(command, options->walk);
    AddStyleOptions(command, *options);
    AddIgnoreLayerOption(command, options->layersToIgnore);
    AddDrawingViewOptions(command, *options);
    command.AddFlag("--notes", options->notes,
                    "Also report what is as it should be: unused shapes, which characters a font has");
    command.AddFlag("--tolerant", options->tolerant,
                    "Judge as a tolerant conversion would: what it reads or skips is a warning");
    command.AddTexts("--ignore", options->codesToIgnore, "CODE",
                     "Do not report what has this code; may be given again");
    command.AddChoice("--fail-on", options->failOn, {"error", "warning"},
                      "What ends with status 1: error or warning");
    AddCodePageOption(command, options->codePage);
    AddOutputOption(command, options->output);
    command.AddChoice("--format", options->format, {"text", "json", "sarif"},
                      "Form of the result: text, json or sarif");
}

} // namespace styleconv
