// The expressions that are the values of the symbol model: literals, references to parameters, and sums.
#pragma once

#include "preview/ColorValue.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace preview {

/// The parameters of one symbol definition with their default values.
class ParameterScope {
public:
    /// Of several parameters with one identifier the first one counts.
    void Add(std::wstring identifier, std::wstring defaultValue);

    std::size_t Size() const { return parameters_.size(); }
    const std::wstring& Identifier(std::size_t index) const { return parameters_[index].identifier; }
    const std::wstring& DefaultValue(std::size_t index) const { return parameters_[index].defaultValue; }
    std::optional<std::size_t> Find(std::wstring_view identifier) const;

private:
    struct Entry {
        std::wstring identifier;
        std::wstring defaultValue;
    };

    std::vector<Entry> parameters_;
    std::unordered_map<std::wstring, std::size_t> indices_;
};

/// A sum: a constant, and parameters that are added to it or taken from it.
struct Sum {
    struct Term {
        double factor; // 1 or -1
        std::size_t parameter;
    };

    double constant = 0.0;
    std::vector<Term> terms;
};

/// What stands in an expression, parameters left in place. Nothing when it is no sum of numbers and
/// references to parameters of the scope.
std::optional<Sum> ReadSum(std::wstring_view expression, const ParameterScope& scope);

/// The parameter that the whole expression refers to ("%NAME%"). Identifiers are taken as they are, blanks
/// and "%" included.
std::optional<std::size_t> ReadReference(std::wstring_view expression, const ParameterScope& scope);

/// The value of an expression with every parameter at its default. Nothing when the expression has another
/// form, refers to a parameter that does not exist, or refers to itself by way of the defaults. A number is
/// always finite.
std::optional<double> NumberOf(std::wstring_view expression, const ParameterScope& scope);
std::optional<Color> ColorOf(std::wstring_view expression, const ParameterScope& scope);
std::optional<bool> FlagOf(std::wstring_view expression, const ParameterScope& scope);

/// The text of a quoted expression or a reference to one. Inside the quotes two quotes stand for one; one
/// alone stands for itself, since not every writer doubles them.
std::optional<std::wstring> TextOf(std::wstring_view expression, const ParameterScope& scope);

} // namespace preview
