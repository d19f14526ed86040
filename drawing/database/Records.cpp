// Records of the layer, linetype and text style tables.
#include "drawing/database/Records.h"

#include <cmath>

namespace drawing {
namespace {

double SumOfMagnitudes(const std::vector<Dash>& dashes) {
    double sum = 0.0;
    for (const Dash& dash : dashes) {
        sum += std::abs(dash.length);
    }
    return sum;
}

} // namespace

LayerRecord::LayerRecord(Core& core, std::wstring name, const OxCmColor& color, OxDb::LineWeight lineWeight)
    : NamedRecord(core, std::move(name)), color_(color), lineWeight_(lineWeight) {}

LinetypeRecord::LinetypeRecord(Core& core, std::wstring name, std::vector<Dash> dashes,
                               std::optional<double> patternLength)
    : NamedRecord(core, std::move(name)), dashes_(std::move(dashes)),
      patternLength_(patternLength ? *patternLength : SumOfMagnitudes(dashes_)) {}

LinetypeRecord::~LinetypeRecord() = default;

const Dash& LinetypeRecord::DashAt(int index) const {
    static const Dash kNoDash;
    return index >= 0 && index < numDashes() ? dashes_[static_cast<std::size_t>(index)] : kNoDash;
}

double LinetypeRecord::dashLengthAt(int index) const {
    return DashAt(index).length;
}

OxDbObjectId LinetypeRecord::shapeStyleAt(int index) const {
    const Dash& dash = DashAt(index);
    if (dash.shapeStyle.empty()) {
        return {};
    }
    NamePool& names = SharedCore().names;
    const NameIndex name = names.Intern(dash.shapeStyle);
    return IdOrMissing(SharedCore(), names.Things(name).textStyle, name);
}

int LinetypeRecord::shapeNumberAt(int index) const {
    return DashAt(index).shapeNumber;
}

OxGeVector2d LinetypeRecord::shapeOffsetAt(int index) const {
    return DashAt(index).offset;
}

double LinetypeRecord::shapeScaleAt(int index) const {
    return DashAt(index).scale;
}

double LinetypeRecord::shapeRotationAt(int index) const {
    return DashAt(index).rotation;
}

Oxsys::ErrorStatus LinetypeRecord::textAt(int index, const wchar_t*& text) const {
    Oxsys::ErrorStatus status = Oxsys::eOk;
    text = nullptr;
    if (Fails(Operation::kTextAt, status)) {
        return status;
    }
    if (index < 0 || index >= numDashes()) {
        return Oxsys::eInvalidIndex;
    }
    const Dash& dash = DashAt(index);
    text = dash.text ? dash.text->c_str() : nullptr;
    return Oxsys::eOk;
}

TextStyleRecord::TextStyleRecord(Core& core, std::wstring name, TextStyleData data)
    : NamedRecord(core, std::move(name)), data_(std::move(data)) {}

TextStyleRecord::~TextStyleRecord() = default;

Oxsys::ErrorStatus TextStyleRecord::HandOut(Operation operation, const std::wstring& text,
                                            wchar_t*& out) const {
    Oxsys::ErrorStatus status = Oxsys::eOk;
    if (Fails(operation, status)) {
        return status;
    }
    out = AllocateText(text);
    return Oxsys::eOk;
}

Oxsys::ErrorStatus TextStyleRecord::fileName(wchar_t*& name) const {
    return HandOut(Operation::kTextStyleFileName, data_.fileName, name);
}

Oxsys::ErrorStatus TextStyleRecord::bigFontFileName(wchar_t*& name) const {
    return HandOut(Operation::kTextStyleBigFontFileName, data_.bigFontFileName, name);
}

Oxsys::ErrorStatus TextStyleRecord::font(wchar_t*& typeface, bool& bold, bool& italic,
                                         std::int32_t& characterSet, std::int32_t& pitchAndFamily) const {
    Oxsys::ErrorStatus status = Oxsys::eOk;
    if (Fails(Operation::kTextStyleFont, status)) {
        return status;
    }
    typeface = AllocateText(data_.typeface);
    bold = data_.bold;
    italic = data_.italic;
    characterSet = data_.characterSet;
    pitchAndFamily = data_.pitchAndFamily;
    return Oxsys::eOk;
}

} // namespace drawing
