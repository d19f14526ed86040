// Files that end at any byte, as those do that shrink while they are read; and files that vanish.
#include "StyleConversion/linetype/LinParser.h"
#include "StyleConversion/linetype/LineConverter.h"
#include "StyleConversion/pattern/PatternConverter.h"
#include "StyleConversion/platform/Files.h"
#include "StyleConversion/shx/ShxUtility.h"
#include "documents/DrawingReader.h"
#include "tests/faults/Documents.h"
#include "tests/support/MemoryFile.h"
#include "tests/support/ShapeFileBuilder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <random>

namespace {

using test_support::ShapeFileBuilder;

class FileOnDisk {
public:
    FileOnDisk()
        : path_(std::filesystem::temp_directory_path() /
                ("styleconversion_cut_" + std::to_string(std::random_device()()))),
          name_(platform::PathFromBytes(path_.string())) {}
    ~FileOnDisk() { Remove(); }
    FileOnDisk(const FileOnDisk&) = delete;
    FileOnDisk& operator=(const FileOnDisk&) = delete;

    const std::wstring& Holding(const std::string& text) const {
        std::ofstream(path_, std::ios::binary | std::ios::trunc) << text;
        return name_;
    }
    void Remove() const { std::filesystem::remove(path_); }

private:
    std::filesystem::path path_;
    std::wstring name_;
};

std::string Example(const std::string& name) {
    std::ifstream file(std::string(EXAMPLES "/") + name, std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(file), {}};
    EXPECT_FALSE(text.empty()) << name;
    return text;
}

// The number of linetypes that a file becomes; -1 for a refusal.
int CountLinetypes(const std::wstring& name) {
    std::unique_ptr<std::vector<TylModel::SymbolDefinition*>> symbols(
        LineConverter::Convert(name.c_str(), 1.0));
    if (!symbols) {
        return -1;
    }
    for (TylModel::SymbolDefinition* const symbol : *symbols) {
        delete symbol;
    }
    return static_cast<int>(symbols->size());
}

TEST(CutFiles, LinetypesAreRefusedOrThoseBeforeTheCut) {
    const std::string text = Example("linetypes/simple.lin");
    const FileOnDisk file;
    const int all = CountLinetypes(file.Holding(text));
    ASSERT_GT(all, 1);
    for (std::size_t size = 0; size < text.size(); ++size) {
        const int count = CountLinetypes(file.Holding(text.substr(0, size)));
        EXPECT_TRUE(count >= -1 && count <= all) << size;
    }
    EXPECT_EQ(CountLinetypes(file.Holding("")), 0);
}

TEST(CutFiles, PatternsAreThoseBeforeTheCut) {
    const std::string text = faults::SmallPatterns();
    const FileOnDisk file;
    std::size_t before = 0;
    for (std::size_t size = 0; size <= text.size(); ++size) {
        PatternConverter converter(file.Holding(text.substr(0, size)));
        std::vector<std::wstring> names;
        converter.GetPatternNames(names);
        EXPECT_GE(names.size(), before) << size;
        before = names.size();
        std::vector<TylModel::SymbolDefinition*> symbols;
        converter.ConvertAll(symbols);
        EXPECT_LE(symbols.size(), names.size()) << size;
        for (TylModel::SymbolDefinition* const symbol : symbols) {
            delete symbol;
        }
    }
    EXPECT_EQ(before, 2U);
}

TEST(CutFiles, DrawingsAreRefused) {
    const std::string text = faults::SmallDrawing();
    for (std::size_t size = 0; size < text.size(); ++size) {
        documents::DrawingError fault;
        EXPECT_EQ(documents::ReadDrawing(std::string_view(text).substr(0, size), fault), nullptr) << size;
        EXPECT_FALSE(fault.Text().empty()) << size;
    }
    documents::DrawingError fault;
    EXPECT_NE(documents::ReadDrawing(std::string_view(text), fault), nullptr) << fault.Text();
}

TEST(CutFiles, ShapeFilesAreRefused) {
    const std::string bytes =
        ShapeFileBuilder::Shapes().Shape(1, "BOX", {0x10, 0x14, 0}).Shape(2, "", {10, 1, 0, 0}).Text();
    for (std::size_t size = 0; size <= bytes.size(); ++size) {
        const test_support::File stream = test_support::FileOf(bytes.substr(0, size));
        ShxUtility::ShapesInFile shapes;
        const int result = LoadShapeFile(stream.get(), shapes, ShxUtility::kAllKinds);
        EXPECT_EQ(result, size < bytes.size() ? ShxUtility::kMalformed : ShxUtility::kSuccess) << size;
    }
}

TEST(VanishedFiles, AreNoPatternsAndNoLinetypes) {
    const FileOnDisk file;
    PatternConverter converter(file.Holding(faults::SmallPatterns()));
    const std::wstring name = file.Holding("*D,\nA,1,-1\n");
    file.Remove();
    std::vector<std::wstring> names = {L"old"};
    converter.GetPatternNames(names);
    EXPECT_TRUE(names.empty());
    EXPECT_EQ(CountLinetypes(name), -1);
}

} // namespace
