// Objects of a drawing document.
#include "documents/DrawingObject.h"

#include <algorithm>
#include <bit>

namespace documents {

ObjectNode::ObjectNode(std::string_view kind) : kind_(kind) {
    Bind("type", type_, kRequired);
    common_ = 1;
}

void ObjectNode::Bind(std::string_view name, Node& node, Presence presence) {
    const auto index = static_cast<std::uint8_t>(bindings_.size());
    bindings_.push_back({name, &node});
    const auto before = [this](std::string_view text, std::uint8_t other) {
        return text < bindings_[other].name;
    };
    byName_.insert(std::upper_bound(byName_.begin(), byName_.end(), name, before), index);
    if (presence == kRequired) {
        required_ |= std::uint64_t{1} << index;
    }
}

void ObjectNode::BindCommon(std::string_view name, Node& node) {
    common_ |= std::uint64_t{1} << bindings_.size();
    Bind(name, node);
}

void ObjectNode::AddType(std::string_view name, const std::vector<const Node*>& required,
                         const std::vector<const Node*>& optional) {
    const std::uint64_t requiredBits = BitsOf(required);
    types_.push_back({name, requiredBits, requiredBits | BitsOf(optional) | common_});
}

std::uint64_t ObjectNode::BitsOf(const std::vector<const Node*>& nodes) const {
    std::uint64_t bits = 0;
    for (const Node* const node : nodes) {
        bits |= std::uint64_t{1} << IndexOf(*node);
    }
    return bits;
}

bool ObjectNode::BeginObject(ReadState& /*state*/) {
    Reset();
    return true;
}

void ObjectNode::Reset() {
    for (std::uint64_t left = given_; left != 0; left &= left - 1) {
        bindings_[static_cast<std::size_t>(std::countr_zero(left))].node->Reset();
    }
    given_ = 0;
}

Node* ObjectNode::Key(ReadState& state, std::string_view key) {
    const auto before = [this](std::uint8_t index, std::string_view text) {
        return bindings_[index].name < text;
    };
    const auto place = std::lower_bound(byName_.begin(), byName_.end(), key, before);
    if (place == byName_.end() || bindings_[*place].name != key) {
        state.RefuseUnknownKey();
        return nullptr;
    }
    const std::uint64_t bit = std::uint64_t{1} << *place;
    if ((given_ & bit) != 0) {
        state.Refuse(diagnostics::Code::kDuplicateKey, {});
        return nullptr;
    }
    given_ |= bit;
    return bindings_[*place].node;
}

bool ObjectNode::End(ReadState& state) {
    return RefuseMissingKeys(state, required_) && (types_.empty() || TakeType(state)) && Finish(state);
}

bool ObjectNode::TakeType(ReadState& state) {
    const auto type = std::find_if(types_.begin(), types_.end(),
                                   [this](const KnownType& known) { return known.name == type_.Value(); });
    if (type == types_.end()) {
        return state.RefuseValue("the type of " + std::string(kind_), Shown(type_.Value()), ".type");
    }
    for (std::uint64_t foreign = given_ & ~type->allowed; foreign != 0; foreign &= foreign - 1) {
        const Binding& binding = bindings_[static_cast<std::size_t>(std::countr_zero(foreign))];
        if (!state.RefuseSpare(diagnostics::Code::kKeyOfOtherType, {std::string(kind_), Shown(type_.Value())},
                               PathOf(*binding.node), "the key")) {
            return false;
        }
    }
    typeIndex_ = static_cast<std::size_t>(type - types_.begin());
    return RefuseMissingKeys(state, type->required);
}

std::size_t ObjectNode::IndexOf(const Node& node) const {
    std::size_t index = 0;
    while (bindings_[index].node != &node) {
        ++index;
    }
    return index;
}

bool ObjectNode::Has(const Node& node) const {
    return (given_ >> IndexOf(node) & 1U) != 0;
}

bool ObjectNode::HasOtherThan(const Node& node) const {
    return (given_ & ~(std::uint64_t{1} << IndexOf(node))) != 0;
}

std::string ObjectNode::PathOf(const Node& node) const {
    return '.' + std::string(bindings_[IndexOf(node)].name);
}

bool ObjectNode::RefuseMissing(ReadState& state, const Node& node) const {
    return state.Refuse(diagnostics::Code::kMissingValue, {node.Expected()}, PathOf(node));
}

bool ObjectNode::RefuseKeyBeside(ReadState& state, const Node& node, std::string_view other) const {
    return state.Refuse(diagnostics::Code::kConflictingKey, {Shown(other)}, PathOf(node));
}

bool ObjectNode::RefuseMissingKeys(ReadState& state, std::uint64_t required) const {
    const std::uint64_t missing = required & ~given_;
    return missing == 0 ||
           RefuseMissing(state, *bindings_[static_cast<std::size_t>(std::countr_zero(missing))].node);
}

} // namespace documents
