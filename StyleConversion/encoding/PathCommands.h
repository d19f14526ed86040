// Path commands with 15 significant digits ("%.15g"), unscaled, each ending in a blank.
#pragma once

#include <string>

namespace encoding {

/// Each appends one command. Coordinates and radii are in the caller's units; the texts are those of printf
/// in the "C" locale.

/// "M x,y "
void AppendMove(std::wstring& path, double x, double y);
/// "L x,y "
void AppendLine(std::wstring& path, double x, double y);
/// "l dx,dy "
void AppendRelativeLine(std::wstring& path, double dx, double dy);
/// "A radius,radius 0 large sweep x,y ": a circular arc to the absolute point x,y.
void AppendArc(std::wstring& path, double radius, bool largeArc, bool sweep, double x, double y);

/// "value", without a blank.
std::wstring FormatNumber(double value);

} // namespace encoding
