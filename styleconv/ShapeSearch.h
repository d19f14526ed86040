// Where the shape files that a drawing's linetypes draw from are found.
#pragma once

#include "drawing/HostServices.h"

#include <map>
#include <string>
#include <vector>

namespace styleconv {

/// Looks beside a drawing and then in the folders of the command line. Gives out only files that load: what
/// cannot be used is said once, as a note, and is not found from then on.
class ShapeSearch : public drawing::HostServices {
public:
    /// `drawingName` is what messages call the drawing, `drawingPath` its path, empty for standard input.
    ShapeSearch(std::string drawingName, const std::wstring& drawingPath,
                const std::vector<std::string>& folders);
    ~ShapeSearch() override;

    Oxsys::ErrorStatus findFile(wchar_t* path, int pathLength, const wchar_t* fileName,
                                OxDbDatabase* database, FindFileHint hint) override;

private:
    std::wstring Search(const wchar_t* fileName, int pathLength, OxDbDatabase* database, FindFileHint hint);

    std::string drawingName_;
    std::string places_;                         // as a message names them
    std::map<std::wstring, std::wstring> found_; // empty: not there, or of no use
};

} // namespace styleconv
