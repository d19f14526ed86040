// styleconv blocks: blocks of a drawing to point symbols.
#include "conversions/Blocks.h"
#include "styleconv/commands/Commands.h"
#include "styleconv/commands/DrawingViewOptions.h"
#include "styleconv/commands/Job.h"
#include "styleconv/files/InputFile.h"
#include "styleconv/files/ShapeSearch.h"
#include "styleconv/process/Messages.h"

#include <memory>
#include <optional>

namespace styleconv {
namespace {

struct BlocksOptions : CommonOptions, DrawingViewOptions {
    std::string file;
    std::vector<std::string> names;
    std::vector<std::string> layersToIgnore;
    std::vector<std::string> shapeFolders;
    bool tolerant = false;
    bool faithful = false;
};

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
    static_cast<conversions::DrawingView&>(job) = ViewOf(options);
    job.names = WideTexts(options.names);
    job.layersToIgnore = WideTexts(options.layersToIgnore);
    job.tolerant = options.tolerant;
    job.fidelity = FidelityOf(options.faithful, options, *form);
    const bool isFaithful = job.fidelity == encoding::Fidelity::kFaithful;
    job.seenAs.leavesOutHidden = options.visibleOnly || isFaithful;
    job.seenAs.drawsOthers = isFaithful;
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
    AddDrawingViewOptions(command, *options);
    AddTolerantOption(command, options->tolerant);
    AddFaithfulOption(command, options->faithful);
    AddCommonOptions(command, *options);
    AddStyleScaleOption(command, *options);
    AddStrictSymbolsOption(command, *options);
}

} // namespace styleconv
