// A shape file to glyphs.
#include "StyleConversion/shx/ShxUtility.h"
#include "documents/GlyphsDocument.h"
#include "fuzz/Fuzzing.h"
#include "fuzz/ShapeWork.h"

#include <nlohmann/json.hpp>
#include <string>

namespace {

using namespace ShxUtility;
using fuzzing::Require;

documents::Glyph Draw(const ShapesInFile& file, const Shape& shape) {
    documents::Glyph glyph;
    glyph.number = shape.number;
    GlyphPen pen;
    pen.rotation = 30.0;
    pen.vertical = shape.number % 2 == 0;
    // The font information is no glyph.
    glyph.result = shape.number == 0 ? kSuccess : DrawGlyph(file, shape.number, file.kind, pen, glyph.path);
    glyph.endX = pen.x;
    glyph.endY = pen.y;
    return glyph;
}

std::string GlyphsOf(const ShapesInFile& file) {
    std::string text;
    documents::GlyphsWriter writer(file, [&](std::string_view piece) {
        text += piece;
        return true;
    });
    for (const Shape& shape : file.shapes) {
        const documents::Glyph glyph = Draw(file, shape);
        Require(glyph.result >= 0 && glyph.result <= kUnsupported, "a known result");
        Require(glyph.path.empty() || (glyph.path.starts_with(L"M ") && glyph.path.ends_with(L' ')),
                "a path of whole commands");
        Require(writer.Add(glyph), "a glyph that can be written");
    }
    Require(writer.Finish(), "a document that can be written");
    const auto json = nlohmann::json::parse(text, nullptr, false);
    Require(!json.is_discarded() && json.at("glyphs").size() == file.shapes.size(),
            "a document that reads as JSON and holds every glyph");
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes = fuzzing::Text(data, size);
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
    const std::string glyphs = GlyphsOf(file);
    ShapesInFile again;
    Require(LoadShapeFile(bytes, again, kAllKinds, report) == kSuccess && GlyphsOf(again) == glyphs,
            "the same result twice");
    return 0;
}
