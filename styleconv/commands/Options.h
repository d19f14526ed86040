// The options that commands share.
#pragma once

#include "conversions/Restyling.h"
#include "conversions/reading/StyleFonts.h"
#include "styleconv/commands/CommandLine.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace styleconv {

struct LimitOptions;
struct WalkOptions;

/// Reads `text` as one finite decimal number, whatever the locale. False where it is none.
bool ReadNumberArgument(std::string_view text, double& value);

/// Reads "black", "white" or "#rrggbb" as 0xrrggbb. Returns nothing, or what was expected.
std::string ReadColorArgument(const std::string& text, std::uint32_t& color);

/// Adds an option that takes one finite number.
void AddNumberOption(Command& command, const std::string& name, double& value,
                     const std::string& description);

/// Adds an option that takes one finite number above 0.
void AddScaleOption(Command& command, const std::string& name, double& value, const std::string& description);

/// Adds an option that takes a point, "X,Y".
void AddPointOption(Command& command, const std::string& name, double& x, double& y,
                    const std::string& description);

/// Where linetypes find their text styles and shape files.
struct StyleOptions {
    std::string drawing;                   // a DXF file or drawing document; empty for the one style STANDARD
    std::vector<std::string> shapeFolders; // where shape files are looked for, too
    std::vector<std::string> fontArguments; // of text styles without a drawing, as given
    conversions::StyleFonts fonts;          // the same, read
};

/// Adds --drawing, --shapes and --font.
void AddStyleOptions(Command& command, StyleOptions& options);

/// Reads the fonts. False, with a message, when they are none, or the options contradict each other.
bool ReadStyleOptions(StyleOptions& options);

/// How styles of map programs are made.
struct StyleFormOptions {
    bool strictSymbols = false; // not those of --faithful
    std::string hatchUnits = "map";
    double scale = 1.0;
    bool allowsApproximate = false; // of areas in styles that repeat pictures
    bool isBare = false;            // a picture of one symbol has nothing around it
    double length = 0.0;            // of the line of a bare picture, in millimetres; 0 where it is not given
    std::string inGallery;          // the style that a gallery holds for its readers; empty for none
};

/// Options that every command takes.
struct CommonOptions {
    std::string output; // a path; standard output when empty
    std::string format; // where it is empty, the end of the output's name tells
    StyleFormOptions style;
    conversions::Restyling restyling;
};

/// Adds --include and --exclude to a command that takes folders.
void AddWalkOptions(Command& command, WalkOptions& options);

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

/// Adds --faithful to a converting command.
void AddFaithfulOption(Command& command, bool& faithful);
/// Adds --strict-symbols to a converting command.
void AddStrictSymbolsOption(Command& command, CommonOptions& options);
/// Adds --hatch-units to a command that converts patterns.
void AddHatchUnitsOption(Command& command, CommonOptions& options);
/// Adds --bare to a converting command.
void AddBareOption(Command& command, CommonOptions& options);
/// Adds --length to a command that converts linetypes.
void AddLengthOption(Command& command, CommonOptions& options);
/// Adds --allow-approximate to a command that converts areas.
void AddApproximateOption(Command& command, CommonOptions& options);
/// Adds --with-style to a command that writes galleries.
void AddWithStyleOption(Command& command, CommonOptions& options);
/// Adds --scale to a command that scales nothing else.
void AddStyleScaleOption(Command& command, CommonOptions& options);

/// Adds --color and --weight to a command whose symbols have parameters.
void AddRestylingOptions(Command& command, CommonOptions& options);

/// Adds --time-limit and --memory-limit to a command.
void AddLimitOptions(Command& command, LimitOptions& options);

/// Arguments of the command line as wide texts.
std::vector<std::wstring> WideTexts(const std::vector<std::string>& arguments);

/// Adds --code-page to a command that reads text files.
void AddCodePageOption(Command& command, std::string& codePage);

} // namespace styleconv
