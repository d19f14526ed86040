#include "documents/JsonText.h"

#include "StyleConversion/platform/Utf8.h"

#include <algorithm>
#include <cstdint>
#include <nlohmann/json.hpp>

namespace documents {
namespace {

constexpr std::size_t kBlanksPerLevel = 2;

// What stands in a text as it is: ASCII without control characters, quotes and backslashes. DEL is none of
// JSON's control characters.
bool IsPlain(wchar_t c) {
    return c >= L' ' && c <= L'\x7f' && c != L'"' && c != L'\\';
}

bool IsAscii(wchar_t c) {
    return static_cast<std::uint32_t>(c) <= 0x7f;
}

constexpr std::size_t kPiece = 32;

// IsPlain of so many characters, without branches between them: the highest bit of a sum stands for below 0.
bool IsPlainPiece(const wchar_t* characters) {
    std::uint32_t others = 0;
    for (std::size_t i = 0; i < kPiece; ++i) {
        const auto c = static_cast<std::uint32_t>(characters[i]);
        others |= c | (c - 0x20U) | (0x7fU - c) | ((c ^ 0x22U) - 1U) | ((c ^ 0x5cU) - 1U);
    }
    return others < 0x80000000U;
}

// Appends the plain characters that a text begins with, and returns where they end. Narrows in pieces, since
// a string that is made longer in one step is filled with zeros first.
const wchar_t* AppendPlain(std::string& text, const wchar_t* first, const wchar_t* last) {
    char piece[kPiece];
    for (; static_cast<std::size_t>(last - first) >= kPiece && IsPlainPiece(first); first += kPiece) {
        for (std::size_t i = 0; i < kPiece; ++i) {
            piece[i] = static_cast<char>(first[i]);
        }
        text.append(piece, kPiece);
    }
    std::size_t length = 0; // below that of a piece, or all of it would be plain
    while (first != last && IsPlain(*first)) {
        piece[length++] = static_cast<char>(*first++);
    }
    text.append(piece, length);
    return first;
}

void AppendEscaped(std::string& text, char c) {
    constexpr char kDigits[] = "0123456789abcdef";
    constexpr std::string_view kShort = "\"\\\b\f\n\r\t";
    constexpr std::string_view kLetters = "\"\\bfnrt";
    text += '\\';
    if (const std::size_t place = kShort.find(c); place != std::string_view::npos) {
        text += kLetters[place];
        return;
    }
    text += "u00";
    text += kDigits[(static_cast<unsigned char>(c) >> 4U) & 0xfU];
    text += kDigits[static_cast<unsigned char>(c) & 0xfU];
}

} // namespace

void JsonText::Key(std::string_view key) {
    BeginLine();
    isItem_ = false;
    text_ += '"';
    text_ += key;
    text_ += "\": ";
}

void JsonText::Text(std::wstring_view value) {
    BeginValue();
    text_ += '"';
    const wchar_t* const end = value.data() + value.size();
    for (const wchar_t* c = value.data(); c != end;) {
        if (IsPlain(*c)) {
            c = AppendPlain(text_, c, end);
        } else if (IsAscii(*c)) {
            AppendEscaped(text_, static_cast<char>(*c));
            ++c;
        } else {
            // No pair of surrogates is torn: neither half is ASCII.
            const wchar_t* const stop = std::find_if(c, end, IsAscii);
            platform::AppendValidUtf8(text_, std::wstring_view(c, static_cast<std::size_t>(stop - c)));
            c = stop;
        }
    }
    text_ += '"';
}

void JsonText::PlainText(std::string_view value) {
    BeginValue();
    text_ += '"';
    text_ += value;
    text_ += '"';
}

void JsonText::Integer(std::int64_t value) {
    BeginValue();
    text_ += std::to_string(value);
}

void JsonText::Boolean(bool value) {
    BeginValue();
    text_ += value ? "true" : "false";
}

void JsonText::Number(double value) {
    BeginValue();
    text_ += nlohmann::json(value).dump();
}

void JsonText::Begin(char bracket) {
    BeginValue();
    text_ += bracket;
    ++level_;
    isEmpty_ = true;
    isItem_ = bracket == '[';
}

void JsonText::End(char bracket) {
    --level_;
    if (!isEmpty_ && !staysOnLine_) {
        text_ += '\n';
        text_.append(level_ * kBlanksPerLevel, ' ');
    }
    text_ += bracket;
    isEmpty_ = false;
    // Behind a value inside a list come items, behind one inside an object a key comes, which says otherwise.
    isItem_ = true;
}

void JsonText::BeginValue() {
    if (isItem_) {
        BeginLine();
    }
    isItem_ = true;
}

void JsonText::BeginLine() {
    if (!isEmpty_) {
        text_ += staysOnLine_ ? ", " : ",";
    }
    isEmpty_ = false;
    if (staysOnLine_) {
        return;
    }
    text_ += '\n';
    text_.append(level_ * kBlanksPerLevel, ' ');
}

} // namespace documents
