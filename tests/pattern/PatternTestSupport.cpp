// Symbols are read through visitors, as a host would read them.
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

class DefinitionCollector : public TylModel::ISymbolDefinitionVisitor {
public:
    void VisitSimpleSymbolDefinition(TylModel::SimpleSymbolDefinition& definition) override {
        definitions.push_back(&definition);
    }
    void VisitCompoundSymbolDefinition(TylModel::CompoundSymbolDefinition& definition) override {
        isCompound = true;
        for (int i = 0; i < definition.GetSymbols().GetCount(); ++i) {
            definitions.push_back(definition.GetSymbols().GetAt(i)->GetSymbolDefinition());
        }
    }

    std::vector<TylModel::SimpleSymbolDefinition*> definitions;
    bool isCompound = false;
};

class PathCollector : public TylModel::IGraphicElementVisitor {
public:
    void VisitPath(TylModel::Path& path) override { geometries.push_back(path.GetGeometry()); }
    void VisitText(TylModel::Text& /*text*/) override { ADD_FAILURE() << "a pattern draws no text"; }

    std::vector<std::wstring> geometries;
};

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

std::vector<TylModel::SimpleSymbolDefinition*> SimpleDefinitions(const Symbol& symbol) {
    DefinitionCollector collector;
    symbol->AcceptVisitor(collector);
    return collector.definitions;
}

std::vector<std::wstring> Geometries(const TylModel::SimpleSymbolDefinition& definition) {
    PathCollector collector;
    for (int i = 0; i < definition.GetGraphics().GetCount(); ++i) {
        definition.GetGraphics().GetAt(i)->AcceptVisitor(collector);
    }
    return collector.geometries;
}

std::string Describe(TylModel::SymbolDefinition& symbol) {
    DefinitionCollector collector;
    symbol.AcceptVisitor(collector);
    std::string text = (collector.isCompound ? "compound " : "simple ") + Narrow(symbol.GetName()) + "\n";
    for (const TylModel::SimpleSymbolDefinition* const definition : collector.definitions) {
        EXPECT_EQ(definition->GetName(), symbol.GetName());
        const TylModel::AreaUsage& usage = *definition->GetAreaUsage();
        text += "area " + Narrow(usage.GetAngle()) + " " + Narrow(usage.GetRepeatX()) + " " +
                Narrow(usage.GetRepeatY()) + "\n";
        for (const std::wstring& geometry : Geometries(*definition)) {
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
    EXPECT_LE(TylModel::CountLiveObjects(), 0);
}
