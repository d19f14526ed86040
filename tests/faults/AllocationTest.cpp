// Every single allocation fails in turn: std::bad_alloc comes out, and nothing is lost.
#include "StyleConversion/pattern/PatternConverter.h"
#include "StyleConversion/platform/Files.h"
#include "documents/DrawingReader.h"
#include "documents/SymbolsReader.h"
#include "exchange/DxfReader.h"
#include "tests/faults/Documents.h"
#include "tests/support/Allocations.h"
#include "tests/support/Trickle.h"

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

TEST(FailedAllocations, OfReadingADxfFileReachTheCaller) {
    const std::string bytes =
        "0\nSECTION\n2\nTABLES\n0\nLTYPE\n2\nDASHED\n49\n1\n49\n-"
        "1\n74\n2\n9\ntext\n0\nSTYLE\n2\nS\n5\nA\n3\nf.shx\n"
        "0\nENDSEC\n0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n2\nA BLOCK OF A LONG NAME\n"
        "0\nPOLYLINE\n8\nA LAYER THAT IS IN NO TABLE\n0\nVERTEX\n10\n1\n20\n2\n0\nSEQEND\n"
        "0\nHATCH\n70\n0\n91\n1\n92\n1\n93\n2\n72\n1\n10\n0\n20\n0\n11\n4\n21\n0\n72\n1\n10\n0\n20\n1\n11\n4"
        "\n21\n0\n"
        "97\n0\n78\n1\n53\n0\n43\n0\n44\n0\n45\n0\n46\n1\n79\n0\n"
        "0\nSPLINE\n71\n3\n74\n2\n11\n0\n21\n0\n11\n1\n21\n1\n"
        "0\nINSERT\n2\nNONE\n210\n1\n0\nATTRIB\n1\nthe value of an attribute\n0\nSEQEND\n"
        "0\nMTEXT\n1\na text of \\U+00e4 and more than a few letters\n0\nENDBLK\n0\nENDSEC\n";
    if (!kCountsAllocationsOfLibraries) {
        GTEST_SKIP() << kWhyNot;
    }
    EXPECT_GE(FailEach([&] {
                  diagnostics::Diagnostic fault;
                  exchange::DxfNotes notes;
                  EXPECT_NE(exchange::ReadDxf(bytes, fault, notes), nullptr);
                  EXPECT_FALSE(notes.All().empty());
              }),
              60U);
    EXPECT_GE(FailEach([&] {
                  Trickle source(bytes, 100);
                  diagnostics::Diagnostic fault;
                  exchange::DxfNotes notes;
                  EXPECT_NE(exchange::ReadDxf(source, fault, notes, 16), nullptr);
              }),
              70U);
}

TEST(FailedAllocations, OfReadingSymbolsReachTheCaller) {
    if (!kCountsAllocationsOfLibraries) {
        GTEST_SKIP() << kWhyNot;
    }
    const std::string text = R"({"format": "styleconversion/symbols", "version": 1, "symbols": [
        {"type": "SimpleSymbolDefinition", "name": "a name that is too long for the room within a string",
         "kind": "linetype", "source": {"file": "a", "line": 1}, "graphics": [{"type": "Path", "geometry": "M 0,0"}],
         "parameters": [{"dataType": 7}], "lineUsage": {"repeat": "1"}},
        {"type": "CompoundSymbolDefinition", "name": "", "symbols": [
            {"type": "SimpleSymbolDefinition", "name": "", "graphics": [], "parameters": []}]}]})";
    EXPECT_GE(FailEach([&] {
                  documents::SymbolsOfDocument document;
                  diagnostics::Diagnostics problems;
                  EXPECT_TRUE(ReadSymbols(text, false, document, problems));
                  EXPECT_EQ(document.symbols.size(), 2U);
              }),
              30U);
}

} // namespace
