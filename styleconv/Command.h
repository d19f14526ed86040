// What the commands of the tool share: exit statuses, common options, and how a command is registered.
#pragma once

#include <functional>
#include <string>
#include <vector>

// Declared only: what it takes to compile its header is much more than all else here.
namespace CLI {
class App;
}

namespace styleconv {

enum ExitStatus : int {
    kDone = 0,
    kInputFault = 1, // what was given could not be converted, or the result could not be written
    kUsageFault = 2, // the command line is wrong
};

/// Options that every command takes.
struct CommonOptions {
    std::string output; // a path; standard output when empty
    std::string format = "json";
};

/// Set by the command that the command line asks for, and run after parsing.
using Runner = std::function<ExitStatus()>;

/// Adds -o to a command.
void AddOutputOption(CLI::App& command, std::string& output);

/// Adds -o and --format to a converting command.
void AddCommonOptions(CLI::App& command, CommonOptions& options);

/// Adds --name, which may be given any number of times.
void AddNameOption(CLI::App& command, std::vector<std::string>& names, const std::string& description);

/// Adds --shapes, which may be given any number of times, to a command that looks for shape files.
void AddShapesOption(CLI::App& command, std::vector<std::string>& folders);

/// Adds --ignore-layer, which may be given any number of times.
void AddIgnoreLayerOption(CLI::App& command, std::vector<std::string>& layers);

/// Adds --tolerant to a converting command.
void AddTolerantOption(CLI::App& command, bool& tolerant);

/// Arguments of the command line as wide texts.
std::vector<std::wstring> WideTexts(const std::vector<std::string>& arguments);

/// Adds --code-page to a command that reads text files.
void AddCodePageOption(CLI::App& command, std::string& codePage);

} // namespace styleconv
