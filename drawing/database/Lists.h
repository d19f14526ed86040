// Lists of the model as the arrays that the interface hands out.
#pragma once

#include "OxDb/OxArray.h"

#include <vector>

namespace drawing {

template <class To, class From>
void CopyTo(OxArray<To>& to, const std::vector<From>& from) {
    to.removeAll();
    to.setPhysicalLength(static_cast<int>(from.size()));
    for (const From& value : from) {
        to.append(value);
    }
}

} // namespace drawing
