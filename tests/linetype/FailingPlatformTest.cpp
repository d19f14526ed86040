// Results that a working system hardly ever gives: names without a wide form, files that cannot be closed.
#include "FailingPlatform.h"
#include "StyleConversion/linetype/CLinVisitor.h"
#include "StyleConversion/linetype/LinParser.h"
#include "StyleConversion/linetype/LineConverter.h"

#include <gtest/gtest.h>
#include <memory>

namespace linetypetest {
namespace {

using namespace LineConverter;

class OneStyle : public IGetFontInfo {
public:
    bool GetFontInfoFromStyle(const wchar_t* /*styleName*/, FontInfo& info) override {
        info.typeface = L"Arial";
        return true;
    }
};

class FailingPlatform : public testing::Test {
protected:
    ~FailingPlatform() override { closingFails = false; }

    LinResult Parse(const std::string& text) {
        fileContent = text;
        parser.Clear();
        return parser.Parse(L"test.lin");
    }

    bool ConvertGivesNull(const std::string& text) {
        fileContent = text;
        const std::unique_ptr<std::vector<TylModel::SymbolDefinition*>> symbols(
            Convert(L"test.lin", &styles, nullptr, 1.0));
        for (std::size_t i = 0; symbols && i < symbols->size(); ++i) {
            delete (*symbols)[i];
        }
        return symbols == nullptr;
    }

    OneStyle styles;
    LinParser parser{&styles, nullptr};
};

TEST_F(FailingPlatform, FilesAreRead) {
    EXPECT_EQ(Parse("*X\nA,1\n"), kSuccess);
    EXPECT_EQ(parser.file().linetypes.size(), 1U);
}

TEST_F(FailingPlatform, StyleNameWithoutAWideFormIsFour) {
    EXPECT_EQ(Parse("*X\nA,[\"A\",?]\n"), 4);
    EXPECT_EQ(parser.errorLog().errors()[0].kind, LinErrorKind::kStyleNameNotConvertible);
}

TEST_F(FailingPlatform, ShapeFileWithoutAWideFormIsFour) {
    EXPECT_EQ(Parse("*X\nA,[A,?]\n"), 4);
    EXPECT_EQ(parser.errorLog().errors()[0].kind, LinErrorKind::kShapeFileNotConvertible);
}

TEST_F(FailingPlatform, FileThatCannotBeClosedIsSeven) {
    closingFails = true;
    EXPECT_EQ(Parse("*X\nA,1\n"), 7);
    EXPECT_EQ(parser.errorLog().errors()[0].kind, LinErrorKind::kFileNotClosed);
    EXPECT_EQ(Parse(""), 7);
}

TEST_F(FailingPlatform, SyntaxErrorsGoBeforeFailuresToClose) {
    closingFails = true;
    EXPECT_EQ(Parse("*X\nA,x\n"), 3);
}

TEST_F(FailingPlatform, ConversionGivesNull) {
    EXPECT_FALSE(ConvertGivesNull("*X\nA,1,[\"A\",B]\n"));
    EXPECT_TRUE(ConvertGivesNull("*X\nA,[\"A\",?]\n"));
    EXPECT_TRUE(ConvertGivesNull("*?\nA,1\n"));
    EXPECT_TRUE(ConvertGivesNull("*X,?\nA,1\n"));
    EXPECT_TRUE(ConvertGivesNull("*X\nA,1,[\"?\",B]\n"));
    closingFails = true;
    EXPECT_TRUE(ConvertGivesNull("*X\nA,1\n"));
}

TEST_F(FailingPlatform, EmptyTextsHaveAnEmptyWideForm) {
    std::wstring wide = L"before";
    EXPECT_EQ(AnsiToWide("", wide), kSuccess);
    EXPECT_EQ(wide, L"");
    wide = L"before";
    EXPECT_EQ(AnsiToWide("?", wide), kCannotConvert);
    EXPECT_EQ(wide, L"");
}

} // namespace
} // namespace linetypetest
