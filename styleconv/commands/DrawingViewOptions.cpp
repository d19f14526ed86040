// The options that say what of a drawing is converted, and how it is seen.
#include "styleconv/commands/DrawingViewOptions.h"

#include "styleconv/commands/Options.h"

#include <cstdint>
#include <vector>

namespace styleconv {
namespace {

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

OxDb::UnitsValue DrawingUnitNamed(const std::string& name) {
    for (const UnitName& unit : kUnits) {
        if (unit.name == name) {
            return unit.unit;
        }
    }
    return OxDb::kUnitsUndefined;
}

std::string ReadColor(const std::string& text, std::optional<OxCmColor>& color) {
    std::uint32_t channels = 0;
    std::string expected = ReadColorArgument(text, channels);
    if (!expected.empty()) {
        return expected;
    }
    color.emplace().setRGB(static_cast<std::uint8_t>(channels >> 16U & 0xffU),
                           static_cast<std::uint8_t>(channels >> 8U & 0xffU),
                           static_cast<std::uint8_t>(channels & 0xffU));
    return {};
}

} // namespace

void AddDrawingViewOptions(Command& command, DrawingViewOptions& options) {
    command.AddFlag("--model-space", options.modelSpace,
                    "Convert the model space, as one symbol named after the file, instead of the blocks");
    command.AddFlag("--expand", options.expand, "Draw what is inserted in the blocks");
    command.AddFlag("--from-base-point", options.fromBasePoint, "Draw blocks around their base points");
    command.AddFlag("--visible-only", options.visibleOnly,
                    "Leave out hidden entities, and layers that are off or frozen");
    command.AddReader(
        "--color-7", [&options](const std::string& text) { return ReadColor(text, options.whiteAs); },
        "COLOR", "Draw colour 7 as black, white (the default) or #rrggbb");
    command.AddChoice("--units", options.units, UnitNames(),
                      "The unit of a drawing that names none (default: m)");
}

conversions::DrawingView ViewOf(const DrawingViewOptions& options) {
    conversions::DrawingView view;
    view.modelSpace = options.modelSpace;
    view.units = DrawingUnitNamed(options.units);
    view.seenAs.expandsInserts = options.expand;
    view.seenAs.startsAtBasePoint = options.fromBasePoint;
    view.seenAs.leavesOutHidden = options.visibleOnly;
    view.whiteAs = options.whiteAs;
    return view;
}

} // namespace styleconv
