// A pattern file to symbols: by the converter of hosts, and by the tool's whole job.
#include "conversions/Patterns.h"
#include "StyleConversion/pattern/PatternConverter.h"
#include "StyleConversion/pattern/PatternFile.h"
#include "StyleConversion/platform/CodePage.h"
#include "fuzz/Documents.h"
#include "fuzz/Fuzzing.h"
#include "fuzz/Inputs.h"
#include "fuzz/Jobs.h"

#include <algorithm>
#include <string>

namespace {

using fuzzing::Require;

fuzzing::Symbols ConvertAll(const std::wstring& path) {
    PatternConverter converter(path);
    auto* const symbols = new std::vector<TylModel::SymbolDefinition*>;
    converter.ConvertAll(*symbols);
    return fuzzing::Owned(symbols);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static fuzzing::InputOnDisk input;
    const std::string_view bytes = fuzzing::Text(data, size);
    fuzzing::ChooseCodePage(bytes);
    pattern::PatternFile file;
    pattern::PatternReading reading;
    pattern::ParsePatternFile(bytes, file, &reading);
    Require(file.patterns.size() == file.descriptions.size(), "a description for every pattern");
    for (const auto& [name, lines] : file.patterns) {
        Require(reading.headerLines.contains(name), "a header for every pattern");
        const auto places = reading.familyLines.find(name);
        Require(lines.size() == (places == reading.familyLines.end() ? 0 : places->second.size()),
                "a place for every family");
    }

    const std::wstring& path = input.Holding(bytes);
    std::vector<std::wstring> names;
    PatternConverter(path).GetPatternNames(names);
    Require(std::equal(names.begin(), names.end(), file.patterns.begin(), file.patterns.end(),
                       [](const std::wstring& name, const auto& pattern) {
                           return name == platform::AnsiToWide(pattern.first);
                       }),
            "the patterns on disk that are in memory");
    const fuzzing::Symbols symbols = ConvertAll(path);
    const std::string document = fuzzing::TextOf(symbols);
    fuzzing::RequireDocument(document, symbols.size());
    Require(fuzzing::TextOf(ConvertAll(path)) == document, "the same document twice");
    conversions::Front front;
    const conversions::Conversion job = conversions::ConvertPatterns(fuzzing::InputOf(bytes), {}, front);
    const std::string fromJob = fuzzing::DocumentOf(job);
    Require(!job.isConverted || fromJob == document, "the same document from the whole job");
    return 0;
}
