#include "StyleConversion/block/Faithful.h"

namespace block {
namespace {

thread_local bool isFaithful = false;

} // namespace

FaithfulInUse::FaithfulInUse() : before_(isFaithful) {
    isFaithful = true;
}

FaithfulInUse::~FaithfulInUse() {
    isFaithful = before_;
}

bool IsFaithful() {
    return isFaithful;
}

} // namespace block
