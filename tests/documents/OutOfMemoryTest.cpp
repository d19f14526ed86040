// Every allocation fails in turn while a document is written: std::bad_alloc reaches the caller, and nothing
// is lost.
#include "documents/GlyphsDocument.h"
#include "documents/SymbolsDocument.h"
#include "tests/support/Allocations.h"

#include <gtest/gtest.h>
#include <memory>
#include <new>

namespace documents {
namespace {

// Calls `write` with its first allocation failing, then its second, and so on until it succeeds. Returns how
// many failed.
template <class Write>
std::size_t FailEachAllocation(Write write) {
    for (std::size_t failing = 1;; ++failing) {
        const test_support::AllocationWatch watch(failing);
        try {
            write();
            if (!watch.HasFailed()) {
                return failing - 1;
            }
            ADD_FAILURE() << "allocation " << failing << " failed and nobody was told";
        } catch (const std::bad_alloc&) {
        }
        EXPECT_EQ(watch.Live(), 0) << failing;
    }
}

TEST(DocumentsWithoutMemory, SymbolsLeaveNothingBehind) {
    TylModel::SimpleSymbolDefinition symbol;
    for (int i = 0; i < 50; ++i) {
        auto text = std::make_unique<TylModel::Text>();
        text->SetContent(L"'a \u00e4 \"text\" too long for the room within a string'");
        symbol.GetGraphics().Adopt(text.release());
        symbol.GetParameterDefinition().Adopt(new TylModel::Parameter);
    }
    symbol.AdoptPointUsage(new TylModel::PointUsage);
    const std::size_t failures = FailEachAllocation([&] {
        SymbolsWriter writer([](std::string_view) { return true; });
        writer.Add(symbol);
        writer.Add(symbol);
        writer.Finish();
    });
    EXPECT_GT(failures, 5U);
}

TEST(DocumentsWithoutMemory, GlyphsLeaveNothingBehind) {
    ShxUtility::ShapesInFile file;
    file.fontInfo = std::vector<std::uint8_t>(20, 200);
    Glyph glyph;
    glyph.path = std::wstring(100, L'\u00e4');
    glyph.endX = 1.0 / 3;
    const std::size_t failures = FailEachAllocation([&] {
        GlyphsWriter writer(file, [](std::string_view) { return true; });
        writer.Add(glyph);
        writer.Finish();
    });
    EXPECT_GT(failures, 5U);
}

} // namespace
} // namespace documents
