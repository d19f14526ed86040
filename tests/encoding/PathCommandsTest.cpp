// Path commands with 15 significant digits, each ending in a blank.
#include "StyleConversion/encoding/PathCommands.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using namespace encoding;

TEST(PathCommands, AreLetterNumbersAndABlank) {
    std::wstring path = L"M 9,9 ";
    AppendMove(path, 0.0, 1.5);
    AppendLine(path, -2.0, 0.25);
    AppendRelativeLine(path, 0.0, -1.0);
    AppendArc(path, 2.5, true, false, 3.0, -4.0);
    AppendArc(path, 1.0, false, true, 0.0, 0.0);
    EXPECT_EQ(path, L"M 9,9 M 0,1.5 L -2,0.25 l 0,-1 A 2.5,2.5 0 1 0 3,-4 A 1,1 0 0 1 0,0 ");
}

TEST(PathCommands, WriteNumbersWithFifteenSignificantDigits) {
    EXPECT_EQ(FormatNumber(0.1), L"0.1");
    EXPECT_EQ(FormatNumber(2.5), L"2.5");
    EXPECT_EQ(FormatNumber(1.0 / 3.0), L"0.333333333333333");
    EXPECT_EQ(FormatNumber(123456789012345678.0), L"1.23456789012346e+17");
    EXPECT_EQ(FormatNumber(0.0001), L"0.0001");
    EXPECT_EQ(FormatNumber(0.00001), L"1e-05");
    EXPECT_EQ(FormatNumber(-0.0), L"-0");
}

// Each number has 22 characters, the most there are.
TEST(PathCommands, HaveRoomForTheLongestNumbers) {
    const double longest = -1.23456789012345e-300;
    const std::wstring number = L"-1.23456789012345e-300";
    std::wstring path;
    AppendArc(path, longest, true, true, longest, longest);
    EXPECT_EQ(path, L"A " + number + L"," + number + L" 0 1 1 " + number + L"," + number + L" ");
}

} // namespace
