// Whole jobs on bytes, as the tool runs them, and what holds of the result of each.
#pragma once

#include "conversions/Conversion.h"

#include <string>
#include <string_view>

namespace fuzzing {

/// Every name finds the same shape file; none where it is empty.
class OneShapeFile : public conversions::Front {
public:
    /// `bytes` must outlive the front.
    explicit OneShapeFile(std::string_view bytes = {}) : bytes_(bytes) {}

    conversions::FoundFile FindShapeFile(const std::wstring& name) override;

private:
    std::string_view bytes_;
};

/// The bytes, which must outlive it, in the encoding that the tool would choose; text that begins with
/// ";SJIS" is SHIFT_JIS.
conversions::Input InputOf(std::string_view bytes);

/// The symbols document of what was converted; empty where nothing was. Requires words for every diagnostic,
/// and an error for a refusal.
std::string DocumentOf(const conversions::Conversion& conversion);

} // namespace fuzzing
