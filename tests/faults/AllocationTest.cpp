// Every single allocation fails in turn: std::bad_alloc comes out, and nothing is lost.
#include "StyleConversion/pattern/PatternConverter.h"
#include "StyleConversion/platform/Files.h"
#include "documents/DrawingReader.h"
#include "tests/faults/Documents.h"
#include "tests/support/Allocations.h"

#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <new>
#include <random>

namespace {

using test_support::AllocationWatch;

#if defined(_WIN32)
constexpr bool kCountsAllocationsOfLibraries = false;
#else
constexpr bool kCountsAllocationsOfLibraries = true;
#endif
constexpr const char* kWhyNot = "on Windows the libraries' allocations go past the program's operator new";

// Runs `operation` with its first, its second, its third... allocation failing, until none fails any more.
// Each comes out as std::bad_alloc, or was one that the operation can do without. Returns how many came out.
std::size_t FailEach(const std::function<void()>& operation) {
    std::size_t count = 0;
    for (std::size_t failing = 1;; ++failing) {
        bool thrown = false;
        bool failed = false;
        std::ptrdiff_t live = 0;
        {
            const AllocationWatch watch(failing);
            try {
                operation();
            } catch (const std::bad_alloc&) {
                thrown = true;
            }
            failed = watch.HasFailed();
            live = watch.Live();
        }
        EXPECT_EQ(live, 0) << "allocation " << failing;
        if (!failed) {
            EXPECT_FALSE(thrown);
            return count;
        }
        count += thrown ? 1 : 0;
    }
}

class PatternsOnDisk {
public:
    PatternsOnDisk()
        : path_(std::filesystem::temp_directory_path() /
                ("styleconversion_faults_" + std::to_string(std::random_device()()))),
          name_(platform::PathFromBytes(path_.string())) {
        std::ofstream(path_, std::ios::binary) << faults::SmallPatterns();
    }
    ~PatternsOnDisk() { std::filesystem::remove(path_); }
    PatternsOnDisk(const PatternsOnDisk&) = delete;
    PatternsOnDisk& operator=(const PatternsOnDisk&) = delete;

    const std::wstring& Name() const { return name_; }

private:
    std::filesystem::path path_;
    std::wstring name_;
};

TEST(FailedAllocations, OfAPatternConversionReachTheCaller) {
    if (!kCountsAllocationsOfLibraries) {
        GTEST_SKIP() << kWhyNot;
    }
    const PatternsOnDisk file;
    EXPECT_GE(FailEach([&] {
                  PatternConverter converter(file.Name());
                  const std::unique_ptr<TylModel::SymbolDefinition> symbol(converter.Convert(L"ONE"));
                  EXPECT_NE(symbol, nullptr);
              }),
              30U);
}

TEST(FailedAllocations, OfListingPatternsReachTheCaller) {
    const PatternsOnDisk file;
    EXPECT_GE(FailEach([&] {
                  PatternConverter converter(file.Name());
                  std::vector<std::wstring> names;
                  converter.GetPatternNames(names);
                  EXPECT_EQ(names.size(), 2U);
              }),
              10U);
}

TEST(FailedAllocations, OfConvertingAllPatternsLeaveTheFinishedOnesWithTheCaller) {
    if (!kCountsAllocationsOfLibraries) {
        GTEST_SKIP() << kWhyNot;
    }
    const PatternsOnDisk file;
    EXPECT_GE(FailEach([&] {
                  PatternConverter converter(file.Name());
                  std::vector<TylModel::SymbolDefinition*> symbols;
                  const auto deleteAll = [&symbols](void*) {
                      for (TylModel::SymbolDefinition* const symbol : symbols) {
                          delete symbol;
                      }
                  };
                  const std::unique_ptr<void, decltype(deleteAll)> owner(&symbols, deleteAll);
                  converter.ConvertAll(symbols);
                  EXPECT_EQ(symbols.size(), 2U);
              }),
              60U);
}

TEST(FailedAllocations, OfReadingADrawingReachTheCaller) {
    if (!kCountsAllocationsOfLibraries) {
        GTEST_SKIP() << kWhyNot;
    }
    const std::string text = faults::SmallDrawing();
    EXPECT_GE(FailEach([&] {
                  documents::DrawingError fault;
                  const auto database = documents::ReadDrawing(std::string_view(text), fault);
                  EXPECT_NE(database, nullptr) << fault.Text();
              }),
              100U);
}

} // namespace
