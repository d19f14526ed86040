// The options that commands share.
#pragma once

#include "styleconv/CommandLine.h"

#include <string>
#include <vector>

namespace styleconv {

struct LimitOptions;

/// Options that every command takes.
struct CommonOptions {
    std::string output; // a path; standard output when empty
    std::string format = "json";
};

/// Adds -o to a command.
void AddOutputOption(Command& command, std::string& output);

/// Adds -o and --format to a converting command.
void AddCommonOptions(Command& command, CommonOptions& options);

/// Adds --name, which may be given any number of times.
void AddNameOption(Command& command, std::vector<std::string>& names, const std::string& description);

/// Adds --shapes, which may be given any number of times, to a command that looks for shape files.
void AddShapesOption(Command& command, std::vector<std::string>& folders);

/// Adds --ignore-layer, which may be given any number of times.
void AddIgnoreLayerOption(Command& command, std::vector<std::string>& layers);

/// Adds --tolerant to a converting command.
void AddTolerantOption(Command& command, bool& tolerant);

/// Adds --time-limit and --memory-limit to a command.
void AddLimitOptions(Command& command, LimitOptions& options);

/// Arguments of the command line as wide texts.
std::vector<std::wstring> WideTexts(const std::vector<std::string>& arguments);

/// Adds --code-page to a command that reads text files.
void AddCodePageOption(Command& command, std::string& codePage);

} // namespace styleconv
