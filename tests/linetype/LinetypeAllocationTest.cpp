// Running out of memory anywhere in a conversion: null, and nothing left over.
#include "FakeServices.h"
#include "ShapeBytes.h"
#include "TestFile.h"
#include "tests/support/Allocations.h"
#include "tests/support/ReadSymbol.h"

#include "StyleConversion/linetype/LinParser.h"
#include "StyleConversion/linetype/LineConverter.h"

#include <gtest/gtest.h>
#include <memory>

namespace linetypetest {
namespace {

using Symbols = std::vector<TylModel::SymbolDefinition*>;

class LinetypeAllocations : public testing::Test {
protected:
    LinetypeAllocations() {
        styles.AddTrueType(L"ST", L"A long typeface name");
        styles.AddShx(L"STANDARD", L"TXT.SHX");
        files.files[L"TXT.SHX"] = ShapesFile({FontInformation(8, 2, 0), {65, "A", UnitStroke()}});
        files.files[L"MARKS.SHX"] = ShapesFile({{130, "MARK", UnitStroke()}});
        path =
            folder.Write("test.lin", "*A first name of some length,and a description of it\n"
                                     "A,1,-1,[MARK,marks.shx,A=0],[\"AAA\",standard],[\"Text\",st,A=30],-1\n"
                                     "*Another name of some length,and another description\nA,1,\n-1,0,-2\n"
                                     "*With text\nA,1,[\"Text\",st]\n");
    }

    TestFolder folder;
    FakeStyles styles;
    FakeFiles files;
    std::wstring path;
};

TEST_F(LinetypeAllocations, AnyFailedAllocationGivesNullAndLeavesNoModelObject) {
    const long objectsBefore = CountModelObjects();
    std::size_t failing = 0;
    for (bool failed = true; failed;) {
        ++failing;
        styles.asked.clear();
        files.asked.clear();
        Symbols* symbols = nullptr;
        {
            const test_support::AllocationWatch watch(failing);
            symbols = LineConverter::Convert(path.c_str(), &styles, &files, 1.0);
            failed = watch.HasFailed();
        }
        EXPECT_EQ(symbols == nullptr, failed) << failing;
        if (symbols != nullptr) {
            for (TylModel::SymbolDefinition* const symbol : *symbols) {
                delete symbol;
            }
            delete symbols;
        }
        ASSERT_EQ(CountModelObjects(), objectsBefore) << failing;
    }
    // Names, lists, shape files, symbols: many allocations were tried.
    EXPECT_GT(failing, 100U);
}

TEST_F(LinetypeAllocations, FailedAllocationInTheParseIsResultOne) {
    std::size_t failing = 0;
    for (bool failed = true; failed;) {
        ++failing;
        styles.asked.clear();
        files.asked.clear();
        LineConverter::LinParser parser(&styles, &files);
        LineConverter::LinResult result = LineConverter::kSuccess;
        {
            const test_support::AllocationWatch watch(failing);
            result = parser.Parse(path);
            failed = watch.HasFailed();
        }
        if (failed) {
            // The shape file reader has a result of its own for it, which makes the file unloadable.
            EXPECT_TRUE(result == LineConverter::kOutOfMemory || result == LineConverter::kShapeFileNotLoaded)
                << failing << " " << result;
        } else {
            EXPECT_EQ(result, LineConverter::kSuccess);
        }
    }
    EXPECT_GT(failing, 30U);
}

} // namespace
} // namespace linetypetest
