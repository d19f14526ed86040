#include "StyleConversion/block/ParagraphText.h"

#include "StyleConversion/encoding/ControlCodes.h"

#include <cstddef>

namespace block {
namespace {

constexpr wchar_t kUnbreakableBlank = 0xa0;

// Codes whose value goes on to a semicolon.
constexpr std::wstring_view kCodesWithValue = L"ACcFfHpQTW";

class Reader {
public:
    explicit Reader(std::wstring_view contents) : rest_(contents) {}

    std::vector<std::wstring> Read() {
        while (!rest_.empty()) {
            ReadOne();
        }
        std::vector<std::wstring> lines;
        for (const std::wstring& line : lines_) {
            lines.push_back(encoding::DecodeControlCodes(line, true).characters);
        }
        return lines;
    }

private:
    void ReadOne() {
        const wchar_t c = Take();
        if (c == L'\n') {
            lines_.emplace_back();
        } else if (c == L'\\' && !rest_.empty()) {
            ReadCode();
        } else if (c == L'^' && !rest_.empty()) {
            ReadCaret();
        } else if (c != L'{' && c != L'}' && c != L'\r') {
            lines_.back() += c;
        }
    }

    void ReadCode() {
        if (encoding::StartsWithUnicodeCode(L"\\" + std::wstring(rest_.substr(0, 6)))) {
            lines_.back() += L'\\'; // for the control codes
            return;
        }
        const wchar_t code = Take();
        if (code == L'P' || code == L'N') {
            lines_.emplace_back();
        } else if (code == L'~') {
            lines_.back() += kUnbreakableBlank;
        } else if (code == L'S') {
            AddStack(TakeValue());
        } else if (code == L'\\' || code == L'{' || code == L'}') {
            lines_.back() += code;
        } else if (kCodesWithValue.find(code) != std::wstring_view::npos) {
            TakeValue();
        }
    }

    // "^I" is a tab, "^J" and "^M" end a line; "^ " is the caret.
    void ReadCaret() {
        const wchar_t code = rest_.front();
        if (code == L'I' || code == L' ') {
            lines_.back() += code == L'I' ? L'\t' : L'^';
            Take();
        } else if (code == L'J') {
            lines_.emplace_back();
            Take();
        } else if (code == L'M') {
            Take();
        } else {
            lines_.back() += L'^';
        }
    }

    // A fraction or a tolerance: the upper part, a slash, the lower one.
    void AddStack(std::wstring_view stack) {
        for (std::size_t i = 0; i < stack.size(); ++i) {
            if (stack[i] == L'\\' && i + 1 < stack.size()) {
                lines_.back() += stack[++i];
            } else {
                lines_.back() += stack[i] == L'#' || stack[i] == L'^' ? L'/' : stack[i];
            }
        }
    }

    wchar_t Take() {
        const wchar_t c = rest_.front();
        rest_.remove_prefix(1);
        return c;
    }

    // Up to the semicolon, which goes with it. Without one the code has no value, and what follows is text.
    std::wstring_view TakeValue() {
        const std::size_t end = rest_.find(L';');
        if (end == std::wstring_view::npos) {
            return {};
        }
        const std::wstring_view value = rest_.substr(0, end);
        rest_.remove_prefix(end + 1);
        return value;
    }

    std::wstring_view rest_;
    std::vector<std::wstring> lines_{1};
};

} // namespace

std::vector<std::wstring> LinesOf(std::wstring_view contents) {
    return Reader(contents).Read();
}

} // namespace block
