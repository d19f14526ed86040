// A code page that the system's iconv knows by name, other than UTF-8.
#pragma once

#include <array>
#include <cstdint>
#include <iconv.h>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>

namespace platform {

class IconvPage {
public:
    /// Null when the system does not know the page.
    static std::unique_ptr<IconvPage> Open(const std::string& name);

    std::wstring Decode(std::string_view narrow) const;
    std::string Encode(std::wstring_view wide) const;
    /// Whether the byte is the first one of a longer character.
    bool BeginsCharacter(char byte) const { return MeaningOf(byte) == Outcome::kIncomplete; }

private:
    struct CloseConverter {
        void operator()(iconv_t converter) const { iconv_close(converter); }
    };
    using Converter = std::unique_ptr<std::remove_pointer_t<iconv_t>, CloseConverter>;
    enum class Outcome { kConverted, kIncomplete, kInvalid };
    struct Conversion;

    static Converter OpenConverter(const char* to, const char* from);
    static Conversion ConvertFirst(iconv_t converter, const char* input, std::size_t size);
    Outcome MeaningOf(char byte) const { return bytes_[static_cast<std::uint8_t>(byte)]; }

    Converter decoder_;
    Converter encoder_;
    // What each byte means by itself: a character, the beginning of a longer one, or nothing.
    std::array<Outcome, 256> bytes_{};
};

} // namespace platform
