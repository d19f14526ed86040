#include "StyleConversion/platform/Characters.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

std::vector<unsigned> Units(std::wstring_view text) {
    std::vector<unsigned> units;
    platform::ForEachUtf16Unit(text, [&](std::uint16_t unit) { units.push_back(unit); });
    return units;
}

TEST(Characters, BlanksAreTheSixOfAsciiInAnyWidth) {
    std::string blanks;
    std::wstring wideBlanks;
    for (int code = 0; code < 0x3001; ++code) {
        if (code < 0x100 && platform::IsBlank(static_cast<char>(code))) {
            blanks += static_cast<char>(code);
        }
        if (platform::IsBlank(static_cast<wchar_t>(code))) {
            wideBlanks += static_cast<wchar_t>(code);
        }
    }
    EXPECT_EQ(blanks, "\t\n\v\f\r ");
    EXPECT_EQ(wideBlanks, L"\t\n\v\f\r ");
}

TEST(Characters, BlanksAreTakenOffBothEndsAndNotFromBetween) {
    using namespace std::string_view_literals;
    EXPECT_EQ(platform::WithoutBlanks(" \ta b\r\n"sv), "a b");
    EXPECT_EQ(platform::WithoutBlanks(L"x"sv), L"x");
    EXPECT_EQ(platform::WithoutBlanks(" \t "sv), "");
    EXPECT_EQ(platform::WithoutBlanks(""sv), "");
}

TEST(Characters, OnlyAsciiLettersChangeToTheOtherCase) {
    EXPECT_EQ(platform::AsciiLower('A'), 'a');
    EXPECT_EQ(platform::AsciiLower(L'Z'), L'z');
    EXPECT_EQ(platform::AsciiUpper('z'), 'Z');
    for (const wchar_t c : L"@[`{09 \u00c4\u0391") {
        EXPECT_EQ(platform::AsciiLower(c), c);
        EXPECT_EQ(platform::AsciiUpper(c), c);
    }
}

TEST(Characters, CapitalsFoldToTheSmallLettersOfTheirAlphabets) {
    constexpr std::wstring_view kPairs = L"AaZz\u00c4\u00e4\u00de\u00fe\u0100\u0101\u0139\u013a\u017d\u017e"
                                         L"\u0391\u03b1\u03ab\u03cb\u0410\u0430\u0401\u0451";
    for (std::size_t i = 0; i < kPairs.size(); i += 2) {
        EXPECT_EQ(platform::FoldCase(kPairs[i]), kPairs[i + 1]) << i;
        EXPECT_EQ(platform::FoldCase(kPairs[i + 1]), kPairs[i + 1]) << i;
    }
    for (const wchar_t c : L"\u00d7\u00df\u0130\u0131\u0138\u0178\u03a2\u3042") {
        EXPECT_EQ(platform::FoldCase(c), c);
    }
}

TEST(Characters, HexadecimalDigitsHaveTheirValuesInBothCases) {
    for (int value = 0; value < 16; ++value) {
        const char digit = platform::kHexDigits[static_cast<std::size_t>(value)];
        EXPECT_EQ(platform::HexDigitValue(digit), value);
        EXPECT_EQ(platform::HexDigitValue(platform::AsciiUpper(digit)), value);
        EXPECT_EQ(platform::HexDigitValue(static_cast<wchar_t>(digit)), value);
    }
    for (const wchar_t c : L"/:@G`g\uff10") {
        EXPECT_EQ(platform::HexDigitValue(c), -1);
    }
    std::wstring text;
    platform::AppendHexByte(text, 0x0f);
    platform::AppendHexByte(text, 0xa0);
    EXPECT_EQ(text, L"0fa0");
}

TEST(Characters, CodePointsAboveThePlaneOf16BitsGiveTwoUnits) {
    EXPECT_EQ(Units(L"A\uffff"), (std::vector<unsigned>{0x41, 0xffff}));
    EXPECT_EQ(Units(L"\U00010000\U0010ffff"), (std::vector<unsigned>{0xd800, 0xdc00, 0xdbff, 0xdfff}));
    EXPECT_EQ(platform::JoinSurrogates(0xd800, 0xdc00), 0x10000U);
    EXPECT_EQ(platform::JoinSurrogates(0xdbff, 0xdfff), 0x10ffffU);
}

TEST(Characters, SurrogatesAreToldApartAtTheirBounds) {
    const auto kinds = [](std::uint32_t code) {
        return std::string(platform::IsHighSurrogate(code) ? "h" : "") +
               (platform::IsLowSurrogate(code) ? "l" : "") + (platform::IsSurrogate(code) ? "s" : "");
    };
    EXPECT_EQ(kinds(0xd7ff), "");
    EXPECT_EQ(kinds(0xd800), "hs");
    EXPECT_EQ(kinds(0xdbff), "hs");
    EXPECT_EQ(kinds(0xdc00), "ls");
    EXPECT_EQ(kinds(0xdfff), "ls");
    EXPECT_EQ(kinds(0xe000), "");
}

TEST(Characters, AByteOrderMarkIsTakenOffOnceAndOnlyWhole) {
    EXPECT_EQ(platform::WithoutByteOrderMark("\xef\xbb\xbf*A"), "*A");
    EXPECT_EQ(platform::WithoutByteOrderMark("\xef\xbb\xbf\xef\xbb\xbf"), "\xef\xbb\xbf");
    EXPECT_EQ(platform::WithoutByteOrderMark("\xef\xbb"), "\xef\xbb");
    EXPECT_FALSE(platform::StartsWithByteOrderMark(""));
}

} // namespace
