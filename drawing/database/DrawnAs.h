// How entities are drawn: each combination of layer, colour, line weight and linetype is kept once.
#pragma once

#include "OxDb/Export.h"
#include "OxDb/OxCmColor.h"
#include "OxDb/OxDbTypes.h"
#include "drawing/database/NamePool.h"

#include <cstdint>
#include <map>
#include <vector>

namespace drawing {

/// What most entities of a drawing share with many others.
struct DrawnAs {
    NameIndex layer = 0;
    NameIndex linetype = 0;
    OxCmColor color;
    OxDb::LineWeight lineWeight = OxDb::kLnWtByLayer;
    double linetypeScale = 1.0;

    bool operator==(const DrawnAs& other) const;
    bool operator<(const DrawnAs& other) const; // in any order that is one
};

/// Entities hold this instead of a DrawnAs.
using DrawnAsIndex = std::uint32_t;

/// The combinations of one drawing.
class OXDB_API DrawnAsPool {
public:
    /// The index of the combination, which is added when it is new.
    DrawnAsIndex Intern(const DrawnAs& drawnAs);
    /// `index` is one that Intern gave.
    const DrawnAs& At(DrawnAsIndex index) const { return all_[index]; }

private:
    std::vector<DrawnAs> all_;
    std::map<DrawnAs, DrawnAsIndex> indices_;
    DrawnAsIndex last_ = 0; // neighbours are mostly alike
};

} // namespace drawing
