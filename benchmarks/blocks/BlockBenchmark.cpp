// How long block conversion takes, against floors that only format the same numbers: block_benchmark
// [ENTITIES]
#include "GeneratedBlocks.h"
#include "WrittenNumbers.h"

#include "StyleConversion/block/BlockConverter.h"
#include "drawing/database/Database.h"
#include "drawing/entities/Areas.h"
#include "drawing/entities/CurveEntities.h"
#include "drawing/entities/SimpleEntities.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace {

constexpr int kRuns = 5; // of which the fastest counts: the one that other programs disturbed least

using Drawing = std::unique_ptr<drawing::Database>;

Drawing NewDrawing() {
    auto database = std::make_unique<drawing::Database>();
    database->SetInsunits(OxDb::kUnitsMillimeters);
    std::vector<drawing::Dash> dashes;
    for (const double length : kDashLengths) {
        dashes.emplace_back().length = length;
    }
    database->AddLinetype(L"DASHED", std::move(dashes));
    database->AddLayer(L"0", OxCmColor());
    return database;
}

drawing::EntityProperties Dashed() {
    drawing::EntityProperties properties;
    properties.linetype = L"DASHED";
    return properties;
}

Drawing CurvesOn(std::size_t layers, std::size_t entities) {
    Drawing database = NewDrawing();
    for (std::size_t i = 0; i < layers; ++i) {
        database->AddLayer(L"LAYER-" + std::to_wstring(i), OxCmColor());
    }
    drawing::BlockRecord& block = *database->AddBlock(L"B");
    CurveGenerator generator(layers);
    for (std::size_t i = 0; i < entities; ++i) {
        const GeneratedCurve curve = generator.Next();
        drawing::EntityProperties properties;
        properties.layer = L"LAYER-" + std::to_wstring(curve.layer);
        properties.linetype = curve.dashed ? L"DASHED" : L"Continuous";
        if (curve.kind == GeneratedCurve::kLine) {
            block.Add<drawing::Line>(properties, curve.start, curve.end);
        } else if (curve.kind == GeneratedCurve::kCircle) {
            block.Add<drawing::Circle>(properties, curve.start, curve.radius);
        } else {
            drawing::ArcData arc;
            arc.center = curve.start;
            arc.radius = curve.radius;
            arc.startAngle = curve.startAngle;
            arc.endAngle = curve.endAngle;
            block.Add<drawing::Arc>(properties, arc);
        }
    }
    return database;
}

Drawing PolylineOf(std::size_t vertexCount) {
    Drawing database = NewDrawing();
    std::vector<drawing::BulgeVertex> vertices;
    vertices.reserve(vertexCount);
    for (const OxGePoint2d& point : WindingLine(vertexCount)) {
        vertices.push_back({point, 0});
    }
    database->AddBlock(L"B")->Add<drawing::Polyline>(Dashed(), vertices, false, true);
    return database;
}

Drawing SplinesOf(std::size_t splines, std::size_t fitPoints) {
    Drawing database = NewDrawing();
    drawing::BlockRecord& block = *database->AddBlock(L"B");
    const std::vector<OxGePoint2d> points = WindingLine(splines * fitPoints);
    for (std::size_t i = 0; i < splines; ++i) {
        drawing::FitData data;
        for (std::size_t k = 0; k < fitPoints; ++k) {
            const OxGePoint2d& point = points[i * fitPoints + k];
            data.points.push_back({point.x, point.y, 0});
        }
        block.Add<drawing::Spline>(Dashed(), std::move(data));
    }
    return database;
}

Drawing HatchOf(std::size_t lines) {
    Drawing database = NewDrawing();
    drawing::HatchData data;
    data.lines.emplace();
    const std::vector<OxGePoint2d> points = WindingLine(2 * lines);
    for (std::size_t i = 0; i < lines; ++i) {
        data.lines->push_back({points[2 * i], points[2 * i + 1]});
    }
    database->AddBlock(L"B")->Add<drawing::Hatch>(Dashed(), std::move(data));
    return database;
}

using Symbol = std::unique_ptr<TylModel::SimpleSymbolDefinition>;

Symbol Convert(drawing::Database& database) {
    BlockConverter converter(&database);
    return Symbol(dynamic_cast<TylModel::SimpleSymbolDefinition*>(converter.Convert(L"B")));
}

/// Seconds of the fastest run.
template <class Run>
double Fastest(Run run) {
    double fastest = run();
    for (int i = 1; i < kRuns; ++i) {
        fastest = std::min(fastest, run());
    }
    return fastest;
}

// Deleting the symbol is not counted.
double TimeOfConversion(drawing::Database& database) {
    return Fastest([&] {
        const double start = ProcessorTime();
        const Symbol symbol = Convert(database);
        return ProcessorTime() - start;
    });
}

template <class Make>
void Measure(const char* what, const char* word, Make make) {
    if (std::string_view(what).find(word) == std::string_view::npos) {
        return;
    }
    const Drawing database = make();
    const std::vector<double> numbers = NumbersOf(*Convert(*database));
    const double conversion = TimeOfConversion(*database);
    const double standard = Fastest([&] { return TimeOfStandardFormatting(numbers); });
    const double trimmed = Fastest([&] { return TimeOfTrimmedFormatting(numbers); });
    std::printf("%-44s %9zu %8.1f ms %8.1f ms %6.2f %8.1f ms %6.2f\n", what, numbers.size(), conversion * 1e3,
                standard * 1e3, conversion / standard, trimmed * 1e3, conversion / trimmed);
}

} // namespace

int main(int argc, char** argv) {
    const std::size_t entities = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 1000000;
    std::printf("%-44s %9s %11s %11s %6s %11s %6s\n", "", "numbers", "conversion", "std floor", "ratio",
                "own floor", "ratio");
    const char* const word = argc > 2 ? argv[2] : "";
    Measure("curves, a third dashed, 10 layers", word, [&] { return CurvesOn(10, entities); });
    Measure("curves, a third dashed, 10,000 layers", word, [&] { return CurvesOn(10000, entities); });
    Measure("curves, a tenth of them", word, [&] { return CurvesOn(10, entities / 10); });
    Measure("one polyline of as many vertices, dashed", word, [&] { return PolylineOf(entities); });
    Measure("splines of 10 fit points, a hundredth, dashed", word,
            [&] { return SplinesOf(entities / 100, 10); });
    Measure("one hatch of a tenth as many lines", word, [&] { return HatchOf(entities / 10); });
    return 0;
}
