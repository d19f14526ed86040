// A pattern file, read tolerantly, to symbols.
//
// Input: the pattern file. One that begins with ";mm" or ";in" is scaled to that unit.
#include "StyleConversion/pattern/AreaSymbol.h"
#include "StyleConversion/pattern/PatternFile.h"
#include "fuzz/Documents.h"
#include "fuzz/Fuzzing.h"
#include "fuzz/Inputs.h"

#include <string>

namespace {

using fuzzing::Require;

std::string Converted(std::string_view bytes, const pattern::PatternPolicy& policy, bool& hasErrors) {
    pattern::PatternFile file;
    pattern::PatternReading reading;
    pattern::ParsePatternFile(bytes, file, &reading, policy);
    Require(file.patterns.size() == file.descriptions.size(), "a description for every pattern");
    fuzzing::Symbols symbols;
    for (auto& [name, lines] : file.patterns) {
        const auto places = reading.familyLines.find(name);
        Require(reading.headerLines.contains(name), "a header for every pattern");
        Require(lines.size() == (places == reading.familyLines.end() ? 0 : places->second.size()),
                "a place for every family");
        if (auto symbol = pattern::BuildAreaSymbol(name, lines)) {
            symbols.push_back(std::move(symbol));
        }
    }
    hasErrors = !reading.errors.empty() || reading.end != pattern::PatternReading::End::kEndOfFile;
    std::string document = fuzzing::TextOf(symbols);
    fuzzing::RequireDocument(document, symbols.size());
    return document;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes = fuzzing::Text(data, size);
    fuzzing::ChooseCodePage(bytes);
    pattern::PatternPolicy policy = pattern::kTolerantPatternPolicy;
    bool hasErrors = false;
    bool strictHasErrors = false;
    const std::string document = Converted(bytes, policy, hasErrors);
    Require(Converted(bytes, policy, hasErrors) == document, "the same document twice");
    if (!hasErrors) {
        Require(Converted(bytes, {}, strictHasErrors) == document,
                "the same document from a file without errors");
    }
    if (bytes.starts_with(";mm") || bytes.starts_with(";in")) {
        policy.wantedUnit = bytes.starts_with(";mm") ? pattern::Unit::kMillimetre : pattern::Unit::kInch;
        Converted(bytes, policy, hasErrors);
    }
    return 0;
}
