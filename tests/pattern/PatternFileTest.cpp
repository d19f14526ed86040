// Headers and families of pattern files, and where a reading ended.
#include "PatternTestSupport.h"

#include "StyleConversion/pattern/PatternFile.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using pattern::ParsePatternFile;
using pattern::PatternFile;
using pattern::PatternReading;
using namespace std::string_view_literals;

PatternFile Parse(std::string_view bytes) {
    PatternFile file;
    ParsePatternFile(bytes, file);
    return file;
}

// Name, description and the angles of the families, which the tests use to tell families apart.
using Entry = std::tuple<std::string, std::string, std::vector<double>>;

std::vector<Entry> Entries(const PatternFile& file) {
    EXPECT_EQ(file.descriptions.size(), file.patterns.size());
    std::vector<Entry> entries;
    for (const auto& [name, lines] : file.patterns) {
        std::vector<double> angles;
        for (const pattern::PatternLine& line : lines) {
            angles.push_back(line.angle);
        }
        entries.emplace_back(name, file.descriptions.at(name), angles);
    }
    return entries;
}

void ExpectEntries(std::string_view bytes, const std::vector<Entry>& expected) {
    EXPECT_EQ(Entries(Parse(bytes)), expected) << ::testing::PrintToString(bytes);
}

TEST(PatternFile, CollectsNameDescriptionAndFamiliesOfEachPattern) {
    ExpectEntries("*A,first\n1,0,0,0,1\n2,0,0,0,1\n*B,second\n3,0,0,0,1\n",
                  {{"A", "first", {1, 2}}, {"B", "second", {3}}});
}

TEST(PatternFile, OrdersNamesByTheirBytes) {
    ExpectEntries("*b,1\n*\xc3\xa4,2\n*B,3\n*A,4\n*a,5\n",
                  {{"A", "4", {}}, {"B", "3", {}}, {"a", "5", {}}, {"b", "1", {}}, {"\xc3\xa4", "2", {}}});
}

TEST(PatternFile, KeepsTheFirstDescriptionAndAllFamiliesOfANameThatOccursTwice) {
    ExpectEntries("*A,first\n1,0,0,0,1\n*B,other\n2,0,0,0,1\n*A,second\n3,0,0,0,1\n",
                  {{"A", "first", {1, 3}}, {"B", "other", {2}}});
}

TEST(PatternFile, UsesTheNameAsDescriptionOfAHeaderWithoutAComma) {
    ExpectEntries("*  SOLO  \n", {{"SOLO", "SOLO", {}}});
}

TEST(PatternFile, LeavesTheDescriptionEmptyBehindATrailingComma) {
    ExpectEntries("*A,\n", {{"A", "", {}}});
}

TEST(PatternFile, SplitsAHeaderAtItsFirstCommaOnly) {
    ExpectEntries("*A,one, two,three\n", {{"A", "one, two,three", {}}});
}

TEST(PatternFile, TrimsSpacesAroundNameAndDescription) {
    ExpectEntries("*  A B  ,   two  words   \n", {{"A B", "two  words", {}}});
}

TEST(PatternFile, TrimsNothingButSpaces) {
    ExpectEntries("* \tA\t ,\tb\t\n", {{"\tA\t", "\tb\t", {}}});
    ExpectEntries("*A\v,b\r\r\n", {{"A\v", "b\r", {}}});
}

TEST(PatternFile, TakesAnEmptyNameForAName) {
    ExpectEntries("*\n1,0,0,0,1\n", {{"", "", {1}}});
    ExpectEntries("*   ,nameless\n1,0,0,0,1\n", {{"", "nameless", {1}}});
}

TEST(PatternFile, KeepsFurtherAsterisksInTheName) {
    ExpectEntries("**A,b\n", {{"*A", "b", {}}});
}

TEST(PatternFile, SkipsEmptyLinesAndComments) {
    ExpectEntries(";*X,no\n\n*A,a\n;1,0,0,0,1\n\n2,0,0,0,1\n", {{"A", "a", {2}}});
}

TEST(PatternFile, DoesNotTakeALaterSemicolonForAComment) {
    ExpectEntries("*A;B,a;b\n", {{"A;B", "a;b", {}}});
    const PatternFile file = Parse("*A,a\n0,0,0,0,;2\n");
    EXPECT_EQ(file.patterns.at("A").front().spacing, 10.0); // ";2" is no number, and a spacing of 0 is 10
}

TEST(PatternFile, DropsFamiliesBeforeTheFirstHeader) {
    ExpectEntries("1,0,0,0,1\n*A,a\n2,0,0,0,1\n", {{"A", "a", {2}}});
}

TEST(PatternFile, TakesALineThatBeginsWithASpaceForAFamily) {
    ExpectEntries("*A,a\n *B,b\n ;\n \n", {{"A", "a", {0, 0, 0}}});
}

TEST(PatternFile, SeesNoHeaderBehindAByteOrderMark) {
    ExpectEntries("\xef\xbb\xbf*A,a\n1,0,0,0,1\n*B,b\n2,0,0,0,1\n", {{"B", "b", {2}}});
}

TEST(PatternFile, ReadsCarriageReturnLineFeedAsLineFeed) {
    ExpectEntries("*A,a\r\n1,0,0,0,1\r\n\r\n2,0,0,0,1", {{"A", "a", {1, 2}}});
}

TEST(PatternFile, TakesALoneCarriageReturnForAFamily) {
    ExpectEntries("*A,a\n\r\r\n", {{"A", "a", {0}}});
}

TEST(PatternFile, EndsAtTheByte1A) {
    ExpectEntries("*A,a\n1,0,0,0,1\n2\x1a,0,0,0,1\n*B,b\n", {{"A", "a", {1, 2}}});
}

TEST(PatternFile, CountsAnUnterminatedLastLine) {
    ExpectEntries("*A,a\n1,0,0,0,1", {{"A", "a", {1}}});
}

TEST(PatternFile, EndsTheTextOfALineAtANul) {
    ExpectEntries("*A\0B,b\n\0*C,c\n1\0,9\n"sv, {{"A", "A", {1}}});
}

// A header whose text has the given length.
std::string HeaderOfLength(std::size_t length) {
    return "*" + std::string(length - 1, 'N');
}

TEST(PatternFile, ReadsALineOf127Characters) {
    ExpectEntries(HeaderOfLength(127) + "\n1,0,0,0,1\n",
                  {{std::string(126, 'N'), std::string(126, 'N'), {1}}});
    ExpectEntries(HeaderOfLength(127) + "\r\n1,0,0,0,1\n",
                  {{std::string(126, 'N'), std::string(126, 'N'), {1}}});
    ExpectEntries(HeaderOfLength(127), {{std::string(126, 'N'), std::string(126, 'N'), {}}});
}

TEST(PatternFile, TheFirst127CharactersOfALongerLineAreALineAndTheLast) {
    const std::string name(126, 'N');
    for (const char* const rest : {"\n2,0,0,0,1\n*B,b\n", "\r\n2,0,0,0,1\n", ""}) {
        ExpectEntries("*A,a\n1,0,0,0,1\n" + HeaderOfLength(128) + rest, {{"A", "a", {1}}, {name, name, {}}});
        ExpectEntries("*A,a\n1,0,0,0,1\n;" + HeaderOfLength(127) + rest, {{"A", "a", {1}}});
    }
    // A family: the angle is 7, the 128th character would make it 71.
    ExpectEntries("*A,a\n" + std::string(126, ' ') + "71,0,0,0,1\n2,0,0,0,1\n", {{"A", "a", {7}}});
}

TEST(PatternFile, ANulEndsTheTextOfALineThatIsTooLongAsWell) {
    using namespace std::string_literals;
    ExpectEntries("*A,a\n7\0"s + std::string(126, ' ') + "\n2,0,0,0,1\n", {{"A", "a", {7}}});
}

TEST(PatternFile, IsEmptiedByEachReading) {
    PatternFile file;
    ParsePatternFile("*A,a\n1,0,0,0,1\n", file);
    ParsePatternFile("*B,b\n", file);
    EXPECT_EQ(Entries(file), (std::vector<Entry>{{"B", "b", {}}}));
    ParsePatternFile("", file);
    EXPECT_EQ(Entries(file), std::vector<Entry>{});
}

TEST(PatternFile, WithManyFamiliesIsReadWhole) {
    std::string text = "*A,a\n";
    std::vector<double> angles;
    for (int i = 0; i < 20000; ++i) {
        const int angle = i % 90;
        text += std::to_string(angle) + ",0,0,0,1\n";
        angles.push_back(angle);
    }
    PatternFile file;
    ParsePatternFile(text, file);
    EXPECT_EQ(Entries(file), (std::vector<Entry>{{"A", "a", angles}}));
}

TEST(PatternReading, NamesTheLineOfEachHeaderAndFamily) {
    PatternFile file;
    PatternReading reading;
    ParsePatternFile("0,0\n;\n*A,a\n1,0\n\n*B,b\n2,0\n*A,again\n3,0\n", file, &reading);
    using Lines = std::vector<std::size_t>;
    EXPECT_EQ(reading.linesBeforeHeaders, Lines{1});
    EXPECT_EQ(reading.headerLines.at("A"), (Lines{3, 8}));
    EXPECT_EQ(reading.headerLines.at("B"), Lines{6});
    EXPECT_EQ(reading.familyLines.at("A"), (Lines{4, 9}));
    EXPECT_EQ(reading.familyLines.at("B"), Lines{7});
    EXPECT_EQ(reading.end, PatternReading::End::kEndOfFile);
    EXPECT_EQ(reading.endLine, 0U);
}

TEST(PatternReading, NamesTheLineThatIsTooLong) {
    PatternFile file;
    PatternReading reading;
    ParsePatternFile("*A,a\n\n" + HeaderOfLength(128) + "\n1,0\n", file, &reading);
    EXPECT_EQ(reading.end, PatternReading::End::kLineTooLong);
    EXPECT_EQ(reading.endLine, 3U);
}

TEST(PatternReading, ForgetsTheReadingBefore) {
    PatternFile file;
    PatternReading reading;
    ParsePatternFile("0,0\n*A,a\n1,0\n" + HeaderOfLength(128), file, &reading);
    ParsePatternFile("*B,b\n", file, &reading);
    EXPECT_EQ(reading.end, PatternReading::End::kEndOfFile);
    EXPECT_EQ(reading.endLine, 0U);
    EXPECT_TRUE(reading.linesBeforeHeaders.empty());
    EXPECT_TRUE(reading.familyLines.empty());
    EXPECT_EQ(reading.headerLines.count("A"), 0U);
}

} // namespace
