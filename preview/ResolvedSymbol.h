// A symbol with its expressions read: numbers, colours and outlines, ready to be drawn.
#pragma once

#include "TylModel/TylModel.h"
#include "preview/Expression.h"
#include "preview/Outline.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace preview {

/// A colour at the parameters' defaults and the parameter, by its index in the symbol, that it follows.
struct Paint {
    Color color;
    std::optional<std::size_t> parameter;
};

/// A number at the parameters' defaults and the sum that it is, in parameters of the symbol.
struct Amount {
    double value = 0.0;
    Sum sum;
};

struct PathPart {
    Outline outline;
    std::optional<Paint> line;
    std::optional<Paint> fill;
    Amount weight; // millimetres
    bool scalable = false;
};

enum class HorizontalAnchor { kLeft, kMiddle, kRight };
enum class VerticalAnchor { kBaseline, kBottom, kMiddle, kTop };

struct TextPart {
    std::wstring content;
    std::optional<std::size_t> contentParameter;
    std::wstring fontName;
    double height = 0.0; // of a capital letter
    Amount angle;        // degrees, counter-clockwise
    Point position;
    HorizontalAnchor horizontal = HorizontalAnchor::kMiddle;
    VerticalAnchor vertical = VerticalAnchor::kMiddle;
    Paint color;
    bool bold = false;
    bool italic = false;
    bool underlined = false;
    bool overlined = false;
};

using Part = std::variant<PathPart, TextPart>;

enum class Usage { kPoint, kLine, kArea };

/// What one simple definition draws and how it is placed.
struct Member {
    std::vector<Part> parts;
    Box bounds; // of all that is seen; the width of texts is an estimate
    Box frame;  // of all parts: a path without colours is not seen but takes its room
    Usage usage = Usage::kPoint;
    bool hasUsage = false;  // without one, the units of the geometry are not known
    Amount angle;           // degrees, counter-clockwise
    bool fromAngle = false; // the angle is measured from the x axis and not from the line
    std::optional<double> repeat;
    double startOffset = 0.0;
    std::optional<double> repeatX;
    std::optional<double> repeatY;
};

/// A parameter of the symbol; members that have one of the same identifier share it.
struct ResolvedParameter {
    std::wstring identifier;
    std::wstring displayName;
    std::wstring description;
    TylModel::Parameter::DataType type = TylModel::Parameter::kText;
    std::wstring defaultValue;
    std::optional<Color> color;       // the default as a colour,
    std::optional<double> number;     // a number,
    std::optional<std::wstring> text; // a text, where it is one
};

struct ResolvedSymbol {
    std::wstring name;
    std::wstring description;
    Usage usage = Usage::kPoint;
    std::vector<Member> members; // in drawing order
    std::vector<ResolvedParameter> parameters;
    std::size_t unreadable = 0; // paths and values that could not be read; paths are then left out
};

/// Reads everything that a symbol says. A value that cannot be read falls back: black, no weight, no angle,
/// no repeat.
ResolvedSymbol Resolve(TylModel::SymbolDefinition& symbol);

} // namespace preview
