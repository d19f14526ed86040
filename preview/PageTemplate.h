// Texts with fields that are filled in.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace preview {

/// What goes into a field "{{name}}".
struct Field {
    /// Text, which is escaped.
    static Field Text(std::string_view name, std::string_view utf8);
    static Field Text(std::string_view name, std::wstring_view text);
    /// Markup, style or script, which goes in as it is.
    static Field Markup(std::string_view name, std::string_view markup);

    std::string_view name;
    std::string markup;
};

/// The template with every field filled in; one without a value stays empty. What goes in is not searched for
/// fields.
std::string Filled(std::string_view pageTemplate, std::initializer_list<Field> fields);

/// The template cut in two at a field, for what is written piece by piece.
struct SplitTemplate {
    std::string_view before;
    std::string_view after;
};
SplitTemplate SplitAt(std::string_view pageTemplate, std::string_view name);

} // namespace preview
