// Every dash of the written path is looked up in the lattice of its family; what the tile's sides miss of
// their lattice vectors is added as often as tiles are laid.
#include "conversions/checking/PatternMeasure.h"

#include "StyleConversion/pattern/AreaSymbol.h"
#include "StyleConversion/pattern/FamilyLattice.h"
#include "StyleConversion/pattern/TileSearch.h"
#include "preview/ResolvedSymbol.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <variant>

namespace conversions {
namespace {

using pattern::FamilyLattice;
using pattern::LatticeFit;
using pattern::PatternLine;
using pattern::Vector;

// The lines of the paths of one symbol's member, one after another.
class WrittenLines {
public:
    explicit WrittenLines(const preview::Member& member) {
        for (const preview::Part& part : member.parts) {
            if (const auto* const path = std::get_if<preview::PathPart>(&part)) {
                preview::ForEachPiece(
                    path->outline,
                    [this](preview::Point from, preview::Point to, bool) {
                        lines_.push_back({{from.x, from.y}, {to.x, to.y}});
                    },
                    [](preview::Point, preview::Point, preview::Point, preview::Point, bool) {});
            }
        }
    }

    struct Line {
        Vector from;
        Vector to;
    };

    // Null behind the last one.
    const Line* Next() { return next_ < lines_.size() ? &lines_[next_++] : nullptr; }

private:
    std::vector<Line> lines_;
    std::size_t next_ = 0;
};

Vector Turned(const Vector& vector, const Vector& direction) {
    return {vector.x * direction.x - vector.y * direction.y, vector.x * direction.y + vector.y * direction.x};
}

Vector Difference(const Vector& first, const Vector& second) {
    return {first.x - second.x, first.y - second.y};
}

// One family against the member of the symbol that draws it.
class FamilyComparison {
public:
    FamilyComparison(const PatternLine& line, const preview::Member& member)
        : line_(line), lattice_(line), tile_(pattern::TileOf(line)),
          exactFrame_(pattern::DirectionAt(tile_.angle)), frame_(pattern::DirectionAt(member.angle.value)),
          width_(member.repeatX.value_or(0.0)), height_(member.repeatY.value_or(0.0)) {
        MeasureTile(member.angle.value);
    }

    // False where the symbol has no lines left for it.
    bool Compare(WrittenLines& written) {
        for (std::int32_t row = 0; row < line_.rowCount; ++row) {
            if (line_.dashes.empty()) {
                if (!CompareLine(written.Next(), 0.0, 0.0)) {
                    return false;
                }
                continue;
            }
            double before = 0.0; // of the cycle
            for (const double dash : line_.dashes) {
                if (dash >= 0 && !CompareLine(written.Next(), before, dash)) {
                    return false;
                }
                before += std::fabs(dash);
            }
        }
        return true;
    }

    FamilyMeasure Take(std::size_t family) const {
        FamilyMeasure measure;
        measure.family = family;
        measure.across = (across_ + tileAcross_) / std::fabs(lattice_.Spacing());
        measure.along = lattice_.IsContinuous() ? 0.0 : (along_ + tileAlong_) / lattice_.Shortest();
        measure.cut = cut_;
        return measure;
    }

private:
    // What the sides, as they are written, miss of the vectors that they stand for.
    void MeasureTile(double angle) {
        const pattern::FamilyFit fit = pattern::FitOf(line_, {tile_.angle, tile_.width, tile_.height});
        AddSide(Turned({width_, 0.0}, frame_), lattice_.At(fit.right));
        AddSide(Turned({0.0, height_}, frame_), lattice_.At(fit.up));
        gravest_ = kMeasuredTiles * fit.length;
        if (!lattice_.IsContinuous()) {
            Weigh(tile_.width, width_, kMeasuredTiles * std::fabs(tile_.width - width_));
        }
        Weigh(tile_.height, height_, kMeasuredTiles * std::fabs(tile_.height - height_));
        Weigh(tile_.angle, angle,
              kMeasuredTiles * std::max(width_, height_) * std::fabs(tile_.angle - angle) *
                  pattern::kRadiansPerDegree);
    }

    // Along a continuous line everything is alike.
    void AddSide(const Vector& side, const Vector& meant) {
        const Vector miss = Difference(side, meant);
        const Vector& direction = lattice_.Direction();
        tileAcross_ += kMeasuredTiles * std::fabs(miss.y * direction.x - miss.x * direction.y);
        tileAlong_ += kMeasuredTiles * std::fabs(miss.x * direction.x + miss.y * direction.y);
    }

    bool CompareLine(const WrittenLines::Line* line, double before, double dash) {
        if (line == nullptr) {
            return false;
        }
        if (line_.rotatedTile) {
            CompareEnd(line->from, before, true);
            CompareEnd(line->to, before + dash, true);
            return true;
        }
        // The end is written as a length.
        CompareEnd(line->from, before, true);
        if (!lattice_.IsContinuous()) {
            const double length = line->to.x - line->from.x;
            Weigh(dash, length, std::fabs(dash - length));
        }
        CompareEnd(line->to, before + dash, false);
        return true;
    }

    // A place of the symbol that is so far behind the start of a cycle; its numbers may be told of.
    void CompareEnd(const Vector& written, double behind, bool hasNumbers) {
        const Vector& direction = lattice_.Direction();
        const Vector place = Turned(written, frame_);
        const Vector start = {place.x - line_.originX - behind * direction.x,
                              place.y - line_.originY - behind * direction.y};
        const LatticeFit fit = lattice_.NearestTo(start);
        const double along = std::fabs(fit.along);
        const double across = std::fabs(fit.across);
        along_ = std::max(along_, along);
        across_ = std::max(across_, across);
        if (hasNumbers && std::max(along, across) > gravest_) {
            const Vector exact = Turned({place.x - fit.along * direction.x + fit.across * direction.y,
                                         place.y - fit.along * direction.y - fit.across * direction.x},
                                        {exactFrame_.x, 0.0 - exactFrame_.y});
            Weigh(exact.x, written.x, std::fabs(exact.x - written.x));
            Weigh(exact.y, written.y, std::fabs(exact.y - written.y));
        }
    }

    void Weigh(double exact, double written, double error) {
        if (error > gravest_) {
            gravest_ = error;
            cut_ = CutNumber{exact, written};
        }
    }

    const PatternLine& line_;
    FamilyLattice lattice_;
    pattern::Tile tile_;
    Vector exactFrame_;
    Vector frame_;
    double width_;
    double height_;
    double tileAcross_ = 0.0;
    double tileAlong_ = 0.0;
    double across_ = 0.0;
    double along_ = 0.0;
    double gravest_ = 0.0; // the error that the number, or the tile's own miss, comes to
    std::optional<CutNumber> cut_;
};

class SymbolComparison {
public:
    SymbolComparison(const std::vector<PatternLine>& families, TylModel::SymbolDefinition& symbol)
        : families_(families), symbol_(preview::Resolve(symbol)) {
        written_.reserve(symbol_.members.size());
        for (const preview::Member& member : symbol_.members) {
            written_.emplace_back(member);
        }
    }

    // Families are drawn in the order, and joined as, AreaSymbolBuilder does.
    PatternMeasure Run() {
        std::vector<std::size_t> order(families_.size());
        std::iota(order.begin(), order.end(), std::size_t{0});
        std::stable_sort(order.begin(), order.end(), [this](std::size_t first, std::size_t second) {
            return pattern::IsDrawnBefore(families_[first], families_[second]);
        });
        pattern::Tile previous;
        std::size_t members = 0;
        for (const std::size_t family : order) {
            const PatternLine& line = families_[family];
            if (line.rowCount < 0) {
                measure_.lost.push_back(family);
                continue;
            }
            const pattern::Tile tile = pattern::TileOf(line);
            members += pattern::IsSameTile(tile, previous) ? 0 : 1;
            previous = tile;
            if (!pattern::DrawsNothing(line)) {
                Compare(family, members);
            }
        }
        std::sort(measure_.lost.begin(), measure_.lost.end());
        return std::move(measure_);
    }

private:
    // `members` counts the members up to that which draws the family.
    void Compare(std::size_t family, std::size_t members) {
        if (members == 0 || members > symbol_.members.size()) {
            measure_.lost.push_back(family); // its tile is too small
            return;
        }
        if (!pattern::IsPlaced(families_[family])) {
            return;
        }
        FamilyComparison comparison(families_[family], symbol_.members[members - 1]);
        if (!comparison.Compare(written_[members - 1])) {
            measure_.lost.push_back(family);
            return;
        }
        const FamilyMeasure measure = comparison.Take(family);
        if (measure.Share() > measure_.worst.Share()) {
            measure_.worst = measure;
        }
    }

    const std::vector<PatternLine>& families_;
    preview::ResolvedSymbol symbol_;
    std::vector<WrittenLines> written_;
    PatternMeasure measure_;
};

} // namespace

PatternMeasure MeasurePattern(const std::vector<PatternLine>& families, TylModel::SymbolDefinition& symbol) {
    return SymbolComparison(families, symbol).Run();
}

} // namespace conversions
