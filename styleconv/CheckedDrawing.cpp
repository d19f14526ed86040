#include "styleconv/CheckedDrawing.h"

#include "OxDb/OxDb.h"
#include "StyleConversion/block/Opened.h"
#include "styleconv/CheckedBlock.h"
#include "styleconv/DrawingFile.h"
#include "styleconv/Messages.h"
#include "styleconv/Progress.h"
#include "styleconv/ShapeSearch.h"
#include "styleconv/WorkLimits.h"

#include <memory>

namespace styleconv {
namespace {

class DrawingCheck {
public:
    DrawingCheck(const InputFile& input, drawing::Database& drawing, const DrawingCheckOptions& options,
                 std::vector<Finding>& findings)
        : file_(input.Name()), drawing_(drawing),
          search_(input.Name(), input.Path(), options.shapeFolders, ShapeSearchManner::kQuiet),
          blockCheck_(input.Name(), drawing, search_, options.layersToIgnore), findings_(findings) {}

    void Check() {
        drawing_.LimitHatchLines(kMostHatchLines);
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
            NowAtItem(ItemOf(*record));
            if (record->isLayout() || record->isAnonymous()) {
                NoteNotConverted(*record);
            } else {
                hasBlocks = true;
                blockCheck_.Check(*record, findings_);
            }
        }
        if (!hasBlocks) {
            findings_.push_back({file_, 0, Severity::kError, kNoBlocks, ""});
        }
    }

private:
    void NoteNotConverted(const OxDbBlockTableRecord& record) {
        findings_.push_back({file_, 0, Severity::kNote,
                             std::string(record.isLayout() ? "a layout" : "an anonymous block") +
                                 " is converted only by --name",
                             ItemOf(record)});
    }

    // No map shows that many in one hatch, and a check is to be quick.
    static constexpr std::int32_t kMostHatchLines = 1000000;

    std::string file_;
    drawing::Database& drawing_;
    ShapeSearch search_;
    BlockCheck blockCheck_;
    std::vector<Finding>& findings_;
};

} // namespace

void CheckDrawing(const InputFile& input, const DrawingCheckOptions& options,
                  std::vector<Finding>& findings) {
    documents::DrawingFault fault;
    documents::DrawingSlips slips;
    const std::unique_ptr<drawing::Database> drawing = documents::ReadDrawing(input.Stream(), fault, &slips);
    if (!drawing) {
        findings.push_back({input.Name(), 0, Severity::kError, fault.Text(), ""});
        return;
    }
    AddDrawingSlips(input.Name(), slips, Severity::kError, findings);
    DrawingCheck(input, *drawing, options, findings).Check();
}

} // namespace styleconv
