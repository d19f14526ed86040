// The bytes of a shape program, and of the subshapes that it may call, to a path.
//
// Input: a byte that chooses the kind, rotation and direction; then programs, each behind a byte with its
// length. The first one is drawn, and all are in the file, numbered from 1.
#include "StyleConversion/shx/ShapeDrawer.h"
#include "StyleConversion/shx/ShxUtility.h"
#include "fuzz/Fuzzing.h"
#include "fuzz/ShapeWork.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace ShxUtility;
using fuzzing::Require;

struct RecordingSink {
    std::vector<std::array<double, 2>> lines;
    std::size_t moves = 0;
    std::size_t arcs = 0;

    void MoveTo(double /*x*/, double /*y*/) { ++moves; }
    void LineBy(double dx, double dy) { lines.push_back({dx, dy}); }
    void ArcTo(double /*radius*/, int largeArc, int sweep, double /*x*/, double /*y*/) {
        Require((largeArc | sweep | 1) == 1, "flags of 0 or 1");
        ++arcs;
    }
};

struct Pen {
    double x = 0.0;
    double y = 0.0;
    double scale = 1.0;
    PositionStack stack;
    std::vector<std::uint16_t> active;
    bool down = false;
};

ShapesInFile FileOf(const std::uint8_t* data, std::size_t size) {
    ShapesInFile file;
    file.kind = kShapes;
    while (size > 0 && file.shapes.size() < 255) {
        const std::size_t length = std::min<std::size_t>(*data, size - 1);
        Shape& shape = file.shapes.emplace_back();
        shape.number = static_cast<std::uint16_t>(file.shapes.size());
        file.numberIndex[shape.number] = file.shapes.size() - 1;
        shape.data.Resize(length);
        std::copy_n(data + 1, length, shape.data.data());
        data += length + 1;
        size -= length + 1;
    }
    return file;
}

ShxResult Record(RecordingSink& sink, Pen pen, const ShapeInstructions& program, const ShapesInFile& file,
                 double rotation, bool vertical) {
    const DrawingState state{pen.x, pen.y, pen.scale, pen.stack, pen.active, pen.down};
    return ShapeDrawer<RecordingSink>(sink, state, file, rotation).Draw(program, vertical);
}

std::size_t CountOf(const std::wstring& path, wchar_t command) {
    return static_cast<std::size_t>(std::count(path.begin(), path.end(), command));
}

bool SameBits(const std::array<double, 2>& a, const std::array<double, 2>& b) {
    const auto same = [](double v, double w) { return v == w || (v != v && w != w); };
    return same(a[0], b[0]) && same(a[1], b[1]);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) {
        return 0;
    }
    constexpr std::int32_t kKinds[] = {kShapes, kFont, kUnifont, kBigfont, 0, -1, 3, 16};
    const std::int32_t kind = kKinds[data[0] & 7];
    const bool vertical = (data[0] & 8) != 0;
    const double rotation = (data[0] >> 4) * 24.0;
    const ShapesInFile file = FileOf(data + 1, size - 1);
    const CharArray& program = file.shapes[0].data;
    std::size_t budget = fuzzing::kMostInstructions;
    if (!fuzzing::FitsBudget(file, program.data(), program.size(), kind, budget)) {
        return 0;
    }
    ShapeInstructions instructions;
    const ShxResult decoded =
        DecodeShape(instructions, program.data(), static_cast<std::uint16_t>(program.size()), kind);
    Require(decoded == kSuccess || decoded == kMalformed || decoded == kUnsupported, "a result of decoding");

    RecordingSink here;
    const ShxResult drawn = Record(here, {}, instructions, file, rotation, vertical);
    Require(drawn >= 0 && drawn <= kUnknownInstruction && drawn != kNoStream, "a result of drawing");
    RecordingSink elsewhere;
    Pen farAway;
    farAway.x = 1e6;
    farAway.y = -7.25;
    Require(Record(elsewhere, farAway, instructions, file, rotation, vertical) == drawn &&
                std::equal(here.lines.begin(), here.lines.end(), elsewhere.lines.begin(),
                           elsewhere.lines.end(), SameBits),
            "relative lines that do not depend on where drawing starts");

    std::wstring path;
    Pen pen;
    Require(DrawShape(path, pen.x, pen.y, pen.scale, pen.stack, pen.active, pen.down, instructions, file,
                      rotation, vertical) == drawn,
            "text to give the result that a sink gives");
    Require(CountOf(path, L'M') == here.moves && CountOf(path, L'l') == here.lines.size() &&
                CountOf(path, L'A') == here.arcs,
            "the commands that the sink was told of");
    return 0;
}
