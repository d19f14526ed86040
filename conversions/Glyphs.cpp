#include "conversions/Glyphs.h"

#include "StyleConversion/platform/CodePage.h"
#include "StyleConversion/platform/Utf8.h"
#include "StyleConversion/shx/ShxUtility.h"
#include "conversions/GlyphSymbols.h"
#include "conversions/reading/FileKind.h"
#include "conversions/reading/ShapeFile.h"
#include "documents/GlyphsDocument.h"

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

namespace conversions {
namespace {

using diagnostics::Code;
using diagnostics::Diagnostics;
using diagnostics::Outcome;
using diagnostics::Severity;

// False, which is said, where the file is refused or has no shapes.
bool Load(const Input& input, bool tolerant, ShxUtility::ShapesInFile& file, Diagnostics& diagnostics) {
    ShxUtility::ShapeFileReport report;
    if (!ReadShapeFile(input.bytes, tolerant, file, report)) {
        diagnostics.push_back(RefusalOf(input.name, input.bytes, report));
        return false;
    }
    Append(diagnostics, ToleratedIn(input.name, report, Severity::kWarning, Outcome::kRepaired));
    if (file.numberIndex.empty()) {
        diagnostics.push_back({Severity::kError, Code::kNoShapes, {input.name}, {}});
        return false;
    }
    return true;
}

void TellNothing(const Input& input, const char* what, Diagnostics& diagnostics) {
    diagnostics.push_back({Severity::kError, Code::kNothingConverted, {input.name}, {what}});
}

// False, which is said, where the file lacks one; to a tolerant conversion, where it lacks all.
bool Choose(const Input& input, const GlyphsOptions& options, ChosenGlyphs& glyphs) {
    const ShxUtility::ShapesInFile& file = glyphs.file;
    if (options.numbers.empty()) {
        for (std::size_t i = 0; i < file.shapes.size(); ++i) {
            // The font information is no glyph.
            if (file.shapes[i].number != 0) {
                glyphs.positions.push_back(i);
            }
        }
        return true;
    }
    bool isComplete = true;
    for (const std::int64_t number : options.numbers) {
        const bool isPossible = number >= 0 && number <= UINT16_MAX;
        const auto found =
            isPossible ? file.numberIndex.find(static_cast<std::uint16_t>(number)) : file.numberIndex.end();
        if (found != file.numberIndex.end()) {
            glyphs.positions.push_back(found->second);
            continue;
        }
        isComplete = false;
        glyphs.diagnostics.push_back({options.tolerant ? Severity::kWarning : Severity::kError,
                                      Code::kMissingNumber,
                                      {input.name},
                                      {std::to_string(number)}});
    }
    if (options.tolerant && glyphs.positions.empty()) {
        TellNothing(input, "shapes asked for", glyphs.diagnostics);
    }
    return options.tolerant ? !glyphs.positions.empty() : isComplete;
}

// Named as an option names it.
std::string NumberItem(const ShxUtility::Shape& shape) {
    return "shape " + std::to_string(shape.number);
}

// Leaves out, and names, the shapes that cannot be drawn. False when none is left.
bool KeepDrawn(const Input& input, const GlyphsOptions& options, ChosenGlyphs& glyphs, Front& front) {
    front.BeginStage("Checking", glyphs.positions.size());
    std::erase_if(glyphs.positions, [&](std::size_t position) {
        const ShxUtility::Shape& shape = glyphs.file.shapes[position];
        front.AtItem(NumberItem(shape));
        const ShxUtility::ShxResult result = ResultOfDrawing(glyphs.file, shape, options.vertical);
        if (result == ShxUtility::kSuccess) {
            return false;
        }
        diagnostics::Place place;
        place.file = input.name;
        place.item = ShapeItem(shape);
        glyphs.diagnostics.push_back(
            {Severity::kWarning, CodeOfDrawing(result), std::move(place), {"it"}, Outcome::kSkipped});
        return true;
    });
    if (glyphs.positions.empty()) {
        TellNothing(input, "shapes", glyphs.diagnostics);
    }
    return !glyphs.positions.empty();
}

documents::Glyph Draw(const ShxUtility::ShapesInFile& file, const ShxUtility::Shape& shape,
                      const GlyphsOptions& options) {
    documents::Glyph glyph;
    glyph.number = shape.number;
    glyph.name = platform::AnsiToWide(shape.name);
    ShxUtility::GlyphPen pen;
    pen.x = options.x;
    pen.y = options.y;
    pen.scale = options.scale;
    pen.rotation = options.rotation;
    pen.vertical = options.vertical;
    glyph.result = ShxUtility::DrawGlyph(file, shape.number, file.kind, pen, glyph.path);
    glyph.endX = pen.x;
    glyph.endY = pen.y;
    return glyph;
}

bool WriteDocument(const ChosenGlyphs& glyphs, const GlyphsOptions& options, const TextSink& sink,
                   Front& front) {
    documents::GlyphsWriter writer(glyphs.file, sink);
    front.BeginStage("Writing", glyphs.positions.size());
    const bool isWritten =
        std::all_of(glyphs.positions.begin(), glyphs.positions.end(), [&](std::size_t position) {
            front.AtItem(NumberItem(glyphs.file.shapes[position]));
            return writer.Add(Draw(glyphs.file, glyphs.file.shapes[position], options));
        });
    return isWritten && writer.Finish();
}

using GlyphSymbols = std::vector<std::unique_ptr<TylModel::SimpleSymbolDefinition>>;

// Whether the glyphs are drawn as in a line of text from the left to the right.
bool FormLines(const ShxUtility::ShapesInFile& file, const GlyphsOptions& options) {
    return !file.fontInfo.empty() && options.rotation == 0.0 && !options.vertical && options.x == 0.0 &&
           options.y == 0.0;
}

preview::GlyphFacts FactsOf(const documents::Glyph& glyph, const ShxUtility::ShapesInFile& file,
                            const GlyphsOptions& options) {
    const double below = file.fontInfo.size() > 1 ? file.fontInfo[1] : 0.0;
    return {glyph.number, glyph.endX, file.fontInfo[0] * options.scale, below * options.scale};
}

// Adds what is to be said of the symbols to the captions.
GlyphSymbols DrawnSymbols(const ChosenGlyphs& glyphs, const GlyphsOptions& options, Front& front,
                          Captions& captions) {
    GlyphSymbols symbols;
    front.BeginStage("Drawing", glyphs.positions.size());
    for (const std::size_t position : glyphs.positions) {
        front.AtItem(NumberItem(glyphs.file.shapes[position]));
        const documents::Glyph glyph = Draw(glyphs.file, glyphs.file.shapes[position], options);
        symbols.push_back(SymbolOf(glyph, glyphs.file.kind));
        if (glyph.result == ShxUtility::kSuccess && FormLines(glyphs.file, options)) {
            captions.glyphs[symbols.back().get()] = FactsOf(glyph, glyphs.file, options);
        }
    }
    // Letters that are turned stand on no common line.
    if (glyphs.file.kind != ShxUtility::kShapes && options.rotation == 0.0) {
        AlignGlyphs(symbols);
    }
    return symbols;
}

bool WritePictures(const ChosenGlyphs& glyphs, const GlyphsOptions& options, Form form, const TextSink& sink,
                   Front& front, StyleJob* styles) {
    Captions captions = glyphs.captions;
    const GlyphSymbols symbols = DrawnSymbols(glyphs, options, front, captions);
    std::vector<TylModel::SymbolDefinition*> borrowed;
    for (const auto& symbol : symbols) {
        borrowed.push_back(symbol.get());
    }
    return WriteSymbols(borrowed, form, sink, front, encoding::Fidelity::kStrict, captions, styles);
}

} // namespace

ChosenGlyphs ChooseGlyphs(const Input& input, const GlyphsOptions& options, Front& front) {
    ChosenGlyphs glyphs;
    glyphs.encoding = EncodingOf(input);
    const platform::ThreadCodePage page(glyphs.encoding);
    glyphs.isConverted = Load(input, options.tolerant, glyphs.file, glyphs.diagnostics) &&
                         Choose(input, options, glyphs) &&
                         (!options.tolerant || KeepDrawn(input, options, glyphs, front));
    if (!glyphs.isConverted) {
        TellWrongKind(input, FileKind::kShapes, KindAdvice::kOtherCommand, glyphs.diagnostics);
    }
    MergeAlike(glyphs.diagnostics);
    return glyphs;
}

Conversion ConvertGlyphs(const Input& input, const GlyphsOptions& options, Front& front) {
    ChosenGlyphs glyphs = ChooseGlyphs(input, options, front);
    Conversion result;
    result.isConverted = glyphs.isConverted;
    result.captions = glyphs.captions;
    result.diagnostics = std::move(glyphs.diagnostics);
    if (!result.isConverted) {
        return result;
    }
    const platform::ThreadCodePage page(glyphs.encoding);
    for (auto& symbol : DrawnSymbols(glyphs, options, front, result.captions)) {
        diagnostics::Place place(input.name);
        place.shape = glyphs.file.shapes[glyphs.positions[result.owned.size()]].number;
        result.places.push_back(std::move(place));
        result.owned.push_back(std::move(symbol));
    }
    result.UseAll();
    return result;
}

bool WriteGlyphs(const ChosenGlyphs& glyphs, const GlyphsOptions& options, Form form, const TextSink& sink,
                 Front& front, StyleJob* styles) {
    const platform::ThreadCodePage page(glyphs.encoding);
    return form == Form::kJson ? WriteDocument(glyphs, options, sink, front)
                               : WritePictures(glyphs, options, form, sink, front, styles);
}

Listing ListGlyphs(const Input& input, bool tolerant) {
    const platform::ThreadCodePage page(EncodingOf(input));
    Listing listing;
    ShxUtility::ShapesInFile file;
    listing.isListed = Load(input, tolerant, file, listing.diagnostics);
    if (!listing.isListed) {
        TellWrongKind(input, FileKind::kShapes, KindAdvice::kOtherName, listing.diagnostics);
        return listing;
    }
    for (const ShxUtility::Shape& shape : file.shapes) {
        if (shape.number != 0 && !shape.name.empty()) {
            diagnostics::Place place(input.name);
            place.shape = shape.number;
            listing.symbols.push_back(
                {"glyph", platform::WideToValidUtf8(platform::AnsiToWide(shape.name)), "", std::move(place)});
        }
    }
    return listing;
}

} // namespace conversions
