// A host that runs for long: conversions of all three kinds, again and again, leave nothing behind.
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/linetype/LineConverter.h"
#include "StyleConversion/pattern/PatternConverter.h"
#include "tests/host/GrowthDrawing.h"
#include "tests/support/Allocations.h"
#include "tests/support/ReadSymbol.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <random>
#include <string>
#include <vector>

#if defined(_WIN32)
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace {

// The memory of an instrumented program grows by what it remembers of freed memory; on Windows the
// allocations of libraries go past the program's operator new, and its memory need not come back to the
// system.
#if defined(_WIN32)
constexpr bool kCountsAllAllocations = false;
constexpr bool kMemoryIsItsOwn = false;
// Opening files takes long under wine.
constexpr std::size_t kRounds = 1'000;
#else
constexpr bool kCountsAllAllocations = true;
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool kMemoryIsItsOwn = false;
#else
constexpr bool kMemoryIsItsOwn = true;
#endif
constexpr std::size_t kRounds = 33'400;
#endif

constexpr std::size_t kConversionsOfARound = 3;
constexpr std::size_t kRoundsBefore = kRounds / 50;
// The smallest block of malloc lost in each conversion would take three times this.
constexpr std::ptrdiff_t kMostGrowth = 1024 * 1024;

std::ptrdiff_t CountOpenFiles() {
#if defined(_WIN32)
    DWORD handles = 0;
    GetProcessHandleCount(GetCurrentProcess(), &handles);
    return static_cast<std::ptrdiff_t>(handles);
#else
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                         std::filesystem::directory_iterator());
#endif
}

std::ptrdiff_t MemoryInUse() {
#if defined(_WIN32)
    return 0;
#else
    std::ifstream pages("/proc/self/statm");
    std::ptrdiff_t all = 0;
    std::ptrdiff_t resident = 0;
    pages >> all >> resident;
    return resident * static_cast<std::ptrdiff_t>(sysconf(_SC_PAGESIZE));
#endif
}

// A linetype file, a pattern file, and the drawing.
class Input : public LineConverter::IGetFile, public LineConverter::IGetFontInfo {
public:
    explicit Input(std::filesystem::path shapes)
        : shapes_(std::move(shapes)), drawing_(shapes_.wstring()),
          folder_(std::filesystem::temp_directory_path() /
                  ("styleconversion_growth_" + std::to_string(std::random_device()()))) {
        std::filesystem::create_directory(folder_);
        std::ofstream(folder_ / "a.lin") << "*ROW,a row of marks\nA,1,-1,[TREE,marks.shx],[\"text\",ST],-1\n";
        std::ofstream(folder_ / "a.pat") << "*HATCH,a hatch\n45,0,0,0,1,1,-1\n";
    }
    ~Input() override {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
    Input(const Input&) = delete;
    Input& operator=(const Input&) = delete;

    std::FILE* GetFile(const wchar_t* /*name*/, const wchar_t* /*extension*/) override {
        return std::fopen(shapes_.string().c_str(), "rb");
    }
    bool GetFontInfoFromStyle(const wchar_t* /*styleName*/, LineConverter::FontInfo& info) override {
        info = LineConverter::FontInfo();
        info.typeface = L"a typeface whose name is longer than what strings hold within themselves";
        return true;
    }

    bool ConvertABlock() {
        BlockConverter converter(&drawing_.Database());
        std::vector<std::wstring> names;
        converter.GetBlockNames(names);
        const std::unique_ptr<TylModel::SymbolDefinition> symbol(converter.Convert(names.at(0)));
        return symbol != nullptr;
    }
    bool ConvertALinetype() {
        const std::wstring file = (folder_ / "a.lin").wstring();
        const std::unique_ptr<std::vector<TylModel::SymbolDefinition*>> symbols(
            LineConverter::Convert(file.c_str(), this, this, 1.0));
        return symbols != nullptr && Delete(*symbols) == 1;
    }
    bool ConvertAPattern() {
        PatternConverter converter((folder_ / "a.pat").wstring());
        std::vector<TylModel::SymbolDefinition*> symbols;
        converter.ConvertAll(symbols);
        return Delete(symbols) == 1;
    }
    bool ConvertAll() { return ConvertABlock() && ConvertALinetype() && ConvertAPattern(); }
    long CountOpen() const { return drawing_.CountOpen(); }

private:
    static std::size_t Delete(const std::vector<TylModel::SymbolDefinition*>& symbols) {
        for (TylModel::SymbolDefinition* const symbol : symbols) {
            delete symbol;
        }
        return symbols.size();
    }

    std::filesystem::path shapes_;
    GrowthDrawing drawing_;
    std::filesystem::path folder_;
};

TEST(Growth, ConversionsAgainAndAgainLeaveNeitherMemoryNorObjectsNorFilesBehind) {
    Input input(std::filesystem::path(EXAMPLES) / "shapes" / "marks.shx");
    for (std::size_t round = 0; round < kRoundsBefore; ++round) {
        ASSERT_TRUE(input.ConvertAll());
    }
    const long objects = CountModelObjects();
    const std::ptrdiff_t files = CountOpenFiles();
    const std::ptrdiff_t memory = MemoryInUse();
    std::ptrdiff_t live = 0;
    std::size_t converted = 0;
    {
        const test_support::AllocationWatch watch;
        for (std::size_t round = 0; round < kRounds; ++round) {
            converted += input.ConvertAll() ? kConversionsOfARound : 0;
        }
        live = watch.Live();
    }
    EXPECT_EQ(converted, kConversionsOfARound * kRounds);
    EXPECT_EQ(CountModelObjects(), objects);
    EXPECT_EQ(input.CountOpen(), 0);
    EXPECT_EQ(CountOpenFiles(), files);
    if (kCountsAllAllocations) {
        EXPECT_EQ(live, 0);
    }
    if (kMemoryIsItsOwn) {
        EXPECT_LT(MemoryInUse() - memory, kMostGrowth);
    }
}

} // namespace
