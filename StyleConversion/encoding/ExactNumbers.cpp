#include "StyleConversion/encoding/ExactNumbers.h"

#include <algorithm>
#include <charconv>

namespace encoding {
namespace {

thread_local bool areNumbersExact = false;

} // namespace

wchar_t* WriteShortest(wchar_t* target, double value) {
    char buffer[kLongestShortest];
    const double withoutSignOfZero = value == 0.0 ? 0.0 : value;
    const char* const end = std::to_chars(buffer, buffer + kLongestShortest, withoutSignOfZero).ptr;
    return std::copy(static_cast<const char*>(buffer), end, target);
}

ExactNumbersInUse::ExactNumbersInUse() : before_(areNumbersExact) {
    areNumbersExact = true;
}

ExactNumbersInUse::~ExactNumbersInUse() {
    areNumbersExact = before_;
}

bool AreNumbersExact() {
    return areNumbersExact;
}

} // namespace encoding
