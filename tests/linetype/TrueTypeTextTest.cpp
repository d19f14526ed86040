// Linetypes with texts in TrueType typefaces as symbols.
#include "ConversionFixture.h"

namespace linetypetest {
namespace {

class TrueTypeText : public ConversionFixture {
protected:
    // A dash of length 4 with that text besides, in one symbol.
    static std::string InDashes(const std::string& text) {
        return "simple X {" + text +
               "; path M 0,0 L 4,0 ; params LINECOLOR LINEWEIGHT TEXTCOLOR; line repeat=4}\n";
    }
};

TEST_F(TrueTypeText, TextThatTurnsWithTheLineIsInTheDashesSymbol) {
    EXPECT_EQ(ConvertPattern("4,[\"GAS\",ST]"),
              InDashes("text 'GAS' font=Arial height=1 x=4 y=0 'Left' 'Baseline' %TEXTCOLOR%"));
}

TEST_F(TrueTypeText, RotationOfZeroIsNone) {
    EXPECT_EQ(ConvertPattern("4,[\"GAS\",ST,S=.1,R=0.0,X=-.1,Y=-.05]"),
              InDashes("text 'GAS' font=Arial height=0.1 x=3.9 y=-0.05 'Left' 'Baseline' %TEXTCOLOR%"));
}

TEST_F(TrueTypeText, RotationIsTheTextsAngle) {
    EXPECT_EQ(ConvertPattern("4,[\"GAS\",ST,R=-45]"),
              InDashes("text 'GAS' font=Arial height=1 angle=-45 x=4 y=0 'Left' 'Baseline' %TEXTCOLOR%"));
    // Also where a fixed angle was given before.
    EXPECT_EQ(ConvertPattern("4,[\"GAS\",ST,A=10,R=-45]"),
              InDashes("text 'GAS' font=Arial height=1 angle=-45 x=4 y=0 'Left' 'Baseline' %TEXTCOLOR%"));
}

TEST_F(TrueTypeText, FixedAngleMakesAMemberOfItsOwn) {
    EXPECT_EQ(ConvertPattern("4,[\"GAS\",ST,A=0,X=1,Y=2]"),
              WithDash("simple X {text 'GAS' font=Arial height=1 y=2 'Left' 'Baseline' %TEXTCOLOR%; "
                       "params TEXTCOLOR; line angle=0 control='FromAngle' repeat=4 start=5}"));
    EXPECT_EQ(ConvertPattern("4,[\"GAS\",ST,A=30.5]"),
              WithDash("simple X {text 'GAS' font=Arial height=1 y=0 'Left' 'Baseline' %TEXTCOLOR%; "
                       "params TEXTCOLOR; line angle=30.5 control='FromAngle' repeat=4 start=4}"));
}

TEST_F(TrueTypeText, MembersAndTextsInTheDashesMayStandTogether) {
    EXPECT_EQ(ConvertPattern("4,[\"a\",ST],[\"b\",ST,A=0]"),
              "compound X [simple X {text 'b' font=Arial height=1 y=0 'Left' 'Baseline' %TEXTCOLOR%; "
              "params TEXTCOLOR; line angle=0 control='FromAngle' repeat=4 start=4}, "
              "simple X {text 'a' font=Arial height=1 x=4 y=0 'Left' 'Baseline' %TEXTCOLOR%; "
              "path M 0,0 L 4,0 ; params LINECOLOR LINEWEIGHT TEXTCOLOR; line repeat=4}]\n");
}

TEST_F(TrueTypeText, TextParameterIsNotCarriedToTheNextLinetype) {
    EXPECT_EQ(Convert("*X\nA,4,[\"a\",ST]\n*Y\nA,1\n"),
              InDashes("text 'a' font=Arial height=1 x=4 y=0 'Left' 'Baseline' %TEXTCOLOR%") +
                  "simple Y {path M 0,0 L 1,0 ; params LINECOLOR LINEWEIGHT; line repeat=1}\n");
}

TEST_F(TrueTypeText, HeightIsSizeTimesTheStylesHeightTimesScale) {
    styles.styles[L"ST"].textSize = 2.5;
    // 3 × 2.5 × 2, (0 + 1) × 2, 1 × 2.
    EXPECT_EQ(ConvertPattern("[\"a\",ST,S=3,X=1,Y=1]", 2),
              "simple X {text 'a' font=Arial height=15 x=2 y=2 'Left' 'Baseline' %TEXTCOLOR%; path ; "
              "params LINECOLOR LINEWEIGHT TEXTCOLOR; line repeat=0}\n");
}

TEST_F(TrueTypeText, BoldAndItalicComeFromTheStyle) {
    styles.styles[L"ST"].bold = true;
    EXPECT_EQ(ConvertPattern("4,[\"a\",ST]"),
              InDashes("text 'a' font=Arial height=1 x=4 y=0 'Left' 'Baseline' %TEXTCOLOR% bold=true"));
    styles.styles[L"ST"].italic = true;
    EXPECT_EQ(
        ConvertPattern("4,[\"a\",ST]"),
        InDashes("text 'a' font=Arial height=1 x=4 y=0 'Left' 'Baseline' %TEXTCOLOR% bold=true italic=true"));
}

TEST_F(TrueTypeText, UnderlinedTextIsMarked) {
    EXPECT_EQ(
        ConvertPattern("4,[\"%%UABC%%U\",ST]"),
        InDashes("text 'ABC' font=Arial height=1 x=4 y=0 'Left' 'Baseline' %TEXTCOLOR% underlined=true"));
    EXPECT_EQ(
        ConvertPattern("4,[\"%%oABC\",ST]"),
        InDashes("text 'ABC' font=Arial height=1 x=4 y=0 'Left' 'Baseline' %TEXTCOLOR% overlined=true"));
}

TEST_F(TrueTypeText, EmptyTextIsUnderlinedAndOverlined) {
    EXPECT_EQ(ConvertPattern("4,[\"\",ST]"),
              InDashes("text '' font=Arial height=1 x=4 y=0 'Left' "
                       "'Baseline' %TEXTCOLOR% underlined=true overlined=true"));
}

TEST_F(TrueTypeText, QuotesInTheTextAreDoubled) {
    EXPECT_EQ(ConvertPattern("4,[\"'o'\",ST]"),
              InDashes("text '''o''' font=Arial height=1 x=4 y=0 'Left' 'Baseline' %TEXTCOLOR%"));
    EXPECT_EQ(ConvertPattern("4,[\"%%039\",ST]"),
              InDashes("text '''' font=Arial height=1 x=4 y=0 'Left' 'Baseline' %TEXTCOLOR%"));
}

TEST_F(TrueTypeText, CharactersBeyondTheBasicPlaneAreKept) {
    EXPECT_EQ(ConvertPattern("4,[\"\xF0\x9F\x9A\x82%%d\",ST]"),
              InDashes("text '\xF0\x9F\x9A\x82\xC2\xB0' font=Arial height=1 x=4 y=0 'Left' 'Baseline' "
                       "%TEXTCOLOR%"));
}

} // namespace
} // namespace linetypetest
