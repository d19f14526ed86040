#include "styleconv/InputFile.h"

#include "StyleConversion/platform/CodePage.h"
#include "StyleConversion/platform/Files.h"
#include "StyleConversion/platform/Utf8.h"
#include "styleconv/Messages.h"
#include "styleconv/Paths.h"
#include "styleconv/Progress.h"
#include "styleconv/WorkLimits.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <system_error>
#include <utility>

namespace styleconv {

InputFile::InputFile(std::string argument)
    : argument_(std::move(argument)), name_(argument_ == "-" ? "standard input" : argument_) {}

bool InputFile::Open() {
    NowAtFile(name_);
    BeginStage("Reading");
    return IsStandardInput() || OpenNamed();
}

bool InputFile::Read() {
    if (!Open()) {
        return false;
    }
    if (!ReadAll(Stream(), bytes_)) {
        Say(name_, std::string("cannot be read: ") + std::strerror(errno));
        return false;
    }
    file_.reset();
    return true;
}

bool InputFile::OpenNamed() {
    path_ = platform::PathFromBytes(argument_);
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(NativePath(argument_), error);
    if (status.type() == std::filesystem::file_type::none) {
        Say(name_, "cannot be opened: " + error.default_error_condition().message());
        return false;
    }
    if (!std::filesystem::exists(status)) {
        Say(name_, "cannot be opened: there is no such file");
        return false;
    }
    if (std::filesystem::is_directory(status)) {
        Say(name_, "cannot be read: it is a directory");
        return false;
    }
    if (!std::filesystem::is_regular_file(status)) {
        Say(name_, "cannot be read: it is not a regular file (give \"-\" to read standard input)");
        return false;
    }
    file_.reset(platform::OpenForReading(path_.c_str()));
    if (!file_) {
        Say(name_, std::string("cannot be opened: ") + std::strerror(errno));
        return false;
    }
    return true;
}

bool InputFile::ProvidePath() {
    if (!path_.empty()) {
        return true;
    }
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::temp_directory_path(error);
    if (!temporary_.Create(folder / "styleconv") ||
        std::fwrite(bytes_.data(), 1, bytes_.size(), temporary_.Stream()) != bytes_.size() ||
        !temporary_.Close()) {
        Say(name_, std::string("cannot be copied into a temporary file: ") + std::strerror(errno));
        return false;
    }
    path_ = WidePath(temporary_.Path());
    return true;
}

bool StartsWithByteOrderMark(std::string_view bytes) {
    return bytes.starts_with("\xef\xbb\xbf");
}

bool ChooseCodePage(const InputFile& input, const std::string& requested) {
    if (requested.empty()) {
        return platform::SetAnsiCodePage(platform::IsUtf8(input.Bytes()) ? "UTF-8" : "WINDOWS-1252");
    }
    if (!platform::SetAnsiCodePage(requested)) {
        Say("--code-page", "the encoding " + Shown(requested) + " is not known");
        return false;
    }
    return true;
}

} // namespace styleconv
