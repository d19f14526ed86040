#include "conversions/reading/DrawingShapeFiles.h"

#include "conversions/reading/ShapeFile.h"
#include "conversions/reading/Shown.h"

#include <utility>

namespace conversions {

using diagnostics::Code;
using diagnostics::Outcome;
using diagnostics::Severity;

DrawingShapeFiles::DrawingShapeFiles(std::string drawing, bool tolerant, Front& front)
    : drawing_(std::move(drawing)), tolerant_(tolerant), front_(front) {}

const ShxUtility::ShapesInFile* DrawingShapeFiles::Find(const wchar_t* name) {
    const File& file = Open(name);
    return file.shapes ? &*file.shapes : nullptr;
}

const DrawingShapeFiles::File& DrawingShapeFiles::Open(const std::wstring& name) {
    const auto known = files_.find(name);
    if (known != files_.end()) {
        return known->second;
    }
    const File& file = files_.emplace(name, Load(name)).first->second;
    order_.push_back(&file);
    return file;
}

diagnostics::Diagnostics DrawingShapeFiles::Told(bool withRefusals) const {
    diagnostics::Diagnostics told;
    for (const File* const file : order_) {
        if (file->shapes || withRefusals) {
            Append(told, file->diagnostics);
        }
    }
    return told;
}

DrawingShapeFiles::File DrawingShapeFiles::Load(const std::wstring& name) {
    const FoundFile found = name.empty() ? FoundFile() : front_.FindShapeFile(name);
    if (!found.isFound) {
        return Missing(name);
    }
    File file;
    if (!found.error.empty()) {
        file.diagnostics.push_back(
            {Severity::kWarning, Code::kUnreadableFile, {found.name}, {found.error}, Outcome::kSkipped});
        return file;
    }
    ShxUtility::ShapesInFile shapes;
    ShxUtility::ShapeFileReport report;
    if (ReadShapeFile(found.bytes, tolerant_, shapes, report)) {
        file.shapes = std::move(shapes);
        file.diagnostics = ToleratedIn(found.name, report, Severity::kWarning, Outcome::kRepaired);
    } else {
        file.diagnostics.push_back(RefusalOf(found.name, found.bytes, report));
        file.diagnostics.back().severity = Severity::kWarning;
        file.diagnostics.back().outcome = Outcome::kSkipped;
    }
    return file;
}

DrawingShapeFiles::File DrawingShapeFiles::Missing(const std::wstring& name) const {
    File file;
    ShxUtility::ShapesInFile builtIn;
    ShxUtility::ShapeFileReport report;
    const bool standsIn =
        tolerant_ && IsDefaultFont(name) && ReadShapeFile(BuiltInFont(), false, builtIn, report);
    if (standsIn) {
        file.shapes = std::move(builtIn);
    }
    file.diagnostics.push_back({standsIn ? Severity::kNote : Severity::kWarning,
                                standsIn ? Code::kBuiltInFont : Code::kMissingShapeFile,
                                {drawing_},
                                {ShownText(name), front_.PlacesSearched(name)},
                                standsIn ? Outcome::kRepaired : Outcome::kSkipped});
    return file;
}

} // namespace conversions
