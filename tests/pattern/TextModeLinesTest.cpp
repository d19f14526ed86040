// Lines of bytes as text mode gives them.
#include "StyleConversion/pattern/TextModeLines.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace {

using pattern::TextModeLines;
using namespace std::string_view_literals;

std::vector<std::string> Lines(std::string_view bytes) {
    std::vector<std::string> lines;
    TextModeLines cursor(bytes);
    std::string_view line;
    while (cursor.Next(1000, line) == TextModeLines::Step::kLine) {
        lines.emplace_back(line);
    }
    return lines;
}

TEST(TextModeLines, GivesTheLinesThatTextModeGives) {
    const struct {
        std::string_view bytes;
        std::vector<std::string> lines;
    } rows[] = {
        {"", {}},
        {"a", {"a"}},
        {"a\n", {"a"}},
        {"a\nb", {"a", "b"}},
        {"\n\na\n", {"", "", "a"}},
        {"a\r\nb\r\n", {"a", "b"}},
        {"\r\n", {""}},
        // A CR that no LF follows is a character of its line.
        {"a\rb\n", {"a\rb"}},
        {"a\r\r\n", {"a\r"}},
        {"a\r", {"a\r"}},
        // 0x1A ends the file wherever it stands.
        {"a\n\x1a"
         "b\n",
         {"a"}},
        {"a\nb\x1a"
         "c\nd\n",
         {"a", "b"}},
        {"\x1a", {}},
        {"a\r\x1a", {"a\r"}},
        // A NUL ends the text of its line, not the file.
        {"a\0b\nc"sv, {"a", "c"}},
        {"\0a\nc"sv, {"", "c"}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Lines(row.bytes), row.lines) << ::testing::PrintToString(row.bytes);
    }
}

TEST(TextModeLines, TakesALineAtTheLimitAndRefusesOneCharacterMore) {
    for (const std::string_view end : {"", "\n", "\r\n", "\x1a"}) {
        std::string_view line;
        const std::string atLimit = std::string(5, 'x') + std::string(end);
        TextModeLines cursor(atLimit);
        EXPECT_EQ(cursor.Next(5, line), TextModeLines::Step::kLine);
        EXPECT_EQ(line, "xxxxx");
        const std::string over = "x" + atLimit;
        TextModeLines overCursor(over);
        EXPECT_EQ(overCursor.Next(5, line), TextModeLines::Step::kTooLong);
    }
}

TEST(TextModeLines, CountsWhatStandsBehindANulTowardsTheLimit) {
    std::string_view line;
    TextModeLines atLimit("a\0xyz\n"sv);
    EXPECT_EQ(atLimit.Next(5, line), TextModeLines::Step::kLine);
    EXPECT_EQ(line, "a");
    TextModeLines over("a\0wxyz\n"sv);
    EXPECT_EQ(over.Next(5, line), TextModeLines::Step::kTooLong);
}

TEST(TextModeLines, NumbersLinesFromOne) {
    TextModeLines cursor("a\n\nb");
    std::string_view line;
    for (std::size_t number = 1; number <= 3; ++number) {
        EXPECT_EQ(cursor.Next(5, line), TextModeLines::Step::kLine);
        EXPECT_EQ(cursor.GetLineNumber(), number);
    }
    EXPECT_EQ(cursor.Next(5, line), TextModeLines::Step::kEnd);
}

TEST(TextModeLines, GoesOnBehindALineThatIsTooLong) {
    TextModeLines cursor("abcdefgh\nxy\n");
    std::string_view line;
    EXPECT_EQ(cursor.Next(5, line), TextModeLines::Step::kTooLong);
    EXPECT_EQ(cursor.GetLineNumber(), 1U);
    EXPECT_EQ(cursor.Next(5, line), TextModeLines::Step::kLine);
    EXPECT_EQ(line, "xy");
}

} // namespace
