// Elements of QGIS's style files: symbols, their layers and the layers' options.
#pragma once

#include "preview/SvgWriter.h"
#include "styles/Ink.h"

#include <string>
#include <string_view>

namespace styles {

/// Appends elements to a text. What is opened is closed in turn.
class QgisXml {
public:
    explicit QgisXml(std::string& out) : xml_(out) {}

    /// `clipsToMap` lets the program cut geometry at the map's edge.
    void OpenSymbol(std::string_view type, std::string_view name, bool clipsToMap,
                    std::string_view tags = {});
    /// Its options come first.
    void OpenLayer(std::string_view layerClass);
    void Option(std::string_view name, std::string_view value);
    void Option(std::string_view name, const std::string& value) { Option(name, std::string_view(value)); }
    void Option(std::string_view name, const char* value) { Option(name, std::string_view(value)); }
    void Option(std::string_view name, double value);
    /// A length in millimetres, and that it is one.
    void Millimetres(std::string_view name, double value);
    /// An option that holds others.
    void OpenMap(std::string_view name);
    void CloseMap() { xml_.Close(); }
    /// An option whose value is an expression.
    void Expression(std::string_view name, std::string_view expression);
    /// Closes the options of a layer that were opened last.
    void EndOptions() { xml_.Close(); }
    /// A layer's property that is worked out for each feature, behind its options.
    void DataDefined(std::string_view property, std::string_view expression);
    void CloseLayer() { xml_.Close(); }
    void CloseSymbol() { xml_.Close(); }

private:
    preview::SvgWriter xml_;
};

/// "255,0,0,255"
std::string QgisColor(const preview::Color& color);

/// The name of the symbol inside a layer: those of the library are none of them.
std::string InnerName(std::string_view symbol, std::size_t layer);

/// Writes the layer of a plain line, options open, for more of them.
void OpenSimpleLine(QgisXml& xml, const Ink& ink);
/// Writes a marker symbol of a round dot as wide as the pen.
void WriteDotSymbol(QgisXml& xml, const Ink& ink, std::string_view name);

} // namespace styles
