// The code page that the process has chosen. UTF-8 is built in.
#include "StyleConversion/platform/CodePage.h"

#include "StyleConversion/platform/Characters.h"
#include "StyleConversion/platform/Utf8.h"
#include "StyleConversion/platform/posix/IconvPage.h"

#include <memory>
#include <utility>

namespace platform {
namespace {

// Null while UTF-8 is in force.
std::unique_ptr<IconvPage>& Current() {
    static std::unique_ptr<IconvPage> current;
    return current;
}

bool IsUtf8Name(const std::string& name) {
    std::string upper;
    for (const char c : name) {
        upper += AsciiUpper(c);
    }
    return upper == "UTF-8" || upper == "UTF8";
}

} // namespace

bool SetAnsiCodePage(const std::string& name) {
    if (IsUtf8Name(name)) {
        Current().reset();
        return true;
    }
    std::unique_ptr<IconvPage> page = IconvPage::Open(name);
    if (page == nullptr) {
        return false;
    }
    Current() = std::move(page);
    return true;
}

struct PageDecoder::Page {
    std::unique_ptr<IconvPage> other; // null: UTF-8
    bool isKnown = false;
};

PageDecoder::PageDecoder(const std::string& name) : page_(std::make_unique<Page>()) {
    page_->isKnown = IsUtf8Name(name);
    if (!page_->isKnown) {
        page_->other = IconvPage::Open(name);
        page_->isKnown = page_->other != nullptr;
    }
}

PageDecoder::~PageDecoder() = default;

bool PageDecoder::IsKnown() const {
    return page_->isKnown;
}

std::wstring PageDecoder::ToWide(std::string_view narrow) const {
    return page_->other != nullptr ? page_->other->Decode(narrow) : Utf8ToWide(narrow);
}

std::wstring AnsiToWide(std::string_view narrow) {
    return Current() ? Current()->Decode(narrow) : Utf8ToWide(narrow);
}

void AnsiToWide(std::string_view narrow, std::wstring& wide) {
    if (Current()) {
        wide = Current()->Decode(narrow);
    } else {
        Utf8ToWide(narrow, wide);
    }
}

void ThreadAnsiToWide(std::string_view narrow, std::wstring& wide) {
    AnsiToWide(narrow, wide);
}

std::string WideToAnsi(std::wstring_view wide) {
    return Current() ? Current()->Encode(wide) : WideToUtf8Bytes(wide);
}

std::size_t FindInMultiByte(std::string_view text, char sought) {
    const IconvPage* const page = Current().get();
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == sought) {
            return at;
        }
        if (page != nullptr && page->BeginsCharacter(text[at])) {
            ++at;
        }
    }
    return std::string_view::npos;
}

} // namespace platform
