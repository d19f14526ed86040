#include "PatternTestSupport.h"

#include "StyleConversion/platform/Utf8.h"

#include <fstream>
#include <random>

namespace {

std::filesystem::path UnusedPath() {
    std::random_device random;
    std::string name = "pattern-test-";
    for (int i = 0; i < 20; ++i) {
        name += static_cast<char>('a' + random() % 26);
    }
    return std::filesystem::temp_directory_path() / (name + ".pat");
}

std::string Narrow(const std::wstring& text) {
    return platform::WideToValidUtf8(text);
}

} // namespace

TemporaryFile::TemporaryFile() : path_(UnusedPath()) {}

TemporaryFile::TemporaryFile(std::string_view content) : TemporaryFile() {
    Write(content);
}

TemporaryFile::~TemporaryFile() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
}

void TemporaryFile::Write(std::string_view content) const {
    std::ofstream stream(path_, std::ios::binary);
    stream.write(content.data(), static_cast<std::streamsize>(content.size()));
    stream.close();
    ASSERT_TRUE(stream.good());
}

std::vector<Symbol> ConvertText(std::string_view text) {
    const TemporaryFile file(text);
    PatternConverter converter(file.GetName());
    std::vector<TylModel::SymbolDefinition*> symbols;
    converter.ConvertAll(symbols);
    return {symbols.begin(), symbols.end()};
}

std::vector<ReadSymbol> SimpleDefinitions(const Symbol& symbol) {
    const ReadSymbol read = Read(*symbol);
    return read.isCompound ? read.members : std::vector<ReadSymbol>{read};
}

std::vector<std::wstring> Geometries(const ReadSymbol& definition) {
    std::vector<std::wstring> geometries;
    for (const ReadGraphic& graphic : definition.graphics) {
        EXPECT_TRUE(graphic.path) << "a pattern draws no text";
        geometries.push_back(graphic.path ? graphic.path->geometry : L"");
    }
    return geometries;
}

std::string Describe(TylModel::SymbolDefinition& symbol) {
    const ReadSymbol read = Read(symbol);
    std::string text = (read.isCompound ? "compound " : "simple ") + Narrow(read.name) + "\n";
    for (const ReadSymbol& definition : read.isCompound ? read.members : std::vector<ReadSymbol>{read}) {
        EXPECT_EQ(definition.name, read.name);
        const ReadAreaUsage usage = definition.area.value_or(ReadAreaUsage{L"none", L"", L""});
        text +=
            "area " + Narrow(usage.angle) + " " + Narrow(usage.repeatX) + " " + Narrow(usage.repeatY) + "\n";
        for (const std::wstring& geometry : Geometries(definition)) {
            text += "path " + Narrow(geometry) + "\n";
        }
    }
    return text;
}

std::vector<std::string> ConvertAll(PatternConverter& converter) {
    std::vector<TylModel::SymbolDefinition*> symbols;
    converter.ConvertAll(symbols);
    std::vector<std::string> descriptions;
    descriptions.reserve(symbols.size());
    for (TylModel::SymbolDefinition* const symbol : symbols) {
        descriptions.push_back(Describe(*Symbol(symbol)));
    }
    return descriptions;
}

void PatternTest::TearDown() {
    EXPECT_LE(CountModelObjects(), 0);
}
