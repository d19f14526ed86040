// One call of the visitor for each element.
#include "StyleConversion/linetype/LinWalk.h"

#include <cstddef>

namespace LineConverter {
namespace {

void ShowDash(double length, LinStyleVisitor& visitor) {
    if (length < 0) {
        visitor.Gap(-length);
    } else if (length > 0) {
        visitor.Dash(length);
    } else {
        visitor.Dot();
    }
}

// False where its file is missing or a font.
bool ShowShape(const LinetypeFile& file, const ComplexElement& shape, LinStyleVisitor& visitor) {
    const auto found = file.shapeFiles.find(shape.shapeFile);
    if (found == file.shapeFiles.end() || found->second.kind != ShxUtility::kShapes) {
        return false;
    }
    visitor.Shape(shape.shapeName, shape.transform, found->second);
    return true;
}

void ShowText(const LinetypeFile& file, const ComplexElement& text, LinStyleVisitor& visitor) {
    if (const auto found = file.fontInfos.find(text.styleName); found != file.fontInfos.end()) {
        visitor.Text(text.text, text.transform, found->second, file.shapeFiles);
    }
}

LinResult ShowElement(const LinetypeFile& file, const LinElement& element, LinStyleVisitor& visitor,
                      LinErrorLog& errors) {
    switch (element.kind) {
    case kDash:
        ShowDash(element.length, visitor);
        return kSuccess;
    case kShape:
        if (!ShowShape(file, *element.complex, visitor)) {
            errors.Add(kShapeFileNotLoaded, LinErrorKind::kNotAShapeFile).subject =
                element.complex->shapeFile;
            return kShapeFileNotLoaded;
        }
        return kSuccess;
    case kText:
        ShowText(file, *element.complex, visitor);
        return kSuccess;
    case kNone:
        return kSuccess;
    }
    return kSuccess;
}

} // namespace

LinResult Walk(const LinetypeFile& file, LinStyleVisitor& visitor, LinErrorLog& errors) {
    LinResult result = kSuccess;
    visitor.Begin();
    for (const LinetypeRecord& linetype : file.linetypes) {
        errors.EnterPlace({linetype.line, &linetype, 0});
        visitor.BeginLinetype(linetype, linetype.description, static_cast<int>(linetype.elements.size()));
        std::size_t number = 0;
        for (const LinElement& element : linetype.elements) {
            errors.EnterPlace({element.line, &linetype, ++number});
            if (ShowElement(file, element, visitor, errors) != kSuccess) {
                result = kShapeFileNotLoaded;
            }
        }
        visitor.EndLinetype();
    }
    visitor.End();
    return result;
}

} // namespace LineConverter
