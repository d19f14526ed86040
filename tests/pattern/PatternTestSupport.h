// What the tests of patterns share: files that clean up, symbols as text, a watch over unowned objects.
#pragma once

#include "StyleConversion/pattern/PatternConverter.h"
#include "tests/support/ReadSymbol.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// A file in the system's folder for such, deleted with this object.
class TemporaryFile {
public:
    TemporaryFile();
    explicit TemporaryFile(std::string_view content);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    void Write(std::string_view content) const;
    std::wstring GetName() const { return path_.wstring(); }

private:
    std::filesystem::path path_;
};

using Symbol = std::unique_ptr<TylModel::SymbolDefinition>;

/// Every symbol that the patterns of the text make, through a file and a converter.
std::vector<Symbol> ConvertText(std::string_view text);

/// The simple definitions of a symbol: itself, or the compound's in their order.
std::vector<ReadSymbol> SimpleDefinitions(const Symbol& symbol);

/// Geometry of all graphics of a definition, each of which must be a path.
std::vector<std::wstring> Geometries(const ReadSymbol& definition);

/// A symbol in lines of text: its kind and name, then for each simple definition "area" with the usage's
/// three values and "path" with the geometry.
std::string Describe(TylModel::SymbolDefinition& symbol);

/// Describes the symbols that the converter's ConvertAll gives, and deletes them.
std::vector<std::string> ConvertAll(PatternConverter& converter);

/// Fails a test that leaves objects of the symbol model behind, in builds that count them.
class PatternTest : public ::testing::Test {
protected:
    void TearDown() override;
};
