// Texts and shapes in patterns.
#include "ParserFixture.h"

#include "StyleConversion/platform/CodePage.h"

#include <cmath>
#include <ostream>

namespace linetypetest {
namespace {

struct ElementCase {
    const char* element;
    const char* read; // what the walk shows
};

void PrintTo(const ElementCase& row, std::ostream* out) {
    *out << row.element;
}

class LinElements : public ParserFixture, public testing::WithParamInterface<ElementCase> {};

TEST_P(LinElements, Reads) {
    EXPECT_EQ(Elements(std::string("A,") + GetParam().element), GetParam().read);
}

// Behind "at" stand the fields A, R, S, X and Y. Two SHX files are at hand only where two are named.
INSTANTIATE_TEST_SUITE_P(
    Texts, LinElements,
    testing::Values(ElementCase{R"(["ABC",st,S=.1,R=0.0,X=-0.1,Y=-.05])",
                                "text ABC in Arial of 0 at nan 0 0.1 -0.1 -0.05;"},
                    ElementCase{R"(["ABC",ST])", "text ABC in Arial of 0 at nan 0 1 0 0;"},
                    ElementCase{R"(["ABC",st],1)", "text ABC in Arial of 0 at nan 0 1 0 0;dash 1;"},
                    ElementCase{R"(["",St])", "text  in Arial of 0 at nan 0 1 0 0;"},
                    ElementCase{R"(["a,b]=c",ST])", "text a,b]=c in Arial of 0 at nan 0 1 0 0;"},
                    ElementCase{R"(["A",standard])", "text A in TXT.SHX of 1 at nan 0 1 0 0;"},
                    // Without a style the text takes two closing brackets, and is then of the style STANDARD.
                    ElementCase{R"(["A"]],1)", "text A in TXT.SHX of 1 at nan 0 1 0 0;dash 1;"},
                    ElementCase{R"(["ABC"])", "result 3"}, ElementCase{R"(["ABC"],1)", "result 3"},
                    ElementCase{R"(["ABC",])", "result 3"}, ElementCase{R"(["ABC",,S=1])", "result 3"},
                    ElementCase{R"(["ABC)", "result 3"}, ElementCase{R"(["ABC")", "result 3"},
                    ElementCase{R"(["ABC" ,ST])", "result 3"}, ElementCase{R"(["ABC",ST)", "result 3"},
                    ElementCase{R"(["ABC",S=1])", "result 3"}, ElementCase{R"(["ABC",ST x])", "result 5"},
                    ElementCase{R"(["A"B",ST])", "result 3"}));

INSTANTIATE_TEST_SUITE_P(
    Shapes, LinElements,
    testing::Values(ElementCase{"[mark,marks.shx,x=-.1,s=.1]", "shape MARK of 2 at nan 0 0.1 -0.1 0;"},
                    ElementCase{"[MARK,MARKS.SHX]", "shape MARK of 2 at nan 0 1 0 0;"},
                    ElementCase{"[mark,marks.shx],-1", "shape MARK of 2 at nan 0 1 0 0;gap 1;"},
                    // A name may be empty or anything else: whether the file has it shows later.
                    ElementCase{"[,marks.shx]", "shape  of 2 at nan 0 1 0 0;"},
                    ElementCase{"[a=b [x,marks.shx]", "shape A=B [X of 2 at nan 0 1 0 0;"},
                    ElementCase{"[mark,]", "result 3"}, ElementCase{"[mark,,s=1]", "result 3"},
                    ElementCase{"[mark]", "result 3"}, ElementCase{"[mark", "result 3"},
                    ElementCase{"[]", "result 3"}, ElementCase{"[", "result 3"},
                    ElementCase{"[mark,marks.shx", "result 3"},
                    // The file's name is "MARKS.SHX S=1".
                    ElementCase{"[mark,marks.shx s=1]", "result 6"},
                    ElementCase{" [mark,marks.shx]", "result 3"}));

INSTANTIATE_TEST_SUITE_P(
    Fields, LinElements,
    testing::Values(
        ElementCase{"[m,marks.shx,A=90]", "shape M of 2 at 90 0 1 0 0;"},
        ElementCase{"[m,marks.shx,a=90,r=1,s=2,x=3,y=4]", "shape M of 2 at 90 1 2 3 4;"},
        ElementCase{"[m,marks.shx,R=1,A=90]", "shape M of 2 at 90 0 1 0 0;"},
        ElementCase{"[m,marks.shx,A=90,R=1]", "shape M of 2 at 90 1 1 0 0;"},
        ElementCase{"[m,marks.shx,S=1,S=2]", "shape M of 2 at nan 0 2 0 0;"},
        ElementCase{"[m,marks.shx,S= 2]", "shape M of 2 at nan 0 2 0 0;"},
        ElementCase{"[m,marks.shx,A=1e999]", "shape M of 2 at inf 0 1 0 0;"},
        ElementCase{"[m,marks.shx,S=0]", "shape M of 2 at nan 0 0 0 0;"},
        ElementCase{"[m,marks.shx,S=1]]", "shape M of 2 at nan 0 1 0 0;"},
        ElementCase{"[m,marks.shx,]", "result 3"}, ElementCase{"[m,marks.shx,S]", "result 3"},
        ElementCase{"[m,marks.shx,S=]", "result 3"}, ElementCase{"[m,marks.shx,S =1]", "result 3"},
        ElementCase{"[m,marks.shx, S=1]", "result 3"}, ElementCase{"[m,marks.shx,S=1 ]", "result 3"},
        ElementCase{"[m,marks.shx,U=1]", "result 3"}, ElementCase{"[m,marks.shx,z=1]", "result 3"},
        ElementCase{"[m,marks.shx,@=1]", "result 3"}, ElementCase{"[m,marks.shx,\xE9=1]", "result 3"},
        ElementCase{"[m,marks.shx,A=nan]", "result 3"}, ElementCase{"[m,marks.shx,S=1", "result 3"},
        ElementCase{"[m,marks.shx,S=1e]", "result 3"}, ElementCase{"[m,marks.shx,A=1e-d]", "result 3"},
        ElementCase{"[m,marks.shx,S=1,]", "result 3"}));

// 100 grads are 90 degrees; a value in radians is multiplied by π/180.
INSTANTIATE_TEST_SUITE_P(
    Units, LinElements,
    testing::Values(
        ElementCase{"[m,marks.shx,A=90d]", "shape M of 2 at 90 0 1 0 0;"},
        ElementCase{"[m,marks.shx,A=100g]", "shape M of 2 at 90 0 1 0 0;"},
        ElementCase{"[m,marks.shx,R=50g]", "shape M of 2 at nan 45 1 0 0;"},
        ElementCase{"[m,marks.shx,R=1r]", "shape M of 2 at nan 0.0174532925199433 1 0 0;"},
        ElementCase{"[m,marks.shx,a=180r,x=1]", "shape M of 2 at 3.14159265358979 0 1 1 0;"},
        ElementCase{"[m,marks.shx,S=2d]", "result 3"}, ElementCase{"[m,marks.shx,X=2g]", "result 3"},
        ElementCase{"[m,marks.shx,Y=2r]", "result 3"}, ElementCase{"[m,marks.shx,A=90D]", "result 3"},
        ElementCase{"[m,marks.shx,A=90 d]", "result 3"}, ElementCase{"[m,marks.shx,A=90dd]", "result 3"}));

class LinElementNames : public ParserFixture {
protected:
    void TearDown() override { platform::SetAnsiCodePage("UTF-8"); }
};

TEST_F(LinElementNames, RadiansAreMultipliedExactly) {
    ASSERT_EQ(Parse("*X\nA,[m,marks.shx,R=1r]\n"), LineConverter::kSuccess);
    EXPECT_EQ(parser.linetypes()[0].elements[0].complex->transform.relativeRotation, 0.017453292519943295);
}

TEST_F(LinElementNames, RotationThatIsNotGivenIsNotANumber) {
    ASSERT_EQ(Parse("*X\nA,[m,marks.shx]\n"), LineConverter::kSuccess);
    EXPECT_TRUE(std::isnan(parser.linetypes()[0].elements[0].complex->transform.absoluteRotation));
}

TEST_F(LinElementNames, OnlyTheLettersAToZBecomeUpperCase) {
    styles.AddTrueType(L"ST\u00E9", L"Other");
    EXPECT_EQ(Elements("A,[\"a\",st\xC3\xA9]"), "text a in Other of 0 at nan 0 1 0 0;");
    EXPECT_EQ(parser.linetypes()[0].elements[0].complex->styleName, L"ST\u00E9");
    EXPECT_EQ(Elements("A,[m\xC3\xA9,marks.shx]"), "shape M\xC3\xA9 of 2 at nan 0 1 0 0;");
}

TEST_F(LinElementNames, QuoteWithinADoubleByteCharacterDoesNotCloseTheText) {
    // 0x83 begins a double-byte character in this code page, whose second byte is here the quote's code.
    ASSERT_TRUE(platform::SetAnsiCodePage("SHIFT_JIS"));
    ASSERT_EQ(Parse("*X\nA,[\"\x83\"b\",ST]\n"), LineConverter::kSuccess);
    EXPECT_EQ(parser.linetypes()[0].elements[0].complex->text, "\x83\"b");
    ASSERT_TRUE(platform::SetAnsiCodePage("WINDOWS-1252"));
    EXPECT_EQ(Parse("*X\nA,[\"\x83\"b\",ST]\n"), LineConverter::kSyntaxError);
}

} // namespace
} // namespace linetypetest
