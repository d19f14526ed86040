// What becomes of the time that a drawing document takes: document_benchmark FILE reads it, converts its
// blocks and writes their symbols, as the tool does, and prints the processor time of each and its share.
#include "WrittenNumbers.h"

#include "StyleConversion/block/BlockConverter.h"
#include "documents/DrawingReader.h"
#include "documents/SymbolsDocument.h"
#include "drawing/database/Database.h"

#include <cstdio>
#include <memory>
#include <vector>

namespace {

using Symbols = std::vector<std::unique_ptr<TylModel::SymbolDefinition>>;

Symbols ConvertAll(drawing::Database& database) {
    BlockConverter converter(&database);
    std::vector<std::wstring> names;
    converter.GetBlockNames(names);
    Symbols symbols;
    for (const std::wstring& name : names) {
        symbols.emplace_back(converter.Convert(name));
    }
    return symbols;
}

// Writes to memory that nobody reads; returns how many bytes that is.
std::size_t Write(const Symbols& symbols) {
    std::size_t bytes = 0;
    documents::SymbolsWriter writer([&](std::string_view piece) {
        bytes += piece.size();
        return true;
    });
    for (const auto& symbol : symbols) {
        writer.Add(*symbol);
    }
    writer.Finish();
    return bytes;
}

} // namespace

int main(int argc, char** argv) {
    std::FILE* const file = argc == 2 ? std::fopen(argv[1], "rb") : nullptr;
    if (file == nullptr) {
        std::fprintf(stderr, "usage: document_benchmark FILE\n");
        return 2;
    }
    const double start = ProcessorTime();
    documents::DrawingError fault;
    const auto database = documents::ReadDrawing(file, fault);
    std::fclose(file);
    if (database == nullptr) {
        std::fprintf(stderr, "%s: is no drawing document\n", argv[1]);
        return 1;
    }
    const double read = ProcessorTime();
    const Symbols symbols = ConvertAll(*database);
    const double converted = ProcessorTime();
    const std::size_t bytes = Write(symbols);
    const double written = ProcessorTime();
    const double total = written - start;
    const auto print = [&](const char* what, double seconds) {
        std::printf("%-10s %8.1f ms %5.1f %%\n", what, seconds * 1e3, seconds / total * 100);
    };
    print("reading", read - start);
    print("converting", converted - read);
    print("writing", written - converted);
    std::printf("%zu symbols, %.1f MB written\n", symbols.size(), static_cast<double>(bytes) / 1e6);
    return 0;
}
