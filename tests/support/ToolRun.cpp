#include "tests/support/ToolRun.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>

#if defined(_WIN32)
#include "StyleConversion/platform/Utf8.h"

#include <windows.h>
#else
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace support {
namespace {

namespace fs = std::filesystem;

std::string BytesOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

#if defined(_WIN32)

// One word as the system's own parser of command lines takes it back: a quote, and the backslashes before
// one, stand behind a backslash each.
std::wstring Quoted(const std::wstring& word) {
    std::wstring quoted = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : word) {
        if (c == L'"') {
            quoted.append(backslashes + 1, L'\\');
        }
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        quoted += c;
    }
    return quoted.append(backslashes, L'\\') + L'"';
}

class Handle {
public:
    // A file that a child process can inherit.
    Handle(const fs::path& path, DWORD access, DWORD creation) {
        SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
        handle_ = CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, creation,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    }
    ~Handle() { CloseHandle(handle_); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    HANDLE Get() const { return handle_; }

private:
    HANDLE handle_;
};

ToolResult Run(const std::vector<std::string>& arguments, const std::string& input) {
    const ScratchFolder scratch;
    const fs::path in = scratch.Write("in", input);
    std::wstring command = Quoted(fs::path(STYLECONV_PATH).wstring());
    for (const std::string& argument : arguments) {
        command += L" " + Quoted(platform::Utf8ToWide(argument));
    }
    ToolResult result;
    {
        const Handle standardInput(in, GENERIC_READ, OPEN_EXISTING);
        const Handle standardOutput(scratch / "out", GENERIC_WRITE, CREATE_ALWAYS);
        const Handle standardError(scratch / "err", GENERIC_WRITE, CREATE_ALWAYS);
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        startup.dwFlags = STARTF_USESTDHANDLES;
        startup.hStdInput = standardInput.Get();
        startup.hStdOutput = standardOutput.Get();
        startup.hStdError = standardError.Get();
        PROCESS_INFORMATION process{};
        if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                           &process) != FALSE) {
            WaitForSingleObject(process.hProcess, INFINITE);
            DWORD status = 0;
            GetExitCodeProcess(process.hProcess, &status);
            result.status = static_cast<int>(status);
            CloseHandle(process.hProcess);
            CloseHandle(process.hThread);
        } else {
            const DWORD error = GetLastError();
            // Said where the tool would have said something, and for tests that do not look there. It happens
            // where the tool is being linked anew.
            const std::string message = "the tool was not started: error " + std::to_string(error) + "\n";
            std::ofstream(scratch / "err") << message;
            std::cerr << message;
        }
    }
    result.output = BytesOf(scratch / "out");
    result.errors = BytesOf(scratch / "err");
    return result;
}

#else

std::string Quoted(const std::string& word) {
    std::string quoted = "'";
    for (const char c : word) {
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return quoted + "'";
}

std::string CommandLine(const std::vector<std::string>& arguments) {
    std::string command = Quoted(STYLECONV_PATH);
    for (const std::string& argument : arguments) {
        command += " " + Quoted(argument);
    }
    return command;
}

// `prefix` stands before the command for the shell to read.
ToolResult Run(const std::vector<std::string>& arguments, const std::string& input,
               const std::string& redirection = "", const std::string& prefix = "") {
    const ScratchFolder scratch;
    const std::string in = scratch.Write("in", input);
    std::string command = prefix + CommandLine(arguments);
    command += " < " + Quoted(in) + " 2> " + Quoted(scratch / "err") + " ";
    command += redirection.empty() ? "> " + Quoted(scratch / "out") : redirection;
    ToolResult result;
    const int status = std::system(command.c_str());
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    result.output = BytesOf(scratch / "out");
    result.errors = BytesOf(scratch / "err");
    return result;
}

#endif

} // namespace

std::vector<std::string> ValuesOf(const std::string& document, const std::string& key) {
    std::vector<std::string> values;
    const std::string start = "\"" + key + "\": \"";
    for (std::size_t at = document.find(start); at != std::string::npos; at = document.find(start, at)) {
        std::string value;
        for (at += start.size(); at < document.size() && document[at] != '"'; ++at) {
            // Paths of Windows have backslashes.
            at += document.compare(at, 2, "\\\\") == 0 || document.compare(at, 2, "\\\"") == 0 ? 1 : 0;
            value += document[at];
        }
        values.push_back(std::move(value));
    }
    return values;
}

ToolResult RunTool(const std::vector<std::string>& arguments, const std::string& input) {
    return Run(arguments, input);
}

#if !defined(_WIN32)
ToolResult RunToolRedirected(const std::vector<std::string>& arguments, const std::string& redirection) {
    return Run(arguments, "", redirection);
}

ToolResult RunToolWithFileSizeLimit(std::size_t bytes, const std::vector<std::string>& arguments) {
    return Run(arguments, "", "", "prlimit --fsize=" + std::to_string(bytes) + " ");
}

ToolResult RunToolWithTemporariesIn(const std::string& folder, const std::vector<std::string>& arguments,
                                    const std::string& input) {
    return Run(arguments, input, "", "TMPDIR=" + Quoted(folder) + " ");
}

ToolResult RunToolIntoClosedPipe(const std::vector<std::string>& arguments) {
    const ScratchFolder scratch;
    const std::string command = "(sleep 0.3; " + CommandLine(arguments) + " 2> " + Quoted(scratch / "err") +
                                "; echo $? > " + Quoted(scratch / "status") + ") | true";
    ToolResult result;
    if (std::system(command.c_str()) == 0) {
        // The shell ends with the pipe's reader; the writer may still be at work.
        while (scratch.Read("status").find('\n') == std::string::npos) {
        }
        result.status = std::stoi(scratch.Read("status"));
        result.errors = scratch.Read("err");
    }
    return result;
}
#endif

ScratchFolder::ScratchFolder() {
    std::random_device random;
    do {
        path_ = fs::temp_directory_path() / ("styleconv_test_" + std::to_string(random()));
    } while (!fs::create_directory(path_));
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

std::string ScratchFolder::operator/(const std::string& name) const {
    return (path_ / name).string();
}

std::string ScratchFolder::Write(const std::string& name, const std::string& text) const {
    std::ofstream(path_ / name, std::ios::binary) << text;
    return *this / name;
}

std::string ScratchFolder::Read(const std::string& name) const {
    return fs::exists(path_ / name) ? BytesOf(path_ / name) : "(none)";
}

std::vector<std::string> ScratchFolder::Names() const {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(path_)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

#if !defined(_WIN32)
int SignalThatEndsTool(const ScratchFolder& folder, std::size_t entries,
                       const std::vector<std::string>& arguments, int signal) {
    std::vector<char*> words{const_cast<char*>(STYLECONV_PATH)};
    for (const std::string& argument : arguments) {
        words.push_back(const_cast<char*>(argument.c_str()));
    }
    words.push_back(nullptr);
    const pid_t process = fork();
    if (process == 0) {
        std::signal(SIGINT, SIG_DFL);
        execv(words[0], words.data());
        _exit(127);
    }
    int status = 0;
    pid_t ended = 0;
    while (folder.Names().size() < entries && (ended = waitpid(process, &status, WNOHANG)) == 0) {
        usleep(1000);
    }
    if (ended == 0) {
        kill(process, signal);
        waitpid(process, &status, 0);
    }
    return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
}
#endif

} // namespace support
