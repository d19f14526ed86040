// The parts of a line symbol along a straight level line.
#pragma once

#include "preview/SvgWriter.h"
#include "styles/LineParts.h"

#include <string>

namespace styles {

/// What becomes of parts at the ends of the line.
enum class LineEnds {
    kGoOn, // all that reaches into the picture is drawn, as of a line without an end
    kStop, // dashes are cut there, and marks that would reach over them are left out
};

/// Draws parts in pixels.
class LineDrawing {
public:
    /// The line goes from x 0 to `length` at y `middle`. `scale` is that of the parts. `text` is what the
    /// writer appends to.
    LineDrawing(double length, double middle, double scale, LineEnds ends, const std::string& text,
                preview::SvgWriter& svg)
        : length_(length), middle_(middle), scale_(scale), ends_(ends), text_(text), svg_(svg) {}

    void Draw(const LinePart& part);

    /// Not all could be drawn.
    bool IsTooDense() const { return isTooDense_; }

private:
    void DrawPart(const Dashes& dashes);
    void DrawPart(const Dots& dots);
    void DrawPart(const Mark& mark);
    void AppendDash(double from, double to, std::string& data) const;
    bool Counts(double strokes);
    template <class Visit>
    void ForEachPlace(const Places& places, double behind, double before, const Visit& visit);

    double length_;
    double middle_;
    double scale_;
    LineEnds ends_;
    bool isTooDense_ = false;
    const std::string& text_;
    preview::SvgWriter& svg_;
};

/// Of a dash, a gap and so on.
double PeriodOf(const Dashes& dashes);

/// The box around a mark about its place, its pen included, in scaled units.
preview::Box BoxOf(const Mark& mark, double scale);

} // namespace styles
