#include "preview/Expression.h"

#include "StyleConversion/encoding/NumberReader.h"
#include "StyleConversion/platform/Characters.h"
#include "preview/Limits.h"

#include <cmath>
#include <utility>

namespace preview {
namespace {

using platform::WithoutBlanks;

constexpr wchar_t kReference = L'%';
constexpr wchar_t kQuote = L'\'';

// Longer than any number that a writer makes ("%.5f" of the largest double has 316 characters).
constexpr std::size_t kLongestNumber = 400;

// Reads a number at the start of `text` and takes it off.
std::optional<double> TakeNumber(std::wstring_view& text) {
    std::string narrow;
    for (const wchar_t c : text.substr(0, kLongestNumber)) {
        if (c < L' ' || c > L'~') {
            break;
        }
        narrow += static_cast<char>(c);
    }
    const encoding::NumberReading reading = encoding::ReadNumber(narrow);
    if (reading.used == 0) {
        return std::nullopt;
    }
    text.remove_prefix(reading.used);
    return reading.value;
}

// Reads a reference at the start of `text` and takes it off. The nearest "%" that makes a known identifier
// ends it.
std::optional<std::size_t> TakeReference(std::wstring_view& text, const ParameterScope& scope) {
    std::size_t end = 0;
    for (int i = 0; i < kMostReferenceEnds; ++i) {
        end = text.find(kReference, end + 1);
        if (end == std::wstring_view::npos) {
            return std::nullopt;
        }
        if (const auto found = scope.Find(text.substr(1, end - 1))) {
            text.remove_prefix(end + 1);
            return found;
        }
    }
    return std::nullopt;
}

// Reads the terms of a sum one by one, so that a hostile one ends with the budget of terms.
bool TakeTerm(std::wstring_view& text, double sign, const ParameterScope& scope, Sum& sum) {
    if (text.starts_with(kReference)) {
        const auto parameter = TakeReference(text, scope);
        if (parameter) {
            sum.terms.push_back({sign, *parameter});
        }
        return parameter.has_value();
    }
    const auto number = TakeNumber(text);
    if (number) {
        sum.constant += sign * *number;
    }
    return number.has_value();
}

std::optional<Sum> ReadSumWithin(std::wstring_view expression, const ParameterScope& scope, int& terms) {
    if (const auto parameter = ReadReference(expression, scope)) {
        return --terms < 0 ? std::nullopt : std::optional(Sum{0.0, {{1.0, *parameter}}});
    }
    std::wstring_view rest = WithoutBlanks(expression);
    Sum sum;
    double sign = 1.0;
    if (rest.starts_with(L"-%") || rest.starts_with(L"+%")) {
        sign = rest.front() == L'-' ? -1.0 : 1.0;
        rest.remove_prefix(1);
    }
    for (;;) {
        if (--terms < 0 || !TakeTerm(rest, sign, scope, sum)) {
            return std::nullopt;
        }
        rest = WithoutBlanks(rest);
        if (rest.empty()) {
            return sum;
        }
        if (rest.front() != L'+' && rest.front() != L'-') {
            return std::nullopt;
        }
        sign = rest.front() == L'-' ? -1.0 : 1.0;
        rest = WithoutBlanks(rest.substr(1));
    }
}

std::optional<double> NumberWithin(std::wstring_view expression, const ParameterScope& scope, int& terms) {
    const std::optional<Sum> sum = ReadSumWithin(expression, scope, terms);
    if (!sum) {
        return std::nullopt;
    }
    double value = sum->constant;
    for (const Sum::Term& term : sum->terms) {
        const auto number = NumberWithin(scope.DefaultValue(term.parameter), scope, terms);
        if (!number) {
            return std::nullopt;
        }
        value += term.factor * *number;
    }
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

// Follows references from default to default until an expression is none.
std::optional<std::wstring_view> Literal(std::wstring_view expression, const ParameterScope& scope) {
    for (int i = 0; i < kMostTerms; ++i) {
        const auto parameter = ReadReference(expression, scope);
        if (!parameter) {
            return WithoutBlanks(expression);
        }
        expression = scope.DefaultValue(*parameter);
    }
    return std::nullopt;
}

} // namespace

void ParameterScope::Add(std::wstring identifier, std::wstring defaultValue) {
    if (indices_.try_emplace(identifier, parameters_.size()).second) {
        parameters_.push_back({std::move(identifier), std::move(defaultValue)});
    }
}

std::optional<std::size_t> ParameterScope::Find(std::wstring_view identifier) const {
    const auto found = indices_.find(std::wstring(identifier));
    return found == indices_.end() ? std::nullopt : std::optional(found->second);
}

std::optional<Sum> ReadSum(std::wstring_view expression, const ParameterScope& scope) {
    int terms = kMostTerms;
    return ReadSumWithin(expression, scope, terms);
}

std::optional<std::size_t> ReadReference(std::wstring_view expression, const ParameterScope& scope) {
    const std::wstring_view text = WithoutBlanks(expression);
    const bool enclosed = text.size() >= 2 && text.front() == kReference && text.back() == kReference;
    return enclosed ? scope.Find(text.substr(1, text.size() - 2)) : std::nullopt;
}

std::optional<double> NumberOf(std::wstring_view expression, const ParameterScope& scope) {
    int terms = kMostTerms;
    return NumberWithin(expression, scope, terms);
}

std::optional<Color> ColorOf(std::wstring_view expression, const ParameterScope& scope) {
    const auto literal = Literal(expression, scope);
    return literal ? ReadColor(*literal) : std::nullopt;
}

std::optional<bool> FlagOf(std::wstring_view expression, const ParameterScope& scope) {
    const auto literal = Literal(expression, scope);
    if (literal == L"true") {
        return true;
    }
    return literal == L"false" ? std::optional(false) : std::nullopt;
}

std::optional<std::wstring> TextOf(std::wstring_view expression, const ParameterScope& scope) {
    const auto literal = Literal(expression, scope);
    if (!literal || literal->size() < 2 || literal->front() != kQuote || literal->back() != kQuote) {
        return std::nullopt;
    }
    std::wstring text;
    const std::wstring_view inside = literal->substr(1, literal->size() - 2);
    for (std::size_t i = 0; i < inside.size(); ++i) {
        text += inside[i];
        const bool doubled = inside[i] == kQuote && i + 1 < inside.size() && inside[i + 1] == kQuote;
        i += doubled ? 1 : 0;
    }
    return text;
}

} // namespace preview
