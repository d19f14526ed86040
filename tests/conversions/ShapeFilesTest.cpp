// Shape files that jobs ask their front for.
#include "conversions/Blocks.h"
#include "conversions/Linetypes.h"
#include "tests/conversions/FilesInMemory.h"
#include "tests/support/ShapeFileBuilder.h"

#include <gtest/gtest.h>

namespace conversions_test {
namespace {

using test_support::ShapeFileBuilder;
using WideNames = std::vector<std::wstring>;

std::string Marks() {
    return ShapeFileBuilder::Shapes().Shape(130, "MARK", {0x10, 0}).Text();
}

std::string Geometry(const TylModel::SymbolDefinition& symbol, int index) {
    const auto& simple = static_cast<const TylModel::SimpleSymbolDefinition&>(symbol);
    const std::wstring wide =
        static_cast<const TylModel::Path&>(*simple.GetGraphics().GetAt(index)).GetGeometry();
    return std::string(wide.begin(), wide.end());
}

// Two lines in the dashes of a linetype that carries shape 130 of a style's file.
std::string MarkedDrawing(const std::string& file) {
    return R"({"format": "styleconversion/drawing", "version": 1, "insunits": 4,
        "textStyles": [{"name": "MARKS", "fileName": ")" +
           file + R"("}],
        "linetypes": [{"name": "MARKED", "dashes": [{"length": 1},
                       {"length": -1, "shapeStyle": "MARKS", "shapeNumber": 130}]}],
        "blocks": [{"name": "FENCE", "entities": [
            {"type": "line", "start": [0, 0], "end": [3, 0], "linetype": "MARKED"},
            {"type": "line", "start": [0, 1], "end": [3, 1], "linetype": "MARKED"}]}]})";
}

TEST(ShapeFiles, OfLinetypesAreAskedForInUpperCaseAndOnce) {
    FilesInMemory front;
    front.files[L"MARKS.SHX"] = Marks();
    const auto result =
        ConvertLinetypes(Named("a.lin", "*A\nA,1,[MARK,Marks.shx]\n*B\nA,1,[MARK,marks.shx]\n"), {}, front);
    EXPECT_TRUE(result.isConverted) << Messages(result.diagnostics);
    EXPECT_EQ(front.asked, WideNames{L"MARKS.SHX"});
}

TEST(ShapeFiles, OfDrawingsAreAskedForAsTheDrawingSpellsThemAndOnce) {
    FilesInMemory front;
    front.files[L"Marks"] = Marks();
    const auto result = ConvertBlocks(Named("a.json", MarkedDrawing("Marks")), {}, front);
    ASSERT_TRUE(result.isConverted);
    EXPECT_EQ(front.asked, WideNames{L"Marks"});
    EXPECT_EQ(Geometry(*result.symbols.front(), 0), "M 0.0,0.0 L 1.0,0.0 M 2.0,0.0 L 3.0,0.0 M 2,0 l 1,0 ");
}

TEST(ShapeFiles, OfAnyMakerAndWithoutATrailerAreTakenByATolerantConversion) {
    FilesInMemory front;
    const std::string marks = Marks();
    const std::string foreign = "Foreign-86 " + marks.substr(11, marks.size() - 14);
    front.files[L"Marks"] = foreign;
    conversions::BlocksOptions options;
    const auto strict = ConvertBlocks(Named("a.json", MarkedDrawing("Marks")), options, front);
    EXPECT_EQ(Messages(strict.diagnostics),
              "memory: warning: byte 0: foreign signature: expected \"Vorlanx-86 \" at the start; skipped "
              "[foreign-signature]\n");
    options.tolerant = true;
    const auto tolerant = ConvertBlocks(Named("a.json", MarkedDrawing("Marks")), options, front);
    EXPECT_EQ(
        Messages(tolerant.diagnostics),
        "memory: warning: byte 0: foreign signature: expected \"Vorlanx-86 \" at the start; read all the "
        "same [foreign-signature]\nmemory: warning: byte " +
            std::to_string(foreign.size()) +
            ": missing \"EOF\" after the last shape; read all the same [missing-trailer]\n");
    EXPECT_NE(Geometry(*tolerant.symbols.front(), 0), Geometry(*strict.symbols.front(), 0));
}

// What the library opens anew at each dash, a job looks at once: two lines with three dashes each here.
TEST(ShapeFiles, ThatCannotBeLoadedAreLookedAtOnceAndToldOfOnce) {
    for (const char* const bytes : {"this is no shape file", "Vorlanx-86 unknown kind\r\n\x1a", ""}) {
        FilesInMemory front;
        front.files[L"Marks"] = bytes;
        const auto result = ConvertBlocks(Named("a.json", MarkedDrawing("Marks")), {}, front);
        ASSERT_TRUE(result.isConverted) << bytes;
        EXPECT_EQ(front.asked, WideNames{L"Marks"}) << bytes;
        ASSERT_EQ(result.diagnostics.size(), 1U) << Messages(result.diagnostics);
        EXPECT_EQ(Messages(result.diagnostics).rfind("memory: warning: ", 0), 0U)
            << Messages(result.diagnostics);
        EXPECT_EQ(Geometry(*result.symbols.front(), 0), "M 0.0,0.0 L 1.0,0.0 M 2.0,0.0 L 3.0,0.0") << bytes;
    }
}

TEST(ShapeFiles, TheBuiltInFontStandsInForTheDefaultStylesOnly) {
    FilesInMemory front;
    conversions::LinetypesOptions options;
    const auto result = ConvertLinetypes(Named("a.lin", "*X\nA,1,[\"I\",STANDARD,S=21]\n"), options, front);
    EXPECT_TRUE(result.isConverted);
    EXPECT_EQ(Messages(result.diagnostics),
              "a.lin: note: font file txt.shx not found in memory; the built-in font is used instead "
              "[built-in-font]\n");
    options.font = "My.shx";
    const auto other = ConvertLinetypes(Named("a.lin", "*X\nA,1,[\"I\",STANDARD,S=21]\n"), options, front);
    EXPECT_FALSE(other.isConverted);
    EXPECT_EQ(Messages(other.diagnostics),
              "a.lin:2: error: font file My.shx of text style STANDARD not found "
              "in memory (linetype X) [missing-font-file]\n");
}

TEST(ShapeFiles, NamesAreShownAsTheFileSpellsThem) {
    FilesInMemory front;
    const auto result = ConvertLinetypes(Named("a.lin", "*X\nA,1,[Mark,Sub/Marks.shx]\n"), {}, front);
    EXPECT_EQ(Messages(result.diagnostics), "a.lin:2: error: shape file Sub/Marks.shx not found in memory "
                                            "(linetype X) [missing-shape-file]\n");
}

} // namespace
} // namespace conversions_test
