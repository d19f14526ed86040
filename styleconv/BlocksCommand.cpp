#include "styleconv/BlocksCommand.h"

#include "OxDb/OxDb.h"
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/block/Opened.h"
#include "StyleConversion/platform/Utf8.h"
#include "drawing/Database.h"
#include "styleconv/CheckedBlock.h"
#include "styleconv/DrawingFile.h"
#include "styleconv/Finding.h"
#include "styleconv/Messages.h"
#include "styleconv/Progress.h"
#include "styleconv/ShapeSearch.h"
#include "styleconv/SymbolOutput.h"
#include "styleconv/WorkLimits.h"

#include <cstdint>
#include <memory>
#include <utility>

namespace styleconv {
namespace {

struct BlocksOptions : CommonOptions {
    std::string file;
    std::vector<std::string> names;
    std::vector<std::string> layersToIgnore;
    std::vector<std::string> shapeFolders;
    bool tolerant = false;
};

// False, after saying so, when there are none.
bool ConvertibleBlocks(const InputFile& input, BlockConverter& converter, std::vector<std::wstring>& names) {
    if (converter.GetBlockNames(names) != 0) {
        Say(input.Name(), "the blocks of the drawing cannot be listed");
        return false;
    }
    if (names.empty()) {
        Say(input.Name(), kNoBlocks);
        return false;
    }
    return true;
}

class Conversion {
public:
    Conversion(const InputFile& input, drawing::Database& drawing, const BlocksOptions& options)
        : input_(input), drawing_(drawing), isTolerant_(options.tolerant),
          layersToIgnore_(WideTexts(options.layersToIgnore)), converter_(&drawing),
          search_(input.Name(), input.Path(), options.shapeFolders,
                  options.tolerant ? ShapeSearchManner::kForgiving : ShapeSearchManner::kSayNotes),
          check_(input.Name(), drawing, search_, layersToIgnore_) {
        converter_.SetLayersToIgnore(layersToIgnore_);
        if (isTolerant_) {
            drawing.LimitHatchLines(kMostHatchLines);
        }
        search_.setWorkingDatabase(&drawing);
        oxdbSetHostApplicationServices(&search_);
    }
    ~Conversion() { oxdbSetHostApplicationServices(nullptr); }
    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;

    // Those of the names, or all that can be converted. False, after saying why, when one is not there; a
    // tolerant conversion needs but one.
    bool Convert(std::vector<std::wstring> names, Symbols& symbols) {
        if (names.empty() && !ConvertibleBlocks(input_, converter_, names)) {
            return false;
        }
        BeginStage("Converting", names.size());
        for (const std::wstring& name : names) {
            NowAtItem("block " + Shown(name));
            ConvertOne(name, symbols);
        }
        if (isTolerant_ && symbols.empty()) {
            Say(input_.Name(), "none of the blocks asked for can be converted");
        }
        return isTolerant_ ? !symbols.empty() : symbols.size() == names.size();
    }

private:
    // Or says why not.
    void ConvertOne(const std::wstring& name, Symbols& symbols) {
        const std::uint64_t tooDense = drawing_.HatchesTooDense();
        std::unique_ptr<TylModel::SymbolDefinition> symbol(converter_.Convert(name));
        if (!isTolerant_ && drawing_.HatchesTooDense() > tooDense) {
            // It cannot be evaluated; the rest of the block, and the other blocks, are worth having.
            Say(input_.Name(), "warning: block " + Shown(name) + ": a hatch has more than " +
                                   std::to_string(drawing_.MostHatchLines()) + " lines and is left out");
        }
        if (symbol == nullptr) {
            SayMissing(input_.Name(), "the drawing has no block named " + Shown(name), isTolerant_);
            return;
        }
        symbols.push_back(std::move(symbol));
        if (isTolerant_) {
            SayLosses(name);
        }
    }

    void SayLosses(const std::wstring& name) {
        block::Opened<OxDbBlockTable> table;
        block::Opened<OxDbBlockTableRecord> record;
        if (table.Accept(drawing_.getSymbolTable(table.Receive(), OxDb::kForRead)) &&
            record.Accept(table->getAt(name.c_str(), record.Receive(), OxDb::kForRead, false))) {
            std::vector<Finding> losses;
            check_.AddLosses(*record, losses);
            SayFindings(losses);
        }
    }

    // With more, the limit of memory would end the conversion, and all that is right were lost with the
    // hatch.
    static constexpr std::int32_t kMostHatchLines = 10000000;

    const InputFile& input_;
    drawing::Database& drawing_;
    bool isTolerant_;
    std::vector<std::wstring> layersToIgnore_;
    BlockConverter converter_;
    ShapeSearch search_;
    BlockCheck check_;
};

ExitStatus Blocks(const BlocksOptions& options) {
    InputFile input(options.file);
    if (!input.Open()) {
        return kInputFault;
    }
    const std::unique_ptr<drawing::Database> drawing = ReadDrawing(input, options.tolerant);
    if (!drawing) {
        return kInputFault;
    }
    Symbols symbols;
    Conversion conversion(input, *drawing, options);
    return conversion.Convert(WideTexts(options.names), symbols) ? WriteSymbols(symbols, options)
                                                                 : kInputFault;
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

bool ListBlocks(const InputFile& input, std::vector<std::string>& names) {
    const std::unique_ptr<drawing::Database> drawing = ReadDrawing(input, false);
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
