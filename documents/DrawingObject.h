// Objects of a drawing document: a fixed set of keys, each with a node for its value.
#pragma once

#include "documents/DrawingNode.h"
#include "documents/DrawingValues.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace documents {

/// Takes an object with the keys that were bound. A key that is not bound, or comes twice, is refused. Where
/// the object has types, its key "type" says which of the keys it takes; that is settled when the object is
/// complete, since keys come in any order.
class ObjectNode : public Node {
public:
    enum Presence { kOptional, kRequired };

    ObjectNode() = default;
    /// An object with types. `kind`: "an entity"; for messages.
    explicit ObjectNode(std::string_view kind);

    /// Up to 64 keys. `name` and `node` must live as long as this object. Missing keys are looked for in the
    /// order of binding.
    void Bind(std::string_view name, Node& node, Presence presence = kOptional);
    /// A key that every type takes.
    void BindCommon(std::string_view name, Node& node);
    /// A type: the keys that it must have and those that it may have, among the bound ones.
    void AddType(std::string_view name, const std::vector<const Node*>& required,
                 const std::vector<const Node*>& optional);

    /// Whether the object has a value for this node, which must be bound.
    bool Has(const Node& node) const;
    /// Whether it has a value for any other node.
    bool HasOtherThan(const Node& node) const;
    /// From this object to the value of a bound node: ".radius".
    std::string PathOf(const Node& node) const;
    /// Refuses the object because the key of this node is missing. Always false, like the next.
    bool RefuseMissing(ReadState& state, const Node& node) const;
    /// Refuses the object because it has the key of `node` beside the key `other`.
    bool RefuseKeyBeside(ReadState& state, const Node& node, std::string_view other) const;

    std::string Expected() const override { return "an object"; }
    bool BeginObject(ReadState& state) override;
    Node* Key(ReadState& state, std::string_view key) override;
    /// Refuses the object when a required key is missing or one does not belong to its type, then calls
    /// Finish.
    bool End(ReadState& state) override;
    void Reset() override;

protected:
    /// All keys are read, and are those of the object's type.
    virtual bool Finish(ReadState& state) = 0;
    /// The object's type, from 0 in the order of AddType.
    std::size_t Type() const { return typeIndex_; }

private:
    struct Binding {
        std::string_view name;
        Node* node;
    };
    struct KnownType {
        std::string_view name;
        std::uint64_t required;
        std::uint64_t allowed;
    };

    std::size_t IndexOf(const Node& node) const;
    std::uint64_t BitsOf(const std::vector<const Node*>& nodes) const;
    bool RefuseMissingKeys(ReadState& state, std::uint64_t required) const;
    bool TakeType(ReadState& state);

    // Bit i of a set of keys stands for binding i.
    std::vector<Binding> bindings_;
    std::vector<std::uint8_t> byName_; // bindings in the order of their names
    std::uint64_t required_ = 0;
    std::uint64_t given_ = 0;

    std::string_view kind_;
    WordNode type_;
    std::size_t typeIndex_ = 0;
    std::uint64_t common_ = 0;
    std::vector<KnownType> types_; // none: the object is of one kind
};

} // namespace documents
