// A point symbol as runs of equal paint.
#pragma once

#include "styles/Ink.h"
#include "styles/Loss.h"

#include <cstdint>
#include <vector>

namespace styles {

/// What of a part is drawn.
enum class Paint : std::uint8_t {
    kStroke,
    kFill,
    kBoth, // both in one colour
    kText,
};

struct Item {
    const preview::Part* part = nullptr; // of the symbol
    Paint paint = Paint::kStroke;
};

/// Items of one colour and one pen, in drawing order.
struct Run {
    Ink ink;
    bool hasPen = false; // something in it is drawn by the pen
    std::vector<Item> items;
    double angle = 0.0; // degrees, counter-clockwise, about the insertion point
};

/// The runs of some parts: a run ends where another colour or pen begins, and no item goes before another
/// one.
class RunList {
public:
    RunList(double scale, Losses& losses) : scale_(scale), losses_(losses) {}

    void Add(const preview::Part& part, double angle = 0.0);
    const std::vector<Run>& Runs() const { return runs_; }

private:
    void Add(const preview::Color& color, double pen, const Item& item, double angle);

    double scale_;
    Losses& losses_;
    std::vector<Run> runs_;
};

struct MarkerParts {
    std::vector<Run> runs; // in drawing order
    double reach =
        0.0; // half the side of a square around the insertion point that holds all, in scaled units
    Losses losses;
};

/// How far a part reaches from a point along either axis, in scaled units, its pen and the lengths that its
/// texts may come to included.
double ReachOf(const preview::Part& part, preview::Point anchor, double scale);

/// The symbol must outlive what is returned.
MarkerParts MarkerPartsOf(const preview::ResolvedSymbol& symbol, double scale);

} // namespace styles
