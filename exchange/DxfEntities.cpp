// Entities of a DXF file.
#include "exchange/DxfEntities.h"

#include "diagnostics/ShownText.h"
#include "drawing/database/BlockReference.h"
#include "drawing/entities/CurveEntities.h"
#include "drawing/entities/SimpleEntities.h"
#include "drawing/entities/Texts.h"
#include "drawing/geometry/FullTurn.h"
#include "exchange/DxfAngles.h"
#include "exchange/DxfHatch.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace exchange {
namespace {

using diagnostics::Code;

constexpr double kTurn = 2.0 * std::numbers::pi;

// Bits of group code 70.
constexpr std::int32_t kClosed = 1;
constexpr std::int32_t kPeriodic = 2;
constexpr std::int32_t kNotPlane = 8 | 16 | 64; // polylines in space, meshes
constexpr std::int32_t kFrameVertex = 16;
constexpr std::int32_t kRunsOn = 128; // dashes run on over the vertices

constexpr std::int32_t kInvisibleAttribute = 1;

// Group code 71 of a paragraph text.
constexpr std::int32_t kTopLeft = 1;
constexpr std::int32_t kBottomRight = 9;

constexpr std::int32_t kHidden = 1; // group code 60

constexpr std::int32_t kColorByBlock = 0;
constexpr std::int32_t kColorByLayer = 256;
constexpr std::int32_t kLastColorIndex = 255;
constexpr std::int32_t kNoColor = 257;
constexpr DxfRange kColors = {-kNoColor, kNoColor};
constexpr DxfRange kCounts = {0};
// Group codes 72 of a text, and 73 or 74.
constexpr DxfRange kHorizontalModes = {0, 5};
constexpr DxfRange kVerticalModes = {0, 3};
constexpr std::int32_t kWhite = 7; // colour of a layer that has none

const std::wstring kDefaultLayer = L"0";

// What the format calls an entity.
std::string TypeOf(const DxfRecord& record) {
    return diagnostics::ShownText(record.type);
}

OxGePoint3d Point(const DxfRecord& record, int code, bool isMirrored = false) {
    const double x = record.Number(code, 0.0);
    return {isMirrored ? -x : x, record.Number(code + 10, 0.0), record.Number(code + 20, 0.0)};
}

OxGePoint2d InPlane(const OxGePoint3d& point) {
    return {point.x, point.y};
}

// The direction of a text, in the mirror too.
double Rotation(const DxfRecord& record, bool isMirrored) {
    const double rotation = Radians(record.Number(50, 0.0));
    return isMirrored ? std::numbers::pi - rotation : rotation;
}

OxCmColor IndexColor(std::int32_t index) {
    OxCmColor color;
    color.setColorIndex(static_cast<std::uint8_t>(index));
    return color;
}

OxCmColor TrueColor(std::int32_t bits) {
    const auto channel = [bits](int shift) {
        return static_cast<std::uint8_t>(static_cast<std::uint32_t>(bits) >> shift & 0xffU);
    };
    OxCmColor color;
    color.setRGB(channel(16), channel(8), channel(0));
    return color;
}

// Points of one group code in order; at most `most`, since other entities' points may follow.
std::vector<OxGePoint3d> Points(const DxfRecord& record, int code, std::size_t most) {
    std::vector<OxGePoint3d> points;
    for (const DxfPair& pair : record.pairs) {
        if (pair.code == code) {
            if (points.size() == most) {
                break;
            }
            points.push_back({record.NumberOf(pair, 0.0), 0.0, 0.0});
        } else if (pair.code == code + 10 && !points.empty()) {
            points.back().y = record.NumberOf(pair, 0.0);
        } else if (pair.code == code + 20 && !points.empty()) {
            points.back().z = record.NumberOf(pair, 0.0);
        }
    }
    return points;
}

std::vector<double> Numbers(const DxfRecord& record, int code, std::size_t most) {
    std::vector<double> numbers;
    for (const DxfPair& pair : record.pairs) {
        if (pair.code == code && numbers.size() < most) {
            numbers.push_back(record.NumberOf(pair, 0.0));
        }
    }
    return numbers;
}

std::size_t Count(const DxfRecord& record, int code) {
    const DxfPair* const pair = record.Find(code);
    return pair != nullptr ? static_cast<std::size_t>(record.IntegerOf(*pair, 0, kCounts))
                           : record.pairs.size();
}

// The widths of a polyline that is one record, for each vertex: its own, or that of all.
std::vector<drawing::SegmentWidth> LightWidths(const DxfRecord& record, std::size_t vertices) {
    const double all = record.Number(43, 0.0);
    std::vector<drawing::SegmentWidth> widths;
    for (const DxfPair& pair : record.pairs) {
        if (pair.code == 10) {
            widths.push_back({all, all});
        } else if (pair.code == 40 && !widths.empty()) {
            widths.back().start = record.NumberOf(pair, all);
        } else if (pair.code == 41 && !widths.empty()) {
            widths.back().end = record.NumberOf(pair, all);
        }
    }
    widths.resize(vertices);
    return widths;
}

// What is drawn of an entity that becomes one of which only the class is known.
drawing::OtherShape ShapeOf(const DxfRecord& record, bool isMirrored, const DxfTextDecoder& texts) {
    if (record.type == "SOLID" || record.type == "TRACE") {
        // The third and the fourth corner lie across from each other; a triangle has three.
        const int last = record.Find(13) != nullptr ? 13 : 12;
        return drawing::FilledCorners{{Point(record, 10, isMirrored), Point(record, 11, isMirrored),
                                       Point(record, last, isMirrored), Point(record, 12, isMirrored)}};
    }
    if (record.type == "LEADER") {
        return drawing::OpenPath{Points(record, 10, record.pairs.size())};
    }
    if (record.type.ends_with("DIMENSION") && !record.Word(2).empty()) {
        return drawing::OwnBlock{texts.Decode(record.Word(2)), Point(record, 12)};
    }
    return {};
}

} // namespace

OxCmColor ByLayerColor() {
    OxCmColor color;
    color.setByLayer();
    return color;
}

OxCmColor ReadColor(const DxfRecord& record, const OxCmColor& fallback) {
    if (const DxfPair* const trueColor = record.Find(420)) {
        constexpr std::int32_t kNone = -1;
        if (const std::int32_t bits = record.IntegerOf(*trueColor, kNone, kCounts); bits != kNone) {
            return TrueColor(bits);
        }
    }
    const std::int32_t index = std::abs(record.Integer(62, kNoColor, kColors)); // below 0: the layer is off
    if (index == kColorByBlock) {
        OxCmColor color;
        color.setByBlock();
        return color;
    }
    if (index == kColorByLayer) {
        return ByLayerColor();
    }
    return index <= kLastColorIndex ? IndexColor(index) : fallback;
}

void DxfEntityReader::Begin(DxfBlock* block) {
    End();
    block_ = block;
}

void DxfEntityReader::End() {
    FinishPolyline();
    insert_ = nullptr;
    block_ = nullptr;
}

DxfPlace DxfEntityReader::PlaceOf(const DxfRecord& record) const {
    return {record.place, block_ != nullptr ? block_->name : std::string()};
}

bool DxfEntityReader::IsMirrored(const DxfRecord& record) {
    const double x = record.Number(210, 0.0);
    const double y = record.Number(220, 0.0);
    const double z = record.Find(230) != nullptr ? record.Number(230, 1.0) : 1.0;
    constexpr double kUpright = 1e-6;
    if (x == 0.0 && y == 0.0 && z == 0.0) {
        notes_.Repair(PlaceOf(record), Code::kZeroExtrusion, {TypeOf(record)});
    } else if (std::fabs(x) > kUpright || std::fabs(y) > kUpright) {
        notes_.Repair(PlaceOf(record), Code::kTiltedPlane, {TypeOf(record)});
    }
    return z < 0.0;
}

const std::wstring& DxfEntityReader::Name(std::string_view word, std::wstring fallback) {
    auto name = names_.find(word);
    if (name == names_.end()) {
        name = names_.emplace(word, word.empty() ? std::move(fallback) : texts_.Decode(word)).first;
    }
    return name->second;
}

const drawing::EntityProperties& DxfEntityReader::Properties(const DxfRecord& record) {
    std::string_view layer;
    std::string_view linetype;
    const DxfPair* weight = nullptr;
    bool hidden = false;
    double linetypeScale = 1.0;
    for (const DxfPair& pair : record.pairs) {
        if (pair.code == 8) {
            layer = pair.Word();
        } else if (pair.code == 6) {
            linetype = pair.Word();
        } else if (pair.code == 370) {
            weight = &pair;
        } else if (pair.code == 60) {
            hidden = record.IntegerOf(pair, 0) == kHidden;
        } else if (pair.code == 48) {
            linetypeScale = PositiveScale(record.NumberOf(pair, 1.0));
        }
    }
    const std::wstring& layerName = layer.empty() ? kDefaultLayer : Name(layer, {});
    if (properties_.layer != layerName || !hasLayer_) {
        properties_.layer = layerName;
        hasLayer_ = true;
        RequireLayer(record);
    }
    properties_.linetype = linetype.empty() ? L"ByLayer" : Name(linetype, {});
    properties_.hidden = hidden;
    properties_.linetypeScale = linetypeScale;
    properties_.color = ReadColor(record, ByLayerColor());
    properties_.lineWeight = static_cast<OxDb::LineWeight>(
        weight != nullptr ? record.IntegerOf(*weight, OxDb::kLnWtByLayer, kLineWeights) : OxDb::kLnWtByLayer);
    TellRepaired(record);
    return properties_;
}

// The layer of the entity is made where no table has it.
void DxfEntityReader::RequireLayer(const DxfRecord& record) {
    if (database_.AddLayer(properties_.layer, IndexColor(kWhite)) != nullptr &&
        properties_.layer != kDefaultLayer) {
        notes_.Add(PlaceOf(record), diagnostics::Severity::kNote, Code::kMissingLayer,
                   {diagnostics::ShownText(properties_.layer)}, diagnostics::Outcome::kRepaired);
    }
}

bool DxfEntityReader::IsLost(const DxfRecord& record) {
    return record.invalid && notes_.LoseInvalid(PlaceOf(record), record);
}

void DxfEntityReader::TellRepaired(const DxfRecord& record) {
    if (record.invalid) {
        notes_.RepairInvalid(PlaceOf(record), record);
    }
}

template <class T, class... Args>
T* DxfEntityReader::Add(const DxfRecord& record, Args&&... args) {
    if (IsLost(record)) {
        return nullptr;
    }
    const DxfPair* const handle = record.Find(5);
    if (const std::uint64_t value = handle != nullptr ? handle->Handle() : 0; value != 0) {
        block_->handles.resize(block_->record->EntityCount(), 0);
        block_->handles.push_back(value);
    }
    return &block_->record->Add<T>(Properties(record), std::forward<Args>(args)...);
}

void DxfEntityReader::Take(const DxfRecord& record) {
    if (block_ == nullptr) {
        return;
    }
    if (record.type == "VERTEX" && polyline_) {
        TakeVertex(record);
        return;
    }
    FinishPolyline();
    // Attributes belong to the insert before them, and their end to neither.
    if (record.type == "ATTRIB" && insert_ != nullptr) {
        AddAttribute(record);
        return;
    }
    insert_ = nullptr;
    if (record.type == "SEQEND" || record.type == "ATTRIB" || record.type == "VERTEX") {
        return;
    }
    if (!TakeCurve(record) && !TakeText(record)) {
        AddOther(record);
    }
}

bool DxfEntityReader::TakeCurve(const DxfRecord& record) {
    const std::string_view type = record.type;
    if (type == "LINE") {
        Add<drawing::Line>(record, Point(record, 10), Point(record, 11));
    } else if (type == "POINT") {
        Add<drawing::Point>(record, Point(record, 10));
    } else if (type == "CIRCLE") {
        Add<drawing::Circle>(record, Point(record, 10, IsMirrored(record)), record.Number(40, 0.0));
    } else if (type == "ARC") {
        AddArc(record);
    } else if (type == "ELLIPSE") {
        AddEllipse(record);
    } else if (type == "LWPOLYLINE") {
        AddLightPolyline(record);
    } else if (type == "POLYLINE" && (record.Integer(70, 0) & kNotPlane) == 0) {
        const bool isMirrored = IsMirrored(record);
        polyline_ = OpenPolyline{DxfKeptRecord(record), {}, {}, isMirrored, false};
    } else if (type == "SPLINE" || type == "HELIX") {
        AddSpline(record);
    } else if (type == "HATCH") {
        AddHatch(record);
    } else if (type == "MPOLYGON") {
        AddMPolygon(record);
    } else {
        return false;
    }
    return true;
}

bool DxfEntityReader::TakeText(const DxfRecord& record) {
    const std::string_view type = record.type;
    if (type == "TEXT" || type == "ATTDEF") {
        AddText(record, type == "ATTDEF");
    } else if (type == "MTEXT") {
        AddParagraphText(record);
    } else if (type == "INSERT") {
        AddInsert(record);
    } else {
        return false;
    }
    return true;
}

void DxfEntityReader::AddArc(const DxfRecord& record) {
    drawing::ArcData arc;
    const bool isMirrored = IsMirrored(record);
    arc.center = Point(record, 10, isMirrored);
    arc.radius = record.Number(40, 0.0);
    arc.startAngle = Radians(record.Number(50, 0.0));
    arc.endAngle = EndBehind(arc.startAngle, Radians(record.Number(51, 0.0)));
    arc.normal = {0.0, 0.0, isMirrored ? -1.0 : 1.0};
    Add<drawing::Arc>(record, arc);
}

void DxfEntityReader::AddEllipse(const DxfRecord& record) {
    drawing::EllipseData ellipse;
    ellipse.center = Point(record, 10);
    const OxGePoint3d axis = Point(record, 11);
    ellipse.majorAxis = {axis.x, axis.y, axis.z};
    ellipse.radiusRatio = record.Number(40, 1.0);
    const double start = record.Number(41, 0.0);
    const double end = EndBehind(start, record.Number(42, kTurn));
    const bool isMirrored = IsMirrored(record); // the minor axis points the other way
    ellipse.startAngle = isMirrored ? -end : start;
    ellipse.endAngle = isMirrored ? -start : end;
    Add<drawing::Ellipse>(record, ellipse);
}

void DxfEntityReader::AddLightPolyline(const DxfRecord& record) {
    const bool isMirrored = IsMirrored(record);
    std::vector<geometry::BulgeVertex> vertices;
    bool hasWidths = false;
    for (const DxfPair& pair : record.pairs) {
        hasWidths = hasWidths || pair.code == 40 || pair.code == 41 || pair.code == 43;
        if (pair.code == 10) {
            const double x = record.NumberOf(pair, 0.0);
            vertices.push_back({{isMirrored ? -x : x, 0.0}, 0.0});
        } else if (pair.code == 20 && !vertices.empty()) {
            vertices.back().point.y = record.NumberOf(pair, 0.0);
        } else if (pair.code == 42 && !vertices.empty()) {
            const double bulge = record.NumberOf(pair, 0.0);
            vertices.back().bulge = isMirrored ? -bulge : bulge;
        }
    }
    const std::int32_t flags = record.Integer(70, 0);
    auto* const added =
        Add<drawing::Polyline>(record, vertices, (flags & kClosed) != 0, (flags & kRunsOn) != 0);
    if (added != nullptr && hasWidths) {
        added->SetWidths(LightWidths(record, vertices.size()));
        TellRepaired(record);
    }
}

void DxfEntityReader::TakeVertex(const DxfRecord& record) {
    if ((record.Integer(70, 0) & kFrameVertex) != 0) {
        return;
    }
    const double bulge = record.Number(42, 0.0);
    polyline_->vertices.push_back(
        {InPlane(Point(record, 10, polyline_->isMirrored)), polyline_->isMirrored ? -bulge : bulge});
    const DxfRecord& whole = polyline_->record.Get();
    polyline_->widths.push_back(
        {record.Number(40, whole.Number(40, 0.0)), record.Number(41, whole.Number(41, 0.0))});
    polyline_->isDamaged = IsLost(record) || polyline_->isDamaged;
}

void DxfEntityReader::FinishPolyline() {
    if (polyline_) {
        const OpenPolyline polyline = std::move(*polyline_);
        polyline_.reset();
        if (polyline.isDamaged) {
            return;
        }
        const DxfRecord& record = polyline.record.Get();
        const std::int32_t flags = record.Integer(70, 0);
        auto* const added =
            Add<drawing::Polyline>(record, polyline.vertices, (flags & kClosed) != 0, (flags & kRunsOn) != 0);
        if (added != nullptr) {
            added->SetWidths(polyline.widths);
        }
    }
}

void DxfEntityReader::AddSpline(const DxfRecord& record) {
    drawing::NurbsData nurbs;
    nurbs.controlPoints = Points(record, 10, Count(record, 73));
    if (!nurbs.controlPoints.empty()) {
        const std::int32_t flags = record.Integer(70, 0);
        nurbs.degree = record.Integer(71, 3);
        nurbs.closed = (flags & kClosed) != 0;
        nurbs.periodic = (flags & kPeriodic) != 0;
        nurbs.knots = Numbers(record, 40, Count(record, 72));
        nurbs.weights = Numbers(record, 41, nurbs.controlPoints.size());
        if (nurbs.weights.size() != nurbs.controlPoints.size()) {
            nurbs.weights.clear();
        }
        Add<drawing::Spline>(record, drawing::SplineData(std::move(nurbs)));
        return;
    }
    drawing::FitData fit;
    fit.points = Points(record, 11, Count(record, 74));
    if (fit.points.empty()) {
        if (!IsLost(record)) {
            notes_.Skip(PlaceOf(record), Code::kEntityWithoutPoints, {TypeOf(record)});
        }
        return;
    }
    fit.degree = record.Integer(71, 3);
    fit.tolerance = record.Number(44, 0.0);
    fit.tangentsExist = record.Find(12) != nullptr && record.Find(13) != nullptr;
    const OxGePoint3d start = Point(record, 12);
    const OxGePoint3d end = Point(record, 13);
    fit.startTangent = {start.x, start.y, start.z};
    fit.endTangent = {end.x, end.y, end.z};
    Add<drawing::Spline>(record, drawing::SplineData(std::move(fit)));
}

void DxfEntityReader::AddHatch(const DxfRecord& record) {
    std::optional<drawing::HatchData> data = ReadHatch(record, IsMirrored(record));
    if (!data) {
        notes_.Lose(PlaceOf(record), Code::kInvalidBoundary, {TypeOf(record)});
        return;
    }
    Add<drawing::Hatch>(record, std::move(*data));
}

void DxfEntityReader::AddMPolygon(const DxfRecord& record) {
    std::optional<std::vector<drawing::PolylineLoop>> loops = ReadMPolygonLoops(record, IsMirrored(record));
    if (!loops) {
        notes_.Lose(PlaceOf(record), Code::kInvalidBoundary, {TypeOf(record)});
        return;
    }
    const std::int32_t index = record.Integer(63, kColorByLayer);
    const OxCmColor fill = index > 0 && index <= kLastColorIndex ? IndexColor(index) : ByLayerColor();
    Add<drawing::MPolygon>(record, std::move(*loops), fill);
}

void DxfEntityReader::AddInsert(const DxfRecord& record) {
    const std::string_view name = record.Word(2);
    if (name.empty()) {
        notes_.Skip(PlaceOf(record), Code::kInsertWithoutBlock, {TypeOf(record)});
        return;
    }
    drawing::InsertPlace place;
    place.position = Point(record, 10);
    place.scaleX = record.Number(41, 1.0);
    place.scaleY = record.Number(42, 1.0);
    place.rotation = Radians(record.Number(50, 0.0));
    place.isMirrored = IsMirrored(record);
    place.columns = record.Integer(70, 1);
    place.rows = record.Integer(71, 1);
    place.columnSpacing = record.Number(44, 0.0);
    place.rowSpacing = record.Number(45, 0.0);
    for (double* const scale : {&place.scaleX, &place.scaleY}) {
        if (*scale == 0.0) {
            notes_.Repair(PlaceOf(record), Code::kZeroScale, {TypeOf(record)});
            *scale = 1.0;
        }
    }
    insert_ = Add<drawing::BlockReference>(record, Name(name, {}), place);
}

void DxfEntityReader::AddAttribute(const DxfRecord& record) {
    drawing::TextData data = ReadText(record, 74);
    const bool isInvisible = (record.Integer(70, 0) & kInvisibleAttribute) != 0;
    if (IsLost(record)) {
        return;
    }
    drawing::EntityProperties properties = Properties(record);
    properties.hidden = properties.hidden || isInvisible;
    insert_->AddAttribute<drawing::Text>(properties, std::move(data));
}

drawing::TextData DxfEntityReader::ReadText(const DxfRecord& record, int verticalCode) {
    const bool isMirrored = IsMirrored(record);
    const DxfPair* const characters = record.Find(1);
    drawing::TextData data;
    data.horizontalMode = static_cast<OxDb::TextHorzMode>(record.Integer(72, 0, kHorizontalModes));
    data.verticalMode = static_cast<OxDb::TextVertMode>(record.Integer(verticalCode, 0, kVerticalModes));
    TellRepaired(record);
    data.position = Point(record, 10, isMirrored);
    data.height = record.Number(40, 0.0);
    data.rotation = Rotation(record, isMirrored);
    data.text = characters != nullptr ? texts_.Decode(characters->value) : std::wstring();
    data.style = Name(record.Word(7, "STANDARD"), L"STANDARD");
    if (record.Find(11) != nullptr && (data.horizontalMode != 0 || data.verticalMode != 0)) {
        data.alignmentPoint = Point(record, 11, isMirrored);
    }
    return data;
}

void DxfEntityReader::AddText(const DxfRecord& record, bool isDefinition) {
    drawing::TextData data = ReadText(record, isDefinition ? 74 : 73);
    if (!isDefinition) {
        Add<drawing::Text>(record, std::move(data));
        return;
    }
    const DxfPair* const prompt = record.Find(3);
    Add<drawing::AttributeDefinition>(record, std::move(data), texts_.Decode(record.Word(2)),
                                      prompt != nullptr ? texts_.Decode(prompt->value) : std::wstring());
}

void DxfEntityReader::AddParagraphText(const DxfRecord& record) {
    drawing::ParagraphTextData data;
    data.attachment = record.Integer(71, kTopLeft, {kTopLeft, kBottomRight});
    TellRepaired(record);
    std::string contents;
    double rotation = 0.0;
    for (const DxfPair& pair : record.pairs) {
        if (pair.code == 3 || pair.code == 1) { // long texts come in pieces, the last one as 1
            contents += pair.value;
        } else if (pair.code == 50) { // of an angle and a direction the last one counts
            rotation = Radians(record.NumberOf(pair, 0.0));
        } else if (pair.code == 11) {
            rotation = std::atan2(record.Number(21, 0.0), record.NumberOf(pair, 1.0));
        }
    }
    data.location = Point(record, 10);
    data.textHeight = record.Number(40, 0.0);
    data.rotation = rotation;
    data.contents = texts_.Decode(contents);
    data.style = Name(record.Word(7, "STANDARD"), L"STANDARD");
    data.actualWidth = record.Number(42, 0.0);
    data.actualHeight = record.Number(43, 0.0);
    Add<drawing::ParagraphText>(record, std::move(data));
}

void DxfEntityReader::AddOther(const DxfRecord& record) {
    const bool isArea = record.type == "SOLID" || record.type == "TRACE";
    drawing::OtherShape shape = ShapeOf(record, isArea && IsMirrored(record), texts_);
    if (record.invalid) { // the class is right, whatever is drawn of it
        TellRepaired(record);
        shape = {};
    }
    Add<drawing::OtherEntity>(record, texts_.Decode(record.type), std::move(shape));
}

} // namespace exchange
