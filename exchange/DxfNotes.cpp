// What a reading of a DXF file has left out or read otherwise than it stands.
#include "exchange/DxfNotes.h"

#include "diagnostics/ShownText.h"

#include <string_view>

namespace exchange {

using diagnostics::Code;

diagnostics::Place DxfNotes::PlaceOf(const DxfPlace& place) const {
    diagnostics::Place shown;
    if (placesAreBytes_) {
        shown.byte = place.position;
    } else {
        shown.line = place.position;
    }
    if (!place.block.empty()) {
        shown.item = "block " + diagnostics::ShownText(std::string_view(place.block));
    }
    return shown;
}

void DxfNotes::Add(const DxfPlace& place, diagnostics::Severity severity, Code code,
                   std::vector<std::string> subjects, diagnostics::Outcome outcome) {
    // A file without a table of layers lacks all of them for one cause.
    const std::vector<std::string> cause =
        code == Code::kMissingLayer ? std::vector<std::string>() : subjects;
    const auto [known, isNew] = kinds_.try_emplace(std::pair(code, cause), all_.size());
    if (isNew) {
        all_.push_back({severity, code, PlaceOf(place), std::move(subjects), outcome, 1});
    } else {
        ++all_[known->second].count;
    }
}

} // namespace exchange
