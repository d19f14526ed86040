// The code page that the thread or the process has chosen. UTF-8 is built in.
#include "StyleConversion/platform/CodePage.h"

#include "StyleConversion/platform/Characters.h"
#include "StyleConversion/platform/Utf8.h"
#include "StyleConversion/platform/posix/IconvPage.h"

#include <memory>
#include <optional>
#include <utility>

namespace platform {

struct PageChoice {
    std::unique_ptr<IconvPage> page; // null: UTF-8
};

namespace {

thread_local const PageChoice* ofThread = nullptr; // null where the thread goes by the process

// UTF-8 until another one is chosen.
PageChoice& OfProcess() {
    static PageChoice choice;
    return choice;
}

// Null while UTF-8 is in force.
const IconvPage* Current() {
    return (ofThread != nullptr ? *ofThread : OfProcess()).page.get();
}

bool IsUtf8Name(const std::string& name) {
    std::string upper;
    for (const char c : name) {
        upper += AsciiUpper(c);
    }
    return upper == "UTF-8" || upper == "UTF8";
}

// Nothing when the system does not know the page.
std::optional<PageChoice> Choose(const std::string& name) {
    PageChoice choice;
    if (!IsUtf8Name(name)) {
        choice.page = IconvPage::Open(name);
        if (choice.page == nullptr) {
            return std::nullopt;
        }
    }
    return choice;
}

} // namespace

bool SetAnsiCodePage(const std::string& name) {
    std::optional<PageChoice> choice = Choose(name);
    if (choice) {
        OfProcess() = std::move(*choice);
    }
    return choice.has_value();
}

ThreadCodePage::ThreadCodePage(const std::string& name) : before_(ofThread) {
    if (std::optional<PageChoice> choice = Choose(name)) {
        choice_ = std::make_unique<PageChoice>(std::move(*choice));
        ofThread = choice_.get();
    }
}

ThreadCodePage::~ThreadCodePage() {
    ofThread = before_;
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
    const IconvPage* const page = Current();
    return page != nullptr ? page->Decode(narrow) : Utf8ToWide(narrow);
}

void AnsiToWide(std::string_view narrow, std::wstring& wide) {
    if (const IconvPage* const page = Current(); page != nullptr) {
        wide = page->Decode(narrow);
    } else {
        Utf8ToWide(narrow, wide);
    }
}

void ThreadAnsiToWide(std::string_view narrow, std::wstring& wide) {
    AnsiToWide(narrow, wide);
}

std::string WideToAnsi(std::wstring_view wide) {
    const IconvPage* const page = Current();
    return page != nullptr ? page->Encode(wide) : WideToUtf8Bytes(wide);
}

std::size_t FindInMultiByte(std::string_view text, char sought) {
    const IconvPage* const page = Current();
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
