// The shapes of a shape file, drawn.
#pragma once

#include "StyleConversion/shx/ShapesInFile.h"
#include "conversions/Conversion.h"
#include "conversions/Forms.h"

#include <cstdint>
#include <vector>

namespace conversions {

struct GlyphsOptions {
    std::vector<std::int64_t> numbers; // only these, in their order; all shapes where it is empty
    double scale = 1.0;                // path units per shape unit
    double rotation = 0.0;             // degrees, counter-clockwise
    double x = 0.0;                    // where every shape begins, in path units
    double y = 0.0;
    bool vertical = false; // as in vertical text
    bool tolerant = false;
};

/// Shapes that are read and chosen, to be drawn as they are written: all at once may take much memory.
struct ChosenGlyphs {
    bool isConverted = false;
    ShxUtility::ShapesInFile file;
    std::vector<std::size_t> positions; // in its shapes
    std::string encoding;               // of its names
    Captions captions;
    diagnostics::Diagnostics diagnostics;
};

/// All that are asked for, or none: a tolerant choice leaves out what cannot be drawn, and needs one.
ChosenGlyphs ChooseGlyphs(const Input& input, const GlyphsOptions& options, Front& front);

/// The same, drawn as symbols.
Conversion ConvertGlyphs(const Input& input, const GlyphsOptions& options, Front& front);

/// Draws and writes them; a form that is a style takes a job. False when the sink refuses a text.
bool WriteGlyphs(const ChosenGlyphs& glyphs, const GlyphsOptions& options, Form form, const TextSink& sink,
                 Front& front, StyleJob* styles = nullptr);

/// All shapes that have a name, in the order of the file.
Listing ListGlyphs(const Input& input, bool tolerant = false);

} // namespace conversions
