// The sink that writes path commands as text.
#pragma once

#include "StyleConversion/encoding/PathCommands.h"

#include <string>

namespace ShxUtility {

/// "M x,y l dx,dy " for every drawn segment and "M x,y A ... " for every arc, at the end of a text.
class PathText {
public:
    /// `path` is borrowed.
    explicit PathText(std::wstring& path) : path_(path) {}

    void MoveTo(double x, double y) { encoding::AppendMove(path_, x, y); }
    void LineBy(double dx, double dy) { encoding::AppendRelativeLine(path_, dx, dy); }
    void ArcTo(double radius, int largeArc, int sweep, double x, double y) {
        encoding::AppendArc(path_, radius, largeArc != 0, sweep != 0, x, y);
    }

private:
    std::wstring& path_;
};

} // namespace ShxUtility
