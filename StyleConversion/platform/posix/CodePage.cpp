// The code page that the process has chosen, through the system's iconv. UTF-8 is built in.
#include "StyleConversion/platform/CodePage.h"

#include "StyleConversion/platform/Characters.h"
#include "StyleConversion/platform/Utf8.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <iconv.h>
#include <memory>
#include <type_traits>
#include <utility>

namespace platform {
namespace {

struct CloseConverter {
    void operator()(iconv_t converter) const { iconv_close(converter); }
};
using Converter = std::unique_ptr<std::remove_pointer_t<iconv_t>, CloseConverter>;

Converter OpenConverter(const char* to, const char* from) {
    const iconv_t converter = iconv_open(to, from);
    // iconv_open reports failure by the pointer -1.
    return Converter(reinterpret_cast<std::intptr_t>(converter) == -1 ? nullptr : converter);
}

// The longest character of any code page, and the longest text that one character becomes, in bytes.
constexpr std::size_t kLongestCharacter = 8;
constexpr std::size_t kLongestResult = 32;

enum class Outcome { kConverted, kIncomplete, kInvalid };

// What the first character of a text became.
struct Conversion {
    Outcome outcome = Outcome::kInvalid;
    std::size_t used = 0; // bytes of the input
    std::size_t made = 0; // bytes of the result
    alignas(wchar_t) std::array<char, kLongestResult> result{};
};

Conversion ConvertFirst(iconv_t converter, const char* input, std::size_t size) {
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

// A code page other than UTF-8.
struct CodePage {
    Converter decoder;
    Converter encoder;
    // What each byte means by itself: a character, the beginning of a longer one, or nothing.
    std::array<Outcome, 256> bytes{};
};

// Null while UTF-8 is in force.
std::unique_ptr<CodePage>& Current() {
    static std::unique_ptr<CodePage> current;
    return current;
}

bool IsUtf8Name(const std::string& name) {
    std::string upper;
    for (const char c : name) {
        upper += AsciiUpper(c);
    }
    return upper == "UTF-8" || upper == "UTF8";
}

std::wstring Decode(const CodePage& page, std::string_view narrow) {
    std::wstring wide;
    wide.reserve(narrow.size());
    for (std::size_t position = 0; position < narrow.size();) {
        const Conversion conversion =
            ConvertFirst(page.decoder.get(), narrow.data() + position, narrow.size() - position);
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

std::string Encode(const CodePage& page, std::wstring_view wide) {
    std::string narrow;
    narrow.reserve(wide.size());
    for (const wchar_t character : wide) {
        const Conversion conversion =
            ConvertFirst(page.encoder.get(), reinterpret_cast<const char*>(&character), sizeof character);
        if (conversion.outcome == Outcome::kConverted) {
            narrow.append(conversion.result.data(), conversion.made);
        } else if (character >= 0x80 && character <= 0xff &&
                   page.bytes[static_cast<std::size_t>(character)] != Outcome::kConverted) {
            // Decode kept such a byte as the character of its number.
            narrow += static_cast<char>(character);
        } else {
            narrow += '?';
        }
    }
    return narrow;
}

// Null when the system does not know the page.
std::unique_ptr<CodePage> OpenPage(const std::string& name) {
    auto page = std::make_unique<CodePage>();
    page->decoder = OpenConverter("WCHAR_T", name.c_str());
    page->encoder = OpenConverter(name.c_str(), "WCHAR_T");
    if (!page->decoder || !page->encoder) {
        return nullptr;
    }
    for (std::size_t byte = 0; byte < page->bytes.size(); ++byte) {
        const char input = static_cast<char>(byte);
        page->bytes[byte] = ConvertFirst(page->decoder.get(), &input, 1).outcome;
    }
    return page;
}

} // namespace

bool SetAnsiCodePage(const std::string& name) {
    if (IsUtf8Name(name)) {
        Current().reset();
        return true;
    }
    std::unique_ptr<CodePage> page = OpenPage(name);
    if (page == nullptr) {
        return false;
    }
    Current() = std::move(page);
    return true;
}

struct PageDecoder::Page {
    std::unique_ptr<CodePage> other; // null: UTF-8
    bool isKnown = false;
};

PageDecoder::PageDecoder(const std::string& name) : page_(std::make_unique<Page>()) {
    page_->isKnown = IsUtf8Name(name);
    if (!page_->isKnown) {
        page_->other = OpenPage(name);
        page_->isKnown = page_->other != nullptr;
    }
}

PageDecoder::~PageDecoder() = default;

bool PageDecoder::IsKnown() const {
    return page_->isKnown;
}

std::wstring PageDecoder::ToWide(std::string_view narrow) const {
    return page_->other != nullptr ? Decode(*page_->other, narrow) : Utf8ToWide(narrow);
}

std::wstring AnsiToWide(std::string_view narrow) {
    return Current() ? Decode(*Current(), narrow) : Utf8ToWide(narrow);
}

void AnsiToWide(std::string_view narrow, std::wstring& wide) {
    if (Current()) {
        wide = Decode(*Current(), narrow);
    } else {
        Utf8ToWide(narrow, wide);
    }
}

void ThreadAnsiToWide(std::string_view narrow, std::wstring& wide) {
    AnsiToWide(narrow, wide);
}

std::string WideToAnsi(std::wstring_view wide) {
    return Current() ? Encode(*Current(), wide) : WideToUtf8Bytes(wide);
}

std::size_t FindInMultiByte(std::string_view text, char sought) {
    const CodePage* const page = Current().get();
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == sought) {
            return at;
        }
        if (page != nullptr && page->bytes[static_cast<std::uint8_t>(text[at])] == Outcome::kIncomplete) {
            ++at;
        }
    }
    return std::string_view::npos;
}

} // namespace platform
