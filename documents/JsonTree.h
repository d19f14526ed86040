// A JSON document as a tree, of limited depth and without keys that stand twice.
#pragma once

#include "diagnostics/Diagnostic.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace documents {

struct JsonValue {
    enum class Kind : std::uint8_t { kOther, kInteger, kText, kObject, kList };

    Kind kind = Kind::kOther;
    std::int64_t integer = 0;
    std::string text;              // of a text; of what is kOther, how a message shows it
    std::vector<std::string> keys; // of an object, in its order
    std::vector<JsonValue> values; // of the keys, or of the list

    bool Is(Kind itsKind) const { return kind == itsKind; }
    /// The value of the key of an object; null where there is none.
    const JsonValue* Find(std::string_view key) const;
};

/// Reads UTF-8 text with at most so many objects and lists inside each other. False where it is refused,
/// which is said with the path of the value.
bool ReadJsonTree(std::string_view text, std::size_t mostLevels, JsonValue& root,
                  diagnostics::Diagnostic& problem);

} // namespace documents
