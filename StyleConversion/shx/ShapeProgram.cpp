// Decodes shape programs: a loop with one flat switch, and one handler for each code with operands.
#include "StyleConversion/shx/ShapeProgram.h"

#include "StyleConversion/encoding/ByteCursor.h"
#include "StyleConversion/encoding/IntegerConversion.h"
#include "StyleConversion/shx/BulgeArc.h"
#include "StyleConversion/shx/ShapesInFile.h"

#include <new>
#include <string_view>

namespace ShxUtility {
namespace {

// What a program's byte stands for where it is not above the last of these: then it is a vector.
enum class ShapeCode : std::uint8_t {
    End = 0,
    PenDown = 1,
    PenUp = 2,
    DivideScale = 3,
    MultiplyScale = 4,
    PushPosition = 5,
    PopPosition = 6,
    Subshape = 7,
    Displacement = 8,
    Displacements = 9,
    OctantArc = 10,
    FractionalArc = 11,
    BulgeArc = 12,
    BulgeArcs = 13,
    VerticalOnly = 14,
};

constexpr double kDegreesPerOctant = 45.0;
constexpr int kOctants = 8;

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

encoding::ByteCursor CursorOf(const std::uint8_t* bytes, std::uint16_t length) {
    return encoding::ByteCursor(bytes == nullptr
                                    ? std::string_view()
                                    : std::string_view(reinterpret_cast<const char*>(bytes), length));
}

// Handlers refuse a program that ends within a code's operands as kMalformed, beside what they say.
class ShapeDecoder {
public:
    ShapeDecoder(ShapeInstructions& out, encoding::ByteCursor cursor, std::int32_t kind)
        : out_(out), cursor_(cursor), kind_(kind) {}

    ShxResult Decode();

private:
    ShxResult DecodeByte(std::uint8_t byte);
    ShxResult DecodeVector(std::uint8_t byte);
    ShxResult DecodeFactor(ShapeOp op);
    ShxResult DecodeSubshape();
    ShxResult DecodeDisplacement();
    ShxResult DecodeDisplacements();
    ShxResult DecodeOctantArc();
    ShxResult DecodeFractionalArc();
    ShxResult DecodeBulgeArc();
    ShxResult DecodeBulgeArcs();

    bool ReadPair(std::int8_t& dx, std::int8_t& dy) { return cursor_.Read(dx) && cursor_.Read(dy); }

    ShxResult Emit(ShapeOp op, double x = 0.0, double y = 0.0, double radius = 0.0) {
        out_.push_back({x, y, radius, verticalOnly_, op});
        return kSuccess;
    }

    ShxResult EmitBulgeArc(std::int8_t dx, std::int8_t dy, std::int8_t bulge) {
        const ShapeInstruction arc = BulgeArc(dx, dy, bulge);
        return Emit(arc.op, arc.x, arc.y, arc.radius);
    }

    ShapeInstructions& out_;
    encoding::ByteCursor cursor_;
    std::int32_t kind_;
    // The code before was VerticalOnly: what follows it is for vertical drawing.
    bool verticalOnly_ = false;
};

ShxResult ShapeDecoder::Decode() {
    std::uint8_t byte = 0;
    while (cursor_.Read(byte) && byte != static_cast<std::uint8_t>(ShapeCode::End)) {
        if (byte == static_cast<std::uint8_t>(ShapeCode::VerticalOnly)) {
            verticalOnly_ = true;
            continue;
        }
        if (const ShxResult result = DecodeByte(byte); result != kSuccess) {
            return result;
        }
        verticalOnly_ = false;
    }
    return kSuccess;
}

ShxResult ShapeDecoder::DecodeByte(std::uint8_t byte) {
    switch (static_cast<ShapeCode>(byte)) {
    case ShapeCode::PenDown:
        return Emit(ShapeOp::PenDown);
    case ShapeCode::PenUp:
        return Emit(ShapeOp::PenUp);
    case ShapeCode::DivideScale:
        return DecodeFactor(ShapeOp::DivideScale);
    case ShapeCode::MultiplyScale:
        return DecodeFactor(ShapeOp::MultiplyScale);
    case ShapeCode::PushPosition:
        return Emit(ShapeOp::PushPosition);
    case ShapeCode::PopPosition:
        return Emit(ShapeOp::PopPosition);
    case ShapeCode::Subshape:
        return DecodeSubshape();
    case ShapeCode::Displacement:
        return DecodeDisplacement();
    case ShapeCode::Displacements:
        return DecodeDisplacements();
    case ShapeCode::OctantArc:
        return DecodeOctantArc();
    case ShapeCode::FractionalArc:
        return DecodeFractionalArc();
    case ShapeCode::BulgeArc:
        return DecodeBulgeArc();
    case ShapeCode::BulgeArcs:
        return DecodeBulgeArcs();
    default:
        return DecodeVector(byte);
    }
}

// A vector byte, 15 to 255. Operands: none; its high four bits are a length, its low four a direction.
// Effect: a displacement of that length; the byte 15 is one of length 0. Refuses nothing.
ShxResult ShapeDecoder::DecodeVector(std::uint8_t byte) {
    const int length = byte >> 4;
    const Displacement direction = kVectorDirections[byte & 15];
    return Emit(ShapeOp::Move, length * direction.x, length * direction.y);
}

// Codes 3 and 4. Operand: a factor, one unsigned byte. Effect: divides, or multiplies, the scale from here
// on. Refuses the factor 0.
ShxResult ShapeDecoder::DecodeFactor(ShapeOp op) {
    std::uint8_t factor = 0;
    if (!cursor_.Read(factor) || factor == 0) {
        return kMalformed;
    }
    return Emit(op, factor);
}

// Code 7. Operand: a shape's number, one byte, or in a "unifont " file two with the high one first. Effect:
// draws that shape. Refuses, as kUnsupported, a kind of file that has no form for the number.
ShxResult ShapeDecoder::DecodeSubshape() {
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

// Code 8. Operands: dx, dy, two signed bytes. Effect: a displacement. Refuses nothing more.
ShxResult ShapeDecoder::DecodeDisplacement() {
    std::int8_t dx = 0;
    std::int8_t dy = 0;
    if (!ReadPair(dx, dy)) {
        return kMalformed;
    }
    return Emit(ShapeOp::Move, dx, dy);
}

// Code 9. Operands: pairs dx, dy of signed bytes up to (0, 0). Effect: a displacement for each pair before
// that. Refuses pairs without that end.
ShxResult ShapeDecoder::DecodeDisplacements() {
    std::int8_t dx = 0;
    std::int8_t dy = 0;
    while (ReadPair(dx, dy)) {
        if (dx == 0 && dy == 0) {
            return kSuccess;
        }
        Emit(ShapeOp::Move, dx, dy);
    }
    return kMalformed;
}

// Code 10. Operands: a radius, an unsigned byte, and an octant byte. Effect: an arc from and to multiples of
// 45 degrees. Refuses the radius 0.
ShxResult ShapeDecoder::DecodeOctantArc() {
    std::uint8_t radius = 0;
    std::uint8_t octantByte = 0;
    if (!cursor_.Read(radius) || radius == 0 || !cursor_.Read(octantByte)) {
        return kMalformed;
    }
    const Octants octants(octantByte);
    // Required: R22
    const bool clockwise = octants.clockwise && octants.span != kOctants;
    const int end = octants.start + (clockwise ? -octants.span : octants.span);
    return Emit(ShapeOp::Arc, octants.start * kDegreesPerOctant, end * kDegreesPerOctant, radius);
}

// Code 11. Operands: start offset and end offset in 256ths of an octant, a radius of two bytes with the high
// one first, an octant byte. Effect: an arc that begins and ends between octants. Refuses a radius whose low
// byte is 0.
ShxResult ShapeDecoder::DecodeFractionalArc() {
    std::uint8_t startOffset = 0;
    std::uint8_t endOffset = 0;
    std::uint8_t high = 0;
    std::uint8_t low = 0;
    std::uint8_t octantByte = 0;
    // Required: R23
    if (!cursor_.Read(startOffset) || !cursor_.Read(endOffset) || !cursor_.Read(high) || !cursor_.Read(low) ||
        low == 0 || !cursor_.Read(octantByte)) {
        return kMalformed;
    }
    const Octants octants(octantByte);
    const int startDegrees = OffsetDegrees(startOffset);
    const int endDegrees = OffsetDegrees(endOffset);
    // The octant in which the arc ends counts in the span where the arc ends inside of it.
    // Required: R24
    const int wholeOctants = octants.span - (endDegrees != 0 ? 1 : 0);
    const int end = octants.start + (octants.clockwise ? -wholeOctants : wholeOctants);
    return Emit(ShapeOp::Arc, octants.start * kDegreesPerOctant + startDegrees,
                end * kDegreesPerOctant + endDegrees, high * 256 + low);
}

// Code 12. Operands: dx, dy and a bulge, three signed bytes. Effect: an arc, or a displacement where the
// bulge or the displacement is 0. Refuses nothing more.
ShxResult ShapeDecoder::DecodeBulgeArc() {
    std::int8_t dx = 0;
    std::int8_t dy = 0;
    std::int8_t bulge = 0;
    if (!ReadPair(dx, dy) || !cursor_.Read(bulge)) {
        return kMalformed;
    }
    return EmitBulgeArc(dx, dy, bulge);
}

// Code 13. Operands: dx, dy and a bulge again and again, up to the pair (0, 0), which has no bulge. Effect:
// as of code 12 for each. Refuses arcs without that end.
ShxResult ShapeDecoder::DecodeBulgeArcs() {
    std::int8_t dx = 0;
    std::int8_t dy = 0;
    std::int8_t bulge = 0;
    while (ReadPair(dx, dy)) {
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
        return ShapeDecoder(out, CursorOf(bytes, length), kind).Decode();
    } catch (const std::bad_alloc&) {
        return kOutOfMemory;
    }
}

} // namespace ShxUtility
