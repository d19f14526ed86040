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

void WriteSheet(const std::string& name, const std::vector<SymbolPointer>& symbols) {
    std::string text;
    preview::SheetWriter writer(symbols.size(), [&](std::string_view piece) {
        text += piece;
        return true;
    });
    for (const auto& symbol : symbols) {
        writer.Add(*symbol);
    }
    writer.Finish();
    Write(name, text);
}

// The first symbols come from the first file, and so on.
void WriteGallery(const std::string& name, const std::vector<SymbolPointer>& symbols,
                  const std::vector<std::string>& files = {}) {
    std::string text;
    preview::GalleryPage page;
    page.count = symbols.size();
    page.title = name;
    page.document = R"({"format": "styleconversion/symbols", "version": 1, "symbols": []})";
    page.styleHead = files.empty() ? "" : "<styles>\n";
    page.styleTail = files.empty() ? "" : "</styles>\n";
    preview::GalleryWriter writer(page, [&](std::string_view piece) {
        text += piece;
        return true;
    });
    for (const auto& symbol : symbols) {
        writer.Measure(*symbol);
    }
    for (std::size_t i = 0; i < symbols.size(); ++i) {
        preview::GalleryFacts facts;
        facts.source = files.empty() ? "" : files[i * files.size() / symbols.size()];
        facts.description = files.empty() ? "" : "from the works";
        facts.json = R"({"name": "</script>)" + std::to_string(i) + "\"}";
        facts.style = "<style>\xc3\xa4 \"" + std::to_string(i) + "\" &lt;/script></style>\n";
        writer.Add(*symbols[i], facts);
    }
    writer.Finish();
    Write(name, text);
}

// Two symbols that lose something, beside what they should be, and one that does not.
void WriteCompared() {
    const auto area = [](const wchar_t* repeat) {
        auto symbol = NewSymbol(L"COURSES");
        AddLineParameters(*symbol);
        AddPath(*symbol, L"M 0,0 L 1,0 ", L"%LINECOLOR%").SetLineWeight(L"%LINEWEIGHT%");
        SetAreaUsage(*symbol, L"%HATCHANGLE%", L"1", repeat);
        return symbol;
    };
    const auto strict = PointSymbol(L"OPEN", L"M 0,0 L 10,0 L 10,10 L 0,10");
    const auto faithful = PointSymbol(L"OPEN", L"M 0,0 L 10,0 L 10,10 L 0,10 L 0,0 L 2,-1");
    const auto strictArea = area(L"0.1");
    const auto faithfulArea = area(L"0.105");
    const auto right = PointSymbol(L"RIGHT", L"M 0,0 L 30,0");
    std::string text;
    preview::GalleryWriter writer({.count = 3}, [&](std::string_view piece) {
        text += piece;
        return true;
    });
    preview::GalleryFacts facts;
    for (TylModel::SymbolDefinition* const symbol : {strict.get(), right.get()}) {
        writer.Measure(*symbol);
    }
    writer.Add(*right);
    facts.loss = "drawn up to 50 % <out> of place";
    facts.faithful = faithful.get();
    writer.Add(*strict, facts);
    facts.loss = "drawn up to 48 % out of place";
    facts.faithful = faithfulArea.get();
    writer.Add(*strictArea, facts);
    writer.Finish();
    Write("compared.html", text);
}

// Three letters of one font and one of another, each a box as wide as its advance but for a unit; capitals
// are ten units high, and J reaches below the line.
void WriteFonts() {
    struct Letter {
        const wchar_t* name;
        const wchar_t* path;
        preview::GlyphFacts facts;
        const char* file;
    };
    const Letter letters[] = {
        {L"I (73)", L"M 0,0 l 2,0 l 0,10 l -2,0 l 0,-10 ", {'I', 3, 10, 4}, "one.shx"},
        {L"J (74)", L"M 0,-4 l 4,0 l 0,14 l -4,0 l 0,-14 ", {'J', 5, 10, 4}, "one.shx"},
        {L"Space (32)", L"", {' ', 6, 10, 4}, "one.shx"},
        {L"I (73)", L"M 0,0 l 8,0 l 0,10 l -8,0 l 0,-10 ", {'I', 9, 10, 0}, "two.shx"},
    };
    for (const std::size_t count : {std::size_t{3}, std::size_t{4}}) {
        std::string text;
        preview::GalleryWriter writer({.count = count}, [&](std::string_view piece) {
            text += piece;
            return true;
        });
        for (std::size_t i = 0; i < count; ++i) {
            const auto symbol = NewSymbol(letters[i].name);
            AddPath(*symbol, letters[i].path);
            preview::GalleryFacts facts;
            facts.source = letters[i].file;
            facts.glyph = &letters[i].facts;
            facts.json =
                R"({"graphics": [{"geometry": ")" + platform::WideToValidUtf8(letters[i].path) + R"("}]})";
            writer.Add(*symbol, facts);
        }
        writer.Finish();
        Write(count == 3 ? "font.html" : "fonts.html", text);
    }
}

// As many glyphs as a font of a large script has.
void WriteManyGlyphs() {
    constexpr unsigned kMany = 7'000;
    constexpr unsigned kFirst = 0x4e00;
    std::string text;
    preview::GalleryWriter writer({.count = kMany}, [&](std::string_view piece) {
        text += piece;
        return true;
    });
    for (unsigned i = 0; i < kMany; ++i) {
        const auto symbol = NewSymbol(std::to_wstring(kFirst + i));
        std::wstring path = L"M 0,0 ";
        for (unsigned stroke = 0; stroke < 12; ++stroke) {
            path += L"l " + std::to_wstring((i + stroke * 7) % 5) + L',' +
                    std::to_wstring((i / 5 + stroke) % 4) + L' ';
        }
        AddPath(*symbol, path);
        const preview::GlyphFacts glyph = {kFirst + i, 12, 10, 2};
        preview::GalleryFacts facts;
        facts.glyph = &glyph;
        facts.json = R"({"graphics": [{"geometry": ")" + platform::WideToValidUtf8(path) + R"("}]})";
        writer.Add(*symbol, facts);
    }
    writer.Finish();
    Write("glyphs.html", text);
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
    WriteSheet("typical.svg", TypicalSymbols());
    WriteSheet("hostile.svg", HostileSymbols());
    WriteGallery("typical.html", TypicalSymbols());
    WriteGallery("hostile.html", HostileSymbols());
    WriteGallery("many.html", ManySymbols());
    WriteCompared();
    WriteFonts();
    WriteManyGlyphs();
    WriteGallery("folders.html", TypicalSymbols(), {"roads/a.lin", "water/b.lin", "water/c.pat"});
    return 0;
}
