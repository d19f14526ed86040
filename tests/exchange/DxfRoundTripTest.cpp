// Random drawings, written as a DXF file and as a drawing document, are the same value by value; and files
// that lack any one line are read or refused with a place.
#include "tests/exchange/DxfFiles.h"

#include <array>
#include <gtest/gtest.h>
#include <numbers>
#include <random>

namespace {

/// What files are like: old ones have no handles, and polylines in records of their own.
enum class Age { kNew, kOld };

/// Entities as a file has them, and as a drawing document does.
class RandomEntities {
public:
    RandomEntities(unsigned seed, Age age) : random_(seed), age_(age) {}

    void Add() { AddKind(random_() % Kinds()); }
    void AddEachKind() {
        for (std::size_t kind = 0; kind < Kinds(); ++kind) {
            AddKind(kind);
        }
    }
    const DxfWriter& Dxf() const { return dxf_; }
    const std::string& Json() const { return json_; }

private:
    static std::string Text(double number) { return nlohmann::json(number).dump(); }
    static double Radians(double degrees) { return degrees * (std::numbers::pi / 180.0); }

    double Number() { return std::uniform_real_distribution<double>(-50, 50)(random_); }
    double Length() { return std::uniform_real_distribution<double>(0.5, 20)(random_); }
    double Degrees() { return std::uniform_real_distribution<double>(0, 180)(random_); }
    bool Either() { return random_() % 2 == 0; }

    std::size_t Kinds() const { return age_ == Age::kOld ? 8 : 14; }

    void AddKind(std::size_t kind) {
        json_ += json_.empty() ? "" : ",";
        using Adder = void (RandomEntities::*)();
        constexpr std::array<Adder, 14> kAdders = {
            &RandomEntities::AddPoint,   &RandomEntities::AddLine,     &RandomEntities::AddCircle,
            &RandomEntities::AddArc,     &RandomEntities::AddText,     &RandomEntities::AddDefinition,
            &RandomEntities::AddInsert,  &RandomEntities::AddPolyline, // up to here in old files, too
            &RandomEntities::AddEllipse, &RandomEntities::AddSpline,   &RandomEntities::AddCurve,
            &RandomEntities::AddHatch,   &RandomEntities::AddAreas,    &RandomEntities::AddParagraph};
        const Adder adder = kAdders.at(kind);
        (this->*adder)();
        json_ += "}";
    }

    void Begin(const std::string& type, const std::string& jsonType) {
        dxf_.Text(0, type);
        if (age_ == Age::kNew) {
            dxf_.Text(5, "A" + std::to_string(++handle_)).Text(100, "Mark");
        }
        json_ += R"({"type": ")" + jsonType + '"';
        AddProperties();
    }
    void AddProperties() {
        const std::string layer = Either() ? "0" : "ROADS";
        const auto color = static_cast<int>(1 + random_() % 255);
        dxf_.Text(8, layer).Integer(62, color);
        json_ += R"(, "layer": ")" + layer + R"(", "color": )" + std::to_string(color);
        if (Either()) {
            dxf_.Text(6, "GAPS").Integer(60, 1);
            json_ += R"(, "linetype": "GAPS", "hidden": true)";
        }
        if (age_ == Age::kNew && Either()) {
            dxf_.Integer(370, 25);
            json_ += R"(, "lineWeight": 25)";
        }
    }
    void Point(int code, const std::string& key) {
        const double x = Number();
        const double y = Number();
        dxf_.Point(code, x, y);
        json_ += ", \"" + key + "\": [" + Text(x) + ", " + Text(y) + "]";
    }
    void Value(int code, const std::string& key, double value) {
        dxf_.Number(code, value);
        json_ += ", \"" + key + "\": " + Text(value);
    }
    void Count(int code, const std::string& key, int value) {
        dxf_.Integer(code, value);
        json_ += ", \"" + key + "\": " + std::to_string(value);
    }
    void Angle(int code, const std::string& key, double degrees) {
        dxf_.Number(code, degrees);
        json_ += ", \"" + key + "\": " + Text(Radians(degrees));
    }
    void Characters(const std::string& key) {
        const std::string text = "text " + std::to_string(random_() % 1000);
        dxf_.Text(1, text);
        json_ += ", \"" + key + "\": \"" + text + '"';
    }
    // Corners as a list, with bulges.
    void Corners(std::size_t count, const DxfWriter& before, int codeOfBulge) {
        json_ += R"("vertices": [)";
        for (std::size_t i = 0; i < count; ++i) {
            const double x = Number();
            const double y = Number();
            const double bulge = i > 0 && Either() ? 0.0 : 0.01 + Length() / 50;
            dxf_.Append(before).Point(10, x, y).Number(codeOfBulge, bulge);
            json_ += (i > 0 ? ", [" : "[") + Text(x) + ", " + Text(y) + ", " + Text(bulge) + "]";
        }
        json_ += "]";
    }
    void Points(int code, const std::string& key, int count) {
        json_ += ", \"" + key + "\": [";
        for (int i = 0; i < count; ++i) {
            const double x = Number();
            const double y = Number();
            dxf_.Point(code, x, y);
            json_ += (i > 0 ? ", [" : "[") + Text(x) + ", " + Text(y) + "]";
        }
        json_ += "]";
    }

    void AddPoint() {
        Begin("POINT", "point");
        Point(10, "position");
    }
    void AddLine() {
        Begin("LINE", "line");
        Point(10, "start");
        Point(11, "end");
    }
    void AddCircle() {
        Begin("CIRCLE", "circle");
        Point(10, "center");
        Value(40, "radius", Length());
    }
    void AddArc() {
        Begin("ARC", "arc");
        Point(10, "center");
        Value(40, "radius", Length());
        const double start = Degrees();
        Angle(50, "startAngle", start);
        Angle(51, "endAngle", start + 1 + Degrees());
    }
    void AddEllipse() {
        Begin("ELLIPSE", "ellipse");
        Point(10, "center");
        Point(11, "majorAxis");
        Value(40, "radiusRatio", 0.3);
        const double start = Radians(Degrees());
        Value(41, "startAngle", start);
        Value(42, "endAngle", start + 2);
    }
    void AddPolyline() {
        const std::size_t count = 2 + random_() % 5;
        const bool isClosed = Either();
        Begin(age_ == Age::kOld ? "POLYLINE" : "LWPOLYLINE", "polyline");
        json_ += std::string(R"(, "closed": )") + (isClosed ? "true" : "false") + ", ";
        if (age_ == Age::kOld) {
            dxf_.Integer(66, 1).Point(10, 0, 0).Integer(70, isClosed ? 1 : 0);
            Corners(count, DxfWriter().Text(0, "VERTEX").Text(8, "0"), 42);
            dxf_.Text(0, "SEQEND").Text(8, "0");
        } else {
            dxf_.Integer(90, static_cast<int>(count)).Integer(70, isClosed ? 1 : 0);
            Corners(count, {}, 42);
        }
    }
    void AddSpline() {
        Begin("SPLINE", "spline");
        dxf_.Integer(71, 3).Integer(74, 4);
        Points(11, "fitPoints", 4);
    }
    void AddCurve() {
        Begin("SPLINE", "spline");
        dxf_.Integer(70, 8).Integer(72, 6).Integer(73, 3).Integer(74, 0);
        Count(71, "degree", 2);
        json_ += R"(, "knots": [0, 0, 0, 1, 1, 1], "weights": [1, 0.5, 1])";
        for (const double knot : {0.0, 0.0, 0.0, 1.0, 1.0, 1.0}) {
            dxf_.Number(40, knot);
        }
        dxf_.Number(41, 1).Number(41, 0.5).Number(41, 1);
        Points(10, "controlPoints", 3);
    }
    void AddHatch() {
        Begin("HATCH", "hatch");
        dxf_.Point(10, 0, 0).Text(2, "P").Integer(70, 0).Integer(71, 0).Integer(91, 2).Integer(92, 2);
        dxf_.Integer(72, 1).Integer(73, 1).Integer(93, 3);
        json_ += R"(, "loops": [{)";
        Corners(3, {}, 42);
        dxf_.Integer(97, 0).Integer(92, 1).Integer(93, 2);
        json_ += R"(}, {"edges": [{"type": "line")";
        dxf_.Integer(72, 1).Point(10, 1, 0).Point(11, 4, 0);
        json_ += R"(, "start": [1, 0], "end": [4, 0]}, {"type": "arc", "center": [3, 0], "clockwise": true)";
        dxf_.Integer(72, 2).Point(10, 3, 0).Number(40, 1);
        json_ += R"(, "radius": 1)";
        Angle(50, "startAngle", 0);
        Angle(51, "endAngle", 1 + Degrees());
        dxf_.Integer(73, 0).Integer(97, 0);
        const double degrees = Degrees();
        dxf_.Integer(75, 0).Integer(76, 1).Integer(78, 1).Number(53, degrees);
        dxf_.Number(43, 1).Number(44, 2).Number(45, -3).Number(46, 8).Integer(79, 2).Number(49, 4);
        dxf_.Number(49, -1).Integer(98, 0);
        json_ += R"(}]}], "pattern": [{"angle": )" + Text(Radians(degrees)) +
                 R"(, "base": [1, 2], "offset": [-3, 8], "dashes": [4, -1]}])";
    }
    void AddAreas() {
        Begin("MPOLYGON", "mpolygon");
        dxf_.Integer(70, 1).Text(2, "SOLID").Integer(71, 0).Integer(91, 1).Integer(92, 2);
        dxf_.Integer(73, 1).Integer(72, 1).Integer(93, 3);
        json_ += R"(, "loops": [{)";
        Corners(3, {}, 42);
        dxf_.Integer(76, 1);
        json_ += "}]";
        Count(63, "fillColor", 5);
    }
    void AddText() {
        Begin("TEXT", "text");
        PutText(73);
    }
    void AddDefinition() {
        Begin("ATTDEF", "attributeDefinition");
        PutText(74);
        dxf_.Text(2, "TAG").Text(3, "prompt");
        json_ += R"(, "tag": "TAG", "prompt": "prompt")";
    }
    void PutText(int codeOfVertical) {
        Point(10, "position");
        Value(40, "height", Length());
        Characters("text");
        Angle(50, "rotation", Degrees());
        dxf_.Text(7, "NOTES");
        json_ += R"(, "style": "NOTES")";
        if (Either()) {
            Count(72, "horizontalMode", 1);
            Count(codeOfVertical, "verticalMode", 2);
            Point(11, "alignmentPoint");
        }
    }
    void AddParagraph() {
        Begin("MTEXT", "mtext");
        Point(10, "location");
        Value(40, "textHeight", Length());
        Characters("contents");
        Angle(50, "rotation", Degrees());
        Count(71, "attachment", 1 + static_cast<int>(random_() % 9));
        dxf_.Text(7, "NOTES");
        json_ += R"(, "style": "NOTES")";
    }
    void AddInsert() {
        Begin("INSERT", "insert");
        dxf_.Text(2, "OTHER");
        json_ += R"(, "block": "OTHER")";
        Point(10, "position");
        const double scale = Length();
        dxf_.Number(41, scale).Number(42, -2);
        json_ += R"(, "scale": [)" + Text(scale) + ", -2]";
        Angle(50, "rotation", Degrees());
        Count(70, "columns", 3);
        Count(71, "rows", 2);
        Value(44, "columnSpacing", Length());
        Value(45, "rowSpacing", Length());
        if (Either()) {
            dxf_.Integer(66, 1).Text(0, "ATTRIB");
            json_ += R"(, "attributes": [{"hidden": false)";
            dxf_.Text(8, "ROADS").Integer(62, 2);
            json_ += R"(, "layer": "ROADS", "color": 2)";
            PutText(74);
            dxf_.Text(2, "TAG").Text(0, "SEQEND").Text(8, "0");
            json_ += "}]";
        }
    }

    std::mt19937 random_;
    Age age_;
    DxfWriter dxf_;
    std::string json_;
    int handle_ = 0;
};

DxfWriter RandomTable(const std::string& name, const DxfWriter& entries) {
    return DxfWriter().Text(0, "TABLE").Text(2, name).Integer(70, 1).Append(entries).Text(0, "ENDTAB");
}

// A whole file with tables around the entities of a block.
DxfWriter RandomFile(const RandomEntities& entities, Age age) {
    DxfWriter tables;
    DxfWriter dashes;
    dashes.Text(0, "LTYPE").Text(2, "GAPS").Integer(70, 0).Text(3, "").Integer(72, 65).Integer(73, 2);
    dashes.Number(40, 3).Number(49, 2).Number(49, -1);
    tables.Append(RandomTable("LTYPE", dashes));
    DxfWriter layers;
    layers.Text(0, "LAYER").Text(2, "0").Integer(70, 0).Integer(62, 7).Text(6, "CONTINUOUS");
    layers.Text(0, "LAYER").Text(2, "ROADS").Integer(70, 1).Integer(62, 3).Text(6, "CONTINUOUS");
    tables.Append(RandomTable("LAYER", layers));
    DxfWriter styles;
    styles.Text(0, "STYLE").Text(2, "NOTES").Integer(70, 0).Number(40, 0).Number(41, 0.8).Number(50, 15);
    styles.Integer(71, 2).Number(42, 1).Text(3, "romans.shx").Text(4, "big.shx");
    tables.Append(RandomTable("STYLE", styles));
    DxfWriter file;
    if (age == Age::kNew) {
        file.Append(Section("HEADER", DxfWriter().Text(9, "$INSUNITS").Integer(70, 4)));
        DxfWriter records;
        records.Text(0, "BLOCK_RECORD").Text(5, "1F").Text(2, "B").Integer(70, 6);
        tables.Append(RandomTable("BLOCK_RECORD", records));
    }
    DxfWriter block;
    block.Text(0, "BLOCK").Text(8, "0").Text(2, "B").Integer(70, 0).Point(10, 1, 2).Append(entities.Dxf());
    block.Text(0, "ENDBLK");
    return file.Append(Section("TABLES", tables)).Append(Section("BLOCKS", block)).Text(0, "EOF");
}

// The members of its document.
std::string RandomMembers(const RandomEntities& entities, Age age) {
    const std::string slant = nlohmann::json(15 * (std::numbers::pi / 180)).dump();
    return std::string(age == Age::kNew ? R"("insunits": 4, )" : "") +
           R"("layers": [{"name": "0", "color": 7}, {"name": "ROADS", "color": 3, "frozen": true}],
              "linetypes": [{"name": "GAPS", "patternLength": 3, "dashes": [{"length": 2}, {"length": -1}]}],
              "textStyles": [{"name": "NOTES", "fileName": "romans.shx", "bigFontFileName": "big.shx",
                              "xScale": 0.8, "flagBits": 2, "obliquingAngle": )" +
           slant + R"(}], "blocks": [{"name": "B", "basePoint": [1, 2], )" +
           (age == Age::kNew ? R"("units": 6, )" : "") + R"("entities": [)" + entities.Json() + "]}]";
}

TEST(DxfRoundTrip, RandomDrawingsAreThoseOfTheirDocuments) {
    for (const Age age : {Age::kNew, Age::kOld}) {
        for (unsigned seed = 0; seed < 60; ++seed) {
            RandomEntities entities(seed, age);
            for (int i = 0; i < 16; ++i) {
                entities.Add();
            }
            const std::string expected = DocumentOfJson(RandomMembers(entities, age));
            const DxfWriter file = RandomFile(entities, age);
            ASSERT_NE(expected.find("\"type\""), std::string::npos) << expected;
            ASSERT_EQ(DocumentOfDxf(file.Ascii()), expected) << "seed " << seed;
            ASSERT_EQ(DocumentOfDxf(file.Ascii("\n")), expected) << "seed " << seed;
            ASSERT_EQ(DocumentOfDxf(file.Binary()), expected) << "seed " << seed;
            ASSERT_EQ(DocumentOfDxf(file.Binary(true)), expected) << "seed " << seed;
            // The document is read as the same drawing, value by value, and gives the same symbols.
            diagnostics::Diagnostic fault;
            exchange::DxfNotes notes;
            const auto drawing = exchange::ReadDxf(file.Ascii(), fault, notes);
            documents::DrawingError error;
            const auto again = documents::ReadDrawing(std::string_view(expected), error);
            ASSERT_NE(again, nullptr) << error.Text();
            ASSERT_EQ(DocumentOf(*again), expected) << "seed " << seed;
            ASSERT_EQ(SymbolsOf(*drawing), SymbolsOf(*again)) << "seed " << seed;
        }
    }
}

// Reads a file, of which nobody knows what it is, to a drawing or a fault with a place.
void ReadAnything(const std::string& bytes) {
    diagnostics::Diagnostic fault;
    exchange::DxfNotes notes;
    const auto database = exchange::ReadDxf(bytes, fault, notes);
    ASSERT_EQ(database == nullptr, fault.place.line + fault.place.byte.value_or(0) > 0);
    if (database != nullptr) {
        database->LimitHatchLines(10000);
        SymbolsOf(*database);
    }
}

TEST(DxfRoundTrip, AFileThatLacksAnyOneLineIsReadOrRefused) {
    for (const Age age : {Age::kNew, Age::kOld}) {
        RandomEntities entities(7, age);
        entities.AddEachKind();
        const std::string file = RandomFile(entities, age).Ascii("\n");
        for (std::size_t start = 0; start < file.size();) {
            const std::size_t end = file.find('\n', start) + 1;
            ReadAnything(file.substr(0, start) + file.substr(end));
            ReadAnything(file.substr(0, end));
            start = end;
        }
    }
}

TEST(DxfRoundTrip, ABinaryFileCutOrChangedAnywhereIsReadOrRefused) {
    for (const bool hasShortCodes : {false, true}) {
        RandomEntities entities(8, Age::kNew);
        entities.AddEachKind();
        const std::string file = RandomFile(entities, Age::kNew).Binary(hasShortCodes);
        for (std::size_t at = 22; at < file.size(); at += 13) {
            ReadAnything(file.substr(0, at));
            std::string changed = file;
            changed[at] = static_cast<char>(changed[at] + 1);
            ReadAnything(changed);
        }
    }
}

} // namespace
