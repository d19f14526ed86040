#include "conversions/checking/CutNumber.h"

#include "conversions/reading/Shown.h"

namespace conversions {

std::string TextOf(const CutNumber& number) {
    constexpr double kMillionths = 1e6;
    return ": " + RoundedText(number.exact, kMillionths) + " is written " +
           RoundedText(number.written, kMillionths);
}

std::string PercentText(double share) {
    constexpr double kMostPercent = 1000.0;
    constexpr double kFewPercent = 10.0;
    const double percent = share * 100.0;
    if (!(percent <= kMostPercent)) {
        return "more than " + RoundedText(kMostPercent, 1.0) + " %";
    }
    return RoundedText(percent, percent < kFewPercent ? 10.0 : 1.0) + " %";
}

} // namespace conversions
