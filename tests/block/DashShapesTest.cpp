// Shapes and texts at the dashes of linetypes.
#include "StyleConversion/block/ShapeFileSource.h"
#include "StyleConversion/encoding/NumberReader.h"
#include "StyleConversion/shx/ShxUtility.h"
#include "tests/block/BlockTest.h"
#include "tests/block/ShapeFolder.h"
#include "tests/support/MemoryFile.h"
#include "tests/support/ShapeFileBuilder.h"
#include "tests/support/ShapeProgramBuilder.h"

#include <cmath>
#include <numbers>

namespace blocktest {
namespace {

using drawing::Operation;
using test_support::ShapeFileBuilder;
using test_support::ShapeProgramBuilder;
using Vertices = std::vector<drawing::BulgeVertex>;

using std::numbers::pi;

// A segment that a shape drew: where it starts and how far it goes.
struct Stroke {
    double x;
    double y;
    double dx;
    double dy;
};

// Reads the "M x,y l dx,dy " of a path from `at` on, where nothing else may stand.
std::vector<Stroke> StrokesFrom(const std::wstring& path, std::size_t at) {
    std::string text(path.begin() + static_cast<std::ptrdiff_t>(at), path.end());
    std::vector<Stroke> strokes;
    while (!text.empty()) {
        double values[4] = {};
        const char* const before[4] = {"M ", ",", " l ", ","};
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(text.rfind(before[i], 0), 0U) << text;
            text.erase(0, std::string(before[i]).size());
            const encoding::NumberReading reading = encoding::ReadNumber(text);
            values[i] = reading.value;
            text.erase(0, reading.used);
        }
        EXPECT_EQ(text.rfind(' ', 0), 0U) << text;
        if (text.empty()) {
            return {};
        }
        text.erase(0, 1);
        strokes.push_back({values[0], values[1], values[2], values[3]});
    }
    return strokes;
}

void ExpectStroke(const Stroke& stroke, double x, double y, double length, double direction) {
    EXPECT_NEAR(stroke.x, x, 1e-12);
    EXPECT_NEAR(stroke.y, y, 1e-12);
    EXPECT_NEAR(stroke.dx, length * std::cos(direction), 1e-12);
    EXPECT_NEAR(stroke.dy, length * std::sin(direction), 1e-12);
}

class DashShapes : public BlockTest {
protected:
    DashShapes() {
        // Shape 130 and the letters A and B go one unit to the right; shape 131 fails behind its first unit.
        const auto stroke = ShapeProgramBuilder().Vector(1, 0).End();
        folder.Write("lib.shx", ShapeFileBuilder::Shapes()
                                    .Shape(130, "STROKE", stroke)
                                    .Shape(131, "BAD", ShapeProgramBuilder().Vector(1, 0).Pop().End())
                                    .Shape('A', "", stroke)
                                    .Shape('B', "", stroke)
                                    .Text());
        folder.Write("font.shx",
                     ShapeFileBuilder::Shapes()
                         .FontInfo("font", {4, 1, 0, 0})
                         .Shape('A', "", stroke)
                         .Shape('B', "", stroke)
                         .Shape('S', "", ShapeProgramBuilder().Multiply(2).Vector(1, 0).End())
                         .Shape('F', "", ShapeProgramBuilder().Multiply(2).Vector(1, 0).Pop().End())
                         .Text());
        AddStyle(L"LIB", L"lib.shx");
        AddStyle(L"FONT", L"font.shx");
    }

    void AddStyle(const std::wstring& name, const std::wstring& file) {
        drawing::TextStyleData data;
        data.fileName = file;
        database.AddTextStyle(name, data);
    }

    static drawing::Dash ShapeDash(double length, int number = 130) {
        drawing::Dash dash;
        dash.length = length;
        dash.shapeStyle = L"LIB";
        dash.shapeNumber = number;
        return dash;
    }

    static drawing::Dash TextDash(double length, const std::wstring& style, const std::wstring& text) {
        drawing::Dash dash;
        dash.length = length;
        dash.shapeStyle = style;
        dash.text = text;
        return dash;
    }

    static drawing::Dash Gap(double length) {
        drawing::Dash dash;
        dash.length = -length;
        return dash;
    }

    // A line of length 3 along the x axis, with the pattern (1, -1): the lead of 1 is followed by the gap
    // from 1 to 2, where dash 1 ends, and the lead-out.
    std::wstring LinePath(const drawing::Dash& dash1) {
        database.AddLinetype(L"SHAPED", {Dashes({1})[0], dash1});
        block.Add<drawing::Line>(Dashed(L"SHAPED"), OxGePoint3d{}, OxGePoint3d{3, 0, 0});
        return Geometry();
    }

    static constexpr const wchar_t* kLine = L"M 0.0,0.0 L 1.0,0.0 M 2.0,0.0 L 3.0,0.0";

    ShapeFolder folder;
};

TEST_F(DashShapes, ShapeIsDrawnAtTheEndOfItsDashBehindTheLine) {
    EXPECT_EQ(LinePath(ShapeDash(-1)), kLine + std::wstring(L" M 2,0 l 1,0 "));
}

TEST_F(DashShapes, OffsetScaleAndRotationAreTheDashs) {
    drawing::Dash dash = ShapeDash(-1);
    dash.offset = {0.25, 0.5};
    dash.scale = 2;
    dash.rotation = pi / 2;
    // A right angle reaches the program as exactly 90 degrees.
    EXPECT_EQ(LinePath(dash), kLine + std::wstring(L" M 2.25,0.5 l 1.22464679914735e-16,2 "));
}

TEST_F(DashShapes, ShapesStayInDrawingUnitsWhateverTheScale) {
    database.SetInsunits(OxDb::kUnitsMeters);
    drawing::Dash dash = ShapeDash(-1);
    dash.offset = {0.125, 0};
    EXPECT_EQ(LinePath(dash), L"M 0.0,0.0 L 1000.0,0.0 M 2000.0,0.0 L 3000.0,0.0 M 2.125,0 l 1,0 ");
}

TEST_F(DashShapes, ShapesComeOncePerDashInTheOrderOfTheDashes) {
    database.AddLinetype(L"SHAPED", {ShapeDash(1), ShapeDash(-1)});
    block.Add<drawing::Line>(Dashed(L"SHAPED"), OxGePoint3d{}, OxGePoint3d{4, 0, 0});
    // Stops at 0.5 (the lead, whose shape is skipped), 1.5, 2.5, 3.5 and 4 (the lead-out, without a shape).
    EXPECT_EQ(Geometry(), L"M 0.0,0.0 L 0.5,0.0 M 1.5,0.0 L 2.5,0.0 M 3.5,0.0 L 4.0,0.0 "
                          L"M 1.5,0 l 1,0 M 2.5,0 l 1,0 M 3.5,0 l 1,0 ");
}

TEST_F(DashShapes, FileIsLoadedForEveryDashThatNeedsIt) {
    database.AddLinetype(L"SHAPED", {ShapeDash(1), ShapeDash(-1)});
    block.Add<drawing::Line>(Dashed(L"SHAPED"), OxGePoint3d{}, OxGePoint3d{4, 0, 0});
    const int before = OpenFileCount();
    Geometry();
    EXPECT_EQ(folder.Searches(), 3U);
    EXPECT_EQ(OpenFileCount(), before);
}

// Writes the file anew at each search: the stroke of shape 130 is as long as there have been searches.
class RewritingServices : public drawing::HostServices {
public:
    explicit RewritingServices(ShapeFolder& folder) : folder_(folder) {}

    Oxsys::ErrorStatus findFile(wchar_t* path, int pathLength, const wchar_t* fileName,
                                OxDbDatabase* database, FindFileHint hint) override {
        const auto stroke = ShapeProgramBuilder().Vector(++searches_, 0).End();
        folder_.Write("lib.shx", ShapeFileBuilder::Shapes().Shape(130, "STROKE", stroke).Text());
        return folder_.Services().findFile(path, pathLength, fileName, database, hint);
    }

private:
    ShapeFolder& folder_;
    int searches_ = 0;
};

TEST_F(DashShapes, EachDashDrawsFromTheFileAsItThenIs) {
    RewritingServices services(folder);
    oxdbSetHostApplicationServices(&services);
    database.AddLinetype(L"SHAPED", {ShapeDash(1), ShapeDash(-1)});
    block.Add<drawing::Line>(Dashed(L"SHAPED"), OxGePoint3d{}, OxGePoint3d{4, 0, 0});
    EXPECT_EQ(Geometry(), L"M 0.0,0.0 L 0.5,0.0 M 1.5,0.0 L 2.5,0.0 M 3.5,0.0 L 4.0,0.0 "
                          L"M 1.5,0 l 1,0 M 2.5,0 l 2,0 M 3.5,0 l 3,0 ");
}

TEST_F(DashShapes, TextIsDrawnLetterByLetterFromWhereTheLastOneEnded) {
    EXPECT_EQ(LinePath(TextDash(-1, L"LIB", L"AB")), kLine + std::wstring(L" M 2,0 l 1,0 M 3,0 l 1,0 "));
}

TEST_F(DashShapes, TextIsAsHighAsItsScaleByTheFontsHeight) {
    EXPECT_EQ(LinePath(TextDash(-1, L"FONT", L"AB")),
              kLine + std::wstring(L" M 2,0 l 0.25,0 M 2.25,0 l 0.25,0 "));
}

TEST_F(DashShapes, FontHeightIsASignedByteAndZeroDoesNotDivide) {
    const auto font = [&](std::uint8_t above) {
        return ShapeFileBuilder::Shapes()
            .FontInfo("font", {above, 1, 0, 0})
            .Shape('A', "", ShapeProgramBuilder().Vector(1, 0).End())
            .Text();
    };
    folder.Write("font.shx", font(0xfe)); // -2
    EXPECT_EQ(LinePath(TextDash(-1, L"FONT", L"A")), kLine + std::wstring(L" M 2,0 l -0.5,-0 "));
    folder.Write("font.shx", font(0));
    EXPECT_EQ(Geometry(), kLine + std::wstring(L" M 2,0 l 1,0 "));
}

TEST_F(DashShapes, ScaleIsCarriedFromLetterToLetter) {
    // S doubles the scale: 0.25 x 2 for itself and for the A behind it.
    EXPECT_EQ(LinePath(TextDash(-1, L"FONT", L"ASA")),
              kLine + std::wstring(L" M 2,0 l 0.25,0 M 2.25,0 l 0.5,0 M 2.75,0 l 0.5,0 "));
}

TEST_F(DashShapes, LetterWhoseDrawingFailsIsLeftOutButLeavesPointAndScale) {
    // F doubles the scale and moves by it before it fails.
    EXPECT_EQ(LinePath(TextDash(-1, L"FONT", L"AFA")),
              kLine + std::wstring(L" M 2,0 l 0.25,0 M 2.75,0 l 0.5,0 "));
}

TEST_F(DashShapes, LetterThatTheFileLacksIsSkipped) {
    EXPECT_EQ(LinePath(TextDash(-1, L"FONT", L"AXA")),
              kLine + std::wstring(L" M 2,0 l 0.25,0 M 2.25,0 l 0.25,0 "));
}

TEST_F(DashShapes, CharactersAreUtf16Units) {
    // U+1F600 is D83D DE00.
    const auto stroke = ShapeProgramBuilder().Vector(1, 0).End();
    folder.Write("wide.shx", ShapeFileBuilder::Unifont()
                                 .Shape(0xd83d, "", stroke)
                                 .Shape(0xde00, "", ShapeProgramBuilder().Vector(2, 0).End())
                                 .Text());
    AddStyle(L"WIDE", L"wide.shx");
    EXPECT_EQ(LinePath(TextDash(-1, L"WIDE", L"\U0001F600")),
              kLine + std::wstring(L" M 2,0 l 1,0 M 3,0 l 2,0 "));
}

TEST_F(DashShapes, DashWithoutAStyleOrWithoutATextDrawsNothing) {
    drawing::Dash number = ShapeDash(-1);
    number.shapeStyle.clear();
    EXPECT_EQ(LinePath(number), kLine);
    EXPECT_EQ(folder.Searches(), 0U);
}

TEST_F(DashShapes, TextThatIsAbsentOrCannotBeReadDrawsNothing) {
    EXPECT_EQ(LinePath(ShapeDash(-1, 0)), kLine);
    EXPECT_EQ(folder.Searches(), 1U);
}

TEST_F(DashShapes, FailingTextDrawsNothing) {
    database.Failures().Fail(Operation::kTextAt, 1, Oxsys::eInvalidIndex);
    EXPECT_EQ(LinePath(TextDash(-1, L"LIB", L"A")), kLine);
}

TEST_F(DashShapes, NumberThatTheFileLacksDrawsNothing) {
    EXPECT_EQ(LinePath(ShapeDash(-1, 200)), kLine);
}

TEST_F(DashShapes, NumbersAreComparedInSixteenBits) {
    EXPECT_EQ(LinePath(ShapeDash(-1, 65536 + 130)), kLine + std::wstring(L" M 2,0 l 1,0 "));
}

TEST_F(DashShapes, ShapeWhoseDrawingFailsDrawsNothing) {
    EXPECT_EQ(LinePath(ShapeDash(-1, 131)), kLine);
}

TEST_F(DashShapes, ShapeWhoseProgramIsTruncatedDrawsNothing) {
    folder.Write("lib.shx", ShapeFileBuilder::Shapes().Shape(130, "", {0x10, 8}).Text());
    EXPECT_EQ(LinePath(ShapeDash(-1)), kLine);
}

TEST_F(DashShapes, UnknownStyleUnreadableStyleAndMissingFileDrawNothing) {
    drawing::Dash dash = ShapeDash(-1);
    EXPECT_EQ(LinePath(dash), kLine + std::wstring(L" M 2,0 l 1,0 "));
    database.Failures().Fail(Operation::kTextStyleFileName, 1, Oxsys::eInvalidInput);
    EXPECT_EQ(Geometry(), kLine);
    database.Failures().Clear();
    // The first object that is opened is the linetype.
    database.Failures().Fail(Operation::kOpenObject, 2, Oxsys::eWasErased);
    EXPECT_EQ(Geometry(), kLine);
    database.Failures().Clear();
    folder.Services().Failures().Fail(Operation::kFindFile, 1, Oxsys::eFileNotFound);
    EXPECT_EQ(Geometry(), kLine);
    folder.Services().Failures().Clear();
    folder.Services().Failures().Fail(Operation::kFindFile, 1, Oxsys::eOk);
    EXPECT_EQ(Geometry(), kLine) << "an empty path is no file";
}

TEST_F(DashShapes, StyleOfNoTableDrawsNothing) {
    drawing::Dash dash = ShapeDash(-1);
    dash.shapeStyle = L"NOWHERE";
    EXPECT_EQ(LinePath(dash), kLine);
    EXPECT_EQ(folder.Searches(), 0U);
}

TEST_F(DashShapes, WithoutHostServicesNothingIsDrawn) {
    oxdbSetHostApplicationServices(nullptr);
    EXPECT_EQ(LinePath(ShapeDash(-1)), kLine);
}

TEST_F(DashShapes, StreamOfAFileThatDoesNotLoadStaysOpen) {
    folder.Write("lib.shx", "no shape file");
    const int before = OpenFileCount();
    EXPECT_EQ(LinePath(ShapeDash(-1)), kLine);
    EXPECT_EQ(folder.Searches(), 1U);
    if (before >= 0) {
        EXPECT_EQ(OpenFileCount(), before + 1);
    }
}

TEST_F(DashShapes, FileThatDoesNotLoadIsOpenedAtEveryDash) {
    folder.Write("lib.shx", "no shape file");
    const int before = OpenFileCount();
    database.AddLinetype(L"SHAPED", {ShapeDash(1), ShapeDash(-1)});
    block.Add<drawing::Line>(Dashed(L"SHAPED"), OxGePoint3d{}, OxGePoint3d{4, 0, 0});
    Geometry();
    EXPECT_EQ(folder.Searches(), 3U);
    if (before >= 0) {
        EXPECT_EQ(OpenFileCount(), before + 3);
    }
}

TEST_F(DashShapes, EveryKindOfShapeFileIsAccepted) {
    const auto stroke = ShapeProgramBuilder().Vector(1, 0).End();
    folder.Write("lib.shx", ShapeFileBuilder::Unifont().Shape(130, "", stroke).Text());
    EXPECT_EQ(LinePath(ShapeDash(-1)), kLine + std::wstring(L" M 2,0 l 1,0 "));
    folder.Write("lib.shx",
                 ShapeFileBuilder::Shapes().FontInfo("f", {1, 1, 0}).Shape(130, "", stroke).Text());
    EXPECT_EQ(Geometry(), kLine + std::wstring(L" M 2,0 l 1,0 "));
    folder.Write("lib.shx", ShapeFileBuilder::Bigfont().Text());
    EXPECT_EQ(Geometry(), kLine);
}

// On an arc of radius 2 from 0 to 90 degrees, 3.14 long, with (1, -1) the lead is 1.07 and dash 1 ends at
// 2.07, that is at an angle of 1.0354.
class ShapesOnArcs : public DashShapes {
protected:
    static constexpr double kAngle = (1 + pi - 2) / 2 / 2 + 0.5;

    std::vector<Stroke> ArcStrokes(bool clockwise) {
        drawing::Dash dash = ShapeDash(-1);
        dash.offset = {0.5, 0.25};
        database.AddLinetype(L"SHAPED", {Dashes({1})[0], dash});
        drawing::ArcData data;
        data.radius = 2;
        data.startAngle = clockwise ? pi / 2 : 0;
        data.endAngle = data.startAngle + pi / 2;
        data.normal = {0, 0, clockwise ? -1.0 : 1.0};
        block.Add<drawing::Arc>(Dashed(L"SHAPED"), data);
        const std::wstring path = Geometry();
        return StrokesFrom(path, path.find(L" M ", path.find(L" M ") + 1) + 1);
    }
};

TEST_F(ShapesOnArcs, CounterClockwiseTheyFollowTheTangent) {
    const std::vector<Stroke> strokes = ArcStrokes(false);
    ASSERT_EQ(strokes.size(), 1U);
    const double tangent = kAngle + pi / 2;
    ExpectStroke(strokes[0], 2 * std::cos(kAngle) + 0.5 * std::cos(tangent) - 0.25 * std::sin(tangent),
                 2 * std::sin(kAngle) + 0.5 * std::sin(tangent) + 0.25 * std::cos(tangent), 1, tangent);
}

TEST_F(ShapesOnArcs, ClockwiseTheyFaceAgainstTheDirectionOfTravel) {
    // From the top (mirrored) down: the angle falls from 90 degrees, and the quarter turn is added all the
    // same.
    const std::vector<Stroke> strokes = ArcStrokes(true);
    ASSERT_EQ(strokes.size(), 1U);
    const double angle = pi / 2 - kAngle;
    const double tangent = angle + pi / 2;
    ExpectStroke(strokes[0], 2 * std::cos(angle) + 0.5 * std::cos(tangent) - 0.25 * std::sin(tangent),
                 2 * std::sin(angle) + 0.5 * std::sin(tangent) + 0.25 * std::cos(tangent), 1, tangent);
}

TEST_F(DashShapes, OnACircleScaleStretchesWithTheDashes) {
    // A circumference of 25 holds 2 patterns of 10 (2.5 is rounded half up: 3): each is stretched by 25 / 30.
    drawing::Dash dash = ShapeDash(-5);
    dash.offset = {0.5, 0.25};
    dash.scale = 2;
    dash.rotation = 0.125;
    database.AddLinetype(L"SHAPED", {Dashes({5})[0], dash});
    const double radius = 25 / (2 * pi);
    block.Add<drawing::Circle>(Dashed(L"SHAPED"), OxGePoint3d{1, 2, 0}, radius);
    const std::wstring path = Geometry();
    constexpr std::size_t repetitions = 3;
    std::size_t shapes = path.size();
    for (std::size_t i = 0; i < repetitions; ++i) {
        shapes = path.rfind(L" M ", shapes - 1);
    }
    const std::vector<Stroke> strokes = StrokesFrom(path, shapes + 1);
    ASSERT_EQ(strokes.size(), repetitions);
    const double stretch = 25.0 / (10.0 * static_cast<double>(repetitions));
    for (std::size_t i = 0; i < repetitions; ++i) {
        const double angle = 2 * pi * static_cast<double>(i + 1) / static_cast<double>(repetitions);
        const double tangent = angle + pi / 2;
        // The offset is not stretched, the scale is.
        ExpectStroke(strokes[i],
                     1 + radius * std::cos(angle) + 0.5 * std::cos(tangent) - 0.25 * std::sin(tangent),
                     2 + radius * std::sin(angle) + 0.5 * std::sin(tangent) + 0.25 * std::cos(tangent),
                     2 * stretch, tangent + 0.125);
    }
}

TEST_F(DashShapes, TextOnACircleIsDividedByTheFontsHeightOrDrawnUndividedWithoutOne) {
    database.AddLinetype(L"WITH", {Dashes({5})[0], TextDash(-5, L"FONT", L"A")}, 10.0);
    database.AddLinetype(L"WITHOUT", {Dashes({5})[0], TextDash(-5, L"LIB", L"A")}, 10.0);
    const double radius = 10.1 / (2 * pi);
    block.Add<drawing::Circle>(Dashed(L"WITH"), OxGePoint3d{1, 2, 0}, radius);
    block.Add<drawing::Circle>(Dashed(L"WITHOUT"), OxGePoint3d{1, 2, 0}, radius);
    const std::vector<std::wstring> paths = Geometries();
    const auto lengthOf = [](const std::wstring& path) {
        const std::vector<Stroke> strokes = StrokesFrom(path, path.rfind(L" M ") + 1);
        return strokes.size() == 1 ? std::sqrt(strokes[0].dx * strokes[0].dx + strokes[0].dy * strokes[0].dy)
                                   : 0.0;
    };
    EXPECT_NEAR(lengthOf(paths.at(0)), 1.01 / 4, 1e-12);
    EXPECT_NEAR(lengthOf(paths.at(1)), 1.01, 1e-12);
}

TEST_F(DashShapes, ContinuousPatternDrawsTheShapeOfDashZeroAtTheLeadIn) {
    database.AddLinetype(L"SHAPED", {ShapeDash(1), Gap(1)});
    block.Add<drawing::Polyline>(Dashed(L"SHAPED"), Vertices{{{0, 0}}, {{4, 0}}}, false, true);
    // Stops at 0.5, 1.5, 2.5, 3.5, 4; those of dash 0 are 0.5 and 2.5. The lead-out at 4 is dash 1's.
    EXPECT_EQ(Geometry(),
              L"M 0.0,0.0 L 0.5,0.0 M 1.5,0.0 L 2.5,0.0 M 3.5,0.0 L 4.0,0.0 M 0.5,0 l 1,0 M 2.5,0 l 1,0 ");
}

TEST_F(DashShapes, ContinuousPatternDrawsTheLastDashsShapeOnceMoreAtTheLeadOut) {
    database.AddLinetype(L"SHAPED", {Dashes({1})[0], ShapeDash(-1)});
    block.Add<drawing::Polyline>(Dashed(L"SHAPED"), Vertices{{{0, 0}}, {{4, 0}}}, false, true);
    EXPECT_EQ(Geometry(), L"M 0.0,0.0 L 0.5,0.0 M 1.5,0.0 L 2.5,0.0 M 3.5,0.0 L 4.0,0.0 "
                          L"M 1.5,0 l 1,0 M 3.5,0 l 1,0 M 4,0 l 1,0 ");
}

TEST_F(DashShapes, ContinuousPatternTurnsShapesOnArcsWithTheSenseOfTravel) {
    // Half circles of radius 1 below and above the axis, in opposite senses, with the lead 1.0708 and a gap
    // of 1: 3.14 = 1 x 2 + 1.14.
    database.AddLinetype(L"SHAPED", {Dashes({1})[0], ShapeDash(-1)});
    const double stop = (1 + pi - 2) / 2 + 1;
    struct Case {
        double bulge;
        double angle;
        double direction;
    };
    const Case cases[] = {{1, pi + stop, pi + stop + pi / 2}, {-1, pi - stop, pi - stop - pi / 2}};
    for (const Case& row : cases) {
        block.Add<drawing::Polyline>(Dashed(L"SHAPED"), Vertices{{{0, 0}, row.bulge}, {{2, 0}}}, false, true);
    }
    const std::vector<std::wstring> paths = Geometries();
    for (std::size_t i = 0; i < 2; ++i) {
        const std::wstring& path = paths.at(i);
        const std::vector<Stroke> strokes = StrokesFrom(path, path.find(L" M ", path.find(L" M ") + 1) + 1);
        ASSERT_GE(strokes.size(), 1U);
        ExpectStroke(strokes[0], 1 + std::cos(cases[i].angle), std::sin(cases[i].angle), 1,
                     cases[i].direction);
    }
}

TEST_F(DashShapes, ShapeOfADotIsDrawnAtTheDot) {
    drawing::Dash dot = ShapeDash(0);
    database.AddLinetype(L"SHAPED", {Dashes({1})[0], Gap(1), dot});
    block.Add<drawing::Line>(Dashed(L"SHAPED"), OxGePoint3d{}, OxGePoint3d{0, 3, 0});
    // 3 = 1 x 2 + 1: lead 1, gap to 2, dot at 2. Upward, the cosine of a right angle shows.
    const std::wstring path = Geometry();
    const std::wstring line = L"M 0.0,0.0 L 0.0,1.0 M 0.0,2.0 L 0.0,2.0 L 0.0,3.0";
    EXPECT_EQ(path.substr(0, line.size()), line);
    const std::vector<Stroke> strokes = StrokesFrom(path, path.rfind(L" M ") + 1);
    ASSERT_EQ(strokes.size(), 1U);
    ExpectStroke(strokes[0], 0, 2, 1, pi / 2);
}

// Shape 130 goes two units up, and only "lib.shx" is there.
class ShapesAtHand : public block::ShapeFileSource {
public:
    ShapesAtHand() {
        shapes_.kind = ShxUtility::kShapes;
        const auto program = ShapeProgramBuilder().Vector(2, 4).End();
        const auto file = test_support::FileOf(ShapeFileBuilder::Shapes().Shape(130, "UP", program).Text());
        EXPECT_EQ(ShxUtility::LoadShapeFile(file.get(), shapes_, ShxUtility::kAllKinds),
                  ShxUtility::kSuccess);
    }
    const ShxUtility::ShapesInFile* Find(const wchar_t* name) override {
        return std::wstring(name) == L"lib.shx" ? &shapes_ : nullptr;
    }

private:
    ShxUtility::ShapesInFile shapes_;
};

TEST_F(DashShapes, AProgramsOwnSourceGoesBeforeTheHostServices) {
    ShapesAtHand source;
    database.AddLinetype(L"SHAPED", {Dashes({1})[0], ShapeDash(-1)});
    block.Add<drawing::Line>(Dashed(L"SHAPED"), OxGePoint3d{}, OxGePoint3d{3, 0, 0});
    BlockConverter converter(&database);
    const auto path = [&converter] {
        const Symbol symbol(static_cast<TylModel::SimpleSymbolDefinition*>(converter.Convert(L"B")));
        return static_cast<const TylModel::Path&>(*symbol->GetGraphics().GetAt(0)).GetGeometry();
    };
    {
        const block::ShapeFilesInUse inUse(source);
        const std::uint64_t searches = folder.Searches();
        EXPECT_EQ(path(), kLine + std::wstring(L" M 2,0 l 0,2 "));
        EXPECT_EQ(folder.Searches(), searches);
    }
    EXPECT_EQ(path(), kLine + std::wstring(L" M 2,0 l 1,0 "));
}

} // namespace
} // namespace blocktest
