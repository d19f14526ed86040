// What the commands of the tool share: exit statuses, common options, and how a command is registered.
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <string>
#include <vector>

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
inline void AddOutputOption(CLI::App& command, std::string& output) {
    command.add_option("-o,--output", output, "Write to this file instead of standard output")
        ->type_name("PATH");
}

/// Adds -o and --format to a converting command.
inline void AddCommonOptions(CLI::App& command, CommonOptions& options) {
    AddOutputOption(command, options.output);
    command.add_option("--format", options.format, "Form of the result: json, svg or html")
        ->check(CLI::IsMember({"json", "svg", "html"}))
        ->capture_default_str();
}

/// Adds --name, which may be given any number of times.
inline void AddNameOption(CLI::App& command, std::vector<std::string>& names,
                          const std::string& description) {
    command.add_option("--name", names, description)->type_name("NAME")->expected(1)->take_all();
}

/// Adds --shapes, which may be given any number of times, to a command that looks for shape files.
inline void AddShapesOption(CLI::App& command, std::vector<std::string>& folders) {
    command.add_option("--shapes", folders, "Look for shape files in this folder, too; may be given again")
        ->type_name("DIR")
        ->expected(1)
        ->take_all();
}

/// Adds --tolerant to a converting command.
inline void AddTolerantOption(CLI::App& command, bool& tolerant) {
    command.add_flag("--tolerant", tolerant,
                     "Convert what is right and name what is wrong, instead of refusing the file");
}

/// Adds --code-page to a command that reads text files.
inline void AddCodePageOption(CLI::App& command, std::string& codePage) {
    command
        .add_option(
            "--code-page", codePage,
            "Character encoding of the file (default: UTF-8 when the whole file is, else WINDOWS-1252)")
        ->type_name("NAME");
}

} // namespace styleconv
