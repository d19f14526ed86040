// What a reading of a DXF file has left out or read otherwise than it stands.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace exchange {

/// One thing to say of a file, with the place where it was met first.
struct DxfNote {
    std::size_t place = 0;   ///< line from 1, or byte from 0
    std::string what;        ///< "TEXT: the extrusion direction is zero"
    std::string consequence; ///< "read as upright"
    std::string block;       ///< as UTF-8; empty outside blocks
    std::size_t count = 1;   ///< how often, in this block
};

class DxfNotes {
public:
    /// In the order of the file; the same text in the same block only counts.
    void Add(std::size_t place, std::string_view what, std::string_view consequence,
             const std::string& block) {
        const auto [known, isNew] = kinds_.try_emplace(std::pair(block, std::string(what)), notes_.size());
        if (isNew) {
            notes_.push_back({place, std::string(what), std::string(consequence), block});
        } else {
            ++notes_[known->second].count;
        }
    }
    const std::vector<DxfNote>& All() const { return notes_; }

    /// Places are bytes, not lines.
    bool placesAreBytes = false;

private:
    std::vector<DxfNote> notes_;
    std::map<std::pair<std::string, std::string>, std::size_t> kinds_;
};

} // namespace exchange
