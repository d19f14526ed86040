// A drawing document, read with what is wrong left out, to symbols.
#include "conversions/Blocks.h"
#include "fuzz/Fuzzing.h"
#include "fuzz/Jobs.h"

#include <string>

namespace {

using fuzzing::Require;

// What repeats may ask for very many dashes and lines, which is no finding: the other target converts those
// that are measured to be small.
bool MayRepeat(std::string_view text) {
    return text.find("dashes") != std::string_view::npos || text.find("pattern") != std::string_view::npos ||
           text.find('\\') != std::string_view::npos;
}

conversions::Conversion Converted(std::string_view text, bool tolerant) {
    conversions::Front front;
    conversions::BlocksOptions options;
    options.tolerant = tolerant;
    return conversions::ConvertBlocks(fuzzing::InputOf(text), options, front);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = fuzzing::Text(data, size);
    if (MayRepeat(text)) {
        return 0;
    }
    const conversions::Conversion strict = Converted(text, false);
    const std::string strictDocument = fuzzing::DocumentOf(strict);
    const conversions::Conversion tolerant = Converted(text, true);
    const std::string document = fuzzing::DocumentOf(tolerant);
    Require(tolerant.isConverted || !strict.isConverted, "whatever a strict reading takes");
    Require(strict.isConverted || !tolerant.isConverted || !tolerant.diagnostics.empty(),
            "a word of what is left out");
    if (strict.isConverted && strict.diagnostics.empty()) {
        Require(strictDocument == document, "the same document from a file without errors");
    }
    return 0;
}
