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
    // Values are told of by what they stand in.
    std::vector<std::string> cause = subjects;
    cause.resize(code == Code::kMissingLayer ? 0 : code == Code::kInvalidGroupValue ? 1 : subjects.size());
    const auto [known, isNew] = kinds_.try_emplace(Kind(code, outcome, std::move(cause)), all_.size());
    if (isNew) {
        all_.push_back({severity, code, PlaceOf(place), std::move(subjects), outcome, 1});
    } else {
        ++all_[known->second].count;
    }
}

bool DxfNotes::AddInvalid(const DxfPlace& place, const DxfRecord& record, diagnostics::Severity severity,
                          diagnostics::Outcome outcome) {
    if (!record.invalid) {
        return false;
    }
    const DxfPair pair = *record.invalid;
    record.invalid.reset();
    // Binary values are no text.
    Add({pair.place, place.block}, severity, Code::kInvalidGroupValue,
        {diagnostics::ShownText(record.type), std::to_string(pair.code),
         pair.isBinary ? "another value" : ShownValue(pair.value)},
        outcome);
    return true;
}

bool DxfNotes::LoseInvalid(const DxfPlace& place, const DxfRecord& record) {
    return AddInvalid(place, record, diagnostics::Severity::kError, diagnostics::Outcome::kSkipped);
}

void DxfNotes::RepairInvalid(const DxfPlace& place, const DxfRecord& record) {
    AddInvalid(place, record, diagnostics::Severity::kWarning, diagnostics::Outcome::kRepaired);
}

} // namespace exchange
