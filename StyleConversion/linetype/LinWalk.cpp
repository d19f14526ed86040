// Shows the linetypes of a file to a visitor.
#include "StyleConversion/linetype/LinParser.h"

namespace LineConverter {

LinResult LinParser::Accept(LinStyleVisitor& visitor) {
    LinResult result = kSuccess;
    visitor.Begin();
    for (std::size_t linetype = 0; linetype < linetypes_.size(); ++linetype) {
        const LinetypeRecord& record = linetypes_[linetype];
        faultLog_.EnterPlace({policy_.faultsStayLocal ? HeaderLine(linetype) : 0, &record, 0});
        visitor.BeginLinetype(record, record.description, static_cast<int>(record.elements.size()));
        std::size_t number = 0;
        for (const LinElement& element : record.elements) {
            faultLog_.EnterPlace({ElementLine(linetype, number), &record, number + 1});
            ++number;
            if (!WalkElement(element, visitor)) {
                result = kShapeFileNotLoaded;
            }
        }
        visitor.EndLinetype();
    }
    visitor.End();
    return result;
}

bool LinParser::WalkElement(const LinElement& element, LinStyleVisitor& visitor) {
    switch (element.kind) {
    case kDash:
        if (element.length < 0) {
            visitor.Gap(-element.length);
        } else if (element.length > 0) {
            visitor.Dash(element.length);
        } else {
            visitor.Dot();
        }
        return true;
    case kShape: {
        const auto found = shapeFiles_.find(element.complex->shapeFile);
        if (found == shapeFiles_.end() || found->second.kind != ShxUtility::kShapes) {
            Fault(kShapeFileNotLoaded, LinFaultKind::kNotAShapeFile, element.complex->shapeFile);
            return false;
        }
        visitor.Shape(element.complex->shapeName, element.complex->transform, found->second);
        return true;
    }
    case kText:
        if (const auto found = fontInfos_.find(element.complex->styleName); found != fontInfos_.end()) {
            visitor.Text(element.complex->text, element.complex->transform, found->second, shapeFiles_);
        }
        return true;
    case kNone:
        return true;
    }
    return true;
}

} // namespace LineConverter
