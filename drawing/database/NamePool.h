// Every name of a drawing is kept once; what the tables have under it is found from there.
#pragma once

#include "OxDb/Export.h"
#include "drawing/database/CaseFolding.h"

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

struct OxDbStub;

namespace drawing {

/// A name with its spelling. Entities hold this instead of a text.
using NameIndex = std::uint32_t;

/// What the drawing has under one name, whatever the case of its letters.
struct NamedThings {
    OxDbStub* layer = nullptr;
    OxDbStub* linetype = nullptr;
    OxDbStub* textStyle = nullptr;
    OxDbStub* block = nullptr;
    std::vector<OxDbStub*> references; // inserts of the block of this name, in order of creation
};

/// The names of one drawing.
class OXDB_API NamePool {
public:
    /// The index of the name, which is added when it is new.
    NameIndex Intern(std::wstring_view name);
    /// The name as it is spelled, and what has it. `index` is one that Intern gave.
    const std::wstring& Text(NameIndex index) const { return spellings_[index].text; }
    NamedThings& Things(NameIndex index) { return things_[spellings_[index].things]; }
    /// Null when no name of the drawing is spelled so in any case.
    NamedThings* Find(std::wstring_view name);

private:
    struct Spelling {
        std::wstring text;
        std::uint32_t things;
    };

    // Deques: the maps' keys point into the texts, which must not move.
    std::deque<Spelling> spellings_;
    std::deque<NamedThings> things_;
    std::unordered_map<std::wstring_view, NameIndex> exact_;
    std::unordered_map<std::wstring_view, std::uint32_t, FoldedHash, FoldedEqual> folded_;
};

} // namespace drawing
