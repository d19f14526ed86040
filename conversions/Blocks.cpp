#include "conversions/Blocks.h"

#include "OxDb/OxDb.h"
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/block/Faithful.h"
#include "StyleConversion/block/Opened.h"
#include "StyleConversion/platform/Files.h"
#include "StyleConversion/platform/Utf8.h"
#include "conversions/checking/BlockCheck.h"
#include "conversions/checking/BlockLosses.h"
#include "conversions/reading/Drawing.h"
#include "conversions/reading/DrawingShapeFiles.h"
#include "conversions/reading/FileKind.h"
#include "conversions/reading/Shown.h"
#include "diagnostics/Sentences.h"

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <utility>

namespace conversions {
namespace {

using diagnostics::Code;
using diagnostics::Diagnostics;
using diagnostics::Outcome;
using diagnostics::Severity;

// False, which is said, where there are none.
bool ConvertibleBlocks(const Input& input, const drawing::Database& drawing, BlockConverter& converter,
                       std::vector<std::wstring>& names, Diagnostics& diagnostics) {
    if (converter.GetBlockNames(names) == 0 && !names.empty()) {
        return true;
    }
    diagnostics.push_back(NoBlocks(input.name, drawing));
    return false;
}

// The name of the file without folders and its end; empty for a stream without a name.
std::wstring FileStem(const std::string& file) {
    if (file == "standard input") {
        return {};
    }
    return platform::SplitPath(platform::PathFromBytes(file)).fileName;
}

class BlockConversion {
public:
    BlockConversion(const Input& input, drawing::Database& drawing, const BlocksOptions& options,
                    Front& front, Conversion& result)
        : input_(input), drawing_(drawing), options_(options), front_(front), converter_(&drawing),
          files_(input.name, options.tolerant, front), filesInUse_(files_),
          check_(input.name, drawing, files_, options.layersToIgnore),
          losses_(input.name, drawing, options.layersToIgnore), result_(result) {
        converter_.SetLayersToIgnore(options.layersToIgnore);
        if (options.fidelity == encoding::Fidelity::kFaithful) {
            faithful_.emplace();
        }
        result.fidelity = options.fidelity;
        if (options.tolerant) {
            drawing.LimitHatchLines(kMostHatchLines);
        }
    }

    void Run() {
        std::vector<std::wstring> names = options_.names;
        if (options_.modelSpace) {
            const drawing::BlockRecord* const space = ModelSpaceOf(drawing_);
            if (space == nullptr) {
                result_.diagnostics.push_back({Severity::kError, Code::kNoModelSpace, {input_.name}, {}});
                return;
            }
            names = {space->Name()};
        } else if (names.empty() &&
                   !ConvertibleBlocks(input_, drawing_, converter_, names, result_.diagnostics)) {
            return;
        }
        ForgetUnusedUnit(drawing_, names, result_.diagnostics);
        NotePositions();
        front_.BeginStage("Converting", names.size());
        Diagnostics found;
        for (const std::wstring& name : names) {
            front_.AtItem("block " + ShownText(name));
            ConvertOne(name, found);
        }
        Append(result_.diagnostics, files_.Told(!options_.tolerant));
        Append(result_.diagnostics, std::move(found));
        if (options_.tolerant && result_.owned.empty()) {
            result_.diagnostics.push_back(
                {Severity::kError, Code::kNothingConverted, {input_.name}, {"blocks asked for"}});
        }
        result_.isConverted =
            options_.tolerant ? !result_.owned.empty() : result_.owned.size() == names.size();
    }

private:
    // Or says why not.
    void ConvertOne(const std::wstring& name, Diagnostics& found) {
        const std::uint64_t tooDense = drawing_.HatchesTooDense();
        std::unique_ptr<drawing::BlockRecord> copy;
        if (ChangesBlocks(options_) && !Copy(name, copy, found)) {
            return;
        }
        const auto convert = [&](BlockConverter& converter) {
            return copy ? converter.Convert(copy.get()) : converter.Convert(name);
        };
        std::unique_ptr<TylModel::SymbolDefinition> symbol(convert(converter_));
        if (const std::uint64_t dense = drawing_.HatchesTooDense() - tooDense;
            !options_.tolerant && dense > 0) {
            // It cannot be evaluated; the rest of the block, and the other blocks, are worth having.
            diagnostics::Place place;
            place.file = input_.name;
            place.item = "block " + ShownText(name);
            found.push_back({Severity::kWarning,
                             Code::kDenseHatch,
                             std::move(place),
                             {std::to_string(drawing_.MostHatchLines())},
                             Outcome::kSkipped,
                             static_cast<std::size_t>(dense)});
        }
        if (symbol == nullptr) {
            found.push_back({options_.tolerant ? Severity::kWarning : Severity::kError,
                             Code::kMissingName,
                             {input_.name},
                             {"block", ShownText(name)}});
            return;
        }
        if (!faithful_) {
            Measure(*symbol, name, convert, found);
        }
        if (const std::wstring stem = FileStem(input_.name); options_.modelSpace && !stem.empty()) {
            symbol->SetName(stem);
        }
        result_.owned.push_back(std::move(symbol));
        result_.places.push_back(PlaceOf(name));
        if (options_.tolerant && copy) {
            check_.AddLosses(*copy, found);
        } else if (options_.tolerant) {
            TellLosses(name, found);
        }
    }

    // What the symbol loses is told, and is no reason to fail.
    void Measure(TylModel::SymbolDefinition& symbol, const std::wstring& name,
                 const BlockLosses::Convert& convert, Diagnostics& found) {
        auto losses = losses_.Of(symbol, "block " + ShownText(name), name, convert);
        if (!losses) {
            return;
        }
        losses->diagnostic.severity = Severity::kWarning;
        std::shared_ptr<TylModel::SymbolDefinition> faithful = std::move(losses->faithful);
        result_.captions.losses[&symbol] = {SentenceOf(losses->diagnostic), [faithful] { return faithful; }};
        found.push_back(std::move(losses->diagnostic));
    }

    void NotePositions() {
        if (!options_.tolerant && input_.name.ends_with(".json")) {
            for (const drawing::BlockRecord* const block : drawing_.Blocks()) {
                positions_.emplace(block, positions_.size());
            }
        }
    }

    // With the path of the value where nothing that was left out may have shifted it.
    diagnostics::Place PlaceOf(const std::wstring& name) const {
        diagnostics::Place place(input_.name);
        if (const auto found = positions_.find(drawing_.FindBlock(name)); found != positions_.end()) {
            place.path = "blocks[" + std::to_string(found->second) + "]";
        }
        return place;
    }

    // The block as it is to be seen; null where there is none of the name. False, which is said, where that
    // is too much.
    bool Copy(const std::wstring& name, std::unique_ptr<drawing::BlockRecord>& copy, Diagnostics& found) {
        const drawing::BlockRecord* const block = drawing_.FindBlock(name);
        if (block == nullptr) {
            return true;
        }
        copy = CopyAsSeen(options_, input_.name, drawing_, *block, found);
        return copy != nullptr;
    }

    void TellLosses(const std::wstring& name, Diagnostics& found) {
        block::Opened<OxDbBlockTable> table;
        block::Opened<OxDbBlockTableRecord> record;
        if (table.Accept(drawing_.getSymbolTable(table.Receive(), OxDb::kForRead)) &&
            record.Accept(table->getAt(name.c_str(), record.Receive(), OxDb::kForRead, false))) {
            check_.AddLosses(*record, found);
        }
    }

    // With more, the limit of memory would end the conversion, and all that is right were lost with the
    // hatch.
    static constexpr std::int32_t kMostHatchLines = 10000000;

    const Input& input_;
    drawing::Database& drawing_;
    const BlocksOptions& options_;
    Front& front_;
    BlockConverter converter_;
    DrawingShapeFiles files_;
    block::ShapeFilesInUse filesInUse_;
    std::optional<block::FaithfulInUse> faithful_;
    BlockCheck check_;
    BlockLosses losses_;
    Conversion& result_;
    std::unordered_map<const drawing::BlockRecord*, std::size_t> positions_; // in the drawing document
};

} // namespace

Conversion ConvertBlocks(const Input& input, const BlocksOptions& options, Front& front) {
    Conversion result;
    if (const auto drawing = ReadDrawing(input, options.tolerant, result.diagnostics)) {
        SetUnitAndColor(options, *drawing, result.diagnostics);
        BlockConversion(input, *drawing, options, front, result).Run();
    }
    if (result.isConverted) {
        result.UseAll();
    } else {
        TellWrongKind(input, FileKind::kDrawing, KindAdvice::kOtherCommand, result.diagnostics);
    }
    MergeAlike(result.diagnostics);
    return result;
}

Listing ListBlocks(const Input& input, bool tolerant) {
    Listing listing;
    if (const auto drawing = ReadDrawing(input, tolerant, listing.diagnostics)) {
        BlockConverter converter(drawing.get());
        std::vector<std::wstring> names;
        listing.isListed = ConvertibleBlocks(input, *drawing, converter, names, listing.diagnostics);
        for (const std::wstring& name : names) {
            listing.symbols.push_back({"block", platform::WideToValidUtf8(name), "", {input.name}});
        }
    }
    if (!listing.isListed) {
        TellWrongKind(input, FileKind::kDrawing, KindAdvice::kOtherName, listing.diagnostics);
    }
    return listing;
}

} // namespace conversions
