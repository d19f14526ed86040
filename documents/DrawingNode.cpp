// Nodes of the drawing document, and the place that reading has got to.
#include "documents/DrawingNode.h"

namespace documents {
namespace {

constexpr std::size_t kShownCharacters =
    60; // of a text in a message; more would hide the rest of the message

// Bytes above 0x7F are left alone; a cut goes before a whole character.
std::string Shortened(std::string_view text) {
    std::size_t length = text.size();
    if (length > kShownCharacters) {
        length = kShownCharacters;
        while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U) {
            --length;
        }
    }
    std::string shown(text.substr(0, length));
    for (char& c : shown) {
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) {
            c = '?';
        }
    }
    return length < text.size() ? shown + "..." : shown;
}

} // namespace

std::string Shown(const NumberToken& number) {
    return number.isInteger ? std::to_string(number.integer) : Shortened(number.text);
}

std::string Shown(std::string_view text) {
    return '"' + Shortened(text) + '"';
}

bool ReadState::Refuse(std::string what, std::string_view below) {
    fault_.path = Path() + std::string(below);
    if (!fault_.path.empty() && fault_.path.front() == '.') {
        fault_.path.erase(0, 1);
    }
    fault_.what = std::move(what);
    return false;
}

void ReadState::Enter(Node& node, bool isArray) {
    if (depth_ == frames_.size()) {
        frames_.emplace_back();
    }
    Frame& frame = frames_[depth_++];
    frame.node = &node;
    frame.isArray = isArray;
    frame.hasPlace = false;
    frame.value = nullptr;
}

Node& ReadState::Leave() {
    return *frames_[--depth_].node;
}

bool ReadState::GoToKey(const std::string& key) {
    Frame& frame = frames_[depth_ - 1];
    frame.hasPlace = true;
    frame.key = key;
    frame.value = frame.node->Key(*this, key);
    return frame.value != nullptr;
}

Node* ReadState::NextInside() {
    Frame& frame = frames_[depth_ - 1];
    if (!frame.isArray) {
        return frame.value;
    }
    frame.index = frame.hasPlace ? frame.index + 1 : 0;
    frame.hasPlace = true;
    return frame.node->Element(*this);
}

std::string ReadState::Path() const {
    std::string path;
    for (std::size_t level = 0; level < depth_ && frames_[level].hasPlace; ++level) {
        const Frame& frame = frames_[level];
        path += frame.isArray ? '[' + std::to_string(frame.index) + ']' : '.' + Shortened(frame.key);
    }
    return path;
}

bool Node::RefuseKind(ReadState& state, std::string_view found) const {
    return state.Refuse("expected " + Expected() + ", found " + std::string(found));
}

bool Node::Boolean(ReadState& state, bool value) {
    return RefuseKind(state, value ? "true" : "false");
}

bool Node::Number(ReadState& state, const NumberToken& /*number*/) {
    return RefuseKind(state, "a number");
}

bool Node::String(ReadState& state, std::string& /*value*/) {
    return RefuseKind(state, "a string");
}

Node* Node::Key(ReadState& state, std::string_view /*key*/) {
    state.Refuse("unknown key");
    return nullptr;
}

Node* Node::Element(ReadState& state) {
    RefuseKind(state, "an array");
    return nullptr;
}

bool Node::End(ReadState& /*state*/) {
    return true;
}

} // namespace documents
