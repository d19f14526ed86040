#include "documents/ItemText.h"

namespace documents {
namespace {

constexpr int kIndent = 2;

} // namespace

std::string ItemText(const nlohmann::ordered_json& json) {
    const std::string text = json.dump(kIndent);
    std::string item = "\n    ";
    item.reserve(text.size() + text.size() / 4);
    // Line ends stand only between values, never inside one, so moving every line to the right is safe.
    for (const char c : text) {
        item += c;
        if (c == '\n') {
            item += "    ";
        }
    }
    return item;
}

} // namespace documents
