// A host application: opens a drawing, converts a block of it, a linetype file and a pattern file, and owns
// and frees what it gets.
//   host PATTERNS.pat LINETYPES.lin SHAPE-FOLDER
#include "Drawing.h"
#include "Services.h"
#include "Summary.h"

#include <StyleConversion/block/BlockConverter.h>
#include <StyleConversion/linetype/LineConverter.h>
#include <StyleConversion/pattern/PatternConverter.h>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

// What a converter hands over as plain pointers is owned from here on.
using Symbols = std::vector<std::unique_ptr<TylModel::SymbolDefinition>>;

void Take(Symbols& owned, std::vector<TylModel::SymbolDefinition*> symbols) {
    for (TylModel::SymbolDefinition* const symbol : symbols) {
        owned.emplace_back(symbol);
    }
}

bool ConvertBlocks(Symbols& owned) {
    const std::unique_ptr<drawing::Database> database = OpenDrawing();
    BlockConverter converter(database.get());
    std::vector<std::wstring> names;
    if (converter.GetBlockNames(names) != 0) {
        return false;
    }
    for (const std::wstring& name : names) {
        TylModel::SymbolDefinition* const symbol = converter.Convert(name);
        if (symbol == nullptr) {
            return false;
        }
        owned.emplace_back(symbol);
    }
    return database->IsEverythingClosed();
}

bool ConvertLinetypes(const std::filesystem::path& file, const std::filesystem::path& shapes,
                      Symbols& owned) {
    ShapeFolder files(shapes);
    OneTypeface styles;
    const std::unique_ptr<std::vector<TylModel::SymbolDefinition*>> symbols(
        LineConverter::Convert(file.wstring().c_str(), &styles, &files, 1.0));
    if (!symbols) {
        return false;
    }
    Take(owned, *symbols);
    return true;
}

bool ConvertPatterns(const std::filesystem::path& file, Symbols& owned) {
    PatternConverter converter(file.wstring());
    std::vector<TylModel::SymbolDefinition*> symbols;
    converter.ConvertAll(symbols);
    Take(owned, std::move(symbols));
    return true;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fputs("usage: host PATTERNS.pat LINETYPES.lin SHAPE-FOLDER\n", stderr);
        return 2;
    }
    Symbols symbols;
    if (!ConvertBlocks(symbols) || !ConvertPatterns(argv[1], symbols) ||
        !ConvertLinetypes(argv[2], argv[3], symbols)) {
        std::fputs("host: a conversion failed\n", stderr);
        return 1;
    }
    for (const std::unique_ptr<TylModel::SymbolDefinition>& symbol : symbols) {
        std::puts(Summary(*symbol).c_str());
    }
    return 0;
}
