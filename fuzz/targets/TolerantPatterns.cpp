// A pattern file, read tolerantly, to symbols.
//
// Input: the pattern file. One that begins with ";mm" or ";in" is scaled to that unit.
#include "conversions/Patterns.h"
#include "fuzz/Fuzzing.h"
#include "fuzz/Jobs.h"

#include <string>

namespace {

using fuzzing::Require;

conversions::Conversion Converted(std::string_view bytes, const conversions::PatternsOptions& options) {
    conversions::Front front;
    return conversions::ConvertPatterns(fuzzing::InputOf(bytes), options, front);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes = fuzzing::Text(data, size);
    conversions::PatternsOptions options;
    const conversions::Conversion strict = Converted(bytes, options);
    const std::string strictDocument = fuzzing::DocumentOf(strict);
    options.tolerant = true;
    const conversions::Conversion tolerant = Converted(bytes, options);
    const std::string document = fuzzing::DocumentOf(tolerant);
    Require(fuzzing::DocumentOf(Converted(bytes, options)) == document, "the same document twice");
    Require(tolerant.isConverted || !strict.isConverted || !strict.diagnostics.empty(),
            "whatever a strict reading takes without a word");
    if (tolerant.isConverted && tolerant.diagnostics.empty()) {
        Require(strict.isConverted && strictDocument == document,
                "the same document from a file without errors");
    }
    if (bytes.starts_with(";mm") || bytes.starts_with(";in")) {
        options.unit = bytes.starts_with(";mm") ? pattern::Unit::kMillimetre : pattern::Unit::kInch;
        fuzzing::DocumentOf(Converted(bytes, options));
    }
    return 0;
}
