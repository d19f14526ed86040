// A result appears whole or not at all.
#include "tests/support/ToolRun.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

using support::RunTool;
#if !defined(_WIN32)
using support::RunToolRedirected;
#endif
using support::ScratchFolder;
using support::ToolResult;

constexpr const char* kPattern = "*LINES,Lines\n0, 0,0, 0,.125\n";

TEST(Output, GoesToStandardOutputOrToTheFile) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", kPattern);
    const ToolResult direct = RunTool({"patterns", file});
    const ToolResult stored = RunTool({"patterns", file, "-o", folder / "a.json"});
    EXPECT_EQ(direct.status, 0);
    EXPECT_EQ(stored.status, 0);
    EXPECT_EQ(stored.output, "");
    EXPECT_EQ(stored.errors, "");
    EXPECT_EQ(folder.Read("a.json"), direct.output);
    EXPECT_TRUE(direct.output.starts_with("{\n  \"format\": \"styleconversion/symbols\",\n"))
        << direct.output;
}

TEST(Output, ReplacesAFileAndLeavesNoOther) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", kPattern);
    folder.Write("a.json", "old");
    EXPECT_EQ(RunTool({"patterns", file, "-o", folder / "a.json"}).status, 0);
    EXPECT_NE(folder.Read("a.json"), "old");
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"a.json", "a.pat"}));
}

TEST(Output, IsLeftAsItWasWhenTheConversionFails) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", kPattern);
    folder.Write("a.json", "old");
    EXPECT_EQ(RunTool({"patterns", file, "--name", "OTHER", "-o", folder / "a.json"}).status, 1);
    EXPECT_EQ(folder.Read("a.json"), "old");
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"a.json", "a.pat"}));
}

TEST(Output, ADirectoryIsRefused) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", kPattern);
    std::filesystem::create_directory(folder / "d");
    const ToolResult result = RunTool({"patterns", file, "-o", folder / "d"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.errors.starts_with((folder / "d") + ": error: cannot be written: ")) << result.errors;
}

TEST(Output, AFolderThatIsNotThereIsNamed) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", kPattern);
    const ToolResult result = RunTool({"patterns", file, "-o", folder / "no/a.json"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              (folder / "no/a.json") + ": error: cannot be written: No such file or directory\n");
}

#if !defined(_WIN32)
TEST(Output, AFullDiskIsAFault) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", kPattern);
    const ToolResult direct = RunToolRedirected({"patterns", file}, "> /dev/full");
    EXPECT_EQ(direct.status, 1);
    EXPECT_EQ(direct.errors, "standard output: error: cannot be written: No space left on device\n");
    const ToolResult named = RunTool({"patterns", file, "-o", "/dev/full"});
    EXPECT_EQ(named.status, 1);
    EXPECT_EQ(named.errors, "/dev/full: error: cannot be written: No space left on device\n");
}

TEST(Output, AClosedPipeIsAFault) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", kPattern);
    const ToolResult result = support::RunToolIntoClosedPipe({"patterns", file});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "standard output: error: cannot be written: Broken pipe\n");
}

TEST(Output, ALinkStaysALink) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", kPattern);
    folder.Write("real.json", "old");
    std::filesystem::create_symlink("real.json", folder / "link.json");
    EXPECT_EQ(RunTool({"patterns", file, "-o", folder / "link.json"}).status, 0);
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link.json"));
    EXPECT_NE(folder.Read("real.json"), "old");
}

TEST(Output, KeepsThePermissionsOfTheFileItReplaces) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", kPattern);
    const std::string target = folder.Write("a.json", "old");
    std::filesystem::permissions(target, std::filesystem::perms::owner_all);
    EXPECT_EQ(RunTool({"patterns", file, "-o", target}).status, 0);
    EXPECT_EQ(std::filesystem::status(target).permissions(), std::filesystem::perms::owner_all);
}
#endif

} // namespace
