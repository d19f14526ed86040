#include "styleconv/Command.h"

#include "StyleConversion/platform/Utf8.h"
#include "styleconv/NumberOption.h"
#include "styleconv/WorkLimits.h"

namespace styleconv {
namespace {

void AddLimitOption(Command& command, const std::string& name, std::string& text, double& value,
                    const std::string& unit, const std::string& description) {
    const auto read = [&text, &value](const std::string& argument) -> std::string {
        if (!ReadNumberArgument(argument, value) || value <= 0.0) {
            return "a number above 0";
        }
        text = argument;
        return "";
    };
    command.AddReader(name, read, unit, description);
}

} // namespace

void AddOutputOption(Command& command, std::string& output) {
    command.AddText("-o,--output", output, "PATH", "Write to this file instead of standard output");
}

void AddCommonOptions(Command& command, CommonOptions& options) {
    AddOutputOption(command, options.output);
    command.AddChoice("--format", options.format, {"json", "svg", "html"},
                      "Form of the result: json, svg or html");
}

void AddNameOption(Command& command, std::vector<std::string>& names, const std::string& description) {
    command.AddTexts("--name", names, "NAME", description);
}

void AddShapesOption(Command& command, std::vector<std::string>& folders) {
    command.AddTexts("--shapes", folders, "DIR",
                     "Look for shape files in this folder, too; may be given again");
}

void AddIgnoreLayerOption(Command& command, std::vector<std::string>& layers) {
    command.AddTexts("--ignore-layer", layers, "LAYER",
                     "Leave out what is on this layer, spelled as its entities spell it; may be given again");
}

std::vector<std::wstring> WideTexts(const std::vector<std::string>& arguments) {
    std::vector<std::wstring> wide;
    wide.reserve(arguments.size());
    for (const std::string& argument : arguments) {
        wide.push_back(platform::Utf8ToWide(argument));
    }
    return wide;
}

void AddTolerantOption(Command& command, bool& tolerant) {
    command.AddFlag("--tolerant", tolerant,
                    "Convert what is right and name what is wrong, instead of refusing the file");
}

void AddLimitOptions(Command& command, LimitOptions& options) {
    AddLimitOption(command, "--time-limit", options.timeText, options.time, "SECONDS",
                   "Give up after so many seconds (default: 60)");
    AddLimitOption(command, "--memory-limit", options.memoryText, options.memory, "MIB",
                   "Give up when more memory than this is in use (default: 4096)");
}

void AddCodePageOption(Command& command, std::string& codePage) {
    command.AddText(
        "--code-page", codePage, "NAME",
        "Character encoding of the file (default: UTF-8 when the whole file is, else WINDOWS-1252)");
}

} // namespace styleconv
