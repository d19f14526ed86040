#include "styleconv/process/ProcessMemory.h"

#if defined(_WIN32)
#include <windows.h>
// Behind it: uses its types.
#include <psapi.h>
#else
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
    std::uint64_t pages = 0;
    for (std::size_t i = line.find(' ') + 1; i != 0 && i < line.size() && line[i] != ' '; ++i) {
        pages = pages * 10 + static_cast<std::uint64_t>(line[i] - '0');
    }
    return pages * static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
}

#endif

} // namespace styleconv
