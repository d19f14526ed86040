// styleconv patterns: hatch patterns to area symbols.
#include "conversions/Patterns.h"
#include "styleconv/commands/Commands.h"
#include "styleconv/commands/Job.h"
#include "styleconv/commands/ManyFiles.h"
#include "styleconv/files/InputFile.h"

#include <memory>

namespace styleconv {
namespace {

struct PatternsOptions : CommonOptions {
    std::vector<std::string> files;
    bool allOrNothing = false;
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

conversions::PatternsOptions PatternsJob(const PatternsOptions& options, conversions::Form form) {
    return {WideTexts(options.names), options.tolerant, UnitNamed(options.units),
            FidelityOf(options.faithful, options, form)};
}

ExitStatus SeveralPatterns(const PatternsOptions& options, conversions::Form form) {
    if (!CheckSeveralFiles(options.files, "--name", !options.names.empty()) ||
        !CheckMakingOptions(options.files, {{"--units", !options.units.empty()}}) ||
        !CheckEncoding(options.codePage)) {
        return kUsageFault;
    }
    FilesToConvert files =
        FilesOfKind(conversions::FileKind::kPatterns, options.files, options.allOrNothing, options.tolerant);
    files.names = WideTexts(options.names);
    return ConvertFiles(
        files,
        [&](const InputFile& input, conversions::FileKind /*kind*/, conversions::Front& front) {
            return ConvertPatterns(input.ForJob(options.codePage), PatternsJob(options, form), front);
        },
        [&](const std::string& /*file*/, conversions::FileKind /*kind*/) {
            return FrontWithoutFiles(options.output.empty());
        },
        options, form);
}

ExitStatus Patterns(const PatternsOptions& options) {
    const std::optional<conversions::Form> form = FormOf(options, options.faithful);
    if (!form) {
        return kUsageFault;
    }
    if (options.files.size() > 1 || AreSymbolsAmong(options.files)) {
        return SeveralPatterns(options, *form);
    }
    const std::string& file = options.files.front();
    InputFile input(file);
    if (const auto problem = input.Read()) {
        return SayProblem(*problem);
    }
    if (!CheckEncoding(options.codePage)) {
        return kUsageFault;
    }
    const auto front = FrontWithoutFiles(options.output.empty());
    return Finish(ConvertPatterns(input.ForJob(options.codePage), PatternsJob(options, *form), *front), file,
                  options.tolerant, options, *form, *front);
}

} // namespace

void AddPatternsCommand(CommandLine& line) {
    const auto options = std::make_shared<PatternsOptions>();
    Command command = line.AddCommand("patterns", "Convert the hatch patterns of a .pat file",
                                      [options] { return Patterns(*options); });
    command.AddFiles(options->files, "A pattern file, - for standard input, or a symbols document");
    AddNameOption(command, options->names, "Convert only this pattern; may be given again");
    AddTolerantOption(command, options->tolerant);
    AddFaithfulOption(command, options->faithful);
    command.AddChoice("--units", options->units, {"mm", "inch"},
                      "Scale to this unit, mm or inch, a file that says ;%UNITS= otherwise");
    AddCodePageOption(command, options->codePage);
    AddAllOrNothingOption(command, options->allOrNothing);
    AddCommonOptions(command, *options);
    AddHatchUnitsOption(command, *options);
    AddStyleScaleOption(command, *options);
    AddRestylingOptions(command, *options);
    AddStrictSymbolsOption(command, *options);
    AddBareOption(command, *options);
    AddWithStyleOption(command, *options);
    AddApproximateOption(command, *options);
}

} // namespace styleconv
