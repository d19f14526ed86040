// What a reading of a DXF file has left out or read otherwise than it stands.
#pragma once

#include "diagnostics/Diagnostic.h"
#include "exchange/DxfRecords.h"

#include <cstddef>
#include <map>
#include <string>
#include <tuple>
#include <vector>

namespace exchange {

/// Where in a file: a line from 1, or in binary files a byte from 0, and the block as UTF-8, if any.
struct DxfPlace {
    std::size_t position = 0;
    std::string block;
};

/// One of each cause, with the place where it was met first and the count. Errors are what the drawing lost,
/// warnings and notes what was read as it is meant, or is not missed.
class DxfNotes {
public:
    /// The file is binary.
    void CountBytes() { placesAreBytes_ = true; }

    void Lose(const DxfPlace& place, diagnostics::Code code, std::vector<std::string> subjects) {
        Add(place, diagnostics::Severity::kError, code, std::move(subjects), diagnostics::Outcome::kSkipped);
    }
    void Skip(const DxfPlace& place, diagnostics::Code code, std::vector<std::string> subjects) {
        Add(place, diagnostics::Severity::kWarning, code, std::move(subjects),
            diagnostics::Outcome::kSkipped);
    }
    void Repair(const DxfPlace& place, diagnostics::Code code, std::vector<std::string> subjects) {
        Add(place, diagnostics::Severity::kWarning, code, std::move(subjects),
            diagnostics::Outcome::kRepaired);
    }
    void Add(const DxfPlace& place, diagnostics::Severity severity, diagnostics::Code code,
             std::vector<std::string> subjects, diagnostics::Outcome outcome);

    /// A value of the record that was asked for as what it is not, if there is one: what it belongs to is
    /// left out, or has another value. The record then knows of none. Returns whether there was one.
    bool LoseInvalid(const DxfPlace& place, const DxfRecord& record);
    void RepairInvalid(const DxfPlace& place, const DxfRecord& record);

    /// In the order of the file.
    const diagnostics::Diagnostics& All() const { return all_; }

    /// The place as diagnostics have it.
    diagnostics::Place PlaceOf(const DxfPlace& place) const;

private:
    bool AddInvalid(const DxfPlace& place, const DxfRecord& record, diagnostics::Severity severity,
                    diagnostics::Outcome outcome);

    diagnostics::Diagnostics all_;
    using Kind = std::tuple<diagnostics::Code, diagnostics::Outcome, std::vector<std::string>>;
    std::map<Kind, std::size_t> kinds_;
    bool placesAreBytes_ = false;
};

} // namespace exchange
