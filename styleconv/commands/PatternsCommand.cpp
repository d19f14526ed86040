// styleconv patterns: hatch patterns to area symbols.
#include "conversions/Patterns.h"
#include "styleconv/commands/Commands.h"
#include "styleconv/commands/Job.h"
#include "styleconv/files/InputFile.h"

#include <memory>

namespace styleconv {
namespace {

struct PatternsOptions : CommonOptions {
    std::string file;
    std::vector<std::string> names;
    std::string codePage;
    std::string units;
    bool tolerant = false;
    bool faithful = false;
};

pattern::Unit UnitNamed(const std::string& units) {
    if (units.empty()) {
        return pattern::Unit::kNone;
    }
    return units == "mm" ? pattern::Unit::kMillimetre : pattern::Unit::kInch;
}

ExitStatus Patterns(const PatternsOptions& options) {
    const std::optional<conversions::Form> form = FormOf(options, options.faithful);
    if (!form) {
        return kUsageFault;
    }
    InputFile input(options.file);
    if (const auto problem = input.Read()) {
        return SayProblem(*problem);
    }
    if (!CheckEncoding(options.codePage)) {
        return kUsageFault;
    }
    const auto front = FrontWithoutFiles(options.output.empty());
    const conversions::PatternsOptions job = {WideTexts(options.names), options.tolerant,
                                              UnitNamed(options.units),
                                              FidelityOf(options.faithful, options, *form)};
    return Finish(ConvertPatterns(input.ForJob(options.codePage), job, *front), options.file,
                  options.tolerant, options, *form, *front);
}

} // namespace

void AddPatternsCommand(CommandLine& line) {
    const auto options = std::make_shared<PatternsOptions>();
    Command command = line.AddCommand("patterns", "Convert the hatch patterns of a .pat file",
                                      [options] { return Patterns(*options); });
    command.AddFile(options->file, "A pattern file, or - for standard input");
    AddNameOption(command, options->names, "Convert only this pattern; may be given again");
    AddTolerantOption(command, options->tolerant);
    AddFaithfulOption(command, options->faithful);
    command.AddChoice("--units", options->units, {"mm", "inch"},
                      "Scale to this unit, mm or inch, a file that says ;%UNITS= otherwise");
    AddCodePageOption(command, options->codePage);
    AddCommonOptions(command, *options);
    command.AddChoice("--hatch-units", options->style.hatchUnits, {"map", "mm"},
                      "With --format qgis: repeat hatches in units of the map, or in mm of the page");
    AddStyleScaleOption(command, *options);
    AddStrictSymbolsOption(command, *options);
}

} // namespace styleconv
