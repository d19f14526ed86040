#include "tests/support/ToolRun.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>

#if !defined(_WIN32)
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace support {
namespace {

namespace fs = std::filesystem;

std::string Quoted(const std::string& word) {
#if defined(_WIN32)
    return "\"" + word + "\"";
#else
    std::string quoted = "'";
    for (const char c : word) {
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return quoted + "'";
#endif
}

std::string BytesOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

int ExitStatus(int result) {
#if defined(_WIN32)
    return result;
#else
    return WIFEXITED(result) ? WEXITSTATUS(result) : -1;
#endif
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
               const std::string& redirection, const std::string& prefix = "") {
    const ScratchFolder scratch;
    const std::string in = scratch.Write("in", input);
    std::string command = prefix + CommandLine(arguments);
    command += " < " + Quoted(in) + " 2> " + Quoted(scratch / "err") + " ";
    command += redirection.empty() ? "> " + Quoted(scratch / "out") : redirection;
#if defined(_WIN32)
    // cmd takes the outer pair of quotes away.
    command = "\"" + command + "\"";
#endif
    ToolResult result;
    result.status = ExitStatus(std::system(command.c_str()));
    result.output = BytesOf(scratch / "out");
    result.errors = BytesOf(scratch / "err");
    return result;
}

} // namespace

ToolResult RunTool(const std::vector<std::string>& arguments, const std::string& input) {
    return Run(arguments, input, "");
}

ToolResult RunToolRedirected(const std::vector<std::string>& arguments, const std::string& redirection) {
    return Run(arguments, "", redirection);
}

#if !defined(_WIN32)
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
