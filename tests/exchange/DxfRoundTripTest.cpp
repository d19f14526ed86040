// Random drawings, written as a DXF file and as a drawing document, become the same symbols; and files that
// lack any one line are read or refused with a place.
#include "documents/DrawingWriter.h"
#include "tests/exchange/DxfFiles.h"

#include <gtest/gtest.h>
#include <numbers>
#include <random>

namespace {

/// Entities in both forms.
class RandomEntities {
public:
    explicit RandomEntities(unsigned seed) : random_(seed) {}

    void Add() {
        json_ += json_.empty() ? "" : ",";
        switch (random_() % 7) {
        case 0:
            AddLine();
            break;
        case 1:
            AddArc();
            break;
        case 2:
            AddEllipse();
            break;
        case 3:
            AddPolyline();
            break;
        case 4:
            AddSpline();
            break;
        case 5:
            AddHatch();
            break;
        default:
            AddText();
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

    void Begin(const std::string& type, const std::string& jsonType) {
        const auto color = static_cast<int>(1 + random_() % 255);
        dxf_.Text(0, type).Text(5, "A" + std::to_string(++handle_)).Text(8, "0").Integer(62, color);
        json_ += R"({"type": ")" + jsonType + R"(", "color": )" + std::to_string(color);
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
    void Angle(int code, const std::string& key, double degrees) {
        dxf_.Number(code, degrees);
        json_ += ", \"" + key + "\": " + Text(Radians(degrees));
    }

    void AddLine() {
        Begin("LINE", "line");
        Point(10, "start");
        Point(11, "end");
        json_ += "}";
    }
    void AddArc() {
        Begin("ARC", "arc");
        Point(10, "center");
        Value(40, "radius", Length());
        const double start = Degrees();
        Angle(50, "startAngle", start);
        Angle(51, "endAngle", start + 1 + Degrees());
        json_ += "}";
    }
    void AddEllipse() {
        Begin("ELLIPSE", "ellipse");
        Point(10, "center");
        Point(11, "majorAxis");
        Value(40, "radiusRatio", 0.3);
        const double start = Radians(Degrees());
        Value(41, "startAngle", start);
        Value(42, "endAngle", start + 2);
        json_ += "}";
    }
    void AddPolyline() {
        Begin("LWPOLYLINE", "polyline");
        const bool closed = random_() % 2 == 0;
        const std::size_t count = 2 + random_() % 5;
        dxf_.Integer(90, static_cast<int>(count)).Integer(70, closed ? 1 : 0);
        json_ += std::string(R"(, "closed": )") + (closed ? "true" : "false") + R"(, "vertices": [)";
        for (std::size_t i = 0; i < count; ++i) {
            const double x = Number();
            const double y = Number();
            const double bulge = random_() % 2 == 0 ? 0.0 : Number() / 50;
            dxf_.Point(10, x, y).Number(42, bulge);
            json_ += (i > 0 ? ", [" : "[") + Text(x) + ", " + Text(y) + ", " + Text(bulge) + "]";
        }
        json_ += "]}";
    }
    void AddSpline() {
        Begin("SPLINE", "spline");
        dxf_.Integer(71, 3).Integer(74, 4);
        json_ += R"(, "fitPoints": [)";
        for (int i = 0; i < 4; ++i) {
            const double x = Number();
            const double y = Number();
            dxf_.Point(11, x, y);
            json_ += (i > 0 ? ", [" : "[") + Text(x) + ", " + Text(y) + "]";
        }
        json_ += "]}";
    }
    void AddHatch() {
        Begin("HATCH", "hatch");
        dxf_.Point(10, 0, 0).Text(2, "P").Integer(70, 0).Integer(71, 0).Integer(91, 1).Integer(92, 2);
        dxf_.Integer(72, 1).Integer(73, 1).Integer(93, 3);
        json_ += R"(, "loops": [{"vertices": [)";
        for (int i = 0; i < 3; ++i) {
            const double x = Number();
            const double y = Number();
            const double bulge = Number() / 50;
            dxf_.Point(10, x, y).Number(42, bulge);
            json_ += (i > 0 ? ", [" : "[") + Text(x) + ", " + Text(y) + ", " + Text(bulge) + "]";
        }
        const double degrees = Degrees();
        dxf_.Integer(97, 0).Integer(75, 0).Integer(76, 1).Integer(78, 1).Number(53, degrees);
        dxf_.Number(43, 1).Number(44, 2).Number(45, -3).Number(46, 8).Integer(79, 2).Number(49, 4).Number(49,
                                                                                                          -1);
        dxf_.Integer(98, 0);
        json_ += R"(]}], "pattern": [{"angle": )" + Text(Radians(degrees)) +
                 R"(, "base": [1, 2], "offset": [-3, 8], "dashes": [4, -1]}]})";
    }
    void AddText() {
        Begin("TEXT", "text");
        Point(10, "position");
        Value(40, "height", Length());
        Angle(50, "rotation", Degrees());
        dxf_.Text(1, "text " + std::to_string(handle_));
        json_ += R"(, "text": "text )" + std::to_string(handle_) + "\"}";
    }

    std::mt19937 random_;
    DxfWriter dxf_;
    std::string json_;
    int handle_ = 0;
};

// The symbols of the drawing document that is made of a file.
std::string SymbolsOfDocumentOf(const std::string& bytes) {
    diagnostics::Diagnostic fault;
    exchange::DxfNotes notes;
    const auto drawing = exchange::ReadDxf(bytes, fault, notes);
    std::string text;
    documents::WriteDrawing(*drawing, [&](std::string_view piece) {
        text += piece;
        return true;
    });
    documents::DrawingError error;
    const auto again = documents::ReadDrawing(std::string_view(text), error);
    return again != nullptr ? SymbolsOf(*again) : error.Text();
}

TEST(DxfRoundTrip, RandomDrawingsAreThoseOfTheirDocuments) {
    for (unsigned seed = 0; seed < 60; ++seed) {
        RandomEntities entities(seed);
        for (int i = 0; i < 12; ++i) {
            entities.Add();
        }
        const std::string expected = SymbolsOfJson(entities.Json());
        const DxfWriter file = FileOf(entities.Dxf());
        ASSERT_NE(expected.find("geometry"), std::string::npos) << expected;
        ASSERT_EQ(SymbolsOfDxf(file.Ascii()), expected) << "seed " << seed;
        ASSERT_EQ(SymbolsOfDocumentOf(file.Ascii()), expected) << "seed " << seed;
        ASSERT_EQ(SymbolsOfDxf(file.Ascii("\n")), expected) << "seed " << seed;
        ASSERT_EQ(SymbolsOfDxf(file.Binary()), expected) << "seed " << seed;
        ASSERT_EQ(SymbolsOfDxf(file.Binary(true)), expected) << "seed " << seed;
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
    RandomEntities entities(7);
    for (int i = 0; i < 12; ++i) {
        entities.Add();
    }
    const std::string file = FileOf(entities.Dxf()).Ascii("\n");
    for (std::size_t start = 0; start < file.size();) {
        const std::size_t end = file.find('\n', start) + 1;
        ReadAnything(file.substr(0, start) + file.substr(end));
        ReadAnything(file.substr(0, end));
        start = end;
    }
}

TEST(DxfRoundTrip, ABinaryFileCutOrChangedAnywhereIsReadOrRefused) {
    RandomEntities entities(8);
    for (int i = 0; i < 4; ++i) {
        entities.Add();
    }
    const std::string file = FileOf(entities.Dxf()).Binary();
    for (std::size_t at = 22; at < file.size(); at += 3) {
        ReadAnything(file.substr(0, at));
        std::string changed = file;
        changed[at] = static_cast<char>(changed[at] + 1);
        ReadAnything(changed);
    }
}

} // namespace
