// Checks drawing documents.
#include "OxDb/OxDb.h"
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/block/Opened.h"
#include "StyleConversion/block/ShapeFileSource.h"
#include "conversions/checking/BlockCheck.h"
#include "conversions/checking/BlockLosses.h"
#include "conversions/checking/Check.h"
#include "conversions/reading/Drawing.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace conversions {
namespace {

using diagnostics::Code;
using diagnostics::Diagnostics;
using diagnostics::Severity;

class DrawingCheck {
public:
    DrawingCheck(const Input& input, drawing::Database& drawing, const CheckOptions& options, Front& front,
                 Diagnostics& found)
        : input_(input), drawing_(drawing), view_(options.view), front_(front),
          files_(input.name, false, front), filesInUse_(files_), converter_(&drawing),
          blockCheck_(input.name, drawing, files_, options.layersToIgnore),
          losses_(input.name, drawing, options.layersToIgnore), found_(found) {
        converter_.SetLayersToIgnore(options.layersToIgnore);
    }

    void Check() {
        drawing_.LimitHatchLines(kMostHatchLines);
        if (view_.modelSpace) {
            CheckModelSpace();
        } else {
            CheckBlocks();
        }
        ForgetUnusedUnit(drawing_, checked_, found_);
    }

private:
    void CheckModelSpace() {
        if (const drawing::BlockRecord* const space = ModelSpaceOf(drawing_)) {
            CheckBlock(*space);
        } else {
            found_.push_back({Severity::kError, Code::kNoModelSpace, {input_.name}, {}});
        }
    }

    void CheckBlocks() {
        block::Opened<OxDbBlockTable> table;
        if (!table.Accept(drawing_.getSymbolTable(table.Receive(), OxDb::kForRead))) {
            return;
        }
        OxDbBlockTableIterator* created = nullptr;
        const Oxsys::ErrorStatus status = table->newIterator(created, true, true);
        const auto iterator = block::Accepted(status, created);
        if (iterator == nullptr) {
            return;
        }
        bool hasBlocks = false;
        for (iterator->start(true, true); !iterator->done(); iterator->step(true, true)) {
            block::Opened<OxDbBlockTableRecord> record;
            if (!record.Accept(iterator->getRecord(record.Receive(), OxDb::kForRead, false))) {
                continue;
            }
            if (record->isLayout() || record->isAnonymous()) {
                NoteNotConverted(*record);
            } else {
                hasBlocks = true;
                CheckBlock(*record);
            }
        }
        if (!hasBlocks) {
            found_.push_back(NoBlocks(input_.name, drawing_));
        }
    }

    // As it is seen.
    void CheckBlock(const OxDbBlockTableRecord& record) {
        front_.AtItem(ItemOf(record));
        const wchar_t* name = nullptr;
        const bool isNamed = record.getName(name) == Oxsys::eOk && name != nullptr;
        const drawing::BlockRecord* const block = isNamed ? drawing_.FindBlock(name) : nullptr;
        if (block != nullptr) {
            checked_.push_back(block->Name());
        }
        if (!ChangesBlocks(view_) || block == nullptr) {
            blockCheck_.Check(record, false, found_);
            if (isNamed) {
                Measure(ItemOf(record), name,
                        [&](BlockConverter& converter) { return converter.Convert(std::wstring(name)); });
            }
        } else if (const auto copy = CopyAsSeen(view_, input_.name, drawing_, *block, found_)) {
            blockCheck_.Check(*copy, view_.seenAs.startsAtBasePoint, found_);
            Measure(ItemOf(record), name,
                    [&](BlockConverter& converter) { return converter.Convert(copy.get()); });
        }
    }

    void Measure(const std::string& item, const std::wstring& name, const BlockLosses::Convert& convert) {
        const std::unique_ptr<TylModel::SymbolDefinition> strict(convert(converter_));
        if (strict == nullptr) {
            return;
        }
        if (auto losses = losses_.Of(*strict, item, name, convert)) {
            found_.push_back(std::move(losses->diagnostic));
        }
    }

    void NoteNotConverted(const OxDbBlockTableRecord& record) {
        diagnostics::Place place;
        place.file = input_.name;
        place.item = ItemOf(record);
        found_.push_back({Severity::kNote,
                          Code::kOnlyByName,
                          std::move(place),
                          {record.isLayout() ? "a layout" : "an anonymous block"}});
    }

    // No map shows that many in one hatch, and a check is to be quick.
    static constexpr std::int32_t kMostHatchLines = 1000000;

    const Input& input_;
    drawing::Database& drawing_;
    const DrawingView& view_;
    Front& front_;
    DrawingShapeFiles files_;
    block::ShapeFilesInUse filesInUse_;
    BlockConverter converter_;
    BlockCheck blockCheck_;
    BlockLosses losses_;
    std::vector<std::wstring> checked_; // names of blocks
    Diagnostics& found_;
};

} // namespace

Diagnostics CheckDrawing(const Input& input, const CheckOptions& options, Front& front) {
    Diagnostics found;
    if (const auto drawing = CheckDrawingFile(input, found)) {
        SetUnitAndColor(options.view, *drawing, found);
        DrawingCheck(input, *drawing, options, front, found).Check();
    }
    return found;
}

} // namespace conversions
