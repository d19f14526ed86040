// Work on the files of a command on all cores, with progress that names them.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace styleconv {

/// What is done with each file, by its number in the list.
struct FileWork {
    /// On any thread, in any order.
    std::function<void(std::size_t file)> work;
    /// On the calling thread, in the order of the list, when the work is done.
    std::function<void(std::size_t file)> take;
    /// What the files that were taken came to, as "12 symbols", for the progress; on the calling thread.
    std::function<std::string()> soFar;
};

void WorkOnFiles(const std::vector<std::string>& files, const FileWork& work);

/// "File 3 of 200, 17 symbols, gas.pat: "; of a long name, its end.
std::string FileProgress(std::size_t file, std::size_t count, const std::string& soFar,
                         const std::string& name);

} // namespace styleconv
