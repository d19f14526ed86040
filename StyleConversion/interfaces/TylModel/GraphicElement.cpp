// The visitor entries of the graphic elements.
#include "TylModel/GraphicElement.h"

namespace TylModel {

IGraphicElementVisitor::~IGraphicElementVisitor() = default;

GraphicElement::~GraphicElement() = default;

void AcceptVisitor(GraphicElement& element, IGraphicElementVisitor& visitor) {
    if (auto* const path = dynamic_cast<Path*>(&element)) {
        path->AcceptVisitor(visitor);
    } else if (auto* const text = dynamic_cast<Text*>(&element)) {
        text->AcceptVisitor(visitor);
    }
}

Path::~Path() = default;

void Path::AcceptVisitor(IGraphicElementVisitor& visitor) {
    visitor.VisitPath(*this);
}

Text::~Text() = default;

void Text::AcceptVisitor(IGraphicElementVisitor& visitor) {
    visitor.VisitText(*this);
}

} // namespace TylModel
