// Faithful symbols of blocks: points of every entity, by the formulas of its definition, lie on the path, and
// points of the path lie on the entity.
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/block/Faithful.h"
#include "TylModel/TylModel.h"
#include "drawing/database/BlockReference.h"
#include "drawing/database/Database.h"
#include "drawing/entities/Areas.h"
#include "drawing/entities/BlockCopy.h"
#include "drawing/entities/CurveEntities.h"
#include "drawing/entities/SimpleEntities.h"
#include "drawing/entities/Texts.h"
#include "tests/properties/PathNumbers.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <numbers>
#include <random>
#include <utility>

namespace {

constexpr double kTurn = 2 * std::numbers::pi;
constexpr double kBound = 1e-6; // of the size

struct Spot {
    double x = 0.0;
    double y = 0.0;
};

double Distance(Spot a, Spot b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

// A curve with a parameter from 0 to 1. A straight one is known to be so: splines are drawn by thousands.
struct Curve {
    template <class At>
    Curve(At at, bool straight = false) : place(std::move(at)), isStraight(straight) {}

    Spot operator()(double t) const { return place(t); }

    std::function<Spot(double)> place;
    bool isStraight;
};
using Curves = std::vector<Curve>;

Curve Straight(Spot a, Spot b) {
    return {[=](double t) { return Spot{a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)}; }, true};
}

// Of an ellipse: centre + major cos + minor sin, with the minor axis `ratio` times the major one to its left.
Curve Elliptic(Spot center, Spot major, double ratio, double start, double sweep) {
    return [=](double t) {
        const double c = std::cos(start + t * sweep);
        const double s = std::sin(start + t * sweep) * ratio;
        return Spot{center.x + major.x * c - major.y * s, center.y + major.y * c + major.x * s};
    };
}

// The bulge is the tangent of a quarter of the angle that the arc turns by.
Curve Bulged(Spot a, Spot b, double bulge) {
    if (bulge == 0.0) {
        return Straight(a, b);
    }
    const double sweep = 4.0 * std::atan(bulge);
    // The centre is to the left of the middle of the chord by this share of half of it.
    const double left = 1.0 / std::tan(sweep / 2.0) / 2.0;
    const Spot center{(a.x + b.x) / 2 - left * (b.y - a.y), (a.y + b.y) / 2 + left * (b.x - a.x)};
    const Spot radius{a.x - center.x, a.y - center.y};
    return Elliptic(center, radius, 1.0, 0.0, sweep);
}

// A rational Bezier curve of four points.
Curve Bezier(std::vector<Spot> points, std::vector<double> weights) {
    return [points = std::move(points), weights = std::move(weights)](double t) {
        const double u = 1.0 - t;
        const double shares[] = {u * u * u, 3 * u * u * t, 3 * u * t * t, t * t * t};
        Spot sum;
        double weight = 0.0;
        for (std::size_t i = 0; i < 4; ++i) {
            sum.x += shares[i] * weights[i] * points[i].x;
            sum.y += shares[i] * weights[i] * points[i].y;
            weight += shares[i] * weights[i];
        }
        return Spot{sum.x / weight, sum.y / weight};
    };
}

// An arc as the appendix of SVG on elliptical arcs has it, but for a sweep flag of 1, which is clockwise
// here.
Curve ArcOfPath(Spot from, double rx, double ry, double turn, bool large, bool clockwise, Spot to) {
    const double c = std::cos(turn * kTurn / 360.0);
    const double s = std::sin(turn * kTurn / 360.0);
    const Spot half{(from.x - to.x) / 2, (from.y - to.y) / 2};
    const double x = (c * half.x + s * half.y) / rx;
    const double y = (c * half.y - s * half.x) / ry;
    const double square = x * x + y * y;
    const double factor = square >= 1.0 ? 0.0 : std::sqrt((1.0 - square) / square);
    const double side = large == clockwise ? factor : -factor;
    const double grown = std::max(1.0, std::sqrt(square));
    const Spot center{side * y, -side * x};
    const double start = std::atan2(y / grown - center.y, x / grown - center.x);
    double sweep = std::atan2(-y / grown - center.y, -x / grown - center.x) - start;
    sweep += clockwise && sweep > 0.0 ? -kTurn : !clockwise && sweep < 0.0 ? kTurn : 0.0;
    const Spot middle{(from.x + to.x) / 2, (from.y + to.y) / 2};
    return [=](double t) {
        const double px = rx * grown * (center.x + std::cos(start + t * sweep));
        const double py = ry * grown * (center.y + std::sin(start + t * sweep));
        return Spot{middle.x + c * px - s * py, middle.y + s * px + c * py};
    };
}

Curves Drawn(std::wstring path) {
    for (std::size_t at = 1; (at = path.find(L'M', at)) != std::wstring::npos; at += 2) {
        path.insert(at, 1, L' '); // a second loop of edges stands directly behind the first
    }
    Curves curves;
    Spot current;
    for (const laws::Command& command : laws::Commands(path)) {
        const std::vector<double>& n = command.numbers;
        const Spot to{n[n.size() - 2], n[n.size() - 1]};
        if (command.letter == 'L') {
            curves.push_back(Straight(current, to));
        } else if (command.letter == 'A') {
            curves.push_back(ArcOfPath(current, n[0], n[1], n[2], n[3] != 0, n[4] != 0, to));
        } else {
            EXPECT_EQ(command.letter, 'M');
        }
        current = to;
    }
    return curves;
}

double DistanceToStraight(Spot from, Spot to, Spot spot) {
    const Spot way{to.x - from.x, to.y - from.y};
    const double square = way.x * way.x + way.y * way.y;
    const double along = (spot.x - from.x) * way.x + (spot.y - from.y) * way.y;
    const double t = square > 0.0 ? std::clamp(along / square, 0.0, 1.0) : 0.0;
    return Distance(spot, {from.x + t * way.x, from.y + t * way.y});
}

// By thirds of what is around each point that is nearer than its neighbours.
double DistanceTo(const Curve& curve, Spot spot) {
    if (curve.isStraight) {
        return DistanceToStraight(curve(0), curve(1), spot);
    }
    constexpr int kSteps = 128;
    std::vector<double> distances;
    for (int i = 0; i <= kSteps; ++i) {
        distances.push_back(Distance(curve(static_cast<double>(i) / kSteps), spot));
    }
    double nearest = HUGE_VAL;
    for (int i = 0; i <= kSteps; ++i) {
        const auto at = static_cast<std::size_t>(i);
        if ((i > 0 && distances[at - 1] < distances[at]) ||
            (i < kSteps && distances[at + 1] < distances[at])) {
            continue;
        }
        double low = std::max(0.0, (i - 1.0) / kSteps);
        double high = std::min(1.0, (i + 1.0) / kSteps);
        for (int round = 0; round < 60; ++round) {
            const double first = low + (high - low) / 3;
            const double second = high - (high - low) / 3;
            if (Distance(curve(first), spot) < Distance(curve(second), spot)) {
                high = second;
            } else {
                low = first;
            }
        }
        nearest = std::min(nearest, Distance(curve((low + high) / 2), spot));
    }
    return nearest;
}

double DistanceToNearest(const Curves& curves, Spot spot) {
    double nearest = HUGE_VAL;
    for (const Curve& curve : curves) {
        if (nearest > 1e-9) {
            nearest = std::min(nearest, DistanceTo(curve, spot));
        }
    }
    return nearest;
}

double SizeOf(const Curves& curves) {
    Spot low{HUGE_VAL, HUGE_VAL};
    Spot high{-HUGE_VAL, -HUGE_VAL};
    for (const Curve& curve : curves) {
        for (int i = 0; i <= 16; ++i) {
            const Spot spot = curve(i / 16.0);
            low = {std::min(low.x, spot.x), std::min(low.y, spot.y)};
            high = {std::max(high.x, spot.x), std::max(high.y, spot.y)};
        }
    }
    return std::max(high.x - low.x, high.y - low.y);
}

// The farthest that some points of the curves are from the others.
double FarthestFrom(const Curves& others, const Curves& curves) {
    constexpr std::size_t kSpots = 24;
    const std::size_t step = std::max<std::size_t>(1, curves.size() / kSpots);
    const std::size_t each = std::max<std::size_t>(1, kSpots / curves.size());
    double farthest = 0.0;
    for (std::size_t i = 0; i < curves.size(); i += step) {
        for (std::size_t k = 0; k <= each; ++k) {
            const double t = static_cast<double>(k) / static_cast<double>(each);
            farthest = std::max(farthest, DistanceToNearest(others, curves[i](t)));
        }
    }
    return farthest;
}

// Only texts and paths are to be told apart.
struct Graphics : TylModel::IGraphicElementVisitor {
    void VisitPath(TylModel::Path& path) override { paths.push_back(path.GetGeometry()); }
    void VisitText(TylModel::Text& text) override {
        anchors.push_back({std::stod(text.GetPositionX()), std::stod(text.GetPositionY())});
    }
    std::vector<std::wstring> paths;
    std::vector<Spot> anchors;
};

class FaithfulBlocks : public ::testing::Test {
protected:
    FaithfulBlocks() {
        database.SetInsunits(OxDb::kUnitsMillimeters);
        OxCmColor white;
        white.setColorIndex(7);
        database.AddLayer(L"0", white);
    }

    double Number(double least, double most) { return std::uniform_real_distribution(least, most)(random_); }
    Spot Anywhere() { return {Number(-20, 20), Number(-20, 20)}; }
    bool Chance() { return Number(0, 1) < 0.5; }
    double Bulge() { return Chance() ? 0.0 : Number(-3, 3); }

    static drawing::EntityProperties Properties() {
        OxCmColor black;
        black.setRGB(0, 0, 0);
        return {L"0", black, OxDb::kLnWtByLwDefault, L"Continuous"};
    }

    static Graphics Convert(BlockConverter& converter, OxDbBlockTableRecord* record) {
        const block::FaithfulInUse faithful;
        const std::unique_ptr<TylModel::SymbolDefinition> symbol(record != nullptr ? converter.Convert(record)
                                                                                   : converter.Convert(L"B"));
        EXPECT_NE(symbol, nullptr);
        auto& graphics = dynamic_cast<TylModel::SimpleSymbolDefinition&>(*symbol).GetGraphics();
        Graphics seen;
        for (std::int32_t i = 0; i < graphics.GetCount(); ++i) {
            TylModel::AcceptVisitor(*graphics.GetAt(i), seen);
        }
        return seen;
    }

    Graphics Converted() {
        BlockConverter converter(&database);
        return Convert(converter, nullptr);
    }

    // Every entity that was added has the path of its turn.
    void Compare(const std::vector<std::wstring>& paths) {
        ASSERT_EQ(paths.size(), defined.size());
        for (std::size_t i = 0; i < paths.size(); ++i) {
            const Curves drawn = Drawn(paths[i]);
            const double bound = kBound * SizeOf(defined[i].second);
            EXPECT_LT(FarthestFrom(drawn, defined[i].second), bound) << defined[i].first << ' ' << i;
            EXPECT_LT(FarthestFrom(defined[i].second, drawn), bound) << defined[i].first << ' ' << i;
        }
    }

    template <class Entity, class... Args>
    void Add(const char* what, Curves curves, Args&&... args) {
        block.Add<Entity>(Properties(), std::forward<Args>(args)...);
        defined.emplace_back(what, std::move(curves));
    }

    void AddLine() {
        const Spot a = Anywhere();
        const Spot b = Anywhere();
        Add<drawing::Line>("line", {Straight(a, b)}, OxGePoint3d{a.x, a.y, 3}, OxGePoint3d{b.x, b.y, 0});
    }

    void AddCircle() {
        const Spot center = Anywhere();
        const double radius = Number(0.01, 9);
        Add<drawing::Circle>("circle", {Elliptic(center, {radius, 0}, 1, 0, kTurn)},
                             OxGePoint3d{center.x, center.y, 0}, radius);
    }

    // Seen from below, angles count from the left, clockwise.
    void AddArc() {
        const Spot center = Anywhere();
        const double radius = Number(0.01, 9);
        const double start = Number(0, kTurn);
        const double sweep = Number(0.1, 6);
        const bool isMirrored = Chance();
        const Curve seen = Elliptic({0, 0}, {radius, 0}, 1, start, sweep);
        const auto curve = [=](double t) {
            const Spot spot = seen(t);
            return Spot{center.x + (isMirrored ? -spot.x : spot.x), center.y + spot.y};
        };
        Add<drawing::Arc>(isMirrored ? "mirrored arc" : "arc", {curve},
                          drawing::ArcData{OxGePoint3d{center.x, center.y, 0},
                                           radius,
                                           start,
                                           std::fmod(start + sweep, kTurn),
                                           {0, 0, isMirrored ? -1.0 : 1.0}});
    }

    void AddEllipse() {
        const Spot center = Anywhere();
        const Spot major = Anywhere();
        const double ratio = Number(0.05, 1);
        const bool isWhole = Chance();
        const double start = isWhole ? 0.0 : Number(0, kTurn);
        const double sweep = isWhole ? kTurn : Number(0.1, 6);
        const double end = isWhole ? kTurn : std::fmod(start + sweep, kTurn);
        Add<drawing::Ellipse>("ellipse", {Elliptic(center, major, ratio, start, sweep)},
                              drawing::EllipseData{OxGePoint3d{center.x, center.y, 0},
                                                   OxGeVector3d{major.x, major.y, 0}, ratio, start, end});
    }

    std::vector<drawing::BulgeVertex> Vertices(Curves& curves, bool isClosed) {
        std::vector<Spot> spots;
        std::vector<drawing::BulgeVertex> vertices;
        const int count = static_cast<int>(Number(3, 9));
        for (int i = 0; i < count; ++i) {
            spots.push_back(Anywhere());
            vertices.push_back({{spots.back().x, spots.back().y}, Bulge()});
        }
        for (std::size_t i = 0; i + (isClosed ? 0 : 1) < spots.size(); ++i) {
            curves.push_back(Bulged(spots[i], spots[(i + 1) % spots.size()], vertices[i].bulge));
        }
        return vertices;
    }

    void AddPolyline() {
        Curves curves;
        const bool isClosed = Chance();
        const auto vertices = Vertices(curves, isClosed);
        Add<drawing::Polyline>("polyline", curves, vertices, isClosed, Chance());
    }

    Curve Spline(std::vector<Spot>& points, std::vector<double>& weights) {
        for (int i = 0; i < 4; ++i) {
            points.push_back(Anywhere());
            weights.push_back(Number(0.3, 3));
        }
        return Bezier(points, weights);
    }

    void AddSpline() {
        std::vector<Spot> points;
        drawing::NurbsData data;
        const Curve curve = Spline(points, data.weights);
        data.knots = {0, 0, 0, 0, 1, 1, 1, 1};
        for (const Spot& point : points) {
            data.controlPoints.push_back({point.x, point.y, 0});
        }
        Add<drawing::Spline>("spline", {curve}, data);
    }

    void AddHatch(const char* what, drawing::HatchLoop loop, Curves curves) {
        drawing::HatchData data;
        data.solid = true;
        data.loops.push_back(std::move(loop));
        if (Chance()) { // and a second loop, a triangle
            const Spot a = Anywhere();
            const Spot b = Anywhere();
            const Spot c = Anywhere();
            drawing::HatchLoop second;
            second.edges = {OxGeLineSeg2d({a.x, a.y}, {b.x, b.y}), OxGeLineSeg2d({b.x, b.y}, {c.x, c.y}),
                            OxGeLineSeg2d({c.x, c.y}, {a.x, a.y})};
            data.loops.push_back(second);
            for (const Curve& side : {Straight(a, b), Straight(b, c), Straight(c, a)}) {
                curves.push_back(side);
            }
        }
        Add<drawing::Hatch>(what, std::move(curves), std::move(data));
    }

    void AddHatchOfVertices() {
        Curves curves;
        drawing::HatchLoop loop;
        loop.polyline = drawing::PolylineLoop{Vertices(curves, true), true};
        AddHatch("hatch of vertices", loop, curves);
    }

    // An arc of an ellipse, or a circle's, and the chord back.
    void AddHatchOfArc(bool isCircle) {
        const Spot center = Anywhere();
        const Spot major = isCircle ? Spot{Number(0.1, 9), 0} : Anywhere();
        const double ratio = isCircle ? 1.0 : Number(0.05, 1);
        const bool isClockwise = Chance();
        const double start = Number(0, kTurn);
        const double sweep = Number(0.1, 6);
        const double sense = isClockwise ? -1.0 : 1.0;
        const Curve arc = Elliptic(center, major, ratio, sense * start, sense * sweep);
        const Spot from = arc(0);
        const Spot to = arc(1);
        drawing::HatchLoop loop;
        if (isCircle) {
            loop.edges = {OxGeCircArc2d({center.x, center.y}, major.x, start, start + sweep, isClockwise)};
        } else {
            loop.edges = {OxGeEllipArc2d({center.x, center.y}, {major.x, major.y}, ratio, start,
                                         start + sweep, isClockwise)};
        }
        loop.edges.push_back(OxGeLineSeg2d({to.x, to.y}, {from.x, from.y}));
        AddHatch(isCircle ? "hatch of an arc" : "hatch of an elliptical arc", loop,
                 {arc, Straight(to, from)});
    }

    void AddHatchOfSpline() {
        std::vector<Spot> points;
        std::vector<double> weights;
        const Curve curve = Spline(points, weights);
        OxGeDoubleArray knots;
        for (const double knot : {0.0, 0.0, 0.0, 0.0, 1.0, 1.0, 1.0, 1.0}) {
            knots.append(knot);
        }
        OxGePoint2dArray controls;
        OxGeDoubleArray factors;
        for (std::size_t i = 0; i < 4; ++i) {
            controls.append(OxGePoint2d{points[i].x, points[i].y});
            factors.append(weights[i]);
        }
        drawing::HatchLoop loop;
        loop.edges = {
            std::make_shared<const OxGeNurbCurve2d>(3, OxGeKnotVector(knots), controls, factors, false),
            OxGeLineSeg2d({points[3].x, points[3].y}, {points[0].x, points[0].y})};
        AddHatch("hatch of a spline", loop, {curve, Straight(points[3], points[0])});
    }

    void AddHatchOfLines() {
        Curves curves;
        drawing::HatchData data;
        data.lines.emplace();
        for (int i = 0; i < 5; ++i) {
            const Spot a = Anywhere();
            const Spot b = Anywhere();
            data.lines->push_back({{a.x, a.y}, {b.x, b.y}});
            curves.push_back(Straight(a, b));
        }
        Add<drawing::Hatch>("hatch of lines", curves, data);
    }

    void AddMPolygon() {
        Curves curves;
        OxCmColor fill;
        fill.setRGB(1, 2, 3);
        drawing::PolylineLoop loop{Vertices(curves, true), true};
        Add<drawing::MPolygon>("multi-polygon", curves, std::vector<drawing::PolylineLoop>{loop}, fill);
    }

    void AddAll() {
        AddLine();
        AddCircle();
        AddArc();
        AddEllipse();
        AddPolyline();
        AddSpline();
        AddHatchOfVertices();
        AddHatchOfArc(true);
        AddHatchOfArc(false);
        AddHatchOfSpline();
        AddHatchOfLines();
        AddMPolygon();
    }

    drawing::Database database;
    drawing::BlockRecord& block = *database.AddBlock(L"B");
    std::vector<std::pair<const char*, Curves>> defined;

private:
    std::mt19937 random_{20240920};
};

constexpr int kRounds = 20;

TEST_F(FaithfulBlocks, HaveEveryEntityWhereItsDefinitionHasIt) {
    for (int round = 0; round < kRounds; ++round) {
        AddAll();
    }
    Compare(Converted().paths);
}

TEST_F(FaithfulBlocks, HaveTextsWhereTheyAreAligned) {
    std::vector<Spot> anchors;
    for (int round = 0; round < 200; ++round) {
        const Spot position = Anywhere();
        const Spot alignment = Anywhere();
        drawing::TextData data;
        data.position = {position.x, position.y, 0};
        data.alignmentPoint = OxGePoint3d{alignment.x, alignment.y, 0};
        data.height = Number(0.1, 5);
        data.rotation = Number(0, kTurn);
        data.text = L"A";
        data.style = L"";
        constexpr OxDb::TextHorzMode kModes[] = {OxDb::kTextLeft, OxDb::kTextCenter, OxDb::kTextRight,
                                                 OxDb::kTextMid};
        data.horizontalMode = kModes[round % 4];
        block.Add<drawing::Text>(Properties(), data);
        // What stands at the left end of its base line is placed by that.
        anchors.push_back(data.horizontalMode == OxDb::kTextLeft ? position : alignment);
    }
    const Graphics graphics = Converted();
    ASSERT_EQ(graphics.anchors.size(), anchors.size());
    for (std::size_t i = 0; i < anchors.size(); ++i) {
        EXPECT_LT(Distance(graphics.anchors[i], anchors[i]), 20 * kBound) << i;
    }
}

// Turned, enlarged, mirrored in an axis, seen from below.
TEST_F(FaithfulBlocks, HaveWhatIsInsertedWhereTheInsertPutsIt) {
    for (int round = 0; round < 4; ++round) {
        drawing::InsertPlace place;
        place.position = {Number(-9, 9), Number(-9, 9), 0};
        place.scaleX = Number(0.3, 3);
        place.scaleY = round == 1 ? -place.scaleX : place.scaleX;
        place.rotation = Number(0, kTurn);
        place.isMirrored = round == 2;
        const std::wstring name = L"I" + std::to_wstring(round);
        drawing::BlockRecord& inserting = *database.AddBlock(name);
        inserting.Add<drawing::BlockReference>(Properties(), L"B", place);
        AddAll();
        const auto inBlock = defined;
        for (auto& [what, curves] : defined) {
            for (Curve& curve : curves) {
                curve = Curve([curve, place](double t) {
                    const Spot spot = curve(t);
                    const double x = spot.x * place.scaleX;
                    const double y = spot.y * place.scaleY;
                    const double c = std::cos(place.rotation);
                    const double s = std::sin(place.rotation);
                    const Spot put{x * c - y * s + place.position.x, x * s + y * c + place.position.y};
                    return place.isMirrored ? Spot{-put.x, put.y} : put;
                });
            }
        }
        drawing::BlockCopyLosses losses;
        const auto copy = drawing::CopyBlock(database, inserting, {.expandsInserts = true}, losses);
        ASSERT_NE(copy, nullptr);
        BlockConverter converter(&database);
        Compare(Convert(converter, copy.get()).paths);
        defined = inBlock;
    }
}

} // namespace
