// Drawings written as documents are read back as the same drawings.
#include "documents/DrawingWriter.h"

#include "documents/DrawingReader.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace {

std::string Written(const drawing::Database& drawing) {
    std::string text;
    EXPECT_TRUE(documents::WriteDrawing(drawing, [&](std::string_view piece) {
        text += piece;
        return true;
    }));
    return text;
}

std::string WrittenFrom(const std::string& text) {
    documents::DrawingError error;
    const auto drawing = documents::ReadDrawing(std::string_view(text), error);
    EXPECT_NE(drawing, nullptr) << error.Text();
    return drawing != nullptr ? Written(*drawing) : std::string();
}

// The lines between the entities' bracket and its end.
std::string EntitiesFrom(const std::string& entities) {
    const std::string text = WrittenFrom(R"({"format": "styleconversion/drawing", "version": 1,
        "blocks": [{"name": "B", "entities": [)" +
                                         entities + "]}]}");
    const std::string start = "\"entities\": [\n        ";
    const std::size_t at = text.find(start) + start.size();
    return text.substr(at, text.find("\n      ]", at) - at);
}

TEST(DrawingWriter, EveryKindOfEntityIsWrittenAsItIsRead) {
    for (
        const std::string entity : {
            R"({"type": "point", "layer": "A", "color": 3, "lineWeight": 25, "linetype": "DASHED", "position": [1.5, -2.0, 3.0]})",
            R"({"type": "line", "color": "ByBlock", "start": [0.1, 0.0], "end": [1e+300, 5e-324]})",
            R"({"type": "arc", "color": "#0a0b0c", "center": [0.0, 0.0], "radius": 2.0, "startAngle": 1.0, "endAngle": 0.5, "normal": [0.0, 0.0, -1.0]})",
            R"({"type": "circle", "center": [0.0, 0.0], "radius": 2.0})",
            R"({"type": "ellipse", "center": [0.0, 0.0], "majorAxis": [1.0, 2.0], "radiusRatio": 0.3, "startAngle": 0.0, "endAngle": 6.283185307179586})",
            R"({"type": "polyline", "vertices": [[0.0, 0.0], [1.0, 0.0]], "plinegen": true})",
            R"({"type": "polyline", "vertices": [[0.0, 0.0, 0.5], [1.0, 0.0, 0.0]], "closed": true})",
            R"({"type": "spline", "fitPoints": [[0.0, 0.0], [1.0, 2.0]], "degree": 2, "fitTolerance": 0.1, "startTangent": [1.0, 0.0], "endTangent": [0.0, 1.0]})",
            R"({"type": "spline", "degree": 1, "controlPoints": [[0.0, 0.0], [1.0, 2.0]], "knots": [0.0, 0.0, 1.0, 1.0], "weights": [1.0, 2.0], "closed": true, "periodic": true})",
            R"({"type": "hatch", "solid": true, "loops": [{"vertices": [[0.0, 0.0], [1.0, 0.0], [1.0, 1.0]]}, {"edges": []}]})",
            R"({"type": "hatch", "loops": [{"edges": [{"type": "line", "start": [0.0, 0.0], "end": [1.0, 0.0]}, {"type": "arc", "center": [0.0, 0.0], "radius": 1.0, "startAngle": 0.0, "endAngle": 1.5, "clockwise": true}, {"type": "ellipse", "center": [0.0, 0.0], "majorAxis": [1.0, 0.0], "radiusRatio": 0.5, "startAngle": 0.0, "endAngle": 1.0}, {"type": "spline", "degree": 1, "controlPoints": [[0.0, 0.0], [1.0, 2.0]], "knots": [0.0, 0.0, 1.0, 1.0]}]}], "pattern": [{"angle": 0.5, "base": [0.0, 1.0], "offset": [0.0, 2.0], "dashes": [1.0, -1.0]}], "hatchLines": [[0.0, 1.0, 2.0, 3.0]]})",
            R"({"type": "mpolygon", "loops": [{"vertices": [[0.0, 0.0, 1.0], [1.0, 0.0, 0.0]]}], "fillColor": 5})",
            R"({"type": "text", "position": [0.0, 1.0], "height": 2.0, "text": "a\"ä", "rotation": 0.5, "style": "S", "horizontalMode": 1, "verticalMode": 2, "alignmentPoint": [3.0, 4.0]})",
            R"({"type": "attributeDefinition", "position": [0.0, 1.0], "height": 2.0, "text": "a", "style": "", "tag": "T", "prompt": "P"})",
            R"({"type": "mtext", "location": [0.0, 1.0], "textHeight": 2.0, "contents": "a", "rotation": 0.5, "style": "STANDARD", "actualWidth": 3.0, "actualHeight": 4.0, "attachment": 5})",
            R"({"type": "insert", "hidden": true, "block": "C", "position": [1.0, 2.0], "scale": [2.0, -1.0], "rotation": 0.5, "mirrored": true, "columns": 2, "rows": 3, "columnSpacing": 4.0, "rowSpacing": 5.0, "attributes": [{"layer": "A", "position": [0.0, 0.0], "height": 1.0, "text": "a", "style": "STANDARD"}, {"hidden": true, "position": [0.0, 1.0], "height": 1.0, "text": "b", "style": ""}]})",
            R"({"type": "insert", "block": "C"})",
            R"({"type": "other", "class": "RAY"})",
        }) {
        EXPECT_EQ(EntitiesFrom(entity), entity);
    }
}

TEST(DrawingWriter, TablesUnitsAndDrawOrderAreWritten) {
    const std::string text = R"({
  "format": "styleconversion/drawing",
  "version": 1,
  "insunits": 6,
  "layers": [
    {
      "name": "A",
      "color": "ByLayer",
      "lineWeight": 13
    },
    {
      "name": "OFF",
      "color": 7,
      "off": true
    },
    {
      "name": "FROZEN",
      "color": 7,
      "frozen": true
    }
  ],
  "linetypes": [
    {
      "name": "L",
      "patternLength": 3.5,
      "dashes": [
        {"length": 1.0},
        {"length": -1.0, "shapeStyle": "S", "shapeNumber": 7, "text": "x", "offset": [1.0, 2.0], "scale": 2.0, "rotation": 0.5}
      ]
    }
  ],
  "textStyles": [
    {
      "name": "S",
      "fileName": "f",
      "bigFontFileName": "g",
      "typeface": "h",
      "bold": true,
      "italic": true,
      "isShapeFile": true,
      "isVertical": true,
      "obliquingAngle": 0.1,
      "textSize": 2.0,
      "xScale": 0.5,
      "flagBits": 2
    }
  ],
  "blocks": [
    {
      "name": "B",
      "layout": true,
      "anonymous": true,
      "units": 4,
      "basePoint": [1.0, 2.0, 3.0],
      "entities": [
        {"id": "0", "type": "point", "position": [0.0, 0.0]},
        {"id": "1", "type": "point", "position": [1.0, 0.0]}
      ],
      "drawOrder": ["1", "0"]
    },
    {
      "name": "EMPTY",
      "entities": []
    }
  ]
}
)";
    EXPECT_EQ(WrittenFrom(text), text);
}

TEST(DrawingWriter, ASplineEdgeThatIsNoCurveIsNoneAgain) {
    const std::string edge = R"({"type": "hatch", "solid": true, "loops": [{"edges": [{"type": "spline", )";
    EXPECT_EQ(EntitiesFrom(edge + R"("fitPoints": []}]}]})"),
              edge + R"("degree": 0, "controlPoints": [], "knots": []}]}]})");
}

TEST(DrawingWriter, NothingIsWrittenBehindARefusal) {
    drawing::Database drawing;
    for (int i = 0; i < 10000; ++i) {
        drawing.AddLayer(L"layer" + std::to_wstring(i), OxCmColor());
    }
    int calls = 0;
    EXPECT_FALSE(documents::WriteDrawing(drawing, [&](std::string_view) { return ++calls < 2; }));
    EXPECT_EQ(calls, 2);
}

} // namespace
