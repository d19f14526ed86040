#include "styleconv/commands/FilesInOrder.h"

#include "StyleConversion/platform/Files.h"
#include "StyleConversion/platform/Utf8.h"
#include "diagnostics/ShownText.h"
#include "styleconv/process/Progress.h"
#include "styleconv/process/WorkLimits.h"
#include "styleconv/process/Workers.h"

#include <thread>

namespace styleconv {
namespace {

// With it, the line of the progress is no wider than usual terminals.
constexpr std::size_t kLongestName = 24;

// The end of the name of the file without folders.
std::string ShortName(const std::string& path) {
    const platform::PathParts parts = platform::SplitPath(platform::PathFromBytes(path));
    const std::wstring name = parts.fileName + parts.extension;
    return name.size() <= kLongestName
               ? diagnostics::ShownText(name)
               : "…" + diagnostics::ShownText(name.substr(name.size() - kLongestName + 1));
}

} // namespace

std::string FileProgress(std::size_t file, std::size_t count, const std::string& soFar,
                         const std::string& name) {
    return "File " + std::to_string(file + 1) + " of " + std::to_string(count) +
           (soFar.empty() ? "" : ", " + soFar) + ", " + ShortName(name) + ": ";
}

void WorkOnFiles(const std::vector<std::string>& files, const FileWork& work) {
    const std::thread::id caller = std::this_thread::get_id();
    const auto name = [&](std::size_t file) {
        if (files.size() > 1 && std::this_thread::get_id() == caller) {
            NameProgress(FileProgress(file, files.size(), work.soFar ? work.soFar() : "", files[file]));
        }
    };
    ItemWork items;
    items.work = [&](std::size_t file) {
        name(file);
        work.work(file);
        NowAtNoFile();
    };
    items.take = work.take;
    items.waitFor = [&](std::size_t file) {
        name(file);
        BeginStage("Converting");
    };
    WorkInOrder(files.size(), CoreCount(), items);
    NameProgress("");
}

} // namespace styleconv
