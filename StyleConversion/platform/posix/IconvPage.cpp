// Conversion of whole texts by iconv, a character at a time.
#include "StyleConversion/platform/posix/IconvPage.h"

#include <cerrno>

namespace platform {
namespace {

// The longest character of any code page, and the longest text that one character becomes, in bytes.
constexpr std::size_t kLongestCharacter = 8;
constexpr std::size_t kLongestResult = 32;

} // namespace

// What the first character of a text became.
struct IconvPage::Conversion {
    Outcome outcome = Outcome::kInvalid;
    std::size_t used = 0; // bytes of the input
    std::size_t made = 0; // bytes of the result
    alignas(wchar_t) std::array<char, kLongestResult> result{};
};

IconvPage::Conversion IconvPage::ConvertFirst(iconv_t converter, const char* input, std::size_t size) {
    Conversion conversion;
    // iconv takes its input by a non-const pointer but does not write there.
    char* source = const_cast<char*>(input);
    char* target = conversion.result.data();
    std::size_t targetLeft = conversion.result.size();
    conversion.outcome = Outcome::kIncomplete;
    for (std::size_t length = 1; length <= size && length <= kLongestCharacter; ++length) {
        auto sourceLeft = static_cast<std::size_t>(input + length - source);
        if (iconv(converter, &source, &sourceLeft, &target, &targetLeft) != static_cast<std::size_t>(-1)) {
            // What the converter holds back (a shift state, a combining character) comes out now.
            iconv(converter, nullptr, nullptr, &target, &targetLeft);
            conversion.used = length;
            conversion.made = conversion.result.size() - targetLeft;
            conversion.outcome = conversion.made > 0 ? Outcome::kConverted : Outcome::kInvalid;
            return conversion;
        }
        if (errno != EINVAL) {
            conversion.outcome = Outcome::kInvalid;
            break;
        }
    }
    iconv(converter, nullptr, nullptr, nullptr, nullptr);
    return conversion;
}

IconvPage::Converter IconvPage::OpenConverter(const char* to, const char* from) {
    const iconv_t converter = iconv_open(to, from);
    // iconv_open reports failure by the pointer -1.
    return Converter(reinterpret_cast<std::intptr_t>(converter) == -1 ? nullptr : converter);
}

std::unique_ptr<IconvPage> IconvPage::Open(const std::string& name) {
    auto page = std::make_unique<IconvPage>();
    page->decoder_ = OpenConverter("WCHAR_T", name.c_str());
    page->encoder_ = OpenConverter(name.c_str(), "WCHAR_T");
    if (!page->decoder_ || !page->encoder_) {
        return nullptr;
    }
    for (std::size_t byte = 0; byte < page->bytes_.size(); ++byte) {
        const char input = static_cast<char>(byte);
        page->bytes_[byte] = ConvertFirst(page->decoder_.get(), &input, 1).outcome;
    }
    return page;
}

std::wstring IconvPage::Decode(std::string_view narrow) const {
    std::wstring wide;
    wide.reserve(narrow.size());
    for (std::size_t position = 0; position < narrow.size();) {
        const Conversion conversion =
            ConvertFirst(decoder_.get(), narrow.data() + position, narrow.size() - position);
        if (conversion.outcome == Outcome::kConverted) {
            wide.append(reinterpret_cast<const wchar_t*>(conversion.result.data()),
                        conversion.made / sizeof(wchar_t));
            position += conversion.used;
        } else {
            wide += static_cast<wchar_t>(static_cast<std::uint8_t>(narrow[position]));
            ++position;
        }
    }
    return wide;
}

std::string IconvPage::Encode(std::wstring_view wide) const {
    std::string narrow;
    narrow.reserve(wide.size());
    for (const wchar_t character : wide) {
        const Conversion conversion =
            ConvertFirst(encoder_.get(), reinterpret_cast<const char*>(&character), sizeof character);
        if (conversion.outcome == Outcome::kConverted) {
            narrow.append(conversion.result.data(), conversion.made);
        } else if (character >= 0x80 && character <= 0xff &&
                   MeaningOf(static_cast<char>(character)) != Outcome::kConverted) {
            // Decode kept such a byte as the character of its number.
            narrow += static_cast<char>(character);
        } else {
            narrow += '?';
        }
    }
    return narrow;
}

} // namespace platform
