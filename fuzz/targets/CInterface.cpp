// A call of the C interface: what comes back is whole, whatever the options and the file.
//
// Input: "c", "l" or "k" to convert, list or check; the letter of the kind as for "check", or "y" for a
// symbols document; the options to the end of the line; the file; and behind a byte 30 what the callback
// answers with.
#include "c/StyleConversionC.h"
#include "fuzz/Documents.h"
#include "fuzz/Fuzzing.h"
#include "fuzz/ShapeWork.h"

#include <cstring>
#include <memory>
#include <string>

namespace {

using fuzzing::Require;

struct Release {
    void operator()(styleconversion_result* result) const { styleconversion_release(result); }
};
using Result = std::unique_ptr<styleconversion_result, Release>;

const char* NameOf(char kind) {
    switch (kind) {
    case 'l':
        return "a.lin";
    case 'p':
        return "a.pat";
    case 's':
        return "a.shx";
    default:
        return "a.json";
    }
}

// Shapes that fan out and hatches of very many lines are what files may ask for and no finding.
bool TakesLittleWork(std::string_view bytes) {
    return fuzzing::AllFitBudget(bytes, ShxUtility::kTolerantShapeFilePolicy) &&
           bytes.find("pattern") == std::string_view::npos && bytes.find('\\') == std::string_view::npos;
}

void STYLECONVERSION_CALL Answer(void* context, const char* name, styleconversion_answer* answer) {
    Require(name != nullptr && *name != '\0', "a name to every question");
    const auto& further = *static_cast<const std::string_view*>(context);
    if (!further.empty()) {
        styleconversion_answer_file(answer, further.data(), further.size());
    }
}

using Text = const char*(STYLECONVERSION_CALL*)(const styleconversion_result*, size_t*);

std::string Whole(Text text, const Result& result) {
    size_t size = 0;
    const char* const bytes = text(result.get(), &size);
    Require(bytes != nullptr && bytes[size] == '\0', "a text that ends with a zero");
    Require(std::strlen(bytes) == size, "a text without a zero");
    return {bytes, size};
}

Result Call(char call, const char* name, std::string_view bytes, const std::string& options,
            std::string_view& further) {
    const auto function = call == 'c'   ? styleconversion_convert
                          : call == 'l' ? styleconversion_list
                                        : styleconversion_check;
    return Result(function(name, bytes.data(), bytes.size(), options.c_str(), Answer, &further));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = fuzzing::Text(data, size);
    const std::size_t line = text.find('\n');
    if (line == std::string_view::npos || line < 2 ||
        std::string_view("clk").find(text.front()) == std::string_view::npos) {
        return 0;
    }
    const std::string options(text.substr(2, line - 2));
    std::string_view bytes = text.substr(line + 1);
    std::string_view further;
    if (const std::size_t end = bytes.find('\x1e'); end != std::string_view::npos) {
        further = bytes.substr(end + 1);
        bytes = bytes.substr(0, end);
    }
    if (!TakesLittleWork(bytes) || !TakesLittleWork(further)) {
        return 0;
    }
    const char* const name = NameOf(text[1]);
    const Result result = Call(text.front(), name, bytes, options, further);
    Require(result != nullptr, "a result");
    const int status = styleconversion_status(result.get());
    const std::string document = Whole(styleconversion_document, result);
    const std::string diagnostics = Whole(styleconversion_diagnostics, result);
    const std::string error = Whole(styleconversion_error, result);
    switch (status) {
    case STYLECONVERSION_DONE:
        Require(!document.empty() && error.empty(), "a document");
        break;
    case STYLECONVERSION_INPUT:
        Require(document.empty() && error.empty() && !diagnostics.empty(), "a reason");
        break;
    default:
        Require(status == STYLECONVERSION_USAGE && document.empty() && !error.empty(),
                "an error in the call");
    }
    if (!diagnostics.empty()) {
        fuzzing::RequireJson(diagnostics);
    }
    const Result again = Call(text.front(), name, bytes, options, further);
    Require(again != nullptr && Whole(styleconversion_document, again) == document,
            "the same document twice");
    return 0;
}
