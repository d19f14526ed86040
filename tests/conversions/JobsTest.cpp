// Whole jobs on bytes: each kind is converted, listed and checked without a file or a stream.
#include "conversions/Blocks.h"
#include "conversions/Glyphs.h"
#include "conversions/Linetypes.h"
#include "conversions/Patterns.h"
#include "conversions/checking/Check.h"
#include "tests/conversions/FilesInMemory.h"
#include "tests/support/ShapeFileBuilder.h"

#include <gtest/gtest.h>

namespace conversions_test {
namespace {

using conversions::FileKind;
using test_support::ShapeFileBuilder;
using Names = std::vector<std::string>;

Names NamesOf(const conversions::Listing& listing) {
    Names names;
    for (const documents::ListedSymbol& symbol : listing.symbols) {
        names.push_back(symbol.name);
    }
    return names;
}

std::string Drawing(const std::string& blocks) {
    return R"({"format": "styleconversion/drawing", "version": 1, "blocks": [)" + blocks + "]}";
}

std::string Written(const conversions::Conversion& conversion, conversions::Form form) {
    std::string text;
    conversions::Front front;
    EXPECT_TRUE(WriteSymbols(
        conversion.symbols, form,
        [&](std::string_view piece) {
            text += piece;
            return true;
        },
        front));
    return text;
}

TEST(Jobs, LinetypesAreConvertedInTheOrderAsked) {
    FilesInMemory front;
    conversions::LinetypesOptions options;
    options.names = {L"B", L"A", L"B"};
    const auto result = ConvertLinetypes(Named("a.lin", "*A\nA,1\n*B\nA,2\n"), options, front);
    ASSERT_TRUE(result.isConverted);
    ASSERT_EQ(result.symbols.size(), 3U);
    EXPECT_EQ(result.symbols[1]->GetName(), L"A");
    EXPECT_EQ(result.symbols[0], result.symbols[2]);
    EXPECT_EQ(front.items, (Names{"linetype A", "linetype B"}));
    EXPECT_EQ(Messages(result.diagnostics), "");
}

TEST(Jobs, PatternsBlocksAndGlyphsAreConverted) {
    conversions::Front front;
    const auto patterns = ConvertPatterns(Named("a.pat", "*A\n0,0,0,0,1\n"), {}, front);
    EXPECT_TRUE(patterns.isConverted);
    EXPECT_NE(Written(patterns, conversions::Form::kJson).find("\"repeatY\": \"1.0\""), std::string::npos);
    const auto blocks = ConvertBlocks(
        Named("a.json", Drawing(R"({"name": "TREE", "entities": [{"type": "point", "position": [1, 2]}]})")),
        {}, front);
    EXPECT_TRUE(blocks.isConverted);
    EXPECT_NE(Written(blocks, conversions::Form::kSvg).find("<svg"), std::string::npos);
    const std::string shapes = ShapeFileBuilder::Shapes().Shape(130, "MARK", {0x10, 0}).Text();
    const auto glyphs = ChooseGlyphs(Named("a.shx", shapes), {}, front);
    EXPECT_TRUE(glyphs.isConverted);
    std::string text;
    EXPECT_TRUE(WriteGlyphs(
        glyphs, {}, conversions::Form::kJson,
        [&](std::string_view piece) {
            text += piece;
            return true;
        },
        front));
    EXPECT_NE(text.find("\"geometry\": \"M 0,0 l 1,0 \""), std::string::npos) << text;
}

TEST(Jobs, ASinkThatRefusesEndsTheWriting) {
    conversions::Front front;
    const auto patterns = ConvertPatterns(Named("a.pat", "*A\n0,0,0,0,1\n"), {}, front);
    EXPECT_FALSE(WriteSymbols(
        patterns.symbols, conversions::Form::kJson, [](std::string_view) { return false; }, front));
}

TEST(Jobs, FailuresGiveErrorsAndNoSymbols) {
    conversions::Front front;
    const auto linetypes = ConvertLinetypes(Named("a.lin", "*A\nA,1\n*B\nA,x\n"), {}, front);
    EXPECT_FALSE(linetypes.isConverted);
    EXPECT_TRUE(linetypes.symbols.empty());
    EXPECT_EQ(CountOf(linetypes.diagnostics, diagnostics::Severity::kError), 1U);
    const auto blocks = ConvertBlocks(Named("a.json", "[]"), {}, front);
    EXPECT_FALSE(blocks.isConverted);
    EXPECT_EQ(CountOf(blocks.diagnostics, diagnostics::Severity::kError), 1U);
}

TEST(Jobs, NamesOfAllKindsAreListed) {
    EXPECT_EQ(NamesOf(ListLinetypes(Named("a.lin", "*B\nA,1,[M,none]\n*A\nA,1\n"))), (Names{"B", "A"}));
    EXPECT_EQ(NamesOf(ListPatterns(Named("a.pat", "*b\n0,0,0,0,1\n*A\n"))), (Names{"A", "b"}));
    EXPECT_EQ(NamesOf(ListBlocks(Named("a.json", Drawing(R"({"name": "TREE", "entities": []})")))),
              Names{"TREE"});
    const std::string shapes =
        ShapeFileBuilder::Shapes().Shape(130, "MARK", {0x10, 0}).Shape(131, "", {0x10, 0}).Text();
    EXPECT_EQ(NamesOf(ListGlyphs(Named("a.shx", shapes))), Names{"MARK"});
    const conversions::Listing none = ListLinetypes(Named("a.lin", "*A\nA,x\n"));
    EXPECT_FALSE(none.isListed);
    EXPECT_TRUE(none.symbols.empty());
    EXPECT_EQ(none.diagnostics.size(), 1U);
}

TEST(Jobs, TextIsReadInTheEncodingAskedForOrTheOneThatFits) {
    // 0xE1 is a Greek alpha in one encoding and an a with an accent in the other.
    conversions::Input input = Named("a.lin", "*\xe1\nA,1\n");
    EXPECT_EQ(NamesOf(ListLinetypes(input)), Names{"\xc3\xa1"});
    input.encoding = "WINDOWS-1253";
    EXPECT_EQ(NamesOf(ListLinetypes(input)), Names{"\xce\xb1"});
    EXPECT_FALSE(conversions::IsKnownEncoding("KLINGON"));
}

TEST(Jobs, OneCauseIsToldOnceForManyLinetypes) {
    FilesInMemory front;
    std::string text;
    for (int i = 0; i < 300; ++i) {
        text += "*L" + std::to_string(i) + "\nA,1,[MARK,Marks.shx]\n";
    }
    EXPECT_EQ(
        Messages(Check(FileKind::kLinetypes, Named("a.lin", text), {}, front)),
        "a.lin:2: error: shape file Marks.shx not found in memory; the same in 299 more places (linetype "
        "L0) [missing-shape-file]\n");
}

} // namespace
} // namespace conversions_test
