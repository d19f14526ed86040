#include "fuzz/Xml.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace fuzzing {
namespace {

bool IsXmlCharacter(std::uint32_t code) {
    return code == '\t' || code == '\n' || code == '\r' || (code >= 0x20 && code < 0xd800) ||
           (code >= 0xe000 && code < 0xfffe) || (code >= 0x10000 && code < 0x110000);
}

bool IsSpace(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

bool IsNameCharacter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
           c == '_' || c == ':' || c == '.';
}

// The characters of UTF-8 text that is not longer than it must be.
bool AreXmlCharacters(std::string_view utf8) {
    constexpr std::uint32_t kLeast[] = {0, 0x80, 0x800, 0x10000};
    for (std::size_t i = 0; i < utf8.size();) {
        const auto first = static_cast<unsigned char>(utf8[i++]);
        const std::size_t more = first < 0x80             ? 0
                                 : (first & 0xe0) == 0xc0 ? 1
                                 : (first & 0xf0) == 0xe0 ? 2
                                 : (first & 0xf8) == 0xf0 ? 3
                                                          : 4;
        if (more == 4 || utf8.size() - i < more) {
            return false;
        }
        std::uint32_t code = more == 0 ? first : first & (0x3fU >> more);
        for (std::size_t k = 0; k < more; ++k) {
            const auto next = static_cast<unsigned char>(utf8[i++]);
            if ((next & 0xc0) != 0x80) {
                return false;
            }
            code = code << 6 | (next & 0x3fU);
        }
        if (code < kLeast[more] || !IsXmlCharacter(code)) {
            return false;
        }
    }
    return true;
}

// What stands between "&" and ";".
bool IsReference(std::string_view name) {
    if (!name.starts_with('#')) {
        return name == "amp" || name == "lt" || name == "gt" || name == "quot" || name == "apos";
    }
    const bool isHex = name.starts_with("#x");
    name.remove_prefix(isHex ? 2 : 1);
    std::uint32_t code = 0;
    for (const char c : name) {
        const int digit = c >= '0' && c <= '9'            ? c - '0'
                          : isHex && c >= 'a' && c <= 'f' ? c - 'a' + 10
                          : isHex && c >= 'A' && c <= 'F' ? c - 'A' + 10
                                                          : -1;
        if (digit < 0 || code > 0x110000) {
            return false;
        }
        code = code * (isHex ? 16 : 10) + static_cast<std::uint32_t>(digit);
    }
    return !name.empty() && IsXmlCharacter(code);
}

bool AreReferences(std::string_view text) {
    for (std::size_t at = text.find('&'); at != std::string_view::npos; at = text.find('&', at + 1)) {
        const std::size_t end = text.find(';', at);
        if (end == std::string_view::npos || !IsReference(text.substr(at + 1, end - at - 1))) {
            return false;
        }
    }
    return true;
}

class Reader {
public:
    explicit Reader(std::string_view text) : text_(text) {}

    bool ReadDocument() {
        SkipSpace();
        if (text_.starts_with("<?xml") && !Skip("?>")) {
            return false;
        }
        SkipSpace();
        if (text_.starts_with("<!DOCTYPE") && !Skip(">")) {
            return false;
        }
        SkipSpace();
        if (!ReadTag() || !ReadContents()) {
            return false;
        }
        SkipSpace();
        return text_.empty();
    }

private:
    void SkipSpace() {
        while (!text_.empty() && IsSpace(text_.front())) {
            text_.remove_prefix(1);
        }
    }

    bool Skip(std::string_view end) {
        const std::size_t found = text_.find(end);
        text_.remove_prefix(found == std::string_view::npos ? 0 : found + end.size());
        return found != std::string_view::npos;
    }

    std::string_view ReadName() {
        const auto size = static_cast<std::size_t>(
            std::find_if_not(text_.begin(), text_.end(), IsNameCharacter) - text_.begin());
        const std::string_view name = text_.substr(0, size);
        text_.remove_prefix(size);
        return name;
    }

    // Until the element that was opened first is closed.
    bool ReadContents() {
        while (!open_.empty()) {
            const std::size_t end = text_.find('<');
            if (end == std::string_view::npos || !AreReferences(text_.substr(0, end)) ||
                text_.substr(0, end).find("]]>") != std::string_view::npos) {
                return false;
            }
            text_.remove_prefix(end);
            if (!ReadTag()) {
                return false;
            }
        }
        return true;
    }

    bool ReadTag() {
        if (!text_.starts_with('<')) {
            return false;
        }
        text_.remove_prefix(1);
        const bool closes = text_.starts_with('/');
        text_.remove_prefix(closes ? 1 : 0);
        const std::string_view name = ReadName();
        if (name.empty()) {
            return false;
        }
        if (closes) {
            if (open_.empty() || open_.back() != name || !text_.starts_with('>')) {
                return false;
            }
            open_.pop_back();
            text_.remove_prefix(1);
            return true;
        }
        open_.push_back(name);
        return ReadAttributes();
    }

    bool ReadAttributes() {
        std::set<std::string_view> names;
        while (true) {
            const bool isApart = !text_.empty() && IsSpace(text_.front());
            SkipSpace();
            if (text_.starts_with("/>")) {
                open_.pop_back();
                text_.remove_prefix(2);
                return true;
            }
            if (text_.starts_with('>')) {
                text_.remove_prefix(1);
                return true;
            }
            const std::string_view name = ReadName();
            if (!isApart || name.empty() || !names.insert(name).second || !ReadValue()) {
                return false;
            }
        }
    }

    bool ReadValue() {
        if (text_.size() < 2 || text_[0] != '=' || (text_[1] != '"' && text_[1] != '\'')) {
            return false;
        }
        const char quote = text_[1];
        text_.remove_prefix(2);
        const std::size_t end = text_.find(quote);
        const std::string_view value = text_.substr(0, end);
        if (end == std::string_view::npos || value.find('<') != std::string_view::npos ||
            !AreReferences(value)) {
            return false;
        }
        text_.remove_prefix(end + 1);
        return true;
    }

    std::string_view text_;
    std::vector<std::string_view> open_;
};

} // namespace

bool IsXml(std::string_view utf8) {
    return AreXmlCharacters(utf8) && Reader(utf8).ReadDocument();
}

} // namespace fuzzing
