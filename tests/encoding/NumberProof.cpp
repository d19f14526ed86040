// A long run of the comparison with printf: number_proof COUNT [SEED]. Not part of the test run; COUNT
// doubles are taken in turn from random bits, decimal-looking values, ties and random magnitudes.
#include "RandomDoubles.h"
#include "StyleConversion/encoding/GeneralNumber.h"
#include "StyleConversion/encoding/TrimmedNumber.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

double Next(RandomDoubles& doubles, std::uint64_t turn) {
    switch (turn % 4) {
    case 0:
        return doubles.Bits();
    case 1:
        return doubles.DecimalLooking();
    case 2:
        return doubles.Tie();
    default:
        return doubles.Scaled();
    }
}

// What printf wrote, cut at the leftmost zero among its last four characters.
std::size_t TrimmedLength(const char* text, std::size_t length) {
    std::size_t kept = length;
    for (std::size_t back = 1; back <= 4 && back <= length; ++back) {
        if (text[length - back] == '0') {
            kept = length - back;
        }
    }
    return kept;
}

template <class Text>
bool IsSame(const Text& wide, std::size_t wideLength, const char* narrow, std::size_t length) {
    if (wideLength != length) {
        return false;
    }
    for (std::size_t i = 0; i < length; ++i) {
        if (wide[i] != static_cast<wchar_t>(narrow[i])) {
            return false;
        }
    }
    return true;
}

bool IsPrintfs(double value, std::wstring& trimmed) {
    std::array<char, 512> expected{};
    std::array<wchar_t, encoding::kLongestGeneral> general{};
    auto length = static_cast<std::size_t>(std::snprintf(expected.data(), expected.size(), "%.15g", value));
    const wchar_t* const end = encoding::WriteGeneral(general.data(), value);
    if (!IsSame(general, static_cast<std::size_t>(end - general.data()), expected.data(), length)) {
        return false;
    }
    length = static_cast<std::size_t>(std::snprintf(expected.data(), expected.size(), "%.5f", value));
    trimmed = encoding::Double2TrimmedString(value);
    return IsSame(trimmed, trimmed.size(), expected.data(), TrimmedLength(expected.data(), length));
}

} // namespace

int main(int argc, char** argv) {
    const std::uint64_t count = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 1'000'000;
    RandomDoubles doubles(argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1);
    std::wstring trimmed;
    for (std::uint64_t turn = 0; turn < count; ++turn) {
        const double value = Next(doubles, turn);
        if (!IsPrintfs(value, trimmed)) {
            std::printf("%a is not written as printf writes it\n", value);
            return EXIT_FAILURE;
        }
    }
    std::printf("%llu doubles are written as printf writes them\n", static_cast<unsigned long long>(count));
    return EXIT_SUCCESS;
}
