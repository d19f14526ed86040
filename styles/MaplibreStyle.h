// Symbols as a style of MapLibre: a layer for each, and the pictures that the layers show.
#pragma once

#include "TylModel/TylModel.h"
#include "styles/MapPicture.h"
#include "styles/UniqueNames.h"

#include <functional>
#include <string>
#include <string_view>

namespace styles {

struct MaplibreOptions {
    double scale = 1.0;             // multiplies all lengths but pens
    bool allowsApproximate = false; // takes areas that no picture repeats without a seam
};

/// What became of one symbol.
struct AddedLayer {
    std::string name; // of the layer; no two are alike
    bool isRenamed = false;
    std::string pictureName; // of letters, digits and hyphens; empty where the layer needs no picture
    MapPicture picture;
};

/// Writes one style document: call Add for each symbol in turn, then Finish.
class MaplibreStyleWriter {
public:
    /// Takes the next piece of the document's UTF-8 text. False stops the writing: it could not be stored.
    using Sink = std::function<bool(std::string_view)>;

    MaplibreStyleWriter(Sink sink, const MaplibreOptions& options)
        : sink_(std::move(sink)), options_(options) {}

    /// False when the sink refused a piece; nothing more is to be written then.
    bool Add(TylModel::SymbolDefinition& symbol, AddedLayer& added);
    bool Finish();

private:
    Sink sink_;
    MaplibreOptions options_;
    UniqueNames names_{" (", ")"};
    UniqueNames pictureNames_{"-", ""};
    bool started_ = false;
    bool hasLayer_ = false;
};

} // namespace styles
