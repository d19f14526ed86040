// Loading on first use, and the names' way through the code page.
#include "StyleConversion/pattern/PatternConverter.h"

#include "StyleConversion/pattern/AreaSymbol.h"
#include "StyleConversion/pattern/PatternFile.h"
#include "StyleConversion/platform/CodePage.h"
#include "StyleConversion/platform/FileBytes.h"
#include "StyleConversion/platform/Files.h"

#include <utility>

// NOLINTNEXTLINE(modernize-pass-by-value): hosts link to this signature.
PatternConverter::PatternConverter(const std::wstring& fileName) : fileName_(fileName) {}

PatternConverter::~PatternConverter() = default;

void PatternConverter::LoadFile() {
    if (!descriptions_.empty()) {
        return;
    }
    // A file that cannot be opened has no patterns; one that cannot be read to its end has those read before.
    std::string bytes;
    if (const platform::OwnedFile stream{platform::OpenForReading(fileName_.c_str())}) {
        static_cast<void>(platform::ReadToEnd(stream.get(), bytes));
    }
    pattern::PatternFile file;
    pattern::ParsePatternFile(bytes, file);
    descriptions_ = std::move(file.descriptions);
    patterns_ = std::move(file.patterns);
}

void PatternConverter::GetPatternNames(std::vector<std::wstring>& names) {
    LoadFile();
    names.clear();
    for (const auto& [name, description] : descriptions_) {
        names.push_back(platform::AnsiToWide(name));
    }
}

TylModel::SymbolDefinition* PatternConverter::Convert(const std::wstring& name) {
    LoadFile();
    // Names end at their terminator, as those of the file do.
    const auto found = patterns_.find(platform::WideToAnsi(name.c_str()));
    return found == patterns_.end() ? nullptr
                                    : pattern::BuildAreaSymbol(found->first, found->second).release();
}

void PatternConverter::ConvertAll(std::vector<TylModel::SymbolDefinition*>& symbols) {
    LoadFile();
    symbols.clear();
    symbols.reserve(patterns_.size()); // so that no symbol is lost for want of memory
    pattern::AreaSymbolBuilder builder;
    for (auto& [name, lines] : patterns_) {
        if (auto symbol = builder.Build(name, lines)) {
            symbols.push_back(symbol.release());
        }
    }
}
