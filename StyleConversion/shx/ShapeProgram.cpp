// Decodes shape programs: one handler for each code.
#include "StyleConversion/shx/ShapeProgram.h"

#include "StyleConversion/encoding/IntegerConversion.h"
#include "StyleConversion/shx/BulgeArc.h"
#include "StyleConversion/shx/ProgramCursor.h"
#include "StyleConversion/shx/ShapesInFile.h"

#include <algorithm>
#include <new>

namespace ShxUtility {
namespace {

constexpr double kDegreesPerOctant = 45.0;
constexpr int kOctants = 8;

// Instructions to make room for at first. No program has more of them than bytes, and few have more than
// this.
constexpr std::uint16_t kMostReserved = 128;

struct Displacement {
    double x;
    double y;
};

// By the low four bits of a vector byte: counter-clockwise round a square of side 2, from the x axis.
constexpr Displacement kVectorDirections[16] = {
    {1.0, 0.0},  {1.0, 0.5},   {1.0, 1.0},   {0.5, 1.0},   {0.0, 1.0},  {-0.5, 1.0}, {-1.0, 1.0}, {-1.0, 0.5},
    {-1.0, 0.0}, {-1.0, -0.5}, {-1.0, -1.0}, {-0.5, -1.0}, {0.0, -1.0}, {0.5, -1.0}, {1.0, -1.0}, {1.0, -0.5},
};

// The octant byte of an arc: bit 7 clockwise, bits 4 to 6 the start, bits 0 to 2 the span, where 0 is all 8.
struct Octants {
    explicit Octants(std::uint8_t byte)
        : start((byte >> 4) & 7), span((byte & 7) == 0 ? kOctants : byte & 7), clockwise((byte & 0x80) != 0) {
    }

    int start;
    int span;
    bool clockwise;
};

// An offset of a fractional arc, in 256ths of an octant, in whole degrees.
int OffsetDegrees(std::uint8_t offset) {
    return static_cast<std::uint8_t>(encoding::ToInt32(offset * kDegreesPerOctant / 256.0 + 0.5));
}

class ShapeDecoder {
public:
    ShapeDecoder(ShapeInstructions& out, const std::uint8_t* bytes, std::uint16_t length, std::int32_t kind)
        : out_(out), cursor_(bytes, length), kind_(kind) {}

    ShxResult Decode();

private:
    ShxResult DecodeCode(std::uint8_t code);
    ShxResult Factor(ShapeOp op);
    ShxResult SubshapeNumber();
    ShxResult Displaced();
    ShxResult ManyDisplaced();
    ShxResult OctantArc();
    ShxResult FractionalArc();
    ShxResult OneBulgeArc();
    ShxResult ManyBulgeArcs();

    ShxResult Emit(ShapeOp op, double x = 0.0, double y = 0.0, double radius = 0.0) {
        out_.push_back({x, y, radius, verticalOnly_, op});
        return kSuccess;
    }

    ShxResult EmitBulgeArc(std::int8_t dx, std::int8_t dy, std::int8_t bulge) {
        const ShapeInstruction arc = BulgeArc(dx, dy, bulge);
        return Emit(arc.op, arc.x, arc.y, arc.radius);
    }

    ShapeInstructions& out_;
    ProgramCursor cursor_;
    std::int32_t kind_;
    // Code 14 was just read: what follows it is for vertical drawing.
    bool verticalOnly_ = false;
};

ShxResult ShapeDecoder::Decode() {
    std::uint8_t byte = 0;
    while (cursor_.Read(byte)) {
        if (byte == 0) {
            return kSuccess;
        }
        if (byte == 14) {
            verticalOnly_ = true;
            continue;
        }
        if (byte > 14) {
            const int length = byte >> 4;
            const Displacement direction = kVectorDirections[byte & 15];
            Emit(ShapeOp::Move, length * direction.x, length * direction.y);
        } else {
            const ShxResult result = DecodeCode(byte);
            if (result != kSuccess) {
                return result;
            }
        }
        verticalOnly_ = false;
    }
    return kSuccess;
}

// Codes 1 to 13.
ShxResult ShapeDecoder::DecodeCode(std::uint8_t code) {
    switch (code) {
    case 1:
        return Emit(ShapeOp::PenDown);
    case 2:
        return Emit(ShapeOp::PenUp);
    case 3:
        return Factor(ShapeOp::DivideScale);
    case 4:
        return Factor(ShapeOp::MultiplyScale);
    case 5:
        return Emit(ShapeOp::PushPosition);
    case 6:
        return Emit(ShapeOp::PopPosition);
    case 7:
        return SubshapeNumber();
    case 8:
        return Displaced();
    case 9:
        return ManyDisplaced();
    case 10:
        return OctantArc();
    case 11:
        return FractionalArc();
    case 12:
        return OneBulgeArc();
    default:
        return ManyBulgeArcs();
    }
}

// Codes 3 and 4: one unsigned byte, not 0.
ShxResult ShapeDecoder::Factor(ShapeOp op) {
    std::uint8_t factor = 0;
    if (!cursor_.Read(factor) || factor == 0) {
        return kMalformed;
    }
    return Emit(op, factor);
}

// Code 7: the number, of one byte or of two with the high one first.
ShxResult ShapeDecoder::SubshapeNumber() {
    std::uint8_t high = 0;
    std::uint8_t low = 0;
    switch (kind_) {
    case kShapes:
    case kFont:
        break;
    case kUnifont:
        if (!cursor_.Read(high)) {
            return kMalformed;
        }
        break;
    default:
        return kUnsupported;
    }
    if (!cursor_.Read(low)) {
        return kMalformed;
    }
    return Emit(ShapeOp::Subshape, high * 256 + low);
}

// Code 8: one displacement.
ShxResult ShapeDecoder::Displaced() {
    std::int8_t dx = 0;
    std::int8_t dy = 0;
    if (!cursor_.ReadPair(dx, dy)) {
        return kMalformed;
    }
    return Emit(ShapeOp::Move, dx, dy);
}

// Code 9: displacements up to (0, 0).
ShxResult ShapeDecoder::ManyDisplaced() {
    std::int8_t dx = 0;
    std::int8_t dy = 0;
    while (cursor_.ReadPair(dx, dy)) {
        if (dx == 0 && dy == 0) {
            return kSuccess;
        }
        Emit(ShapeOp::Move, dx, dy);
    }
    return kMalformed;
}

// Code 10: radius, not 0, and octants.
ShxResult ShapeDecoder::OctantArc() {
    std::uint8_t radius = 0;
    std::uint8_t octantByte = 0;
    if (!cursor_.Read(radius) || radius == 0 || !cursor_.Read(octantByte)) {
        return kMalformed;
    }
    const Octants octants(octantByte);
    // A clockwise full circle is drawn counter-clockwise; that is wanted.
    const bool clockwise = octants.clockwise && octants.span != kOctants;
    const int end = octants.start + (clockwise ? -octants.span : octants.span);
    return Emit(ShapeOp::Arc, octants.start * kDegreesPerOctant, end * kDegreesPerOctant, radius);
}

// Code 11: start offset, end offset, radius of two bytes with the high one first, octants.
ShxResult ShapeDecoder::FractionalArc() {
    std::uint8_t startOffset = 0;
    std::uint8_t endOffset = 0;
    std::uint8_t high = 0;
    std::uint8_t low = 0;
    std::uint8_t octantByte = 0;
    // A radius that is a multiple of 256 is refused, not only zero; that is wanted.
    if (!cursor_.Read(startOffset) || !cursor_.Read(endOffset) || !cursor_.Read(high) || !cursor_.Read(low) ||
        low == 0 || !cursor_.Read(octantByte)) {
        return kMalformed;
    }
    const Octants octants(octantByte);
    const int startDegrees = OffsetDegrees(startOffset);
    const int endDegrees = OffsetDegrees(endOffset);
    // The octant in which the arc ends counts in the span where the arc ends inside of it. Both offsets are
    // added in either direction; that is wanted.
    const int wholeOctants = octants.span - (endDegrees != 0 ? 1 : 0);
    const int end = octants.start + (octants.clockwise ? -wholeOctants : wholeOctants);
    return Emit(ShapeOp::Arc, octants.start * kDegreesPerOctant + startDegrees,
                end * kDegreesPerOctant + endDegrees, high * 256 + low);
}

// Code 12: displacement and bulge.
ShxResult ShapeDecoder::OneBulgeArc() {
    std::int8_t dx = 0;
    std::int8_t dy = 0;
    std::int8_t bulge = 0;
    if (!cursor_.ReadPair(dx, dy) || !cursor_.Read(bulge)) {
        return kMalformed;
    }
    return EmitBulgeArc(dx, dy, bulge);
}

// Code 13: displacements, each with its bulge, up to (0, 0), which has none.
ShxResult ShapeDecoder::ManyBulgeArcs() {
    std::int8_t dx = 0;
    std::int8_t dy = 0;
    std::int8_t bulge = 0;
    while (cursor_.ReadPair(dx, dy)) {
        if (dx == 0 && dy == 0) {
            return kSuccess;
        }
        if (!cursor_.Read(bulge)) {
            return kMalformed;
        }
        EmitBulgeArc(dx, dy, bulge);
    }
    return kMalformed;
}

} // namespace

ShxResult DecodeShape(ShapeInstructions& out, const std::uint8_t* bytes, std::uint16_t length,
                      std::int32_t kind) {
    try {
        if (out.empty()) {
            out.reserve(std::min(length, kMostReserved));
        }
        return ShapeDecoder(out, bytes, length, kind).Decode();
    } catch (const std::bad_alloc&) {
        return kOutOfMemory;
    }
}

} // namespace ShxUtility
