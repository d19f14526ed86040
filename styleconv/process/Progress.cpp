#include "styleconv/process/Progress.h"

#include <chrono>
#include <cstdio>
#include <mutex>
#include <optional>
#include <thread>

#if defined(_WIN32)
#include <io.h>
#else
#include <unistd.h>
#endif

namespace styleconv {
namespace {

using Clock = std::chrono::steady_clock;

// Often enough to be seen moving, seldom enough to cost nothing.
constexpr std::chrono::milliseconds kInterval(100);

// The thread that watches limits writes to the terminal, too.
struct Line {
    std::mutex mutex;
    bool allowed = false;
    std::thread::id thread; // whose progress is shown
    std::string prefix;
    std::string stage;
    std::size_t item = 0;
    std::size_t total = 0;
    std::size_t shown = 0; // characters on the terminal now
    std::optional<Clock::time_point> next;

    bool IsOfThisThread() const { return thread == std::this_thread::get_id(); }
};

Line& CurrentLine() {
    static Line line;
    return line;
}

// Writes over what stands in the line. The caller holds the mutex.
void Show(Line& line, const std::string& text) {
    std::string over = "\r" + text;
    if (text.size() < line.shown) {
        over.append(line.shown - text.size(), ' ');
        over.append(line.shown - text.size(), '\b');
    }
    std::fwrite(over.data(), 1, over.size(), stderr);
    std::fflush(stderr);
    line.shown = text.size();
}

void ShowNow(Line& line) {
    Show(line, line.prefix + ProgressText(line.stage, line.item, line.total));
    line.next = Clock::now() + kInterval;
}

} // namespace

bool IsTerminal(std::FILE* stream) {
#if defined(_WIN32)
    return _isatty(_fileno(stream)) != 0;
#else
    return isatty(fileno(stream)) != 0;
#endif
}

std::string ProgressText(std::string_view stage, std::size_t item, std::size_t total) {
    std::string text(stage);
    if (item > 0) {
        text += " " + std::to_string(item);
        if (total > 0) {
            text += " of " + std::to_string(total);
        }
    }
    return text;
}

void AllowProgress() {
    Line& line = CurrentLine();
    const std::lock_guard lock(line.mutex);
    line.allowed = IsTerminal(stderr);
    line.thread = std::this_thread::get_id();
}

void NameProgress(std::string_view prefix) {
    Line& line = CurrentLine();
    const std::lock_guard lock(line.mutex);
    if (line.IsOfThisThread()) {
        line.prefix = prefix;
    }
}

void BeginStage(std::string_view stage, std::size_t total) {
    Line& line = CurrentLine();
    const std::lock_guard lock(line.mutex);
    if (!line.allowed || !line.IsOfThisThread()) {
        return;
    }
    line.stage = stage;
    line.item = 0;
    line.total = total;
    ShowNow(line);
}

void BeginWriting(bool toStandardOutput, std::size_t total) {
    if (toStandardOutput && IsTerminal(stdout)) {
        ClearProgress();
        Line& line = CurrentLine();
        const std::lock_guard lock(line.mutex);
        line.allowed = false;
        return;
    }
    BeginStage("Writing", total);
}

void StepStage() {
    Line& line = CurrentLine();
    const std::lock_guard lock(line.mutex);
    if (!line.allowed || !line.IsOfThisThread()) {
        return;
    }
    ++line.item;
    if (!line.next || Clock::now() >= *line.next || line.item == line.total) {
        ShowNow(line);
    }
}

void ClearProgress() {
    Line& line = CurrentLine();
    const std::lock_guard lock(line.mutex);
    if (line.shown > 0) {
        Show(line, "");
        std::fputs("\r", stderr);
    }
}

} // namespace styleconv
