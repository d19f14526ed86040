#include "StyleConversion/block/NamedLayers.h"

namespace block {

NamedLayer& NamedLayers::Named(std::wstring_view name) {
    if (last_ != nullptr && last_->name == name) {
        return *last_;
    }
    const auto found = byName_.find(name);
    if (found != byName_.end()) {
        last_ = found->second;
    } else {
        NamedLayer& added = layers_.emplace_back();
        added.name = name;
        byName_.emplace(added.name, &added);
        last_ = &added;
    }
    return *last_;
}

} // namespace block
