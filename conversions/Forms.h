// The forms in which symbols are written.
#pragma once

#include "StyleConversion/encoding/Fidelity.h"
#include "TylModel/TylModel.h"
#include "conversions/Captions.h"
#include "conversions/reading/Front.h"
#include "diagnostics/Diagnostic.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace conversions {

enum class Form : std::uint8_t {
    kJson,     // the symbols document
    kSvg,      // a picture of one symbol, a sheet of several
    kPng,      // the same, written as SVG here; who stores it makes pixels of it
    kHtml,     // a gallery for the browser
    kQgis,     // a style library for QGIS
    kQml,      // a layer style for QGIS, of one symbol
    kMaplibre, // a style of MapLibre
};

/// Takes the next piece of a result; false ends the writing.
using TextSink = std::function<bool(std::string_view text)>;

/// A picture that a style shows.
struct StylePicture {
    std::string name; // of letters, digits and hyphens
    std::string svg;
    int width = 0; // pixels
    int height = 0;
};

/// How styles are made, and what there is to say about them.
struct StyleJob {
    std::string file;                 // as messages call it, and where symbols tell no other as tags do
    std::vector<std::string> folders; // that were given as a whole; tags say where below them a file is
    bool hatchesInMillimetres = false;
    double scale = 1.0;
    bool allowsApproximate = false;
    bool isBare = false; // a picture of one symbol has nothing around it, and its size in millimetres
    double length = 0.0; // of the line along which a bare line symbol is drawn, in millimetres; 0: as usual
    bool isInGallery = false;             // a gallery holds styles for QGIS, which a reader takes out
    std::vector<StylePicture> pictures;   // what the style needs beside it is added here
    diagnostics::Diagnostics diagnostics; // what styles do not say of the symbols is added here
};

/// Writes symbols of that fidelity, which may be in the list more than once. Captions stand in galleries; a
/// form that is a style takes a job. A form of one symbol, as a bare picture is, takes the first; without one
/// that is false. False when the sink refuses a text.
bool WriteSymbols(const std::vector<TylModel::SymbolDefinition*>& symbols, Form form, const TextSink& sink,
                  Front& front, encoding::Fidelity fidelity = encoding::Fidelity::kStrict,
                  const Captions& captions = {}, StyleJob* styles = nullptr);

} // namespace conversions
