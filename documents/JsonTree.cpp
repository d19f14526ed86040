#include "documents/JsonTree.h"

#include "diagnostics/ShownText.h"
#include "documents/DrawingNode.h"

#include <algorithm>
#include <limits>
#include <nlohmann/json.hpp>
#include <utility>

namespace documents {
namespace {

using diagnostics::Code;
using diagnostics::Diagnostic;

// Takes the parser's events. Values that are open stand in a list; each goes into the one before it when it
// ends.
class TreeBuilder : public nlohmann::json_sax<nlohmann::json> {
public:
    TreeBuilder(std::size_t mostLevels, JsonValue& root, Diagnostic& problem)
        : mostLevels_(mostLevels), root_(root), problem_(problem) {}

    bool null() override { return Other("null"); }
    bool boolean(bool value) override { return Other(value ? "true" : "false"); }
    bool number_integer(number_integer_t value) override {
        JsonValue integer;
        integer.kind = JsonValue::Kind::kInteger;
        integer.integer = value;
        return Take(std::move(integer));
    }
    bool number_unsigned(number_unsigned_t value) override {
        return value <= static_cast<number_unsigned_t>(std::numeric_limits<std::int64_t>::max())
                   ? number_integer(static_cast<std::int64_t>(value))
                   : Other(std::to_string(value));
    }
    bool number_float(number_float_t /*value*/, const string_t& text) override {
        return Other(ShownEnd(text));
    }
    bool string(string_t& value) override {
        JsonValue text;
        text.kind = JsonValue::Kind::kText;
        text.text = std::move(value);
        return Take(std::move(text));
    }
    bool binary(binary_t& /*value*/) override { return false; } // JSON text has none
    bool start_object(std::size_t /*elements*/) override { return Start(JsonValue::Kind::kObject); }
    bool key(string_t& value) override {
        open_.back().keys.push_back(std::move(value));
        return true;
    }
    bool end_object() override { return HasNoKeyTwice() && End(); }
    bool start_array(std::size_t /*elements*/) override { return Start(JsonValue::Kind::kList); }
    bool end_array() override { return End(); }

    bool parse_error(std::size_t /*position*/, const std::string& lastToken,
                     const nlohmann::json::exception& error) override {
        // "[json.exception.parse_error.101] parse error at line 1, column 5: ..." with what was read last,
        // which may be of any length.
        std::string text = error.what();
        text.erase(0, std::min(text.find("line "), text.size()));
        if (const std::size_t token = text.find(lastToken); token != std::string::npos) {
            text.replace(token, lastToken.size(), ShownEnd(lastToken));
        }
        return Refuse(Code::kInvalidJson, {diagnostics::ShownText(text)});
    }

private:
    bool Refuse(Code code, std::vector<std::string> subjects) {
        problem_.code = code;
        problem_.subjects = std::move(subjects);
        return false;
    }

    // Of the innermost value that is open.
    std::string Path() const {
        std::string path;
        for (std::size_t i = 0; i + 1 < open_.size(); ++i) {
            const bool isList = open_[i].Is(JsonValue::Kind::kList);
            path += isList ? "[" + std::to_string(open_[i].values.size()) + "]"
                           : (path.empty() ? "" : ".") + diagnostics::ShownText(open_[i].keys.back());
        }
        return path;
    }

    bool HasNoKeyTwice() {
        std::vector<std::string_view> keys(open_.back().keys.begin(), open_.back().keys.end());
        std::sort(keys.begin(), keys.end());
        const auto twice = std::adjacent_find(keys.begin(), keys.end());
        if (twice == keys.end()) {
            return true;
        }
        const std::string path = Path();
        problem_.place.path = (path.empty() ? "" : path + ".") + diagnostics::ShownText(*twice);
        return Refuse(Code::kDuplicateKey, {});
    }

    bool Other(std::string shown) {
        JsonValue other;
        other.text = std::move(shown);
        return Take(std::move(other));
    }

    bool Take(JsonValue value) {
        (open_.empty() ? root_ : open_.back().values.emplace_back()) = std::move(value);
        return true;
    }

    bool Start(JsonValue::Kind kind) {
        if (open_.size() == mostLevels_) {
            return Refuse(Code::kInvalidValue,
                          {"at most " + std::to_string(mostLevels_) + " levels", "more"});
        }
        open_.emplace_back().kind = kind;
        return true;
    }

    bool End() {
        JsonValue value = std::move(open_.back());
        open_.pop_back();
        return Take(std::move(value));
    }

    std::size_t mostLevels_;
    JsonValue& root_;
    Diagnostic& problem_;
    std::vector<JsonValue> open_;
};

} // namespace

const JsonValue* JsonValue::Find(std::string_view key) const {
    const auto found = std::find(keys.begin(), keys.end(), key);
    return found == keys.end() ? nullptr : &values[static_cast<std::size_t>(found - keys.begin())];
}

bool ReadJsonTree(std::string_view text, std::size_t mostLevels, JsonValue& root, Diagnostic& problem) {
    TreeBuilder builder(mostLevels, root, problem);
    return nlohmann::json::sax_parse(text.begin(), text.end(), &builder);
}

} // namespace documents
