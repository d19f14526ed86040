// Draws shapes as path text.
#include "StyleConversion/shx/ShapeInterpreter.h"

#include "StyleConversion/shx/PathText.h"
#include "StyleConversion/shx/ShapeDrawer.h"

#include <new>

namespace ShxUtility {

ShxResult DrawShape(std::wstring& path, double& x, double& y, double& scale, PositionStack& positionStack,
                    std::vector<std::uint16_t>& activeSubshapes, bool& penDown,
                    const ShapeInstructions& instructions, const ShapesInFile& file, double rotation,
                    bool vertical) {
    try {
        PathText text(path);
        const DrawingState state{x, y, scale, positionStack, activeSubshapes, penDown};
        return ShapeDrawer<PathText>(text, state, file, rotation).Draw(instructions, vertical);
    } catch (const std::bad_alloc&) {
        return kOutOfMemory;
    }
}

} // namespace ShxUtility
