// UTF-8 is decoded strictly, and bytes that are none survive the way to wide text and back.
#include "StyleConversion/platform/Utf8.h"

#include <gtest/gtest.h>
#include <random>

namespace {

using namespace platform;

TEST(Utf8, ValidTextIsDecodedAndEncoded) {
    EXPECT_EQ(Utf8ToWide("A\xc3\xa4\xe2\x88\x85"), L"A\u00e4\u2205");
    EXPECT_EQ(WideToUtf8Bytes(L"A\u00e4\u2205"), "A\xc3\xa4\xe2\x88\x85");
    EXPECT_EQ(Utf8ToWide("\xf0\x9f\x8c\xb3"), L"\U0001f333");
    EXPECT_EQ(WideToUtf8Bytes(L"\U0001f333"), "\xf0\x9f\x8c\xb3");
}

TEST(Utf8, IsRecognised) {
    for (const char* text : {"", "plain", "\xc2\x80", "\xdf\xbf", "\xe0\xa0\x80", "\xed\x9f\xbf",
                             "\xee\x80\x80", "\xf0\x90\x80\x80", "\xf4\x8f\xbf\xbf"}) {
        EXPECT_TRUE(IsUtf8(text)) << text;
    }
    for (const char* text :
         {"\x80", "\xc3", "\xc3(", "\xc0\x80", "\xc1\xbf", "\xe0\x9f\xbf", "\xed\xa0\x80", "\xed\xbf\xbf",
          "\xf0\x8f\xbf\xbf", "\xf4\x90\x80\x80", "\xf5\x80\x80\x80", "\xff", "\xe2\x88", "a\xe4z"}) {
        EXPECT_FALSE(IsUtf8(text)) << text;
    }
}

TEST(Utf8, AnyBytesSurviveTheRoundTrip) {
    std::mt19937 random(1);
    for (int i = 0; i < 20'000; ++i) {
        std::string bytes;
        for (unsigned length = random() % 8; length > 0; --length) {
            bytes += static_cast<char>(random() % 4 == 0 ? random() % 128 : 128 + random() % 128);
        }
        ASSERT_EQ(WideToUtf8Bytes(Utf8ToWide(bytes)), bytes);
    }
}

TEST(Utf8, WhatIsNoCharacterBecomesTheReplacementCharacterInValidText) {
    EXPECT_EQ(WideToValidUtf8(Utf8ToWide("a\xff")), "a\xef\xbf\xbd");
    EXPECT_EQ(WideToValidUtf8(std::wstring{L'x', static_cast<wchar_t>(0xd800), L'y'}), "x\xef\xbf\xbdy");
}

TEST(Utf8, TwoSurrogatesAreOneCharacter) {
    const std::wstring pair = {static_cast<wchar_t>(0xd83c), static_cast<wchar_t>(0xdf33)};
    EXPECT_EQ(WideToValidUtf8(pair), "\xf0\x9f\x8c\xb3");
}

} // namespace
