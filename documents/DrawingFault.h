// Why a drawing document was refused.
#pragma once

#include <string>

namespace documents {

struct DrawingFault {
    std::string path; // of the offending value: "blocks[2].entities[0].radius"; empty for the whole document
    std::string what; // "expected a number, found a string"

    /// Both, as they stand in a message behind the file's name.
    std::string Text() const { return path.empty() ? what : path + ": " + what; }
};

} // namespace documents
