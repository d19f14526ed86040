#include "preview/PageTemplate.h"

#include "preview/Markup.h"

#include <algorithm>

namespace preview {
namespace {

constexpr std::string_view kOpen = "{{";
constexpr std::string_view kClose = "}}";

} // namespace

Field Field::Text(std::string_view name, std::string_view utf8) {
    return {name, Escaped(utf8)};
}

Field Field::Text(std::string_view name, std::wstring_view text) {
    return {name, Escaped(text)};
}

Field Field::Markup(std::string_view name, std::string_view markup) {
    return {name, std::string(markup)};
}

std::string Filled(std::string_view pageTemplate, std::initializer_list<Field> fields) {
    std::string text;
    for (;;) {
        const std::size_t open = pageTemplate.find(kOpen);
        const std::size_t close = pageTemplate.find(kClose, open);
        if (open == std::string_view::npos || close == std::string_view::npos) {
            text += pageTemplate;
            return text;
        }
        text += pageTemplate.substr(0, open);
        const std::string_view name = pageTemplate.substr(open + kOpen.size(), close - open - kOpen.size());
        const auto* const field = std::find_if(
            fields.begin(), fields.end(), [&](const Field& candidate) { return candidate.name == name; });
        if (field != fields.end()) {
            text += field->markup;
        }
        pageTemplate.remove_prefix(close + kClose.size());
    }
}

SplitTemplate SplitAt(std::string_view pageTemplate, std::string_view name) {
    const std::string field = std::string(kOpen) + std::string(name) + std::string(kClose);
    const std::size_t at = pageTemplate.find(field);
    if (at == std::string_view::npos) {
        return {pageTemplate, {}};
    }
    return {pageTemplate.substr(0, at), pageTemplate.substr(at + field.size())};
}

} // namespace preview
