// Lists of diagnostics: counted, sorted, and what says the same made one.
#include "diagnostics/Diagnostic.h"
#include "diagnostics/Sentences.h"

#include <gtest/gtest.h>

namespace diagnostics {
namespace {

Diagnostic At(std::uint64_t line, Code code, const std::string& subject = "",
              const std::string& file = "a.lin") {
    return {Severity::kError, code, {file, line}, {subject}};
}

std::vector<std::uint64_t> LinesOf(const Diagnostics& found) {
    std::vector<std::uint64_t> lines;
    for (const Diagnostic& diagnostic : found) {
        lines.push_back(diagnostic.place.line);
    }
    return lines;
}

using Lines = std::vector<std::uint64_t>;

TEST(Diagnostics, AreSortedByLineAndStayInOrderWithinOne) {
    Diagnostics found = {At(2, Code::kUnexpectedBlank), At(0, Code::kNoShapes), At(2, Code::kUnexpectedComma),
                         At(1, Code::kUnexpectedBlank)};
    SortByLine(found);
    EXPECT_EQ(LinesOf(found), (Lines{0, 1, 2, 2}));
    EXPECT_EQ(found[2].code, Code::kUnexpectedBlank);
    EXPECT_EQ(found[3].code, Code::kUnexpectedComma);
}

TEST(Diagnostics, OfOneCauseAreOneWithTheFirstPlaceAndTheCount) {
    Diagnostics found = {At(3, Code::kMissingShapeFile, "a.shx"), At(4, Code::kMissingShapeFile, "b.shx"),
                         At(5, Code::kMissingShapeFile, "a.shx"),
                         At(6, Code::kMissingShapeFile, "a.shx", "b.lin")};
    MergeAlike(found);
    EXPECT_EQ(LinesOf(found), (Lines{3, 4, 6}));
    EXPECT_EQ(found[0].count, 2U);
    EXPECT_EQ(found[1].count, 1U);
    EXPECT_EQ(found[2].count, 1U);
}

TEST(Diagnostics, OfOneCauseAreOneOverFilesWithTheSumOfTheirCounts) {
    Diagnostic counted = At(3, Code::kMissingShapeFile, "a.shx");
    counted.count = 4;
    Diagnostics found = {counted, At(4, Code::kMissingShapeFile, "b.shx"),
                         At(6, Code::kMissingShapeFile, "a.shx", "b.lin"),
                         At(7, Code::kUnexpectedBlank, "", "b.lin"), At(8, Code::kUnexpectedBlank)};
    MergeAcrossFiles(found);
    EXPECT_EQ(LinesOf(found), (Lines{3, 4, 7, 8}));
    EXPECT_EQ(found[0].count, 5U);
    EXPECT_EQ(found[1].count, 1U);
}

TEST(Diagnostics, ErrorsOfManyFilesStayApart) {
    Diagnostics errors;
    Diagnostics warnings;
    for (std::size_t i = 0; i <= kMostAlike; ++i) {
        errors.push_back(At(i, Code::kMissingFile, "", std::to_string(i)));
        warnings.push_back(errors.back());
        warnings.back().severity = Severity::kWarning;
    }
    MergeAcrossFiles(errors);
    EXPECT_EQ(errors.size(), kMostAlike + 1);
    MergeAcrossFiles(warnings);
    ASSERT_EQ(warnings.size(), 1U);
    EXPECT_EQ(warnings[0].count, kMostAlike + 1);
}

TEST(Diagnostics, ThoseThatCountEntitiesAreOneOverManyFilesWithTheirOwnCount) {
    Diagnostics few;
    for (std::size_t i = 0; i < kMostAlike; ++i) {
        few.push_back(At(0, Code::kUnsupportedClass, "RAY", std::to_string(i)));
        few.back().severity = Severity::kWarning;
        few.back().count = i + 2;
    }
    Diagnostics many = few;
    MergeAcrossFiles(few);
    EXPECT_EQ(few.size(), kMostAlike);
    EXPECT_EQ(few[0].morePlaces, 0U);
    many.push_back(many.back()); // another block of a file is no other file
    Diagnostics blocks = many;
    MergeAcrossFiles(blocks);
    EXPECT_EQ(blocks.size(), kMostAlike + 1);
    many.back().place.file = "one more";
    many.push_back(At(0, Code::kUnsupportedClass, "XLINE", "other"));
    MergeAcrossFiles(many);
    ASSERT_EQ(many.size(), 2U);
    EXPECT_EQ(many[0].count, 2U);
    EXPECT_EQ(many[0].morePlaces, kMostAlike);
    EXPECT_EQ(diagnostics::SentenceOf(many[0]),
              "2 entities of the type RAY are not drawn; likewise in 20 more places");
    EXPECT_EQ(many[1].morePlaces, 0U);
}

TEST(Diagnostics, AlikeAreOneOnlyWhereTheyAreMany) {
    Diagnostics few;
    for (std::size_t i = 1; i <= kMostAlike; ++i) {
        few.push_back(At(i, Code::kUnexpectedBlank));
    }
    Diagnostics many = few;
    MergeAlike(few);
    EXPECT_EQ(few.size(), kMostAlike);
    many.push_back(At(kMostAlike + 1, Code::kUnexpectedBlank));
    many.push_back(At(99, Code::kUnexpectedComma));
    MergeAlike(many);
    EXPECT_EQ(LinesOf(many), (Lines{1, 99}));
    EXPECT_EQ(many.front().count, kMostAlike + 1);
}

TEST(Diagnostics, ThatDifferInSeverityOrOutcomeAreNotAlike) {
    Diagnostic skipped = At(2, Code::kMissingShapeFile, "a.shx");
    skipped.outcome = Outcome::kSkipped;
    Diagnostic warning = At(3, Code::kMissingShapeFile, "a.shx");
    warning.severity = Severity::kWarning;
    Diagnostics found = {At(1, Code::kMissingShapeFile, "a.shx"), skipped, warning};
    MergeAlike(found);
    EXPECT_EQ(LinesOf(found), (Lines{1, 2, 3}));
    EXPECT_EQ(CountOf(found, Severity::kError), 2U);
}

TEST(Diagnostics, CountsOfEntitiesStay) {
    Diagnostic entities = At(0, Code::kUnsupportedClass, "Ray");
    entities.count = 3;
    Diagnostics found = {entities, entities};
    MergeAlike(found);
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[1].count, 3U);
}

} // namespace
} // namespace diagnostics
