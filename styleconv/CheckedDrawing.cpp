#include "styleconv/CheckedDrawing.h"

#include "OxDb/OxDb.h"
#include "StyleConversion/block/Opened.h"
#include "StyleConversion/platform/Files.h"
#include "drawing/HostServices.h"
#include "styleconv/DrawingFile.h"
#include "styleconv/Messages.h"
#include "styleconv/WorkLimits.h"

#include <array>
#include <map>
#include <memory>
#include <utility>

namespace styleconv {
namespace {

// What there is of the entities of one block, by what is wrong with them: how many.
using Counts = std::map<std::pair<Severity, std::string>, std::size_t>;

std::string Counted(std::size_t count) {
    return count == 1 ? "1 entity" : std::to_string(count) + " entities";
}

bool IsDrawn(const OxDbEntity& entity) {
    const std::array<const OxRxClass*, 11> drawn{OxDbPoint::desc(),   OxDbLine::desc(),  OxDbPolyline::desc(),
                                                 OxDbSpline::desc(),  OxDbArc::desc(),   OxDbCircle::desc(),
                                                 OxDbEllipse::desc(), OxDbHatch::desc(), OxDbMPolygon::desc(),
                                                 OxDbText::desc(),    OxDbMText::desc()};
    for (const OxRxClass* const wanted : drawn) {
        if (entity.isKindOf(wanted)) {
            return true;
        }
    }
    return false;
}

class DrawingCheck {
public:
    DrawingCheck(const InputFile& input, const std::vector<std::string>& shapeFolders,
                 std::vector<Finding>& findings)
        : input_(input), services_(Directories(input, shapeFolders)), findings_(findings) {}

    void Check(drawing::Database& drawing) {
        drawing.LimitHatchLines(kMostHatchLines);
        block::Opened<OxDbBlockTable> table;
        if (!table.Accept(drawing.getSymbolTable(table.Receive(), OxDb::kForRead))) {
            return;
        }
        OxDbBlockTableIterator* created = nullptr;
        const Oxsys::ErrorStatus status = table->newIterator(created, true, true);
        const auto iterator = block::Accepted(status, created);
        if (iterator == nullptr) {
            return;
        }
        for (iterator->start(true, true); !iterator->done(); iterator->step(true, true)) {
            block::Opened<OxDbBlockTableRecord> record;
            if (record.Accept(iterator->getRecord(record.Receive(), OxDb::kForRead, false)) &&
                !record->isLayout() && !record->isAnonymous()) {
                CheckBlock(*record);
            }
        }
    }

private:
    static std::vector<std::wstring> Directories(const InputFile& input,
                                                 const std::vector<std::string>& shapeFolders) {
        const platform::PathParts parts = platform::SplitPath(input.Path());
        std::vector<std::wstring> directories{parts.drive + parts.directory};
        for (const std::string& folder : shapeFolders) {
            directories.push_back(platform::PathFromBytes(folder));
        }
        return directories;
    }

    void CheckBlock(const OxDbBlockTableRecord& record) {
        const wchar_t* name = nullptr;
        if (record.getName(name) != Oxsys::eOk || name == nullptr) {
            return;
        }
        const std::string item = "block " + Shown(name);
        NowAtItem(item);
        Counts counts;
        bool hasByBlock = false;
        OxDbBlockTableRecordIterator* created = nullptr;
        const Oxsys::ErrorStatus status = record.newIterator(created, true, true);
        const auto iterator = block::Accepted(status, created);
        if (iterator == nullptr) {
            return;
        }
        for (iterator->start(true, true); !iterator->done(); iterator->step(true, true)) {
            block::Opened<OxDbEntity> entity;
            if (entity.Accept(iterator->getEntity(entity.Receive(), OxDb::kForRead, false))) {
                CheckEntity(*entity, counts);
                hasByBlock = hasByBlock || entity->color().isByBlock();
            }
        }
        for (const auto& [what, count] : counts) {
            findings_.push_back({input_.Name(), 0, what.first, Counted(count) + " " + what.second, item});
        }
        if (hasByBlock && IsNeverInserted(record)) {
            findings_.push_back(
                {input_.Name(), 0, Severity::kWarning,
                 "it has colours by block, but nothing inserts it: there is no colour to take", item});
        }
    }

    void CheckEntity(OxDbEntity& entity, Counts& counts) {
        if (!IsDrawn(entity)) {
            ++counts[{Severity::kWarning,
                      "of the class " + Shown(entity.isA()->name()) + " will not be drawn"}];
            return;
        }
        if (entity.isKindOf(OxDbHatch::desc())) {
            auto& hatch = static_cast<OxDbHatch&>(entity);
            if (!hatch.isSolidFill() && hatch.evaluateHatch(false) != Oxsys::eOk) {
                ++counts[{Severity::kError, "(hatch) cannot be worked out: no pattern, or too many lines"}];
            }
        }
        CheckLinetype(entity.linetypeId(), counts);
    }

    void CheckLinetype(OxDbObjectId id, Counts& counts) {
        block::Opened<OxDbLinetypeTableRecord> linetype;
        if (!linetype.Accept(oxdbOpenOxDbObject(linetype.Receive(), id, OxDb::kForRead))) {
            ++counts[{Severity::kError, "of a linetype that the drawing lacks"}];
            return;
        }
        const wchar_t* name = nullptr;
        const std::string shown =
            linetype->getName(name) == Oxsys::eOk && name != nullptr ? Shown(name) : std::string();
        for (int i = 0; i < linetype->numDashes(); ++i) {
            const wchar_t* text = nullptr;
            const bool hasText = linetype->textAt(i, text) == Oxsys::eOk && text != nullptr && *text != 0;
            const OxDbObjectId style = linetype->shapeStyleAt(i);
            if (linetype->shapeNumberAt(i) == 0 && !hasText) {
                continue;
            }
            const std::string lacking = LackOf(style);
            if (!lacking.empty()) {
                ++counts[{Severity::kError, "of linetype " + shown + ", whose " + lacking}];
                return;
            }
        }
    }

    // What of the style is not there.
    std::string LackOf(OxDbObjectId styleId) {
        block::Opened<OxDbTextStyleTableRecord> style;
        if (!style.Accept(oxdbOpenOxDbObject(style.Receive(), styleId, OxDb::kForRead))) {
            return "text style the drawing lacks";
        }
        wchar_t* name = nullptr;
        if (style->fileName(name) != Oxsys::eOk || name == nullptr) {
            return {};
        }
        const std::wstring file = name;
        oxutDelBuffer(name);
        std::array<wchar_t, kPathLength> path{};
        if (file.empty() ||
            services_.findFile(path.data(), static_cast<int>(path.size()), file.c_str(), nullptr,
                               OxDbHostApplicationServices::kCompiledShapeFile) == Oxsys::eOk) {
            return {};
        }
        return "shape file " + Shown(file) + " is not found beside the drawing, nor in a --shapes folder";
    }

    static bool IsNeverInserted(const OxDbBlockTableRecord& record) {
        OxDbBlockReferenceIdIterator* created = nullptr;
        const Oxsys::ErrorStatus status = record.newBlockReferenceIdIterator(created);
        const auto iterator = block::Accepted(status, created);
        if (iterator == nullptr) {
            return true;
        }
        iterator->start();
        return iterator->done();
    }

    static constexpr std::size_t kPathLength = 1024;
    // No map shows that many in one hatch, and a check is to be quick.
    static constexpr std::int32_t kMostHatchLines = 1000000;

    const InputFile& input_;
    drawing::HostServices services_;
    std::vector<Finding>& findings_;
};

} // namespace

void CheckDrawing(const InputFile& input, const std::vector<std::string>& shapeFolders,
                  std::vector<Finding>& findings) {
    const std::unique_ptr<drawing::Database> drawing = ReadDrawing(input);
    if (!drawing) {
        findings.push_back({input.Name(), 0, Severity::kError, "the document is refused", ""});
        return;
    }
    DrawingCheck(input, shapeFolders, findings).Check(*drawing);
}

} // namespace styleconv
