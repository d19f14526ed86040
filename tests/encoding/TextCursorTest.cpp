// A walk over a text stops at its end, which reads as a NUL.
#include "StyleConversion/encoding/TextCursor.h"

#include <gtest/gtest.h>

namespace {

using encoding::TextCursor;

TEST(TextCursor, EndReadsAsANul) {
    TextCursor cursor("ab");
    EXPECT_EQ(cursor.Previous(), '\0');
    EXPECT_EQ(cursor.Peek(), 'a');
    cursor.Skip();
    EXPECT_EQ(cursor.Previous(), 'a');
    EXPECT_EQ(cursor.Rest(), "b");
    EXPECT_FALSE(cursor.AtEnd());
    cursor.Skip(5);
    EXPECT_EQ(cursor.Previous(), 'b');
    EXPECT_EQ(cursor.Peek(), '\0');
    EXPECT_EQ(cursor.Rest(), "");
    EXPECT_TRUE(cursor.AtEnd());
}

TEST(TextCursor, TakesUpToTheFirstMark) {
    TextCursor cursor("name,rest]");
    EXPECT_EQ(cursor.TakeUpTo("],"), "name");
    EXPECT_EQ(cursor.Peek(), ',');
    EXPECT_EQ(cursor.TakeUpTo(","), "");
    cursor.Skip();
    EXPECT_EQ(cursor.TakeUpTo(";"), "rest]");
    EXPECT_TRUE(cursor.AtEnd());
}

} // namespace
