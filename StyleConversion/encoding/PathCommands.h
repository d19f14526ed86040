// Path commands and numbers with 15 significant digits ("%.15g"), unscaled, each command ending in a blank.
#pragma once

#include <string>

namespace encoding {

/// Each of the five fills one static buffer that they share and returns a pointer to its zero-terminated
/// text: copy it before the next call, and do not call them from two threads at once.
///
/// Coordinates and radii are in the caller's units. The texts are those of printf in the "C" locale.

/// "M x,y "
const wchar_t* FormatMove(double x, double y);
/// "L x,y "
const wchar_t* FormatLine(double x, double y);
/// "l dx,dy "
const wchar_t* FormatRelativeLine(double dx, double dy);
/// "value", without a blank
const wchar_t* FormatNumber(double value);
/// "A radius,radius 0 large sweep x,y ": a circular arc to the absolute point x,y. The flags are 0 or 1.
const wchar_t* FormatArc(double radius, int largeArc, int sweep, double x, double y);

/// The same through the same buffer, appended to a path.
void AppendMove(std::wstring& path, double x, double y);
void AppendLine(std::wstring& path, double x, double y);
void AppendRelativeLine(std::wstring& path, double dx, double dy);
void AppendNumber(std::wstring& text, double value);
void AppendArc(std::wstring& path, double radius, int largeArc, int sweep, double x, double y);

} // namespace encoding
