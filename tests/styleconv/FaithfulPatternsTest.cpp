// styleconv patterns --faithful: what is drawn where the required output draws something else.
#include "tests/support/ToolRun.h"

#include <gtest/gtest.h>

namespace {

using support::RunTool;
using support::ScratchFolder;
using support::ToolResult;

class FaithfulPatterns : public ::testing::Test {
protected:
    ToolResult Run(const std::string& text, std::vector<std::string> more = {}) {
        file_ = folder_.Write("a.pat", text);
        std::vector<std::string> arguments{"patterns", file_, "--faithful"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return RunTool(arguments);
    }

    const ScratchFolder folder_;
    std::string file_;
};

TEST_F(FaithfulPatterns, AreWrittenWithAllDigitsInADocumentThatSaysSo) {
    const ToolResult result = Run("*X\n0,0,0,0,0.105\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_NE(result.output.find("\"fidelity\": \"faithful\""), std::string::npos);
    EXPECT_NE(result.output.find("\"repeatY\": \"0.105\""), std::string::npos);
}

TEST_F(FaithfulPatterns, AreDrawnInPicturesAndGalleries) {
    const std::string text = "*X\n17,0,0,0.6180339887,1,0.5,-100.5\n";
    EXPECT_NE(Run(text, {"--format", "svg"}).output.find("<svg"), std::string::npos);
    EXPECT_NE(Run(text, {"--format", "html"}).output.find(">X</h3>"), std::string::npos);
}

// Strict conversion finds no tile for the first and loses it.
TEST_F(FaithfulPatterns, HaveTheFamiliesThatStrictOnesLose) {
    const ToolResult result = Run("*X\n17,0,0,0.6180339887,1,0.5,-100.5\n", {"--name", "X"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
}

TEST_F(FaithfulPatterns, AreTheSameWhenAskedForTwice) {
    const ToolResult once = Run("*X\n90,0,1,0,2\n", {"--name", "X"});
    const ToolResult twice = Run("*X\n90,0,1,0,2\n", {"--name", "X", "--name", "X"});
    // (0, 1) in the family's own frame is (1, 0), on the line through the origin.
    const std::string path = "\"M 0,0 h 20\"";
    EXPECT_NE(once.output.find(path), std::string::npos);
    EXPECT_LT(twice.output.find(path), twice.output.rfind(path));
}

TEST_F(FaithfulPatterns, NameFamiliesWithoutAPlace) {
    const ToolResult result = Run("*X\n0,0,0,0,1e300\n0,0,0,0,1\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors,
              file_ + ":2: warning: the numbers of the family are too large or too small to draw its lines; "
                      "skipped (pattern X)\n");
}

// Of a family with so many dashes a tile may hold but four cycles. Five lines would be in phase; two are 0.2
// over the cycle of 1, which is 1250 times the shortest gap.
TEST_F(FaithfulPatterns, NameTilesThatMiss) {
    std::string text = "*X\n0,0,0,0.6,1";
    for (int i = 0; i < 2500; ++i) {
        text += ",0.00024,-0.00016";
    }
    const ToolResult result = Run(text + "\n", {"--tolerant"});
    EXPECT_EQ(result.status, 0);
    EXPECT_NE(
        result.errors.find(":2: warning: no tile that is small enough repeats the pattern: from one tile to "
                           "the next the dashes are off by 0.2 drawing units (125000 % of the shortest dash) "
                           "(pattern X)\n"),
        std::string::npos)
        << result.errors;
}

} // namespace
