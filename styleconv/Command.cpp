#include "styleconv/Command.h"

#include "StyleConversion/platform/Utf8.h"

#include <CLI/CLI.hpp>

namespace styleconv {

void AddOutputOption(CLI::App& command, std::string& output) {
    command.add_option("-o,--output", output, "Write to this file instead of standard output")
        ->type_name("PATH");
}

void AddCommonOptions(CLI::App& command, CommonOptions& options) {
    AddOutputOption(command, options.output);
    command.add_option("--format", options.format, "Form of the result: json, svg or html")
        ->check(CLI::IsMember({"json", "svg", "html"}))
        ->capture_default_str();
}

void AddNameOption(CLI::App& command, std::vector<std::string>& names, const std::string& description) {
    command.add_option("--name", names, description)->type_name("NAME")->expected(1)->take_all();
}

void AddShapesOption(CLI::App& command, std::vector<std::string>& folders) {
    command.add_option("--shapes", folders, "Look for shape files in this folder, too; may be given again")
        ->type_name("DIR")
        ->expected(1)
        ->take_all();
}

void AddIgnoreLayerOption(CLI::App& command, std::vector<std::string>& layers) {
    command
        .add_option("--ignore-layer", layers,
                    "Leave out what is on this layer, spelled as its entities spell it; may be given again")
        ->type_name("LAYER")
        ->expected(1)
        ->take_all();
}

std::vector<std::wstring> WideTexts(const std::vector<std::string>& arguments) {
    std::vector<std::wstring> wide;
    wide.reserve(arguments.size());
    for (const std::string& argument : arguments) {
        wide.push_back(platform::Utf8ToWide(argument));
    }
    return wide;
}

void AddTolerantOption(CLI::App& command, bool& tolerant) {
    command.add_flag("--tolerant", tolerant,
                     "Convert what is right and name what is wrong, instead of refusing the file");
}

void AddCodePageOption(CLI::App& command, std::string& codePage) {
    command
        .add_option(
            "--code-page", codePage,
            "Character encoding of the file (default: UTF-8 when the whole file is, else WINDOWS-1252)")
        ->type_name("NAME");
}

} // namespace styleconv
