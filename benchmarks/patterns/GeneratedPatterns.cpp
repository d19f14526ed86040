// Decimal texts with as many digits as drawing programs write.
#include "GeneratedPatterns.h"

#include <random>

namespace {

class Generator {
public:
    void AppendPattern(std::string& text, std::size_t number) {
        text += "*PATTERN-" + std::to_string(number) + ",Generated pattern " + std::to_string(number) + "\n";
        // Continuous lines.
        text += "0, " + Decimal(4) + "," + Decimal(4) + ", 0,1." + Digits(4) + "\n";
        // Joints that two lines to a tile repeat.
        text += "90, " + Decimal(4) + "," + Decimal(4) + ", 1,1." + Digits(2) + ", 1,-1\n";
        // Two directions of blocks laid in herringbone, in one rotated tile.
        text += "45, " + Decimal(6) + "," + Decimal(6) + ", -1,1, 3,-1\n";
        text += "135, " + Decimal(6) + "," + Decimal(6) + ", 1,1, 3,-1\n";
        // Dashes whose shift is any share of their cycle: both searches run to their ends.
        text += Angle() + ", " + Decimal(6) + "," + Decimal(6) + ", " + Decimal(6) + ",0." + Digits(6) +
                ", 1." + Digits(4) + ",-0." + Digits(4) + "\n";
        // Dashes and dots, half of them at right angles.
        text += (random_() % 2 == 0 ? "0" : Angle()) + ", 0,0, 2,1, 2,-0.5,0,-0.5,0,-1\n";
    }

private:
    std::string Digits(std::size_t count) {
        std::string digits;
        for (std::size_t i = 0; i < count; ++i) {
            digits += static_cast<char>('0' + random_() % 10);
        }
        digits.back() = static_cast<char>('1' + random_() % 9);
        return digits;
    }

    std::string Decimal(std::size_t decimals) {
        return std::to_string(random_() % 8) + "." + Digits(decimals);
    }

    std::string Angle() { return std::to_string(1 + random_() % 88) + "." + Digits(3); }

    std::mt19937 random_{7};
};

} // namespace

std::string GeneratePatterns(std::size_t patterns) {
    Generator generator;
    std::string text = "; generated for measuring\n";
    for (std::size_t i = 0; i < patterns; ++i) {
        generator.AppendPattern(text, i);
    }
    return text;
}
