// Drawn shapes as a JSON document, written glyph by glyph.
#pragma once

#include "StyleConversion/shx/ShapesInFile.h"
#include "StyleConversion/shx/ShxResult.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace documents {

/// Takes the next piece of a document's UTF-8 text. False stops the writing: the piece could not be stored.
using TextSink = std::function<bool(std::string_view)>;

/// A shape, drawn by itself.
struct Glyph {
    std::uint16_t number = 0;
    std::wstring name;
    /// What decoding or drawing reported; path and end count only where it is kSuccess.
    ShxUtility::ShxResult result = ShxUtility::kSuccess;
    std::wstring path;
    /// Where the drawing left the pen, in path units. What is not finite is written as null.
    double endX = 0.0;
    double endY = 0.0;
};

/// Writes one glyphs document: call Add for each glyph in turn, then Finish. The text of one glyph at a time
/// is held in memory.
class GlyphsWriter {
public:
    /// `file` must have been loaded, and is read at the first Add or at Finish.
    GlyphsWriter(const ShxUtility::ShapesInFile& file, TextSink sink) : file_(file), sink_(std::move(sink)) {}

    /// False when the sink refused a piece; nothing more is to be written then.
    bool Add(const Glyph& glyph);
    bool Finish();

private:
    std::string Head() const;

    const ShxUtility::ShapesInFile& file_;
    TextSink sink_;
    std::string text_; // of the last glyph, kept for its room
    bool started_ = false;
};

} // namespace documents
