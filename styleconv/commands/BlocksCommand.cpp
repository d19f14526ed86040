// styleconv blocks: blocks of a drawing to point symbols.
#include "conversions/Blocks.h"
#include "styleconv/commands/Commands.h"
#include "styleconv/commands/DrawingViewOptions.h"
#include "styleconv/commands/Job.h"
#include "styleconv/commands/ManyFiles.h"
#include "styleconv/files/InputFile.h"
#include "styleconv/files/ShapeSearch.h"
#include "styleconv/process/Messages.h"

#include <memory>
#include <optional>

namespace styleconv {
namespace {

struct BlocksOptions : CommonOptions, DrawingViewOptions {
    std::vector<std::string> files;
    bool allOrNothing = false;
    std::vector<std::string> names;
    std::vector<std::string> layersToIgnore;
    std::vector<std::string> shapeFolders;
    bool tolerant = false;
    bool faithful = false;
};

conversions::BlocksOptions BlocksJob(const BlocksOptions& options, conversions::Form form) {
    conversions::BlocksOptions job;
    static_cast<conversions::DrawingView&>(job) = ViewOf(options);
    job.names = WideTexts(options.names);
    job.layersToIgnore = WideTexts(options.layersToIgnore);
    job.tolerant = options.tolerant;
    job.fidelity = FidelityOf(options.faithful, options, form);
    const bool isFaithful = job.fidelity == encoding::Fidelity::kFaithful;
    job.seenAs.leavesOutHidden = options.visibleOnly || isFaithful;
    job.seenAs.drawsOthers = isFaithful;
    job.seenAs.drawsDashes = isFaithful;
    return job;
}

std::vector<MakingOption> BlocksMakingOptions(const BlocksOptions& options) {
    return {{"--ignore-layer", !options.layersToIgnore.empty()},
            {"--model-space", options.modelSpace},
            {"--expand", options.expand},
            {"--from-base-point", options.fromBasePoint},
            {"--visible-only", options.visibleOnly},
            {"--color-7", options.whiteAs.has_value()},
            {"--units", !options.units.empty()}};
}

ExitStatus SeveralBlocks(const BlocksOptions& options, conversions::Form form) {
    if (!CheckSeveralFiles(options.files, "--name", !options.names.empty()) ||
        !CheckMakingOptions(options.files, BlocksMakingOptions(options))) {
        return kUsageFault;
    }
    FilesToConvert files =
        FilesOfKind(conversions::FileKind::kDrawing, options.files, options.allOrNothing, options.tolerant);
    files.names = WideTexts(options.names);
    return ConvertFiles(
        files,
        [&](const InputFile& input, conversions::FileKind /*kind*/, conversions::Front& front) {
            return ConvertBlocks(input.ForJob(), BlocksJob(options, form), front);
        },
        [&](const std::string& file, conversions::FileKind /*kind*/) {
            return FrontForDrawing({file, options.shapeFolders, {}}, options.output.empty());
        },
        options, form);
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
    if (options.files.size() > 1 || AreSymbolsAmong(options.files)) {
        return SeveralBlocks(options, *form);
    }
    const std::string& file = options.files.front();
    InputFile input(file);
    if (const auto problem = input.Open()) {
        return SayProblem(*problem);
    }
    const auto front = FrontForDrawing({file, options.shapeFolders, {}}, options.output.empty());
    return Finish(ConvertBlocks(input.ForJob(), BlocksJob(options, *form), *front), file, options.tolerant,
                  options, *form, *front);
}

} // namespace

void AddBlocksCommand(CommandLine& line) {
    const auto options = std::make_shared<BlocksOptions>();
    Command command =
        line.AddCommand("blocks", "Convert the blocks of a drawing", [options] { return Blocks(*options); });
    command.AddFiles(options->files,
                     "A DXF file or drawing document, - for standard input, or a symbols document");
    AddNameOption(command, options->names, "Convert only this block; may be given again");
    AddIgnoreLayerOption(command, options->layersToIgnore);
    AddShapesOption(command, options->shapeFolders);
    AddDrawingViewOptions(command, *options);
    AddTolerantOption(command, options->tolerant);
    AddFaithfulOption(command, options->faithful);
    AddAllOrNothingOption(command, options->allOrNothing);
    AddCommonOptions(command, *options);
    AddStyleScaleOption(command, *options);
    AddRestylingOptions(command, *options);
    AddStrictSymbolsOption(command, *options);
    AddBareOption(command, *options);
    AddWithStyleOption(command, *options);
}

} // namespace styleconv
