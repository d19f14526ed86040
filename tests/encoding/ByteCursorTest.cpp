// Bytes are handed out in order, and none behind the last.
#include "StyleConversion/encoding/ByteCursor.h"

#include <gtest/gtest.h>

namespace {

using encoding::ByteCursor;
using namespace std::string_view_literals;

TEST(ByteCursor, ReadsBytesWithAndWithoutTheirSign) {
    ByteCursor cursor("\x00\x80\xff\xff"sv);
    std::uint8_t byte = 7;
    std::int8_t signedByte = 7;
    EXPECT_TRUE(cursor.Read(byte));
    EXPECT_EQ(byte, 0);
    EXPECT_TRUE(cursor.Read(byte));
    EXPECT_EQ(byte, 128);
    EXPECT_TRUE(cursor.Read(signedByte));
    EXPECT_EQ(signedByte, -1);
    EXPECT_TRUE(cursor.Read(byte));
    EXPECT_EQ(byte, 255);
    EXPECT_EQ(cursor.Offset(), 4U);
}

TEST(ByteCursor, AtTheEndABytesTargetStaysAsItWas) {
    ByteCursor cursor(""sv);
    std::uint8_t byte = 7;
    std::int8_t signedByte = -7;
    EXPECT_FALSE(cursor.Read(byte));
    EXPECT_FALSE(cursor.Read(signedByte));
    EXPECT_EQ(byte, 7);
    EXPECT_EQ(signedByte, -7);
    EXPECT_EQ(cursor.Offset(), 0U);
}

TEST(ByteCursor, TakesWhatIsLeftWhereThatIsLess) {
    ByteCursor cursor("abcde"sv);
    EXPECT_EQ(cursor.Take(0), "");
    EXPECT_EQ(cursor.Take(2), "ab");
    EXPECT_EQ(cursor.Take(3), "cde");
    EXPECT_EQ(cursor.Take(1), "");
    EXPECT_EQ(cursor.Offset(), 5U);

    ByteCursor again("abc"sv);
    EXPECT_EQ(again.Take(SIZE_MAX), "abc");
    EXPECT_EQ(again.Offset(), 3U);
}

} // namespace
