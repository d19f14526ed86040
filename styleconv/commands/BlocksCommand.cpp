// styleconv blocks: blocks of a drawing to point symbols.
#include "conversions/Blocks.h"
#include "styleconv/commands/Commands.h"
#include "styleconv/commands/Job.h"
#include "styleconv/files/InputFile.h"
#include "styleconv/files/ShapeSearch.h"

#include <memory>

namespace styleconv {
namespace {

struct BlocksOptions : CommonOptions {
    std::string file;
    std::vector<std::string> names;
    std::vector<std::string> layersToIgnore;
    std::vector<std::string> shapeFolders;
    bool tolerant = false;
};

ExitStatus Blocks(const BlocksOptions& options) {
    InputFile input(options.file);
    if (const auto problem = input.Open()) {
        return SayProblem(*problem);
    }
    const auto front = FrontForDrawing({options.file, options.shapeFolders, {}}, options.output.empty());
    const conversions::BlocksOptions job = {WideTexts(options.names), WideTexts(options.layersToIgnore),
                                            options.tolerant};
    return Finish(ConvertBlocks(input.ForJob(), job, *front), options.file, options.tolerant, options,
                  *front);
}

} // namespace

void AddBlocksCommand(CommandLine& line) {
    const auto options = std::make_shared<BlocksOptions>();
    Command command = line.AddCommand("blocks", "Convert the blocks of a drawing document",
                                      [options] { return Blocks(*options); });
    command.AddFile(options->file, "A drawing document, or - for standard input");
    AddNameOption(command, options->names, "Convert only this block; may be given again");
    AddIgnoreLayerOption(command, options->layersToIgnore);
    AddShapesOption(command, options->shapeFolders);
    AddTolerantOption(command, options->tolerant);
    AddCommonOptions(command, *options);
}

} // namespace styleconv
