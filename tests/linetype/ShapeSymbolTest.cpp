// Linetypes with shapes as symbols.
#include "ConversionFixture.h"

namespace linetypetest {
namespace {

using LineConverter::LinErrorKind;

class ShapeSymbol : public ConversionFixture {
protected:
    ShapeSymbol() {
        files.files[L"MARKS.SHX"] = ShapesFile({
            {130, "MARK", UnitStroke()},
            {131, "lower", UnitStroke()},
            {132, "EMPTY", Bytes({2, 0x10, 0})},    // pen up, one unit along x
            {133, "CUT", Bytes({8, 1})},            // a displacement without its second byte
            {134, "LOOP", Bytes({7, 134, 0})},      // itself as a subshape
            {135, "UPRIGHT", Bytes({14, 0x10, 0})}, // a stroke for vertical drawing only
        });
    }

    static std::string Member(const std::string& path, const std::string& usage) {
        return "simple X {path " + path + "; params LINECOLOR LINEWEIGHT; line " + usage + "}";
    }
};

TEST_F(ShapeSymbol, ShapeIsAMemberBeforeTheDashes) {
    EXPECT_EQ(ConvertPattern("4,[MARK,marks.shx]"), WithDash(Member("M 4,0 l 1,0 ", "repeat=4")));
}

TEST_F(ShapeSymbol, ShapeAdvancesNothing) {
    EXPECT_EQ(ConvertPattern("1,[MARK,marks.shx],-3,[MARK,marks.shx]"),
              "compound X [" + Member("M 1,0 l 1,0 ", "repeat=4") + ", " +
                  Member("M 4,0 l 1,0 ", "repeat=4") +
                  ", simple X {path M 0,0 L 1,0 ; params LINECOLOR LINEWEIGHT; line repeat=4}]\n");
}

TEST_F(ShapeSymbol, OffsetsAndSizeAreScaled) {
    // ((2 + 4) × 10, 3 × 10), a stroke of 0.5 × 10.
    EXPECT_EQ(ConvertPattern("4,[MARK,marks.shx,X=2,Y=3,S=.5]", 10),
              "compound X [" + Member("M 60,30 l 5,0 ", "repeat=40") +
                  ", simple X {path M 0,0 L 40,0 ; params LINECOLOR LINEWEIGHT; line repeat=40}]\n");
}

TEST_F(ShapeSymbol, RotationAgainstTheLineTurnsTheShape) {
    // cos 180° is -1 and sin 180° 1.22464679914735e-16.
    EXPECT_EQ(ConvertPattern("4,[MARK,marks.shx,R=180]"),
              WithDash(Member("M 4,0 l -1,1.22464679914735e-16 ", "repeat=4")));
}

TEST_F(ShapeSymbol, FixedAngleDrawsAtTheOriginAndStartsThere) {
    EXPECT_EQ(ConvertPattern("4,[MARK,marks.shx,X=1,Y=2,A=90]"),
              WithDash(Member("M 0,2 l 1,0 ", "angle=90 control='FromAngle' repeat=4 start=5")));
    EXPECT_EQ(ConvertPattern("4,[MARK,marks.shx,A=0]"),
              WithDash(Member("M 0,0 l 1,0 ", "angle=0 control='FromAngle' repeat=4 start=4")));
}

TEST_F(ShapeSymbol, RotationAgainstTheLineGoesBeforeAFixedAngle) {
    EXPECT_EQ(ConvertPattern("4,[MARK,marks.shx,A=90,R=180]"),
              WithDash(Member("M 4,0 l -1,1.22464679914735e-16 ", "repeat=4")));
    // But a fixed angle behind it resets it, and a rotation of 0 is none.
    EXPECT_EQ(ConvertPattern("4,[MARK,marks.shx,R=180,A=90]"),
              WithDash(Member("M 0,0 l 1,0 ", "angle=90 control='FromAngle' repeat=4 start=4")));
    EXPECT_EQ(ConvertPattern("4,[MARK,marks.shx,A=90,R=0]"),
              WithDash(Member("M 0,0 l 1,0 ", "angle=90 control='FromAngle' repeat=4 start=4")));
}

TEST_F(ShapeSymbol, ShapeThatDrawsNothingAddsNothing) {
    const std::string dashes = "simple X {path M 0,0 L 4,0 ; params LINECOLOR LINEWEIGHT; line repeat=4}\n";
    EXPECT_EQ(ConvertPattern("4,[EMPTY,marks.shx]"), dashes);
    EXPECT_EQ(ConvertPattern("4,[UPRIGHT,marks.shx]"), dashes);
}

TEST_F(ShapeSymbol, DescriptionIsTheCompoundsAlone) {
    EXPECT_EQ(Convert("*X,why\nA,4,[MARK,marks.shx]\n"),
              "compound X (why) [" + Member("M 4,0 l 1,0 ", "repeat=4") +
                  ", simple X {path M 0,0 L 4,0 ; params LINECOLOR LINEWEIGHT; line repeat=4}]\n");
}

TEST_F(ShapeSymbol, StateOfOneLinetypeIsNotTheNextOnes) {
    EXPECT_EQ(Convert("*X\nA,4,[MARK,marks.shx]\n*Y\nA,1\n"),
              WithDash(Member("M 4,0 l 1,0 ", "repeat=4")) +
                  "simple Y {path M 0,0 L 1,0 ; params LINECOLOR LINEWEIGHT; line repeat=1}\n");
}

TEST_F(ShapeSymbol, ShapeThatTheFileLacksFailsTheConversion) {
    EXPECT_EQ(Convert("*W\nA,1\n*X\nA,4,[NONE,marks.shx]\n*Y\nA,1\n"), "failed");
    ASSERT_EQ(parser.errors().size(), 1U);
    EXPECT_EQ(parser.errors()[0].kind, LinErrorKind::kShapeNotInFile);
    EXPECT_EQ(parser.errors()[0].subject, L"NONE");
    EXPECT_EQ(parser.errors()[0].linetype, "X");
    EXPECT_EQ(parser.errors()[0].element, 2U);
    EXPECT_EQ(parser.errors()[0].line, 4U);
}

TEST_F(ShapeSymbol, ShapeWithALowerCaseNameIsNeverFound) {
    EXPECT_EQ(ConvertPattern("4,[lower,marks.shx]"), "failed");
    EXPECT_EQ(LastError(), LinErrorKind::kShapeNotInFile);
}

TEST_F(ShapeSymbol, ShapeThatCannotBeDecodedOrDrawnFailsTheConversion) {
    EXPECT_EQ(ConvertPattern("4,[CUT,marks.shx]"), "failed");
    EXPECT_EQ(LastError(), LinErrorKind::kShapeNotDrawn);
    EXPECT_EQ(parser.errors()[0].shxResult, ShxUtility::kMalformed);
    EXPECT_EQ(ConvertPattern("4,[LOOP,marks.shx]"), "failed");
    EXPECT_EQ(parser.errors()[0].shxResult, ShxUtility::kRecursiveSubshape);
}

TEST_F(ShapeSymbol, EveryFailedElementIsKept) {
    EXPECT_EQ(ConvertPattern("4,[NONE,marks.shx],[MARK,marks.shx],[CUT,marks.shx]"), "failed");
    ASSERT_EQ(parser.errors().size(), 2U);
    EXPECT_EQ(parser.errors()[0].element, 2U);
    EXPECT_EQ(parser.errors()[1].element, 4U);
}

TEST_F(ShapeSymbol, FailureIsForgottenByTheNextRun) {
    ASSERT_EQ(Parse("*X\nA,[NONE,marks.shx]\n"), LineConverter::kSuccess);
    LineConverter::CLinVisitor visitor(1.0);
    parser.Accept(visitor);
    EXPECT_EQ(visitor.TakeResults(), nullptr);
    ASSERT_EQ(Parse("*X\nA,1\n"), LineConverter::kSuccess);
    parser.Accept(visitor);
    const std::unique_ptr<std::vector<TylModel::SymbolDefinition*>> symbols(visitor.TakeResults());
    ASSERT_NE(symbols, nullptr);
    delete symbols->front();
}

} // namespace
} // namespace linetypetest
