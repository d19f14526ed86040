// The walk over parsed linetypes.
#include "ParserFixture.h"

namespace linetypetest {
namespace {

using LineConverter::LinErrorKind;

class LinWalk : public ParserFixture {};

TEST_F(LinWalk, ElementsAreShownInPatternOrder) {
    EXPECT_EQ(Walk("*X,d\nA,1,[\"A\",ST],-1,[MARK,marks.shx],0\n"),
              "begin;linetype X|d|5;dash 1;text A in Arial of 1 at nan 0 1 0 0;gap 1;"
              "shape MARK of 2 at nan 0 1 0 0;dot;end linetype;end;");
}

TEST_F(LinWalk, ShapeInAFontIsLeftOutAndReportedAndTheWalkGoesOn) {
    files.files[L"MARKS.SHX"] = ShapesFile({FontInformation(8, 2, 0), {130, "MARK", UnitStroke()}});
    EXPECT_EQ(
        Walk("*X\nA,1,[MARK,marks.shx],2\n*Y\nA,3\n"),
        "begin;linetype X||3;dash 1;dash 2;end linetype;linetype Y||1;dash 3;end linetype;end;result 6");
    ASSERT_EQ(parser.errors().size(), 1U);
    EXPECT_EQ(parser.errors()[0].kind, LinErrorKind::kNotAShapeFile);
    EXPECT_EQ(parser.errors()[0].subject, L"MARKS.SHX");
    EXPECT_EQ(parser.errors()[0].linetype, "X");
    EXPECT_EQ(parser.errors()[0].element, 2U);
    EXPECT_EQ(parser.errors()[0].line, 2U);
}

TEST_F(LinWalk, ShapeInAUnifontThatATextNeedsIsLeftOut) {
    files.files[L"TXT.SHX"] = UnifontFile({FontInformation(8, 2, 0), {65, "A", UnitStroke()}});
    EXPECT_EQ(Walk("*X\nA,[A,txt.shx],[\"A\",STANDARD]\n"),
              "begin;linetype X||2;text A in TXT.SHX of 1 at nan 0 1 0 0;end linetype;end;result 6");
}

TEST_F(LinWalk, ErrorsOfLaterLinetypesHaveTheirOwnLines) {
    files.files[L"MARKS.SHX"] = ShapesFile({FontInformation(8, 2, 0), {130, "MARK", UnitStroke()}});
    Walk("*X\nA,1,2\n*Y\nA,3,\n-1,\n[MARK,marks.shx]\n");
    ASSERT_EQ(parser.errors().size(), 1U);
    EXPECT_EQ(parser.errors()[0].line, 6U);
    EXPECT_EQ(parser.errors()[0].linetype, "Y");
    EXPECT_EQ(parser.errors()[0].element, 3U);
}

TEST_F(LinWalk, UnresolvedElementsAreSkipped) {
    ASSERT_EQ(parser.Read("*X\nA,1,[\"A\",ST]\n"), LineConverter::kSuccess);
    RecordingVisitor visitor;
    EXPECT_EQ(parser.Accept(visitor), LineConverter::kSuccess);
    EXPECT_EQ(visitor.record, "begin;linetype X||2;dash 1;end linetype;end;");
    ASSERT_EQ(parser.Read("*X\nA,1,[M,marks.shx]\n"), LineConverter::kSuccess);
    EXPECT_EQ(parser.Accept(visitor), LineConverter::kShapeFileNotLoaded);
}

} // namespace
} // namespace linetypetest
