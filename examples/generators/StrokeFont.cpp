// Glyphs as shape programs.
#include "examples/generators/StrokeFont.h"

#include "tests/support/ShapeProgramBuilder.h"

#include <array>
#include <cstddef>
#include <string>

namespace example_shapes {
namespace {

using test_support::Bytes;
using test_support::ShapeFileBuilder;
using test_support::ShapeProgramBuilder;
using Displacement = ShapeProgramBuilder::Displacement;

constexpr int kAbove = 21;
constexpr int kBelow = 7;
// The file has its baseline this far below the origin.
constexpr int kBaseline = 9;
constexpr int kDualOrientation = 2;

constexpr int kFirstCharacter = 32;
constexpr std::size_t kCharacters = 95;

// Names of the characters that are neither letters nor digits, in the order of their codes.
constexpr std::array<const char*, 33> kSignNames = {
    "SPC",  "EXCL",  "QUOT",  "HASH", "DOLR",  "PCT",   "AMP",   "APOS", "LPAR", "RPAR", "AST",
    "PLUS", "COMMA", "HYPH",  "PER",  "SLASH", "COLON", "SEMI",  "LT",   "EQ",   "GT",   "QUES",
    "AT",   "LBRK",  "BSLSH", "RBRK", "CARET", "UNDER", "GRAVE", "LBRC", "BAR",  "RBRC", "TILDE"};

// "UCA" for "A", "LCA" for "a", "N0" for "0", and so on.
std::string NameOf(int character, std::size_t& signs) {
    if (character >= '0' && character <= '9') {
        return std::string("N") + static_cast<char>(character);
    }
    if (character >= 'A' && character <= 'Z') {
        return std::string("UC") + static_cast<char>(character);
    }
    if (character >= 'a' && character <= 'z') {
        return std::string("LC") + static_cast<char>(character - 'a' + 'A');
    }
    return kSignNames.at(signs++);
}

// The byte that draws a displacement as one of the sixteen directions, 0 where none is it. Directions go
// round a square, so the longer side is the length.
int VectorByte(Displacement move) {
    for (int length = 1; length <= 15; ++length) {
        // Twice the displacement of length 1, in units of a half.
        constexpr std::array<Displacement, 16> kDirections = {{{2, 0},
                                                               {2, 1},
                                                               {2, 2},
                                                               {1, 2},
                                                               {0, 2},
                                                               {-1, 2},
                                                               {-2, 2},
                                                               {-2, 1},
                                                               {-2, 0},
                                                               {-2, -1},
                                                               {-2, -2},
                                                               {-1, -2},
                                                               {0, -2},
                                                               {1, -2},
                                                               {2, -2},
                                                               {2, -1}}};
        for (std::size_t direction = 0; direction < kDirections.size(); ++direction) {
            const Displacement unit = kDirections.at(direction);
            if (unit.dx * length == 2 * move.dx && unit.dy * length == 2 * move.dy) {
                return length * 16 + static_cast<int>(direction);
            }
        }
    }
    return 0;
}

// Appends displacements, each in the shortest way: a vector byte, code 8, or code 9 for a run of others.
void PutMoves(ShapeProgramBuilder& program, const std::vector<Displacement>& moves) {
    std::vector<Displacement> run;
    const auto putRun = [&] {
        if (run.size() == 1) {
            program.Move(run[0].dx, run[0].dy);
        } else if (!run.empty()) {
            program.Moves(run);
        }
        run.clear();
    };
    for (const Displacement move : moves) {
        const int vector = VectorByte(move);
        if (move.dx == 0 && move.dy == 0) {
            continue;
        }
        if (vector != 0) {
            putRun();
            program.Put(vector);
        } else {
            run.push_back(move);
        }
    }
    putRun();
}

class GlyphProgram {
public:
    explicit GlyphProgram(const HersheyGlyph& glyph) : glyph_(glyph) {}

    Bytes Program() {
        const int width = glyph_.right - glyph_.left;
        const int half = width / 2;
        program_.PenUp().VerticalOnly().Move(-half, -kAbove);
        for (const std::vector<HersheyPoint>& stroke : glyph_.strokes) {
            PutMoves(program_, {To(stroke.front())});
            program_.PenDown();
            std::vector<Displacement> moves;
            for (std::size_t i = 1; i < stroke.size(); ++i) {
                moves.push_back(To(stroke[i]));
            }
            PutMoves(program_, moves);
            program_.PenUp();
        }
        PutMoves(program_, {{width - x_, -y_}});
        return program_.VerticalOnly().Move(half - width, -kBelow).End();
    }

private:
    // The displacement to a point of the file, y upward, the origin at the left end of the baseline.
    Displacement To(HersheyPoint point) {
        const int x = point.x - glyph_.left;
        const int y = kBaseline - point.y;
        const Displacement move = {x - x_, y - y_};
        x_ = x;
        y_ = y;
        return move;
    }

    const HersheyGlyph& glyph_;
    ShapeProgramBuilder program_;
    int x_ = 0;
    int y_ = 0;
};

} // namespace

ShapeFileBuilder StrokeFont(const std::vector<HersheyGlyph>& glyphs) {
    ShapeFileBuilder builder = ShapeFileBuilder::Shapes();
    builder.FontInfo("SINGLE STROKE ROMAN", {kAbove, kBelow, kDualOrientation, 0});
    std::size_t signs = 0;
    for (std::size_t i = 0; i < glyphs.size() && i < kCharacters; ++i) {
        const int character = kFirstCharacter + static_cast<int>(i);
        builder.Shape(static_cast<std::uint16_t>(character), NameOf(character, signs),
                      GlyphProgram(glyphs[i]).Program());
    }
    return builder;
}

} // namespace example_shapes
