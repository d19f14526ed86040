// The maths functions of the system that this program runs on, for a program that runs on another: for each
// line of a name and the bits of the arguments, in hexadecimal, a line with the bits of the result.
#include <bit>
#include <cmath>
#include <cstdint>
#include <iostream>
#include <string>

int main() {
    const auto read = [] {
        std::uint64_t bits = 0;
        std::cin >> std::hex >> bits;
        return std::bit_cast<double>(bits);
    };
    for (std::string name; std::cin >> name;) {
        const double x = read();
        double result = 0.0;
        if (name == "sin") {
            result = std::sin(x);
        } else if (name == "cos") {
            result = std::cos(x);
        } else if (name == "atan") {
            result = std::atan(x);
        } else if (name == "atan2") {
            result = std::atan2(x, read());
        } else {
            return 1;
        }
        std::cout << std::hex << std::bit_cast<std::uint64_t>(result) << std::endl;
    }
    return 0;
}
