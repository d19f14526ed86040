#include "styleconv/commands/Job.h"

#include "StyleConversion/platform/Characters.h"
#include "StyleConversion/platform/Files.h"
#include "StyleConversion/platform/Utf8.h"
#include "diagnostics/ShownText.h"
#include "styleconv/commands/StyleFolder.h"
#include "styleconv/files/InputFile.h"
#include "styleconv/files/OutputFile.h"
#include "styleconv/files/ShapeSearch.h"
#include "styleconv/process/Messages.h"
#include "styleconv/process/Progress.h"
#include "styleconv/process/Rasteriser.h"
#include "styleconv/process/WorkLimits.h"

#include <algorithm>
#include <utility>

namespace styleconv {
namespace {

using diagnostics::Code;
using diagnostics::Diagnostic;
using diagnostics::Severity;

// Shows progress and notes, for limits, what the job is at.
class ToolFront : public conversions::Front {
public:
    explicit ToolFront(bool toStandardOutput) : toStandardOutput_(toStandardOutput) {}

    void BeginStage(std::string_view stage, std::size_t items) override {
        if (stage == "Writing") {
            BeginWriting(toStandardOutput_, items);
        } else {
            styleconv::BeginStage(stage, items);
        }
    }
    void AtItem(std::string_view item) override { NowAtItem(item); }

private:
    bool toStandardOutput_;
};

class LinetypeFront final : public ToolFront {
public:
    LinetypeFront(const SearchOptions& search, bool toStandardOutput)
        : ToolFront(toStandardOutput), search_(search) {}

    conversions::FoundFile FindShapeFile(const std::wstring& name) override { return search_.Find(name); }
    std::string PlacesSearched(const std::wstring& name) override { return search_.Places(name); }

private:
    LinetypeShapeSearch search_;
};

class DrawingFront final : public ToolFront {
public:
    DrawingFront(const SearchOptions& search, bool toStandardOutput)
        : ToolFront(toStandardOutput), search_(search) {}

    conversions::FoundFile FindShapeFile(const std::wstring& name) override { return search_.Find(name); }
    std::string PlacesSearched(const std::wstring& /*name*/) override { return search_.Places(); }

private:
    DrawingShapeSearch search_;
};

struct FormName {
    std::string_view format;
    std::string_view extension; // of the output's name
    conversions::Form form;
};

constexpr FormName kForms[] = {{"json", "", conversions::Form::kJson},
                               {"json", ".json", conversions::Form::kJson},
                               {"svg", ".svg", conversions::Form::kSvg},
                               {"png", ".png", conversions::Form::kPng},
                               {"html", ".html", conversions::Form::kHtml},
                               {"qgis", ".xml", conversions::Form::kQgis},
                               {"qml", ".qml", conversions::Form::kQml},
                               // A folder, whose name has no end of its own.
                               {"maplibre", "/", conversions::Form::kMaplibre}};

bool IsStyle(conversions::Form form) {
    return form == conversions::Form::kQgis || form == conversions::Form::kQml ||
           form == conversions::Form::kMaplibre;
}

// Says what options of styles cannot be used with this form, or with each other.
bool CheckStyleForm(const CommonOptions& options, conversions::Form form, bool faithful) {
    const StyleFormOptions& style = options.style;
    if (form == conversions::Form::kMaplibre && options.output.empty()) {
        SayLine("styleconv: --format maplibre writes a folder: name it with -o");
        return false;
    }
    if (!style.inGallery.empty() && form != conversions::Form::kHtml) {
        SayLine("styleconv: --with-style can only be used with --format html");
        return false;
    }
    if (form == conversions::Form::kPng && !WhyNoRasteriser().empty()) {
        SayLine("styleconv: --format png: " + WhyNoRasteriser());
        return false;
    }
    const bool isPicture = form == conversions::Form::kSvg || form == conversions::Form::kPng;
    if (style.isBare && !isPicture) {
        SayLine("styleconv: --bare can only be used with --format svg or png");
        return false;
    }
    if (style.length > 0.0 && !style.isBare) {
        SayLine("styleconv: --length can only be used with --bare");
        return false;
    }
    const char* const ofStyles = style.strictSymbols                   ? "--strict-symbols"
                                 : style.scale != 1.0 && !style.isBare ? "--scale"
                                                                       : nullptr;
    if (ofStyles != nullptr && !IsStyle(form) && style.inGallery.empty()) {
        SayLine("styleconv: " + std::string(ofStyles) +
                (style.strictSymbols ? " can only be used with --format qgis, qml or maplibre"
                                     : " can only be used with --bare or --format qgis, qml or maplibre"));
        return false;
    }
    const bool isOfQgis = form == conversions::Form::kQgis || form == conversions::Form::kQml;
    if (style.hatchUnits != "map" && !isOfQgis && style.inGallery.empty()) {
        SayLine("styleconv: --hatch-units can only be used with --format qgis or qml");
        return false;
    }
    if (style.allowsApproximate && form != conversions::Form::kMaplibre) {
        SayLine("styleconv: --allow-approximate can only be used with --format maplibre");
        return false;
    }
    if (style.strictSymbols && faithful) {
        SayLine("styleconv: --strict-symbols cannot be used with --faithful");
        return false;
    }
    return true;
}

using WriteText = std::function<bool(const conversions::TextSink& sink)>;

// Writes pictures as pixels, which are made of the SVG when all of it is there.
ExitStatus WritePng(const std::string& output, const WriteText& write) {
    std::string svg;
    if (!write([&](std::string_view text) {
            svg += text;
            return true;
        })) {
        return kInputFault;
    }
    const Raster raster = DrawPicture(svg);
    if (!raster.problem.empty()) {
        SayError(output.empty() ? "standard output" : output,
                 raster.problem + "; --format svg has no such limits");
        return kInputFault;
    }
    return WriteResult(output, [&](const conversions::TextSink& sink) { return sink(raster.png); });
}

ExitStatus WriteInForm(const CommonOptions& options, conversions::Form form,
                       const conversions::StyleJob& styles, const WriteText& write) {
    switch (form) {
    case conversions::Form::kMaplibre:
        return WriteStyleFolder(options.output, styles, write);
    case conversions::Form::kPng:
        return WritePng(options.output, write);
    default:
        return WriteResult(options.output, write);
    }
}

// Whether it is of a part of the file, so that the rest may be worth having.
bool IsLocal(const Diagnostic& diagnostic) {
    switch (diagnostic.code) {
    case Code::kMissingFile:
    case Code::kUnreadableFile:
    case Code::kUnreadableFolder:
    case Code::kUnknownFileKind:
    case Code::kWrongFileKind:
    case Code::kOtherEncoding:
    case Code::kZipArchive:
    case Code::kOutOfMemory:
    case Code::kNoLinetypes:
    case Code::kNoPatterns:
    case Code::kNoShapes:
    case Code::kNoBlocks:
    case Code::kNoSymbols:
    case Code::kOtherFidelity:
    case Code::kSymbolsOfOtherKinds:
    case Code::kOnlyModelSpace:
    case Code::kNoModelSpace:
    case Code::kTooManyEntities:
    case Code::kNotAShapeFile:
    case Code::kTruncatedShapeFile:
    case Code::kUnknownShapeFileKind:
    case Code::kBigfont:
    case Code::kUnknownVersion:
    case Code::kUnendedVersion:
    case Code::kShapeWithoutProgram:
    case Code::kDuplicateShape:
    case Code::kFontInfoSize:
    case Code::kMissingName:
    case Code::kMissingNumber:
    case Code::kNothingConverted:
    case Code::kEmptyPattern:
    case Code::kPatternWithoutTile:
    case Code::kTinyTile:
        return false;
    default:
        return diagnostic.severity == Severity::kError;
    }
}

} // namespace

std::unique_ptr<conversions::Front> FrontForLinetypes(const SearchOptions& search, bool toStandardOutput) {
    return std::make_unique<LinetypeFront>(search, toStandardOutput);
}

std::unique_ptr<conversions::Front> FrontForDrawing(const SearchOptions& search, bool toStandardOutput) {
    return std::make_unique<DrawingFront>(search, toStandardOutput);
}

std::unique_ptr<conversions::Front> FrontWithoutFiles(bool toStandardOutput) {
    return std::make_unique<ToolFront>(toStandardOutput);
}

std::optional<Diagnostic> OpenForKind(InputFile& input, const std::string& path,
                                      conversions::FileKind& kind) {
    kind = conversions::KindByName(path);
    auto problem = kind == conversions::FileKind::kDrawing ? input.Open() : input.Read();
    if (!problem && kind == conversions::FileKind::kDrawing &&
        conversions::KindByContents(input.Start()) == conversions::FileKind::kSymbols) {
        kind = conversions::FileKind::kSymbols;
        return input.Read();
    }
    if (!problem && kind == conversions::FileKind::kUnknown && conversions::IsDrawing(input.ForJob().bytes)) {
        kind = conversions::FileKind::kDrawing;
    }
    return problem;
}

bool IsToleranceOfHelp(const diagnostics::Diagnostics& diagnostics) {
    return std::any_of(diagnostics.begin(), diagnostics.end(), IsLocal);
}

ExitStatus SayProblem(const Diagnostic& problem) {
    SayAll({problem});
    return kInputFault;
}

ExitStatus SayFailure(const std::string& file, bool isTolerant, const diagnostics::Diagnostics& diagnostics) {
    SayAll(diagnostics);
    if (!isTolerant && IsToleranceOfHelp(diagnostics)) {
        const std::string check =
            file == "-" ? "" : "; \"styleconv check " + diagnostics::ShownText(file) + "\" shows all errors";
        SayLine("styleconv: nothing was converted; --tolerant converts the rest of the file" + check);
    }
    return kInputFault;
}

bool CheckEncoding(const std::string& encoding) {
    if (!encoding.empty() && !conversions::IsKnownEncoding(encoding)) {
        SayLine("styleconv: --code-page: unknown encoding " + diagnostics::ShownText(encoding));
        return false;
    }
    return true;
}

ExitStatus WriteResult(const std::string& output,
                       const std::function<bool(const conversions::TextSink& sink)>& write) {
    OutputFile file(output);
    return write([&](std::string_view text) { return file.Write(text); }) && file.Commit() ? kDone
                                                                                           : kInputFault;
}

bool CheckCount(const CommonOptions& options, conversions::Form form, std::size_t symbols,
                std::string_view advice) {
    if ((form != conversions::Form::kQml && !options.style.isBare) || symbols == 1) {
        return true;
    }
    SayLine(std::string("styleconv: ") +
            (options.style.isBare ? "--bare is the picture" : "--format qml is the style") +
            " of one symbol, and there are " + std::to_string(symbols) + ": " + std::string(advice));
    return false;
}

std::string TitleOf(const std::string& file) {
    const platform::PathParts parts = platform::SplitPath(platform::PathFromBytes(file));
    return file == "-" ? "" : platform::WideToValidUtf8(parts.fileName + parts.extension);
}

void SayRestyled(const conversions::RestyledCounts& counts, const conversions::Restyling& restyling) {
    const auto say = [&](const std::string& option, std::size_t restyled, const std::string& kind) {
        if (restyled < counts.symbols) {
            SayLine("styleconv: " + option + " changes nothing in " +
                    std::to_string(counts.symbols - restyled) + " of " + std::to_string(counts.symbols) +
                    (counts.symbols == 1 ? " symbol" : " symbols") + ": no parameter is a " + kind);
        }
    };
    if (restyling.color) {
        say("--color", counts.colored, "colour");
    }
    if (restyling.weight) {
        say("--weight", counts.weighted, "weight");
    }
}

ExitStatus Finish(conversions::Conversion conversion, const std::string& file, bool isTolerant,
                  const CommonOptions& options, conversions::Form form, conversions::Front& front) {
    if (!conversion.isConverted) {
        return SayFailure(file, isTolerant, conversion.diagnostics);
    }
    if (!CheckCount(options, form, conversion.symbols.size(), "choose one with --name")) {
        return kUsageFault;
    }
    SayAll(conversion.diagnostics);
    SayRestyled(Restyle(conversion, options.restyling), options.restyling);
    conversions::Captions captions = std::move(conversion.captions);
    captions.title = TitleOf(file);
    return WriteForm(options, form, file,
                     [&](const conversions::TextSink& sink, conversions::StyleJob& styles) {
                         return WriteSymbols(conversion.symbols, form, sink, front, conversion.fidelity,
                                             captions, &styles);
                     });
}

ExitStatus WriteForm(
    const CommonOptions& options, conversions::Form form, const std::string& file,
    const std::function<bool(const conversions::TextSink& sink, conversions::StyleJob& styles)>& write) {
    conversions::StyleJob styles;
    styles.file = file == "-" ? "standard input" : file;
    styles.hatchesInMillimetres = options.style.hatchUnits == "mm";
    styles.scale = options.style.scale;
    styles.isBare = options.style.isBare;
    styles.length = options.style.length;
    styles.allowsApproximate = options.style.allowsApproximate;
    styles.isInGallery = !options.style.inGallery.empty();
    const auto writeResult = [&](const conversions::TextSink& sink) { return write(sink, styles); };
    const ExitStatus status = WriteInForm(options, form, styles, writeResult);
    MergeAlike(styles.diagnostics);
    MergeAcrossFiles(styles.diagnostics);
    SayAll(styles.diagnostics);
    return status;
}

std::optional<conversions::Form> FormOf(const CommonOptions& options, bool faithful) {
    std::string extension =
        platform::PathToBytes(platform::SplitPath(platform::PathFromBytes(options.output)).extension);
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](char c) { return platform::AsciiLower(c); });
    for (const FormName& name : kForms) {
        if (options.format.empty() ? extension == name.extension : options.format == name.format) {
            return CheckStyleForm(options, name.form, faithful) ? std::optional(name.form) : std::nullopt;
        }
    }
    SayLine("styleconv: -o " + diagnostics::ShownText(options.output) +
            ": the end of the name tells no format; use .json, .svg, .png, .html, .xml or .qml, or --format");
    return std::nullopt;
}

encoding::Fidelity FidelityOf(bool faithful, const CommonOptions& options, conversions::Form form) {
    const bool hasStyles = IsStyle(form) || !options.style.inGallery.empty();
    return faithful || (hasStyles && !options.style.strictSymbols) ? encoding::Fidelity::kFaithful
                                                                   : encoding::Fidelity::kStrict;
}

} // namespace styleconv
