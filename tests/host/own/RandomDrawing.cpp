#include "RandomDrawing.h"

#include "drawing/database/BlockReference.h"
#include "drawing/entities/Areas.h"
#include "drawing/entities/CurveEntities.h"
#include "drawing/entities/SimpleEntities.h"
#include "drawing/entities/Texts.h"

#include <algorithm>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr double kPi = 3.141592653589793;

class Maker {
public:
    explicit Maker(std::uint32_t seed) : random_(seed) {}

    std::unique_ptr<drawing::Database> Make() {
        auto database = std::make_unique<drawing::Database>();
        database->SetInsunits(static_cast<OxDb::UnitsValue>(Whole(0, 21)));
        for (const wchar_t* const name : {L"0", L"Walls", L"Ignored", L"Caf\u00e9"}) {
            database->AddLayer(name, Color(), Weight());
        }
        drawing::TextStyleData standard;
        standard.typeface = L"Arial";
        standard.bold = Yes();
        standard.italic = Yes();
        database->AddTextStyle(L"STANDARD", standard);
        drawing::TextStyleData marks;
        marks.fileName = L"marks.shx";
        marks.isShapeFile = true;
        database->AddTextStyle(L"MARKS", marks);
        drawing::TextStyleData strokes;
        strokes.fileName = L"single-stroke.shx";
        database->AddTextStyle(L"STROKES", strokes);
        for (const wchar_t* const name : {L"A", L"B"}) {
            database->AddLinetype(name, Dashes());
        }
        for (int i = 0; i < 3; ++i) {
            drawing::BlockRecord& block = *database->AddBlock(
                L"Block" + std::to_wstring(i),
                {.anonymous = Whole(0, 9) == 0, .units = static_cast<OxDb::UnitsValue>(Whole(0, 21))});
            for (int count = Whole(0, 12); count > 0; --count) {
                AddEntity(block);
            }
            if (Yes()) {
                std::vector<OxDbObjectId> order;
                for (std::size_t place = 0; place < block.EntityCount(); ++place) {
                    order.push_back(block.EntityId(place));
                }
                std::shuffle(order.begin(), order.end(), random_);
                block.SetDrawOrder(order);
            }
        }
        return database;
    }

private:
    int Whole(int least, int most) { return std::uniform_int_distribution(least, most)(random_); }
    bool Yes() { return Whole(0, 1) == 1; }
    double Number(double least, double most) {
        return Whole(0, 3) == 0 ? static_cast<double>(Whole(static_cast<int>(least), static_cast<int>(most)))
                                : std::uniform_real_distribution(least, most)(random_);
    }

    OxCmColor Color() {
        OxCmColor color;
        switch (Whole(0, 3)) {
        case 0:
            color.setByLayer();
            break;
        case 1:
            color.setByBlock();
            break;
        case 2:
            color.setColorIndex(static_cast<std::uint8_t>(Whole(1, 255)));
            break;
        default:
            color.setRGB(static_cast<std::uint8_t>(Whole(0, 255)), 7,
                         static_cast<std::uint8_t>(Whole(0, 255)));
        }
        return color;
    }
    OxDb::LineWeight Weight() { return static_cast<OxDb::LineWeight>(Whole(-3, 60)); }
    drawing::EntityProperties Properties() {
        static const wchar_t* const layers[] = {L"0", L"WALLS", L"Ignored", L"Caf\u00e9", L"missing"};
        static const wchar_t* const linetypes[] = {L"A", L"B", L"Continuous", L"missing"};
        return {layers[Whole(0, 4)], Color(), static_cast<OxDb::LineWeight>(Whole(-3, 10)),
                linetypes[Whole(0, 3)]};
    }
    std::vector<drawing::Dash> Dashes() {
        std::vector<drawing::Dash> dashes;
        for (int count = Whole(0, 5); count > 0; --count) {
            drawing::Dash dash;
            dash.length = Whole(0, 4) == 0 ? 0.0 : Yes() ? Number(-4, -1) : Number(1, 6);
            if (Whole(0, 2) == 0) {
                const bool text = Yes();
                dash.shapeStyle = text ? L"STROKES" : L"MARKS";
                dash.shapeNumber = text ? 0 : Whole(128, 140);
                if (text) {
                    dash.text = L"GAS";
                }
                dash.offset = {Number(-1, 1), Number(-1, 1)};
                dash.scale = Number(0, 2);
                dash.rotation = Number(-3, 3);
            }
            dashes.push_back(dash);
        }
        return dashes;
    }

    OxGePoint2d Point() { return {Number(-30, 30), Number(-30, 30)}; }
    OxGePoint3d Point3() { return {Number(-30, 30), Number(-30, 30), Number(-3, 3)}; }
    double Bulge() { return Yes() ? 0.0 : Number(-3, 3); }

    drawing::PolylineLoop Loop() {
        drawing::PolylineLoop loop;
        loop.hasBulges = Yes();
        for (int count = Whole(1, 5); count > 0; --count) {
            loop.vertices.push_back({Point(), loop.hasBulges ? Bulge() : 0.0});
        }
        return loop;
    }
    drawing::HatchLoop Boundary() {
        drawing::HatchLoop loop;
        if (Yes()) {
            loop.polyline = Loop();
            return loop;
        }
        OxGePoint2d at = Point();
        for (int count = Whole(1, 4); count > 0; --count) {
            const OxGePoint2d next = Point();
            const double start = Number(0, 6);
            const double end = Yes() ? start + 2 * kPi : Number(0, 6);
            switch (Whole(0, 3)) {
            case 0:
                loop.edges.push_back(OxGeCircArc2d(at, Number(1, 9), start, end, Yes()));
                break;
            case 1:
                loop.edges.push_back(
                    OxGeEllipArc2d(at, OxGeVector2d{Number(1, 5), 2}, 0.5, start, end, Yes()));
                break;
            case 2:
                loop.edges.push_back(OxGeLineSeg2d(at, Yes() ? next : OxGePoint2d{at.x, next.y}));
                break;
            default:
                OxGePoint2dArray points;
                points.append(at);
                points.append(next);
                points.append(Point());
                loop.edges.push_back(std::make_shared<const OxGeNurbCurve2d>(points));
            }
            at = next;
        }
        return loop;
    }
    drawing::HatchData HatchOf() {
        drawing::HatchData data;
        data.solid = Yes();
        for (int count = Whole(0, 3); count > 0; --count) {
            data.loops.push_back(Boundary());
        }
        if (!data.solid && Yes()) {
            data.pattern.emplace();
            data.pattern->push_back({0.7, {0, 0}, {Number(1, 3), Number(1, 3)}, {}});
        } else if (!data.solid && Yes()) {
            data.lines = {{Point(), Point()}, {Point(), Point()}};
        }
        return data;
    }
    drawing::SplineData SplineOf() {
        const int count = Whole(2, 7);
        std::vector<OxGePoint3d> points;
        for (int i = 0; i < count; ++i) {
            points.push_back(Point3());
        }
        if (Yes()) {
            drawing::FitData data;
            data.points = points;
            data.tangentsExist = Yes();
            data.startTangent = {1, Number(-2, 2), 0};
            data.endTangent = {Number(-2, 2), 1, 0};
            return data;
        }
        drawing::NurbsData data;
        data.degree = std::min(count - 1, Whole(1, 3));
        data.controlPoints = points;
        data.closed = Yes();
        for (int i = 0; i <= count + data.degree; ++i) {
            data.knots.push_back(std::clamp(i - data.degree, 0, count - data.degree));
        }
        if (Yes()) {
            for (int i = 0; i < count; ++i) {
                data.weights.push_back(Number(1, 4));
            }
        }
        return data;
    }

    void AddEntity(drawing::BlockRecord& block) {
        const drawing::EntityProperties properties = Properties();
        switch (Whole(0, 12)) {
        case 0:
            block.Add<drawing::Point>(properties, Point3());
            break;
        case 1:
            block.Add<drawing::Line>(properties, Point3(), Point3());
            break;
        case 2: {
            std::vector<drawing::BulgeVertex> vertices;
            for (int count = Whole(0, 5); count > 0; --count) {
                vertices.push_back({Point(), Bulge()});
            }
            block.Add<drawing::Polyline>(properties, vertices, Yes(), Yes());
            break;
        }
        case 3:
            block.Add<drawing::Spline>(properties, SplineOf());
            break;
        case 4:
            block.Add<drawing::Arc>(
                properties,
                drawing::ArcData{
                    Point3(), Number(1, 9), Number(0, 6), Number(0, 6), {0, 0, Yes() ? 1.0 : -1.0}});
            break;
        case 5:
            block.Add<drawing::Circle>(properties, Point3(), Number(1, 20));
            break;
        case 6:
            block.Add<drawing::Ellipse>(properties, EllipseOf());
            break;
        case 7:
            block.Add<drawing::Hatch>(properties, HatchOf());
            break;
        case 8:
            block.Add<drawing::MPolygon>(properties, std::vector<drawing::PolylineLoop>{Loop(), Loop()},
                                         Color());
            break;
        case 9:
            block.Add<drawing::Text>(properties, TextOf());
            break;
        case 10:
            block.Add<drawing::AttributeDefinition>(properties, TextOf(), L"TAG", L"What?");
            break;
        case 11:
            block.Add<drawing::ParagraphText>(properties,
                                              drawing::ParagraphTextData{.location = Point3(),
                                                                         .textHeight = Number(1, 4),
                                                                         .rotation = Number(-3, 3),
                                                                         .contents = L"{\\fArial;one}\\Ptwo",
                                                                         .actualWidth = Number(0, 9),
                                                                         .actualHeight = Number(0, 9)});
            break;
        default:
            block.Add<drawing::BlockReference>(properties, L"Block" + std::to_wstring(Whole(0, 2)));
        }
    }

    drawing::EllipseData EllipseOf() {
        drawing::EllipseData data;
        data.center = Point3();
        data.majorAxis = {Number(1, 9), Number(-9, 9), 0};
        data.radiusRatio = Number(0, 1);
        if (Yes()) {
            data.startAngle = Number(0, 6);
            data.endAngle = Number(0, 6);
        }
        return data;
    }
    drawing::TextData TextOf() {
        static const wchar_t* const styles[] = {L"STANDARD", L"STROKES", L"missing", L""};
        return {.position = Point3(),
                .height = Number(1, 4),
                .rotation = Number(-7, 7),
                .text = L"it's 90\u00b0",
                .style = styles[Whole(0, 3)],
                .horizontalMode = static_cast<OxDb::TextHorzMode>(Whole(0, 5)),
                .verticalMode = static_cast<OxDb::TextVertMode>(Whole(0, 3))};
    }

    std::mt19937 random_;
};

} // namespace

std::unique_ptr<drawing::Database> RandomDrawing(std::uint32_t seed) {
    return Maker(seed).Make();
}
