#include "exchange/DxfText.h"

#include <gtest/gtest.h>

namespace {

using exchange::DxfTextDecoder;

TEST(DxfText, IsUtf8OrInThePageOfTheFile) {
    EXPECT_EQ(DxfTextDecoder(true, "ANSI_1252").Decode("\xc3\xa4"), L"\u00e4");
    EXPECT_EQ(DxfTextDecoder(false, "ANSI_1252").Decode("\xe4"), L"\u00e4");
    EXPECT_EQ(DxfTextDecoder(false, "ansi_1251").Decode("\xe4"), L"\u0434");
    EXPECT_EQ(DxfTextDecoder(false, "").Decode("\x80"), L"\u20ac");
    EXPECT_EQ(DxfTextDecoder(false, "no page").Decode("\x80"), L"\u20ac");
}

TEST(DxfText, CodesStandForCharacters) {
    const DxfTextDecoder texts(true, "");
    EXPECT_EQ(texts.Decode("a\\U+00e4b\\u+20AC"), L"a\u00e4b\u20ac");
    EXPECT_EQ(texts.Decode("\\U+D83D\\U+DE00"), L"\U0001f600");
    EXPECT_EQ(texts.Decode("\\M+18DC0"), texts.Decode("\\m+18dc0"));
    EXPECT_EQ(texts.Decode("a\\M+18DC0b"), L"a\u5ea7b"); // of page 932
    EXPECT_EQ(texts.Decode("\\M+5B0A1"), L"\u554a");     // of page 936
    EXPECT_EQ(texts.Decode("a^Ib^ c^J"), L"a\tb^c\n");
}

TEST(DxfText, WhatOnlyLooksLikeACodeStaysAsItIs) {
    const DxfTextDecoder texts(true, "");
    for (const char* const text : {"\\U+12", "\\U+12G4", "\\M+61234", "\\P", "^", "^1", "\\"}) {
        EXPECT_EQ(texts.Decode(text), std::wstring(text, text + std::char_traits<char>::length(text)));
    }
    EXPECT_EQ(texts.Decode(std::string_view("a\0b", 3)), L"a");
}

} // namespace
