// Nodes of the drawing document, and the place that reading has got to.
#include "documents/DrawingNode.h"

#include "documents/ShownText.h"

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
        return ShownText(text);
    }
    std::size_t length = kShownBytes;
    while (length > 0 && IsWithinCharacter(text, length)) {
        --length;
    }
    return ShownText(text.substr(0, length)) + "...";
}

} // namespace

std::string ShownEnd(std::string_view text) {
    if (text.size() <= kShownBytes) {
        return ShownText(text);
    }
    std::size_t start = text.size() - kShownBytes;
    while (start < text.size() && IsWithinCharacter(text, start)) {
        ++start;
    }
    return "..." + ShownText(text.substr(start));
}

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

void ReadState::RefuseUnknownKey() {
    Refuse("unknown key");
    keyIsUnknown_ = true;
}

bool ReadState::RefuseSpare(std::string what, std::string_view below, std::string_view consequence) {
    Refuse(std::move(what), below);
    if (slips_ != nullptr) {
        slips_->Add(fault_, consequence, {});
    }
    return slips_ != nullptr;
}

void ReadState::LeaveOut(Node& part) {
    slips_->Add(fault_, "the " + std::string(part.Part()) + " is left out", part.Item());
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

bool ReadState::ForgiveValue(const Node* node, bool isStart) {
    if (slips_ == nullptr || node == nullptr) {
        return false;
    }
    const std::size_t opened = isStart ? 1 : 0;
    if (!node->Part().empty()) {
        // It has not begun, so its name is that of the one before it.
        slips_->Add(fault_, "the " + std::string(node->Part()) + " is left out", {});
        skippedLevels_ = opened;
        return true;
    }
    if (LeaveOutAround(opened)) {
        return true;
    }
    if (depth_ == 0 || node->IsNeeded()) {
        return false;
    }
    slips_->Add(fault_, "the value is skipped", {});
    skippedLevels_ = opened;
    return true;
}

bool ReadState::ForgiveEnd(Node& node) {
    if (slips_ == nullptr) {
        return false;
    }
    if (!node.Part().empty()) {
        LeaveOut(node);
        return true;
    }
    return LeaveOutAround(0);
}

bool ReadState::ForgiveKey() {
    if (slips_ == nullptr) {
        return false;
    }
    // Of a key that is given twice, nobody can say which one counts; of a list of the document, the first.
    if (!keyIsUnknown_ && LeaveOutAround(0)) {
        return true;
    }
    slips_->Add(fault_, "the key is skipped", {});
    skipsNext_ = true;
    return true;
}

bool ReadState::ForgiveCut() {
    if (slips_ == nullptr) {
        return false;
    }
    bool isInBlock = false;
    for (std::size_t level = 0; level < depth_; ++level) {
        isInBlock = isInBlock || frames_[level].node->Part() == "block";
    }
    slips_->Add(fault_,
                isInBlock ? "the block and all that follows are left out" : "all that follows is left out",
                {});
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
