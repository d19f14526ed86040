// A linetype as its file states it: a name, a description and the elements of its pattern.
#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace LineConverter {

/// How a shape or text is placed against the line: the fields between its file or style and the "]".
struct ElementTransform {
    /// "A": degrees against the drawing's x axis; NaN when not given. ("A=…r" holds what the file's value ×
    /// π/180 gives.)
    double absoluteRotation = std::numeric_limits<double>::quiet_NaN();
    /// "R": degrees against the line's direction.
    double relativeRotation = 0.0;
    /// "S": a factor on the size.
    double scale = 1.0;
    /// "X", "Y": along the line and to its left, in the units of the dashes.
    double offsetX = 0.0;
    double offsetY = 0.0;
};

enum LinElementKind : std::int32_t {
    kNone = 0, // an element that is still being read
    kDash = 1,
    kShape = 2,
    kText = 3,
};

/// What a shape or text has beside its kind. Which names have a meaning depends on that.
struct ComplexElement {
    /// Of a shape: its name within the file, a to z in upper case, in the file's bytes.
    std::string shapeName;
    /// Of a shape: its SHX file, a to z in upper case, without an extension where the linetype file gives
    /// none.
    std::wstring shapeFile;
    /// Of a text: the bytes between the quotes.
    std::string text;
    /// Of a text: its text style, a to z in upper case.
    std::wstring styleName;
    ElementTransform transform;
};

/// One element of a pattern. Most of them are dashes, and so a dash is small.
struct LinElement {
    LinElementKind kind = kNone;
    /// Where it stands in the file, from 1.
    std::uint32_t line = 0;
    /// Of a dash: positive drawn, negative a gap, 0 a dot.
    double length = 0.0;
    /// Of a shape or text, also while it is still being read; null of a dash.
    std::unique_ptr<ComplexElement> complex;
};

struct LinetypeRecord {
    /// Where the header stands in the file, from 1.
    std::uint32_t line = 0;
    /// The header's bytes between the "*" and the first comma, as written.
    std::string name;
    /// The header's bytes after that comma; empty where there is none.
    std::string description;
    /// In pattern order.
    std::vector<LinElement> elements;
};

} // namespace LineConverter
