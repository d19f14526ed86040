// Continuous families by their angle; families of dashes together, in groups, or alone.
#include "StyleConversion/pattern/FaithfulTiles.h"

#include "StyleConversion/pattern/PatternLimits.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <utility>

namespace pattern {
namespace {

// How many spacings long the piece of a continuous line in one tile is.
constexpr double kSpacingsAlongLine = 10.0;

class TilePlanner {
public:
    explicit TilePlanner(const std::vector<PatternLine>& families) : families_(families) {}

    FaithfulTiles Run() {
        for (std::size_t i = 0; i < families_.size(); ++i) {
            Sort(i);
        }
        mostDashes_ = std::max(kMostDashes, 4.0 * dashes_);
        if (!rest_.empty() && !TileTogether()) {
            for (int group = 0; group < kMostGroups && !rest_.empty(); ++group) {
                TileGroup();
            }
            for (const std::size_t index : rest_) {
                TileAlone(index);
            }
        }
        std::stable_sort(plan_.tiles.begin(), plan_.tiles.end(),
                         [](const FaithfulTile& first, const FaithfulTile& second) {
                             return first.families.front().family < second.families.front().family;
                         });
        return std::move(plan_);
    }

private:
    void Sort(std::size_t index) {
        const PatternLine& family = families_[index];
        if (DrawsNothing(family)) {
            return;
        }
        if (!IsPlaced(family)) {
            plan_.unplaced.push_back(index);
        } else if (IsContinuous(family)) {
            TileContinuous(index);
        } else {
            rest_.push_back(index);
            dashes_ += static_cast<double>(family.dashes.size());
        }
    }

    void TileContinuous(std::size_t index) {
        const PatternLine& family = families_[index];
        const double spacing = std::fabs(family.spacing);
        const Rectangle rectangle{AngleOfRectangle(family.angle), kSpacingsAlongLine * spacing, spacing};
        const auto [place, isNew] =
            continuous_.try_emplace({rectangle.angle, rectangle.height}, plan_.tiles.size());
        if (isNew) {
            plan_.tiles.push_back({rectangle, true, {}});
        }
        plan_.tiles[place->second].families.push_back({index, {}});
    }

    bool TileTogether() {
        std::vector<const PatternLine*> families;
        for (const std::size_t index : rest_) {
            families.push_back(&families_[index]);
        }
        for (const TileBounds& bounds : {TileBounds{kUnseenMiss, kMostExactCells, mostDashes_},
                                         TileBounds{kSmallMiss, kMostSharedCells, mostDashes_},
                                         TileBounds{kRoundedMiss, kMostSharedCells, mostDashes_}}) {
            if (families.size() == 1 && bounds.share > kUnseenMiss) {
                break; // it shares nothing
            }
            if (const auto rectangle = FindRectangle(families, 0.0, bounds)) {
                FaithfulTile tile{*rectangle, false, {}};
                for (const std::size_t index : rest_) {
                    tile.families.push_back({index, FitOf(families_[index], *rectangle)});
                }
                plan_.tiles.push_back(std::move(tile));
                rest_.clear();
                return true;
            }
        }
        return false;
    }

    // The coarsest family, and all that its tile repeats as well.
    void TileGroup() {
        const auto coarsest =
            std::max_element(rest_.begin(), rest_.end(), [this](std::size_t a, std::size_t b) {
                return FamilyLattice(families_[a]).CellArea() < FamilyLattice(families_[b]).CellArea();
            });
        const std::size_t chosen = *coarsest;
        rest_.erase(coarsest);
        if (TileAlone(chosen)) {
            TakeFitting(plan_.tiles.back());
        }
    }

    // False where no rectangle can be told for its numbers.
    bool TileAlone(std::size_t index) {
        const FaithfulTile& tile = Alone(index);
        if (tile.families.front().fit.Cells() < 1) {
            plan_.unplaced.push_back(index);
            return false;
        }
        plan_.tiles.push_back(tile);
        return true;
    }

    // Takes those of the rest that the tile repeats no worse than its own family, and without much more ink
    // than a tile of their own.
    void TakeFitting(FaithfulTile& tile) {
        const double share = std::max(tile.families.front().fit.share, kUnseenMiss);
        double dashes = DashesIn(tile.families.front());
        std::vector<std::size_t> others;
        for (const std::size_t index : rest_) {
            const TiledFamily family{index, FitOf(families_[index], tile.rectangle)};
            const double more = DashesIn(family);
            if (family.fit.share <= share && family.fit.Cells() >= 1 && dashes + more <= mostDashes_ &&
                (more <= kDashesOfTile || more <= DashesIn(Alone(index).families.front()) + kDashesOfTile)) {
                tile.families.push_back(family);
                dashes += more;
            } else {
                others.push_back(index);
            }
        }
        rest_ = std::move(others);
    }

    // Found once.
    const FaithfulTile& Alone(std::size_t index) {
        FaithfulTile& tile = alone_[index];
        if (tile.families.empty()) {
            tile.rectangle = TileOf(families_[index]);
            tile.families.push_back({index, FitOf(families_[index], tile.rectangle)});
        }
        return tile;
    }

    double DashesIn(const TiledFamily& family) const {
        return static_cast<double>(family.fit.Cells()) *
               static_cast<double>(families_[family.family].dashes.size());
    }

    Rectangle TileOf(const PatternLine& family) const {
        if (const auto rectangle =
                FindRectangleAtAnyAngle(family, {{kExactMiss, kMostExactCells, mostDashes_},
                                                 {kUnseenMiss, kMostSlightCells, mostDashes_},
                                                 {kSlightMiss, kMostSlightCells, mostDashes_},
                                                 {kSmallMiss, kMostCells, mostDashes_}})) {
            return *rectangle;
        }
        const auto dashes = static_cast<double>(family.dashes.size());
        return NearestStack(family, std::min(kMostCells, mostDashes_ / dashes));
    }

    const std::vector<PatternLine>& families_;
    std::map<std::pair<double, double>, std::size_t> continuous_; // tiles by their angle and height
    std::map<std::size_t, FaithfulTile> alone_;                   // families by themselves
    std::vector<std::size_t> rest_;                               // families of dashes without a tile
    double dashes_ = 0.0;                                         // of one cycle of each of them
    double mostDashes_ = 0.0;
    FaithfulTiles plan_;
};

} // namespace

FaithfulTiles FindFaithfulTiles(const std::vector<PatternLine>& families) {
    return TilePlanner(families).Run();
}

} // namespace pattern
