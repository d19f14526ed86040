#include "fuzz/Documents.h"

#include "StyleConversion/block/BlockConverter.h"
#include "documents/SymbolsDocument.h"
#include "fuzz/Fuzzing.h"

#include <nlohmann/json.hpp>

namespace fuzzing {

Symbols Owned(std::vector<TylModel::SymbolDefinition*>* symbols) {
    Symbols owned;
    for (std::size_t i = 0; symbols != nullptr && i < symbols->size(); ++i) {
        owned.emplace_back((*symbols)[i]);
    }
    delete symbols;
    return owned;
}

Symbols ConvertBlocks(drawing::Database& database) {
    BlockConverter converter(&database);
    std::vector<std::wstring> names;
    Require(converter.GetBlockNames(names) == 0, "a table of blocks");
    Symbols symbols;
    for (const std::wstring& name : names) {
        symbols.emplace_back(converter.Convert(name));
        Require(symbols.back() != nullptr, "a symbol for every block that is listed");
    }
    Require(database.IsEverythingClosed(), "all that was opened to be closed");
    return symbols;
}

std::string TextOf(const Symbols& symbols) {
    std::string text;
    documents::SymbolsWriter writer([&](std::string_view piece) {
        text += piece;
        return true;
    });
    for (const auto& symbol : symbols) {
        Require(symbol != nullptr && writer.Add(*symbol), "a symbol that can be written");
    }
    Require(writer.Finish(), "a document that can be written");
    return text;
}

void RequireJson(const std::string& text) {
    Require(nlohmann::json::accept(text), "a text that reads as JSON");
}

void RequireDocument(const std::string& text, std::size_t symbolCount) {
    const auto json = nlohmann::json::parse(text, nullptr, false);
    Require(!json.is_discarded() && json.at("symbols").size() == symbolCount,
            "a document that reads as JSON and holds every symbol");
}

} // namespace fuzzing
