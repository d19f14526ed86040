// A linetype file with its shape file, read tolerantly, to symbols.
//
// Input: the linetype file and, from seven bytes before the last "-86 " on, the shape file that every name
// finds. The drawing with it has a text style of each kind: with a shape font, without, with a typeface,
// vertical, of a fixed height.
#include "conversions/Linetypes.h"
#include "fuzz/Fuzzing.h"
#include "fuzz/Jobs.h"
#include "fuzz/ShapeWork.h"

#include <string>
#include <string_view>

namespace {

using fuzzing::Require;

constexpr std::string_view kDrawing = R"({"textStyles": [
    {"name": "STANDARD", "fileName": "font.shx"}, {"name": "NAMES"}, {"name": "TYPE", "typeface": "Sans"},
    {"name": "TB", "typeface": "Sans", "bold": true}, {"name": "SVERT", "fileName": "font.shx", "vertical": true},
    {"name": "FIXED", "fileName": "font.shx", "textSize": 2.5}], "blocks": []})";

conversions::Conversion Converted(std::string_view text, std::string_view shapeFile, bool tolerant) {
    fuzzing::OneShapeFile front(shapeFile);
    conversions::LinetypesOptions options;
    options.scale = 2.0;
    options.tolerant = tolerant;
    options.drawing = fuzzing::InputOf(kDrawing);
    return conversions::ConvertLinetypes(fuzzing::InputOf(text), options, front);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t kMaker = 7; // bytes before "-86 "
    const std::string_view bytes = fuzzing::Text(data, size);
    const std::size_t mark = bytes.rfind("-86 ");
    const std::size_t border = mark == std::string_view::npos || mark < kMaker ? size : mark - kMaker;
    const std::string_view text = bytes.substr(0, border);
    const std::string_view shapeFile = bytes.substr(border);
    if (!fuzzing::AllFitBudget(shapeFile, ShxUtility::kTolerantShapeFilePolicy)) {
        return 0;
    }
    const conversions::Conversion tolerant = Converted(text, shapeFile, true);
    const std::string document = fuzzing::DocumentOf(tolerant);
    Require(fuzzing::DocumentOf(Converted(text, shapeFile, true)) == document, "the same document twice");
    const conversions::Conversion strict = Converted(text, shapeFile, false);
    const std::string strictDocument = fuzzing::DocumentOf(strict);
    if (tolerant.isConverted && tolerant.diagnostics.empty()) {
        Require(strict.isConverted, "no word of a file that a strict reading refuses");
        Require(strictDocument == document, "the same document from a file without errors");
    }
    return 0;
}
