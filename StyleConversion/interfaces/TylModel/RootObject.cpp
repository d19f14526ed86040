// Counting of live model objects, in builds that ask for it.
#include "TylModel/RootObject.h"

#if defined(TYLMODEL_COUNT_OBJECTS)
#include <atomic>
#endif

namespace TylModel {

#if defined(TYLMODEL_COUNT_OBJECTS)

namespace {
std::atomic<long> liveObjects{0};
} // namespace

TylRootObject::TylRootObject() {
    ++liveObjects;
}

TylRootObject::~TylRootObject() {
    --liveObjects;
}

long CountLiveObjects() {
    return liveObjects;
}

#else

TylRootObject::TylRootObject() = default;
TylRootObject::~TylRootObject() = default;

long CountLiveObjects() {
    return -1;
}

#endif

} // namespace TylModel
