#include "tests/host/Conversions.h"

#include "StyleConversion/interfaces/HostNames.h"
#include "tests/support/ReadSymbol.h"

#include <algorithm>
#include <cstdio>
#include <cwchar>
#include <cwctype>
#include <memory>
#include <ostream>
#include <vector>

namespace {

using Symbols = std::vector<TylModel::SymbolDefinition*>;

std::wstring Lower(std::wstring text) {
    std::transform(text.begin(), text.end(), text.begin(), [](wchar_t c) {
        return static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(c)));
    });
    return text;
}

// A text on a line of its own, other characters than those of ASCII as numbers.
void PrintText(std::ostream& out, const char* label, const std::wstring& text) {
    out << label << ' ';
    for (const wchar_t c : text) {
        if (c >= L' ' && c < L'\x7f' && c != L'\\') {
            out << static_cast<char>(c);
        } else {
            out << '\\' << static_cast<unsigned long>(c) << ';';
        }
    }
    out << '\n';
}

void PrintTexts(std::ostream& out, const char* label, const std::vector<std::wstring>& texts) {
    for (const std::wstring& text : texts) {
        PrintText(out, label, text);
        label = " ";
    }
}

void Print(std::ostream& out, const ReadSymbol& symbol) {
    PrintTexts(out, symbol.isCompound ? "compound" : "simple", {symbol.name, symbol.description});
    for (const ReadGraphic& graphic : symbol.graphics) {
        if (graphic.path) {
            const ReadPath& path = *graphic.path;
            PrintTexts(
                out, "path",
                {path.geometry, path.lineColor, path.fillColor, path.lineWeight, path.lineWeightScalable});
        }
        if (graphic.text) {
            const ReadText& text = *graphic.text;
            PrintTexts(out, "text",
                       {text.content, text.fontName, text.height, text.angle, text.x, text.y, text.horizontal,
                        text.vertical, text.color, text.bold, text.italic, text.underlined, text.overlined});
        }
    }
    for (const ReadParameter& parameter : symbol.parameters) {
        PrintTexts(
            out, "parameter",
            {parameter.identifier, parameter.displayName, parameter.description, parameter.defaultValue});
        out << "type " << parameter.dataType << '\n';
    }
    if (symbol.point) {
        PrintTexts(out, "point", {symbol.point->angle});
    }
    if (symbol.line) {
        PrintTexts(
            out, "line",
            {symbol.line->angle, symbol.line->angleControl, symbol.line->repeat, symbol.line->startOffset});
    }
    if (symbol.area) {
        PrintTexts(out, "area", {symbol.area->angle, symbol.area->repeatX, symbol.area->repeatY});
    }
    for (const ReadSymbol& member : symbol.members) {
        Print(out, member);
    }
}

void PrintAndDelete(std::ostream& out, TylModel::SymbolDefinition* symbol) {
    if (symbol == nullptr) {
        out << "none\n";
        return;
    }
    Print(out, Read(*symbol));
    delete symbol;
}

void PrintAndDelete(std::ostream& out, const Symbols* symbols) {
    const std::unique_ptr<const Symbols> owned(symbols);
    out << (symbols != nullptr ? "symbols\n" : "none\n");
    if (symbols != nullptr) {
        for (TylModel::SymbolDefinition* const symbol : *symbols) {
            PrintAndDelete(out, symbol);
        }
    }
}

std::vector<std::filesystem::path> FilesIn(const std::filesystem::path& folder, const char* extension) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == extension) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

/// Shape files of a folder, and two styles: one of a shape file, one of a typeface.
class Services final : public LineConverter::IGetFile, public LineConverter::IGetFontInfo {
public:
    explicit Services(std::filesystem::path shapes) : shapes_(std::move(shapes)) {}

    std::FILE* GetFile(const wchar_t* name, const wchar_t* /*extension*/) override {
        wchar_t path[1024];
        return FindShape(shapes_, name, path, 1024)
                   ? std::fopen(std::filesystem::path(path).string().c_str(), "rb")
                   : nullptr;
    }
    bool GetFontInfoFromStyle(const wchar_t* styleName, LineConverter::FontInfo& info) override {
        info = LineConverter::FontInfo();
        if (std::wcscmp(styleName, L"PIPES") == 0) {
            info.fileName = L"single-stroke.shx";
        } else {
            info.typeface = styleName;
            info.bold = true;
        }
        info.textSize = 2;
        info.xScale = 1;
        return true;
    }

private:
    std::filesystem::path shapes_;
};

} // namespace

bool FindShape(const std::filesystem::path& folder, const wchar_t* name, wchar_t* path, std::size_t room) {
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        const std::wstring found = entry.path().wstring();
        if (Lower(entry.path().filename().wstring()) == Lower(name) && found.size() < room) {
            std::wmemcpy(path, found.c_str(), found.size() + 1);
            return true;
        }
    }
    return false;
}

void ConvertBlocks(OxDbDatabase& database, const std::wstring& ignoredLayer, std::ostream& out) {
    BlockConverter converter(&database);
    std::vector<std::wstring> names;
    out << "list " << converter.GetBlockNames(names) << ' '
        << static_cast<int>(converter.GetBlockNamesEx(names)) << '\n';
    for (const std::wstring& name : names) {
        PrintText(out, "block", name);
        PrintAndDelete(out, converter.Convert(name));
        BlockConverter ignoring(converter);
        ignoring.SetLayersToIgnore({ignoredLayer});
        OxDbBlockTable* table = nullptr;
        OxDbBlockTableRecord* record = nullptr;
        if (database.getSymbolTable(table, host::kForRead) == Oxsys::eOk) {
            if (table->getAt(name.c_str(), record, host::kForRead, false) == Oxsys::eOk) {
                PrintAndDelete(out, ignoring.Convert(record));
                static_cast<void>(record->close());
            }
            static_cast<void>(table->close());
        }
    }
    PrintAndDelete(out, converter.Convert(L"no block of this drawing"));
}

void ConvertLinetypes(const std::filesystem::path& folder, const std::filesystem::path& shapes,
                      OxDbHostApplicationServices* services, std::ostream& out) {
    Services callbacks(shapes);
    for (const std::filesystem::path& file : FilesIn(folder, ".lin")) {
        const std::wstring name = file.wstring();
        PrintText(out, "file", file.filename().wstring());
        PrintAndDelete(out, LineConverter::Convert(name.c_str(), &callbacks, &callbacks, 1.0));
        PrintAndDelete(out, LineConverter::Convert(name.c_str(), services, 2.5));
        PrintAndDelete(out, LineConverter::Convert(name.c_str(), 0.1));
    }
}

void ConvertPatterns(const std::filesystem::path& folder, std::ostream& out) {
    for (const std::filesystem::path& file : FilesIn(folder, ".pat")) {
        PrintText(out, "file", file.filename().wstring());
        PatternConverter converter(file.wstring());
        std::vector<std::wstring> names;
        converter.GetPatternNames(names);
        for (const std::wstring& name : names) {
            PrintAndDelete(out, converter.Convert(name));
        }
        Symbols symbols;
        converter.ConvertAll(symbols);
        for (TylModel::SymbolDefinition* const symbol : symbols) {
            PrintAndDelete(out, symbol);
        }
    }
}
