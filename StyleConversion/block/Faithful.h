// Blocks drawn as their drawing shows them, where what is required is something else.
#pragma once

#include "StyleConversion/encoding/ExactNumbers.h"

namespace block {

/// As long as it lives, block conversions of its thread draw what the drawing shows: no number is cut, and
/// what docs/required-behaviour.md lists is drawn as it says under "faithful". A converter itself holds no
/// more than its host knows of: its drawing, its scale and its layers.
class FaithfulInUse {
public:
    FaithfulInUse();
    ~FaithfulInUse();
    FaithfulInUse(const FaithfulInUse&) = delete;
    FaithfulInUse& operator=(const FaithfulInUse&) = delete;

private:
    bool before_;
    encoding::ExactNumbersInUse exactNumbers_;
};

/// Whether one is alive on this thread.
bool IsFaithful();

} // namespace block
