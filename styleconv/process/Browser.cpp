#include "styleconv/process/Browser.h"

#include <random>
#include <string_view>

#if defined(_WIN32)
#include <windows.h>

#include <shellapi.h>
#else
#include <chrono>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

extern char** environ;
#endif

namespace styleconv {
namespace {

namespace fs = std::filesystem;

std::string RandomLetters(std::size_t count) {
    constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz0123456789";
    std::random_device random;
    std::string letters;
    for (std::size_t i = 0; i < count; ++i) {
        letters += kLetters[random() % kLetters.size()];
    }
    return letters;
}

#if !defined(_WIN32)

// Some programs stay until the page is closed. What fails, fails sooner.
constexpr std::chrono::milliseconds kLongestWait(2000);
constexpr std::chrono::milliseconds kStep(20);

bool SucceedsOrStays(pid_t process) {
    for (std::chrono::milliseconds waited{0}; waited < kLongestWait; waited += kStep) {
        int status = 0;
        const pid_t ended = waitpid(process, &status, WNOHANG);
        if (ended != 0) {
            return ended == process && WIFEXITED(status) && WEXITSTATUS(status) == 0;
        }
        std::this_thread::sleep_for(kStep);
    }
    return true;
}

#endif

} // namespace

fs::path NewTemporaryFolder(std::error_code& error) {
    constexpr int kAttempts = 100;
    constexpr std::size_t kRandomLetters = 12;
    const fs::path folder = fs::temp_directory_path(error);
    for (int attempt = 0; !error && attempt < kAttempts; ++attempt) {
        const fs::path candidate = folder / ("styleconv-" + RandomLetters(kRandomLetters));
        if (fs::create_directory(candidate, error)) {
            fs::permissions(candidate, fs::perms::owner_all, error);
            return error ? fs::path() : candidate;
        }
    }
    return {};
}

#if defined(_WIN32)

bool OpenInBrowser(const fs::path& page) {
    constexpr INT_PTR kLargestError = 32;
    const HINSTANCE opened = ShellExecuteW(nullptr, L"open", page.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    return reinterpret_cast<INT_PTR>(opened) > kLargestError;
}

#else

bool OpenInBrowser(const fs::path& page) {
#if defined(__APPLE__)
    std::string program = "open";
#else
    std::string program = "xdg-open";
#endif
    std::string path = page.native();
    char* const arguments[] = {program.data(), path.data(), nullptr};
    posix_spawn_file_actions_t quiet;
    if (posix_spawn_file_actions_init(&quiet) != 0) {
        return false;
    }
    pid_t process = 0;
    const bool isStarted =
        posix_spawn_file_actions_addopen(&quiet, STDOUT_FILENO, "/dev/null", O_WRONLY, 0) == 0 &&
        posix_spawn_file_actions_addopen(&quiet, STDERR_FILENO, "/dev/null", O_WRONLY, 0) == 0 &&
        posix_spawnp(&process, program.c_str(), &quiet, nullptr, arguments, environ) == 0;
    posix_spawn_file_actions_destroy(&quiet);
    return isStarted && SucceedsOrStays(process);
}

#endif

} // namespace styleconv
