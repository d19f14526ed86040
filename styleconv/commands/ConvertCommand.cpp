// styleconv convert: files of all kinds, and folders of them, to one result; and styleconv show: the same to
// a gallery that opens in the browser.
#include "StyleConversion/platform/Files.h"
#include "conversions/Blocks.h"
#include "conversions/Glyphs.h"
#include "conversions/Linetypes.h"
#include "conversions/Patterns.h"
#include "conversions/SymbolsDocuments.h"
#include "diagnostics/ShownText.h"
#include "styleconv/commands/Commands.h"
#include "styleconv/commands/DrawingViewOptions.h"
#include "styleconv/commands/FontArguments.h"
#include "styleconv/commands/Job.h"
#include "styleconv/commands/ManyFiles.h"
#include "styleconv/files/FileWalk.h"
#include "styleconv/files/Paths.h"
#include "styleconv/files/ShapeSearch.h"
#include "styleconv/process/Browser.h"
#include "styleconv/process/Messages.h"
#include "styleconv/process/Progress.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <memory>
#include <optional>
#include <system_error>
#include <utility>

namespace styleconv {
namespace {

using conversions::Conversion;
using conversions::FileKind;

struct ConvertOptions : CommonOptions, StyleOptions, DrawingViewOptions {
    std::vector<std::string> paths;
    WalkOptions walk;
    std::vector<std::string> layersToIgnore;
    std::string codePage;
    bool tolerant = false;
    bool faithful = false;
    bool allOrNothing = false;
};

Conversion LinetypesOf(const ConvertOptions& options, conversions::Form form, const InputFile& input,
                       conversions::Front& front) {
    conversions::LinetypesOptions job;
    job.styleFonts = &options.fonts;
    job.tolerant = options.tolerant;
    job.fidelity = FidelityOf(options.faithful, options, form);
    return ConvertWithStyles(input.ForJob(options.codePage), std::move(job), options, front);
}

Conversion BlocksOf(const ConvertOptions& options, conversions::Form form, const InputFile& input,
                    conversions::Front& front) {
    conversions::BlocksOptions job;
    static_cast<conversions::DrawingView&>(job) = ViewOf(options);
    job.layersToIgnore = WideTexts(options.layersToIgnore);
    job.tolerant = options.tolerant;
    job.fidelity = FidelityOf(options.faithful, options, form);
    job.seenAs.leavesOutHidden = options.visibleOnly || job.fidelity == encoding::Fidelity::kFaithful;
    job.seenAs.drawsOthers = job.fidelity == encoding::Fidelity::kFaithful;
    job.seenAs.drawsDashes = job.fidelity == encoding::Fidelity::kFaithful;
    return ConvertBlocks(input.ForJob(), job, front);
}

Conversion ConvertKind(const ConvertOptions& options, conversions::Form form, const InputFile& input,
                       FileKind kind, conversions::Front& front) {
    switch (kind) {
    case FileKind::kLinetypes:
        return LinetypesOf(options, form, input, front);
    case FileKind::kPatterns:
        return ConvertPatterns(
            input.ForJob(options.codePage),
            {{}, options.tolerant, pattern::Unit::kNone, FidelityOf(options.faithful, options, form)}, front);
    case FileKind::kShapes: {
        conversions::GlyphsOptions job;
        job.tolerant = options.tolerant;
        return ConvertGlyphs(input.ForJob(options.codePage), job, front);
    }
    case FileKind::kSymbols:
        return ConvertSymbols(input.ForJob(), options.tolerant, front);
    case FileKind::kDrawing:
    case FileKind::kUnknown:
        break;
    }
    return BlocksOf(options, form, input, front);
}

std::unique_ptr<conversions::Front> FrontOf(const ConvertOptions& options, const std::string& file,
                                            FileKind kind) {
    const SearchOptions search = {file, options.shapeFolders, FontsOf(options)};
    return kind == FileKind::kDrawing ? FrontForDrawing(search, options.output.empty())
                                      : FrontForLinetypes(search, options.output.empty());
}

ExitStatus Convert(ConvertOptions& options) {
    const std::optional<conversions::Form> form = FormOf(options, options.faithful);
    if (!form || !ReadStyleOptions(options) || !CheckEncoding(options.codePage)) {
        return kUsageFault;
    }
    if (std::find(options.paths.begin(), options.paths.end(), "-") != options.paths.end()) {
        SayLine("styleconv: convert: the kind of standard input is unknown; give a file");
        return kUsageFault;
    }
    Walk walk = FilesBehind(options.paths, options.walk);
    FilesToConvert files;
    files.files = std::move(walk.files);
    files.diagnostics = std::move(walk.diagnostics);
    files.others = walk.others;
    files.repeated = walk.repeated;
    files.allOrNothing = options.allOrNothing;
    files.isTolerant = options.tolerant;
    files.tellsOrigins = options.paths.size() > 1 || !walk.folders.empty();
    files.folders = std::move(walk.folders);
    const ExitStatus status = ConvertFiles(
        files,
        [&](const InputFile& input, FileKind kind, conversions::Front& front) {
            return ConvertKind(options, *form, input, kind, front);
        },
        [&](const std::string& file, FileKind kind) { return FrontOf(options, file, kind); }, options, *form);
    SayUnusedFonts(options);
    return status;
}

// As a file of the gallery's folder may be called on every system.
std::string PageName(const ConvertOptions& options) {
    std::string name = options.paths.size() == 1 ? TitleOf(options.paths.front()) : "";
    for (char& c : name) {
        const auto byte = static_cast<unsigned char>(c);
        c = byte < 0x80 && std::isalnum(byte) == 0 && c != '-' && c != '_' && c != '.' ? '_' : c;
    }
    return (name.empty() || name.front() == '.' ? "symbols" : name) + ".html";
}

ExitStatus Show(ConvertOptions& options) {
    std::error_code error;
    const std::filesystem::path folder = NewTemporaryFolder(error);
    if (folder.empty()) {
        SayLine("styleconv: show: no temporary folder can be made: " +
                error.default_error_condition().message());
        return kInputFault;
    }
    const std::filesystem::path page = folder / NativePath(PageName(options));
    options.output = platform::PathToBytes(WidePath(page));
    options.format = "html";
    const ExitStatus status = Convert(options);
    std::error_code ignored;
    if (!std::filesystem::exists(page, ignored)) {
        std::filesystem::remove(folder, ignored);
        return status;
    }
    ClearProgress();
    if (OpenInBrowser(page)) {
        SayLine("styleconv: opened " + diagnostics::ShownText(options.output));
        return status;
    }
    SayLine("styleconv: no browser was found; the page is");
    const ExitStatus told = WriteResult(
        "", [&](const conversions::TextSink& sink) { return sink(options.output) && sink("\n"); });
    return told == kDone ? status : told;
}

void AddInputOptions(Command& command, ConvertOptions& options) {
    command.AddFiles(options.paths, ".lin, .pat, .shx, .dxf, drawing and symbols .json files, and folders");
    AddWalkOptions(command, options.walk);
    AddStyleOptions(command, options);
    AddIgnoreLayerOption(command, options.layersToIgnore);
    AddDrawingViewOptions(command, options);
    AddTolerantOption(command, options.tolerant);
    AddFaithfulOption(command, options.faithful);
    AddRestylingOptions(command, options);
    AddAllOrNothingOption(command, options.allOrNothing);
    AddCodePageOption(command, options.codePage);
}

} // namespace

void AddConvertCommand(CommandLine& line) {
    const auto options = std::make_shared<ConvertOptions>();
    Command command = line.AddCommand("convert", "Convert files of all kinds, and folders, to one result",
                                      [options] { return Convert(*options); });
    AddInputOptions(command, *options);
    AddCommonOptions(command, *options);
    AddHatchUnitsOption(command, *options);
    AddStyleScaleOption(command, *options);
    AddStrictSymbolsOption(command, *options);
    AddApproximateOption(command, *options);
    AddBareOption(command, *options);
    AddLengthOption(command, *options);
    AddWithStyleOption(command, *options);
}

void AddShowCommand(CommandLine& line) {
    const auto options = std::make_shared<ConvertOptions>();
    Command command = line.AddCommand("show", "Show the symbols of files, and folders, in the browser",
                                      [options] { return Show(*options); });
    AddInputOptions(command, *options);
}

} // namespace styleconv
