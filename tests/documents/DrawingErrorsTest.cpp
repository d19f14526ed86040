// Documents that are refused, and the messages: the path of the value, what was expected and what was found.
#include "tests/documents/DrawingDocuments.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

struct Refusal {
    std::string document;
    std::string message;
};

void ExpectRefused(const std::vector<Refusal>& refusals) {
    for (const Refusal& refusal : refusals) {
        EXPECT_EQ(FaultOf(refusal.document), refusal.message) << refusal.document;
    }
}

TEST(DrawingFaults, AWrongDocumentIsRefused) {
    ExpectRefused({
        {"[]", "expected an object, found an array"},
        {"7", "expected an object, found a number"},
        {"{}", "format: expected \"styleconversion/drawing\", found nothing"},
        {R"({"format": "styleconversion/drawing"})", "version: expected the number 1, found nothing"},
        {R"({"format": "styleconversion/symbols", "version": 1})",
         R"(format: expected "styleconversion/drawing", found "styleconversion/symbols")"},
        {R"({"format": 5})", "format: expected \"styleconversion/drawing\", found a number"},
        {R"({"version": 2})", "version: expected the number 1, found 2"},
    });
}

TEST(DrawingFaults, AnUnknownKeyIsRefusedAtEveryLevel) {
    ExpectRefused({
        {Document(R"("layer": [])"), "layer: unknown key"},
        {Document(R"("layers": [{"name": "A", "colour": 7}])"), "layers[0].colour: unknown key"},
        {Document(R"("linetypes": [{"name": "A", "dashes": [{"length": 1}, {"lenght": 1}]}])"),
         "linetypes[0].dashes[1].lenght: unknown key"},
        {Document(R"("textStyles": [{"name": "A", "font": "x"}])"), "textStyles[0].font: unknown key"},
        {Document(R"("blocks": [{"name": "A", "Entities": []}])"), "blocks[0].Entities: unknown key"},
        {EntityDocument(R"({"type": "line", "begin": [0, 0]})"), "blocks[0].entities[0].begin: unknown key"},
        {EntityDocument(R"({"type": "hatch", "loops": [{"verts": []}]})"),
         "blocks[0].entities[0].loops[0].verts: unknown key"},
        {EntityDocument(R"({"type": "hatch", "loops": [{"edges": [{"type": "line", "from": [0, 0]}]}]})"),
         "blocks[0].entities[0].loops[0].edges[0].from: unknown key"},
        {EntityDocument(R"({"type": "hatch", "loops": [], "pattern": [{"spacing": 1}]})"),
         "blocks[0].entities[0].pattern[0].spacing: unknown key"},
    });
}

TEST(DrawingFaults, AKeyOfAnotherTypeIsRefused) {
    ExpectRefused({
        {EntityDocument(R"({"type": "point", "position": [0, 0], "radius": 1})"),
         "blocks[0].entities[0].radius: an entity of type \"point\" has no such key"},
        {EntityDocument(R"({"radius": 1, "position": [0, 0], "type": "point"})"),
         "blocks[0].entities[0].radius: an entity of type \"point\" has no such key"},
        {EntityDocument(R"({"type": "circle", "center": [0, 0], "radius": 1, "normal": [0, 0, 1]})"),
         "blocks[0].entities[0].normal: an entity of type \"circle\" has no such key"},
        {EntityDocument(R"({"type": "text", "position": [0, 0], "height": 1, "text": "", "tag": "T"})"),
         "blocks[0].entities[0].tag: an entity of type \"text\" has no such key"},
        {EntityDocument(R"({"type": "mpolygon", "loops": [], "solid": true})"),
         "blocks[0].entities[0].solid: an entity of type \"mpolygon\" has no such key"},
        {EntityDocument(R"({"type": "hatch", "loops": [{"edges": [
             {"type": "line", "start": [0, 0], "end": [1, 0], "clockwise": true}]}]})"),
         "blocks[0].entities[0].loops[0].edges[0].clockwise: an edge of type \"line\" has no such key"},
        {EntityDocument(R"({"type": "mpolygon", "loops": [{"vertices": []}, {"edges": []}]})"),
         "blocks[0].entities[0].loops[1].edges: a loop of a multi-polygon has no edges"},
    });
}

TEST(DrawingFaults, AValueOfTheWrongTypeIsRefused) {
    ExpectRefused({
        {Document(R"("insunits": "mm")"),
         "insunits: expected a whole number from 0 to 2147483647, found a string"},
        {Document(R"("layers": {})"), "layers: expected an array, found an object"},
        {Document(R"("layers": [[]])"), "layers[0]: expected an object, found an array"},
        {Document(R"("layers": [{"name": 5}])"), "layers[0].name: expected a string, found a number"},
        {Document(R"("layers": [{"name": null}])"), "layers[0].name: expected a string, found null"},
        {Document(R"("blocks": [{"name": "A", "layout": 0, "entities": []}])"),
         "blocks[0].layout: expected true or false, found a number"},
        {Document(R"("blocks": [{"name": "A", "drawOrder": "a", "entities": []}])"),
         "blocks[0].drawOrder: expected an array of strings, found a string"},
        {Document(R"("blocks": [{"name": "A", "drawOrder": [1], "entities": []}])"),
         "blocks[0].drawOrder[0]: expected a string, found a number"},
        {Document(R"("blocks": [{"name": "A", "entities": []}, {"name": "B", "entities": []},
                     {"name": "C", "entities": [{"type": "circle", "center": [0, 0], "radius": "1"}]}])"),
         "blocks[2].entities[0].radius: expected a number, found a string"},
        {EntityDocument(R"({"type": "line", "start": [0, true]})"),
         "blocks[0].entities[0].start[1]: expected a number, found true"},
        {EntityDocument(R"({"type": "line", "start": {"x": 0}})"),
         "blocks[0].entities[0].start: expected a point [x, y] or [x, y, z], found an object"},
        {EntityDocument(R"({"type": "polyline", "vertices": [[0, 0], 5]})"),
         "blocks[0].entities[0].vertices[1]: expected a vertex [x, y] or [x, y, bulge], found a number"},
        {EntityDocument(R"({"type": "spline", "knots": [0, "1"]})"),
         "blocks[0].entities[0].knots[1]: expected a number, found a string"},
    });
}

TEST(DrawingFaults, AListOfTheWrongLengthIsRefused) {
    ExpectRefused({
        {EntityDocument(R"({"type": "line", "start": [0]})"),
         "blocks[0].entities[0].start: expected a point [x, y] or [x, y, z], found 1 number"},
        {EntityDocument(R"({"type": "line", "start": [1, 2, 3, 4]})"),
         "blocks[0].entities[0].start: expected a point [x, y] or [x, y, z], found 4 numbers"},
        {EntityDocument(R"({"type": "line", "start": []})"),
         "blocks[0].entities[0].start: expected a point [x, y] or [x, y, z], found 0 numbers"},
        {EntityDocument(R"({"type": "polyline", "vertices": [[0, 0], [1, 1, 1, 1]]})"),
         "blocks[0].entities[0].vertices[1]: expected a vertex [x, y] or [x, y, bulge], found 4 numbers"},
        {EntityDocument(R"({"type": "hatch", "loops": [], "hatchLines": [[0, 0, 1, 0], [0, 0, 1]]})"),
         "blocks[0].entities[0].hatchLines[1]: expected a line [x0, y0, x1, y1], found 3 numbers"},
        {EntityDocument(R"({"type": "hatch", "loops": [], "hatchLines": [[0, 0, 1, 0, 5]]})"),
         "blocks[0].entities[0].hatchLines[0]: expected a line [x0, y0, x1, y1], found 5 numbers"},
        {Document(
             R"("linetypes": [{"name": "A", "dashes": [{"length": 1, "shapeStyle": "S", "offset": [1, 2, 3]}]}])"),
         "linetypes[0].dashes[0].offset: expected an offset [x, y], found 3 numbers"},
    });
}

TEST(DrawingFaults, AMissingKeyIsRefused) {
    ExpectRefused({
        {Document(R"("layers": [{"color": 1}])"), "layers[0].name: expected a string, found nothing"},
        {Document(R"("linetypes": [{"name": "A"}])"),
         "linetypes[0].dashes: expected an array, found nothing"},
        {Document(R"("linetypes": [{"name": "A", "dashes": [{}]}])"),
         "linetypes[0].dashes[0].length: expected a number, found nothing"},
        {Document(R"("linetypes": [{"name": "A", "dashes": [{"length": 1, "text": "GAS"}]}])"),
         "linetypes[0].dashes[0].shapeStyle: expected a string, found nothing"},
        {Document(R"("textStyles": [{"fileName": "a.shx"}])"),
         "textStyles[0].name: expected a string, found nothing"},
        {Document(R"("blocks": [{"name": "A"}])"), "blocks[0].entities: expected an array, found nothing"},
        {Document(R"("blocks": [{"entities": []}])"), "blocks[0].name: expected a string, found nothing"},
        {EntityDocument("{}"), "blocks[0].entities[0].type: expected a string, found nothing"},
        {EntityDocument(R"({"type": "line", "end": [1, 1]})"),
         "blocks[0].entities[0].start: expected a point [x, y] or [x, y, z], found nothing"},
        {EntityDocument(R"({"type": "arc", "center": [0, 0], "radius": 1, "startAngle": 0})"),
         "blocks[0].entities[0].endAngle: expected a number, found nothing"},
        {EntityDocument(R"({"type": "polyline"})"),
         "blocks[0].entities[0].vertices: expected an array, found nothing"},
        {EntityDocument(R"({"type": "spline"})"),
         R"(blocks[0].entities[0]: expected "fitPoints" or "controlPoints", found neither)"},
        {EntityDocument(R"({"type": "spline", "controlPoints": [], "knots": []})"),
         "blocks[0].entities[0].degree: expected a whole number of 32 bits, found nothing"},
        {EntityDocument(R"({"type": "spline", "fitPoints": [], "endTangent": [1, 0]})"),
         "blocks[0].entities[0].startTangent: expected a point [x, y] or [x, y, z], found nothing"},
        {EntityDocument(R"({"type": "hatch"})"),
         "blocks[0].entities[0].loops: expected an array, found nothing"},
        {EntityDocument(R"({"type": "hatch", "loops": [{}]})"),
         R"(blocks[0].entities[0].loops[0]: expected "vertices" or "edges", found neither)"},
        {EntityDocument(
             R"({"type": "hatch", "loops": [], "pattern": [{"angle": 0, "base": [0, 0], "dashes": []}]})"),
         "blocks[0].entities[0].pattern[0].offset: expected a vector [x, y], found nothing"},
        {EntityDocument(
             R"({"type": "attributeDefinition", "position": [0, 0], "height": 1, "text": "", "tag": "T"})"),
         "blocks[0].entities[0].prompt: expected a string, found nothing"},
        {EntityDocument(R"({"type": "insert"})"),
         "blocks[0].entities[0].block: expected a string, found nothing"},
        {EntityDocument(R"({"type": "other"})"),
         "blocks[0].entities[0].class: expected a string, found nothing"},
    });
}

TEST(DrawingFaults, KeysThatExcludeEachOtherAreRefused) {
    ExpectRefused({
        {EntityDocument(R"({"type": "spline", "fitPoints": [], "knots": []})"),
         "blocks[0].entities[0].knots: this key cannot be given beside \"fitPoints\""},
        {EntityDocument(
             R"({"type": "spline", "degree": 3, "controlPoints": [], "knots": [], "fitTolerance": 0})"),
         "blocks[0].entities[0].fitTolerance: this key cannot be given beside \"controlPoints\""},
        {EntityDocument(R"({"type": "hatch", "loops": [{"vertices": [], "edges": []}]})"),
         R"(blocks[0].entities[0].loops[0]: expected either "vertices" or "edges", found both)"},
    });
}

TEST(DrawingFaults, AKeyGivenTwiceIsRefused) {
    ExpectRefused({
        {Document(R"("insunits": 1, "insunits": 1)"), "insunits: the key is given twice"},
        {EntityDocument(R"({"type": "point", "position": [0, 0], "position": [0, 0]})"),
         "blocks[0].entities[0].position: the key is given twice"},
    });
}

TEST(DrawingFaults, ANameUsedTwiceIsRefusedWhateverItsCase) {
    ExpectRefused({
        {Document(R"("layers": [{"name": "Roads"}, {"name": "ROADS"}])"),
         "layers[1].name: expected a name that no other layer has, found \"ROADS\""},
        {Document(R"("linetypes": [{"name": "a", "dashes": []}, {"name": "A", "dashes": []}])"),
         "linetypes[1].name: expected a name that no other linetype has, found \"A\""},
        {Document(R"("textStyles": [{"name": "a"}, {"name": "a"}])"),
         "textStyles[1].name: expected a name that no other text style has, found \"a\""},
        {Document(R"("blocks": [{"name": "a", "entities": []}, {"entities": [], "name": "A"}])"),
         "blocks[1].name: expected a name that no other block has, found \"A\""},
        {Document(R"("blocks": [{"name": "a", "entities": [{"type": "point", "position": [0, 0], "id": "p"},
                     {"type": "point", "position": [0, 0], "id": "p"}]}])"),
         "blocks[0].entities[1].id: expected an id that no other entity of the block has, found \"p\""},
    });
    // Each table has its own names, and ids are those of one block.
    EXPECT_EQ(FaultOf(Document(R"("layers": [{"name": "A"}], "textStyles": [{"name": "A"}],
                                  "linetypes": [{"name": "A", "dashes": []}],
                                  "blocks": [{"name": "A", "entities": [{"type": "point", "position": [0, 0], "id": "p"}]},
                                  {"name": "B", "entities": [{"type": "point", "position": [0, 0], "id": "p"}]}])")),
              "read");
}

TEST(DrawingFaults, ADrawOrderThatNamesNoEntityOfTheBlockIsRefused) {
    ExpectRefused({
        {Document(R"("blocks": [{"name": "A", "entities": [{"type": "point", "position": [0, 0], "id": "a"}],
                     "drawOrder": ["a", "b"]}])"),
         "blocks[0].drawOrder[1]: expected the id of an entity of the block, found \"b\""},
        {Document(R"("blocks": [{"name": "A", "entities": [{"type": "point", "position": [0, 0], "id": "a"}]},
                     {"name": "B", "entities": [], "drawOrder": ["a"]}])"),
         "blocks[1].drawOrder[0]: expected the id of an entity of the block, found \"a\""},
    });
}

TEST(DrawingFaults, ANumberThatIsNotFiniteIsRefused) {
    ExpectRefused({
        {EntityDocument(R"({"type": "circle", "center": [0, 0], "radius": 1e999})"),
         "blocks[0].entities[0].radius: expected a number that is finite, found 1e999"},
        {EntityDocument(R"({"type": "circle", "center": [0, -1e400]})"),
         "blocks[0].entities[0].center[1]: expected a number that is finite, found -1e400"},
        {Document(R"("insunits": 1e999)"), "insunits: expected a number that is finite, found 1e999"},
    });
}

TEST(DrawingFaults, AValueOutOfItsRangeIsRefused) {
    ExpectRefused({
        {Document(R"("insunits": 2147483648)"),
         "insunits: expected a whole number from 0 to 2147483647, found 2147483648"},
        {Document(R"("insunits": -1)"), "insunits: expected a whole number from 0 to 2147483647, found -1"},
        {Document(R"("insunits": 1.5)"), "insunits: expected a whole number from 0 to 2147483647, found 1.5"},
        {Document(R"("blocks": [{"name": "A", "units": 2147483648, "entities": []}])"),
         "blocks[0].units: expected a whole number from 0 to 2147483647, found 2147483648"},
        {Document(R"("layers": [{"name": "A", "lineWeight": 2147483648}])"),
         "layers[0].lineWeight: expected a whole number of 32 bits, found 2147483648"},
        {Document(R"("layers": [{"name": "A", "lineWeight": 18446744073709551615}])"),
         "layers[0].lineWeight: expected a whole number of 32 bits, found 18446744073709551615"},
        {EntityDocument(R"({"type": "blob"})"),
         "blocks[0].entities[0].type: expected the type of an entity, found \"blob\""},
        {EntityDocument(R"({"type": "hatch", "loops": [{"edges": [{"type": "polyline"}]}]})"),
         "blocks[0].entities[0].loops[0].edges[0].type: expected the type of an edge, found \"polyline\""},
    });
}

TEST(DrawingFaults, AColorOfAnotherFormIsRefused) {
    const std::string expected = "layers[0].color: expected a color (\"ByLayer\", \"ByBlock\", an index from "
                                 "1 to 255 or \"#rrggbb\"), found ";
    const auto layer = [](const std::string& color) {
        return Document(R"("layers": [{"name": "A", "color": )" + color + "}]");
    };
    ExpectRefused({
        {layer("0"), expected + "0"},
        {layer("256"), expected + "256"},
        {layer("1.5"), expected + "1.5"},
        {layer("-1"), expected + "-1"},
        {layer("null"), expected + "null"},
        {layer("\"bylayer\""), expected + "\"bylayer\""},
        {layer("\"#12345\""), expected + "\"#12345\""},
        {layer("\"#1234567\""), expected + "\"#1234567\""},
        {layer("\"#12345g\""), expected + "\"#12345g\""},
        {layer("\"0x12345\""), expected + "\"0x12345\""},
        {layer("[255, 0, 0]"), expected + "an array"},
    });
}

TEST(DrawingFaults, ATextWithTheCharacterZeroIsRefused) {
    EXPECT_EQ(FaultOf(Document(R"("layers": [{"name": "A\u0000B"}])")),
              "layers[0].name: expected a string without the character U+0000, found \"A?B\"");
}

TEST(DrawingFaults, TextThatIsNotJsonIsRefusedWithItsPlace) {
    ExpectRefused({
        {"", "expected JSON, found an error at line 1, column 1: syntax error while parsing value - "
             "unexpected end "
             "of input; expected '[', '{', or a literal"},
        {R"({"format": nothing})", "format: expected JSON, found an error at line 1, column 13: syntax error "
                                   "while parsing value - invalid "
                                   "literal; last read: '\"format\": no'"},
    });
    EXPECT_EQ(FaultOf(R"({"blocks": [{"entities": [{"start": [0, 1)"),
              "blocks[0].entities[0].start[1]: expected JSON, found an error at line 1, column 42: syntax "
              "error while "
              "parsing array - unexpected end of input; expected ']'");
    EXPECT_EQ(FaultOf(Document("") + "x").substr(0, 22), "expected JSON, found a");
    EXPECT_EQ(FaultOf(Document("\"layers\": [{\"name\": \"\xff\"}]")).substr(0, 36),
              "layers[0].name: expected JSON, found");
    EXPECT_EQ(FaultOf(Document(R"("insunits": NaN)")).substr(0, 30), "insunits: expected JSON, found");
}

TEST(DrawingFaults, NoTextOfTheFileMovesTheCursorOfATerminal) {
    // Behind U+009B stands what a terminal takes as a command.
    EXPECT_EQ(FaultOf(Document("\"layers\": [{\"name\": \"0\", \"color\": \"\xc2\x9b\x32J\x7f\"}]")),
              "layers[0].color: expected a color (\"ByLayer\", \"ByBlock\", an index from 1 to 255 or "
              "\"#rrggbb\"), found \"?2J?\"");
    EXPECT_EQ(FaultOf("{\"\xc2\x9b\x32J\": 1}"), "?2J: unknown key");
    EXPECT_EQ(FaultOf("{\"a\xc2\x9b\x32J\x7f\x01"),
              "expected JSON, found an error at line 1, column 9: syntax error while parsing object key - "
              "invalid string: control character U+0001 (SOH) must be escaped to \\u0001; last read: "
              "'\"a?2J?<U+0001>'; expected string literal");
    EXPECT_EQ(FaultOf("{\"a\x9b"),
              "expected JSON, found an error at line 1, column 4: syntax error while parsing object key - "
              "invalid string: ill-formed UTF-8 byte; last read: '\"a\xef\xbf\xbd'; expected string literal");
}

TEST(DrawingFaults, OfALongTextThatIsNoJsonTheEndIsShown) {
    // 60 bytes: half of the first "ä" would be among them.
    const std::string end = "\xc3\xa4" + std::string(50, 'b') + "<U+0001>";
    EXPECT_EQ(
        FaultOf("{\"" + std::string(1000000, 'a') + "\xc3\xa4" + std::string(51, 'b') + "\x01"),
        "expected JSON, found an error at line 1, column 1000056: syntax error while parsing object key - "
        "invalid string: control character U+0001 (SOH) must be escaped to \\u0001; last read: '..." +
            std::string(51, 'b') + "<U+0001>'; expected string literal");
    EXPECT_EQ(
        FaultOf("{\"" + std::string(1000000, 'a') + end.substr(0, 52) + "\x01"),
        "expected JSON, found an error at line 1, column 1000055: syntax error while parsing object key - "
        "invalid string: control character U+0001 (SOH) must be escaped to \\u0001; last read: '..." +
            end + "'; expected string literal");
    EXPECT_EQ(FaultOf(Document("\"insunits\": 1" + std::string(1000, '0'))),
              "insunits: expected a number that is finite, found ..." + std::string(60, '0'));
}

TEST(DrawingFaults, ALongTextIsShownShortenedBeforeAWholeCharacter) {
    const std::string name = std::string(59, 'a') + "\xc3\xa4" + std::string(50, 'b');
    EXPECT_EQ(FaultOf(Document(R"("layers": [{"name": "A", "color": ")" + name + R"("}])")),
              "layers[0].color: expected a color (\"ByLayer\", \"ByBlock\", an index from 1 to 255 or "
              "\"#rrggbb\"), "
              "found \"" +
                  std::string(59, 'a') + "...\"");
}

TEST(DrawingFaults, ANestingThatNothingExpectsIsRefusedAtOnce) {
    EXPECT_EQ(FaultOf(std::string(1000000, '[')), "expected an object, found an array");
    EXPECT_EQ(FaultOf(R"({"layers": )" + std::string(1000000, '[')),
              "layers[0]: expected an object, found an array");
}

} // namespace
