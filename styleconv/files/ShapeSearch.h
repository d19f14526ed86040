// Where the tool looks for shape files and fonts.
#pragma once

#include "conversions/reading/Front.h"

#include <string>
#include <vector>

namespace styleconv {

/// The file that a file of styles stands in, and what the command line says of others. Texts are as given.
struct SearchOptions {
    std::string file;                 // of the linetypes, or the drawing; "-" has no folder
    std::vector<std::string> folders; // where else to look
    std::vector<std::string> fonts;   // of linetypes' text styles
};

/// For a linetype file: by the name as it stands, beside the linetype file, and then in the folders.
class LinetypeShapeSearch {
public:
    explicit LinetypeShapeSearch(SearchOptions options);

    conversions::FoundFile Find(const std::wstring& name) const;
    /// "in ., lines/, shapes/"
    std::string Places(const std::wstring& name) const;

private:
    std::FILE* Open(const std::wstring& name) const;

    SearchOptions options_;
    std::wstring folder_; // of the linetype file, with its separator
};

/// For a drawing: beside it, and then in the folders.
class DrawingShapeSearch {
public:
    explicit DrawingShapeSearch(SearchOptions options);

    conversions::FoundFile Find(const std::wstring& name) const;
    /// "beside the drawing or in a, b"
    std::string Places() const;

private:
    SearchOptions options_;
};

} // namespace styleconv
