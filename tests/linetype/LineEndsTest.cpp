// Linetype files with either kind of line end, through the entry point with services of the caller's.
#include "tests/support/LineEnds.h"
#include "FakeServices.h"
#include "ShapeBytes.h"
#include "SymbolText.h"
#include "TestFile.h"

#include "StyleConversion/linetype/LineConverter.h"

#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace linetypetest {
namespace {

using support::WithCarriageReturns;

class LineEnds : public testing::Test {
protected:
    LineEnds() { styles.AddTrueType(L"ST", L"Arial"); }

    // The symbols of the text as SymbolText has them, each with a line's end; "null" when there are none.
    std::string Convert(std::string_view text) {
        const std::wstring path = folder.Write("test.lin", text);
        const std::unique_ptr<std::vector<TylModel::SymbolDefinition*>> symbols(
            LineConverter::Convert(path.c_str(), &styles, &files, 1.0));
        return symbols ? TakeTexts(*symbols) : "null";
    }

    TestFolder folder;
    FakeStyles styles;
    FakeFiles files;
};

// Remarks, blank and stray lines, descriptions, patterns over several lines, texts and shapes; the last line
// has no end.
constexpr const char* kEveryKindOfLine = "; a remark\n"
                                         "\n"
                                         "*PLAIN,Dash and gap \t\n"
                                         "A,3,-1\n"
                                         "stray\n"
                                         "*OVER ; several lines\n"
                                         " \t\n"
                                         "; a remark\n"
                                         "A,1,\n"
                                         "-1,2,\n"
                                         "\n"
                                         "-1 ; the last\n"
                                         "*\n"
                                         "*GAS,Gas\n"
                                         "A,4,[\"GAS\",ST],-1\n"
                                         "*MARKED\n"
                                         "A,4,[MARK,marks.shx],-1";

constexpr const char* kItsSymbols =
    "simple PLAIN (Dash and gap) {path M 0,0 L 3,0 ; params LINECOLOR LINEWEIGHT; line repeat=4}\n"
    "simple OVER {path M 0,0 L 1,0 M 2,0 L 4,0 ; params LINECOLOR LINEWEIGHT; line repeat=5}\n"
    "simple GAS (Gas) {text 'GAS' font=Arial height=1 x=4 y=0 'Left' 'Baseline' %TEXTCOLOR%; path M 0,0 L "
    "4,0 ; "
    "params LINECOLOR LINEWEIGHT TEXTCOLOR; line repeat=5}\n"
    "compound MARKED [simple MARKED {path M 4,0 l 1,0 ; params LINECOLOR LINEWEIGHT; line repeat=5}, "
    "simple MARKED {path M 0,0 L 4,0 ; params LINECOLOR LINEWEIGHT; line repeat=5}]\n";

TEST_F(LineEnds, OfEitherKindGiveTheSameSymbols) {
    const std::string expected = kItsSymbols;
    for (const bool shapesHaveReturns : {false, true}) {
        std::string shapes = ShapesFile({{130, "MARK", UnitStroke()}});
        // Its own first line ends with either, too.
        if (!shapesHaveReturns) {
            shapes.erase(shapes.find('\r'), 1);
        }
        files.files[L"MARKS.SHX"] = shapes;
        EXPECT_EQ(Convert(kEveryKindOfLine), expected);
        EXPECT_EQ(Convert(WithCarriageReturns(kEveryKindOfLine)), expected);
    }
}

// A line is read in pieces of 1023 characters, its end included. The end may fall into a piece of its own, or
// be cut in two: what is left of it is a blank line.
TEST_F(LineEnds, OfEitherKindGiveTheSameSymbolsWhereALineFillsAPiece) {
    constexpr std::size_t kPiece = 1023;
    for (std::size_t length = kPiece - 3; length <= kPiece; ++length) {
        const std::string description(length - 3, 'd');
        const std::string text = "*X," + description + "\nA,1," + std::string(length - 4, ' ') + "\n-1\n";
        const std::string expected = "simple X (" + description +
                                     ") {path M 0,0 L 1,0 ; params LINECOLOR LINEWEIGHT; line repeat=2}\n";
        EXPECT_EQ(Convert(text), expected) << length;
        EXPECT_EQ(Convert(WithCarriageReturns(text)), expected) << length;
    }
    // What stands behind the piece is a line of its own, and no pattern.
    const std::string text = "*X," + std::string(kPiece - 3, 'd') + "d\nA,1,-1\n";
    EXPECT_EQ(Convert(text), "null");
    EXPECT_EQ(Convert(WithCarriageReturns(text)), "null");
}

TEST_F(LineEnds, MixedInOneFileGiveTheSameSymbols) {
    const std::string expected =
        "simple X (d) {path M 0,0 L 1,0 ; params LINECOLOR LINEWEIGHT; line repeat=2}\n";
    EXPECT_EQ(Convert("*X,d\r\nA,1,\n-1\r\n"), expected);
    EXPECT_EQ(Convert("*X,d\nA,1,\r\n-1\n"), expected);
    // A carriage return before the one of the end, or at the end of the file, is a blank at the end of its
    // line.
    EXPECT_EQ(Convert("*X,d\r\r\nA,1,\r\r\n-1\r"), expected);
}

// Alone it ends no line: the pattern's line is then missing.
TEST_F(LineEnds, ACarriageReturnAloneEndsNoLine) {
    EXPECT_EQ(Convert("*X,d\rA,1,-1\n"), "null");
}

} // namespace
} // namespace linetypetest
