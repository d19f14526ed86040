// Objects whose "type" says which of their keys belong to them.
#include "documents/DrawingTypedObject.h"

#include <algorithm>
#include <bit>

namespace documents {

TypedObjectNode::TypedObjectNode(std::string_view kind) : kind_(kind) {
    Bind("type", type_, kRequired);
    common_ = 1;
}

void TypedObjectNode::BindCommon(std::string_view name, Node& node) {
    common_ |= std::uint64_t{1} << Bindings().size();
    Bind(name, node);
}

std::uint64_t TypedObjectNode::BitsOf(const std::vector<const Node*>& nodes) const {
    std::uint64_t bits = 0;
    for (std::size_t index = 0; index < Bindings().size(); ++index) {
        if (std::find(nodes.begin(), nodes.end(), Bindings()[index].node) != nodes.end()) {
            bits |= std::uint64_t{1} << index;
        }
    }
    return bits;
}

void TypedObjectNode::AddType(std::string_view name, const std::vector<const Node*>& required,
                              const std::vector<const Node*>& optional) {
    const std::uint64_t requiredBits = BitsOf(required);
    types_.push_back({name, requiredBits, requiredBits | BitsOf(optional) | common_});
}

bool TypedObjectNode::Finish(ReadState& state) {
    const auto type = std::find_if(types_.begin(), types_.end(),
                                   [this](const Type& known) { return known.name == type_.Value(); });
    if (type == types_.end()) {
        return state.Refuse("expected the type of " + std::string(kind_) + ", found " + Shown(type_.Value()),
                            ".type");
    }
    for (std::uint64_t foreign = Given() & ~type->allowed; foreign != 0; foreign &= foreign - 1) {
        if (!RefuseKey(state, *Bindings()[static_cast<std::size_t>(std::countr_zero(foreign))].node)) {
            return false;
        }
    }
    return RefuseMissingKeys(state, type->required) &&
           FinishType(state, static_cast<std::size_t>(type - types_.begin()));
}

bool TypedObjectNode::RefuseKey(ReadState& state, const Node& node) const {
    return state.RefuseSpare(std::string(kind_) + " of type " + Shown(type_.Value()) + " has no such key",
                             PathOf(node), "the key is skipped");
}

bool TypedObjectNode::RefuseKeyBeside(ReadState& state, const Node& node, std::string_view other) const {
    return state.Refuse("this key cannot be given beside " + Shown(other), PathOf(node));
}

} // namespace documents
