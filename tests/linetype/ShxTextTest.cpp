// Linetypes with texts in SHX fonts as symbols.
#include "ConversionFixture.h"

namespace linetypetest {
namespace {

using LineConverter::LinErrorKind;

class ShxText : public ConversionFixture {
protected:
    // Characters 10 units high; A is a stroke of 5 units, B of 10; each begins where the one before ended.
    void UseFont(const std::vector<Entry>& more = {}, const std::string& version = "1.0", int modes = 0) {
        std::vector<Entry> entries = {
            FontInformation(10, 2, modes), {65, "A", Bytes({0x50, 0})}, {66, "B", Bytes({0xA0, 0})}};
        entries.insert(entries.end(), more.begin(), more.end());
        files.files[L"TXT.SHX"] = ShapesFile(entries, version);
    }

    void SetUp() override { UseFont(); }

    // The member that a text becomes, with a dash of length 4.
    static std::string Drawn(const std::string& path, const std::string& usage = "repeat=4") {
        return WithDash("simple X {path " + path + "; params LINECOLOR LINEWEIGHT; line " + usage + "}");
    }

    static std::string NothingDrawn() {
        return "simple X {path M 0,0 L 4,0 ; params LINECOLOR LINEWEIGHT; line repeat=4}\n";
    }
};

TEST_F(ShxText, CharactersAreDrawnOneBehindTheOther) {
    EXPECT_EQ(ConvertPattern("4,[\"ABA\",STANDARD]"), Drawn("M 4,0 l 0.5,0 M 4.5,0 l 1,0 M 5.5,0 l 0.5,0 "));
}

TEST_F(ShxText, SizeIsElementTimesScaleByTheFontsHeightTimesTheStyles) {
    styles.styles[L"STANDARD"].textSize = 3;
    // 2 × 0.5 / 10 × 3 = 0.3 per unit; at ((4 + 1) × 0.5, 1 × 0.5).
    EXPECT_EQ(ConvertPattern("8,-4,[\"A\",STANDARD,S=2,X=1,Y=1]", 0.5),
              "compound X [simple X {path M 6.5,0.5 l 1.5,0 ; params LINECOLOR LINEWEIGHT; line repeat=6}, "
              "simple X {path M 0,0 L 4,0 ; params LINECOLOR LINEWEIGHT; line repeat=6}]\n");
}

TEST_F(ShxText, FontHeightIsASignedByte) {
    files.files[L"TXT.SHX"] = ShapesFile({FontInformation(0xF6, 2, 0), {65, "A", Bytes({0x50, 0})}});
    // 0xF6 is -10.
    EXPECT_EQ(ConvertPattern("4,[\"A\",STANDARD]"), Drawn("M 4,0 l -0.5,-0 "));
}

TEST_F(ShxText, RotationTurnsTheText) {
    // cos 180° is -1; sin 180° × 0.5 is 6.12323399573677e-17. The second character starts at 3.5.
    EXPECT_EQ(ConvertPattern("4,[\"AA\",STANDARD,R=180]"),
              Drawn("M 4,0 l -0.5,6.12323399573677e-17 M 3.5,6.12323399573677e-17 "
                    "l -0.5,6.12323399573677e-17 "));
}

TEST_F(ShxText, FixedAngleDrawsAtTheOriginAndStartsThere) {
    EXPECT_EQ(ConvertPattern("4,[\"AA\",STANDARD,A=45,X=1,Y=2]"),
              Drawn("M 0,2 l 0.5,0 M 0.5,2 l 0.5,0 ", "angle=45 control='FromAngle' repeat=4 start=5"));
}

TEST_F(ShxText, ScaleOfOneCharacterIsNotTheNextOnes) {
    // "2" doubles the scale, draws one unit and saves a position without taking it back.
    UseFont({{50, "TWO", Bytes({4, 2, 5, 0x10, 0})}});
    EXPECT_EQ(ConvertPattern("4,[\"222222A\",STANDARD]"),
              Drawn("M 4,0 l 0.2,0 M 4.2,0 l 0.2,0 M 4.4,0 l 0.2,0 M 4.6,0 l 0.2,0 M 4.8,0 l 0.2,0 "
                    "M 5,0 l 0.2,0 M 5.2,0 l 0.5,0 "));
}

TEST_F(ShxText, SubshapesAreActiveWithinTheirCharacterOnly) {
    UseFont({{67, "C", Bytes({7, 65, 0})}});
    EXPECT_EQ(ConvertPattern("4,[\"CCA\",STANDARD]"), Drawn("M 4,0 l 0.5,0 M 4.5,0 l 0.5,0 M 5,0 l 0.5,0 "));
}

TEST_F(ShxText, PenIsDownForEachCharacter) {
    UseFont({{67, "C", Bytes({2, 0xA0, 0})}});
    EXPECT_EQ(ConvertPattern("4,[\"CA\",STANDARD]"), Drawn("M 5,0 l 0.5,0 "));
}

TEST_F(ShxText, CharactersThatTheFontLacksAreLeftOut) {
    EXPECT_EQ(ConvertPattern("4,[\"AxA\",STANDARD]"), Drawn("M 4,0 l 0.5,0 M 4.5,0 l 0.5,0 "));
    EXPECT_EQ(ConvertPattern("4,[\"xyz\",STANDARD]"), NothingDrawn());
    EXPECT_EQ(ConvertPattern("4,[\"\",STANDARD]"), NothingDrawn());
}

TEST_F(ShxText, ControlCodesGiveCharactersAndNoLines) {
    EXPECT_EQ(ConvertPattern("4,[\"%%u%%065%%o\",STANDARD]"), Drawn("M 4,0 l 0.5,0 "));
    // The font information has number 0 and is no character.
    EXPECT_EQ(ConvertPattern("4,[\"%%000\",STANDARD]"), NothingDrawn());
}

TEST_F(ShxText, FontsOfVersion10HaveSubstitutesForThreeSigns) {
    const std::vector<Entry> second = {
        {127, "a", Bytes({0x10, 0})}, {128, "b", Bytes({0x20, 0})}, {129, "c", Bytes({0x30, 0})}};
    const std::vector<Entry> first = {
        {248, "d", Bytes({0x40, 0})}, {241, "e", Bytes({0x60, 0})}, {237, "f", Bytes({0x70, 0})}};
    UseFont(second);
    EXPECT_EQ(ConvertPattern("4,[\"%%256%%257%%258\",STANDARD]"),
              Drawn("M 4,0 l 0.1,0 M 4.1,0 l 0.2,0 M 4.3,0 l 0.3,0 "));
    std::vector<Entry> both = second;
    both.insert(both.end(), first.begin(), first.end());
    UseFont(both);
    EXPECT_EQ(ConvertPattern("4,[\"%%256%%257%%258\",STANDARD]"),
              Drawn("M 4,0 l 0.4,0 M 4.4,0 l 0.6,0 M 5,0 l 0.7,0 "));
    // The sign's own number goes before, and version 1.1 has no substitutes.
    both.push_back({256, "g", Bytes({0x80, 0})});
    UseFont(both);
    EXPECT_EQ(ConvertPattern("4,[\"%%256\",STANDARD]"), Drawn("M 4,0 l 0.8,0 "));
    UseFont(second, "1.1");
    EXPECT_EQ(ConvertPattern("4,[\"%%256%%257%%258\",STANDARD]"), NothingDrawn());
}

TEST_F(ShxText, SignsOfLettersHaveNoSubstitutes) {
    UseFont({{127, "a", Bytes({0x10, 0})}, {128, "b", Bytes({0x20, 0})}, {129, "c", Bytes({0x30, 0})}});
    EXPECT_EQ(ConvertPattern("4,[\"%%c%%d%%p\",STANDARD]"), NothingDrawn());
    UseFont({{8709, "a", Bytes({0x10, 0})}, {176, "b", Bytes({0x20, 0})}, {177, "c", Bytes({0x30, 0})}});
    EXPECT_EQ(ConvertPattern("4,[\"%%c%%d%%p\",STANDARD]"),
              Drawn("M 4,0 l 0.1,0 M 4.1,0 l 0.2,0 M 4.3,0 l 0.3,0 "));
}

TEST_F(ShxText, CharactersBeyondTheBasicPlaneAreLookedUpByTheirTwoUnits) {
    // U+1F682 is D83D DE82.
    UseFont(
        {{0xD83D, "a", Bytes({0x10, 0})}, {0xDE82, "b", Bytes({0x20, 0})}, {0xF682, "c", Bytes({0x30, 0})}});
    EXPECT_EQ(ConvertPattern("4,[\"\xF0\x9F\x9A\x82\",STANDARD]"), Drawn("M 4,0 l 0.1,0 M 4.1,0 l 0.2,0 "));
}

TEST_F(ShxText, VerticalStylesNeedAFontForBothOrientations) {
    // A stroke for vertical drawing, 3 units down, then one to the right.
    const std::vector<Entry> upright = {{67, "C", Bytes({14, 0x3C, 0x10, 0})}};
    UseFont(upright, "1.0", 2);
    EXPECT_EQ(ConvertPattern("4,[\"C\",STANDARD]"), Drawn("M 4,0 l 0.1,0 "));
    styles.styles[L"STANDARD"].isVertical = true;
    EXPECT_EQ(ConvertPattern("4,[\"C\",STANDARD]"), Drawn("M 4,0 l 0,-0.3 M 4,-0.3 l 0.1,0 "));
    UseFont(upright, "1.0", 0);
    EXPECT_EQ(ConvertPattern("4,[\"C\",STANDARD]"), Drawn("M 4,0 l 0.1,0 "));
    UseFont(upright, "1.0", 3);
    EXPECT_EQ(ConvertPattern("4,[\"C\",STANDARD]"), Drawn("M 4,0 l 0.1,0 "));
}

TEST_F(ShxText, UnifontsAreFontsToo) {
    files.files[L"TXT.SHX"] = UnifontFile({FontInformation(10, 2, 0), {0x0416, "ZHE", Bytes({0x50, 0})}});
    EXPECT_EQ(ConvertPattern("4,[\"\xD0\x96\",STANDARD]"), Drawn("M 4,0 l 0.5,0 "));
}

TEST_F(ShxText, SubshapesOfUnifontsHaveOneByteNumbersHere) {
    // Two-byte numbers would make this 0x0041; the first byte alone names shape 0, which no file has.
    files.files[L"TXT.SHX"] = UnifontFile(
        {FontInformation(10, 2, 0), {65, "A", Bytes({0x50, 0})}, {66, "B", Bytes({7, 0, 65, 0})}});
    EXPECT_EQ(ConvertPattern("4,[\"B\",STANDARD]"), "failed");
    EXPECT_EQ(parser.errors()[0].shxResult, ShxUtility::kSubshapeNotFound);
}

TEST_F(ShxText, FontOfHeightZeroFailsTheConversion) {
    files.files[L"TXT.SHX"] = ShapesFile({FontInformation(0, 2, 0), {65, "A", Bytes({0x50, 0})}});
    EXPECT_EQ(ConvertPattern("4,[\"A\",STANDARD]"), "failed");
    EXPECT_EQ(LastError(), LinErrorKind::kFontHeightZero);
    EXPECT_EQ(parser.errors()[0].subject, L"TXT.SHX");
    EXPECT_EQ(parser.errors()[0].linetype, "X");
    EXPECT_EQ(parser.errors()[0].element, 2U);
}

TEST_F(ShxText, UnifontWithoutInformationFailsTheConversion) {
    files.files[L"TXT.SHX"] = UnifontFile({{65, "A", Bytes({0x50, 0})}});
    EXPECT_EQ(ConvertPattern("4,[\"A\",STANDARD]"), "failed");
    EXPECT_EQ(LastError(), LinErrorKind::kFontWithoutInformation);
}

TEST_F(ShxText, ShapeLibraryIsNoFont) {
    files.files[L"TXT.SHX"] = ShapesFile({{65, "A", Bytes({0x50, 0})}});
    EXPECT_EQ(ConvertPattern("4,[\"A\",STANDARD]"), "failed");
    EXPECT_EQ(LastError(), LinErrorKind::kNotAFont);
}

TEST_F(ShxText, CharacterThatCannotBeDrawnDropsTheWholeText) {
    UseFont({{67, "C", Bytes({8, 1})}});
    EXPECT_EQ(ConvertPattern("4,[\"ACA\",STANDARD]"), "failed");
    EXPECT_EQ(LastError(), LinErrorKind::kCharacterNotDrawn);
    EXPECT_EQ(parser.errors()[0].subject, L"C");
}

TEST_F(ShxText, FontThatIsNotLoadedFailsTheConversion) {
    LineConverter::CLinVisitor visitor(1.0, &parser.errorLog());
    visitor.Begin();
    LineConverter::LinetypeRecord record;
    visitor.BeginLinetype(record, record.description, 1);
    LineConverter::FontInfo font;
    font.fileName = L"OTHER.SHX";
    visitor.Text("A", {}, font, {});
    visitor.EndLinetype();
    EXPECT_EQ(visitor.TakeResults(), nullptr);
    EXPECT_EQ(LastError(), LinErrorKind::kFontNotLoaded);
}

} // namespace
} // namespace linetypetest
