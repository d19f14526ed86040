// Host services that look for files in a list of directories.
#pragma once

#include "OxDb/OxDbHostApplicationServices.h"
#include "drawing/database/FailurePlan.h"

#include <string>
#include <vector>

namespace drawing {

/// Finds regular files in directories.
class OXDB_API HostServices : public OxDbHostApplicationServices {
public:
    /// Finds nothing.
    HostServices();
    /// `directories` are searched in order.
    explicit HostServices(std::vector<std::wstring> directories);
    ~HostServices() override;

    /// In each directory, by the name as it stands and then with ".shx" behind it. Where the file system
    /// tells upper from lower case and has no such file, the first one in byte order whose name differs only
    /// in the case of its letters stands in. An empty name is never found.
    Oxsys::ErrorStatus findFile(wchar_t* path, int pathLength, const wchar_t* fileName,
                                OxDbDatabase* database, FindFileHint hint) override;

    /// As they were given.
    const std::vector<std::wstring>& Directories() const { return directories_; }

    /// Which calls fail, for tests.
    FailurePlan& Failures() { return *failures_; }
    /// Lets calls of these services count and fail by the plan of a database, for tests that let any call
    /// fail. `failures` must outlive these services.
    void ShareFailures(FailurePlan& failures) { failures_ = &failures; }

private:
    std::vector<std::wstring> directories_;
    FailurePlan ownFailures_;
    FailurePlan* failures_ = &ownFailures_;
};

} // namespace drawing
