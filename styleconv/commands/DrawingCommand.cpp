// styleconv drawing: a drawing of any form as a drawing document.
#include "conversions/Drawings.h"
#include "styleconv/commands/Commands.h"
#include "styleconv/commands/Job.h"
#include "styleconv/files/InputFile.h"
#include "styleconv/process/Messages.h"

#include <memory>

namespace styleconv {
namespace {

struct DrawingOptions {
    std::string file;
    std::string output;
    bool tolerant = false;
};

ExitStatus Drawing(const DrawingOptions& options) {
    InputFile input(options.file);
    if (const auto problem = input.Open()) {
        return SayProblem(*problem);
    }
    const auto front = FrontWithoutFiles(options.output.empty());
    const conversions::LoadedDrawing loaded = LoadDrawing(input.ForJob(), options.tolerant);
    if (loaded.drawing == nullptr) {
        return SayFailure(options.file, options.tolerant, loaded.diagnostics);
    }
    SayAll(loaded.diagnostics);
    return WriteResult(options.output, [&](const conversions::TextSink& sink) {
        return WriteDocument(*loaded.drawing, sink, *front);
    });
}

} // namespace

void AddDrawingCommand(CommandLine& line) {
    const auto options = std::make_shared<DrawingOptions>();
    Command command = line.AddCommand("drawing", "Write a drawing as a drawing document",
                                      [options] { return Drawing(*options); });
    command.AddFile(options->file, "A DXF file or drawing document, or - for standard input");
    AddTolerantOption(command, options->tolerant);
    AddOutputOption(command, options->output);
    // For those who give it to every command.
    command.AddOnlyChoice("--format", "json");
}

} // namespace styleconv
