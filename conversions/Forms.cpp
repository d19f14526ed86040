#include "conversions/Forms.h"

#include "conversions/Styles.h"
#include "conversions/reading/Shown.h"
#include "documents/SymbolsDocument.h"
#include "preview/Gallery.h"
#include "preview/SymbolSvg.h"

#include <algorithm>
#include <memory>

namespace conversions {
namespace {

using SymbolList = std::vector<TylModel::SymbolDefinition*>;

void AtSymbol(TylModel::SymbolDefinition& symbol, Front& front) {
    front.AtItem("symbol " + ShownText(symbol.GetName()));
}

// Gives a writer each symbol in turn and then lets it finish.
template <class Writer>
bool WriteAll(const SymbolList& symbols, Writer&& writer, Front& front) {
    return std::all_of(symbols.begin(), symbols.end(),
                       [&](TylModel::SymbolDefinition* symbol) {
                           AtSymbol(*symbol, front);
                           return writer.Add(*symbol);
                       }) &&
           writer.Finish();
}

// A document of no symbols, which those that a reader takes out of a gallery are put into.
std::string EmptyDocument(encoding::Fidelity fidelity) {
    std::string text;
    documents::SymbolsWriter writer(
        [&](std::string_view piece) {
            text += piece;
            return true;
        },
        fidelity);
    writer.Finish();
    return text;
}

// A gallery's writer with what is said of each symbol.
class CaptionedGallery {
public:
    // `styles` are those that it holds; null for none.
    CaptionedGallery(const SymbolList& symbols, const Captions& captions, encoding::Fidelity fidelity,
                     const TextSink& sink, StyleJob* styles)
        : captions_(captions), writer_(PageOf(symbols, captions, fidelity, styles != nullptr), sink) {
        if (styles != nullptr) {
            entries_ = std::make_unique<QgisEntries>(captions, *styles);
        }
        for (TylModel::SymbolDefinition* const symbol : symbols) {
            writer_.Measure(*symbol);
        }
    }

    bool Add(TylModel::SymbolDefinition& symbol) {
        preview::GalleryFacts facts;
        if (const auto found = captions_.descriptions.find(&symbol); found != captions_.descriptions.end()) {
            facts.description = found->second;
        }
        if (const auto found = captions_.sources.find(&symbol); found != captions_.sources.end()) {
            facts.source = found->second;
        }
        std::shared_ptr<TylModel::SymbolDefinition> faithful;
        if (const auto found = captions_.losses.find(&symbol); found != captions_.losses.end()) {
            facts.loss = found->second.text;
            faithful = found->second.makeFaithful();
            facts.faithful = faithful.get();
        }
        if (const auto found = captions_.glyphs.find(&symbol); found != captions_.glyphs.end()) {
            facts.glyph = &found->second;
        }
        if (entries_ != nullptr) {
            facts.style = entries_->Of(symbol);
        }
        facts.json = documents::SymbolText(symbol);
        return writer_.Add(symbol, facts);
    }

    bool Finish() { return writer_.Finish(); }

private:
    static preview::GalleryPage PageOf(const SymbolList& symbols, const Captions& captions,
                                       encoding::Fidelity fidelity, bool hasStyles) {
        preview::GalleryPage page;
        page.count = symbols.size();
        page.title = captions.title.empty() ? page.title : captions.title;
        page.document = EmptyDocument(fidelity);
        if (hasStyles) {
            page.styleHead = styles::kQgisLibraryHead;
            page.styleTail = styles::kQgisLibraryTail;
        }
        return page;
    }

    const Captions& captions_;
    preview::GalleryWriter writer_;
    std::unique_ptr<QgisEntries> entries_;
};

} // namespace

bool WriteSymbols(const SymbolList& symbols, Form form, const TextSink& sink, Front& front,
                  encoding::Fidelity fidelity, const Captions& captions, StyleJob* styles) {
    front.BeginStage("Writing", symbols.size());
    switch (form) {
    case Form::kJson:
        return WriteAll(symbols, documents::SymbolsWriter(sink, fidelity), front);
    case Form::kHtml:
        return WriteAll(symbols,
                        CaptionedGallery(symbols, captions, fidelity, sink,
                                         styles != nullptr && styles->isInGallery ? styles : nullptr),
                        front);
    case Form::kQgis: {
        StyleJob unheard;
        return WriteAll(symbols, QgisStyles(sink, captions, styles != nullptr ? *styles : unheard), front);
    }
    case Form::kQml: {
        StyleJob unheard;
        if (symbols.empty()) {
            return false;
        }
        AtSymbol(*symbols.front(), front);
        return WriteLayerStyle(*symbols.front(), sink, captions, styles != nullptr ? *styles : unheard);
    }
    case Form::kMaplibre: {
        StyleJob unheard;
        return WriteAll(symbols, MaplibreStyles(sink, captions, styles != nullptr ? *styles : unheard),
                        front);
    }
    case Form::kSvg:
    case Form::kPng:
        break;
    }
    if (styles != nullptr && styles->isBare) {
        if (symbols.empty()) {
            return false;
        }
        AtSymbol(*symbols.front(), front);
        return WriteBarePicture(*symbols.front(), sink, captions, *styles);
    }
    if (symbols.size() == 1) {
        AtSymbol(*symbols.front(), front);
        return sink(preview::SymbolSvg(*symbols.front()));
    }
    return WriteAll(symbols, preview::SheetWriter(symbols.size(), sink), front);
}

} // namespace conversions
