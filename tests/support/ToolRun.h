// Runs the built tool as a person would, and keeps what it said.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace support {

struct ToolResult {
    int status = -1;
    std::string output;
    std::string errors;
};

/// What is said behind the errors of a file of which the rest can be converted.
inline std::string HelpBehindErrors(const std::string& file) {
    return "styleconv: nothing was converted; --tolerant converts the rest of the file; \"styleconv check " +
           file + "\" shows all errors\n";
}

/// The texts of all keys of this name in a document, in its order.
std::vector<std::string> ValuesOf(const std::string& document, const std::string& key);

/// Runs styleconv with the arguments. `input` is its standard input.
ToolResult RunTool(const std::vector<std::string>& arguments, const std::string& input = "");

#if !defined(_WIN32)
/// The same with its standard output sent where the shell's words `redirection` say ("> /dev/full").
ToolResult RunToolRedirected(const std::vector<std::string>& arguments, const std::string& redirection);

/// The same, unable to write a file longer than `bytes`; its own standard output and error are files too.
ToolResult RunToolWithFileSizeLimit(std::size_t bytes, const std::vector<std::string>& arguments);

/// The same with its temporary files in `folder`.
ToolResult RunToolWithTemporariesIn(const std::string& folder, const std::vector<std::string>& arguments,
                                    const std::string& input);

/// The same with a pipe as standard output whose reader is gone before the tool starts.
ToolResult RunToolIntoClosedPipe(const std::vector<std::string>& arguments);
#endif

/// A folder that is there and empty, and is removed with this object.
class ScratchFolder {
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    /// The path of `name` in the folder.
    std::string operator/(const std::string& name) const;
    /// Writes a file and returns its path.
    std::string Write(const std::string& name, const std::string& text) const;
    /// The bytes of a file in the folder, or "(none)".
    std::string Read(const std::string& name) const;
    /// The names of all that is in the folder, sorted.
    std::vector<std::string> Names() const;

private:
    std::filesystem::path path_;
};

#if !defined(_WIN32)
/// Starts the tool, waits until `folder` holds `entries` entries, sends it the signal, and gives the number
/// of the signal that ended it; 0 when it ended by itself.
int SignalThatEndsTool(const ScratchFolder& folder, std::size_t entries,
                       const std::vector<std::string>& arguments, int signal);
#endif

} // namespace support
