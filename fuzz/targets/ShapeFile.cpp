// A shape file to glyphs.
#include "StyleConversion/shx/ShapeFileFault.h"
#include "StyleConversion/shx/ShxUtility.h"
#include "documents/GlyphsDocument.h"
#include "fuzz/Fuzzing.h"
#include "fuzz/Inputs.h"
#include "fuzz/ShapeWork.h"

#include <nlohmann/json.hpp>
#include <string>

namespace {

using namespace ShxUtility;
using fuzzing::Require;

ShxResult Load(std::string_view bytes, ShapesInFile& file, ShapeFileFaultReport& report) {
    const fuzzing::Stream stream = fuzzing::OpenBytes(bytes);
    return LoadShapeFile(stream.get(), file, kAllKinds, report);
}

documents::Glyph Draw(const ShapesInFile& file, const Shape& shape) {
    documents::Glyph glyph;
    glyph.number = shape.number;
    ShapeInstructions instructions;
    glyph.result = DecodeShape(instructions, shape.data.data(), static_cast<std::uint16_t>(shape.data.size()),
                               file.kind);
    if (glyph.result == kSuccess) {
        double scale = 1.0;
        PositionStack stack;
        std::vector<std::uint16_t> active;
        bool penDown = true;
        glyph.result = DrawShape(glyph.path, glyph.endX, glyph.endY, scale, stack, active, penDown,
                                 instructions, file, 30.0, shape.number % 2 == 0);
    }
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
    ShapeFileFaultReport report;
    const ShxResult result = Load(bytes, file, report);
    Require((result == kSuccess) == (report.fault == ShapeFileFault::None), "a fault with every failure");
    Require(report.offset <= size, "a fault within the file");
    Require(file.numberIndex.size() <= file.shapes.size() && file.nameIndex.size() <= file.shapes.size(),
            "indexes of the shapes only");
    if (result != kSuccess || !fuzzing::AllFitBudget(file)) {
        return 0;
    }
    const std::string glyphs = GlyphsOf(file);
    ShapesInFile again;
    Require(Load(bytes, again, report) == kSuccess && GlyphsOf(again) == glyphs, "the same result twice");
    return 0;
}
