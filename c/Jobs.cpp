#include "c/Jobs.h"

#include "StyleConversion/platform/Files.h"
#include "StyleConversion/platform/Utf8.h"
#include "conversions/Blocks.h"
#include "conversions/Gathering.h"
#include "conversions/Glyphs.h"
#include "conversions/Linetypes.h"
#include "conversions/Patterns.h"
#include "conversions/SymbolsDocuments.h"
#include "conversions/TolerantCheck.h"
#include "conversions/checking/Check.h"
#include "documents/DiagnosticsDocument.h"
#include "documents/ListDocument.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace c_interface {
namespace {

using conversions::Conversion;
using conversions::FileKind;
using conversions::Form;
using conversions::Input;
using diagnostics::Code;
using diagnostics::Diagnostic;
using diagnostics::Diagnostics;
using diagnostics::Severity;
using encoding::Fidelity;

Diagnostic Problem(Code code, const std::string& file) {
    return {Severity::kError, code, {file}, {}};
}

// The drawing that the callback was asked for, which owns its bytes.
struct GivenDrawing {
    styleconversion_answer answer;
    std::optional<Input> input;
    std::optional<Diagnostic> problem;
};

void AskForDrawing(FileKind kind, const Options& options, const CallbackFront& front, GivenDrawing& drawing) {
    if (options.drawing.empty() || kind != FileKind::kLinetypes) {
        return;
    }
    drawing.answer = front.Ask(options.drawing);
    if (!drawing.answer.isGiven) {
        drawing.problem = Problem(Code::kMissingFile, options.drawing);
        return;
    }
    Input& input = drawing.input.emplace();
    input.name = options.drawing;
    input.bytes = drawing.answer.bytes;
}

Fidelity FidelityOf(const Options& options) {
    const bool isStyle = options.form == Form::kQgis || options.form == Form::kQml;
    return options.isFaithful || isStyle ? Fidelity::kFaithful : Fidelity::kStrict;
}

Conversion ConvertLines(const Input& input, const Options& options, CallbackFront& front) {
    GivenDrawing drawing;
    AskForDrawing(FileKind::kLinetypes, options, front, drawing);
    if (drawing.problem) {
        Conversion failed;
        failed.diagnostics.push_back(*drawing.problem);
        return failed;
    }
    conversions::LinetypesOptions job;
    job.drawing = drawing.input;
    job.font = options.font;
    job.tolerant = options.isTolerant;
    job.names = options.names;
    job.fidelity = FidelityOf(options);
    return ConvertLinetypes(input, job, front);
}

Conversion ConvertDrawing(const Input& input, const Options& options, CallbackFront& front) {
    conversions::BlocksOptions job;
    job.names = options.names;
    job.layersToIgnore = options.layersToIgnore;
    job.tolerant = options.isTolerant;
    job.fidelity = FidelityOf(options);
    job.seenAs.leavesOutHidden = job.fidelity == Fidelity::kFaithful;
    job.seenAs.drawsOthers = job.fidelity == Fidelity::kFaithful;
    job.seenAs.drawsDashes = job.fidelity == Fidelity::kFaithful;
    return ConvertBlocks(input, job, front);
}

} // namespace

FileKind KindOf(const Input& input, const Options& options) {
    if (options.kind != FileKind::kUnknown) {
        return options.kind;
    }
    const FileKind kind = conversions::KindByName(input.name);
    const FileKind found = conversions::KindByContents(input.bytes);
    return (kind == FileKind::kDrawing && found == FileKind::kSymbols) ||
                   (kind == FileKind::kUnknown && found == FileKind::kDrawing)
               ? found
               : kind;
}

Conversion ConvertKind(FileKind kind, const Input& input, const Options& options, CallbackFront& front) {
    switch (kind) {
    case FileKind::kLinetypes:
        return ConvertLines(input, options, front);
    case FileKind::kPatterns:
        return ConvertPatterns(
            input, {options.names, options.isTolerant, pattern::Unit::kNone, FidelityOf(options)}, front);
    case FileKind::kShapes: {
        conversions::GlyphsOptions job;
        job.tolerant = options.isTolerant;
        return ConvertGlyphs(input, job, front);
    }
    case FileKind::kDrawing:
        return ConvertDrawing(input, options, front);
    case FileKind::kSymbols:
        return ConvertSymbols(input, options.isTolerant, front);
    case FileKind::kUnknown:
        break;
    }
    Conversion failed;
    failed.diagnostics.push_back(Problem(Code::kUnknownFileKind, input.name));
    return failed;
}

std::string TitleOf(const std::string& file) {
    const platform::PathParts parts = platform::SplitPath(platform::PathFromBytes(file));
    return platform::WideToValidUtf8(parts.fileName + parts.extension);
}

namespace {

// Writes symbols and appends what their style lacks to what is told already.
template <typename Write>
Diagnostics WriteAndTell(const Input& input, Diagnostics told, styleconversion_result& result,
                         const Write& write) {
    conversions::StyleJob styles;
    styles.file = input.name;
    const auto append = [&](std::string_view text) {
        result.document += text;
        return true;
    };
    write(append, styles);
    MergeAlike(styles.diagnostics);
    MergeAcrossFiles(styles.diagnostics);
    Append(told, std::move(styles.diagnostics));
    return told;
}

// Refuses a layer style of several symbols.
bool CheckCount(Form form, std::size_t symbols, const char* advice, styleconversion_result& result) {
    if (form != Form::kQml || symbols == 1) {
        return true;
    }
    result.status = STYLECONVERSION_USAGE;
    result.error = "option format: qml is the style of one symbol, and there are " + std::to_string(symbols) +
                   ": " + advice;
    return false;
}

// Only those that were asked for, in that order, and as often.
Diagnostics WriteNamed(const Conversion& conversion, const Input& input, Form form, CallbackFront& front,
                       styleconversion_result& result) {
    if (!conversion.isConverted) {
        result.status = STYLECONVERSION_INPUT;
        return conversion.diagnostics;
    }
    if (!CheckCount(form, conversion.symbols.size(), "choose one with names", result)) {
        return {};
    }
    return WriteAndTell(input, conversion.diagnostics, result,
                        [&](const conversions::TextSink& sink, conversions::StyleJob& styles) {
                            WriteSymbols(conversion.symbols, form, sink, front, conversion.fidelity,
                                         conversion.captions, &styles);
                        });
}

Diagnostics Convert(FileKind kind, const Input& input, const Options& options, CallbackFront& front,
                    styleconversion_result& result) {
    const bool hasNoNames = kind == FileKind::kShapes || kind == FileKind::kSymbols;
    if (hasNoNames && !options.names.empty()) {
        result.status = STYLECONVERSION_USAGE;
        result.error = "option names: only for linetypes, patterns and drawings";
        return {};
    }
    Conversion conversion = ConvertKind(kind, input, options, front);
    conversion.captions.title = TitleOf(input.name);
    if (!options.names.empty()) {
        return WriteNamed(conversion, input, options.form, front, result);
    }
    conversions::Gathering gathering;
    gathering.Add(input.name, kind, std::move(conversion));
    Diagnostics told = gathering.Told();
    if (!gathering.HasSymbols()) {
        result.status = STYLECONVERSION_INPUT;
        return told;
    }
    if (!CheckCount(options.form, gathering.SymbolCount(),
                    hasNoNames ? "give a file of one" : "choose one with names", result)) {
        return {};
    }
    return WriteAndTell(input, std::move(told), result,
                        [&](const conversions::TextSink& sink, conversions::StyleJob& styles) {
                            gathering.Write(options.form, false, sink, front, &styles);
                        });
}

conversions::Listing ListKind(FileKind kind, const Input& input, bool isTolerant) {
    switch (kind) {
    case FileKind::kLinetypes:
        return ListLinetypes(input, isTolerant);
    case FileKind::kPatterns:
        return ListPatterns(input, isTolerant);
    case FileKind::kShapes:
        return ListGlyphs(input, isTolerant);
    case FileKind::kDrawing:
        return ListBlocks(input, isTolerant);
    case FileKind::kSymbols:
        return ListSymbols(input, isTolerant);
    case FileKind::kUnknown:
        break;
    }
    conversions::Listing failed;
    failed.diagnostics.push_back(Problem(Code::kUnknownFileKind, input.name));
    return failed;
}

Diagnostics List(FileKind kind, const Input& input, const Options& options, styleconversion_result& result) {
    conversions::Listing listing = ListKind(kind, input, options.isTolerant);
    if (listing.isListed) {
        result.document = documents::ListText(listing.symbols);
    } else {
        result.status = STYLECONVERSION_INPUT;
    }
    return std::move(listing.diagnostics);
}

Diagnostics CheckKind(FileKind kind, const Input& input, const Options& options, CallbackFront& front) {
    if (kind == FileKind::kUnknown) {
        return {Problem(Code::kUnknownFileKind, input.name)};
    }
    GivenDrawing drawing;
    AskForDrawing(kind, options, front, drawing);
    if (drawing.problem) {
        return {*drawing.problem};
    }
    conversions::CheckOptions job;
    job.linetypes.drawing = drawing.input;
    job.linetypes.font = options.font;
    job.layersToIgnore = options.layersToIgnore;
    Diagnostics found = kind == FileKind::kSymbols ? conversions::CheckSymbols(input)
                                                   : conversions::Check(kind, input, job, front);
    return options.isTolerant && CountOf(found, Severity::kError) > 0
               ? JudgedTolerantly(std::move(found), ConvertTolerantly(kind, input, job, front))
               : found;
}

Diagnostics Check(FileKind kind, const Input& input, const Options& options, CallbackFront& front,
                  styleconversion_result& result) {
    Diagnostics found = CheckKind(kind, input, options, front);
    std::erase_if(found, [&](const Diagnostic& diagnostic) {
        return diagnostic.severity == Severity::kNote && !options.hasNotes;
    });
    result.document = documents::DiagnosticsText(found);
    return found;
}

} // namespace

void RunJob(Job job, Input input, const char* options, CallbackFront& front, styleconversion_result& result) {
    Options read;
    result.error = options == nullptr ? "" : ReadOptions(options, job, read);
    if (!result.error.empty()) {
        result.status = STYLECONVERSION_USAGE;
        return;
    }
    input.encoding = read.encoding;
    const FileKind kind = KindOf(input, read);
    const Diagnostics told = job == Job::kConvert ? Convert(kind, input, read, front, result)
                             : job == Job::kList  ? List(kind, input, read, result)
                                                  : Check(kind, input, read, front, result);
    if (result.status != STYLECONVERSION_USAGE) {
        result.diagnostics = documents::DiagnosticsText(told);
    }
}

} // namespace c_interface
