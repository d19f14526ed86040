#include "fuzz/Inputs.h"

#include "StyleConversion/platform/CodePage.h"
#include "StyleConversion/platform/Files.h"
#include "StyleConversion/platform/Utf8.h"
#include "fuzz/Fuzzing.h"
#include "tests/support/TemporaryStream.h"

#include <random>
#include <system_error>

namespace fuzzing {

Stream OpenBytes(std::string_view bytes) {
#if defined(_WIN32)
    Stream stream(test_support::OpenTemporary());
    Require(stream && std::fwrite(bytes.data(), 1, bytes.size(), stream.get()) == bytes.size(),
            "a temporary file");
    std::rewind(stream.get());
#else
    // Not every library opens a block of no bytes.
    static char nothing = 0;
    char* const block = bytes.empty() ? &nothing : const_cast<char*>(bytes.data());
    Stream stream(fmemopen(block, bytes.empty() ? 1 : bytes.size(), "rb"));
    Require(stream != nullptr, "a stream over memory");
    if (bytes.empty()) {
        std::fgetc(stream.get());
    }
#endif
    return stream;
}

InputOnDisk::InputOnDisk()
    : folder_(std::filesystem::temp_directory_path() /
              ("styleconversion_fuzz_" + std::to_string(std::random_device()()))),
      path_(folder_ / "input"), widePath_(platform::PathFromBytes(path_.string())) {
    Require(std::filesystem::create_directory(folder_), "a temporary folder");
}

InputOnDisk::~InputOnDisk() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

const std::wstring& InputOnDisk::Holding(std::string_view bytes) {
    const Stream file(std::fopen(path_.string().c_str(), "wb"));
    Require(file && std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size(),
            "a temporary file");
    return widePath_;
}

void ChooseCodePage(std::string_view text) {
    const char* page = platform::IsUtf8(text) ? "UTF-8" : "WINDOWS-1252";
    if (text.starts_with(";SJIS")) {
        page = "SHIFT_JIS";
    }
    Require(platform::SetAnsiCodePage(page), "a known code page");
}

} // namespace fuzzing
