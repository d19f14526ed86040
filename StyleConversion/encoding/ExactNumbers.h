// Numbers of which nothing is cut, for symbols that draw what a definition says.
#pragma once

#include <cstddef>

namespace encoding {

/// The longest text that WriteShortest makes: "-2.2250738585072014e-308".
inline constexpr std::size_t kLongestShortest = 24;

/// Writes the shortest text that reads back as the same double, with an exponent where that is shorter,
/// without a terminator. Zero of either sign is "0"; infinities and NaN are "inf", "-inf", "nan" and "-nan".
/// No locale changes the text. `target` has room for kLongestShortest characters. Returns the end of the
/// text.
wchar_t* WriteShortest(wchar_t* target, double value);

/// As long as it lives, its thread writes numbers by WriteShortest wherever it would trim them
/// (WriteTrimmed).
class ExactNumbersInUse {
public:
    ExactNumbersInUse();
    ~ExactNumbersInUse();
    ExactNumbersInUse(const ExactNumbersInUse&) = delete;
    ExactNumbersInUse& operator=(const ExactNumbersInUse&) = delete;

private:
    bool before_;
};

/// Whether one is alive on this thread.
bool AreNumbersExact();

} // namespace encoding
