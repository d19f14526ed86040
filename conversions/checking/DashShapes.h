// What the dashes of a drawing's linetypes carry and cannot be drawn.
#pragma once

#include "OxDb/OxDbLinetypeTableRecord.h"
#include "conversions/reading/DrawingShapeFiles.h"
#include "diagnostics/Code.h"
#include "drawing/database/Database.h"

#include <map>
#include <string>
#include <tuple>
#include <vector>

namespace conversions {

/// Something that is left out, in the words of the table.
struct Loss {
    diagnostics::Code code = diagnostics::Code::kOutOfMemory;
    std::vector<std::string> subjects;

    bool operator==(const Loss&) const = default;
    // Standard libraries that are not the newest have no <=> of lists.
    bool operator<(const Loss& other) const {
        return std::tie(code, subjects) < std::tie(other.code, other.subjects);
    }
};

/// Looks at each linetype once.
class DashShapes {
public:
    /// Both must outlive this object.
    DashShapes(const drawing::Database& drawing, DrawingShapeFiles& files)
        : drawing_(drawing), files_(files) {}

    /// What an entity of the linetype will be drawn without.
    const std::vector<Loss>& LossesOf(const OxDbLinetypeTableRecord& linetype);

private:
    // What is drawn from, or why nothing can be: a loss but for what is lost and from which linetype.
    struct Source {
        std::string name;
        const ShxUtility::ShapesInFile* shapes = nullptr;
        Loss whyNot;
    };

    const Source& SourceOf(OxDbObjectId styleId);
    Source Load(OxDbObjectId styleId);
    static Source WithoutShapes(diagnostics::Code code, std::vector<std::string> subjects);

    const drawing::Database& drawing_;
    DrawingShapeFiles& files_;
    std::map<const OxDbStub*, Source> sources_;           // by text style
    std::map<const OxDbStub*, std::vector<Loss>> losses_; // by linetype
};

} // namespace conversions
