// What a drawing answers to the block converter, apart from any library, and as a file: one number a line.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <map>
#include <string>
#include <vector>

/// Red, green, blue; above them 1 for by layer and 2 for by block.
using RecordedColor = std::uint32_t;

struct RecordedLayer {
    std::wstring name;
    RecordedColor color = 0;
    int lineWeight = 0;
};

struct RecordedDash {
    double length = 0;
    std::int64_t style = 0; // its place among the styles and one more; 0 for none
    int shapeNumber = 0;
    std::vector<double> placing; // offset x and y, scale, rotation
    int hasText = 0;
    std::wstring text;
};

struct RecordedLinetype {
    double patternLength = 0;
    std::vector<RecordedDash> dashes;
};

struct RecordedStyle {
    std::wstring name, fileName, typeface;
    int bold = 0, italic = 0;
    std::vector<double> sizes; // text size, width factor, slant
};

/// A loop of a hatch or multi-polygon, or a segment of a polyline.
struct RecordedLoop {
    int kind = 0; // of edges 1, of vertices 2, unreadable 0; segments: as the library counts them
    std::vector<double> numbers;
    std::vector<double> bulges;
    std::vector<RecordedLoop> edges;
};

/// What a spline's curve gave for a tolerance.
struct RecordedSamples {
    double tolerance = 0;
    std::vector<double> points;
};

struct RecordedEntity {
    std::wstring kind; // the class, without "OxDb"
    std::wstring layer;
    RecordedColor color = 0;
    RecordedColor fillColor = 0;
    int lineWeight = 0;
    std::int64_t linetype = 0; // its place among the linetypes and one more; 0 for none
    std::int64_t style = 0;
    std::vector<double> numbers;
    std::vector<std::wstring> texts;
    std::vector<RecordedLoop> loops;
    std::vector<RecordedSamples> samples;
};

struct RecordedBlock {
    std::wstring name;
    int isLayout = 0, isAnonymous = 0, units = 0;
    std::vector<RecordedEntity> entities;  // as they were made
    std::vector<std::int64_t> drawOrder;   // places among the entities
    std::vector<RecordedEntity> reference; // the first one, if any
};

struct RecordedDrawing {
    int units = 0;
    std::map<std::wstring, RecordedLayer> layers; // by the names that entities have for them
    std::vector<RecordedLinetype> linetypes;
    std::vector<RecordedStyle> styles;
    std::vector<RecordedBlock> blocks;
};

void Write(std::ostream& out, const std::vector<RecordedDrawing>& drawings);
/// Throws std::runtime_error when the file is no recording.
std::vector<RecordedDrawing> Read(std::istream& in);
