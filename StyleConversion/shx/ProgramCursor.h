// The bytes of a shape program, handed out one by one and never past their end.
#pragma once

#include <cstdint>

namespace ShxUtility {

class ProgramCursor {
public:
    ProgramCursor(const std::uint8_t* bytes, std::uint16_t length)
        : next_(bytes), end_(bytes == nullptr ? nullptr : bytes + length) {}

    bool AtEnd() const { return next_ == end_; }

    /// The next byte; false at the end.
    bool Read(std::uint8_t& byte) {
        if (AtEnd()) {
            return false;
        }
        byte = *next_++;
        return true;
    }

    /// The same byte with its sign.
    bool Read(std::int8_t& byte) {
        std::uint8_t bits = 0;
        if (!Read(bits)) {
            return false;
        }
        byte = static_cast<std::int8_t>(bits);
        return true;
    }

    /// A displacement: two bytes with their signs.
    bool ReadPair(std::int8_t& dx, std::int8_t& dy) { return Read(dx) && Read(dy); }

private:
    const std::uint8_t* next_;
    const std::uint8_t* end_;
};

} // namespace ShxUtility
