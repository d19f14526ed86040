#include "styleconv/commands/Options.h"

#include "StyleConversion/encoding/NumberReader.h"
#include "StyleConversion/platform/Characters.h"
#include "StyleConversion/platform/Utf8.h"
#include "styleconv/commands/FontArguments.h"
#include "styleconv/files/FileWalk.h"
#include "styleconv/process/Messages.h"
#include "styleconv/process/WorkLimits.h"

#include <cmath>

namespace styleconv {
namespace {

bool ReadPointArgument(std::string_view text, double& x, double& y) {
    const std::size_t comma = text.find(',');
    return comma != std::string_view::npos && ReadNumberArgument(text.substr(0, comma), x) &&
           ReadNumberArgument(text.substr(comma + 1), y);
}

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

bool ReadNumberArgument(std::string_view text, double& value) {
    const encoding::NumberReading reading = encoding::ReadNumber(text);
    if (reading.used == 0 || reading.used != text.size() || !std::isfinite(reading.value)) {
        return false;
    }
    value = reading.value;
    return true;
}

std::string ReadColorArgument(const std::string& text, std::uint32_t& color) {
    const std::string digits = text == "black" ? "#000000" : text == "white" ? "#ffffff" : text;
    std::uint32_t channels = 0;
    bool isColor = digits.size() == 7 && digits.front() == '#';
    for (std::size_t i = 1; isColor && i < digits.size(); ++i) {
        const int digit = platform::HexDigitValue(digits[i]);
        isColor = digit >= 0;
        channels = channels << 4U | static_cast<std::uint32_t>(digit);
    }
    if (!isColor) {
        return "black, white or #rrggbb";
    }
    color = channels;
    return "";
}

void AddNumberOption(Command& command, const std::string& name, double& value,
                     const std::string& description) {
    const auto read = [&value](const std::string& text) -> std::string {
        return ReadNumberArgument(text, value) ? "" : "a number";
    };
    command.AddReader(name, read, "NUMBER", description);
}

void AddScaleOption(Command& command, const std::string& name, double& value,
                    const std::string& description) {
    const auto read = [&value](const std::string& text) -> std::string {
        double number = 0.0;
        if (!ReadNumberArgument(text, number) || number <= 0.0) {
            return "a number above 0";
        }
        value = number;
        return "";
    };
    command.AddReader(name, read, "NUMBER", description);
}

void AddPointOption(Command& command, const std::string& name, double& x, double& y,
                    const std::string& description) {
    const auto read = [&x, &y](const std::string& text) -> std::string {
        return ReadPointArgument(text, x, y) ? "" : "two numbers with a comma between them";
    };
    command.AddReader(name, read, "X,Y", description);
}

void AddStyleOptions(Command& command, StyleOptions& options) {
    command.AddText(
        "--drawing", options.drawing, "DRAWING",
        "Take text styles from this DXF file or drawing document (default: one style STANDARD with txt.shx)");
    command.AddTexts("--font", options.fontArguments, "[STYLE=]FILE.shx|TYPEFACE",
                     "Without --drawing, the font of a text style (default: of STANDARD), an SHX file or the "
                     "name of a typeface; may be given again");
    AddShapesOption(command, options.shapeFolders);
}

bool ReadStyleOptions(StyleOptions& options) {
    if (!options.fontArguments.empty() && !options.drawing.empty()) {
        SayLine("styleconv: --font cannot be used with --drawing: the drawing gives text styles their fonts");
        return false;
    }
    return ReadFontArguments(options);
}

void AddWalkOptions(Command& command, WalkOptions& options) {
    command.AddTexts("--include", options.include, "PATTERN",
                     "Of folders, only files like this, as '*.pat'; may be given again");
    command.AddTexts("--exclude", options.exclude, "PATTERN",
                     "Of folders, no files like this; may be given again");
}

void AddOutputOption(Command& command, std::string& output) {
    command.AddText("-o,--output", output, "PATH", "Write to this file instead of standard output");
}

void AddCommonOptions(Command& command, CommonOptions& options) {
    AddOutputOption(command, options.output);
    command.AddChoice("--format", options.format, {"json", "svg", "png", "html", "qgis", "qml", "maplibre"},
                      "Form of the result: json, svg, png, html, qgis, qml or maplibre (default: by the end "
                      "of -o, else json)");
}

void AddNameOption(Command& command, std::vector<std::string>& names, const std::string& description) {
    command.AddTexts("--name", names, "NAME", description);
}

void AddShapesOption(Command& command, std::vector<std::string>& folders) {
    command.AddTexts("--shapes", folders, "DIR",
                     "Also look for shape files in this folder; may be given again");
}

void AddIgnoreLayerOption(Command& command, std::vector<std::string>& layers) {
    command.AddTexts("--ignore-layer", layers, "LAYER",
                     "Skip entities on this layer, spelled as in the drawing; may be given again");
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
                    "Convert what is valid and report the rest, instead of refusing the file");
}

void AddFaithfulOption(Command& command, bool& faithful) {
    command.AddFlag("--faithful", faithful,
                    "Draw what the definition says, where the required output draws something else");
}

void AddStrictSymbolsOption(Command& command, CommonOptions& options) {
    command.AddFlag("--strict-symbols", options.style.strictSymbols,
                    "With --format qgis, qml or maplibre: make styles of the required output, not as "
                    "--faithful draws it");
}

void AddBareOption(Command& command, CommonOptions& options) {
    command.AddFlag("--bare", options.style.isBare,
                    "With --format svg or png: draw one symbol without anything around it, in millimetres; a "
                    "hatch is a tile that repeats");
}

void AddLengthOption(Command& command, CommonOptions& options) {
    AddScaleOption(command, "--length", options.style.length,
                   "With --bare: draw a line symbol along a line of so many millimetres (default: whole "
                   "repeats, up to 100)");
}

void AddApproximateOption(Command& command, CommonOptions& options) {
    command.AddFlag("--allow-approximate", options.style.allowsApproximate,
                    "With --format maplibre: take hatches that no picture repeats without a seam, too");
}

void AddWithStyleOption(Command& command, CommonOptions& options) {
    command.AddChoice("--with-style", options.style.inGallery, {"qgis"},
                      "With --format html: let readers take out styles for this program, too: qgis");
}

void AddHatchUnitsOption(Command& command, CommonOptions& options) {
    command.AddChoice("--hatch-units", options.style.hatchUnits, {"map", "mm"},
                      "With --format qgis or qml: repeat hatches in units of the map, or in mm of the page");
}

void AddStyleScaleOption(Command& command, CommonOptions& options) {
    AddScaleOption(
        command, "--scale", options.style.scale,
        "With --bare, or --format qgis, qml or maplibre: multiply all lengths by this (default: 1)");
}

void AddRestylingOptions(Command& command, CommonOptions& options) {
    const auto readColor = [&options](const std::string& text) {
        std::uint32_t color = 0;
        std::string expected = ReadColorArgument(text, color);
        if (expected.empty()) {
            options.restyling.color = color;
        }
        return expected;
    };
    const auto readWeight = [&options](const std::string& text) -> std::string {
        double weight = 0.0;
        if (!ReadNumberArgument(text, weight) || weight < 0.0) {
            return "a number of millimetres, 0 or above";
        }
        options.restyling.weight = weight;
        return "";
    };
    command.AddReader("--color", readColor, "COLOR",
                      "Make this the default of all colour parameters: black, white or #rrggbb");
    command.AddReader("--weight", readWeight, "MM", "Make this the default of all weight parameters");
}

void AddLimitOptions(Command& command, LimitOptions& options) {
    AddLimitOption(command, "--time-limit", options.timeText, options.time, "SECONDS",
                   "Stop after so many seconds (default: 60)");
    AddLimitOption(command, "--memory-limit", options.memoryText, options.memory, "MIB",
                   "Stop when more memory than this is in use (default: 4096)");
}

void AddCodePageOption(Command& command, std::string& codePage) {
    command.AddText(
        "--code-page", codePage, "NAME",
        "Character encoding of the file (default: UTF-8 when the whole file is, else WINDOWS-1252)");
}

} // namespace styleconv
