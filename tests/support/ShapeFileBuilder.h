// Puts shape files together from their parts, well-formed or broken at a chosen place.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace test_support {

using Bytes = std::vector<std::uint8_t>;

/// Parts come in the order of the calls. What is not set otherwise is well-formed: a header of version 1.0,
/// an index with true lengths, a trailer.
class ShapeFileBuilder {
public:
    /// A "shapes " file: the numbers' range, an index, the entries, a trailer.
    static ShapeFileBuilder Shapes() { return ShapeFileBuilder("shapes "); }
    /// A "unifont " file: a count, and the entries, each behind its number and length.
    static ShapeFileBuilder Unifont() { return ShapeFileBuilder("unifont "); }
    /// A header of this kind and a count; big fonts' own layout is nobody's business here.
    static ShapeFileBuilder Bigfont() { return ShapeFileBuilder("bigfont "); }

    ShapeFileBuilder& Shape(std::uint16_t number, const std::string& name, Bytes program);
    /// An entry of number 0.
    ShapeFileBuilder& FontInfo(const std::string& name, Bytes bytes) {
        return Shape(0, name, std::move(bytes));
    }

    ShapeFileBuilder& Magic(std::string bytes);
    /// The word with its space.
    ShapeFileBuilder& KindWord(std::string bytes);
    /// The text with the 0x1A at its end.
    ShapeFileBuilder& Version(std::string bytes);
    /// The count that the file claims to have.
    ShapeFileBuilder& Count(std::uint16_t count);
    /// The length that the file claims for the last entry, which covers name, terminator and program.
    ShapeFileBuilder& LastLength(std::uint16_t length);
    /// The name of the last entry has no terminator.
    ShapeFileBuilder& LastNameOpen();
    /// Of a "shapes " file.
    ShapeFileBuilder& Trailer(std::string bytes);
    /// Bytes behind everything else.
    ShapeFileBuilder& Append(const std::string& bytes);

    /// The file, or its first `size` bytes.
    std::string Text() const;
    std::string TextCutTo(std::size_t size) const { return Text().substr(0, size); }

    /// Byte offsets in the file.
    std::size_t CountOffset() const;
    std::size_t IndexOffset() const;
    /// Of the name of entry `position`, or, in a "unifont " file, of the number before it.
    std::size_t EntryOffset(std::size_t position) const;
    /// Of the first byte of the program of entry `position`.
    std::size_t ProgramOffset(std::size_t position) const;
    std::size_t TrailerOffset() const { return EntryOffset(entries_.size()); }

private:
    struct Entry {
        std::uint16_t number = 0;
        std::string name;
        Bytes program;
        bool nameOpen = false;
        std::optional<std::uint16_t> length;
    };

    explicit ShapeFileBuilder(std::string kindWord) : kindWord_(std::move(kindWord)) {}

    bool HasIndex() const { return kindWord_ == "shapes "; }
    std::string HeaderText() const { return magic_ + kindWord_ + version_; }
    std::string IndexText() const;
    std::string HeadText(const Entry& entry) const;
    static std::string NameText(const Entry& entry);

    std::string magic_ = "Vorlanx-86 ";
    std::string kindWord_;
    std::string version_ = "1.0\r\n\x1a";
    std::vector<Entry> entries_;
    std::optional<std::uint16_t> count_;
    std::string trailer_ = "EOF";
    std::string behind_;
};

} // namespace test_support
