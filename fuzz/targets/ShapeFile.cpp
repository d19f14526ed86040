// A shape file to glyphs: drawn one by one, and by the tool's whole job.
#include "StyleConversion/platform/CodePage.h"
#include "StyleConversion/shx/ShxUtility.h"
#include "conversions/Glyphs.h"
#include "documents/GlyphsDocument.h"
#include "fuzz/Fuzzing.h"
#include "fuzz/Inputs.h"
#include "fuzz/Jobs.h"
#include "fuzz/ShapeWork.h"

#include <nlohmann/json.hpp>
#include <string>

namespace {

using namespace ShxUtility;
using fuzzing::Require;

constexpr double kRotation = 30.0;

documents::Glyph Draw(const ShapesInFile& file, const Shape& shape, bool vertical) {
    documents::Glyph glyph;
    glyph.number = shape.number;
    glyph.name = platform::AnsiToWide(shape.name);
    GlyphPen pen;
    pen.rotation = kRotation;
    pen.vertical = vertical;
    glyph.result = DrawGlyph(file, shape.number, file.kind, pen, glyph.path);
    glyph.endX = pen.x;
    glyph.endY = pen.y;
    return glyph;
}

std::string GlyphsOf(const ShapesInFile& file, bool vertical) {
    std::string text;
    std::size_t glyphs = 0;
    documents::GlyphsWriter writer(file, [&](std::string_view piece) {
        text += piece;
        return true;
    });
    for (const Shape& shape : file.shapes) {
        if (shape.number == 0) {
            continue; // the font information is no glyph
        }
        ++glyphs;
        const documents::Glyph glyph = Draw(file, shape, vertical);
        Require(glyph.result >= 0 && glyph.result <= kUnsupported, "a known result");
        Require(glyph.path.empty() || (glyph.path.starts_with(L"M ") && glyph.path.ends_with(L' ')),
                "a path of whole commands");
        Require(writer.Add(glyph), "a glyph that can be written");
    }
    Require(writer.Finish(), "a document that can be written");
    const auto json = nlohmann::json::parse(text, nullptr, false);
    Require(!json.is_discarded() && json.at("glyphs").size() == glyphs,
            "a document that reads as JSON and holds every glyph");
    return text;
}

std::string GlyphsOfJob(std::string_view bytes, bool vertical) {
    conversions::GlyphsOptions options;
    options.rotation = kRotation;
    options.vertical = vertical;
    conversions::Front front;
    const conversions::ChosenGlyphs chosen =
        conversions::ChooseGlyphs(fuzzing::InputOf(bytes), options, front);
    std::string text;
    Require(!chosen.isConverted || conversions::WriteGlyphs(
                                       chosen, options, conversions::Form::kJson,
                                       [&](std::string_view piece) {
                                           text += piece;
                                           return true;
                                       },
                                       front),
            "glyphs of the whole job that can be written");
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes = fuzzing::Text(data, size);
    fuzzing::ChooseCodePage(bytes);
    ShapesInFile file;
    ShapeFileReport report;
    const ShxResult result = LoadShapeFile(bytes, file, kAllKinds, report);
    Require((result == kSuccess) == (report.error == ShapeFileError::None), "an error with every failure");
    Require(report.offset <= size, "an error within the file");
    Require(file.numberIndex.size() <= file.shapes.size() && file.nameIndex.size() <= file.shapes.size(),
            "indexes of the shapes only");
    if (result != kSuccess || !fuzzing::AllFitBudget(file)) {
        return 0;
    }
    ShapesInFile again;
    Require(LoadShapeFile(bytes, again, kAllKinds, report) == kSuccess, "the same result twice");
    for (const bool vertical : {false, true}) {
        const std::string glyphs = GlyphsOf(file, vertical);
        Require(GlyphsOf(again, vertical) == glyphs, "the same glyphs twice");
        const std::string fromJob = GlyphsOfJob(bytes, vertical);
        Require(fromJob == glyphs || (fromJob.empty() && file.numberIndex.empty()),
                "the same glyphs from the whole job");
    }
    return 0;
}
