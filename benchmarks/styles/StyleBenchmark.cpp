// How long writing styles takes, against writing the same symbols as a document: style_benchmark DOCUMENT...
// reads symbols documents and prints, for each, the processor time of the document and how many times as long
// each style takes. Pixels are not made.
#include "conversions/Forms.h"
#include "documents/SymbolsReader.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <iterator>
#include <limits>
#include <string>
#include <vector>

namespace {

using Symbols = std::vector<TylModel::SymbolDefinition*>;

double Seconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

void Write(const Symbols& symbols, conversions::Form form) {
    conversions::Front front;
    conversions::StyleJob styles;
    std::size_t bytes = 0;
    conversions::WriteSymbols(
        symbols, form,
        [&](std::string_view piece) {
            bytes += piece.size();
            return true;
        },
        front, encoding::Fidelity::kFaithful, {}, &styles);
}

// The shortest of many runs, which other programs lengthen least.
double TimeOf(const Symbols& symbols, conversions::Form form) {
    constexpr double kWhole = 2.0;
    double shortest = std::numeric_limits<double>::infinity();
    const double start = Seconds();
    do {
        const double before = Seconds();
        // Far more than the clock's step.
        constexpr int kRuns = 20;
        for (int i = 0; i < kRuns; ++i) {
            Write(symbols, form);
        }
        shortest = std::min(shortest, (Seconds() - before) / kRuns);
    } while (Seconds() - start < kWhole);
    return shortest;
}

bool Measure(const char* path) {
    std::ifstream file(path, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    documents::SymbolsOfDocument document;
    diagnostics::Diagnostics problems;
    if (!ReadSymbols(text, false, document, problems)) {
        std::fprintf(stderr, "%s: is no symbols document\n", path);
        return false;
    }
    Symbols symbols;
    for (const documents::ReadSymbol& symbol : document.symbols) {
        symbols.push_back(symbol.definition.get());
    }
    const double written = TimeOf(symbols, conversions::Form::kJson);
    std::printf("%s: %zu symbols, document %.3f ms; qgis %.1f, maplibre %.1f\n", path, symbols.size(),
                written * 1000.0, TimeOf(symbols, conversions::Form::kQgis) / written,
                TimeOf(symbols, conversions::Form::kMaplibre) / written);
    return true;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: style_benchmark DOCUMENT...\n");
        return 2;
    }
    bool isMeasured = true;
    for (int i = 1; i < argc; ++i) {
        isMeasured = Measure(argv[i]) && isMeasured;
    }
    return isMeasured ? 0 : 1;
}
