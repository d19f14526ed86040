// Objects whose "type" says which of their keys belong to them.
#pragma once

#include "documents/DrawingObject.h"
#include "documents/DrawingValues.h"

#include <string_view>
#include <vector>

namespace documents {

/// An object with a key "type". All keys of all types are bound; which of them the type takes is settled when
/// the object is complete, since the keys may come in any order.
class TypedObjectNode : public ObjectNode {
protected:
    /// `kind`: "an entity"; for messages.
    explicit TypedObjectNode(std::string_view kind);

    /// Keys that every type takes besides "type".
    void BindCommon(std::string_view name, Node& node);
    /// A type: the keys that it must have and those that it may have, among the bound ones.
    void AddType(std::string_view name, const std::vector<const Node*>& required,
                 const std::vector<const Node*>& optional);

    bool Finish(ReadState& state) final;
    /// The object's keys are those of its type. `type` counts from 0 in the order of AddType.
    virtual bool FinishType(ReadState& state, std::size_t type) = 0;

    /// Refuses a key because the object's type does not take it; true where it is skipped.
    bool RefuseKey(ReadState& state, const Node& node) const;
    /// Refuses the object because it has the key of `node` beside the key `other`.
    bool RefuseKeyBeside(ReadState& state, const Node& node, std::string_view other) const;

private:
    struct Type {
        std::string_view name;
        std::uint64_t required;
        std::uint64_t allowed;
    };

    std::uint64_t BitsOf(const std::vector<const Node*>& nodes) const;

    std::string_view kind_;
    WordNode type_;
    std::uint64_t common_ = 0;
    std::vector<Type> types_;
};

} // namespace documents
