// Interned names.
#include "drawing/database/NamePool.h"

namespace drawing {

NameIndex NamePool::Intern(std::wstring_view name) {
    if (const auto known = exact_.find(name); known != exact_.end()) {
        return known->second;
    }
    const auto index = static_cast<NameIndex>(spellings_.size());
    spellings_.push_back({std::wstring(name), 0});
    Spelling& added = spellings_.back();
    const auto [place, isNew] = folded_.try_emplace(added.text, static_cast<std::uint32_t>(things_.size()));
    if (isNew) {
        things_.emplace_back();
    }
    added.things = place->second;
    exact_.emplace(added.text, index);
    return index;
}

NamedThings* NamePool::Find(std::wstring_view name) {
    const auto place = folded_.find(name);
    return place == folded_.end() ? nullptr : &things_[place->second];
}

} // namespace drawing
