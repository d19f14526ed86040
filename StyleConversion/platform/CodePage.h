// Narrow text to wide text and back, through the system's ANSI code page.
#pragma once

#include "StyleConversion/platform/AnsiCodePage.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace platform {

struct PageChoice;

/// While an object of this class lives, the code page of its thread is the one of this name, whatever that of
/// the process is. Objects of one thread end in the reverse of the order in which they began.
class ThreadCodePage {
public:
    /// `name` as for SetAnsiCodePage. One that the system does not know changes nothing.
    explicit ThreadCodePage(const std::string& name);
    ~ThreadCodePage();
    ThreadCodePage(const ThreadCodePage&) = delete;
    ThreadCodePage& operator=(const ThreadCodePage&) = delete;

private:
    std::unique_ptr<PageChoice> choice_;
    const PageChoice* before_;
};

/// Converts bytes of the code page in force. Bytes that it does not define are kept so that WideToAnsi gives
/// them back where the system allows it: as U+DC80 to U+DCFF under UTF-8, as the character of the byte's own
/// number under every other page.
std::wstring AnsiToWide(std::string_view narrow);
/// The same into a string whose storage is used again.
void AnsiToWide(std::string_view narrow, std::wstring& wide);
/// The same by the calling thread's ANSI code page, where the system has one for each thread and neither the
/// thread nor the process has chosen one.
void ThreadAnsiToWide(std::string_view narrow, std::wstring& wide);

/// Converts to bytes of the code page in force; "?" stands for a character that it cannot express.
std::string WideToAnsi(std::wstring_view wide);

/// Converts bytes of one code page by its name, whatever page is in force: for files that name their own.
class PageDecoder {
public:
    /// `name` as for SetAnsiCodePage.
    explicit PageDecoder(const std::string& name);
    ~PageDecoder();
    PageDecoder(const PageDecoder&) = delete;
    PageDecoder& operator=(const PageDecoder&) = delete;

    /// Whether the system knows the page. If not, ToWide reads UTF-8.
    bool IsKnown() const;
    /// Bytes that the page does not define become what AnsiToWide makes of them.
    std::wstring ToWide(std::string_view narrow) const;

private:
    struct Page;
    std::unique_ptr<Page> page_;
};

/// The position of the first `sought` (an ASCII character) in `text`, which holds no NUL, that is a character
/// of its own and not the second byte of a double-byte character of the code page in force; npos when there
/// is none.
std::size_t FindInMultiByte(std::string_view text, char sought);

} // namespace platform
