// Draws shapes as path text.
#include "StyleConversion/shx/ShapeInterpreter.h"

#include "StyleConversion/encoding/PathCommands.h"
#include "StyleConversion/shx/ShapeDrawer.h"

#include <algorithm>
#include <cstddef>
#include <new>

namespace ShxUtility {
namespace {

// Room to make in the path at first: characters that a turned segment takes, and instructions to count them
// for.
constexpr std::size_t kTextOfAnInstruction = 64;
constexpr std::size_t kMostReserved = 128;

class PathText {
public:
    explicit PathText(std::wstring& path) : path_(path) {}

    void MoveTo(double x, double y) { encoding::AppendMove(path_, x, y); }
    void LineBy(double dx, double dy) { encoding::AppendRelativeLine(path_, dx, dy); }
    void ArcTo(double radius, int largeArc, int sweep, double x, double y) {
        encoding::AppendArc(path_, radius, largeArc, sweep, x, y);
    }

private:
    std::wstring& path_;
};

} // namespace

ShxResult DrawShape(std::wstring& path, double& x, double& y, double& scale, PositionStack& positionStack,
                    std::vector<std::uint16_t>& activeSubshapes, bool& penDown,
                    const ShapeInstructions& instructions, const ShapesInFile& file, double rotation,
                    bool vertical) {
    try {
        path.reserve(path.size() + kTextOfAnInstruction * std::min(instructions.size(), kMostReserved));
        PathText text(path);
        const DrawingState state{x, y, scale, positionStack, activeSubshapes, penDown};
        return ShapeDrawer<PathText>(text, state, file, rotation).Draw(instructions, vertical);
    } catch (const std::bad_alloc&) {
        return kOutOfMemory;
    }
}

} // namespace ShxUtility
