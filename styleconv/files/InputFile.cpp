#include "styleconv/files/InputFile.h"

#include "StyleConversion/platform/Files.h"
#include "styleconv/files/Paths.h"
#include "styleconv/process/Progress.h"
#include "styleconv/process/WorkLimits.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <utility>

namespace styleconv {

using diagnostics::Code;
using diagnostics::Diagnostic;
using diagnostics::Severity;

bool ReadAll(std::FILE* file, std::string& bytes) {
    std::array<char, 1 << 16> block{};
    std::size_t count = 0;
    while ((count = std::fread(block.data(), 1, block.size(), file)) > 0) {
        bytes.append(block.data(), count);
    }
    return std::ferror(file) == 0;
}

InputFile::InputFile(std::string argument)
    : argument_(std::move(argument)), name_(argument_ == "-" ? "standard input" : argument_) {}

std::optional<Diagnostic> InputFile::Open() {
    NowAtFile(name_);
    BeginStage("Reading");
    return IsStandardInput() ? std::nullopt : OpenNamed();
}

std::string InputFile::Start() const {
    if (file_ == nullptr) {
        return {};
    }
    std::array<char, 1 << 12> start{};
    const std::size_t size = std::fread(start.data(), 1, start.size(), file_.get());
    std::rewind(file_.get());
    return {start.data(), size};
}

std::optional<Diagnostic> InputFile::Read() {
    if (std::optional<Diagnostic> problem = Open()) {
        return problem;
    }
    if (!ReadAll(IsStandardInput() ? stdin : file_.get(), bytes_)) {
        return Unreadable(std::strerror(errno));
    }
    file_.reset();
    isRead_ = true;
    return std::nullopt;
}

conversions::Input InputFile::ForJob(const std::string& encoding) const {
    return {name_, bytes_, encoding,
            isRead_             ? nullptr
            : IsStandardInput() ? stdin
                                : file_.get(),
            !isRead_ && !IsStandardInput()};
}

std::optional<Diagnostic> InputFile::OpenNamed() {
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(NativePath(argument_), error);
    if (status.type() == std::filesystem::file_type::none) {
        return Unreadable(error.default_error_condition().message());
    }
    if (!std::filesystem::exists(status)) {
        return Diagnostic{Severity::kError, Code::kMissingFile, {name_}, {}};
    }
    if (std::filesystem::is_directory(status)) {
        return Unreadable("it is a folder, of which \"styleconv convert\" takes all files");
    }
    if (!std::filesystem::is_regular_file(status)) {
        return Unreadable("it is not a regular file (give \"-\" to read standard input)");
    }
    file_.reset(platform::OpenForReading(platform::PathFromBytes(argument_).c_str()));
    return file_ ? std::nullopt : std::optional<Diagnostic>(Unreadable(std::strerror(errno)));
}

Diagnostic InputFile::Unreadable(std::string why) const {
    return {Severity::kError, Code::kUnreadableFile, {name_}, {std::move(why)}};
}

} // namespace styleconv
