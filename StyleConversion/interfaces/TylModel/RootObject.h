// The root of the symbol model's class tree.
#pragma once

#include "TylModel/Export.h"

namespace TylModel {

/// Every object of the model derives from this class. Objects live on the free store, have exactly one owner
/// and are deleted through this virtual destructor. They cannot be copied: what owns parts owns just those.
class TYLMODEL_API TylRootObject {
public:
    TylRootObject();
    virtual ~TylRootObject();
    TylRootObject(const TylRootObject&) = delete;
    TylRootObject& operator=(const TylRootObject&) = delete;
};

/// How many model objects exist now in this process, or -1 in a build that does not count them
/// (STYLECONVERSION_COUNT_MODEL_OBJECTS). For tests that look for objects nobody owns.
TYLMODEL_API long CountLiveObjects();

} // namespace TylModel
