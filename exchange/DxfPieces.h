// The bytes of a DXF file, of which only those that are read just now are held.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace exchange {

/// Where the bytes of a file come from.
class ByteSource {
public:
    virtual ~ByteSource() = default;
    /// Writes the next bytes of the file to `bytes`, at most `most`, and returns how many; 0 at the end, and
    /// where reading fails.
    virtual std::size_t Read(char* bytes, std::size_t most) = 0;
    /// The next byte is the first one again.
    virtual void Rewind() = 0;

protected:
    ByteSource() = default;
    ByteSource(const ByteSource&) = default;
    ByteSource& operator=(const ByteSource&) = default;
};

/// The bytes from the next one on, as far as they are held.
class DxfPieces {
public:
    static constexpr std::size_t kPieceSize = 1 << 16;

    /// All of them are held, by the caller.
    explicit DxfPieces(std::string_view bytes) : rest_(bytes) {}
    /// They are read when they are asked for, so many at a time. `source` must outlive the pieces.
    explicit DxfPieces(ByteSource& source, std::size_t pieceSize = kPieceSize)
        : source_(&source), pieceSize_(pieceSize) {}

    /// Those that are held.
    std::string_view Rest() const { return rest_; }
    /// How many bytes stand before them.
    std::size_t Offset() const { return offset_; }
    /// Takes the first `count` of them away; they stay where they are until Release.
    void Skip(std::size_t count) {
        rest_.remove_prefix(count);
        offset_ += count;
    }
    /// Adds at least one to them. False at the end of the file. They may then stand elsewhere; views of where
    /// they stood hold until Release.
    bool Extend();
    /// Extends them to at least `count`; false where the file has fewer.
    bool Require(std::size_t count);
    /// No view of bytes is in use but of those that were taken away last, without an Extend since.
    void Release();

private:
    void Move();

    ByteSource* source_ = nullptr;
    std::size_t pieceSize_ = 0;
    std::string_view rest_;
    std::size_t offset_ = 0;
    std::vector<std::unique_ptr<char[]>> pieces_; // `rest_` lies in the last one
    std::size_t size_ = 0;                        // of the last one
};

} // namespace exchange
