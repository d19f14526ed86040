// Loading and drawing a font of 2,000 glyphs, each against a floor that is measured in the same run.
#include "StyleConversion/encoding/PathCommands.h"
#include "StyleConversion/shx/ShapeDrawer.h"
#include "StyleConversion/shx/ShxUtility.h"
#include "tests/support/MemoryFile.h"
#include "tests/support/ShapeFileBuilder.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

namespace {

using namespace ShxUtility;
using test_support::Bytes;
using test_support::File;
using test_support::ShapeFileBuilder;

constexpr int kGlyphs = 2000;
constexpr int kRounds = 60;
constexpr double kRotation = 30.0; // degrees

// Keeps the compiler from leaving out what is measured.
volatile std::size_t sink;

// The shortest of many rounds, in microseconds. The operations take turns, so that whatever else the machine
// does meets all of them.
std::vector<double> Measure(const std::vector<std::function<void()>>& operations) {
    std::vector<double> best(operations.size(), 1e300);
    for (int round = 0; round < kRounds; ++round) {
        for (std::size_t i = 0; i < operations.size(); ++i) {
            const auto start = std::chrono::steady_clock::now();
            operations[i]();
            const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - start;
            best[i] = std::min(best[i], time.count());
        }
    }
    return best;
}

ShapesInFile Load(const std::string& path) {
    const File stream(std::fopen(path.c_str(), "rb"));
    ShapesInFile file;
    if (stream == nullptr || LoadShapeFile(stream.get(), file, kAllKinds) != kSuccess) {
        std::fprintf(stderr, "%s: cannot be loaded\n", path.c_str());
        std::exit(1);
    }
    return file;
}

// The letters of the example font over and over, numbered from 1.
ShapeFileBuilder ManyGlyphs(ShapeFileBuilder builder, bool named) {
    const ShapesInFile letters = Load(EXAMPLE_FONT);
    for (int i = 0; i < kGlyphs; ++i) {
        const CharArray& data =
            letters.shapes[1 + static_cast<std::size_t>(i) % (letters.shapes.size() - 1)].data;
        builder.Shape(static_cast<std::uint16_t>(i + 1), named ? "GLYPH" + std::to_string(i + 1) : "",
                      Bytes(data.data(), data.data() + data.size()));
    }
    return builder;
}

void MeasureLoading(const char* what, const std::string& bytes) {
    const std::filesystem::path path = std::filesystem::temp_directory_path() / "shapes_benchmark.shx";
    std::ofstream(path, std::ios::binary) << bytes;
    const std::string name = path.string();
    const std::vector<double> times = Measure({
        [&] {
            const File stream(std::fopen(name.c_str(), "rb"));
            std::vector<char> buffer(bytes.size());
            sink = std::fread(buffer.data(), 1, buffer.size(), stream.get());
        },
        [&] {
            const File stream(std::fopen(name.c_str(), "rb"));
            std::vector<char> buffer;
            buffer.reserve(bytes.size());
            for (int byte = std::fgetc(stream.get()); byte != EOF; byte = std::fgetc(stream.get())) {
                buffer.push_back(static_cast<char>(byte));
            }
            sink = buffer.size();
        },
        [&] { sink = Load(name).shapes.size(); },
    });
    std::filesystem::remove(path);
    std::printf("load %s, %zu bytes: %.0f us; reading the bytes at once %.0f us (ratio %.2f), "
                "one by one %.0f us (ratio %.2f)\n",
                what, bytes.size(), times[2], times[0], times[2] / times[0], times[1], times[2] / times[1]);
}

struct Command {
    char letter;
    double numbers[3];
    int largeArc;
    int sweep;
};

// Writes down what is drawn, to be formatted without drawing it.
struct Recorder {
    std::vector<Command>& commands;

    void MoveTo(double x, double y) { commands.push_back({'M', {x, y, 0}, 0, 0}); }
    void LineBy(double dx, double dy) { commands.push_back({'l', {dx, dy, 0}, 0, 0}); }
    void ArcTo(double radius, int largeArc, int sweep, double x, double y) {
        commands.push_back({'A', {radius, x, y}, largeArc, sweep});
    }
};

struct State {
    double x = 0;
    double y = 0;
    double scale = 0.1;
    PositionStack stack;
    std::vector<std::uint16_t> active;
    bool penDown = true;
};

void Decode(const ShapesInFile& file, const Shape& shape, ShapeInstructions& instructions) {
    DecodeShape(instructions, shape.data.data(), static_cast<std::uint16_t>(shape.data.size()), file.kind);
}

std::vector<Command> Record(const ShapesInFile& file) {
    std::vector<Command> commands;
    commands.reserve(100000);
    Recorder recorder{commands};
    for (const Shape& shape : file.shapes) {
        ShapeInstructions instructions;
        Decode(file, shape, instructions);
        State state;
        const DrawingState drawing{state.x, state.y, state.scale, state.stack, state.active, state.penDown};
        ShapeDrawer<Recorder>(recorder, drawing, file, kRotation).Draw(instructions, false);
        commands.push_back({'\0', {}, 0, 0});
    }
    return commands;
}

void DrawAll(const ShapesInFile& file) {
    for (const Shape& shape : file.shapes) {
        ShapeInstructions instructions;
        Decode(file, shape, instructions);
        State state;
        std::wstring path;
        DrawShape(path, state.x, state.y, state.scale, state.stack, state.active, state.penDown, instructions,
                  file, kRotation, false);
        sink = path.size();
    }
}

// The library's own formatters, one command at a time: no path, no drawing.
void FormatAll(const std::vector<Command>& commands) {
    std::wstring text;
    for (const Command& command : commands) {
        const double* const numbers = command.numbers;
        text.clear();
        if (command.letter == 'M') {
            encoding::AppendMove(text, numbers[0], numbers[1]);
        } else if (command.letter == 'l') {
            encoding::AppendRelativeLine(text, numbers[0], numbers[1]);
        } else if (command.letter == 'A') {
            encoding::AppendArc(text, numbers[0], command.largeArc != 0, command.sweep != 0, numbers[1],
                                numbers[2]);
        }
        sink = text.size();
    }
}

// The standard library's conversion of the numbers, an arc's radius twice.
void ConvertAll(const std::vector<Command>& commands) {
    char text[40];
    const auto convert = [&](double number) {
        sink = static_cast<std::size_t>(
            std::to_chars(text, text + sizeof text, number, std::chars_format::general, 15).ptr - text);
    };
    for (const Command& command : commands) {
        if (command.letter == '\0') {
            continue;
        }
        convert(command.numbers[0]);
        convert(command.numbers[1]);
        if (command.letter == 'A') {
            convert(command.numbers[0]);
            convert(command.numbers[2]);
        }
    }
}

void MeasureDrawing(const std::string& bytes) {
    const File stream = test_support::FileOf(bytes);
    ShapesInFile file;
    LoadShapeFile(stream.get(), file, kAllKinds);
    const std::vector<Command> commands = Record(file);
    const std::vector<double> times = Measure({
        [&] { FormatAll(commands); },
        [&] { ConvertAll(commands); },
        [&] { DrawAll(file); },
        [&] { sink = Record(file).size(); },
    });
    std::printf("draw %zu commands at %.0f degrees: %.0f us; formatting alone %.0f us (ratio %.2f), "
                "std::to_chars %.0f us (ratio %.2f); decoding and drawing without text %.0f us\n",
                commands.size(), kRotation, times[2], times[0], times[2] / times[0], times[1],
                times[2] / times[1], times[3]);
}

} // namespace

int main() {
    const std::string font = ManyGlyphs(ShapeFileBuilder::Shapes().FontInfo("F", {21, 7, 0}), true).Text();
    const std::string unifont = ManyGlyphs(ShapeFileBuilder::Unifont(), false).Text();
    MeasureLoading("a font with names", font);
    MeasureLoading("a unifont without names", unifont);
    MeasureDrawing(unifont);
    return 0;
}
