// styleconv linetypes: linetypes to line symbols.
#include "conversions/Linetypes.h"
#include "styleconv/commands/Commands.h"
#include "styleconv/commands/Job.h"
#include "styleconv/files/InputFile.h"
#include "styleconv/files/ShapeSearch.h"

#include <memory>
#include <optional>

namespace styleconv {
namespace {

struct LinetypesOptions : CommonOptions, StyleOptions {
    std::string file;
    std::vector<std::string> names;
    std::string codePage;
    double scale = 1.0;
    bool tolerant = false;
    bool faithful = false;
};

ExitStatus Linetypes(const LinetypesOptions& options) {
    if (!CheckStyleOptions(options)) {
        return kUsageFault;
    }
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
    InputFile drawing(options.drawing);
    if (const auto problem = options.drawing.empty() ? std::nullopt : drawing.Open()) {
        return SayProblem(*problem);
    }
    conversions::LinetypesOptions job;
    job.names = WideTexts(options.names);
    job.scale = options.scale;
    job.font = options.font;
    job.tolerant = options.tolerant;
    job.fidelity = FidelityOf(options.faithful, options, *form);
    if (!options.drawing.empty()) {
        job.drawing = drawing.ForJob();
    }
    const auto front =
        FrontForLinetypes({options.file, options.shapeFolders, options.font}, options.output.empty());
    return Finish(ConvertLinetypes(input.ForJob(options.codePage), job, *front), options.file,
                  options.tolerant, options, *form, *front);
}

} // namespace

void AddLinetypesCommand(CommandLine& line) {
    const auto options = std::make_shared<LinetypesOptions>();
    Command command = line.AddCommand("linetypes", "Convert the linetypes of a .lin file",
                                      [options] { return Linetypes(*options); });
    command.AddFile(options->file, "A linetype file, or - for standard input");
    AddNameOption(command, options->names, "Convert only the linetypes of this name; may be given again");
    AddScaleOption(command, "--scale", options->scale, "Multiply all lengths by this (default: 1)");
    AddStyleOptions(command, *options);
    AddTolerantOption(command, options->tolerant);
    AddFaithfulOption(command, options->faithful);
    AddCodePageOption(command, options->codePage);
    AddCommonOptions(command, *options);
    AddStrictSymbolsOption(command, *options);
}

} // namespace styleconv
