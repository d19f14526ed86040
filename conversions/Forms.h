// The forms in which symbols are written.
#pragma once

#include "StyleConversion/encoding/Fidelity.h"
#include "TylModel/TylModel.h"
#include "conversions/Captions.h"
#include "conversions/reading/Front.h"

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace conversions {

enum class Form : std::uint8_t {
    kJson, // the symbols document
    kSvg,  // a picture of one symbol, a sheet of several
    kHtml, // a gallery for the browser
};

/// Takes the next piece of a result; false ends the writing.
using TextSink = std::function<bool(std::string_view text)>;

/// Writes symbols of that fidelity, which may be in the list more than once. Captions stand in galleries.
/// False when the sink refuses a text.
bool WriteSymbols(const std::vector<TylModel::SymbolDefinition*>& symbols, Form form, const TextSink& sink,
                  Front& front, encoding::Fidelity fidelity = encoding::Fidelity::kStrict,
                  const Captions& captions = {});

} // namespace conversions
