// Narrow text becomes wide through the code page in force.
#include "StyleConversion/platform/CodePage.h"

#include <gtest/gtest.h>
#include <string>
#include <thread>

namespace {

using namespace platform;

class CodePage : public testing::Test {
protected:
    ~CodePage() override { SetAnsiCodePage("UTF-8"); }
};

TEST_F(CodePage, AnUnknownNameChangesNothing) {
    EXPECT_TRUE(SetAnsiCodePage("WINDOWS-1252"));
    EXPECT_FALSE(SetAnsiCodePage("NO-SUCH-PAGE"));
    EXPECT_EQ(AnsiToWide("\xe4"), L"\u00e4");
}

TEST_F(CodePage, Windows1252HasTheEuroSign) {
    ASSERT_TRUE(SetAnsiCodePage("WINDOWS-1252"));
    EXPECT_EQ(AnsiToWide("a\x80\xe4"), L"a\u20ac\u00e4");
    EXPECT_EQ(WideToAnsi(L"a\u20ac\u00e4"), "a\x80\xe4");
}

// 0x81, 0x8d, 0x8f, 0x90 and 0x9d are no characters of that page.
TEST_F(CodePage, EveryByteOfASingleBytePageSurvives) {
    for (const char* name : {"WINDOWS-1252", "WINDOWS-1250", "WINDOWS-1253", "ISO-8859-1"}) {
        ASSERT_TRUE(SetAnsiCodePage(name));
        for (int byte = 1; byte < 256; ++byte) {
            const std::string narrow(1, static_cast<char>(byte));
            EXPECT_EQ(WideToAnsi(AnsiToWide(narrow)), narrow) << name << " " << byte;
            EXPECT_EQ(AnsiToWide(narrow).size(), 1U) << name << " " << byte;
        }
    }
    ASSERT_TRUE(SetAnsiCodePage("WINDOWS-1252"));
    EXPECT_EQ(AnsiToWide("\x81"), L"\u0081");
}

TEST_F(CodePage, ACharacterThatThePageLacksBecomesAQuestionMark) {
    ASSERT_TRUE(SetAnsiCodePage("WINDOWS-1252"));
    EXPECT_EQ(WideToAnsi(L"\u4e00x"), "?x");
}

TEST_F(CodePage, DoubleByteCharactersAreOneCharacter) {
    ASSERT_TRUE(SetAnsiCodePage("SHIFT_JIS"));
    EXPECT_EQ(AnsiToWide("\x88\xea"), L"\u4e00");
    EXPECT_EQ(WideToAnsi(L"\u4e00"), "\x88\xea");
}

TEST_F(CodePage, Utf8KeepsUndecodableBytes) {
    EXPECT_EQ(WideToAnsi(AnsiToWide("a\xe4z")), "a\xe4z");
}

TEST_F(CodePage, AnAsciiByteIsFoundWhereItIsACharacter) {
    const char* const text = "ab\"c\"";
    EXPECT_EQ(FindInMultiByte(text, '"'), 2U);
    EXPECT_EQ(FindInMultiByte("abc", '"'), std::string_view::npos);
    EXPECT_EQ(FindInMultiByte("", '"'), std::string_view::npos);
}

// 0x5c, the backslash, is the second byte of many Shift-JIS characters: 0x83 0x5c is one.
TEST_F(CodePage, TheSecondByteOfACharacterIsNotFound) {
    const char* const text = "\x83\x5cx\x5c";
    EXPECT_EQ(FindInMultiByte(text, '\\'), 1U);
    ASSERT_TRUE(SetAnsiCodePage("SHIFT_JIS"));
    EXPECT_EQ(FindInMultiByte(text, '\\'), 3U);
    EXPECT_EQ(FindInMultiByte("\x83", '\\'), std::string_view::npos);
}

// A byte that is another letter in each page, and the second byte of a character in one.
TEST_F(CodePage, AThreadCanHaveAPageOfItsOwn) {
    ASSERT_TRUE(SetAnsiCodePage("WINDOWS-1252"));
    std::wstring ofThread;
    std::wstring afterwards;
    std::size_t found = 0;
    std::thread([&] {
        {
            const ThreadCodePage page("WINDOWS-1251");
            ofThread = AnsiToWide("\xc6");
            EXPECT_EQ(WideToAnsi(ofThread), "\xc6");
        }
        afterwards = AnsiToWide("\xc6");
        const ThreadCodePage page("SHIFT_JIS");
        found = FindInMultiByte("\x83\x5cx\x5c", '\\');
    }).join();
    EXPECT_EQ(ofThread, L"\u0416");
    EXPECT_EQ(afterwards, L"\u00c6") << "the process's";
    EXPECT_EQ(found, 3U);
}

TEST_F(CodePage, TheLastOneOfAThreadIsInForce) {
    ASSERT_TRUE(SetAnsiCodePage("WINDOWS-1252"));
    const ThreadCodePage outer("WINDOWS-1251");
    {
        const ThreadCodePage inner("UTF-8");
        EXPECT_EQ(AnsiToWide("\xc3\x86"), L"\u00c6");
        EXPECT_EQ(FindInMultiByte("\x83\x5c", '\\'), 1U);
        const ThreadCodePage unknown("NO-SUCH-PAGE");
        EXPECT_EQ(AnsiToWide("\xc3\x86"), L"\u00c6");
    }
    EXPECT_EQ(AnsiToWide("\xc6"), L"\u0416");
    std::thread([] {
        EXPECT_EQ(AnsiToWide("\xc6"), L"\u00c6") << "other threads have the process's";
    }).join();
}

} // namespace
