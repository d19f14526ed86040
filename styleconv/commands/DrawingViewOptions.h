// The options that say what of a drawing is converted, and how it is seen.
#pragma once

#include "conversions/reading/DrawingView.h"
#include "styleconv/commands/CommandLine.h"

#include <optional>
#include <string>

namespace styleconv {

struct DrawingViewOptions {
    bool modelSpace = false;
    bool expand = false;
    bool fromBasePoint = false;
    bool visibleOnly = false;
    std::string units;
    std::optional<OxCmColor> whiteAs;
};

/// Adds --model-space, --expand, --from-base-point, --visible-only, --color-7 and --units. `options` must
/// live as long as the command.
void AddDrawingViewOptions(Command& command, DrawingViewOptions& options);

/// What the options ask for.
conversions::DrawingView ViewOf(const DrawingViewOptions& options);

} // namespace styleconv
