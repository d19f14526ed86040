// Objects of a drawing document: a fixed set of keys, each with a node for its value.
#pragma once

#include "documents/DrawingNode.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace documents {

/// Takes an object with the keys that were bound. A key that is not bound, or comes twice, is refused.
class ObjectNode : public Node {
public:
    std::string Expected() const override { return "an object"; }
    bool BeginObject(ReadState& state) override;
    Node* Key(ReadState& state, std::string_view key) override;
    /// Refuses the object when a required key is missing, then calls Finish.
    bool End(ReadState& state) override;
    void Reset() override;

protected:
    enum Presence { kOptional, kRequired };

    /// Up to 64 keys. `name` and `node` must live as long as this object. Missing keys are looked for in the
    /// order of binding.
    void Bind(std::string_view name, Node& node, Presence presence = kOptional);

    /// Whether the object has a value for this node, which must be bound.
    bool Has(const Node& node) const;
    /// Refuses the object because the key of this node is missing.
    bool RefuseMissing(ReadState& state, const Node& node) const;

    /// All keys are read.
    virtual bool Finish(ReadState& state) = 0;

    struct Binding {
        std::string_view name;
        Node* node;
    };
    const std::vector<Binding>& Bindings() const { return bindings_; }
    /// Bit i stands for binding i.
    std::uint64_t Given() const { return given_; }
    /// From this object to the value of a bound node: ".radius".
    std::string PathOf(const Node& node) const;
    bool RefuseMissingKeys(ReadState& state, std::uint64_t required) const;

private:
    std::size_t IndexOf(const Node& node) const;

    std::vector<Binding> bindings_;
    std::vector<std::uint8_t> byName_; // indices of bindings_, sorted by name
    std::uint64_t given_ = 0;
    std::uint64_t required_ = 0;
};

} // namespace documents
