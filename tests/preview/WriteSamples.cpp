// Writes the documents that the tests of pictures look at, into the folder named on the command line.

#include "preview/Gallery.h"
#include "tests/preview/SampleSymbols.h"

#include "StyleConversion/platform/Utf8.h"

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace {

using namespace preview_test;

std::filesystem::path folder;

void Write(const std::string& name, const std::string& text) {
    std::ofstream file(folder / name, std::ios::binary);
    file << text;
}

template <class Writer>
void WriteWith(const std::string& name, const std::vector<SymbolPointer>& symbols) {
    std::string text;
    Writer writer(symbols.size(), [&](std::string_view piece) {
        text += piece;
        return true;
    });
    for (const auto& symbol : symbols) {
        writer.Add(*symbol);
    }
    writer.Finish();
    Write(name, text);
}

// As many symbols as a large office has.
std::vector<SymbolPointer> ManySymbols() {
    constexpr std::size_t kMany = 2'000;
    std::vector<SymbolPointer> symbols;
    while (symbols.size() < kMany) {
        for (auto& symbol : TypicalSymbols()) {
            symbol->SetName(symbol->GetName() + L" " + std::to_wstring(symbols.size()));
            symbols.push_back(std::move(symbol));
        }
    }
    return symbols;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: write_preview_samples FOLDER\n", stderr);
        return 2;
    }
    folder = argv[1];
    std::filesystem::create_directories(folder);
    for (const auto& symbols : {TypicalSymbols, MeasuredSymbols}) {
        for (const auto& symbol : symbols()) {
            Write(platform::WideToValidUtf8(symbol->GetName()) + ".svg", preview::SymbolSvg(*symbol));
        }
    }
    WriteWith<preview::SheetWriter>("typical.svg", TypicalSymbols());
    WriteWith<preview::SheetWriter>("hostile.svg", HostileSymbols());
    WriteWith<preview::GalleryWriter>("typical.html", TypicalSymbols());
    WriteWith<preview::GalleryWriter>("hostile.html", HostileSymbols());
    WriteWith<preview::GalleryWriter>("many.html", ManySymbols());
    return 0;
}
