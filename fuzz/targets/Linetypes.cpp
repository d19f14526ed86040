// A linetype file with its shape file to symbols: by the converter of hosts, and by the tool's whole job.
//
// Input: the linetype file and, from the last "Vorlanx-86 " on, the shape file that every name finds.
#include "conversions/Linetypes.h"
#include "StyleConversion/linetype/LinParser.h"
#include "StyleConversion/linetype/LineConverter.h"
#include "fuzz/Documents.h"
#include "fuzz/Fuzzing.h"
#include "fuzz/Inputs.h"
#include "fuzz/Jobs.h"
#include "fuzz/LinetypeServices.h"
#include "fuzz/ShapeWork.h"

#include <algorithm>

using fuzzing::Require;

namespace {

constexpr double kScale = 2.0;

std::string DocumentOfJob(std::string_view text, std::string_view shapeFile) {
    conversions::LinetypesOptions options;
    options.scale = kScale;
    fuzzing::OneShapeFile front(shapeFile);
    return fuzzing::DocumentOf(conversions::ConvertLinetypes(fuzzing::InputOf(text), options, front));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static fuzzing::InputOnDisk input;
    const std::string_view bytes = fuzzing::Text(data, size);
    const std::size_t border = std::min(bytes.rfind("Vorlanx-86 "), size);
    const std::string_view text = bytes.substr(0, border);
    const std::string_view shapeFile = bytes.substr(border);
    fuzzing::ChooseCodePage(text);
    if (!fuzzing::AllFitBudget(shapeFile)) {
        return 0;
    }
    const std::wstring& path = input.Holding(text);
    fuzzing::LinetypeServices services(shapeFile);
    LineConverter::LinParser parser(&services, &services);
    const LineConverter::LinResult result = parser.Parse(path);
    Require(result >= 0 && result <= LineConverter::kShapeFileNotLoaded &&
                result != LineConverter::kOutOfMemory && result != LineConverter::kCannotOpen,
            "a result of reading what is there");
    Require((result == LineConverter::kSuccess) == parser.errorLog().errors().empty(),
            "an error with every failure");

    auto* const converted = LineConverter::Convert(path.c_str(), &services, &services, kScale);
    auto* const again = LineConverter::Convert(path.c_str(), &services, &services, kScale);
    Require((converted != nullptr) == (again != nullptr), "the same result twice");
    Require(converted == nullptr || result == LineConverter::kSuccess,
            "no symbols from a file that is refused");
    Require(converted == nullptr || converted->size() == parser.file().linetypes.size(),
            "a symbol for every linetype");
    const fuzzing::Symbols symbols = fuzzing::Owned(converted);
    const std::string document = fuzzing::TextOf(symbols);
    fuzzing::RequireDocument(document, symbols.size());
    Require(fuzzing::TextOf(fuzzing::Owned(again)) == document, "the same document twice");
    // The text styles of the job are others.
    const std::string fromJob = DocumentOfJob(text, shapeFile);
    Require(fromJob.empty() || !parser.file().fontInfos.empty() || fromJob == document,
            "the same document from the whole job");
    return 0;
}
