// Documents and pictures whose writing fails at a byte, for each byte.
#include "documents/GlyphsDocument.h"
#include "documents/SymbolsDocument.h"
#include "preview/Gallery.h"
#include "preview/SymbolSvg.h"

#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace {

// Takes so many bytes and refuses the piece that holds the next one.
class FailingSink {
public:
    explicit FailingSink(std::size_t room) : room_(room) {}
    /// The room at which each piece ends.
    const std::vector<std::size_t>& Ends() const { return ends_; }

    bool Take(std::string_view piece) {
        EXPECT_FALSE(refused_) << "written to after a refusal";
        refused_ = refused_ || piece.size() > room_ - text_.size();
        if (!refused_) {
            text_ += piece;
            ends_.push_back(text_.size());
        }
        return !refused_;
    }

    const std::string& Text() const { return text_; }

private:
    std::size_t room_;
    std::string text_;
    std::vector<std::size_t> ends_;
    bool refused_ = false;
};

// `write(sink)` writes a document as far as that goes and tells whether all of it was taken.
template <class Write>
void ExpectEveryFailingByteToBeTold(Write write) {
    FailingSink all(std::size_t{1} << 30);
    ASSERT_TRUE(write(all));
    const std::string& text = all.Text();
    // Bytes of one piece fail alike: of a long one, which is a template in the main, the first and the last
    // will do.
    constexpr std::size_t kLong = 1000;
    std::size_t begin = 0;
    for (const std::size_t end : all.Ends()) {
        const std::size_t step = end - begin > kLong ? end - begin - 1 : 1;
        for (std::size_t room = begin; room < end; room += step) {
            FailingSink sink(room);
            ASSERT_FALSE(write(sink)) << room;
            ASSERT_EQ(sink.Text(), text.substr(0, begin)) << room;
        }
        begin = end;
    }
    FailingSink justEnough(text.size());
    EXPECT_TRUE(write(justEnough));
}

std::unique_ptr<TylModel::SimpleSymbolDefinition> Symbol(const std::wstring& name) {
    auto symbol = std::make_unique<TylModel::SimpleSymbolDefinition>();
    symbol->SetName(name);
    auto path = std::make_unique<TylModel::Path>();
    path->SetGeometry(L"M 0,0 L 1,1 ");
    path->SetLineColor(L"ff000000");
    symbol->GetGraphics().Adopt(path.release());
    return symbol;
}

template <class Writer>
bool WriteTwo(Writer&& writer) {
    return writer.Add(*Symbol(L"A")) && writer.Add(*Symbol(L"B")) && writer.Finish();
}

TEST(FailingWrites, OfASymbolsDocument) {
    ExpectEveryFailingByteToBeTold([](FailingSink& sink) {
        return WriteTwo(documents::SymbolsWriter([&](std::string_view text) { return sink.Take(text); }));
    });
}

TEST(FailingWrites, OfAGlyphsDocument) {
    const ShxUtility::ShapesInFile file;
    ExpectEveryFailingByteToBeTold([&](FailingSink& sink) {
        documents::GlyphsWriter writer(file, [&](std::string_view text) { return sink.Take(text); });
        documents::Glyph glyph;
        glyph.path = L"M 0,0 l 0,1 ";
        return writer.Add(glyph) && writer.Add(glyph) && writer.Finish();
    });
}

TEST(FailingWrites, OfASheet) {
    ExpectEveryFailingByteToBeTold([](FailingSink& sink) {
        return WriteTwo(preview::SheetWriter(2, [&](std::string_view text) { return sink.Take(text); }));
    });
}

TEST(FailingWrites, OfAGallery) {
    ExpectEveryFailingByteToBeTold([](FailingSink& sink) {
        return WriteTwo(
            preview::GalleryWriter({.count = 2}, [&](std::string_view text) { return sink.Take(text); }));
    });
}

} // namespace
