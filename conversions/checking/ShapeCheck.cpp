// Checks shape files.
#include "StyleConversion/platform/Characters.h"
#include "conversions/checking/Check.h"
#include "conversions/checking/FontCoverage.h"
#include "conversions/reading/ShapeFile.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

namespace conversions {
namespace {

using diagnostics::Code;
using diagnostics::Diagnostics;
using diagnostics::Outcome;
using diagnostics::Place;
using diagnostics::Severity;

bool HasLowerCase(const std::string& name) {
    return std::any_of(name.begin(), name.end(), [](char c) { return platform::AsciiUpper(c) != c; });
}

class ShapeCheck {
public:
    ShapeCheck(const Input& input, Front& front) : input_(input), front_(front) {}

    void CheckReading(const ShxUtility::ShapeFileReport& report) {
        found_ = ToleratedIn(input_.name, report, Severity::kError, Outcome::kNone);
        if (!report.trailerMissing && report.end < input_.bytes.size()) {
            Place place = InFile();
            place.byte = report.end;
            Add(Severity::kWarning, Code::kExtraBytes, std::move(place),
                {std::to_string(input_.bytes.size() - report.end)});
        }
    }

    void CheckAll(const ShxUtility::ShapesInFile& file) {
        for (const ShxUtility::Shape& shape : file.shapes) {
            if (shape.number != 0) {
                CheckShape(file, shape);
            }
        }
        if (file.numberIndex.empty()) {
            Add(Severity::kError, Code::kNoShapes, InFile());
        } else if (file.kind == ShxUtility::kUnifont && file.fontInfo.empty()) {
            Add(Severity::kError, Code::kFontWithoutInfo, InFile());
        } else if (file.kind == ShxUtility::kShapes && LooksLikeFont(file)) {
            Add(Severity::kWarning, Code::kShapesLikeFont, InFile());
        } else if (!file.fontInfo.empty()) {
            Add(Severity::kNote, Code::kFontCoverage, InFile(), FontCoverage(file));
        }
    }

    Diagnostics Take() { return std::move(found_); }

private:
    Place InFile() const {
        Place place;
        place.file = input_.name;
        return place;
    }

    void Add(Severity severity, Code code, Place place, std::vector<std::string> subjects = {}) {
        found_.push_back({severity, code, std::move(place), std::move(subjects)});
    }

    static bool LooksLikeFont(const ShxUtility::ShapesInFile& file) {
        return file.numberIndex.contains('A') && file.numberIndex.contains('a') &&
               file.numberIndex.contains('0');
    }

    void CheckShape(const ShxUtility::ShapesInFile& file, const ShxUtility::Shape& shape) {
        Place place = InFile();
        place.item = ShapeItem(shape);
        place.byte = PlaceOf(shape);
        place.shape = shape.number;
        front_.AtItem(place.item);
        const ShxUtility::ShxResult result = ResultOfDrawing(file, shape);
        if (result != ShxUtility::kSuccess) {
            Add(Severity::kError, CodeOfDrawing(result), place, {"it"});
        }
        // In a font, names are remarks.
        if (shape.name.empty() || file.kind != ShxUtility::kShapes) {
            return;
        }
        const auto [first, isNew] = numbers_.try_emplace(shape.name, shape.number);
        if (!isNew) {
            Add(Severity::kWarning, Code::kDuplicateShapeName, place, {std::to_string(first->second)});
        }
        if (HasLowerCase(shape.name)) {
            Add(Severity::kWarning, Code::kLowerCaseShapeName, place);
        }
    }

    // Where the shape's name and program stand.
    std::optional<std::uint64_t> PlaceOf(const ShxUtility::Shape& shape) {
        std::string entry = shape.name;
        entry.push_back('\0');
        entry.append(reinterpret_cast<const char*>(shape.data.data()),
                     static_cast<std::size_t>(shape.data.size()));
        const std::size_t at = input_.bytes.find(entry, searched_);
        if (at == std::string_view::npos) {
            return std::nullopt;
        }
        searched_ = at; // entries are in file order
        return at;
    }

    const Input& input_;
    Front& front_;
    Diagnostics found_;
    std::map<std::string, std::uint16_t> numbers_; // of names
    std::size_t searched_ = 0;
};

} // namespace

Diagnostics CheckShapes(const Input& input, Front& front) {
    ShxUtility::ShapesInFile file;
    ShxUtility::ShapeFileReport report;
    if (!ReadShapeFile(input.bytes, true, file, report)) {
        return {RefusalOf(input.name, report)};
    }
    ShapeCheck check(input, front);
    check.CheckReading(report);
    check.CheckAll(file);
    return check.Take();
}

} // namespace conversions
