// Entities of a drawing as JSON.
#include "documents/EntityJson.h"

#include "drawing/entities/EntityVisit.h"
#include "drawing/geometry/NurbCurveData.h"

#include <variant>
#include <vector>

namespace documents {
namespace {

void PutNumber(JsonText& json, std::string_view key, double value) {
    json.Key(key);
    json.Number(value);
}

void Pair(JsonText& json, double x, double y) {
    json.BeginList();
    json.Number(x);
    json.Number(y);
    json.EndList();
}

// [x, y], or with z where that is not 0.
template <class Vector>
void Triple(JsonText& json, const Vector& vector) {
    json.BeginList();
    json.Number(vector.x);
    json.Number(vector.y);
    if (vector.z != 0.0) {
        json.Number(vector.z);
    }
    json.EndList();
}

template <class Vector>
void PutTriple(JsonText& json, std::string_view key, const Vector& vector) {
    json.Key(key);
    Triple(json, vector);
}

void PutNumbers(JsonText& json, std::string_view key, const std::vector<double>& numbers) {
    json.Key(key);
    json.BeginList();
    for (const double number : numbers) {
        json.Number(number);
    }
    json.EndList();
}

void PutTriples(JsonText& json, std::string_view key, const std::vector<OxGePoint3d>& points) {
    json.Key(key);
    json.BeginList();
    for (const OxGePoint3d& point : points) {
        Triple(json, point);
    }
    json.EndList();
}

// The key is always there: an empty name is another one than the one that reading assumes.
void PutStyle(JsonText& json, const std::wstring& style) {
    json.Key("style");
    json.Text(style);
}

void PutType(JsonText& json, std::string_view type) {
    json.Key("type");
    json.PlainText(type);
}

void PutVertices(JsonText& json, const std::vector<geometry::BulgeVertex>& vertices, bool hasBulges) {
    json.Key("vertices");
    json.BeginList();
    for (const geometry::BulgeVertex& vertex : vertices) {
        json.BeginList();
        json.Number(vertex.point.x);
        json.Number(vertex.point.y);
        if (hasBulges) {
            json.Number(vertex.bulge);
        }
        json.EndList();
    }
    json.EndList();
}

class EdgeJson {
public:
    explicit EdgeJson(JsonText& json) : json_(json) {}

    void operator()(const OxGeLineSeg2d& line) {
        PutType(json_, "line");
        PutPair(json_, "start", line.startPoint().x, line.startPoint().y);
        PutPair(json_, "end", line.endPoint().x, line.endPoint().y);
    }
    void operator()(const OxGeCircArc2d& arc) {
        PutType(json_, "arc");
        PutPair(json_, "center", arc.center().x, arc.center().y);
        PutNumber(json_, "radius", arc.radius());
        PutSweep(arc.startAng(), arc.endAng(), arc.isClockWise());
    }
    void operator()(const OxGeEllipArc2d& arc) {
        PutType(json_, "ellipse");
        PutPair(json_, "center", arc.center().x, arc.center().y);
        PutPair(json_, "majorAxis", arc.majorAxis().x, arc.majorAxis().y);
        PutNumber(json_, "radiusRatio", arc.radiusRatio());
        PutSweep(arc.startAng(), arc.endAng(), arc.isClockWise());
    }
    // One that is not defined has no points, and is none again.
    void operator()(const std::shared_ptr<const OxGeNurbCurve2d>& spline) {
        const geometry::NurbsCurve none;
        const geometry::NurbsCurve& curve = spline->isDefined() ? spline->data()->curve : none;
        PutType(json_, "spline");
        json_.Key("degree");
        json_.Integer(curve.degree);
        json_.Key("controlPoints");
        json_.BeginList();
        for (const geometry::Point& point : curve.controlPoints) {
            Pair(json_, point.x, point.y);
        }
        json_.EndList();
        PutNumbers(json_, "knots", curve.knots);
        if (!curve.weights.empty()) {
            PutNumbers(json_, "weights", curve.weights);
        }
    }

private:
    void PutSweep(double start, double end, bool isClockwise) {
        PutNumber(json_, "startAngle", start);
        PutNumber(json_, "endAngle", end);
        PutFlag(json_, "clockwise", isClockwise);
    }

    JsonText& json_;
};

void PutPolylineLoop(JsonText& json, const drawing::PolylineLoop& loop) {
    json.BeginObject();
    PutVertices(json, loop.vertices, loop.hasBulges);
    json.EndObject();
}

void PutLoop(JsonText& json, const drawing::HatchLoop& loop) {
    if (loop.polyline) {
        PutPolylineLoop(json, *loop.polyline);
        return;
    }
    json.BeginObject();
    json.Key("edges");
    json.BeginList();
    for (const drawing::HatchEdge& edge : loop.edges) {
        json.BeginObject();
        std::visit(EdgeJson(json), edge);
        json.EndObject();
    }
    json.EndList();
    json.EndObject();
}

void PutFamilies(JsonText& json, const std::vector<drawing::HatchFamily>& families) {
    json.Key("pattern");
    json.BeginList();
    for (const drawing::HatchFamily& family : families) {
        json.BeginObject();
        PutNumber(json, "angle", family.angle);
        PutPair(json, "base", family.base.x, family.base.y);
        PutPair(json, "offset", family.offset.x, family.offset.y);
        PutNumbers(json, "dashes", family.dashes);
        json.EndObject();
    }
    json.EndList();
}

void PutHatchLines(JsonText& json, const std::vector<drawing::HatchLine>& lines) {
    json.Key("hatchLines");
    json.BeginList();
    for (const drawing::HatchLine& line : lines) {
        json.BeginList();
        for (const double number : {line.start.x, line.start.y, line.end.x, line.end.y}) {
            json.Number(number);
        }
        json.EndList();
    }
    json.EndList();
}

class SplineJson {
public:
    explicit SplineJson(JsonText& json) : json_(json) {}

    void operator()(const drawing::FitData& fit) {
        PutTriples(json_, "fitPoints", fit.points);
        PutInteger(json_, "degree", fit.degree, drawing::FitData().degree);
        documents::PutNumber(json_, "fitTolerance", fit.tolerance, 0.0);
        if (fit.tangentsExist) {
            PutTriple(json_, "startTangent", fit.startTangent);
            PutTriple(json_, "endTangent", fit.endTangent);
        }
    }
    void operator()(const drawing::NurbsData& nurbs) {
        json_.Key("degree");
        json_.Integer(nurbs.degree);
        PutTriples(json_, "controlPoints", nurbs.controlPoints);
        PutNumbers(json_, "knots", nurbs.knots);
        if (!nurbs.weights.empty()) {
            PutNumbers(json_, "weights", nurbs.weights);
        }
        PutFlag(json_, "closed", nurbs.closed);
        PutFlag(json_, "periodic", nurbs.periodic);
    }

private:
    JsonText& json_;
};

class OtherShapeJson {
public:
    explicit OtherShapeJson(JsonText& json) : json_(json) {}

    void operator()(std::monostate /*none*/) {}
    void operator()(const drawing::FilledCorners& area) { PutTriples(json_, "corners", area.corners); }
    void operator()(const drawing::OwnBlock& own) {
        json_.Key("block");
        json_.Text(own.name);
        PutPoint(json_, "position", own.position);
    }
    void operator()(const drawing::OpenPath& path) { PutTriples(json_, "path", path.points); }

private:
    JsonText& json_;
};

/// The members of an entity from its type on.
class EntityJson {
public:
    explicit EntityJson(JsonText& json) : json_(json) {}

    void operator()(const drawing::Point& point) {
        Begin("point", point);
        PutTriple(json_, "position", point.position());
    }
    void operator()(const drawing::Line& line) {
        Begin("line", line);
        PutTriple(json_, "start", line.startPoint());
        PutTriple(json_, "end", line.endPoint());
    }
    void operator()(const drawing::Arc& arc) {
        Begin("arc", arc);
        PutTriple(json_, "center", arc.center());
        PutNumber(json_, "radius", arc.radius());
        PutNumber(json_, "startAngle", arc.Data().startAngle);
        PutNumber(json_, "endAngle", arc.Data().endAngle);
        const OxGeVector3d normal = arc.normal();
        if (normal.x != 0.0 || normal.y != 0.0 || normal.z != 1.0) {
            PutTriple(json_, "normal", normal);
        }
    }
    void operator()(const drawing::Circle& circle) {
        Begin("circle", circle);
        PutTriple(json_, "center", circle.center());
        PutNumber(json_, "radius", circle.radius());
    }
    void operator()(const drawing::Ellipse& ellipse) {
        Begin("ellipse", ellipse);
        PutTriple(json_, "center", ellipse.center());
        PutTriple(json_, "majorAxis", ellipse.majorAxis());
        PutNumber(json_, "radiusRatio", ellipse.Data().radiusRatio);
        PutNumber(json_, "startAngle", ellipse.startAngle());
        PutNumber(json_, "endAngle", ellipse.endAngle());
    }
    void operator()(const drawing::Polyline& polyline) {
        Begin("polyline", polyline);
        bool hasBulges = false;
        for (const geometry::BulgeVertex& vertex : polyline.Vertices()) {
            hasBulges = hasBulges || vertex.bulge != 0.0;
        }
        PutVertices(json_, polyline.Vertices(), hasBulges);
        PutFlag(json_, "closed", polyline.isClosed());
        PutFlag(json_, "plinegen", polyline.hasPlinegen());
        if (polyline.Widths() != nullptr) {
            json_.Key("widths");
            json_.BeginList();
            for (const drawing::SegmentWidth& width : *polyline.Widths()) {
                Pair(json_, width.start, width.end);
            }
            json_.EndList();
        }
    }
    void operator()(const drawing::Spline& spline) {
        Begin("spline", spline);
        std::visit(SplineJson(json_), spline.Data());
    }
    void operator()(const drawing::Hatch& hatch) {
        Begin("hatch", hatch);
        const drawing::HatchData& data = hatch.Data();
        PutFlag(json_, "solid", data.solid);
        json_.Key("loops");
        json_.BeginList();
        for (const drawing::HatchLoop& loop : data.loops) {
            PutLoop(json_, loop);
        }
        json_.EndList();
        if (data.pattern) {
            PutFamilies(json_, *data.pattern);
        }
        if (data.lines) {
            PutHatchLines(json_, *data.lines);
        }
    }
    void operator()(const drawing::MPolygon& polygon) {
        Begin("mpolygon", polygon);
        json_.Key("loops");
        json_.BeginList();
        for (const drawing::PolylineLoop& loop : polygon.Loops()) {
            PutPolylineLoop(json_, loop);
        }
        json_.EndList();
        PutColor(json_, "fillColor", polygon.fillColor());
    }
    void operator()(const drawing::Text& text) {
        Begin("text", text);
        PutTextData(text.Data());
    }
    void operator()(const drawing::AttributeDefinition& definition) {
        Begin("attributeDefinition", definition);
        PutTextData(definition.Data());
        json_.Key("tag");
        json_.Text(definition.tagConst());
        json_.Key("prompt");
        json_.Text(definition.promptConst());
    }
    void operator()(const drawing::ParagraphText& text) {
        Begin("mtext", text);
        const drawing::ParagraphTextData data = text.Data();
        PutTriple(json_, "location", data.location);
        PutNumber(json_, "textHeight", data.textHeight);
        json_.Key("contents");
        json_.Text(data.contents);
        documents::PutNumber(json_, "rotation", data.rotation, 0.0);
        PutStyle(json_, data.style);
        documents::PutNumber(json_, "actualWidth", data.actualWidth, 0.0);
        documents::PutNumber(json_, "actualHeight", data.actualHeight, 0.0);
        PutInteger(json_, "attachment", data.attachment, 1);
    }
    void operator()(const drawing::BlockReference& insert) {
        Begin("insert", insert);
        json_.Key("block");
        json_.Text(insert.BlockText());
        PutPlace(insert.Place());
        if (!insert.Attributes().empty()) {
            json_.Key("attributes");
            json_.BeginList();
            for (const OxDbStub* const attribute : insert.Attributes()) {
                const auto& text = static_cast<const drawing::Text&>(*attribute->object);
                json_.BeginObject();
                PutProperties(text.Properties());
                PutTextData(text.Data());
                json_.EndObject();
            }
            json_.EndList();
        }
    }
    void operator()(const drawing::OtherEntity& other) {
        Begin("other", other);
        json_.Key("class");
        json_.Text(other.isA()->name());
        std::visit(OtherShapeJson(json_), other.Shape());
    }

private:
    template <class Entity>
    void Begin(std::string_view type, const Entity& entity) {
        PutType(json_, type);
        PutProperties(entity.Properties());
    }

    void PutPlace(const drawing::InsertPlace& place) {
        PutPoint(json_, "position", place.position);
        if (place.scaleX != 1.0 || place.scaleY != 1.0) {
            PutPair(json_, "scale", place.scaleX, place.scaleY);
        }
        documents::PutNumber(json_, "rotation", place.rotation, 0.0);
        PutFlag(json_, "mirrored", place.isMirrored);
        PutInteger(json_, "columns", place.columns, 1);
        PutInteger(json_, "rows", place.rows, 1);
        documents::PutNumber(json_, "columnSpacing", place.columnSpacing, 0.0);
        documents::PutNumber(json_, "rowSpacing", place.rowSpacing, 0.0);
    }

    void PutProperties(const drawing::EntityProperties& properties) {
        const drawing::EntityProperties defaults;
        PutText(json_, "layer", properties.layer, defaults.layer);
        if (properties.color != defaults.color) {
            PutColor(json_, "color", properties.color);
        }
        PutInteger(json_, "lineWeight", properties.lineWeight, defaults.lineWeight);
        PutText(json_, "linetype", properties.linetype, defaults.linetype);
        PutFlag(json_, "hidden", properties.hidden);
        documents::PutNumber(json_, "linetypeScale", properties.linetypeScale, defaults.linetypeScale);
    }

    void PutTextData(const drawing::TextData& data) {
        PutTriple(json_, "position", data.position);
        PutNumber(json_, "height", data.height);
        json_.Key("text");
        json_.Text(data.text);
        documents::PutNumber(json_, "rotation", data.rotation, 0.0);
        PutStyle(json_, data.style);
        PutInteger(json_, "horizontalMode", data.horizontalMode, 0);
        PutInteger(json_, "verticalMode", data.verticalMode, 0);
        if (data.alignmentPoint) {
            PutTriple(json_, "alignmentPoint", *data.alignmentPoint);
        }
    }

    JsonText& json_;
};

} // namespace

void PutColor(JsonText& json, std::string_view key, const OxCmColor& color) {
    json.Key(key);
    const std::uint32_t packed = color.entityColor();
    if (color.isByLayer() || color.isByBlock()) {
        json.PlainText(color.isByLayer() ? "ByLayer" : "ByBlock");
    } else if (OxCmEntityColor::colorMethod(packed) == OxCmEntityColor::kByIndex) {
        json.Integer(static_cast<std::int64_t>(packed & 0xffU));
    } else {
        constexpr std::string_view kDigits = "0123456789abcdef";
        std::string text = "#";
        for (int shift = 20; shift >= 0; shift -= 4) {
            text += kDigits[packed >> static_cast<unsigned>(shift) & 0xfU];
        }
        json.PlainText(text);
    }
}

void PutText(JsonText& json, std::string_view key, const std::wstring& value, const std::wstring& fallback) {
    if (value != fallback) {
        json.Key(key);
        json.Text(value);
    }
}

void PutNumber(JsonText& json, std::string_view key, double value, double fallback) {
    if (value != fallback) {
        PutNumber(json, key, value);
    }
}

void PutInteger(JsonText& json, std::string_view key, std::int64_t value, std::int64_t fallback) {
    if (value != fallback) {
        json.Key(key);
        json.Integer(value);
    }
}

void PutFlag(JsonText& json, std::string_view key, bool value) {
    if (value) {
        json.Key(key);
        json.Boolean(true);
    }
}

void PutPoint(JsonText& json, std::string_view key, const OxGePoint3d& point) {
    if (point.x != 0.0 || point.y != 0.0 || point.z != 0.0) {
        PutTriple(json, key, point);
    }
}

void PutPair(JsonText& json, std::string_view key, double x, double y) {
    json.Key(key);
    Pair(json, x, y);
}

void WriteEntity(JsonText& json, OxDbObjectId entity, const std::string& id) {
    json.BeginObject();
    json.StayOnLine(true);
    if (!id.empty()) {
        json.Key("id");
        json.PlainText(id);
    }
    drawing::VisitEntity(entity, EntityJson(json));
    json.EndObject();
    json.StayOnLine(false);
}

} // namespace documents
