// What a job asks of the program that runs it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace conversions {

/// A shape file or font that was asked for.
struct FoundFile {
    bool isFound = false;
    std::string name;  // as messages call it
    std::string error; // why it could not be read; empty for one that was
    std::string bytes;
};

/// The one interface between a job and its front: the command line, a page, another program. A job opens no
/// file and shows nothing; it asks here. By itself this front has no files and shows nothing.
class Front {
public:
    Front() = default;
    virtual ~Front() = default;
    Front(const Front&) = delete;
    Front& operator=(const Front&) = delete;

    /// The shape file or font that a linetype file or a drawing calls so. Linetype files' names come in upper
    /// case. Asked once for each name.
    virtual FoundFile FindShapeFile(const std::wstring& name);
    /// Where a file that was not found was looked for, as messages say it: "in ., shapes/". `name` is spelled
    /// as in its file.
    virtual std::string PlacesSearched(const std::wstring& name);

    /// A stage of the work begins: "Reading", "Converting", "Writing". `items` is how many it has; 0 where
    /// that is not known.
    virtual void BeginStage(std::string_view stage, std::size_t items);
    /// The work has come to an item: "pattern BRICK". It may take long.
    virtual void AtItem(std::string_view item);
};

} // namespace conversions
