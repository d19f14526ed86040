// Files of any name and path are read and written, and their lines may end in either way, on every system.
#include "StyleConversion/platform/Files.h"
#include "StyleConversion/platform/Utf8.h"
#include "tests/styleconv/SampleFiles.h"
#include "tests/support/LineEnds.h"
#include "tests/support/ToolRun.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace {

using samples::Font;
using samples::Marks;
using support::RunTool;
using support::ScratchFolder;
using support::ToolResult;
using support::WithCarriageReturns;

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

// The path in the form in which the system opens it whatever its length.
fs::path Openable(const std::string& path) {
#if defined(_WIN32)
    return fs::path(platform::OpenablePath(platform::Utf8ToWide(path)));
#else
    return fs::path(path);
#endif
}

// A folder behind a path of names, in which files are written by UTF-8 names. What is written in it is
// removed with this object; results that the tool writes there are named as such.
class Place {
public:
    explicit Place(const Texts& names) : path_(top_ / "") {
        for (const std::string& name : names) {
            path_ += name;
            fs::create_directory(Openable(path_));
            made_.push_back(path_);
            path_ += '/';
        }
    }
    // From below.
    ~Place() {
        std::error_code ignored;
        for (; !made_.empty(); made_.pop_back()) {
            fs::remove(Openable(made_.back()), ignored);
        }
    }
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;

    std::string Write(const std::string& name, const std::string& bytes) {
        std::string path = Result(name);
        std::ofstream(Openable(path), std::ios::binary) << bytes;
        return path;
    }
    std::string Result(const std::string& name) {
        made_.push_back(path_ + name);
        return path_ + name;
    }
    static std::string Read(const std::string& path) {
        std::ifstream file(Openable(path), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::string Path() const { return path_.substr(0, path_.size() - 1); }

private:
    ScratchFolder top_;
    std::string path_;
    Texts made_;
};

const char* const kLinetypes = "*X,d\nA,1,-.5,[MARK,marks.shx],-1\n*Y\nA,2,\n-1,[\"A\",STANDARD]\n";
const char* const kPatterns = "; walls\n*BRICK,b\n0,0,0,0,1\n90,0,0,0,2,1,-1\n\n*DOTS\n0,0,0,1,1,0,-1\n";
const char* const kDrawingWithText =
    "{\"format\": \"styleconversion/drawing\",\n\"version\": 1, \"insunits\": 4,\n"
    "\"textStyles\": [{\"name\": \"STANDARD\", \"fileName\": \"font.shx\"}],\n"
    "\"blocks\": [{\"name\": \"B\", \"entities\": [\n"
    "{\"type\": \"line\", \"start\": [0, 0], \"end\": [1, 0]},\n"
    "{\"type\": \"text\", \"text\": \"A\", \"style\": \"STANDARD\", \"height\": "
    "2, \"position\": [1, 2]}]}]}\n";

// What every kind of file that is in the place gives, by commands that write it there.
Texts ResultsIn(Place& place, const std::string& start) {
    place.Write("marks.shx", Marks());
    const std::string font = place.Write("font.shx", Font());
    const std::string linetypes = place.Write(start + ".lin", kLinetypes);
    const std::string patterns = place.Write(start + ".pat", kPatterns);
    const std::string drawing = place.Write(start + ".json", kDrawingWithText);
    const std::string shapes = place.Write(start + ".shx", Marks());
    const std::string result = place.Result(start + " result.json");
    Texts results;
    for (const Texts& command :
         {Texts{"linetypes", linetypes, "--drawing", drawing}, Texts{"patterns", patterns},
          Texts{"blocks", drawing}, Texts{"glyphs", shapes}, Texts{"list", shapes}, Texts{"list", linetypes},
          Texts{"list", patterns}, Texts{"list", drawing}, Texts{"linetypes", linetypes, "--font", font},
          Texts{"blocks", drawing, "--shapes", place.Path()},
          Texts{"linetypes", linetypes, "--font", "font.shx", "--shapes", place.Path()}}) {
        Texts arguments = command;
        arguments.insert(arguments.end(), {"-o", result});
        const ToolResult run = RunTool(arguments);
        EXPECT_EQ(run.status, 0) << command.front() << " " << command[1] << ": " << run.errors;
        EXPECT_EQ(run.errors, "");
        EXPECT_EQ(run.output, "");
        results.push_back(Place::Read(result));
        EXPECT_NE(results.back(), "") << command.front();
    }
    return results;
}

TEST(Paths, OfAnyScriptGiveWhatOthersGive) {
    Place plain({"plain"});
    const Texts expected = ResultsIn(plain, "lines");
    // Names with characters of the system's own page, of other pages, and of none below U+10000.
    Place other(
        {"b\xc3\xa4ume und W\xc3\xa4lder", "\xe6\x9e\x97 \xd0\xbb\xd0\xb5\xd1\x81", "\xf0\x9f\x8c\xb2"});
    EXPECT_EQ(ResultsIn(other, "Stra\xc3\x9f\x65 \xe6\x9e\x97"), expected);
}

TEST(Paths, LongerThanAllThatOldProgramsTakeGiveWhatOthersGive) {
    Place plain({"plain"});
    const Texts expected = ResultsIn(plain, "lines");
    Texts names;
    for (char letter = 'a'; letter < 'g'; ++letter) {
        names.emplace_back(60, letter);
    }
    Place deep(names);
    ASSERT_GT(deep.Path().size(), 360U);
    EXPECT_EQ(ResultsIn(deep, "lines"), expected);
}

TEST(Paths, AMessageNamesAFileAsItWasGiven) {
    Place place({"W\xc3\xa4lder \xe6\x9e\x97"});
    const std::string there = place.Write("\xd0\xbb\xd0\xb5\xd1\x81.pat", "; no pattern\n");
    const ToolResult none = RunTool({"patterns", there});
    EXPECT_EQ(none.status, 1);
    EXPECT_EQ(none.errors.rfind(there + ": ", 0), 0U) << none.errors;
    const std::string missing = place.Path() + "/\xc3\xa9t\xc3\xa9.lin";
    const ToolResult notThere = RunTool({"linetypes", missing});
    EXPECT_EQ(notThere.status, 1);
    EXPECT_EQ(notThere.errors, missing + ": error: not found\n");
}

#if !defined(_WIN32)
TEST(Paths, AFileThatCannotBeLookedForIsNotSaidToBeMissing) {
    Place place({"links"});
    const std::string loop = place.Result("loop.lin");
    fs::create_symlink("loop.lin", loop);
    const ToolResult result = RunTool({"linetypes", loop});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, loop + ": error: cannot be read: " + std::strerror(ELOOP) + "\n");
}
#endif

// The name of a shape file stands in a linetype file in that file's code page; 0xe4 is "ä" in WINDOWS-1252,
// and letters outside A to Z keep their case.
TEST(Paths, NamesInsideFilesAreOfTheFilesCodePage) {
    for (const char* const name : {"m\xe4rke.shx", "m\xc3\xa4rke.shx"}) {
        Place place({"names"});
        place.Write("m\xc3\xa4rke.shx", Marks());
        const std::string file = place.Write("lines.lin", std::string("*X\nA,1,[MARK,") + name + "],-1\n");
        const ToolResult result = RunTool({"linetypes", file});
        EXPECT_EQ(result.status, 0) << result.errors;
        EXPECT_EQ(result.errors, "");
    }
}

TEST(LineEnds, OfEitherKindGiveTheSame) {
    Place place({"ends"});
    place.Write("marks.shx", Marks());
    place.Write("font.shx", Font());
    const struct {
        const char* command;
        const char* name;
        const char* text;
    } rows[] = {{"linetypes", "x.lin", kLinetypes},
                {"patterns", "x.pat", kPatterns},
                {"blocks", "x.json", kDrawingWithText}};
    for (const auto& row : rows) {
        const std::string file = place.Write(row.name, row.text);
        for (const Texts& more : {Texts{}, Texts{"--tolerant"}}) {
            Texts arguments = {row.command, file, "--shapes", place.Path()};
            if (row.command == std::string("patterns")) {
                arguments.resize(2);
            }
            if (row.command == std::string("linetypes")) {
                arguments.insert(arguments.end(), {"--font", "font.shx"});
            }
            arguments.insert(arguments.end(), more.begin(), more.end());
            place.Write(row.name, row.text);
            const ToolResult plain = RunTool(arguments);
            EXPECT_EQ(plain.status, 0) << plain.errors;
            place.Write(row.name, WithCarriageReturns(row.text));
            const ToolResult other = RunTool(arguments);
            EXPECT_EQ(other.status, 0) << other.errors;
            EXPECT_EQ(other.output, plain.output) << row.command;
            EXPECT_EQ(other.errors, plain.errors) << row.command;
        }
        EXPECT_EQ(RunTool({"list", file}).status, 0);
    }
}

// A carriage return alone ends no line: it is a blank to a number, and part of a name.
TEST(LineEnds, ACarriageReturnAloneEndsNoLine) {
    Place place({"ends"});
    const std::string linetypes = place.Write("x.lin", "*X,d\rA,1\r");
    EXPECT_EQ(RunTool({"linetypes", linetypes}).status, 1);
    const std::string patterns = place.Write("x.pat", "*X,d\r0,0,0,0,1\n");
    EXPECT_EQ(RunTool({"list", patterns}).output, "X\n");
    const std::string drawing =
        place.Write("x.json", "{\"format\": \"styleconversion/drawing\",\r\"version\": 1,\r"
                              "\"blocks\": [{\"name\": \"B\", \"entities\": []}]}\r");
    EXPECT_EQ(RunTool({"list", drawing}).output, "B\n");
}

TEST(LineEnds, ACarriageReturnAtTheVeryEndChangesNothing) {
    Place place({"ends"});
    const std::string linetypes = place.Write("x.lin", "*X,d\nA,1,-1");
    const ToolResult lines = RunTool({"linetypes", linetypes});
    EXPECT_EQ(lines.status, 0) << lines.errors;
    place.Write("x.lin", "*X,d\nA,1,-1\r");
    EXPECT_EQ(RunTool({"linetypes", linetypes}).output, lines.output);
    const std::string patterns = place.Write("x.pat", "*X,d\n0,0,0,0,1,1,-1");
    const ToolResult areas = RunTool({"patterns", patterns});
    EXPECT_EQ(areas.status, 0) << areas.errors;
    place.Write("x.pat", "*X,d\n0,0,0,0,1,1,-1\r");
    EXPECT_EQ(RunTool({"patterns", patterns}).output, areas.output);
}

} // namespace
