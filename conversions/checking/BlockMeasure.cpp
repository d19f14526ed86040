#include "conversions/checking/BlockMeasure.h"

#include "StyleConversion/encoding/NumberReader.h"
#include "StyleConversion/encoding/TrimmedNumber.h"
#include "conversions/checking/PathDistance.h"
#include "preview/ResolvedSymbol.h"
#include "preview/TextMetrics.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <variant>
#include <vector>

namespace conversions {
namespace {

using preview::Box;
using preview::PathPart;
using preview::Point;
using preview::TextPart;

using Paths = std::vector<const PathPart*>;

// The paths and the texts of a symbol, in their order.
struct BlockParts {
    explicit BlockParts(const preview::ResolvedSymbol& symbol) {
        for (const preview::Member& member : symbol.members) {
            for (const preview::Part& part : member.parts) {
                if (const auto* const path = std::get_if<PathPart>(&part)) {
                    paths.push_back(path);
                    all.Include(path->outline.Bounds());
                } else {
                    texts.push_back(&std::get<TextPart>(part));
                    allTexts.Include(preview::EstimatedBounds(*texts.back()));
                }
            }
        }
        all.Include(allTexts);
    }

    Paths paths;
    std::vector<const TextPart*> texts;
    Box allTexts;
    Box all;
};

class BlockComparison {
public:
    BlockComparison(const BlockParts& strict, const BlockParts& faithful)
        : strict_(strict), faithful_(faithful) {}

    BlockMeasure Run() {
        measure_.parts = faithful_.paths.size() + faithful_.texts.size();
        size_ = std::max(faithful_.all.Width(), faithful_.all.Height());
        if (size_ > 0.0 && std::isfinite(size_)) {
            const double little = kLittle * size_;
            if (const double size = std::max(strict_.all.Width(), strict_.all.Height()); size > 0.0) {
                measure_.scale = size_ / size;
            }
            farthest_ = little;
            ComparePaths();
            CompareTexts();
            measure_.share = farthest_ > little ? farthest_ / size_ : 0.0;
        }
        return measure_;
    }

private:
    void ComparePaths() {
        const std::size_t count = faithful_.paths.size();
        if (strict_.paths.size() != count) {
            measure_.lost += count - std::min(count, strict_.paths.size());
            CompareShapes(strict_.paths, faithful_.paths);
            return;
        }
        for (std::size_t i = 0; i < count; ++i) {
            if (strict_.paths[i]->outline.Steps() == faithful_.paths[i]->outline.Steps()) {
                CompareAlike(*strict_.paths[i], *faithful_.paths[i]);
            } else {
                CompareShapes({strict_.paths[i]}, {faithful_.paths[i]});
            }
        }
    }

    // Paths that are built alike. They may still start elsewhere, which is no miss of their points.
    void CompareAlike(const PathPart& strict, const PathPart& faithful) {
        double distance = 0.0;
        double cutDistance = farthest_;
        CutNumber number;
        for (std::size_t i = 0; i < strict.outline.Points().size(); ++i) {
            const Point written = strict.outline.Points()[i];
            const Point exact = faithful.outline.Points()[i];
            const double miss = preview::Length(written - exact);
            distance = std::max(distance, miss);
            const bool isX = std::fabs(written.x - exact.x) > std::fabs(written.y - exact.y);
            const CutNumber cut = isX ? CutNumber{exact.x, written.x} : CutNumber{exact.y, written.y};
            if (miss > cutDistance && IsCut(cut)) {
                cutDistance = miss;
                number = cut;
            }
        }
        const double before = farthest_;
        if (distance <= cutDistance) {
            TakeDistance(distance, false);
        } else {
            CompareShapes({&strict}, {&faithful});
        }
        if (farthest_ > before && cutDistance >= 0.5 * farthest_ && number.exact != number.written) {
            measure_.cut = number;
        }
    }

    static bool IsCut(const CutNumber& number) {
        const std::wstring cut = encoding::Double2TrimmedString(number.exact);
        return encoding::ReadNumber(std::string(cut.begin(), cut.end())).value == number.written;
    }

    void CompareShapes(const Paths& strict, const Paths& faithful) {
        const bool hasAll = CompareFills(strict, faithful) && CompareStrokes(strict, faithful);
        if (!hasAll && strict.size() == faithful.size()) {
            ++measure_.lost; // else they are counted
        }
    }

    // False where nothing is filled that should be.
    bool CompareFills(const Paths& strict, const Paths& faithful) {
        const PathLines written(strict, PathLines::As::kFills);
        const PathLines exact(faithful, PathLines::As::kFills);
        if (!exact.IsEmpty() && !written.IsEmpty()) {
            TakeDistance(Distance(written, exact), false);
        }
        return exact.IsEmpty() || !written.IsEmpty();
    }

    // What is drawn by another part of the block as well is in its place.
    bool CompareStrokes(const Paths& strict, const Paths& faithful) {
        const PathLines written(strict, PathLines::As::kStrokes);
        const PathLines exact(faithful, PathLines::As::kStrokes);
        if (exact.IsEmpty() || written.IsEmpty()) {
            return exact.IsEmpty();
        }
        double distance = Distance(written, exact);
        if (distance > farthest_ && CanCompareWithAll()) {
            distance = std::min(distance, std::max(FarthestFrom(*allWritten_, exact, farthest_),
                                                   FarthestFrom(*allExact_, written, farthest_)));
        }
        TakeDistance(distance, false);
        return true;
    }

    double Distance(const PathLines& written, const PathLines& exact) const {
        return std::max(FarthestFrom(written, exact, farthest_), FarthestFrom(exact, written, farthest_));
    }

    // In a large block only some parts are.
    bool CanCompareWithAll() {
        if (!allWritten_) {
            allWritten_.emplace(strict_.paths, PathLines::As::kStrokes);
            allExact_.emplace(faithful_.paths, PathLines::As::kStrokes);
        }
        const std::size_t lines = allWritten_->Lines().size() + allExact_->Lines().size();
        linesLeft_ -= std::min(linesLeft_, lines);
        return linesLeft_ > 0;
    }

    // A paragraph becomes a text for each of its lines.
    void CompareTexts() {
        if (strict_.texts.size() != faithful_.texts.size()) {
            CompareBoxes(strict_.allTexts, faithful_.allTexts, 0.0);
            return;
        }
        for (std::size_t i = 0; i < strict_.texts.size(); ++i) {
            const Box written = preview::EstimatedBounds(*strict_.texts[i]);
            const Box exact = preview::EstimatedBounds(*faithful_.texts[i]);
            CompareBoxes(written, exact, DoubtOf(*strict_.texts[i], *faithful_.texts[i], written, exact));
        }
    }

    // How wide a text is is an estimate. It makes no difference where both are placed by the same side.
    static double DoubtOf(const TextPart& strict, const TextPart& faithful, const Box& written,
                          const Box& exact) {
        constexpr double kDoubt = 0.25;
        return strict.horizontal == faithful.horizontal
                   ? 0.0
                   : kDoubt * std::max({written.Width(), written.Height(), exact.Width(), exact.Height()});
    }

    void CompareBoxes(const Box& written, const Box& exact, double doubt) {
        if (!exact.IsEmpty() && !written.IsEmpty()) {
            TakeDistance(preview::Length(written.low - exact.low) - doubt, true);
            TakeDistance(preview::Length(written.high - exact.high) - doubt, true);
        }
    }

    // Whether it is the farthest.
    bool TakeDistance(double distance, bool isText) {
        if (!(distance > farthest_)) {
            return false;
        }
        farthest_ = distance;
        measure_.isText = isText;
        measure_.cut.reset();
        return true;
    }

    static constexpr double kLittle = 0.5 * kWarningShare; // of the size

    const BlockParts& strict_;
    const BlockParts& faithful_;
    std::optional<PathLines> allWritten_;
    std::optional<PathLines> allExact_;
    std::size_t linesLeft_ = 1000000; // to be compared with parts
    double size_ = 0.0;
    double farthest_ = 0.0; // what is not farther changes nothing
    BlockMeasure measure_;
};

} // namespace

BlockMeasure MeasureBlock(TylModel::SymbolDefinition& strict, TylModel::SymbolDefinition& faithful) {
    const preview::ResolvedSymbol written = preview::Resolve(strict);
    const preview::ResolvedSymbol exact = preview::Resolve(faithful);
    return BlockComparison(BlockParts(written), BlockParts(exact)).Run();
}

} // namespace conversions
