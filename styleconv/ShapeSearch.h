// Where the shape files that a drawing's linetypes draw from are found.
#pragma once

#include "drawing/HostServices.h"
#include "styleconv/TemporaryFile.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace styleconv {

/// What a search does beside searching.
enum class ShapeSearchManner : std::uint8_t {
    kSayNotes, // says once of each file that it cannot be used
    kQuiet,
    kForgiving, // says nothing of that, but which files it forgives something and what it lets stand in
};

/// Looks beside a drawing and then in the folders of the command line. Gives out only files that load: what
/// cannot be used is not found. A search that forgives gives out copies, mended, of files of any maker's
/// signature or without a trailer, and the built-in font in place of a txt.shx that is not there.
class ShapeSearch : public drawing::HostServices {
public:
    /// `drawingName` is what messages call the drawing, `drawingPath` its path, empty for standard input.
    ShapeSearch(std::string drawingName, const std::wstring& drawingPath,
                const std::vector<std::string>& folders,
                ShapeSearchManner manner = ShapeSearchManner::kSayNotes);
    ~ShapeSearch() override;

    Oxsys::ErrorStatus findFile(wchar_t* path, int pathLength, const wchar_t* fileName,
                                OxDbDatabase* database, FindFileHint hint) override;

    /// Why a file of that name, which was searched for, was not given out: "shape file marks.shx not found
    /// beside the drawing". Empty for one that was.
    std::string WhyNot(const std::wstring& fileName) const;

private:
    struct Result {
        std::wstring path;  // empty: not there, or of no use
        std::string whyNot; // as a message has it
    };

    Result Search(const wchar_t* fileName, int pathLength, OxDbDatabase* database, FindFileHint hint);
    Result Loadable(const std::wstring& path, const wchar_t* fileName);
    Result StandIn(const wchar_t* fileName);
    // The path of a temporary file of these bytes; empty, with errno set, where that cannot be written.
    std::wstring Provide(std::string_view bytes);

    std::string drawingName_;
    std::string places_; // as a message names them
    ShapeSearchManner manner_;
    std::map<std::wstring, Result> found_;
    std::vector<std::unique_ptr<TemporaryFile>> provided_;
};

} // namespace styleconv
