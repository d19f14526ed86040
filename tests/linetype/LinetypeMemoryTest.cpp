// What a linetype allocates, with the project's own symbol model.
#include "TestFile.h"
#include "tests/support/Allocations.h"

#include "StyleConversion/linetype/LineConverter.h"

#include <gtest/gtest.h>
#include <memory>

namespace linetypetest {
namespace {

using Symbols = std::vector<TylModel::SymbolDefinition*>;

TEST(LinetypeMemory, ASimpleLinetypeTakesMemoryForWhatIsItsOwnOnly) {
    TestFolder folder;
    const auto allocationsOf = [&](std::size_t linetypes) {
        std::string text;
        for (std::size_t i = 0; i < linetypes; ++i) {
            text += "*A first name of some length,and a description of it\nA,1.25,-1.5,0,-.375\n";
        }
        const std::wstring file = folder.Write("simple.lin", text);
        const test_support::AllocationWatch watch;
        const std::unique_ptr<Symbols> symbols(LineConverter::Convert(file.c_str(), nullptr, nullptr, 1.0));
        const std::size_t count = watch.Count();
        for (TylModel::SymbolDefinition* const symbol : *symbols) {
            delete symbol;
        }
        return count;
    };
    // In the file's record the two names and the elements. In the symbol the definition with its two names;
    // the path with its geometry, colour, weight and "false"; the usage with its repeat, made and stored; two
    // parameters with four texts each, one of them too short to need memory; and a list of one and one that
    // grows to two. Now and then a longer list grows.
    constexpr std::size_t kOfRecord = 3;
    constexpr std::size_t kOfSymbol = 3 + 5 + 3 + (5 + 4) + 3;
    EXPECT_LE(allocationsOf(1100) - allocationsOf(100), 1000 * (kOfRecord + kOfSymbol) + 30);
}

} // namespace
} // namespace linetypetest
