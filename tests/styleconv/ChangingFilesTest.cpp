// Files that are replaced, cut, or removed while the tool reads them.
#include "tests/support/ShapeFileBuilder.h"
#include "tests/support/ShapeProgramBuilder.h"
#include "tests/support/ToolRun.h"

#include <atomic>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <thread>

namespace {

using support::RunTool;
using support::ScratchFolder;
using support::ToolResult;
using test_support::ShapeFileBuilder;
using test_support::ShapeProgramBuilder;

// Does something again and again, beside the test, while it lives.
class Meanwhile {
public:
    template <class Work>
    explicit Meanwhile(Work work)
        : thread_([this, work] {
              while (!end_) {
                  work();
              }
          }) {}
    ~Meanwhile() {
        end_ = true;
        thread_.join();
    }
    Meanwhile(const Meanwhile&) = delete;
    Meanwhile& operator=(const Meanwhile&) = delete;

private:
    std::atomic<bool> end_ = false;
    std::thread thread_;
};

struct Example {
    std::string command;
    std::string text;
};

std::vector<Example> Examples() {
    std::string patterns;
    std::string lines;
    ShapeFileBuilder shapes = ShapeFileBuilder::Shapes();
    std::string blocks = R"({"format": "styleconversion/drawing", "version": 1, "blocks": [)";
    for (int i = 1; i <= 200; ++i) {
        const std::string number = std::to_string(i);
        patterns += "*P" + number + ",text\n0, 0,0, 0,.125\n";
        lines += "*L" + number + ",text\nA,1,-1\n";
        shapes.Shape(static_cast<std::uint16_t>(i), "S", ShapeProgramBuilder().Vector(8, 4).End());
        blocks += R"({"name": "B)" + number + R"(", "entities": [{"type": "point", "position": [1, 2]}]},)";
    }
    blocks.back() = ']';
    return {
        {"patterns", patterns}, {"linetypes", lines}, {"glyphs", shapes.Text()}, {"blocks", blocks + "}"}};
}

constexpr int kRuns = 5;

// Either the whole of a result and no complaint about the input, or a complaint and the old result.
void ExpectAllOrNothing(const ScratchFolder& folder, const Example& example, const std::string& file) {
    folder.Write("out", "old");
    const ToolResult result = RunTool({example.command, file, "-o", folder / "out"});
    const std::string written = folder.Read("out");
    if (result.status == 0) {
        EXPECT_TRUE(written.starts_with("{\n") && written.ends_with("}\n")) << example.command;
    } else {
        EXPECT_EQ(result.status, 1) << example.command << ": " << result.errors;
        EXPECT_TRUE(result.errors.starts_with(file + ":")) << example.command << ": " << result.errors;
        EXPECT_EQ(written, "old") << example.command;
    }
}

TEST(ChangingFiles, ThatVanishAndComeBackGiveAResultOrAFault) {
    for (const Example& example : Examples()) {
        const ScratchFolder folder;
        const ScratchFolder elsewhere;
        const std::string file = folder.Write("in", example.text);
        const Meanwhile moving([&] {
            std::error_code ignored;
            std::filesystem::rename(file, elsewhere / "in", ignored);
            std::filesystem::rename(elsewhere / "in", file, ignored);
        });
        for (int run = 0; run < kRuns; ++run) {
            ExpectAllOrNothing(folder, example, file);
        }
    }
}

TEST(ChangingFiles, ThatAreCutAndGrowGiveAResultOrAFault) {
    for (const Example& example : Examples()) {
        const ScratchFolder folder;
        const std::string file = folder.Write("in", example.text);
        const Meanwhile growing([&] {
            std::ofstream stream(file, std::ios::binary);
            for (std::size_t at = 0; at < example.text.size(); at += 500) {
                stream << example.text.substr(at, 500) << std::flush;
            }
        });
        for (int run = 0; run < kRuns; ++run) {
            ExpectAllOrNothing(folder, example, file);
        }
    }
}

} // namespace
