// Both dialects of path geometry are read, and nothing else is.
#include "preview/Outline.h"

#include "StyleConversion/encoding/PathCommands.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

using namespace preview;

// Writes down what it is told.
class RecordingSink : public PathSink {
public:
    void MoveTo(Point point) override { Note("M", point); }
    void LineTo(Point point) override { Note("L", point); }
    void ArcTo(const ArcShape& shape, Point point) override {
        Note("A", {shape.radiusX, shape.radiusY});
        text += "(" + Number(shape.rotation) + ")";
        text += shape.largeArc ? "large " : "small ";
        text += shape.clockwise ? "clockwise" : "counter";
        Note("", point);
    }

    std::string text;

private:
    static std::string Number(double value) {
        std::string narrow;
        for (const wchar_t c : encoding::FormatNumber(value)) {
            narrow += static_cast<char>(c);
        }
        return narrow;
    }
    void Note(const std::string& what, Point point) {
        text += what + "[" + Number(point.x) + " " + Number(point.y) + "]";
    }
};

TEST(PathReader, ReadsEachCommand) {
    const struct {
        const wchar_t* path;
        const char* drawn;
    } rows[] = {
        {L"", ""},
        {L"  \t\n", ""},
        {L"M 1.0,2.0", "M[1 2]"},
        {L"M 0,0 L 0.5,0 M 0.75,0 L 0.75,0 ", "M[0 0]L[0.5 0]M[0.75 0]L[0.75 0]"},
        {L"M 0.0,0.0 h 10.0", "M[0 0]L[10 0]"},
        {L"M 1.0,1.0 h -2.5 v 4.0 h 1.0", "M[1 1]L[-1.5 1]L[-1.5 5]L[-0.5 5]"},
        {L"M 1,1 l 1,2 M 5,5 l -1,-1 l -1,-1 ", "M[1 1]L[2 3]M[5 5]L[4 4]L[3 3]"},
        {L"M 5.0,0.0 A 5.0,5.0 0.0 0 1 -5.0,0.0", "M[5 0]A[5 5](0)small clockwise[-5 0]"},
        {L"M 0,0 A 2,2 0 1 0 1,1 ", "M[0 0]A[2 2](0)large counter[1 1]"},
        {L"M 0.0,0.0 A 3.0,2.0 90.0 1 1 1.0,1.0 v 1.0", "M[0 0]A[3 2](90)large clockwise[1 1]L[1 2]"},
        // A loop's move stands behind the last number of the loop before it.
        {L"M 0.0,0.0 L 1.0,0.0M 2.0,0.0 h 1.0", "M[0 0]L[1 0]M[2 0]L[3 0]"},
        {L"M0,0L1,1h2v-3l4,5A1,1 0 0 1 2,2", "M[0 0]L[1 1]L[3 1]L[3 -2]L[7 3]A[1 1](0)small clockwise[2 2]"},
        {L"M 1e-3,-1.5E+2", "M[0.001 -150]"},
        {L"M 0,0 l -1,6.12323399573677e-17 ", "M[0 0]L[-1 6.12323399573677e-17]"},
    };
    for (const auto& row : rows) {
        RecordingSink sink;
        const PathReading reading = ReadPath(row.path, sink);
        EXPECT_TRUE(reading.complete) << row.path;
        EXPECT_EQ(sink.text, row.drawn) << row.path;
    }
}

TEST(PathReader, StopsWhereSomethingIsWrong) {
    const struct {
        const wchar_t* path;
        std::size_t used;
        std::size_t commands;
    } rows[] = {
        {L"L 1,1", 0, 0},
        {L"h 1", 0, 0},
        {L"M", 0, 0},
        {L"M 1", 0, 0},
        {L"M 1,", 0, 0},
        {L"M 1,x", 0, 0},
        {L"M 1,,2", 0, 0},
        {L"M nan,0", 0, 0},
        {L"M inf,0", 0, 0},
        {L"M 1e999,0", 0, 0},
        {L"M 0,0 L 1,1 Q 2,2", 12, 2},
        {L"M 0,0 L 1,1 2,2", 12, 2},
        {L"M 0,0 Z", 6, 1},
        {L"M 0,0 A 1,1 0 2 0 1,1", 6, 1},
        {L"M 0,0 A 1,1 0 0 0 1", 6, 1},
        {L"M 0,0 \u20acL 1,1", 6, 1},
        {L"M 1e308,0 h 1e308", 10, 1},
    };
    for (const auto& row : rows) {
        RecordingSink sink;
        const PathReading reading = ReadPath(row.path, sink);
        EXPECT_FALSE(reading.complete) << row.path;
        EXPECT_EQ(reading.used, row.used) << row.path;
        EXPECT_EQ(reading.commands, row.commands) << row.path;
    }
}

TEST(PathReader, AMillionCommandsAreReadInOneGo) {
    std::wstring path = L"M 0,0 ";
    for (int i = 0; i < 1'000'000; ++i) {
        path += L"l 1,-1 ";
    }
    Outline outline;
    const PathReading reading = ReadPath(path, outline);
    EXPECT_TRUE(reading.complete);
    EXPECT_EQ(reading.commands, 1'000'001U);
    EXPECT_EQ(outline.Size(), 1'000'001U);
    EXPECT_EQ(outline.Bounds().high, (Point{1'000'000, 0}));
}

TEST(PathReader, AMillionDigitsAreReadInOneGo) {
    RecordingSink sink;
    EXPECT_FALSE(ReadPath(L"M 0," + std::wstring(1'000'000, L'9'), sink).complete);
    std::wstring path;
    for (int i = 0; i < 100'000; ++i) {
        path += L"M 1e999,0 ";
    }
    EXPECT_FALSE(ReadPath(path, sink).complete);
}

} // namespace
