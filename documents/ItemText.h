// One item of a document's list, as text.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace documents {

/// A line break and the item's text, indented as an item of a list that is a member of the document.
std::string ItemText(const nlohmann::ordered_json& json);

} // namespace documents
