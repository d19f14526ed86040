// styleconv glyphs: the shapes of a shape file, drawn.
#include "conversions/Glyphs.h"
#include "styleconv/commands/Commands.h"
#include "styleconv/commands/Job.h"
#include "styleconv/commands/ManyFiles.h"
#include "styleconv/files/InputFile.h"
#include "styleconv/process/Messages.h"

#include <memory>

namespace styleconv {
namespace {

struct GlyphsOptions : CommonOptions, conversions::GlyphsOptions {
    std::vector<std::string> files;
    bool allOrNothing = false;
    std::string codePage;
};

std::vector<MakingOption> GlyphsMakingOptions(const GlyphsOptions& options) {
    return {{"--number", !options.numbers.empty()},
            {"--scale", options.scale != 1.0},
            {"--rotation", options.rotation != 0.0},
            {"--at", options.x != 0.0 || options.y != 0.0},
            {"--vertical", options.vertical}};
}

ExitStatus SeveralGlyphs(const GlyphsOptions& options, conversions::Form form) {
    if (!CheckSeveralFiles(options.files, "--number", !options.numbers.empty()) ||
        !CheckMakingOptions(options.files, GlyphsMakingOptions(options)) ||
        !CheckEncoding(options.codePage)) {
        return kUsageFault;
    }
    return ConvertFiles(
        FilesOfKind(conversions::FileKind::kShapes, options.files, options.allOrNothing, options.tolerant),
        [&](const InputFile& input, conversions::FileKind /*kind*/, conversions::Front& front) {
            return ConvertGlyphs(input.ForJob(options.codePage), options, front);
        },
        [&](const std::string& /*file*/, conversions::FileKind /*kind*/) {
            return FrontWithoutFiles(options.output.empty());
        },
        options, form);
}

ExitStatus Glyphs(const GlyphsOptions& options) {
    const std::optional<conversions::Form> form = FormOf(options);
    if (!form) {
        return kUsageFault;
    }
    if (options.files.size() > 1 || AreSymbolsAmong(options.files)) {
        return SeveralGlyphs(options, *form);
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
    conversions::ChosenGlyphs glyphs = ChooseGlyphs(input.ForJob(options.codePage), options, *front);
    if (!glyphs.isConverted) {
        return SayFailure(file, options.tolerant, glyphs.diagnostics);
    }
    if (!CheckCount(options, *form, glyphs.positions.size(), "choose one with --number")) {
        return kUsageFault;
    }
    SayAll(glyphs.diagnostics);
    glyphs.captions.title = TitleOf(file);
    return WriteForm(options, *form, file,
                     [&](const conversions::TextSink& sink, conversions::StyleJob& styles) {
                         return WriteGlyphs(glyphs, options, *form, sink, *front, &styles);
                     });
}

} // namespace

void AddGlyphsCommand(CommandLine& line) {
    const auto options = std::make_shared<GlyphsOptions>();
    Command command = line.AddCommand("glyphs", "Draw the shapes of a shape or font file",
                                      [options] { return Glyphs(*options); });
    command.AddFiles(options->files, "A .shx file, - for standard input, or a symbols document");
    command.AddIntegers("--number", options->numbers, "N", "Draw only this shape; may be given again");
    AddScaleOption(command, "--scale", options->scale, "Path units per shape unit (default: 1)");
    AddNumberOption(command, "--rotation", options->rotation,
                    "Degrees by which shapes are turned counter-clockwise (default: 0)");
    AddPointOption(command, "--at", options->x, options->y,
                   "Where every shape begins, in path units (default: 0,0)");
    command.AddFlag("--vertical", options->vertical, "Draw as in vertical text");
    AddTolerantOption(command, options->tolerant);
    AddCodePageOption(command, options->codePage);
    AddAllOrNothingOption(command, options->allOrNothing);
    AddBareOption(command, *options);
    AddWithStyleOption(command, *options);
    AddCommonOptions(command, *options);
}

} // namespace styleconv
