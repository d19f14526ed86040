// Sines, cosines and the like to the last digit: computed with more digits and rounded once, they come out as
// those of the systems whose own are exact to nearly half a digit. The linker puts these in the place of the
// library's.
#include <cmath>

extern "C" {

double __wrap_sin(double x) {
    return static_cast<double>(std::sin(static_cast<long double>(x)));
}

double __wrap_cos(double x) {
    return static_cast<double>(std::cos(static_cast<long double>(x)));
}

double __wrap_tan(double x) {
    return static_cast<double>(std::tan(static_cast<long double>(x)));
}

double __wrap_acos(double x) {
    return static_cast<double>(std::acos(static_cast<long double>(x)));
}

double __wrap_atan(double x) {
    return static_cast<double>(std::atan(static_cast<long double>(x)));
}

double __wrap_atan2(double y, double x) {
    return static_cast<double>(std::atan2(static_cast<long double>(y), static_cast<long double>(x)));
}

double __wrap_hypot(double x, double y) {
    return static_cast<double>(std::hypot(static_cast<long double>(x), static_cast<long double>(y)));
}
}
