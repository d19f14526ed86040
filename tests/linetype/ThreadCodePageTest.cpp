// Which code page the narrow text of files is in on Windows, as long as the process has chosen none: this
// program chooses none.
#include "StyleConversion/linetype/LineConverter.h"
#include "StyleConversion/pattern/PatternConverter.h"
#include "tests/support/ReadSymbol.h"

// Before the system's other headers, which use its types.
#include <windows.h>

#include <cstdio>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr LCID kRussian = 0x0419; // its ANSI code page is 1251
constexpr const char kCapitalIo[] = "\xa8";
constexpr const wchar_t kIoOf1251[] = L"\u0401";

class ThreadCodePage : public testing::Test {
protected:
    ThreadCodePage()
        : path_(std::filesystem::temp_directory_path() /
                ("thread-code-page-" + std::to_string(GetCurrentProcessId()))),
          locale_(GetThreadLocale()) {}
    ~ThreadCodePage() override {
        SetThreadLocale(locale_);
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }

    std::wstring Write(const std::string& text) const {
        std::FILE* const file = _wfopen(path_.c_str(), L"wb");
        std::fwrite(text.data(), 1, text.size(), file);
        std::fclose(file);
        return path_.wstring();
    }

    // What the system's own ANSI code page makes of the letter.
    static std::wstring IoOfTheSystem() {
        wchar_t wide[4] = {};
        const int size = MultiByteToWideChar(CP_ACP, 0, kCapitalIo, 1, wide, 4);
        return {wide, static_cast<std::size_t>(size)};
    }

private:
    std::filesystem::path path_;
    LCID locale_;
};

std::wstring NameOfTheOnlyLinetype(const std::wstring& path) {
    const std::unique_ptr<std::vector<TylModel::SymbolDefinition*>> symbols(
        LineConverter::Convert(path.c_str(), nullptr, nullptr, 1.0));
    if (symbols == nullptr || symbols->size() != 1) {
        return L"no symbol";
    }
    const std::unique_ptr<TylModel::SymbolDefinition> symbol(symbols->front());
    return Read(*symbol).name;
}

TEST_F(ThreadCodePage, NamesOfLinetypesAreInTheThreads) {
    ASSERT_NE(IoOfTheSystem(), kIoOf1251) << "the system's code page shows nothing here";
    const std::wstring path = Write(std::string("*") + kCapitalIo + "\nA,1,-1\n");
    EXPECT_EQ(NameOfTheOnlyLinetype(path), IoOfTheSystem());
    ASSERT_NE(SetThreadLocale(kRussian), FALSE);
    EXPECT_EQ(NameOfTheOnlyLinetype(path), kIoOf1251);
}

TEST_F(ThreadCodePage, NamesOfPatternsAreInTheSystems) {
    ASSERT_NE(SetThreadLocale(kRussian), FALSE);
    PatternConverter converter(Write(std::string("*") + kCapitalIo + ",x\n0,0,0,0,1\n"));
    std::vector<std::wstring> names;
    converter.GetPatternNames(names);
    EXPECT_EQ(names, std::vector<std::wstring>{IoOfTheSystem()});
}

} // namespace
