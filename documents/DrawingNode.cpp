// Nodes of the drawing document, and the place that reading has got to.
#include "documents/DrawingNode.h"

#include "diagnostics/ShownText.h"

namespace documents {
namespace {

// Bytes of a text in a message; more would hide the rest of the message.
constexpr std::size_t kShownBytes = 60;

bool IsWithinCharacter(std::string_view text, std::size_t position) {
    return (static_cast<unsigned char>(text[position]) & 0xC0U) == 0x80U;
}

// A cut goes before a whole character.
std::string Shortened(std::string_view text) {
    if (text.size() <= kShownBytes) {
        return diagnostics::ShownText(text);
    }
    std::size_t length = kShownBytes;
    while (length > 0 && IsWithinCharacter(text, length)) {
        --length;
    }
    return diagnostics::ShownText(text.substr(0, length)) + "...";
}

} // namespace

std::string ShownEnd(std::string_view text) {
    if (text.size() <= kShownBytes) {
        return diagnostics::ShownText(text);
    }
    std::size_t start = text.size() - kShownBytes;
    while (start < text.size() && IsWithinCharacter(text, start)) {
        ++start;
    }
    return "..." + diagnostics::ShownText(text.substr(start));
}

std::string Shown(const NumberToken& number) {
    return number.isInteger ? std::to_string(number.integer) : Shortened(number.text);
}

std::string Shown(std::string_view text) {
    return '"' + Shortened(text) + '"';
}

bool ReadState::Refuse(diagnostics::Code code, std::vector<std::string> subjects, std::string_view below) {
    error_.path = Path() + std::string(below);
    if (!error_.path.empty() && error_.path.front() == '.') {
        error_.path.erase(0, 1);
    }
    error_.code = code;
    error_.subjects = std::move(subjects);
    return false;
}

bool ReadState::RefuseValue(std::string expected, std::string found, std::string_view below) {
    return Refuse(diagnostics::Code::kInvalidValue, {std::move(expected), std::move(found)}, below);
}

void ReadState::RefuseUnknownKey() {
    Refuse(diagnostics::Code::kUnknownKey, {});
    keyIsUnknown_ = true;
}

bool ReadState::RefuseSpare(diagnostics::Code code, std::vector<std::string> subjects, std::string_view below,
                            std::string_view part) {
    Refuse(code, std::move(subjects), below);
    if (tolerated_ != nullptr) {
        tolerated_->Add(error_, part, {});
    }
    return tolerated_ != nullptr;
}

void ReadState::LeaveOut(Node& part) {
    tolerated_->Add(error_, "the " + std::string(part.Part()), part.Item());
    part.Abandon(*this);
}

bool ReadState::LeaveOutAround(std::size_t opened) {
    for (std::size_t inner = depth_; inner > 0; --inner) {
        Node& part = *frames_[inner - 1].node;
        if (!part.Part().empty()) {
            skippedLevels_ = depth_ - inner + 1 + opened;
            depth_ = inner - 1;
            LeaveOut(part);
            return true;
        }
    }
    return false;
}

bool ReadState::TolerateValue(const Node* node, bool isStart) {
    if (tolerated_ == nullptr || node == nullptr) {
        return false;
    }
    const std::size_t opened = isStart ? 1 : 0;
    if (!node->Part().empty()) {
        // It has not begun, so its name is that of the one before it.
        tolerated_->Add(error_, "the " + std::string(node->Part()), {});
        skippedLevels_ = opened;
        return true;
    }
    if (LeaveOutAround(opened)) {
        return true;
    }
    if (depth_ == 0 || node->IsNeeded()) {
        return false;
    }
    tolerated_->Add(error_, "the value", {});
    skippedLevels_ = opened;
    return true;
}

bool ReadState::TolerateEnd(Node& node) {
    if (tolerated_ == nullptr) {
        return false;
    }
    if (!node.Part().empty()) {
        LeaveOut(node);
        return true;
    }
    return LeaveOutAround(0);
}

bool ReadState::TolerateKey() {
    if (tolerated_ == nullptr) {
        return false;
    }
    // Of a key that is given twice, nobody can say which one counts; of a list of the document, the first.
    if (!keyIsUnknown_ && LeaveOutAround(0)) {
        return true;
    }
    tolerated_->Add(error_, "the key", {});
    skipsNext_ = true;
    return true;
}

bool ReadState::TolerateCut() {
    if (tolerated_ == nullptr) {
        return false;
    }
    bool isInBlock = false;
    for (std::size_t level = 0; level < depth_; ++level) {
        isInBlock = isInBlock || frames_[level].node->Part() == "block";
    }
    tolerated_->Add(error_, isInBlock ? "the block and all that follows" : "all that follows", {});
    for (std::size_t level = 0; level < depth_; ++level) {
        frames_[level].node->Abandon(*this);
    }
    return true;
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
    keyIsUnknown_ = false;
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
    return state.RefuseValue(Expected(), std::string(found));
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
    state.RefuseUnknownKey();
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
