// What the dashes of a drawing's linetypes carry and cannot be drawn.
#pragma once

#include "OxDb/OxDbLinetypeTableRecord.h"
#include "StyleConversion/shx/ShapesInFile.h"
#include "drawing/Database.h"
#include "styleconv/ShapeSearch.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace styleconv {

/// Looks at each linetype once.
class DashShapes {
public:
    /// Both must outlive this object.
    DashShapes(const drawing::Database& drawing, ShapeSearch& search) : drawing_(drawing), search_(search) {}

    /// What an entity of the linetype will be drawn without, and why: "the shapes of linetype GAS: the
    /// drawing has no text style MARKS".
    const std::vector<std::string>& LacksOf(const OxDbLinetypeTableRecord& linetype);

private:
    // A shape file, or why there is none.
    struct Source {
        std::string name;
        std::optional<ShxUtility::ShapesInFile> shapes;
        std::string whyNot;
    };

    const Source& SourceOf(OxDbObjectId styleId);
    Source Load(OxDbObjectId styleId);
    void AddLacksOfShape(const Source& source, int number, std::vector<std::string>& lacks) const;
    void AddLacksOfText(const Source& source, const wchar_t* text, std::vector<std::string>& lacks) const;

    const drawing::Database& drawing_;
    ShapeSearch& search_;
    std::map<const OxDbStub*, Source> sources_;                 // by text style
    std::map<const OxDbStub*, std::vector<std::string>> lacks_; // by linetype
};

} // namespace styleconv
