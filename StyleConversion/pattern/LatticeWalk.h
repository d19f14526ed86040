// The vectors of a family's lattice that run nearly along the x axis.
#pragma once

#include "StyleConversion/pattern/FamilyLattice.h"

#include <vector>

namespace pattern {

/// A lattice vector.
struct LatticeStep {
    LatticePoint point;
    Vector vector;
};

/// Two vectors that make up the whole lattice of a family with dashes and are as short as such can be, where
/// lengths along the axes count in the units given. Found as Gauss reduces a basis.
struct LatticeBasis {
    LatticeStep first;
    LatticeStep second;
};
LatticeBasis ReducedBasis(const FamilyLattice& lattice, double unitX = 1.0, double unitY = 1.0);

/// The vectors of a family with dashes that lead to the right by more than `from` and at most `to`, and up or
/// down by at most `height`: shortest first, kMostSides at most.
std::vector<LatticeStep> StepsAlongX(const FamilyLattice& lattice, double from, double to, double height);

} // namespace pattern
