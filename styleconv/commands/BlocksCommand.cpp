// styleconv blocks: blocks of a drawing to point symbols.
#include "StyleConversion/platform/Characters.h"
#include "conversions/Blocks.h"
#include "styleconv/commands/Commands.h"
#include "styleconv/commands/Job.h"
#include "styleconv/files/InputFile.h"
#include "styleconv/files/ShapeSearch.h"
#include "styleconv/process/Messages.h"

#include <memory>
#include <optional>

namespace styleconv {
namespace {

struct BlocksOptions : CommonOptions {
    std::string file;
    std::vector<std::string> names;
    std::vector<std::string> layersToIgnore;
    std::vector<std::string> shapeFolders;
    bool tolerant = false;
    bool modelSpace = false;
    bool expand = false;
    bool fromBasePoint = false;
    bool visibleOnly = false;
    bool faithful = false;
    std::string units;
    std::optional<OxCmColor> whiteAs;
};

struct UnitName {
    const char* name;
    OxDb::UnitsValue unit;
};

constexpr UnitName kUnits[] = {
    {"mm", static_cast<OxDb::UnitsValue>(4)},   {"cm", static_cast<OxDb::UnitsValue>(5)},
    {"dm", static_cast<OxDb::UnitsValue>(14)},  {"m", static_cast<OxDb::UnitsValue>(6)},
    {"km", static_cast<OxDb::UnitsValue>(7)},   {"inch", static_cast<OxDb::UnitsValue>(1)},
    {"foot", static_cast<OxDb::UnitsValue>(2)}, {"yard", static_cast<OxDb::UnitsValue>(10)},
    {"mile", static_cast<OxDb::UnitsValue>(3)},
};

std::vector<std::string> UnitNames() {
    std::vector<std::string> names;
    for (const UnitName& unit : kUnits) {
        names.emplace_back(unit.name);
    }
    return names;
}

OxDb::UnitsValue UnitNamed(const std::string& name) {
    for (const UnitName& unit : kUnits) {
        if (unit.name == name) {
            return unit.unit;
        }
    }
    return OxDb::kUnitsUndefined;
}

// "black", "white" or "#rrggbb".
std::string ReadColor(const std::string& text, std::optional<OxCmColor>& color) {
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
    color.emplace().setRGB(static_cast<std::uint8_t>(channels >> 16U & 0xffU),
                           static_cast<std::uint8_t>(channels >> 8U & 0xffU),
                           static_cast<std::uint8_t>(channels & 0xffU));
    return {};
}

ExitStatus Blocks(const BlocksOptions& options) {
    if (options.modelSpace && !options.names.empty()) {
        SayLine("styleconv: --model-space cannot be used with --name: it converts no blocks");
        return kUsageFault;
    }
    const std::optional<conversions::Form> form = FormOf(options, options.faithful);
    if (!form) {
        return kUsageFault;
    }
    InputFile input(options.file);
    if (const auto problem = input.Open()) {
        return SayProblem(*problem);
    }
    const auto front = FrontForDrawing({options.file, options.shapeFolders, {}}, options.output.empty());
    conversions::BlocksOptions job;
    job.names = WideTexts(options.names);
    job.layersToIgnore = WideTexts(options.layersToIgnore);
    job.tolerant = options.tolerant;
    job.modelSpace = options.modelSpace;
    job.units = UnitNamed(options.units);
    job.fidelity = FidelityOf(options.faithful, options, *form);
    job.seenAs = {options.expand, options.fromBasePoint,
                  options.visibleOnly || job.fidelity == encoding::Fidelity::kFaithful};
    job.whiteAs = options.whiteAs;
    return Finish(ConvertBlocks(input.ForJob(), job, *front), options.file, options.tolerant, options, *form,
                  *front);
}

} // namespace

void AddBlocksCommand(CommandLine& line) {
    const auto options = std::make_shared<BlocksOptions>();
    Command command =
        line.AddCommand("blocks", "Convert the blocks of a drawing", [options] { return Blocks(*options); });
    command.AddFile(options->file, "A DXF file or drawing document, or - for standard input");
    AddNameOption(command, options->names, "Convert only this block; may be given again");
    AddIgnoreLayerOption(command, options->layersToIgnore);
    AddShapesOption(command, options->shapeFolders);
    command.AddFlag("--model-space", options->modelSpace,
                    "Convert the model space, as one symbol named after the file, instead of the blocks");
    command.AddFlag("--expand", options->expand, "Draw what is inserted in the blocks");
    command.AddFlag("--from-base-point", options->fromBasePoint, "Draw blocks around their base points");
    command.AddFlag("--visible-only", options->visibleOnly,
                    "Leave out hidden entities, and layers that are off or frozen");
    command.AddReader(
        "--color-7", [options](const std::string& text) { return ReadColor(text, options->whiteAs); },
        "COLOR", "Draw colour 7 as black, white (the default) or #rrggbb");
    command.AddChoice("--units", options->units, UnitNames(),
                      "The unit of a drawing that names none (default: m)");
    AddTolerantOption(command, options->tolerant);
    AddFaithfulOption(command, options->faithful);
    AddCommonOptions(command, *options);
    AddStyleScaleOption(command, *options);
    AddStrictSymbolsOption(command, *options);
}

} // namespace styleconv
