// What the command line accepts and how it answers a wrong one.
#include "tests/support/ToolRun.h"

#include <gtest/gtest.h>

namespace {

using support::RunTool;
using support::ToolResult;

TEST(CommandLine, WithoutACommandIsWrong) {
    const ToolResult result = RunTool({});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "styleconv: a command is missing\n"
                             "Try \"styleconv --help\" or \"styleconv COMMAND --help\".\n");
}

TEST(CommandLine, WhatIsNoCommandIsNamed) {
    const std::string help = "\nTry \"styleconv --help\" or \"styleconv COMMAND --help\".\n";
    EXPECT_EQ(RunTool({"paint", "a.lin"}).errors, "styleconv: there is no command \"paint\"" + help);
    EXPECT_EQ(RunTool({"--tolerant", "a.lin"}).errors, "styleconv: a command is missing" + help);
}

TEST(CommandLine, WhatIsNoWholeNumberIsNamed) {
    for (const std::string number : {"x", "6.5", "7a", "", "0x41", "[65]", " 65", "99999999999999999999"}) {
        const ToolResult result = RunTool({"glyphs", "a.shx", "--number", "65", "--number=" + number});
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.errors, "styleconv: --number: expected a whole number, found \"" + number +
                                     "\"\nTry \"styleconv --help\" or \"styleconv COMMAND --help\".\n");
    }
}

TEST(CommandLine, AnUnknownCommandOptionOrFormatIsWrong) {
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"paint"},
                                                      {"patterns"},
                                                      {"drawing", "a.dxf", "b.dxf"},
                                                      {"patterns", "--colour", "x"},
                                                      {"patterns", "a.pat", "--format", "gif"},
                                                      {"patterns", "a.pat", "--name"}}) {
        const ToolResult result = RunTool(arguments);
        EXPECT_EQ(result.status, 2) << arguments.back();
        EXPECT_EQ(result.output, "") << arguments.back();
        EXPECT_NE(result.errors.find("Try \"styleconv --help\""), std::string::npos) << result.errors;
    }
}

TEST(CommandLine, AnOptionTakesTheNextWordAndNoMore) {
    // The word behind it is a file.
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"patterns", "a.pat", "--units", "mm", "more"},
          {"linetypes", "a.lin", "--shapes", "fonts", "more"},
          {"blocks", "a.json", "--ignore-layer", "0", "more"}}) {
        const ToolResult result = RunTool(arguments);
        EXPECT_EQ(result.status, 1) << arguments.front();
        EXPECT_NE(result.errors.find("\nmore: error: not found\n"), std::string::npos) << result.errors;
    }
    const ToolResult result = RunTool({"drawing", "a.dxf", "--time-limit", "9", "more"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "styleconv: The following argument was not expected: more\nTry \"styleconv "
                             "--help\" or \"styleconv COMMAND --help\".\n");
}

TEST(CommandLine, NamesAndNumbersSelectFromOneFile) {
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"patterns", "a.pat", "--name", "A", "B"},
          {"linetypes", "--name", "A", "a.lin", "b.lin"},
          {"blocks", "--name", "A", "a.json", "b.json"},
          {"glyphs", "a.shx", "--number", "65", "66"}}) {
        const std::string option = arguments.front() == "glyphs" ? "--number" : "--name";
        const ToolResult result = RunTool(arguments);
        EXPECT_EQ(result.status, 2) << arguments.front();
        EXPECT_EQ(result.errors,
                  "styleconv: " + option + " cannot be used with several files: it selects from one\n");
    }
}

TEST(CommandLine, APathOrKindOfAnOptionIsNotEmpty) {
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"patterns", "a.pat", "-o", ""},
                                                      {"patterns", "a.pat", "--output", ""},
                                                      {"patterns", "--output=", "a.pat"},
                                                      {"linetypes", "a.lin", "--drawing="},
                                                      {"list", "a.lin", "--code-page", ""}}) {
        const ToolResult result = RunTool(arguments);
        EXPECT_EQ(result.status, 2) << arguments[2];
        EXPECT_NE(result.errors.find(", found \"\""), std::string::npos) << result.errors;
    }
}

TEST(CommandLine, HelpAndVersionAreAnswered) {
    const ToolResult version = RunTool({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_TRUE(version.output.starts_with("styleconv "));
    const ToolResult help = RunTool({"patterns", "--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.output.find("--code-page"), std::string::npos);
    EXPECT_EQ(help.errors, "");
}

} // namespace
