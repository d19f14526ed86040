// Cutting boundary edges where they turn back across the lines of a family, and crossing what is left.
#include "drawing/geometry/MonotoneEdges.h"

#include "drawing/geometry/NurbCurveData.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <optional>

namespace geometry {

namespace {

constexpr double kFullTurn = 2.0 * std::numbers::pi;

/// Below this bulge an arc's centre is so far away that its digits are lost; the arc is then taken as the
/// rational parabola that it also is.
constexpr double kFlatBulge = 0.01;

/// Halvings of a Bernstein piece that does not become monotone.
constexpr int kDeepest = 48;

/// The angle that an arc runs through: 0 to 2 pi.
double Sweep(double startAngle, double endAngle) {
    constexpr double kClosed = 1e-9;
    double sweep = endAngle - startAngle;
    if (std::fabs(std::fabs(sweep) - kFullTurn) <= kClosed) {
        return kFullTurn;
    }
    sweep = std::fmod(sweep, kFullTurn);
    return sweep < 0.0 ? sweep + kFullTurn : sweep;
}

class BoundaryBuilder {
public:
    explicit BoundaryBuilder(const HatchFrame& frame) : frame_(frame) {}
    MonotoneBoundary Take() { return std::move(boundary_); }

    void Add(const HatchLoop& loop);

private:
    void Add(const OxGeLineSeg2d& edge);
    void Add(const OxGeCircArc2d& edge);
    void Add(const OxGeEllipArc2d& edge);
    void Add(const std::shared_ptr<const OxGeNurbCurve2d>& edge);
    void Add(const PolylineLoop& polyline);
    void AddEllipse(Point center, Vector majorAxis, double ratio, double startAngle, double endAngle);
    void AddBulge(Point start, Point end, double bulge);
    void CloseLoop();
    double Level(Point point) const { return SnappedLevel(RawLevel(frame_, point)); }
    void ConnectTo(Point start);
    void AddStraight(Point start, Point end);
    void AddConic(const ConicArc& conic, double startAngle, double sweep, Point start, Point end);
    void AddChain(const BezierChain& chain);
    void AddBezier(std::span<const Point> points, std::span<const double> weights);

    const HatchFrame& frame_;
    MonotoneBoundary boundary_;
    std::optional<Point> loopStart_;
    Point current_;
};

/// An edge begins at `start`: the gap before it, if any, is closed.
void BoundaryBuilder::ConnectTo(Point start) {
    if (!loopStart_) {
        loopStart_ = start;
    } else if (current_ != start) {
        AddStraight(current_, start);
    }
}

void BoundaryBuilder::CloseLoop() {
    if (loopStart_) {
        ConnectTo(*loopStart_);
    }
    loopStart_.reset();
}

void BoundaryBuilder::AddStraight(Point start, Point end) {
    boundary_.edges.push_back(
        {.start = start, .end = end, .startLevel = Level(start), .endLevel = Level(end)});
    current_ = end;
}

void BoundaryBuilder::Add(const HatchLoop& loop) {
    if (loop.polyline) {
        Add(*loop.polyline);
    } else {
        for (const HatchEdge& edge : loop.edges) {
            std::visit([this](const auto& curve) { Add(curve); }, edge);
        }
    }
    CloseLoop();
}

void BoundaryBuilder::Add(const OxGeLineSeg2d& edge) {
    ConnectTo(edge.startPoint());
    AddStraight(edge.startPoint(), edge.endPoint());
}

void BoundaryBuilder::Add(const PolylineLoop& polyline) {
    const std::vector<BulgeVertex>& vertices = polyline.vertices;
    for (std::size_t index = 0; index < vertices.size() && vertices.size() > 1; ++index) {
        const BulgeVertex& from = vertices[index];
        AddBulge(from.point, vertices[(index + 1) % vertices.size()].point, from.bulge);
    }
}

void BoundaryBuilder::AddBulge(Point start, Point end, double bulge) {
    ConnectTo(start);
    const Vector chord = end - start;
    if (bulge == 0.0 || start == end) {
        AddStraight(start, end);
        return;
    }
    const Point middle = Between(start, end, 0.5);
    if (std::fabs(bulge) < kFlatBulge) {
        const double square = bulge * bulge;
        const Point apex = middle - (bulge / (1.0 - square)) * TurnedLeft(chord);
        const BezierChain chain{
            2, {0.0, 1.0}, {start, apex, end}, {1.0, (1.0 - square) / (1.0 + square), 1.0}};
        AddChain(chain);
        return;
    }
    // The angle counts from the start, in the sense of travel.
    const Point center = middle + ((1.0 - bulge * bulge) / (4.0 * bulge)) * TurnedLeft(chord);
    const Vector toStart = start - center;
    const Vector ahead = (bulge > 0.0 ? 1.0 : -1.0) * TurnedLeft(toStart);
    AddConic({center, toStart, ahead}, 0.0, 4.0 * std::atan(std::fabs(bulge)), start, end);
}

void BoundaryBuilder::Add(const OxGeCircArc2d& edge) {
    AddEllipse(edge.center(), {edge.radius(), 0.0}, edge.isClockWise() ? -1.0 : 1.0, edge.startAng(),
               edge.endAng());
}

void BoundaryBuilder::Add(const OxGeEllipArc2d& edge) {
    const OxGeVector2d axis = edge.majorAxis();
    AddEllipse(edge.center(), {axis.x, axis.y}, edge.isClockWise() ? -edge.radiusRatio() : edge.radiusRatio(),
               edge.startAng(), edge.endAng());
}

/// `ratio` is negative for an arc that runs clockwise.
void BoundaryBuilder::AddEllipse(Point center, Vector majorAxis, double ratio, double startAngle,
                                 double endAngle) {
    const ConicArc conic{center, majorAxis, ratio * TurnedLeft(majorAxis)};
    const double first = std::fmod(startAngle, kFullTurn);
    const double sweep = Sweep(startAngle, endAngle);
    const Point start = ConicPoint(conic, first);
    const Point end = sweep == kFullTurn ? start : ConicPoint(conic, first + sweep);
    ConnectTo(start);
    AddConic(conic, first, sweep, start, end);
}

void BoundaryBuilder::Add(const std::shared_ptr<const OxGeNurbCurve2d>& edge) {
    if (edge->data() != nullptr) {
        const BezierChain chain = DecomposeIntoBezier(edge->data()->curve);
        ConnectTo(chain.points.front());
        AddChain(chain);
    }
}

/// Cut at the angles where the level is greatest or least: phase plus whole half turns.
void BoundaryBuilder::AddConic(const ConicArc& conic, double startAngle, double sweep, Point start,
                               Point end) {
    const LevelWave wave = MakeLevelWave(conic, frame_);
    const double endAngle = startAngle + sweep;
    MonotoneEdge edge;
    edge.start = start;
    edge.startLevel = Level(start);
    edge.shape = EdgeShape::kConic;
    edge.index = boundary_.conics.size();
    edge.startAngle = startAngle;
    boundary_.conics.push_back(conic);
    double halfTurns = std::floor((startAngle - wave.phase) / std::numbers::pi) + 1.0;
    for (;;) {
        const double turn = wave.phase + halfTurns * std::numbers::pi;
        if (!(turn < endAngle)) {
            break;
        }
        const bool top = std::fmod(halfTurns, 2.0) == 0.0;
        edge.end = ConicPoint(conic, turn);
        edge.endLevel = SnappedLevel(wave.center + (top ? wave.amplitude : -wave.amplitude));
        edge.endAngle = turn;
        boundary_.edges.push_back(edge);
        edge.start = edge.end;
        edge.startLevel = edge.endLevel;
        edge.startAngle = turn;
        halfTurns += 1.0;
    }
    edge.end = end;
    edge.endLevel = Level(end);
    edge.endAngle = endAngle;
    boundary_.edges.push_back(edge);
    current_ = end;
}

void BoundaryBuilder::AddChain(const BezierChain& chain) {
    BezierStack stack(chain);
    std::vector<double> levels(static_cast<std::size_t>(chain.degree) + 1);
    for (std::size_t piece = 0; piece < PieceCount(chain); ++piece) {
        stack.Push(piece, 0.0, 1.0);
        while (!stack.IsEmpty()) {
            const std::span<const Point> points = stack.TopPoints();
            double greatest = 0.0;
            for (std::size_t index = 0; index < points.size(); ++index) {
                levels[index] = RawLevel(frame_, points[index]);
                greatest = std::max(greatest, std::fabs(levels[index]));
            }
            // Steps smaller than this are rounding: no line lies between their ends.
            const double nothing = 1e-12 + 8.0 * std::numeric_limits<double>::epsilon() * greatest;
            bool rises = false;
            bool falls = false;
            for (std::size_t index = 1; index < levels.size(); ++index) {
                rises = rises || levels[index] > levels[index - 1] + nothing;
                falls = falls || levels[index] < levels[index - 1] - nothing;
            }
            if (rises && falls && stack.TopDepth() < kDeepest) {
                stack.HalveTop();
                continue;
            }
            AddBezier(points, stack.TopWeights());
            stack.Pop();
        }
    }
    current_ = chain.points.back();
}

void BoundaryBuilder::AddBezier(std::span<const Point> points, std::span<const double> weights) {
    boundary_.edges.push_back({.start = points.front(),
                               .end = points.back(),
                               .startLevel = Level(points.front()),
                               .endLevel = Level(points.back()),
                               .shape = EdgeShape::kBezier,
                               .index = boundary_.points.size(),
                               .order = points.size()});
    boundary_.points.insert(boundary_.points.end(), points.begin(), points.end());
    if (weights.empty()) {
        boundary_.weights.insert(boundary_.weights.end(), points.size(), 1.0);
    } else {
        boundary_.weights.insert(boundary_.weights.end(), weights.begin(), weights.end());
    }
}

} // namespace

LevelWave MakeLevelWave(const ConicArc& conic, const HatchFrame& frame) {
    const double cosine = Dot(frame.normal, conic.major) / frame.spacing;
    const double sine = Dot(frame.normal, conic.minor) / frame.spacing;
    return {RawLevel(frame, conic.center), std::sqrt(cosine * cosine + sine * sine),
            std::atan2(sine, cosine)};
}

MonotoneBoundary MakeMonotoneBoundary(const std::vector<HatchLoop>& loops, const HatchFrame& frame) {
    BoundaryBuilder builder(frame);
    for (const HatchLoop& loop : loops) {
        builder.Add(loop);
    }
    return builder.Take();
}

} // namespace geometry
