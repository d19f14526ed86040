// Inserts, their attributes, and texts of DXF files with all that they can say.
#include "tests/exchange/DxfFiles.h"

#include <gtest/gtest.h>
#include <numbers>

namespace {

std::string JsonOf(double number) {
    return nlohmann::json(number).dump();
}

constexpr double kDegree = std::numbers::pi / 180;

void ExpectDocument(const DxfWriter& entities, const std::string& json) {
    const std::string expected = DocumentOfJson(BlockOfJson(json));
    ASSERT_NE(expected.find("\"type\""), std::string::npos) << expected;
    EXPECT_EQ(DocumentOfDxf(FileOf(entities).Ascii()), expected);
    EXPECT_EQ(DocumentOfDxf(FileOf(entities).Binary()), expected);
}

TEST(DxfInserts, HaveTheirPlaceScaleRowsAndColumns) {
    DxfWriter insert;
    insert.Text(0, "INSERT").Text(8, "0").Text(2, "OTHER").Point(10, 1, 2).Number(41, -2).Number(42, 0.5);
    insert.Number(50, 30).Integer(70, 3).Integer(71, 2).Number(44, 5).Number(45, 7).Number(230, -1);
    ExpectDocument(insert, R"({"type": "insert", "block": "OTHER", "position": [1, 2], "scale": [-2, 0.5],
                               "rotation": )" +
                               JsonOf(30 * kDegree) +
                               R"(, "mirrored": true, "columns": 3, "rows": 2, "columnSpacing": 5,
                               "rowSpacing": 7})");
    ExpectDocument(DxfWriter().Text(0, "INSERT").Text(8, "0").Text(2, "OTHER").Point(10, 0, 0),
                   R"({"type": "insert", "block": "OTHER", "position": [0, 0]})");
}

TEST(DxfInserts, KeepTheAttributesUpToTheirEnd) {
    const auto attribute = [](const std::string& text) {
        return DxfWriter().Text(0, "ATTRIB").Text(8, "0").Point(10, 1, 1).Number(40, 2).Text(1, text);
    };
    DxfWriter entities;
    entities.Text(0, "INSERT").Text(8, "0").Integer(66, 1).Text(2, "OTHER").Point(10, 0, 0);
    entities.Append(attribute("shown").Integer(62, 3).Integer(74, 2).Point(11, 4, 5));
    entities.Append(attribute("hidden").Integer(70, 1)).Text(0, "SEQEND");
    entities.Append(attribute("nobody's"));
    ExpectDocument(entities, R"({"type": "insert", "block": "OTHER", "position": [0, 0], "attributes": [
        {"position": [1, 1], "height": 2, "text": "shown", "color": 3, "verticalMode": 2,
         "alignmentPoint": [4, 5], "style": "STANDARD"},
        {"position": [1, 1], "height": 2, "text": "hidden", "hidden": true, "style": "STANDARD"}]})");
}

TEST(DxfInserts, TextsHaveAnAlignmentPointWhereTheyAreAligned) {
    const auto text = [] {
        return DxfWriter().Text(0, "TEXT").Text(8, "0").Point(10, 1, 2).Number(40, 3).Text(1, "t").Text(7,
                                                                                                        "S");
    };
    const std::string json = R"({"type": "text", "position": [1, 2], "height": 3, "text": "t", "style": "S")";
    ExpectDocument(text().Integer(72, 1).Integer(73, 2).Point(11, 4, 5),
                   json + R"(, "horizontalMode": 1, "verticalMode": 2, "alignmentPoint": [4, 5]})");
    ExpectDocument(text().Integer(73, 3).Point(11, 4, 5),
                   json + R"(, "verticalMode": 3, "alignmentPoint": [4, 5]})");
    ExpectDocument(text().Point(11, 4, 5), json + "}"); // at the start of its baseline there is no other
}

// An angle, or a direction: the last one counts.
TEST(DxfInserts, ParagraphTextsTurnByTheLastOfAngleAndDirection) {
    const auto text = [] {
        return DxfWriter()
            .Text(0, "MTEXT")
            .Text(8, "0")
            .Point(10, 1, 2)
            .Number(40, 3)
            .Text(1, "t")
            .Integer(71, 5);
    };
    const auto json = [](double rotation) {
        return R"({"type": "mtext", "location": [1, 2], "textHeight": 3, "contents": "t", "attachment": 5,
                   "style": "STANDARD", "rotation": )" +
               JsonOf(rotation) + "}";
    };
    ExpectDocument(text().Number(50, 30), json(30 * kDegree));
    ExpectDocument(text().Point(11, 0, 2), json(std::atan2(2.0, 0.0)));
    ExpectDocument(text().Number(50, 30).Point(11, 0, 2), json(std::atan2(2.0, 0.0)));
    ExpectDocument(text().Point(11, 0, 2).Number(50, 30), json(30 * kDegree));
}

// The last piece is 1, those before it 3, however many and long they are.
TEST(DxfInserts, LongParagraphTextsAreJoined) {
    const std::string piece(100000, 'x');
    DxfWriter text;
    text.Text(0, "MTEXT").Text(8, "0").Point(10, 0, 0).Number(40, 1);
    text.Text(3, piece + "a").Text(3, piece + "b").Text(1, piece + "c");
    ExpectDocument(text, R"({"type": "mtext", "location": [0, 0], "textHeight": 1, "style": "STANDARD",
                             "contents": ")" +
                             piece + "a" + piece + "b" + piece + "c\"}");
}

} // namespace
