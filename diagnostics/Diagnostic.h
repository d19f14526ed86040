// What is said of a file: how grave it is, what, where, and of what.
#pragma once

#include "diagnostics/Code.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace diagnostics {

enum class Severity : std::uint8_t {
    kError,   // a strict conversion fails or loses something
    kWarning, // it does not, but the result will surprise
    kNote,    // all is as it should be
};

/// What became of the part of the file that it is about.
enum class Outcome : std::uint8_t {
    kNone,     // nothing: it was only found, or all is refused
    kSkipped,  // left out
    kRepaired, // read otherwise, as the table says
};

/// Where in which file. All but the file may be missing. Texts are UTF-8.
struct Place {
    Place() = default;
    Place(std::string itsFile, std::uint64_t itsLine = 0, std::string itsItem = {})
        : file(std::move(itsFile)), line(itsLine), item(std::move(itsItem)) {}

    std::string file;                   // as messages call it
    std::uint64_t line = 0;             // from 1; 0 for none
    std::uint64_t column = 0;           // the byte of the line, from 1; 0 for none
    std::optional<std::uint64_t> byte;  // from 0, in a file without lines
    std::optional<std::uint16_t> shape; // the number of a shape or glyph
    std::string path;                   // of a JSON value: "blocks[2].name"
    std::string item;                   // "linetype GAS"
};

struct Diagnostic {
    Severity severity = Severity::kError;
    Code code = Code::kOutOfMemory;
    Place place;
    std::vector<std::string> subjects; // what the sentence speaks of, in its order; fit to be shown
    Outcome outcome = Outcome::kNone;
    std::size_t count =
        1; // of entities, where the sentence counts them; else of places alike, the first given
    std::size_t morePlaces =
        0; // where the sentence counts entities: those that say it of others, merged here
};

using Diagnostics = std::vector<Diagnostic>;

/// How many of that severity there are.
std::size_t CountOf(const Diagnostics& diagnostics, Severity severity);

/// By line; those of one line stay in their order.
void SortByLine(Diagnostics& diagnostics);

/// Makes one of those of one file that say the same, with the first place and the count: where they have one
/// cause whatever the place, as a missing file, and where there are more than kMostAlike.
void MergeAlike(Diagnostics& diagnostics);
inline constexpr std::size_t kMostAlike = 20;

/// The same over files: where they have one cause, and warnings and notes of which there are more than
/// kMostAlike. Errors of different files stay apart else. Sentences that count entities become one where more
/// than kMostAlike files have them, with the count of the first.
void MergeAcrossFiles(Diagnostics& diagnostics);

/// Moves all of `more` behind the others.
void Append(Diagnostics& diagnostics, Diagnostics more);

} // namespace diagnostics
