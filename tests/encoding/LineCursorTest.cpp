// Lines and their pieces, as fgets with a buffer of so many bytes hands them out.
#include "StyleConversion/encoding/LineCursor.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using encoding::LineCursor;
using namespace std::string_view_literals;

// Each piece with its line.
std::vector<std::string> Pieces(std::string_view bytes, std::size_t longest) {
    std::vector<std::string> pieces;
    LineCursor cursor(bytes);
    while (cursor.Next(longest)) {
        pieces.push_back(std::to_string(cursor.LineNumber()) + ":" + std::string(cursor.Piece()));
    }
    return pieces;
}

using List = std::vector<std::string>;

TEST(LineCursor, NothingHasNoLine) {
    EXPECT_EQ(Pieces("", 4), List{});
}

TEST(LineCursor, LinesKeepTheirEnds) {
    EXPECT_EQ(Pieces("a\r\n\nb\n", 100), (List{"1:a\r\n", "2:\n", "3:b\n"}));
}

TEST(LineCursor, TextBehindTheLastEndIsALine) {
    EXPECT_EQ(Pieces("a\nb", 100), (List{"1:a\n", "2:b"}));
}

TEST(LineCursor, LineThatJustFitsIsOnePiece) {
    EXPECT_EQ(Pieces("abc\nd", 4), (List{"1:abc\n", "2:d"}));
}

TEST(LineCursor, LineEndWithoutRoomIsAPieceOfTheSameLine) {
    EXPECT_EQ(Pieces("abcd\ne", 4), (List{"1:abcd", "1:\n", "2:e"}));
}

TEST(LineCursor, LongLineIsTakenApartAndCountedOnce) {
    EXPECT_EQ(Pieces("abcdefghi\nj", 4), (List{"1:abcd", "1:efgh", "1:i\n", "2:j"}));
}

TEST(LineCursor, LongestMayChangeFromPieceToPiece) {
    LineCursor cursor("abcdef\n");
    ASSERT_TRUE(cursor.Next(2));
    EXPECT_EQ(cursor.Piece(), "ab");
    ASSERT_TRUE(cursor.Next());
    EXPECT_EQ(cursor.Piece(), "cdef\n");
    EXPECT_FALSE(cursor.Next());
}

TEST(LineCursor, ColumnsCountFromTheLinesBeginning) {
    LineCursor cursor("x\nabcdef");
    ASSERT_TRUE(cursor.Next(4));
    EXPECT_EQ(cursor.ColumnOf(cursor.Piece().data()), 1U);
    ASSERT_TRUE(cursor.Next(4));
    EXPECT_EQ(cursor.ColumnOf(cursor.Piece().data() + 3), 4U);
    ASSERT_TRUE(cursor.Next(4));
    EXPECT_EQ(cursor.Piece(), "ef");
    EXPECT_EQ(cursor.ColumnOf(cursor.Piece().data()), 5U);
    EXPECT_EQ(cursor.ColumnOf(cursor.Piece().data() + 2), 7U);
}

TEST(LineCursor, NulEndsTheTextAndNotThePiece) {
    LineCursor cursor("a\0b\nc\n"sv);
    ASSERT_TRUE(cursor.Next());
    EXPECT_EQ(cursor.Text(), "a");
    EXPECT_EQ(cursor.Piece(), "a\0b\n"sv);
    ASSERT_TRUE(cursor.Next());
    EXPECT_EQ(cursor.Text(), "c\n");
}

} // namespace
