#include "styleconv/ProcessMemory.h"

#if defined(_WIN32)
#include <windows.h>
// Behind it: uses its types.
#include <psapi.h>
#else
#include <charconv>
#include <fcntl.h>
#include <string_view>
#include <unistd.h>
#endif

namespace styleconv {

#if defined(_WIN32)

std::uint64_t ProcessMemory() {
    PROCESS_MEMORY_COUNTERS counters{};
    counters.cb = sizeof counters;
    return K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters) != 0
               ? counters.PagefileUsage
               : 0;
}

#else

std::uint64_t ProcessMemory() {
    // "size resident ...", in pages.
    const int file = open("/proc/self/statm", O_RDONLY | O_CLOEXEC);
    if (file < 0) {
        return 0;
    }
    char text[128];
    const ssize_t size = read(file, text, sizeof text);
    close(file);
    const std::string_view line(text, size > 0 ? static_cast<std::size_t>(size) : 0);
    const std::size_t space = line.find(' ');
    std::uint64_t pages = 0;
    if (space != std::string_view::npos) {
        std::from_chars(line.data() + space + 1, line.data() + line.size(), pages);
    }
    return pages * static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
}

#endif

} // namespace styleconv
