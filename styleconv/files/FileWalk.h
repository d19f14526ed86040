// The files behind the paths of a command line: those that are named, and those below a folder.
#pragma once

#include "diagnostics/Diagnostic.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace styleconv {

/// Which files of a folder are taken. A pattern has "*" and "?"; it is of the file's name, or with a "/" of
/// its path below the folder.
struct WalkOptions {
    std::vector<std::string> include; // all where it is empty
    std::vector<std::string> exclude;
};

struct Walk {
    std::vector<std::string> files;   // in the order of the paths; those of a folder sorted by their paths
    std::size_t repeated = 0;         // files that were given again, by another path or the same; left out
    std::vector<std::string> folders; // that could be read
    std::size_t others = 0;           // files in folders that are of no kind that is converted
    diagnostics::Diagnostics diagnostics; // folders that cannot be read
};

/// Links to folders are not followed.
Walk FilesBehind(const std::vector<std::string>& paths, const WalkOptions& options);

/// Takes out each file that stands before in the list, however it is spelled. Two names of a file are two
/// files. Returns how many were taken out.
std::size_t KeepFirst(std::vector<std::string>& files);

/// Whether all of `text` is what the pattern says: "*" stands for any characters, "?" for one.
bool MatchesPattern(std::string_view pattern, std::string_view text);

} // namespace styleconv
