// Path commands with 15 significant digits, each ending in a blank, over one shared buffer.
#include "StyleConversion/encoding/PathCommands.h"

#include <cwchar>
#include <gtest/gtest.h>
#include <limits>

namespace {

using namespace encoding;

TEST(PathCommands, AreLetterNumbersAndABlank) {
    EXPECT_STREQ(FormatMove(0.0, 1.5), L"M 0,1.5 ");
    EXPECT_STREQ(FormatLine(-2.0, 0.25), L"L -2,0.25 ");
    EXPECT_STREQ(FormatRelativeLine(0.0, -1.0), L"l 0,-1 ");
    EXPECT_STREQ(FormatArc(2.5, 1, 0, 3.0, -4.0), L"A 2.5,2.5 0 1 0 3,-4 ");
    EXPECT_STREQ(FormatArc(1.0, 0, 1, 0.0, 0.0), L"A 1,1 0 0 1 0,0 ");
}

TEST(PathCommands, WriteNumbersWithFifteenSignificantDigits) {
    EXPECT_STREQ(FormatNumber(0.1), L"0.1");
    EXPECT_STREQ(FormatNumber(2.5), L"2.5");
    EXPECT_STREQ(FormatNumber(1.0 / 3.0), L"0.333333333333333");
    EXPECT_STREQ(FormatNumber(123456789012345678.0), L"1.23456789012346e+17");
    EXPECT_STREQ(FormatNumber(0.0001), L"0.0001");
    EXPECT_STREQ(FormatNumber(0.00001), L"1e-05");
    EXPECT_STREQ(FormatNumber(-0.0), L"-0");
}

TEST(PathCommands, ShareOneBuffer) {
    const wchar_t* const first = FormatMove(1.0, 2.0);
    const wchar_t* const second = FormatNumber(3.0);
    EXPECT_EQ(first, second);
    EXPECT_STREQ(first, L"3");
    EXPECT_EQ(first, FormatLine(0, 0));
    EXPECT_EQ(first, FormatRelativeLine(0, 0));
    EXPECT_EQ(first, FormatArc(0, 0, 0, 0, 0));
}

// Five numbers of 22 characters each and the longest flags: 139 characters, of 256.
TEST(PathCommands, TheLongestCommandFitsTheBuffer) {
    const double longest = -1.23456789012345e-300;
    const int flag = std::numeric_limits<int>::min();
    const std::wstring number = L"-1.23456789012345e-300";
    EXPECT_EQ(FormatArc(longest, flag, flag, longest, longest), L"A " + number + L"," + number +
                                                                    L" 0 -2147483648 -2147483648 " + number +
                                                                    L"," + number + L" ");
}

TEST(PathCommands, AreAppendedInPlace) {
    std::wstring path;
    AppendMove(path, 0, 0);
    AppendLine(path, 1, 0);
    AppendRelativeLine(path, 0, 1);
    AppendArc(path, 2, 0, 1, 3, 4);
    AppendNumber(path, 5);
    EXPECT_EQ(path, L"M 0,0 L 1,0 l 0,1 A 2,2 0 0 1 3,4 5");
}

} // namespace
