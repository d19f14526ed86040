// styleconv glyphs: the shapes of a shape file, drawn.
#include "conversions/Glyphs.h"
#include "styleconv/commands/Commands.h"
#include "styleconv/commands/Job.h"
#include "styleconv/files/InputFile.h"
#include "styleconv/process/Messages.h"

#include <memory>

namespace styleconv {
namespace {

struct GlyphsOptions : CommonOptions, conversions::GlyphsOptions {
    std::string file;
    std::string codePage;
};

ExitStatus Glyphs(const GlyphsOptions& options) {
    const std::optional<conversions::Form> form = FormOf(options);
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
    conversions::ChosenGlyphs glyphs = ChooseGlyphs(input.ForJob(options.codePage), options, *front);
    if (!glyphs.isConverted) {
        return SayFailure(options.file, options.tolerant, glyphs.diagnostics);
    }
    SayAll(glyphs.diagnostics);
    glyphs.captions.title = TitleOf(options.file);
    return WriteForm(options, options.file,
                     [&](const conversions::TextSink& sink, conversions::StyleJob& styles) {
                         return WriteGlyphs(glyphs, options, *form, sink, *front, &styles);
                     });
}

} // namespace

void AddGlyphsCommand(CommandLine& line) {
    const auto options = std::make_shared<GlyphsOptions>();
    Command command = line.AddCommand("glyphs", "Draw the shapes of a shape or font file",
                                      [options] { return Glyphs(*options); });
    command.AddFile(options->file, "A .shx file, or - for standard input");
    command.AddIntegers("--number", options->numbers, "N", "Draw only this shape; may be given again");
    AddScaleOption(command, "--scale", options->scale, "Path units per shape unit (default: 1)");
    AddNumberOption(command, "--rotation", options->rotation,
                    "Degrees by which shapes are turned counter-clockwise (default: 0)");
    AddPointOption(command, "--at", options->x, options->y,
                   "Where every shape begins, in path units (default: 0,0)");
    command.AddFlag("--vertical", options->vertical, "Draw as in vertical text");
    AddTolerantOption(command, options->tolerant);
    AddCodePageOption(command, options->codePage);
    AddCommonOptions(command, *options);
}

} // namespace styleconv
