// A drawing document and a pattern file with some of everything.
#pragma once

#include <string>

namespace faults {

inline std::string SmallDrawing() {
    return R"({"format": "styleconversion/drawing", "version": 1, "insunits": 4,
  "layers": [{"name": "0", "color": 3}, {"name": "a layer with a name that is long", "lineWeight": 25}],
  "linetypes": [{"name": "D", "dashes": [{"length": 1}, {"length": -0.5, "text": "x", "shapeStyle": "S"}]}],
  "textStyles": [{"name": "S", "fileName": "a-file-with-a-long-name.shx", "typeface": "Face"}],
  "blocks": [{"name": "B", "entities": [
    {"type": "line", "start": [0, 0], "end": [4, 3], "linetype": "D", "id": "a"},
    {"type": "polyline", "vertices": [[0, 0], [1, 0, 1], [1, 1]]},
    {"type": "hatch", "loops": [{"vertices": [[0, 0], [1, 0], [1, 1]]}],
     "pattern": [{"angle": 0, "base": [0, 0], "offset": [0, 0.25], "dashes": []}]},
    {"type": "spline", "fitPoints": [[0, 0], [1, 2], [3, 1]]},
    {"type": "mtext", "location": [0, 0], "textHeight": 1, "contents": "a text that is long enough"}],
    "drawOrder": ["a"]}]})";
}

inline std::string SmallPatterns() {
    return "*ONE, the first pattern\n0, 0,0, 0,.25, 1,-.5\n45, 0,0, 0,.5\n"
           "*A PATTERN WITH A NAME THAT IS LONG, and a description that is long as well\n"
           "0,0,0,.25,1,.5,-.5\n45,0,0,1,1,4,-4\n";
}

} // namespace faults
