// The plain values of a drawing document.
#include "documents/DrawingValues.h"

#include "StyleConversion/platform/Characters.h"
#include "StyleConversion/platform/Utf8.h"

#include <cmath>

namespace documents {
namespace {

bool ReadRgb(std::string_view text, OxCmColor& color) {
    if (text.size() != 7 || text[0] != '#') {
        return false;
    }
    std::array<std::uint8_t, 3> channels{};
    for (std::size_t channel = 0; channel < 3; ++channel) {
        const int high = platform::HexDigitValue(text[1 + 2 * channel]);
        const int low = platform::HexDigitValue(text[2 + 2 * channel]);
        if (high < 0 || low < 0) {
            return false;
        }
        channels[channel] = static_cast<std::uint8_t>(high * 16 + low);
    }
    color.setRGB(channels[0], channels[1], channels[2]);
    return true;
}

} // namespace

OxCmColor ByLayerColor() {
    OxCmColor color;
    color.setByLayer();
    return color;
}

OxCmColor IndexColor(std::uint8_t index) {
    OxCmColor color;
    color.setColorIndex(index);
    return color;
}

bool NumberNode::Number(ReadState& /*state*/, const NumberToken& number) {
    value_ = number.value;
    return true;
}

bool ScaleNode::Number(ReadState& state, const NumberToken& number) {
    return number.value > 0.0 ? NumberNode::Number(state, number) : RefuseKind(state, Shown(number));
}

std::string IntegerNode::Expected() const {
    if (lowest_ == highest_) {
        return "the number " + std::to_string(lowest_);
    }
    const bool isBounded = lowest_ != std::numeric_limits<std::int32_t>::min() ||
                           highest_ != std::numeric_limits<std::int32_t>::max();
    return isBounded ? "a whole number from " + std::to_string(lowest_) + " to " + std::to_string(highest_)
                     : "a whole number of 32 bits";
}

bool IntegerNode::Number(ReadState& state, const NumberToken& number) {
    if (number.value != std::floor(number.value) || number.value < lowest_ || number.value > highest_) {
        return RefuseKind(state, Shown(number));
    }
    value_ = static_cast<std::int32_t>(number.value);
    return true;
}

bool BooleanNode::Boolean(ReadState& /*state*/, bool value) {
    value_ = value;
    return true;
}

bool TextNode::String(ReadState& state, std::string& value) {
    if (value.find('\0') != std::string::npos) {
        return state.RefuseValue("a string without the character U+0000", Shown(value));
    }
    value_ = platform::Utf8ToWide(value);
    return true;
}

bool WordNode::String(ReadState& /*state*/, std::string& value) {
    value_ = std::move(value);
    return true;
}

bool FixedTextNode::String(ReadState& state, std::string& value) {
    return value == text_ || RefuseKind(state, Shown(value));
}

bool ColorNode::Number(ReadState& state, const NumberToken& number) {
    if (number.value != std::floor(number.value) || number.value < 1 || number.value > 255) {
        return RefuseKind(state, Shown(number));
    }
    value_.setColorIndex(static_cast<std::uint8_t>(number.value));
    return true;
}

bool ColorNode::String(ReadState& state, std::string& value) {
    if (value == "ByLayer") {
        value_.setByLayer();
        return true;
    }
    if (value == "ByBlock") {
        value_.setByBlock();
        return true;
    }
    return ReadRgb(value, value_) || RefuseKind(state, Shown(value));
}

TupleNode::TupleNode(std::size_t fewest, std::size_t most, std::string_view form, Owner* owner,
                     const std::array<double, kMostNumbers>& fallback)
    : fewest_(fewest), most_(most), form_(form), owner_(owner), fallback_(fallback), values_(fallback) {}

bool TupleNode::BeginArray(ReadState& /*state*/) {
    values_.fill(0.0);
    count_ = 0;
    return true;
}

Node* TupleNode::Element(ReadState& /*state*/) {
    return &cell_;
}

bool TupleNode::End(ReadState& state) {
    if (count_ < fewest_ || count_ > most_) {
        return RefuseKind(state, count_ == 1 ? "1 number" : std::to_string(count_) + " numbers");
    }
    if (owner_ != nullptr) {
        owner_->Take(*this);
    }
    return true;
}

bool TupleNode::Cell::Number(ReadState& /*state*/, const NumberToken& number) {
    if (tuple_.count_ < kMostNumbers) {
        tuple_.values_[tuple_.count_] = number.value;
    }
    ++tuple_.count_;
    return true;
}

bool NumbersNode::BeginArray(ReadState& /*state*/) {
    values_.clear();
    return true;
}

Node* NumbersNode::Element(ReadState& /*state*/) {
    return &cell_;
}

bool NumbersNode::Cell::Number(ReadState& /*state*/, const NumberToken& number) {
    list_.values_.push_back(number.value);
    return true;
}

bool WordsNode::BeginArray(ReadState& /*state*/) {
    values_.clear();
    return true;
}

Node* WordsNode::Element(ReadState& /*state*/) {
    return &cell_;
}

bool WordsNode::Cell::String(ReadState& /*state*/, std::string& value) {
    list_.values_.push_back(std::move(value));
    return true;
}

} // namespace documents
