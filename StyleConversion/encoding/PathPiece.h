// A piece of a path on its way to the path's end.
#pragma once

#include "StyleConversion/encoding/GeneralNumber.h"
#include "StyleConversion/encoding/TrimmedNumber.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace encoding {

/// Puts a piece together and appends it at once: that is faster than a string's growing by each part.
class PathPiece {
public:
    // Written out, since the compiler's own would fill the long buffer with zeros first.
    // cppcheck-suppress uninitMemberVar
    PathPiece() : end_(buffer_) {}

    /// At most kWords characters in all. The length of a literal is known without looking for its end.
    template <std::size_t Size>
    PathPiece& Words(const wchar_t (&literal)[Size]) {
        return Words(std::wstring_view(literal, Size - 1));
    }
    PathPiece& Words(std::wstring_view words) {
        for (const wchar_t c : words) { // so few that a call to copy them would take longer
            *end_++ = c;
        }
        return *this;
    }
    /// At most kNumbers in all, as Double2TrimmedString writes them.
    PathPiece& Number(double value) {
        end_ = WriteTrimmed(end_, value);
        return *this;
    }
    /// The same, as WriteGeneral writes them.
    PathPiece& General(double value) {
        end_ = WriteGeneral(end_, value);
        return *this;
    }
    PathPiece& Pair(double x, double y) { return Number(x).Words(L",").Number(y); }

    void AppendTo(std::wstring& path) const {
        path.append(buffer_, static_cast<std::size_t>(end_ - buffer_));
    }

private:
    // An arc with its radii, rotation, flags and end.
    static constexpr std::size_t kNumbers = 5;
    static constexpr std::size_t kWords = 16;

    wchar_t buffer_[kNumbers * kLongestTrimmed + kWords];
    wchar_t* end_;
};

} // namespace encoding
