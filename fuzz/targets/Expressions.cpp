// An expression of the symbol model and the parameters that it may refer to.
//
// Input: a line for each parameter, "IDENTIFIER=default", and the expression as the last line.
#include "StyleConversion/platform/Utf8.h"
#include "fuzz/Fuzzing.h"
#include "preview/Expression.h"
#include "preview/Limits.h"

#include <cmath>
#include <string>

namespace {

using fuzzing::Require;

// Takes the parameters off `text` and leaves the expression.
preview::ParameterScope TakeParameters(std::wstring_view& text) {
    preview::ParameterScope scope;
    for (std::size_t end = text.find(L'\n'); end != std::wstring_view::npos; end = text.find(L'\n')) {
        const std::wstring_view line = text.substr(0, end);
        const std::size_t equals = line.find(L'=');
        if (equals != std::wstring_view::npos) {
            scope.Add(std::wstring(line.substr(0, equals)), std::wstring(line.substr(equals + 1)));
        }
        text.remove_prefix(end + 1);
    }
    return scope;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::wstring wide = platform::Utf8ToWide(fuzzing::Text(data, size));
    std::wstring_view expression = wide;
    const preview::ParameterScope scope = TakeParameters(expression);

    const auto number = preview::NumberOf(expression, scope);
    Require(!number || std::isfinite(*number), "a finite number");
    Require(number == preview::NumberOf(expression, scope), "the same number twice");
    const auto sum = preview::ReadSum(expression, scope);
    Require(!number || sum, "a sum behind every number");
    for (std::size_t i = 0; sum && i < sum->terms.size(); ++i) {
        Require(sum->terms[i].parameter < scope.Size(), "terms that are parameters of the scope");
        Require(std::fabs(sum->terms[i].factor) == 1.0, "terms that are added or subtracted");
    }
    const auto reference = preview::ReadReference(expression, scope);
    if (reference) {
        Require(*reference < scope.Size(), "a reference to a parameter of the scope");
        const std::wstring whole = L'%' + scope.Identifier(*reference) + L'%';
        Require(expression.find(whole) != std::wstring_view::npos, "a reference that stands in the text");
    }
    const auto text = preview::TextOf(expression, scope);
    Require(text == preview::TextOf(expression, scope), "the same text twice");
    static_cast<void>(preview::ColorOf(expression, scope));
    static_cast<void>(preview::FlagOf(expression, scope));
    return 0;
}
