// Linetypes as their file means them, where the required symbol says something else.
#include "FakeServices.h"
#include "TestParser.h"

#include "StyleConversion/linetype/CLinVisitor.h"
#include "StyleConversion/linetype/Services.h"
#include "tests/support/ReadSymbol.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace linetypetest {
namespace {

class FaithfulLinetypes : public testing::Test {
protected:
    FaithfulLinetypes() { styles.AddTrueType(L"ST", L"Arial"); }

    // The texts of a linetype of that pattern, by symbol.
    ReadSymbol Converted(const std::string& pattern, bool faithful) {
        LineConverter::LinPolicy policy;
        policy.faithful = faithful;
        LineConverter::HostShapeFiles shapeFiles(files);
        TestParser parser(&styles, &shapeFiles, policy);
        EXPECT_EQ(parser.Parse("*X\nA," + pattern + "\n"), LineConverter::kSuccess);
        LineConverter::CLinVisitor visitor(1.0, nullptr, policy);
        EXPECT_EQ(parser.Accept(visitor), LineConverter::kSuccess);
        const std::unique_ptr<std::vector<TylModel::SymbolDefinition*>> symbols(visitor.TakeResults());
        const std::unique_ptr<TylModel::SymbolDefinition> symbol(symbols->front());
        return Read(*symbol);
    }

    FakeStyles styles;
    FakeFiles files;
};

// In a frame that is turned by 30 degrees, (2 sin 30, 2 cos 30) is straight above where the frame begins.
TEST_F(FaithfulLinetypes, AnOffsetIsRightBesideALevelLine) {
    const ReadSymbol faithful = Converted("4,[\"GAS\",ST,A=30,X=1,Y=2]", true);
    EXPECT_EQ(faithful.members.at(0).graphics.at(0).text->x, L"1");
    EXPECT_EQ(faithful.members.at(0).graphics.at(0).text->y, L"1.73205080756888");
    EXPECT_EQ(faithful.members.at(0).line->startOffset, L"5");
    const ReadSymbol strict = Converted("4,[\"GAS\",ST,A=30,X=1,Y=2]", false);
    EXPECT_EQ(strict.members.at(0).graphics.at(0).text->x, L"");
    EXPECT_EQ(strict.members.at(0).graphics.at(0).text->y, L"2");
}

TEST_F(FaithfulLinetypes, LevelTextsStayAsTheyAre) {
    for (const char* const pattern : {"4,[\"GAS\",ST,A=0,X=1,Y=2]", "4,[\"GAS\",ST,A=30]", "4,-1,0,-1"}) {
        const ReadSymbol faithful = Converted(pattern, true);
        const ReadSymbol strict = Converted(pattern, false);
        ASSERT_EQ(faithful.members.size(), strict.members.size());
        if (!strict.members.empty()) {
            EXPECT_EQ(faithful.members.at(0).graphics.at(0).text->x,
                      strict.members.at(0).graphics.at(0).text->x);
            EXPECT_EQ(faithful.members.at(0).graphics.at(0).text->y,
                      strict.members.at(0).graphics.at(0).text->y);
        }
    }
}

TEST_F(FaithfulLinetypes, RadiansAreRadians) {
    EXPECT_EQ(Converted("4,[\"GAS\",ST,R=1r]", true).graphics.at(0).text->angle, L"57.2957795130823");
    EXPECT_EQ(Converted("4,[\"GAS\",ST,R=1r]", false).graphics.at(0).text->angle, L"0.0174532925199433");
}

} // namespace
} // namespace linetypetest
