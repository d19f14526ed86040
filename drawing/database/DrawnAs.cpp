// How entities are drawn.
#include "drawing/database/DrawnAs.h"

#include <tuple>

namespace drawing {
namespace {

auto PartsOf(const DrawnAs& drawnAs) {
    return std::make_tuple(drawnAs.layer, drawnAs.linetype, drawnAs.color.entityColor(), drawnAs.lineWeight,
                           drawnAs.linetypeScale);
}

} // namespace

bool DrawnAs::operator==(const DrawnAs& other) const {
    return PartsOf(*this) == PartsOf(other);
}

bool DrawnAs::operator<(const DrawnAs& other) const {
    return PartsOf(*this) < PartsOf(other);
}

DrawnAsIndex DrawnAsPool::Intern(const DrawnAs& drawnAs) {
    if (last_ < all_.size() && all_[last_] == drawnAs) {
        return last_;
    }
    const auto next = static_cast<DrawnAsIndex>(all_.size());
    const auto [place, isNew] = indices_.try_emplace(drawnAs, next);
    if (isNew) {
        all_.push_back(drawnAs);
    }
    last_ = place->second;
    return last_;
}

} // namespace drawing
