// A host application: opens a drawing, converts the blocks of it, a linetype file and a pattern file, and
// owns and frees what it gets.
//   host PATTERNS.pat LINETYPES.lin SHAPE-FOLDER [CODE-PAGE]
#include "Drawing.h"
#include "Services.h"
#include "Summary.h"

#include <StyleConversion/block/BlockConverter.h>
#include <StyleConversion/linetype/LineConverter.h>
#include <StyleConversion/pattern/PatternConverter.h>
#include <StyleConversion/platform/AnsiCodePage.h>

#include <cstdio>
#include <filesystem>
#include <future>
#include <memory>
#include <string>
#include <vector>

namespace {

// What a converter hands over as plain pointers is owned from here on.
using Symbols = std::vector<std::unique_ptr<TylModel::SymbolDefinition>>;

void Take(Symbols& owned, const std::vector<TylModel::SymbolDefinition*>& symbols) {
    for (TylModel::SymbolDefinition* const symbol : symbols) {
        owned.emplace_back(symbol);
    }
}

bool ConvertBlocks(drawing::Database& database, Symbols& owned) {
    BlockConverter converter(&database);
    std::vector<std::wstring> names;
    if (converter.GetBlockNames(names) != 0) {
        return false;
    }
    for (const std::wstring& name : names) {
        owned.emplace_back(converter.Convert(name));
        if (owned.back() == nullptr) {
            return false;
        }
    }
    return true;
}

bool ConvertLinetypes(const std::filesystem::path& file, const ShapeFolder& shapes, Symbols& owned) {
    ShapeOpener files(shapes);
    OneTypeface styles;
    const std::unique_ptr<std::vector<TylModel::SymbolDefinition*>> symbols(
        LineConverter::Convert(file.wstring().c_str(), &styles, &files, 1.0));
    if (symbols == nullptr) {
        return false; // something of the file could not be converted
    }
    Take(owned, *symbols);
    return true;
}

void ConvertPatterns(const std::filesystem::path& file, Symbols& owned) {
    PatternConverter converter(file.wstring());
    std::vector<TylModel::SymbolDefinition*> symbols;
    converter.ConvertAll(symbols);
    Take(owned, symbols);
}

// The bytes of files are in that code page from here on; before the first conversion.
bool ReadFilesBy(const char* codePage) {
#if defined(_WIN32)
    return codePage == nullptr; // the system has one
#else
    return codePage == nullptr || platform::SetAnsiCodePage(codePage);
#endif
}

int Print(const Symbols& symbols) {
    for (const std::unique_ptr<TylModel::SymbolDefinition>& symbol : symbols) {
        std::puts(Summary(*symbol).c_str());
    }
    return 0;
}

int Fail(const char* what) {
    std::fprintf(stderr, "host: %s\n", what);
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 4 && argc != 5) {
        std::fputs("usage: host PATTERNS.pat LINETYPES.lin SHAPE-FOLDER [CODE-PAGE]\n", stderr);
        return 2;
    }
    if (!ReadFilesBy(argc == 5 ? argv[4] : nullptr)) {
        return Fail("no such code page");
    }
    const ShapeFolder shapes(argv[3]);
    FileSearch search(shapes);
    oxdbSetHostApplicationServices(&search);
    const std::unique_ptr<drawing::Database> database = OpenDrawing();

    // One converter a thread, and symbols of its own; the file search is asked by blocks alone.
    Symbols patterns;
    std::future<void> other = std::async(std::launch::async, [&] { ConvertPatterns(argv[1], patterns); });
    Symbols blocks;
    Symbols linetypes;
    bool areConverted = ConvertBlocks(*database, blocks);
    areConverted = ConvertLinetypes(argv[2], shapes, linetypes) && areConverted;
    other.get();

    oxdbSetHostApplicationServices(nullptr);
    if (!areConverted || !database->IsEverythingClosed()) {
        return Fail("a conversion failed");
    }
    std::printf("%d shape files looked at\n", search.FilesLookedAt());
    return Print(blocks) + Print(patterns) + Print(linetypes);
}
