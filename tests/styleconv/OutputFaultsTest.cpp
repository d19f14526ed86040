// Writing fails, at any byte: the result is a fault, and what stood there stays.
#include "tests/support/ToolRun.h"

#include <gtest/gtest.h>

namespace {

#if !defined(_WIN32)
using support::RunToolRedirected;
#endif
using support::RunTool;
using support::ScratchFolder;
using support::ToolResult;

#if defined(__linux__)
std::string ManyPatterns() {
    std::string text;
    for (int i = 0; i < 20; ++i) {
        text += "*P" + std::to_string(i) + ",text\n0, 0,0, 0,.125\n45, 0,0, 0,.5\n";
    }
    return text;
}

TEST(OutputFaults, AWriteThatFailsAtAnyByteLeavesTheOldFile) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", ManyPatterns());
    const std::size_t size = RunTool({"patterns", file}).output.size();
    ASSERT_GT(size, 20000U);
    for (const std::size_t limit : {std::size_t{0}, std::size_t{1}, std::size_t{300}, std::size_t{4095},
                                    std::size_t{4096}, std::size_t{4097}, size / 2, size - 1}) {
        folder.Write("a.json", "old");
        const ToolResult result =
            support::RunToolWithFileSizeLimit(limit, {"patterns", file, "-o", folder / "a.json"});
        EXPECT_EQ(result.status, 1) << limit;
        EXPECT_EQ(folder.Read("a.json"), "old") << limit;
        EXPECT_EQ(folder.Names(), (std::vector<std::string>{"a.json", "a.pat"})) << limit;
        if (limit >= 300) {
            EXPECT_EQ(result.errors, (folder / "a.json") + ": error: cannot be written: File too large\n")
                << limit;
        }
    }
    EXPECT_EQ(support::RunToolWithFileSizeLimit(size, {"patterns", file, "-o", folder / "a.json"}).status, 0);
    EXPECT_EQ(folder.Read("a.json").size(), size);
}
#endif

#if !defined(_WIN32)
TEST(OutputFaults, ClosedStandardOutputIsAFault) {
    const ScratchFolder folder;
    const std::string pattern = folder.Write("a.pat", "*LINES,Lines\n0, 0,0, 0,.125\n");
    const std::string lines = folder.Write("a.lin", "*D,\nA,1,-1\n");
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"patterns", pattern}, {"linetypes", lines}, {"list", pattern}}) {
        const ToolResult result = RunToolRedirected(arguments, ">&-");
        EXPECT_EQ(result.status, 1) << arguments[0];
        EXPECT_TRUE(result.errors.starts_with("standard output: error: cannot be written: "))
            << result.errors;
    }
    // Only the result is missing it: with a file to write to nothing is.
    const ToolResult result = RunToolRedirected({"patterns", pattern, "-o", folder / "a.json"}, ">&-");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(folder.Read("a.json"), RunTool({"patterns", pattern}).output);
}

TEST(OutputFaults, ClosedStandardErrorChangesNoStatus) {
    const ScratchFolder folder;
    const std::string pattern = folder.Write("a.pat", "*LINES,Lines\n0, 0,0, 0,.125\n");
    EXPECT_EQ(RunToolRedirected({"patterns", pattern, "-o", folder / "a.json"}, "2>&-").status, 0);
    EXPECT_EQ(RunToolRedirected({"patterns", folder / "none", "-o", folder / "b.json"}, "2>&-").status, 1);
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"a.json", "a.pat"}));
}
#endif

} // namespace
