// A stream of bytes that knows how many it has handed out.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>

namespace ShxUtility {

/// A thin layer over a stream, with the stream's own behaviour at the end of the file: only an attempt to
/// read past it sets the indicator.
class ShapeStream {
public:
    explicit ShapeStream(std::FILE* stream) : stream_(stream) {}

    /// The next byte, or EOF.
    int ReadByte() {
        const int byte = std::fgetc(stream_);
        if (byte != EOF) {
            ++offset_;
        }
        return byte;
    }

    /// Reads up to `count` bytes and returns how many there were.
    std::size_t Read(void* bytes, std::size_t count) {
        const std::size_t got = count == 0 ? 0 : std::fread(bytes, 1, count, stream_);
        offset_ += got;
        return got;
    }

    bool EndOfFileIndicator() const { return std::feof(stream_) != 0; }

    /// Bytes handed out so far.
    std::uint64_t Offset() const { return offset_; }

private:
    std::FILE* stream_;
    std::uint64_t offset_ = 0;
};

} // namespace ShxUtility
