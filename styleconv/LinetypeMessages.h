// Why a linetype file could not be converted, in words.
#pragma once

#include "StyleConversion/linetype/LinParser.h"

#include <string>
#include <vector>

namespace styleconv {

/// Where styles and files were looked for, as messages say it.
struct LinetypeSources {
    std::string styles;                  // "in drawing.json"
    std::string linetypeFolder;          // with its separator; empty when it is the current one
    std::vector<std::string> searchPath; // folders as given
};

/// What is wrong, without the linetype and element that it is in.
std::string FaultSentence(const LineConverter::LinFault& fault, const LinetypeSources& sources);

/// Says each fault on standard error, at its line of `file`.
void SayLinetypeFaults(const std::string& file, const std::vector<LineConverter::LinFault>& faults,
                       const LinetypeSources& sources);

/// The folders in which a shape file was looked for: "., lines/, shapes/".
std::string FoldersSearched(const std::wstring& shapeFile, const LinetypeSources& sources);

} // namespace styleconv
