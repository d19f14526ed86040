// styleconv linetypes: linetypes to line symbols.
#include "conversions/Linetypes.h"
#include "styleconv/commands/Commands.h"
#include "styleconv/commands/FontArguments.h"
#include "styleconv/commands/Job.h"
#include "styleconv/commands/ManyFiles.h"
#include "styleconv/files/InputFile.h"
#include "styleconv/files/ShapeSearch.h"

#include <memory>
#include <optional>
#include <utility>

namespace styleconv {
namespace {

struct LinetypesOptions : CommonOptions, StyleOptions {
    std::vector<std::string> files;
    bool allOrNothing = false;
    std::vector<std::string> names;
    std::string codePage;
    double scale = 1.0;
    bool tolerant = false;
    bool faithful = false;
};

conversions::Conversion ConvertOpenLinetypes(const LinetypesOptions& options, conversions::Form form,
                                             const InputFile& input, conversions::Front& front) {
    conversions::LinetypesOptions job;
    job.names = WideTexts(options.names);
    job.scale = options.scale;
    job.styleFonts = &options.fonts;
    job.tolerant = options.tolerant;
    job.fidelity = FidelityOf(options.faithful, options, form);
    return ConvertWithStyles(input.ForJob(options.codePage), std::move(job), options, front);
}

ExitStatus SeveralLinetypes(const LinetypesOptions& options, conversions::Form form) {
    if (!CheckSeveralFiles(options.files, "--name", !options.names.empty()) ||
        !CheckMakingOptions(options.files, {{"--scale", options.scale != 1.0}}) ||
        !CheckEncoding(options.codePage)) {
        return kUsageFault;
    }
    FilesToConvert files =
        FilesOfKind(conversions::FileKind::kLinetypes, options.files, options.allOrNothing, options.tolerant);
    files.names = WideTexts(options.names);
    return ConvertFiles(
        files,
        [&](const InputFile& input, conversions::FileKind /*kind*/, conversions::Front& front) {
            return ConvertOpenLinetypes(options, form, input, front);
        },
        [&](const std::string& file, conversions::FileKind /*kind*/) {
            return FrontForLinetypes({file, options.shapeFolders, FontsOf(options)}, options.output.empty());
        },
        options, form);
}

ExitStatus ConvertedLinetypes(const LinetypesOptions& options) {
    const std::optional<conversions::Form> form = FormOf(options, options.faithful);
    if (!form) {
        return kUsageFault;
    }
    if (options.files.size() > 1 || AreSymbolsAmong(options.files)) {
        return SeveralLinetypes(options, *form);
    }
    const std::string& file = options.files.front();
    InputFile input(file);
    if (const auto problem = input.Read()) {
        return SayProblem(*problem);
    }
    if (!CheckEncoding(options.codePage)) {
        return kUsageFault;
    }
    const auto front =
        FrontForLinetypes({file, options.shapeFolders, FontsOf(options)}, options.output.empty());
    return Finish(ConvertOpenLinetypes(options, *form, input, *front), file, options.tolerant, options, *form,
                  *front);
}

ExitStatus Linetypes(LinetypesOptions& options) {
    const ExitStatus status = ReadStyleOptions(options) ? ConvertedLinetypes(options) : kUsageFault;
    if (status != kUsageFault) {
        SayUnusedFonts(options);
    }
    return status;
}

} // namespace

void AddLinetypesCommand(CommandLine& line) {
    const auto options = std::make_shared<LinetypesOptions>();
    Command command = line.AddCommand("linetypes", "Convert the linetypes of a .lin file",
                                      [options] { return Linetypes(*options); });
    command.AddFiles(options->files, "A linetype file, - for standard input, or a symbols document");
    AddNameOption(command, options->names, "Convert only the linetypes of this name; may be given again");
    AddScaleOption(command, "--scale", options->scale, "Multiply all lengths by this (default: 1)");
    AddStyleOptions(command, *options);
    AddTolerantOption(command, options->tolerant);
    AddFaithfulOption(command, options->faithful);
    AddCodePageOption(command, options->codePage);
    AddAllOrNothingOption(command, options->allOrNothing);
    AddCommonOptions(command, *options);
    AddRestylingOptions(command, *options);
    AddStrictSymbolsOption(command, *options);
    AddBareOption(command, *options);
    AddLengthOption(command, *options);
    AddWithStyleOption(command, *options);
}

} // namespace styleconv
