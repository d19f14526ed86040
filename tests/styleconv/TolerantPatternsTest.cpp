// styleconv patterns --tolerant and --units: what is converted, and what is said about the rest.
#include "tests/support/ToolRun.h"

#include <gtest/gtest.h>

namespace {

using support::RunTool;
using support::ScratchFolder;
using support::ToolResult;

class TolerantPatternsCommand : public testing::Test {
protected:
    ToolResult Run(const std::string& text, std::vector<std::string> more = {"--tolerant"}) {
        more.insert(more.begin(), {"patterns", folder.Write("walls.pat", text)});
        return RunTool(more);
    }

    std::string Said(const ToolResult& result) const {
        std::string said = result.errors;
        const std::string name = folder / "walls.pat";
        for (std::size_t at = said.find(name); at != std::string::npos; at = said.find(name, at)) {
            said.erase(at, name.size());
        }
        return said;
    }

    ScratchFolder folder;
};

TEST_F(TolerantPatternsCommand, LongLinesAreRead) {
    const std::string text = "*X\n;" + std::string(127, '-') + "\n0,0,0,0,1\n";
    EXPECT_EQ(Run(text, {}).status, 1);
    const ToolResult result = Run(text);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(Said(result), ":2: warning: the line has more than 127 characters; read whole (pattern X)\n");
    EXPECT_EQ(result.output, Run("*X\n0,0,0,0,1\n", {}).output);
}

TEST_F(TolerantPatternsCommand, ListOfDashesEndsAtAnEmptyNumber) {
    const ToolResult result = Run("*X\n0,0,0,0,1,1,-1,,2\n");
    EXPECT_EQ(result.output, Run("*X\n0,0,0,0,1,1,-1\n", {}).output);
    EXPECT_EQ(Said(result),
              ":2: warning: missing number; it ends the dashes, or is read as 0 before them (pattern X)\n");
}

TEST_F(TolerantPatternsCommand, FamiliesThatAreLeftOutAreNamed) {
    // A shift that comes back into phase after none of 64 lines, and no rectangle at 0 degrees.
    const std::string text = "*X\n0,0,0,0,1\n0,0,0,0.001,1,1,-1\n";
    const std::string said = ":3: warning: 1 of 2 families not drawn, as no rectangle of a strict symbol "
                             "repeats them; --faithful draws all (pattern X)\n";
    EXPECT_EQ(Said(Run(text)), said);
    EXPECT_EQ(Said(Run(text, {})), said);
    EXPECT_EQ(Run(text).output, Run(text, {}).output);
}

TEST_F(TolerantPatternsCommand, OneOfThoseAskedForIsEnough) {
    const std::string text = "*X\n0,0,0,0,1\n*NONE\n";
    const ToolResult result = Run(text, {"--tolerant", "--name", "NONE", "--name", "Z", "--name", "X"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, Run(text, {"--name", "X"}).output);
    EXPECT_EQ(Said(result), ": warning: there is no pattern named Z\n"
                            ":3: warning: the pattern has no lines; skipped (pattern NONE)\n");
    const ToolResult none = Run(text, {"--tolerant", "--name", "NONE"});
    EXPECT_EQ(none.status, 1);
    EXPECT_EQ(Said(none), ":3: warning: the pattern has no lines; skipped (pattern NONE)\n"
                          ": error: none of the patterns asked for can be converted\n");
    EXPECT_EQ(Run(text, {"--name", "NONE", "--name", "X"}).status, 1);
}

TEST_F(TolerantPatternsCommand, UnitsScaleAFileOfAnotherUnit) {
    const std::string text = ";%UNITS=INCH\n*X\n0,0,0,0,1\n";
    EXPECT_NE(Run(text, {"--units", "mm"}).output.find("\"repeatY\": \"25.4\""), std::string::npos);
    EXPECT_EQ(Run(text, {"--units", "inch"}).output, Run(text, {}).output);
    EXPECT_EQ(Run("*X\n0,0,0,0,1\n", {"--units", "mm"}).output, Run("*X\n0,0,0,0,1\n", {}).output);
    EXPECT_EQ(Said(Run(text, {"--tolerant", "--units", "mm"})),
              ":1: warning: the file is in another unit; lengths from here on are scaled\n");
    EXPECT_EQ(Run(text, {"--units", "feet"}).status, 2);
}

TEST_F(TolerantPatternsCommand, UnitsSayThatAFileOfNoUnitIsNotScaled) {
    const std::string said =
        ": warning: the file does not say its unit; --units scales nothing: a line ;%UNITS=MM or "
        ";%UNITS=INCH says it\n";
    const ToolResult result = Run("*X\n0,0,0,0,1\n", {"--units", "mm"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(Said(result), said);
    EXPECT_EQ(Said(Run("*X\n0,0,0,0,1\n", {"--units", "inch", "--tolerant"})), said);
    EXPECT_EQ(Said(Run(";%UNITS=MM\n*X\n0,0,0,0,1\n", {"--units", "mm"})), "");
}

} // namespace
