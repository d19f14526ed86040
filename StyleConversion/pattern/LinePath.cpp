// Rows of dashes as path commands.
#include "StyleConversion/pattern/LinePath.h"

#include "StyleConversion/encoding/PathPiece.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

namespace pattern {
namespace {

using encoding::PathPiece;

void AppendHorizontal(std::wstring& path, double x, double y, double length) {
    PathPiece().Words(L"M ").Pair(x, y).Words(L" h ").Number(length).AppendTo(path);
}

// Turns points by the family's angle about its origin.
class Rotation {
public:
    explicit Rotation(const PatternLine& line)
        : originX_(line.originX), originY_(line.originY), cos_(std::cos(line.angle * kRadiansPerDegree)),
          sin_(std::sin(line.angle * kRadiansPerDegree)) {}

    void AddTurned(PathPiece& piece, double x, double y) const {
        piece.Pair((x - originX_) * cos_ - (y - originY_) * sin_ + originX_,
                   (x - originX_) * sin_ + (y - originY_) * cos_ + originY_);
    }

private:
    double originX_;
    double originY_;
    double cos_;
    double sin_;
};

void AppendTurnedDash(std::wstring& path, const Rotation& rotation, double x, double y, double length) {
    PathPiece piece;
    piece.Words(L"M ");
    rotation.AddTurned(piece, x, y);
    piece.Words(L" L ");
    rotation.AddTurned(piece, x + length, y);
    piece.AppendTo(path);
}

// From the drawing's frame into the family's own, in which its lines run along the x axis.
void TurnOriginIntoOwnFrame(PatternLine& line) {
    const double radians = -line.angle * kRadiansPerDegree;
    const double c = std::cos(radians);
    const double s = std::sin(radians);
    const double x = line.originX;
    const double y = line.originY;
    line.originX = x * c - y * s;
    line.originY = x * s + y * c;
}

// The path of one family, at the end of a longer one.
class FamilyPath {
public:
    FamilyPath(std::wstring& path, const PatternLine& line)
        : path_(path), start_(path.size()), line_(line), rotation_(line) {}

    void AppendRow(std::int32_t row) {
        Separate();
        const double x = row * line_.offset + line_.originX;
        const double y = row * line_.spacing + line_.originY;
        if (line_.dashes.empty()) {
            AppendHorizontal(path_, x, y, line_.repeatX);
        } else {
            AppendDashes(x, y);
        }
    }

private:
    void AppendDashes(double x, double y) {
        for (const double dash : line_.dashes) {
            if (dash >= 0) {
                Separate();
                if (line_.rotatedTile) {
                    AppendTurnedDash(path_, rotation_, x, y, dash);
                } else {
                    AppendHorizontal(path_, x, y, dash);
                }
            }
            x += std::fabs(dash);
        }
    }

    void Separate() {
        if (path_.size() > start_ && path_.back() != L' ') {
            path_ += L' ';
        }
    }

    std::wstring& path_;
    std::size_t start_;
    const PatternLine& line_;
    Rotation rotation_;
};

} // namespace

void AppendLinePath(std::wstring& path, PatternLine& line) {
    if (!line.rotatedTile) {
        TurnOriginIntoOwnFrame(line);
    }
    FamilyPath family(path, line);
    for (std::int32_t row = 0; row < line.rowCount; ++row) {
        family.AppendRow(row);
    }
}

} // namespace pattern
