// Linetypes: plain lines with dashes of their own, and lines of markers.

#include "styles/Numbers.h"
#include "styles/QgisSymbols.h"

namespace styles {
namespace {

class LineLayers {
public:
    LineLayers(QgisXml& xml, const preview::ResolvedSymbol& symbol, double scale, std::string_view name,
               Losses& losses)
        : xml_(xml), symbol_(symbol), scale_(scale), name_(name), losses_(losses) {}

    std::size_t Count() const { return count_; }

    void operator()(const Dashes& dashes) {
        OpenSimpleLine(xml_, dashes.ink);
        if (!dashes.lengths.empty()) {
            std::string lengths;
            for (const double length : dashes.lengths) {
                lengths += (lengths.empty() ? "" : ";") + PlainNumber(length);
            }
            xml_.Option("use_custom_dash", "1");
            xml_.Option("customdash", lengths);
            xml_.Option("customdash_unit", "MM");
            xml_.Millimetres("dash_pattern_offset", dashes.phase);
            // Neither stretched to a line's length nor begun anew at its corners.
            xml_.Option("align_dash_pattern", "0");
            xml_.Option("tweak_dash_pattern_on_corners", "0");
        }
        xml_.EndOptions();
        xml_.CloseLayer();
        ++count_;
    }

    void operator()(const Dots& dots) {
        OpenMarkers(dots.places, true);
        WriteDotSymbol(xml_, dots.ink, InnerName(name_, count_++));
        xml_.CloseLayer();
    }

    void operator()(const Mark& mark) {
        RunList runs(scale_, losses_);
        runs.Add(*mark.part, mark.angle);
        OpenMarkers(mark.places, mark.turnsWithLine);
        xml_.OpenSymbol("marker", InnerName(name_, count_++), false);
        for (const Run& run : runs.Runs()) {
            WriteSvgMarker(xml_, run, mark.anchor, ReachOf(*mark.part, mark.anchor, scale_), scale_, symbol_);
        }
        xml_.CloseSymbol();
        xml_.CloseLayer();
    }

private:
    void OpenMarkers(const Places& places, bool turnsWithLine) {
        xml_.OpenLayer("MarkerLine");
        xml_.Millimetres("interval", places.interval);
        xml_.Millimetres("offset_along_line", places.offset);
        xml_.Option("rotate", turnsWithLine ? "1" : "0");
        xml_.Option("placement", "interval");
        xml_.Option("placements", "Interval");
        // The direction of the line at the very point.
        xml_.Option("average_angle_length", "0");
        xml_.Option("average_angle_unit", "MM");
        xml_.Option("offset", "0");
        xml_.Option("place_on_every_part", "1");
        xml_.EndOptions();
    }

    QgisXml& xml_;
    const preview::ResolvedSymbol& symbol_;
    double scale_;
    std::string_view name_;
    Losses& losses_;
    std::size_t count_ = 0;
};

} // namespace

bool WriteLineLayers(QgisXml& xml, const LineParts& line, const preview::ResolvedSymbol& symbol, double scale,
                     std::string_view name, Losses& losses) {
    LineLayers layers(xml, symbol, scale, name, losses);
    for (const LinePart& part : line.parts) {
        std::visit(layers, part);
    }
    return layers.Count() > 0;
}

} // namespace styles
