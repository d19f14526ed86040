// Writes a drawing document of one block of curves to standard output: make_drawing [ENTITIES]
#include "GeneratedBlocks.h"

#include <cstdio>
#include <cstdlib>

namespace {

constexpr std::size_t kLayers = 100;

void WriteTables() {
    std::printf("{\"format\": \"styleconversion/drawing\", \"version\": 1, \"insunits\": 4,\n\"layers\": [");
    for (std::size_t i = 0; i < kLayers; ++i) {
        std::printf(R"(%s{"name": "LAYER-%zu", "color": %zu})", i > 0 ? ", " : "", i, i + 1);
    }
    std::printf("],\n\"linetypes\": [{\"name\": \"DASHED\", \"dashes\": [");
    for (std::size_t i = 0; i < kDashLengths.size(); ++i) {
        std::printf("%s{\"length\": %.17g}", i > 0 ? ", " : "", kDashLengths[i]);
    }
    std::printf("]}],\n\"blocks\": [{\"name\": \"B\", \"entities\": [\n");
}

void WriteCurve(const GeneratedCurve& curve) {
    const char* const linetype = curve.dashed ? "DASHED" : "Continuous";
    constexpr const char* kTypes[] = {"line", "arc", "circle"};
    std::printf(R"({"type": "%s", "layer": "LAYER-%zu", "linetype": "%s", )", kTypes[curve.kind], curve.layer,
                linetype);
    if (curve.kind == GeneratedCurve::kLine) {
        std::printf(R"("start": [%.17g, %.17g], "end": [%.17g, %.17g]})", curve.start.x, curve.start.y,
                    curve.end.x, curve.end.y);
        return;
    }
    std::printf(R"("center": [%.17g, %.17g], "radius": %.17g)", curve.start.x, curve.start.y, curve.radius);
    if (curve.kind == GeneratedCurve::kArc) {
        std::printf(R"(, "startAngle": %.17g, "endAngle": %.17g)", curve.startAngle, curve.endAngle);
    }
    std::printf("}");
}

} // namespace

int main(int argc, char** argv) {
    const std::size_t entities = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 1000000;
    WriteTables();
    CurveGenerator generator(kLayers);
    for (std::size_t i = 0; i < entities; ++i) {
        std::printf(i > 0 ? ",\n" : "");
        WriteCurve(generator.Next());
    }
    std::printf("\n]}]}\n");
    return 0;
}
