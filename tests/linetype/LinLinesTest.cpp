// Long lines, line ends and NUL bytes.
#include "ParserFixture.h"

#include "StyleConversion/linetype/LinLimits.h"

namespace linetypetest {
namespace {

using LineConverter::LinErrorKind;

class LinLines : public ParserFixture {
protected:
    static constexpr std::size_t kLongestPiece = LineConverter::kLineBufferSize - 1;

    // "*NNN…" of `length` bytes.
    static std::string Header(std::size_t length) { return "*" + std::string(length - 1, 'N'); }

    static std::string Named(std::size_t nameLength) {
        return "begin;linetype " + std::string(nameLength, 'N') + "||1;dash 1;end linetype;end;";
    }
};

TEST_F(LinLines, HeaderOf1023BytesIsOneLine) {
    EXPECT_EQ(kLongestPiece, 1023U);
    // The piece has no room for the line's end, which makes a blank line of its own.
    EXPECT_EQ(Walk(Header(1023) + "\nA,1\n"), Named(1022));
    EXPECT_EQ(Walk(Header(1022) + "\nA,1\n"), Named(1021));
}

TEST_F(LinLines, ByteBeyond1023IsALineOfItsOwn) {
    // The 1,024th byte is then the pattern line.
    EXPECT_EQ(Walk(Header(1024) + "\nA,1\n"), "result 3");
    EXPECT_EQ(parser.errors()[0].kind, LinErrorKind::kAlignmentMissing);
    EXPECT_EQ(parser.errors()[0].line, 1U);
    EXPECT_EQ(parser.errors()[0].column, 1024U);
    // And a pattern may stand there.
    EXPECT_EQ(Walk(Header(1023) + "A,1\n"), Named(1022));
}

TEST_F(LinLines, LineOf3000BytesIsReadInThreePieces) {
    // Pieces of 1,023 and 1,023 bytes, then 954: the third begins in the first column.
    EXPECT_EQ(Walk(std::string(2 * kLongestPiece, '-') + Header(954) + "\nA,1\n"), Named(953));
    EXPECT_EQ(Walk(std::string(2 * kLongestPiece - 1, '-') + Header(955) + "\nA,1\n"), "begin;end;");
}

TEST_F(LinLines, NumberAtTheEndOfAPieceIsCut) {
    // The piece ends within "12": the pattern is read up to it, and "2,5" is a stray line.
    const std::string blanks(kLongestPiece - 3, ' ');
    EXPECT_EQ(Elements("A," + blanks + "12,5\n"), "dash 1;");
}

TEST_F(LinLines, PieceThatEndsInACommaContinuesInTheNextPiece) {
    const std::string blanks(kLongestPiece - 4, ' ');
    EXPECT_EQ(Elements("A," + blanks + "1,2\n"), "dash 1;dash 2;");
}

TEST_F(LinLines, LineNumbersCountLinesAndNotPieces) {
    EXPECT_EQ(Walk(std::string(3000, 'x') + "\n*X\nA,x\n"), "result 3");
    EXPECT_EQ(parser.errors()[0].line, 3U);
    EXPECT_EQ(parser.errors()[0].column, 3U);
}

TEST_F(LinLines, CarriageReturnsAndOtherBlanksAtTheEndAreDropped) {
    EXPECT_EQ(Walk("*X,d\r\nA,1,\r\n2 \t\v\f\r\n"), "begin;linetype X|d|2;dash 1;dash 2;end linetype;end;");
    EXPECT_EQ(Walk("*X,d \t\r\nA,1\r\n"), "begin;linetype X|d|1;dash 1;end linetype;end;");
}

TEST_F(LinLines, CarriageReturnAloneEndsNoLine) {
    EXPECT_EQ(Walk("*X\rA,1\r"), "result 3");
}

TEST_F(LinLines, LastLineNeedsNoLineEnd) {
    EXPECT_EQ(Walk("*X\nA,1"), "begin;linetype X||1;dash 1;end linetype;end;");
}

TEST_F(LinLines, NulByteEndsTheTextOfItsLine) {
    using namespace std::string_view_literals;
    EXPECT_EQ(Walk("*X,d\0escription\nA,1\0,2\n"sv), "begin;linetype X|d|1;dash 1;end linetype;end;");
    EXPECT_EQ(Walk("\0*X\nA,1\n"sv), "begin;end;");
    // Behind a comma it ends the line, and the pattern goes on with the next one.
    EXPECT_EQ(Walk("*X\nA,1,\0junk\n2\n"sv), "begin;linetype X||2;dash 1;dash 2;end linetype;end;");
    EXPECT_EQ(Walk("*X\n\0\nA,1\n"sv), "begin;linetype X||1;dash 1;end linetype;end;");
}

TEST_F(LinLines, FileOfManyChunksIsReadWhole) {
    std::string text;
    for (int i = 0; i < 20000; ++i) {
        text += "*L\nA,1,-1\n";
    }
    EXPECT_EQ(Parse(text), LineConverter::kSuccess);
    EXPECT_EQ(parser.linetypes().size(), 20000U);
    for (const LineConverter::LinetypeRecord& record : parser.linetypes()) {
        ASSERT_EQ(record.elements.size(), 2U);
    }
}

} // namespace
} // namespace linetypetest
