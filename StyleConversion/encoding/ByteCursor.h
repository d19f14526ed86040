// The bytes of a file or program, handed out one after another and never past their end.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace encoding {

/// As with a stream, only an attempt to read past the last byte tells that there are no more.
class ByteCursor {
public:
    /// `bytes` must outlive the cursor and what it hands out.
    explicit ByteCursor(std::string_view bytes) : bytes_(bytes) {}

    /// The next byte; false, and `byte` as it was, at the end.
    bool Read(std::uint8_t& byte) {
        const std::string_view next = Take(1);
        if (next.empty()) {
            return false;
        }
        byte = static_cast<std::uint8_t>(next.front());
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

    /// The next `count` bytes, or those that are left where they are fewer.
    std::string_view Take(std::size_t count) {
        const std::string_view next = bytes_.substr(offset_, count);
        offset_ += next.size();
        return next;
    }

    /// How many bytes have been handed out.
    std::size_t Offset() const { return offset_; }

private:
    std::string_view bytes_;
    std::size_t offset_ = 0;
};

} // namespace encoding
