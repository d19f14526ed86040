#include "styleconv/BlocksCommand.h"

#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/platform/Utf8.h"
#include "drawing/Database.h"
#include "styleconv/DrawingFile.h"
#include "styleconv/Messages.h"
#include "styleconv/Progress.h"
#include "styleconv/ShapeSearch.h"
#include "styleconv/SymbolOutput.h"
#include "styleconv/WorkLimits.h"

#include <CLI/CLI.hpp>
#include <cstdint>
#include <memory>

namespace styleconv {
namespace {

struct BlocksOptions : CommonOptions {
    std::string file;
    std::vector<std::string> names;
    std::vector<std::string> layersToIgnore;
    std::vector<std::string> shapeFolders;
};

std::vector<std::wstring> Wide(const std::vector<std::string>& texts) {
    std::vector<std::wstring> wide;
    wide.reserve(texts.size());
    for (const std::string& text : texts) {
        wide.push_back(platform::Utf8ToWide(text));
    }
    return wide;
}

// False, after saying so, when there are none.
bool ConvertibleBlocks(const InputFile& input, BlockConverter& converter, std::vector<std::wstring>& names) {
    if (converter.GetBlockNames(names) != 0) {
        Say(input.Name(), "the blocks of the drawing cannot be listed");
        return false;
    }
    if (names.empty()) {
        Say(input.Name(), "the drawing has no block to convert: layouts and anonymous blocks are converted "
                          "only by --name");
        return false;
    }
    return true;
}

// False, after saying which, when one of the blocks is not there.
bool Convert(const InputFile& input, const drawing::Database& drawing, BlockConverter& converter,
             const std::vector<std::wstring>& names, Symbols& symbols) {
    BeginStage("Converting", names.size());
    for (const std::wstring& name : names) {
        NowAtItem("block " + Shown(name));
        const std::uint64_t tooDense = drawing.HatchesTooDense();
        std::unique_ptr<TylModel::SymbolDefinition> symbol(converter.Convert(name));
        if (drawing.HatchesTooDense() > tooDense) {
            Say(input.Name(),
                "block " + Shown(name) + ": a hatch has more lines than the limit of 2147483647");
            return false;
        }
        if (symbol) {
            symbols.push_back(std::move(symbol));
        } else {
            Say(input.Name(), "the drawing has no block named " + Shown(name));
        }
    }
    return symbols.size() == names.size();
}

ExitStatus Blocks(const BlocksOptions& options) {
    InputFile input(options.file);
    if (!input.Open()) {
        return kInputFault;
    }
    const std::unique_ptr<drawing::Database> drawing = ReadDrawing(input);
    if (!drawing) {
        return kInputFault;
    }
    ShapeSearch services(input.Name(), input.Path(), options.shapeFolders);
    services.setWorkingDatabase(drawing.get());
    oxdbSetHostApplicationServices(&services);

    BlockConverter converter(drawing.get());
    converter.SetLayersToIgnore(Wide(options.layersToIgnore));
    std::vector<std::wstring> names = Wide(options.names);
    Symbols symbols;
    const bool converted = (!names.empty() || ConvertibleBlocks(input, converter, names)) &&
                           Convert(input, *drawing, converter, names, symbols);
    oxdbSetHostApplicationServices(nullptr);
    return converted ? WriteSymbols(symbols, options) : kInputFault;
}

} // namespace

void AddBlocksCommand(CLI::App& app, Runner& runner) {
    const auto options = std::make_shared<BlocksOptions>();
    CLI::App* const command = app.add_subcommand("blocks", "Convert the blocks of a drawing document");
    command->add_option("FILE", options->file, "A drawing document, or - for standard input")->required();
    AddNameOption(*command, options->names, "Convert only this block; may be given again");
    command
        ->add_option("--ignore-layer", options->layersToIgnore,
                     "Leave out what is on this layer, spelled as its entities spell it; may be given again")
        ->type_name("LAYER")
        ->expected(1)
        ->take_all();
    AddShapesOption(*command, options->shapeFolders);
    AddCommonOptions(*command, *options);
    command->callback([options, &runner] { runner = [options] { return Blocks(*options); }; });
}

bool ListBlocks(const InputFile& input, std::vector<std::string>& names) {
    const std::unique_ptr<drawing::Database> drawing = ReadDrawing(input);
    if (!drawing) {
        return false;
    }
    BlockConverter converter(drawing.get());
    std::vector<std::wstring> wide;
    if (!ConvertibleBlocks(input, converter, wide)) {
        return false;
    }
    for (const std::wstring& name : wide) {
        names.push_back(platform::WideToValidUtf8(name));
    }
    return true;
}

} // namespace styleconv
