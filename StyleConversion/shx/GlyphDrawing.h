// Draws one shape of a file, by its number, to a sink of path commands: the one way from a loaded file to
// drawn lines.
#pragma once

#include "StyleConversion/shx/ShapeDrawer.h"
#include "StyleConversion/shx/ShapeProgram.h"
#include "StyleConversion/shx/ShapesInFile.h"
#include "StyleConversion/shx/ShxResult.h"

#include <cstdint>
#include <new>
#include <string>
#include <vector>

namespace ShxUtility {

/// Where and how a shape is drawn. Drawing leaves the point and the scale as the shape's program left them.
struct GlyphPen {
    /// The point, in path units.
    double x = 0.0;
    double y = 0.0;
    /// Path units per shape unit.
    double scale = 1.0;
    /// Degrees, counter-clockwise.
    double rotation = 0.0;
    /// Whether what is for vertical drawing only is drawn.
    bool vertical = false;
};

/// Draws shape `number` of `file` with the pen down at first and no position saved. `sink` takes absolute
/// points and relative lines in path units:
///   MoveTo(x, y); LineBy(dx, dy); ArcTo(radius, largeArc, sweep, x, y), the flags 0 or 1.
/// `numbers` is the kind of file whose form the shape's subshape numbers have: one byte in kShapes and kFont,
/// two in kUnifont. (Subshapes' own are of one byte in any file.)
///
/// After a failure the sink has received a part of the shape, and the pen stands where that ended. Returns
/// kSuccess, kSubshapeNotFound where the file has no such shape, what DecodeShape and DrawShape return, and
/// kOutOfMemory where the sink throws std::bad_alloc. Subshapes nest at most 257 deep; how often they are
/// drawn is not bounded.
template <class Sink>
ShxResult DrawGlyph(const ShapesInFile& file, std::uint16_t number, ShapeFileKind numbers, GlyphPen& pen,
                    Sink& sink) {
    const auto found = file.numberIndex.find(number);
    if (found == file.numberIndex.end()) {
        return kSubshapeNotFound;
    }
    const CharArray& program = file.shapes[found->second].data;
    ShapeInstructions instructions;
    const ShxResult decoded =
        DecodeShape(instructions, program.data(), static_cast<std::uint16_t>(program.size()), numbers);
    if (decoded != kSuccess) {
        return decoded;
    }
    try {
        PositionStack positions;
        std::vector<std::uint16_t> activeSubshapes;
        bool penDown = true;
        const DrawingState state{pen.x, pen.y, pen.scale, positions, activeSubshapes, penDown};
        return ShapeDrawer<Sink>(sink, state, file, pen.rotation).Draw(instructions, pen.vertical);
    } catch (const std::bad_alloc&) {
        return kOutOfMemory;
    }
}

/// The same to the end of `path`, as "M x,y l dx,dy " and "M x,y A ... ".
ShxResult DrawGlyph(const ShapesInFile& file, std::uint16_t number, ShapeFileKind numbers, GlyphPen& pen,
                    std::wstring& path);

} // namespace ShxUtility
