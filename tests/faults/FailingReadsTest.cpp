// Streams whose reading fails at a byte, for each byte.
#include "StyleConversion/linetype/LineConverter.h"
#include "StyleConversion/platform/Files.h"
#include "StyleConversion/shx/ShxUtility.h"
#include "documents/DrawingReader.h"
#include "tests/faults/Documents.h"
#include "tests/support/ShapeFileBuilder.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace {

using namespace ShxUtility;
using test_support::ShapeFileBuilder;

struct Failing {
    std::string bytes;
    std::size_t failAt;
    std::size_t position = 0;
};

// Hands out the bytes before the one that fails, and then an error, never the end.
ssize_t ReadOrFail(void* cookie, char* buffer, std::size_t size) {
    Failing& file = *static_cast<Failing*>(cookie);
    const std::size_t count = std::min(size, file.failAt - file.position);
    if (count == 0) {
        errno = EIO;
        return -1;
    }
    std::copy_n(file.bytes.data() + file.position, count, buffer);
    file.position += count;
    return static_cast<ssize_t>(count);
}

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

std::unique_ptr<std::FILE, CloseFile> Open(Failing& file) {
    return std::unique_ptr<std::FILE, CloseFile>(
        fopencookie(&file, "rb", {ReadOrFail, nullptr, nullptr, nullptr}));
}

void RefuseEveryFailingByte(const std::string& bytes, std::uint32_t kinds) {
    for (std::size_t failAt = 0; failAt <= bytes.size(); ++failAt) {
        Failing file{bytes, failAt};
        const auto stream = Open(file);
        ShapesInFile shapes;
        const ShxResult result = LoadShapeFile(stream.get(), shapes, kinds);
        // The reader never looks behind the last byte, so an error there is none.
        EXPECT_EQ(result, failAt < bytes.size() ? kMalformed : kSuccess) << failAt;
    }
}

TEST(FailingReads, RefuseAFont) {
    RefuseEveryFailingByte(ShapeFileBuilder::Shapes()
                               .FontInfo("FONT", {6, 2, 0, 0})
                               .Shape(65, "A", {0x14, 0x10, 0})
                               .Shape(66, "", {0x10, 0})
                               .Text(),
                           kFont);
}

TEST(FailingReads, RefuseAUnifont) {
    RefuseEveryFailingByte(ShapeFileBuilder::Unifont()
                               .FontInfo("FONT", {6, 2, 0, 0, 0, 0})
                               .Shape(300, "A", {0x14, 0x10, 0})
                               .Text(),
                           kUnifont);
}

// The one shape file of every name, read until it fails. A stream is closed before the next one is opened.
class FailingFiles : public LineConverter::IGetFile {
public:
    FailingFiles(const std::string& bytes, std::size_t failAt) : file_{bytes, failAt} {}

    std::FILE* GetFile(const wchar_t* /*name*/, const wchar_t* /*extension*/) override {
        file_.position = 0;
        return Open(file_).release();
    }

private:
    Failing file_;
};

TEST(FailingReads, RefuseALinetypeWithTheShape) {
    const std::filesystem::path path = std::filesystem::temp_directory_path() / "failing_reads_test.lin";
    std::ofstream(path, std::ios::binary) << "*X,\nA,1,[MARK,marks.shx],-1\n";
    const std::wstring name = platform::PathFromBytes(path.string());
    const std::string bytes = ShapeFileBuilder::Shapes().Shape(130, "MARK", {0x14, 0}).Text();
    for (std::size_t failAt = 0; failAt <= bytes.size(); ++failAt) {
        FailingFiles files(bytes, failAt);
        const std::unique_ptr<std::vector<TylModel::SymbolDefinition*>> symbols(
            LineConverter::Convert(name.c_str(), nullptr, &files, 1.0));
        EXPECT_EQ(symbols != nullptr, failAt == bytes.size()) << failAt;
        for (std::size_t i = 0; symbols && i < symbols->size(); ++i) {
            delete (*symbols)[i];
        }
    }
    std::filesystem::remove(path);
}

TEST(FailingReads, RefuseADrawing) {
    const std::string text = faults::SmallDrawing();
    for (std::size_t failAt = 0; failAt <= text.size(); ++failAt) {
        Failing file{text, failAt};
        const auto stream = Open(file);
        documents::DrawingError fault;
        EXPECT_EQ(documents::ReadDrawing(stream.get(), fault), nullptr) << failAt;
        EXPECT_FALSE(fault.Text().empty()) << failAt;
    }
}

} // namespace
