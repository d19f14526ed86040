// The visitor entries of the graphic elements.
#include "TylModel/GraphicElement.h"

namespace TylModel {

IGraphicElementVisitor::~IGraphicElementVisitor() = default;

GraphicElement::~GraphicElement() = default;

Path::~Path() = default;

void Path::AcceptVisitor(IGraphicElementVisitor& visitor) {
    visitor.VisitPath(*this);
}

Text::~Text() = default;

void Text::AcceptVisitor(IGraphicElementVisitor& visitor) {
    visitor.VisitText(*this);
}

} // namespace TylModel
