// Converters of their own on two threads give what each gives by itself.
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/linetype/LineConverter.h"
#include "StyleConversion/linetype/Services.h"
#include "StyleConversion/pattern/PatternConverter.h"
#include "StyleConversion/platform/Files.h"

#include "OxDb/OxDbHostApplicationServices.h"
#include "documents/DrawingReader.h"
#include "documents/SymbolsDocument.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

namespace {

using Symbols = std::vector<TylModel::SymbolDefinition*>;

std::wstring ExamplePath(const std::string& name) {
    return platform::PathFromBytes(EXAMPLES) + L"/" + platform::PathFromBytes(name);
}

std::wstring ShapePath(std::wstring name) {
    std::transform(name.begin(), name.end(), name.begin(),
                   [](wchar_t c) { return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c + 32) : c; });
    return ExamplePath("shapes/") + name;
}

// Services that change nothing: for any number of threads.
class Services : public OxDbHostApplicationServices {
public:
    Oxsys::ErrorStatus findFile(wchar_t* path, int pathLength, const wchar_t* fileName,
                                OxDbDatabase* /*database*/, FindFileHint /*hint*/) override {
        const std::wstring found = ShapePath(fileName);
        if (found.size() >= static_cast<std::size_t>(pathLength)) {
            return Oxsys::eBufferTooSmall;
        }
        std::copy_n(found.c_str(), found.size() + 1, path);
        return Oxsys::eOk;
    }
};

class ShapeFiles : public LineConverter::IGetFile {
public:
    std::FILE* GetFile(const wchar_t* name, const wchar_t* /*extension*/) override {
        return platform::OpenForReading(ShapePath(name).c_str());
    }
};

class Styles : public LineConverter::IGetFontInfo {
public:
    bool GetFontInfoFromStyle(const wchar_t* /*styleName*/, LineConverter::FontInfo& info) override {
        info = {};
        info.fileName = L"single-stroke.shx";
        info.xScale = 1.0;
        return true;
    }
};

// The document of the symbols, which are deleted.
std::string DocumentOf(const Symbols& symbols) {
    std::string text;
    documents::SymbolsWriter writer([&](std::string_view piece) {
        text += piece;
        return true;
    });
    for (TylModel::SymbolDefinition* const symbol : symbols) {
        writer.Add(*symbol);
        delete symbol;
    }
    writer.Finish();
    return text;
}

std::string ConvertLinetypes() {
    Styles styles;
    ShapeFiles files;
    const std::wstring path = ExamplePath("linetypes/complex.lin");
    const std::unique_ptr<Symbols> symbols(LineConverter::Convert(path.c_str(), &styles, &files, 0.7));
    return symbols == nullptr ? "failed" : DocumentOf(*symbols);
}

std::string ConvertPatterns() {
    std::string text;
    for (const char* const name : {"patterns/herringbone.pat", "patterns/hexagons.pat"}) {
        PatternConverter converter(ExamplePath(name));
        Symbols symbols;
        converter.ConvertAll(symbols);
        text += DocumentOf(symbols);
    }
    return text;
}

std::string ConvertBlocks() {
    std::string text;
    for (const char* const name : {"drawings/utility-symbols.json", "drawings/contours.json"}) {
        std::ifstream stream(std::filesystem::path(EXAMPLES) / name, std::ios::binary);
        const std::string content{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
        documents::DrawingError fault;
        const std::unique_ptr<drawing::Database> database =
            documents::ReadDrawing(std::string_view(content), fault);
        BlockConverter converter(database.get());
        std::vector<std::wstring> blocks;
        converter.GetBlockNames(blocks);
        Symbols symbols;
        for (const std::wstring& block : blocks) {
            symbols.push_back(converter.Convert(block));
        }
        text += DocumentOf(symbols);
    }
    return text;
}

using Conversion = std::string (*)();
constexpr Conversion kConversions[] = {ConvertLinetypes, ConvertPatterns, ConvertBlocks};

class Threads : public testing::Test {
protected:
    Threads() { oxdbSetHostApplicationServices(&services_); }
    ~Threads() override { oxdbSetHostApplicationServices(nullptr); }

private:
    Services services_;
};

// How many of `rounds` runs of each conversion, with `first` first, do not give what is wanted.
int CountDifferences(std::size_t first, int rounds, const std::vector<std::string>& wanted) {
    int differences = 0;
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < wanted.size(); ++i) {
            const std::size_t conversion = (first + i) % wanted.size();
            differences += kConversions[conversion]() == wanted[conversion] ? 0 : 1;
        }
    }
    return differences;
}

TEST_F(Threads, ConvertersOfTheirOwnDoNotDisturbEachOther) {
    std::vector<std::string> wanted;
    for (const Conversion conversion : kConversions) {
        wanted.push_back(conversion());
        // Texts of shapes, and so through the path commands, are among them.
        EXPECT_GT(wanted.back().size(), 1000U);
    }
    constexpr int kRounds = 40;
    for (std::size_t shift = 0; shift < wanted.size(); ++shift) {
        int differences[2] = {};
        std::thread other([&] { differences[0] = CountDifferences(shift, kRounds, wanted); });
        differences[1] = CountDifferences(0, kRounds, wanted);
        other.join();
        EXPECT_EQ(differences[0], 0) << "shift " << shift;
        EXPECT_EQ(differences[1], 0) << "shift " << shift;
    }
}

} // namespace
