#include "StyleConversion/block/NamedLayers.h"

#include <functional>

namespace block {
namespace {

constexpr std::size_t kFirstSlots = 16; // a power of two

} // namespace

NamedLayer& NamedLayers::Named(std::wstring_view name) {
    if (last_ != nullptr && last_->name == name) {
        return *last_;
    }
    if (2 * (layers_.size() + 1) >= slots_.size()) {
        Grow();
    }
    const std::size_t hash = std::hash<std::wstring_view>()(name);
    Slot& slot = SlotFor(name, hash);
    NamedLayer* layer = slot.layer;
    if (layer == nullptr) {
        layer = &layers_.emplace_back();
        layer->name = name;
        slot = {hash, layer};
    }
    last_ = layer;
    return *layer;
}

/// The slot of the name, or the free one that it is to get.
NamedLayers::Slot& NamedLayers::SlotFor(std::wstring_view name, std::size_t hash) {
    const std::size_t mask = slots_.size() - 1;
    std::size_t index = hash & mask;
    while (slots_[index].layer != nullptr &&
           (slots_[index].hash != hash || slots_[index].layer->name != name)) {
        index = (index + 1) & mask;
    }
    return slots_[index];
}

void NamedLayers::Grow() {
    std::vector<Slot> before(slots_.empty() ? kFirstSlots : 2 * slots_.size());
    before.swap(slots_);
    for (const Slot& slot : before) {
        if (slot.layer != nullptr) {
            SlotFor(slot.layer->name, slot.hash) = slot;
        }
    }
}

} // namespace block
