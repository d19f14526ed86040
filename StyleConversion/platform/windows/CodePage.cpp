// The code page that the thread or the process has chosen, or the system's ANSI code page, through the
// system's own conversion.
#include "StyleConversion/platform/CodePage.h"

#include "StyleConversion/platform/Characters.h"
#include "StyleConversion/platform/Utf8.h"

// Before the system's other headers, which use its types.
#include <windows.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <mbctype.h>
#include <mbstring.h>
#include <optional>

namespace platform {

struct PageChoice {
    unsigned page = CP_ACP;
    bool hasPairs = false; // characters of two bytes
};

namespace {

thread_local const PageChoice* ofThread = nullptr; // null where the thread goes by the process

unsigned& OfProcess() {
    static unsigned page = CP_ACP;
    return page;
}

unsigned Current() {
    return ofThread != nullptr ? ofThread->page : OfProcess();
}

bool HasPairs(unsigned page) {
    constexpr unsigned kPair = 2;
    CPINFO information{};
    return GetCPInfo(page, &information) != FALSE && information.MaxCharSize == kPair;
}

// Names that are no number behind a word.
struct NamedPage {
    std::string_view name;
    unsigned page;
};
constexpr NamedPage kNamedPages[] = {
    {"UTF-8", CP_UTF8}, {"UTF8", CP_UTF8}, {"SHIFT_JIS", 932},  {"SHIFT-JIS", 932},
    {"SJIS", 932},      {"GBK", 936},      {"GB2312", 936},     {"BIG5", 950},
    {"GB18030", 54936}, {"EUC-JP", 20932}, {"EUC-KR", 949},     {"KOI8-R", 20866},
    {"KOI8-U", 21866},  {"ASCII", 20127},  {"US-ASCII", 20127}, {"MACINTOSH", 10000},
};

std::optional<unsigned> NumberBehind(std::string_view word, std::string_view name) {
    constexpr std::size_t kMostDigits = 5;
    if (name.substr(0, word.size()) != word) {
        return std::nullopt;
    }
    const std::string_view digits = name.substr(word.size());
    if (digits.empty() || digits.size() > kMostDigits ||
        digits.find_first_not_of("0123456789") != std::string_view::npos) {
        return std::nullopt;
    }
    unsigned number = 0;
    for (const char digit : digits) {
        number = number * 10 + static_cast<unsigned>(digit - '0');
    }
    return number;
}

std::optional<unsigned> PageOf(const std::string& name) {
    std::string upper;
    for (const char c : name) {
        upper += AsciiUpper(c);
    }
    for (const NamedPage& named : kNamedPages) {
        if (upper == named.name) {
            return named.page;
        }
    }
    // The system numbers the pages of ISO 8859 from here.
    constexpr unsigned kIso8859 = 28590;
    if (const std::optional<unsigned> part = NumberBehind("ISO-8859-", upper)) {
        return kIso8859 + *part;
    }
    for (const std::string_view word : {"WINDOWS-", "CP", "IBM", ""}) {
        if (const std::optional<unsigned> page = NumberBehind(word, upper)) {
            return page;
        }
    }
    return std::nullopt;
}

void ToWide(unsigned page, std::string_view narrow, std::wstring& wide) {
    if (page == CP_UTF8) {
        Utf8ToWide(narrow, wide);
        return;
    }
    wide.clear();
    if (narrow.empty() || narrow.size() > INT_MAX) {
        return;
    }
    const int size = static_cast<int>(narrow.size());
    wide.resize(static_cast<std::size_t>(MultiByteToWideChar(page, 0, narrow.data(), size, nullptr, 0)));
    MultiByteToWideChar(page, 0, narrow.data(), size, wide.data(), static_cast<int>(wide.size()));
}

// Nothing when the system does not know the page.
std::optional<unsigned> KnownPage(const std::string& name) {
    const std::optional<unsigned> page = PageOf(name);
    return page && *page != CP_ACP && IsValidCodePage(*page) != FALSE ? page : std::nullopt;
}

} // namespace

bool SetAnsiCodePage(const std::string& name) {
    const std::optional<unsigned> page = KnownPage(name);
    if (!page) {
        return false;
    }
    _setmbcp(HasPairs(*page) ? static_cast<int>(*page) : _MB_CP_SBCS);
    OfProcess() = *page;
    return true;
}

ThreadCodePage::ThreadCodePage(const std::string& name) : before_(ofThread) {
    if (const std::optional<unsigned> page = KnownPage(name)) {
        choice_ = std::make_unique<PageChoice>(PageChoice{*page, HasPairs(*page)});
        ofThread = choice_.get();
    }
}

ThreadCodePage::~ThreadCodePage() {
    ofThread = before_;
}

struct PageDecoder::Page {
    std::optional<unsigned> page;
};

PageDecoder::PageDecoder(const std::string& name) : page_(std::make_unique<Page>(Page{KnownPage(name)})) {}

PageDecoder::~PageDecoder() = default;

bool PageDecoder::IsKnown() const {
    return page_->page.has_value();
}

std::wstring PageDecoder::ToWide(std::string_view narrow) const {
    std::wstring wide;
    platform::ToWide(page_->page.value_or(CP_UTF8), narrow, wide);
    return wide;
}

std::wstring AnsiToWide(std::string_view narrow) {
    std::wstring wide;
    AnsiToWide(narrow, wide);
    return wide;
}

void AnsiToWide(std::string_view narrow, std::wstring& wide) {
    ToWide(Current(), narrow, wide);
}

void ThreadAnsiToWide(std::string_view narrow, std::wstring& wide) {
    ToWide(Current() == CP_ACP ? CP_THREAD_ACP : Current(), narrow, wide);
}

std::string WideToAnsi(std::wstring_view wide) {
    if (Current() == CP_UTF8) {
        return WideToUtf8Bytes(wide);
    }
    std::string narrow;
    if (wide.empty() || wide.size() > INT_MAX) {
        return narrow;
    }
    const int size = static_cast<int>(wide.size());
    narrow.resize(static_cast<std::size_t>(
        WideCharToMultiByte(Current(), 0, wide.data(), size, nullptr, 0, nullptr, nullptr)));
    WideCharToMultiByte(Current(), 0, wide.data(), size, narrow.data(), static_cast<int>(narrow.size()),
                        nullptr, nullptr);
    return narrow;
}

namespace {

// The function of the runtime library knows the process's page alone.
std::size_t FindInPage(const PageChoice& page, std::string_view text, char sought) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == sought) {
            return at;
        }
        if (page.hasPairs && IsDBCSLeadByteEx(page.page, static_cast<BYTE>(text[at])) != FALSE) {
            ++at;
        }
    }
    return std::string_view::npos;
}

} // namespace

std::size_t FindInMultiByte(std::string_view text, char sought) {
    if (ofThread != nullptr) {
        return FindInPage(*ofThread, text, sought);
    }
    // Behind a first half that stands last, some versions of the function look past the end: it has a second
    // one.
    std::string copy(text);
    copy += '\0';
    const auto* const begin = reinterpret_cast<const unsigned char*>(copy.c_str());
    const auto* const found = _mbschr(begin, static_cast<unsigned char>(sought));
    return found == nullptr ? std::string_view::npos : static_cast<std::size_t>(found - begin);
}

} // namespace platform
