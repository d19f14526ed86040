// Work without end is given up: in time, in words, and without a trace.
#include "tests/support/ShapeFileBuilder.h"
#include "tests/support/ShapeProgramBuilder.h"
#include "tests/support/ToolRun.h"

#include <chrono>
#include <csignal>
#include <gtest/gtest.h>

namespace {

using support::RunTool;
using support::ScratchFolder;
using support::ToolResult;
using test_support::ShapeFileBuilder;
using test_support::ShapeProgramBuilder;

// Shape 40 draws shape 39 sixteen times, that shape 38 sixteen times, and so on: 16 to the 39th strokes.
std::string FanningShapes(const ShapeProgramBuilder& last) {
    ShapeFileBuilder file = ShapeFileBuilder::Shapes();
    ShapeProgramBuilder program = last;
    file.Shape(1, "LAST", program.End());
    for (int number = 2; number <= 40; ++number) {
        ShapeProgramBuilder fan;
        for (int i = 0; i < 16; ++i) {
            fan.Subshape(number - 1);
        }
        file.Shape(static_cast<std::uint16_t>(number), "FAN", fan.End());
    }
    return file.Text();
}

// Draws nothing, so that only time is used up.
std::string FanOfNothing() {
    return FanningShapes(ShapeProgramBuilder().PenUp());
}

// A kilometre, drawn in a pattern of that length.
std::string LongLine(const std::string& patternLength, const std::string& length = "1000") {
    return R"({"format": "styleconversion/drawing", "version": 1, "insunits": 6,
      "layers": [{"name": "0"}],
      "linetypes": [{"name": "D", "patternLength": )" +
           patternLength + R"(, "dashes": [{"length": 5e-10}, {"length": -5e-10}]}],
      "blocks": [{"name": "FINE", "entities": [{"type": "point", "position": [1, 2]}]},
                 {"name": "ROAD", "entities": [{"type": "line", "start": [0, 0], "end": [)" +
           length + R"(, 0],
                                                "linetype": "D"}]}]})";
}

// A square kilometre of hatch lines that far apart.
std::string DenseHatch(const std::string& spacing) {
    return R"({"format": "styleconversion/drawing", "version": 1, "insunits": 6,
      "layers": [{"name": "0"}],
      "blocks": [{"name": "FINE", "entities": [{"type": "point", "position": [1, 2]}]},
                 {"name": "FIELD", "entities": [
        {"type": "hatch", "loops": [{"vertices": [[0, 0], [1000, 0], [1000, 1000], [0, 1000]]}],
         "pattern": [{"angle": 0, "base": [0, 0], "offset": [0, )" +
           spacing + R"(], "dashes": []}]}]}]})";
}

double SecondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

TEST(Limits, TimeEndsShapesThatFanOutWithoutEnd) {
    const ScratchFolder folder;
    const std::string file = folder.Write("fan.shx", FanOfNothing());
    folder.Write("out.json", "old");
    const auto start = std::chrono::steady_clock::now();
    const ToolResult result = RunTool({"glyphs", file, "--number", "1", "--number", "40", "--time-limit",
                                       "0.5", "-o", folder / "out.json"});
    const double seconds = SecondsSince(start);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, file + ": error: time limit of 0.5 seconds exceeded; raise it with --time-limit "
                                    "(shape 40)\n");
    EXPECT_GE(seconds, 0.5);
    EXPECT_LT(seconds, 1.5);
    EXPECT_EQ(folder.Read("out.json"), "old");
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"fan.shx", "out.json"}));
}

TEST(Limits, ATolerantRunNamesTheShapeThatHasNoEndToo) {
    const ScratchFolder folder;
    const std::string file = folder.Write("fan.shx", FanOfNothing());
    const ToolResult result =
        RunTool({"glyphs", file, "--tolerant", "--number", "1", "--number", "40", "--time-limit", "0.5"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, file + ": error: time limit of 0.5 seconds exceeded; raise it with --time-limit "
                                    "(shape 40)\n");
    EXPECT_EQ(result.output, "");
}

TEST(Limits, MemoryEndsShapesThatFanOutWithoutEnd) {
    const ScratchFolder folder;
    const std::string file =
        folder.Write("fan.shx", FanningShapes(ShapeProgramBuilder().Vector(15, 1).Vector(15, 9)));
    folder.Write("out.json", "old");
    const ToolResult result =
        RunTool({"glyphs", file, "--number", "40", "--memory-limit", "300", "-o", folder / "out.json"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, file + ": error: memory limit of 300 MiB exceeded; raise it with --memory-limit "
                                    "(shape 40)\n");
    EXPECT_EQ(folder.Read("out.json"), "old");
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"fan.shx", "out.json"}));
}

// Each limit ends the conversion of the drawing soon, and leaves what was there.
void ExpectGivenUp(const std::string& drawing, const std::string& block) {
    const ScratchFolder folder;
    const std::string file = folder.Write("field.json", drawing);
    folder.Write("out.json", "old");
    const auto start = std::chrono::steady_clock::now();
    const ToolResult result = RunTool({"blocks", file, "--time-limit", "0.5", "-o", folder / "out.json"});
    EXPECT_LT(SecondsSince(start), 1.5);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              file + ": error: time limit of 0.5 seconds exceeded; raise it with --time-limit (block " +
                  block + ")\n");
    EXPECT_EQ(folder.Read("out.json"), "old");
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"field.json", "out.json"}));

    const ToolResult memory = RunTool({"blocks", file, "--memory-limit", "300"});
    EXPECT_EQ(memory.status, 1);
    EXPECT_EQ(memory.errors,
              file + ": error: memory limit of 300 MiB exceeded; raise it with --memory-limit (block " +
                  block + ")\n");
}

TEST(Limits, EndABillionDashesOnALine) {
    ExpectGivenUp(LongLine("1e-6"), "ROAD");
    // A kilometre in a drawing of kilometres.
    ExpectGivenUp(LongLine("1e-9", "1"), "ROAD");
}

TEST(Limits, APatternOfANanometreOnAKilometreInMetresRepeatsTooOftenToBeCounted) {
    const ScratchFolder folder;
    const std::string file = folder.Write("road.json", LongLine("1e-9"));
    const ToolResult result = RunTool({"blocks", file, "--time-limit", "20", "--memory-limit", "500"});
    // A count beyond 32 bits is none at all: the line is drawn without dashes.
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_NE(result.output.find("\"name\": \"ROAD\""), std::string::npos) << result.output;
    EXPECT_LT(result.output.size(), 10000U);
}

TEST(Limits, EndAHatchOfABillionLines) {
    ExpectGivenUp(DenseHatch("1e-6"), "FIELD");
}

TEST(Limits, AHatchOfMoreLinesThanCanBeCountedIsLeftOutAtOnceAndNamed) {
    const ScratchFolder folder;
    const std::string file = folder.Write("field.json", DenseHatch("1e-8"));
    const auto start = std::chrono::steady_clock::now();
    const ToolResult result = RunTool({"blocks", file, "--time-limit", "20", "--memory-limit", "500"});
    EXPECT_LT(SecondsSince(start), 10.0);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors,
              file + ": warning: 1 entity (hatch) has more than 2147483647 lines; skipped (block FIELD)\n");
    EXPECT_NE(result.output.find("\"graphics\": []"), std::string::npos) << result.output;
}

TEST(Limits, AHatchOfTwoMillionLinesIsWithinThem) {
    const ScratchFolder folder;
    const std::string file = folder.Write("field.json", DenseHatch("5e-4"));
    const ToolResult result = RunTool({"blocks", file, "-o", folder / "out.json"});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.errors, "");
}

#if !defined(_WIN32)
TEST(Interruptions, LeaveTheOldFileAndNoOther) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        const ScratchFolder folder;
        const std::string file = folder.Write("fan.shx", FanOfNothing());
        folder.Write("out.json", "old");
        // The first shape opens the temporary file, and the second keeps the tool at work.
        const int ended = support::SignalThatEndsTool(folder, 3,
                                                      {"glyphs", file, "--number", "1", "--number", "40",
                                                       "--time-limit", "60", "-o", folder / "out.json"},
                                                      signal);
        EXPECT_EQ(ended, signal);
        EXPECT_EQ(folder.Read("out.json"), "old");
        EXPECT_EQ(folder.Names(), (std::vector<std::string>{"fan.shx", "out.json"}));
    }
}

TEST(Limits, LeaveNoCopyOfStandardInput) {
    const ScratchFolder folder;
    const ToolResult result = support::RunToolWithTemporariesIn(
        folder / ".", {"glyphs", "-", "--time-limit", "0.2"}, FanOfNothing());
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.errors.starts_with("standard input: error: time limit ")) << result.errors;
    EXPECT_EQ(folder.Names(), std::vector<std::string>());
}
#endif

TEST(Limits, AreFarAwayFromOrdinaryWork) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", "*LINES,Lines\n0, 0,0, 0,.125\n");
    EXPECT_EQ(RunTool({"patterns", file}).status, 0);
    EXPECT_EQ(RunTool({"patterns", file, "--time-limit", "1e300", "--memory-limit", "1e300"}).status, 0);
}

TEST(Limits, AreNumbersAboveZero) {
    for (const char* const option : {"--time-limit", "--memory-limit"}) {
        for (const char* const value : {"0", "-1", "x", "1s", "", "nan", "inf", "1e999"}) {
            const ToolResult result = RunTool({"patterns", "a.pat", option, value});
            EXPECT_EQ(result.status, 2) << option << ' ' << value;
            EXPECT_NE(result.errors.find(option), std::string::npos) << result.errors;
        }
    }
}

} // namespace
