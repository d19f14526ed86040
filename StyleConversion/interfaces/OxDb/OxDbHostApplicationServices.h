// What the application around the library offers it.
#pragma once

#include "OxDb/ErrorStatus.h"
#include "OxDb/Export.h"

class OxDbDatabase;

/// Implemented by the host. Holds the drawing that is being worked on, without owning it.
class OXDB_API OxDbHostApplicationServices {
public:
    OxDbHostApplicationServices();
    virtual ~OxDbHostApplicationServices();
    OxDbHostApplicationServices(const OxDbHostApplicationServices&) = delete;
    OxDbHostApplicationServices& operator=(const OxDbHostApplicationServices&) = delete;

    /// What kind of file is looked for.
    enum FindFileHint {
        kDefault = 0,           ///< Any file.
        kFontFile = 1,          ///< A font of the system.
        kCompiledShapeFile = 2, ///< A shape file (.shx).
    };

    /// Looks for a file along the host's search paths and writes its full path, ended by a zero, to `path`,
    /// which has room for `pathLength` characters. `database`, which may be null, is the drawing that names
    /// the file. On failure, which a path that does not fit is too, `path` is as it was or empty.
    virtual Oxsys::ErrorStatus findFile(wchar_t* path, int pathLength, const wchar_t* fileName,
                                        OxDbDatabase* database = nullptr, FindFileHint hint = kDefault) = 0;

    /// The drawing that is being worked on; null when there is none. Borrowed.
    OxDbDatabase* workingDatabase() const { return workingDatabase_; }
    void setWorkingDatabase(OxDbDatabase* database) { workingDatabase_ = database; }

private:
    OxDbDatabase* workingDatabase_ = nullptr;
};

/// The services of this process; null when the host has set none.
OXDB_API OxDbHostApplicationServices* oxdbHostApplicationServices();
/// Sets them; they stay the host's own and must outlive their use. Null takes them away.
OXDB_API void oxdbSetHostApplicationServices(OxDbHostApplicationServices* services);
