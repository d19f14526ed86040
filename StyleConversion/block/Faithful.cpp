#include "StyleConversion/block/Faithful.h"

namespace block {
namespace {

thread_local double faithfulCurves = 0.0; // 0 where none is alive

} // namespace

FaithfulInUse::FaithfulInUse(double curveTolerance) : before_(faithfulCurves) {
    faithfulCurves = curveTolerance;
}

FaithfulInUse::~FaithfulInUse() {
    faithfulCurves = before_;
}

bool IsFaithful() {
    return faithfulCurves > 0.0;
}

double FaithfulCurveTolerance() {
    return faithfulCurves;
}

} // namespace block
