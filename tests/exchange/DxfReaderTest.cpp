#include "tests/exchange/DxfFiles.h"

#include <gtest/gtest.h>
#include <numbers>

namespace {

std::string Json(double number) {
    return nlohmann::json(number).dump();
}

// The messages for what was left out or read otherwise, without the file.
std::vector<std::string> NotesOf(const std::string& bytes) {
    exchange::DxfNotes notes;
    SymbolsOfDxf(bytes, &notes);
    std::vector<std::string> all;
    for (const diagnostics::Diagnostic& note : notes.All()) {
        if (note.code == diagnostics::Code::kNoUnit) {
            continue; // none of these files has one
        }
        all.push_back(diagnostics::MessageOf(note));
    }
    return all;
}

struct Pair {
    DxfWriter dxf;
    std::string json;
    std::string drawn = "Path"; // what of it stands in the symbol
};

void ExpectSame(const Pair& pair) {
    const std::string expected = SymbolsOfJson(pair.json);
    EXPECT_NE(expected.find("\"type\": \"" + pair.drawn + "\""), std::string::npos) << expected;
    EXPECT_EQ(SymbolsOfDxf(FileOf(pair.dxf).Ascii()), expected);
}

TEST(DxfReader, PointsLinesAndCirclesAreThemselves) {
    ExpectSame({DxfWriter().Text(0, "LINE").Text(8, "0").Point(10, 1, 2).Point(11, 3, 4.5),
                R"({"type": "line", "start": [1, 2], "end": [3, 4.5]})"});
    ExpectSame({DxfWriter().Text(0, "POINT").Point(10, -1, 2), R"({"type": "point", "position": [-1, 2]})"});
    ExpectSame({DxfWriter().Text(0, "CIRCLE").Point(10, 3, 1).Number(40, 2),
                R"({"type": "circle", "center": [3, 1], "radius": 2})"});
}

TEST(DxfReader, MirroredCirclesAndArcsLieOnTheOtherSide) {
    ExpectSame({DxfWriter().Text(0, "CIRCLE").Point(10, 3, 1).Number(40, 2).Number(230, -1),
                R"({"type": "circle", "center": [-3, 1], "radius": 2})"});
    ExpectSame({DxfWriter().Text(0, "ARC").Point(10, 3, 1).Number(40, 2).Number(50, 0).Number(51, 90).Number(
                    230, -1),
                R"({"type": "arc", "center": [-3, 1], "radius": 2, "startAngle": 0, "endAngle": )" +
                    Json(90 * (std::numbers::pi / 180)) + R"(, "normal": [0, 0, -1]})"});
}

TEST(DxfReader, ArcsRunCounterClockwiseThroughZero) {
    ExpectSame({DxfWriter().Text(0, "ARC").Point(10, 0, 0).Number(40, 2).Number(50, 270).Number(51, 90),
                R"({"type": "arc", "center": [0, 0], "radius": 2, "startAngle": )" +
                    Json(270 * (std::numbers::pi / 180)) + R"(, "endAngle": )" +
                    Json(90 * (std::numbers::pi / 180) + 2 * std::numbers::pi) + "}"});
}

TEST(DxfReader, ArcsOfMoreThanATurnEndWhereTheirAngleLies) {
    ExpectSame({DxfWriter().Text(0, "ARC").Point(10, 0, 0).Number(40, 2).Number(50, 10).Number(51, 460),
                R"({"type": "arc", "center": [0, 0], "radius": 2, "startAngle": )" +
                    Json(10 * (std::numbers::pi / 180)) + R"(, "endAngle": )" +
                    Json(460 * (std::numbers::pi / 180) - 2 * std::numbers::pi) + "}"});
    ExpectSame({DxfWriter().Text(0, "ARC").Point(10, 0, 0).Number(40, 2).Number(50, 400).Number(51, 10),
                R"({"type": "arc", "center": [0, 0], "radius": 2, "startAngle": )" +
                    Json(400 * (std::numbers::pi / 180)) + R"(, "endAngle": )" +
                    Json(10 * (std::numbers::pi / 180) + 4 * std::numbers::pi) + "}"});
}

TEST(DxfReader, AnArcThroughZeroThatIsFullButForRoundingIsFull) {
    const double start = 0.00001 * (std::numbers::pi / 180);
    ExpectSame({DxfWriter().Text(0, "ARC").Point(10, 0, 0).Number(40, 2).Number(50, 0.00001).Number(51, 0),
                R"({"type": "arc", "center": [0, 0], "radius": 2, "startAngle": )" + Json(start) +
                    R"(, "endAngle": )" + Json(start + 2 * std::numbers::pi) + "}"});
}

TEST(DxfReader, AnEllipseThatIsFullButForRoundingIsFull) {
    ExpectSame({DxfWriter()
                    .Text(0, "ELLIPSE")
                    .Point(10, 1, 1)
                    .Point(11, 4, 0)
                    .Number(40, 0.5)
                    .Number(41, 0)
                    .Number(42, 6.283185),
                R"({"type": "ellipse", "center": [1, 1], "majorAxis": [4, 0], "radiusRatio": 0.5})"});
    // One in which more is missing is not.
    EXPECT_NE(
        SymbolsOfDxf(FileOf(DxfWriter()
                                .Text(0, "ELLIPSE")
                                .Point(10, 1, 1)
                                .Point(11, 4, 0)
                                .Number(40, 0.5)
                                .Number(42, 6.2831))
                         .Ascii()),
        SymbolsOfJson(R"({"type": "ellipse", "center": [1, 1], "majorAxis": [4, 0], "radiusRatio": 0.5})"));
}

TEST(DxfReader, AMirroredEllipseRunsTheOtherWay) {
    ExpectSame({DxfWriter()
                    .Text(0, "ELLIPSE")
                    .Point(10, 1, 1)
                    .Point(11, 4, 0)
                    .Number(40, 0.5)
                    .Number(41, 0.5)
                    .Number(42, 2)
                    .Number(230, -1),
                R"({"type": "ellipse", "center": [1, 1], "majorAxis": [4, 0], "radiusRatio": 0.5,
                    "startAngle": -2, "endAngle": -0.5})"});
}

TEST(DxfReader, PolylinesOfBothKindsAreThemselves) {
    const std::string json =
        R"({"type": "polyline", "vertices": [[0, 0, 0.5], [4, 0], [4, 3]], "closed": true})";
    ExpectSame({DxfWriter()
                    .Text(0, "LWPOLYLINE")
                    .Integer(90, 3)
                    .Integer(70, 1)
                    .Point(10, 0, 0)
                    .Number(42, 0.5)
                    .Point(10, 4, 0)
                    .Point(10, 4, 3),
                json});
    DxfWriter old;
    old.Text(0, "POLYLINE").Integer(66, 1).Point(10, 0, 0).Integer(70, 1);
    old.Text(0, "VERTEX").Point(10, 9, 9).Integer(70, 16); // of the frame of a curve
    old.Text(0, "VERTEX").Point(10, 0, 0).Number(42, 0.5);
    old.Text(0, "VERTEX").Point(10, 4, 0).Text(0, "VERTEX").Point(10, 4, 3).Text(0, "SEQEND");
    ExpectSame({old, json});
    ExpectSame({DxfWriter()
                    .Text(0, "LWPOLYLINE")
                    .Integer(70, 0)
                    .Point(10, 1, 0)
                    .Number(42, 0.5)
                    .Point(10, 4, 0)
                    .Number(230, -1),
                R"({"type": "polyline", "vertices": [[-1, 0, -0.5], [-4, 0]]})"});
}

TEST(DxfReader, SplinesHaveControlPointsOrFitPoints) {
    DxfWriter control;
    control.Text(0, "SPLINE").Integer(70, 8).Integer(71, 2).Integer(72, 6).Integer(73, 3).Integer(74, 0);
    for (const double knot : {0.0, 0.0, 0.0, 1.0, 1.0, 1.0}) {
        control.Number(40, knot);
    }
    control.Point(10, 0, 0).Point(10, 5, 10).Point(10, 10, 0);
    const std::string json = R"({"type": "spline", "degree": 2, "knots": [0, 0, 0, 1, 1, 1],
                                 "controlPoints": [[0, 0], [5, 10], [10, 0]]})";
    ExpectSame({control, json});
    // A helix goes on with points and numbers of its own.
    DxfWriter helix = control;
    helix.Point(10, 7, 7).Point(11, 8, 8).Number(40, 3).Number(41, 5);
    EXPECT_EQ(SymbolsOfDxf(FileOf(helix).Ascii()), SymbolsOfJson(json));
    ExpectSame({DxfWriter()
                    .Text(0, "SPLINE")
                    .Integer(71, 3)
                    .Integer(74, 3)
                    .Point(11, 0, 0)
                    .Point(11, 2, 3)
                    .Point(11, 5, 1),
                R"({"type": "spline", "fitPoints": [[0, 0], [2, 3], [5, 1]]})"});
}

DxfWriter HatchHead() {
    return DxfWriter()
        .Text(0, "HATCH")
        .Point(10, 0, 0)
        .Number(30, 0)
        .Text(2, "LINES")
        .Integer(70, 0)
        .Integer(71, 0);
}

DxfWriter HatchLines() {
    return DxfWriter()
        .Integer(75, 0)
        .Integer(76, 1)
        .Integer(78, 1)
        .Number(53, 0)
        .Number(43, 0)
        .Number(44, 0.5)
        .Number(45, 0)
        .Number(46, 1)
        .Integer(79, 0);
}

constexpr const char* kHatchLines =
    R"("pattern": [{"angle": 0, "base": [0, 0.5], "offset": [0, 1], "dashes": []}])";

DxfWriter LineEdge(double x, double y, double toX, double toY) {
    return DxfWriter().Integer(72, 1).Point(10, x, y).Point(11, toX, toY);
}

TEST(DxfReader, EdgesOfAHatchMayStandInAnyOrderAndDirection) {
    const auto edge = [](const std::string& from, const std::string& to) {
        return R"({"type": "line", "start": )" + from + R"(, "end": )" + to + "}";
    };
    const std::string square = edge("[0, 0]", "[4, 0]") + "," + edge("[4, 0]", "[4, 4]") + "," +
                               edge("[4, 4]", "[0, 4]") + "," + edge("[0, 4]", "[0, 0]");
    DxfWriter mixed = HatchHead();
    mixed.Integer(91, 1).Integer(92, 1).Integer(93, 4);
    mixed.Append(LineEdge(0, 0, 4, 0)).Append(LineEdge(4, 4, 0, 4)).Append(LineEdge(4, 4, 4, 0));
    mixed.Append(LineEdge(0, 4, 0, 0)).Integer(97, 0).Append(HatchLines());
    ExpectSame({mixed, R"({"type": "hatch", "loops": [{"edges": [)" + square + "]}], " + kHatchLines + "}"});
}

TEST(DxfReader, AClockwiseEdgeOfAHatchCountsItsAnglesClockwise) {
    DxfWriter hatch = HatchHead();
    hatch.Integer(91, 1).Integer(92, 1).Integer(93, 2).Integer(72, 2).Point(10, 0, 0).Number(40, 3).Number(50,
                                                                                                           0);
    hatch.Number(51, 180).Integer(73, 0).Append(LineEdge(-3, 0, 3, 0)).Integer(97, 0).Append(HatchLines());
    ExpectSame(
        {hatch, R"({"type": "hatch", "loops": [{"edges": [{"type": "arc", "center": [0, 0], "radius": 3,
        "startAngle": 0, "endAngle": 3.141592653589793, "clockwise": true},
        {"type": "line", "start": [-3, 0], "end": [3, 0]}]}], )" +
                    std::string(kHatchLines) + "}"});
}

TEST(DxfReader, AnglesOfEllipseEdgesAreTrueAngles) {
    // The direction of 45 degrees meets x²/16 + y²/4 = 1 at the parameter atan 2.
    DxfWriter hatch = HatchHead();
    hatch.Integer(91, 1).Integer(92, 1).Integer(93, 1).Integer(72, 3).Point(10, 0, 0).Point(11, 4, 0).Number(
        40, 0.5);
    hatch.Number(50, 0).Number(51, 45).Integer(73, 1).Integer(97, 0).Append(HatchLines());
    const double parameter =
        std::atan2(std::sin(45 * (std::numbers::pi / 180)), 0.5 * std::cos(45 * (std::numbers::pi / 180)));
    EXPECT_NEAR(parameter, std::atan(2.0), 1e-15);
    ExpectSame({hatch, R"({"type": "hatch", "loops": [{"edges": [{"type": "ellipse", "center": [0, 0],
        "majorAxis": [4, 0], "radiusRatio": 0.5, "startAngle": 0, "endAngle": )" +
                           Json(parameter) + "}]}], " + kHatchLines + "}"});
}

TEST(DxfReader, TextsHaveTheirPlaceAngleAndCharacters) {
    ExpectSame(
        {DxfWriter().Text(0, "TEXT").Point(10, 1, 2).Number(40, 2.5).Text(1, "a^Ib \\U+00e4").Number(50, 0),
         R"({"type": "text", "position": [1, 2], "height": 2.5, "text": "a\tb ä"})", "Text"});
    ExpectSame(
        {DxfWriter()
             .Text(0, "ATTDEF")
             .Point(10, 1, 2)
             .Number(40, 2.5)
             .Text(1, "v")
             .Text(2, "TAG")
             .Text(3, "prompt")
             .Integer(74, 2),
         R"({"type": "attributeDefinition", "position": [1, 2], "height": 2.5, "text": "v", "tag": "TAG",
                    "prompt": "prompt", "verticalMode": 2})",
         "Text"});
    ExpectSame({DxfWriter()
                    .Text(0, "MTEXT")
                    .Point(10, 1, 2)
                    .Number(40, 2)
                    .Text(3, "long ")
                    .Text(1, "text")
                    .Text(101, "more")
                    .Text(1, "of something else"),
                R"({"type": "mtext", "location": [1, 2], "textHeight": 2, "contents": "long text"})",
                "Text"});
}

TEST(DxfReader, TextsOfBinaryFilesAreUtf8WhateverBytesTheNumbersHave) {
    const auto file = [](const std::string& text) {
        // -0.1 has the bytes 9a 99 99 99 99 99 b9 bf, which are no UTF-8.
        return FileOf(DxfWriter().Text(0, "TEXT").Point(10, -0.1, 2).Number(40, 2).Text(1, text));
    };
    const std::string json =
        SymbolsOfJson(R"({"type": "text", "position": [-0.1, 2], "height": 2, "text": "stra\u00dfe"})");
    EXPECT_EQ(SymbolsOfDxf(file("stra\xc3\x9f"
                                "e")
                               .Binary()),
              json);
    EXPECT_EQ(SymbolsOfDxf(file("stra\xdf"
                                "e")
                               .Binary()),
              json);
    EXPECT_EQ(SymbolsOfDxf(file("stra\xc3\x9f"
                                "e")
                               .Ascii()),
              json);
}

TEST(DxfReader, ColorsAndWeightsAreThoseOfTheEntity) {
    const auto line = [] { return DxfWriter().Text(0, "LINE").Point(10, 0, 0).Point(11, 1, 0); };
    const std::string json = R"({"type": "line", "start": [0, 0], "end": [1, 0], )";
    ExpectSame({line().Integer(62, 3).Integer(370, 50), json + R"("color": 3, "lineWeight": 50})"});
    ExpectSame({line().Integer(62, 3).Integer(420, 0x102030), json + R"("color": "#102030"})"});
    ExpectSame({line().Integer(62, 0), json + R"("color": "ByBlock"})"});
}

TEST(DxfReader, DashesComeFromTheTableOfLinetypes) {
    DxfWriter tables;
    tables.Text(0, "TABLE").Text(2, "LTYPE").Text(0, "LTYPE").Text(2, "GAPS").Integer(73, 2).Number(40, 3);
    tables.Number(49, 2).Integer(74, 0).Number(49, -1).Integer(74, 0).Text(0, "ENDTAB");
    const DxfWriter line = DxfWriter().Text(0, "LINE").Text(6, "gaps").Point(10, 0, 0).Point(11, 10, 0);
    const std::string file = Section("TABLES", tables).Append(FileOf(line)).Ascii();
    EXPECT_EQ(SymbolsOfDxf(file),
              SymbolsOfJson(R"({"type": "line", "start": [0, 0], "end": [10, 0], "linetype": "GAPS"})",
                            R"("linetypes": [{"name": "GAPS", "patternLength": 3,
                                              "dashes": [{"length": 2}, {"length": -1}]}], )"));
    EXPECT_NE(SymbolsOfDxf(file), SymbolsOfDxf(FileOf(line).Ascii()));
}

TEST(DxfReader, UnitsAreThoseOfTheHeaderOrOfTheBlock) {
    const DxfWriter line = DxfWriter().Text(0, "LINE").Point(10, 0, 0).Point(11, 1, 0);
    DxfWriter header;
    header.Text(9, "$INSUNITS").Integer(70, 4);
    EXPECT_EQ(SymbolsOfDxf(Section("HEADER", header).Append(FileOf(line)).Ascii()),
              SymbolsOfJson(R"({"type": "line", "start": [0, 0], "end": [1, 0]})", R"("insunits": 4, )"));
}

TEST(DxfReader, TheDrawOrderIsThatOfTheTable) {
    DxfWriter tables;
    tables.Text(0, "TABLE").Text(2, "BLOCK_RECORD").Text(0, "BLOCK_RECORD").Text(5, "1F").Text(2, "B");
    tables.Text(0, "ENDTAB");
    DxfWriter lines;
    for (int i = 0; i < 3; ++i) {
        lines.Text(0, "LINE").Text(5, std::to_string(30 + i)).Point(10, i, 0).Point(11, i, 1);
    }
    DxfWriter block;
    block.Text(0, "BLOCK").Text(2, "B").Append(lines).Text(0, "ENDBLK");
    DxfWriter objects;
    objects.Text(0, "SORTENTSTABLE").Text(5, "99").Text(330, "1").Text(330, "1F");
    objects.Text(331, "30").Text(5, "32").Text(331, "32").Text(5, "30");
    const std::string file = Section("TABLES", tables)
                                 .Append(Section("BLOCKS", block))
                                 .Append(Section("OBJECTS", objects))
                                 .Text(0, "EOF")
                                 .Ascii();
    const auto line = [](int x) {
        const std::string at = std::to_string(x);
        return R"({"type": "line", "start": [)" + at + R"(, 0], "end": [)" + at + ", 1]}";
    };
    EXPECT_EQ(SymbolsOfDxf(file), SymbolsOfJson(line(2) + "," + line(1) + "," + line(0)));
}

TEST(DxfReader, GroupsOfOtherProgramsAndMarksAreSkipped) {
    ExpectSame({DxfWriter()
                    .Text(999, "a remark")
                    .Text(0, "LINE")
                    .Text(102, "{OTHER")
                    .Number(10, 7)
                    .Text(102, "}")
                    .Text(100, "mark")
                    .Point(10, 1, 2)
                    .Point(11, 3, 4),
                R"({"type": "line", "start": [1, 2], "end": [3, 4]})"});
}

TEST(DxfReader, EntitiesOfTheModelSpaceAreNoBlock) {
    const DxfWriter line = DxfWriter().Text(0, "LINE").Point(10, 0, 0).Point(11, 1, 0);
    diagnostics::Diagnostic fault;
    exchange::DxfNotes notes;
    const auto database = exchange::ReadDxf(Section("ENTITIES", line).Text(0, "EOF").Ascii(), fault, notes);
    ASSERT_NE(database, nullptr);
    BlockConverter converter(database.get());
    std::vector<std::wstring> names;
    converter.GetBlockNames(names);
    EXPECT_TRUE(names.empty());
    const std::unique_ptr<TylModel::SymbolDefinition> symbol(converter.Convert(L"*Model_Space"));
    EXPECT_NE(symbol, nullptr);
}

TEST(DxfReader, WhatDoesNoHarmIsReadAndNoted) {
    const DxfWriter line = DxfWriter().Text(0, "LINE").Text(8, "Roads").Point(10, 0, 0).Point(11, 1, 0);
    std::string file = FileOf(line).Ascii();
    EXPECT_EQ(NotesOf(file),
              (std::vector<std::string>{":17: note: the drawing has no layer Roads; it is added (block B)"}));
    EXPECT_TRUE(NotesOf(FileOf(DxfWriter()).Ascii() + "junk\n").empty());
    const std::string unended = Section("BLOCKS", DxfWriter()).Ascii();
    EXPECT_EQ(
        NotesOf(unended),
        (std::vector<std::string>{":5: warning: missing EOF at the end of the file; read to its last line"}));
    EXPECT_EQ(NotesOf(FileOf(DxfWriter()
                                 .Text(0, "CIRCLE")
                                 .Point(10, 0, 0)
                                 .Number(40, 1)
                                 .Number(210, 0)
                                 .Number(220, 0)
                                 .Number(230, 0))
                          .Ascii()),
              (std::vector<std::string>{
                  ":17: warning: the extrusion direction of CIRCLE is zero; read as upright (block B)"}));
}

TEST(DxfReader, EntitiesWithNumbersThatAreNoneAreLeftOut) {
    struct Row {
        DxfWriter entity;
        std::string found;
    };
    const auto line = [](const std::string& x) {
        return DxfWriter().Text(0, "LINE").Text(8, "0").Text(10, x).Number(20, 1).Point(11, 3, 4);
    };
    DxfWriter old;
    old.Text(0, "POLYLINE").Integer(70, 0).Text(0, "VERTEX").Point(10, 0, 0).Text(0, "VERTEX");
    old.Text(10, "x").Number(20, 1).Text(0, "SEQEND");
    const Row rows[] = {
        {line("1,5"), ":21: error: expected a number in group 10 of LINE, found \"1,5\""},
        {line(""), ":21: error: expected a number in group 10 of LINE, found \"\""},
        {line("1e999"), ":21: error: expected a number in group 10 of LINE, found \"1e999\""},
        {line("nan"), ":21: error: expected a number in group 10 of LINE, found \"nan\""},
        {DxfWriter().Text(0, "LWPOLYLINE").Point(10, 0, 0).Text(42, "?").Point(10, 1, 1),
         ":23: error: expected a number in group 42 of LWPOLYLINE, found \"?\""},
        {DxfWriter().Text(0, "SPLINE").Integer(73, -1).Point(10, 0, 0),
         ":19: error: expected a number in group 73 of SPLINE, found \"-1\""},
        {old, ":29: error: expected a number in group 10 of VERTEX, found \"x\""},
    };
    for (const Row& row : rows) {
        const std::string file = FileOf(row.entity).Ascii();
        EXPECT_EQ(NotesOf(file), (std::vector<std::string>{row.found + "; skipped (block B)"}));
        EXPECT_EQ(SymbolsOfDxf(file), SymbolsOfJson(""));
    }
    EXPECT_EQ(
        NotesOf(FileOf(line("a").Append(line("b")).Append(line("2"))).Ascii()),
        (std::vector<std::string>{":21: error: expected a number in group 10 of LINE, found \"a\"; skipped; "
                                  "the same in 1 more place (block B)"}));
}

TEST(DxfReader, WhatIsLessThanAPlaceIsReadAsIfItWereMissing) {
    const auto line = [] { return DxfWriter().Text(0, "LINE").Text(8, "0").Point(10, 0, 0).Point(11, 1, 0); };
    const std::string json = SymbolsOfJson(R"({"type": "line", "start": [0, 0], "end": [1, 0]})");
    const std::pair<int, std::string> rows[] = {
        {62, "300"}, {62, "red"}, {370, "1.5"}, {370, "212"}, {60, "-"}};
    for (const auto& [code, value] : rows) {
        const std::string file = FileOf(line().Text(code, value)).Ascii();
        EXPECT_EQ(NotesOf(file),
                  (std::vector<std::string>{":29: warning: expected a number in group " +
                                            std::to_string(code) + " of LINE, found \"" + value +
                                            "\"; read as if it were missing (block B)"}));
        EXPECT_EQ(SymbolsOfDxf(file), json);
    }
}

TEST(DxfReader, TablesWithNumbersThatAreNoneAreToldOf) {
    DxfWriter tables;
    tables.Text(0, "TABLE").Text(2, "LAYER").Text(0, "LAYER").Text(2, "L").Text(62, "x").Text(0, "ENDTAB");
    tables.Text(0, "TABLE").Text(2, "LTYPE").Text(0, "LTYPE").Text(2, "D").Text(49, "long").Text(0, "ENDTAB");
    EXPECT_EQ(
        NotesOf(Section("TABLES", tables).Append(FileOf(DxfWriter())).Ascii()),
        (std::vector<std::string>{
            ":13: warning: expected a number in group 62 of LAYER, found \"x\"; read as if it were missing",
            ":25: error: expected a number in group 49 of LTYPE, found \"long\"; skipped"}));
    DxfWriter header;
    header.Text(9, "$INSUNITS").Integer(70, -4);
    EXPECT_EQ(NotesOf(Section("HEADER", header).Append(FileOf(DxfWriter())).Ascii()),
              (std::vector<std::string>{
                  ":7: warning: expected a number in group 70 of SECTION, found \"-4\"; read as if it were "
                  "missing"}));
}

TEST(DxfReader, AFileWithoutAUnitIsToldOf) {
    DxfWriter header;
    header.Text(9, "$INSUNITS").Integer(70, 0);
    for (const DxfWriter& start : {DxfWriter(), Section("HEADER", header)}) {
        exchange::DxfNotes notes;
        SymbolsOfDxf(DxfWriter(start).Append(FileOf(DxfWriter())).Ascii(), &notes);
        ASSERT_EQ(notes.All().size(), 1U);
        EXPECT_EQ(notes.All()[0].code, diagnostics::Code::kNoUnit);
    }
}

TEST(DxfReader, WhatIsNoFileOrBreaksOffIsRefusedWithItsPlace) {
    EXPECT_EQ(SymbolsOfDxf(""), "f:1: error: expected the start of a section, found nothing");
    EXPECT_EQ(SymbolsOfDxf("hello\nworld\n"), "f:1: error: expected a group code, found \"hello\"");
    EXPECT_EQ(SymbolsOfDxf("0\nLINE\n"), "f:1: error: expected the start of a section, found LINE");
    EXPECT_EQ(SymbolsOfDxf("0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n2\nB\n0\nLINE\n10\n"),
              "f:11: error: the file ends within a pair of group code and value (block B)");
}

TEST(DxfReader, HatchesWhoseCountsPromiseTooMuchAreLeftOut) {
    DxfWriter hatch = HatchHead();
    hatch.Integer(91, 2147483647).Integer(92, 2).Integer(93, 2147483647);
    EXPECT_EQ(
        NotesOf(FileOf(hatch).Ascii()),
        (std::vector<std::string>{":17: error: the boundary of HATCH cannot be read; skipped (block B)"}));
}

TEST(DxfReader, OtherEntitiesKeepTheirClass) {
    EXPECT_EQ(SymbolsOfDxf(FileOf(DxfWriter().Text(0, "SOLID").Point(10, 0, 0)).Ascii()),
              SymbolsOfJson(R"({"type": "other", "class": "SOLID"})"));
}

} // namespace
