// Symbols of many files as one result.
#pragma once

#include "conversions/Conversion.h"
#include "conversions/Forms.h"
#include "conversions/reading/FileKind.h"
#include "documents/SymbolsDocument.h"

#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace conversions {

/// Takes the conversions of files one by one, in the order in which their symbols are to stand. A file that
/// is not converted fails alone.
class Gathering {
public:
    /// `kind` is what the symbols of the file come from.
    void Add(const std::string& file, FileKind kind, Conversion conversion);

    bool HasSymbols() const { return !symbols_.empty(); }
    std::size_t SymbolCount() const { return symbols_.size(); }
    std::size_t FileCount() const { return files_; }
    /// The names of the files that were not converted.
    const std::vector<std::string>& Refused() const { return refused_; }

    /// All that was told of the files, and which names were changed to keep symbols apart; those alike are
    /// one.
    diagnostics::Diagnostics Told() const;

    /// Writes all symbols, with their origins where these are to be told and the form has a place for them.
    /// False when the sink refuses a text.
    bool Write(Form form, bool tellsOrigins, const TextSink& sink, Front& front,
               StyleJob* styles = nullptr) const;

private:
    bool IsOfOtherFidelity(const std::string& file, const Conversion& conversion);
    void AddSymbols(const std::string& file, FileKind kind, Conversion conversion);
    void AddNames(const std::string& file, Conversion& conversion);
    void KeepApart(TylModel::SymbolDefinition& symbol, const diagnostics::Place& place);

    Symbols owned_;
    std::vector<TylModel::SymbolDefinition*> symbols_;
    std::vector<documents::SymbolOrigin> origins_; // of each symbol
    std::vector<bool> toldOrigins_;                // whether a document says so already
    Captions captions_;
    std::set<std::wstring> names_;
    std::vector<std::string> refused_;
    diagnostics::Diagnostics told_;
    std::size_t files_ = 0;
    std::optional<encoding::Fidelity> fidelity_; // of symbols that can have either
};

} // namespace conversions
