// The table from codes to names and sentences, and whole messages.
#include "diagnostics/Sentences.h"

#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

namespace diagnostics {
namespace {

Diagnostic Of(Code code, std::vector<std::string> subjects = {}, Outcome outcome = Outcome::kNone) {
    return {Severity::kError, code, {"gas.lin", 14, "linetype GAS"}, std::move(subjects), outcome};
}

TEST(Sentences, EveryCodeHasANameOfItsOwnInSmallLettersAndHyphens) {
    std::set<std::string> names;
    for (const Code code : AllCodes()) {
        const std::string name(NameOf(code));
        EXPECT_TRUE(names.insert(name).second) << name;
        EXPECT_EQ(name.find_first_not_of("abcdefghijklmnopqrstuvwxyz-"), std::string::npos) << name;
        EXPECT_FALSE(name.empty() || name.front() == '-' || name.back() == '-') << name;
    }
}

TEST(Sentences, FillEveryPlaceInBraces) {
    for (const Code code : AllCodes()) {
        for (const Outcome outcome : {Outcome::kNone, Outcome::kSkipped, Outcome::kRepaired}) {
            const std::string sentence = SentenceOf(Of(code, {"a", "b", "c", "d"}, outcome));
            EXPECT_EQ(sentence.find_first_of("{}"), std::string::npos) << sentence;
            EXPECT_FALSE(sentence.empty());
        }
    }
}

TEST(Sentences, BracesOfASubjectStayAsTheyAre) {
    EXPECT_EQ(SentenceOf(Of(Code::kMissingShape, {"{1}", "{0}"})), "shape file {1} has no shape {0}");
}

TEST(Sentences, EveryNameStandsOnThePageOfMessages) {
    std::ifstream file(MESSAGES_PAGE);
    std::stringstream page;
    page << file.rdbuf();
    for (const Code code : AllCodes()) {
        const std::string name = "`" + std::string(NameOf(code)) + "`";
        EXPECT_NE(page.str().find(name), std::string::npos) << name;
    }
}

TEST(Sentences, TellWhatAStrictConversionMakesOfItOrWhatBecameOfIt) {
    EXPECT_EQ(SentenceOf(Of(Code::kBlankLine)), "line of blanks; read as a family of zeros");
    EXPECT_EQ(SentenceOf(Of(Code::kBlankLine, {}, Outcome::kRepaired)), "line of blanks; skipped");
    EXPECT_EQ(SentenceOf(Of(Code::kIncompletePattern, {}, Outcome::kSkipped)),
              "the pattern ends with a comma; skipped");
    EXPECT_EQ(SentenceOf(Of(Code::kIncompletePattern)), "the pattern ends with a comma");
}

TEST(Sentences, CountEntitiesOrPlaces) {
    Diagnostic entities = Of(Code::kUnsupportedClass, {"Ray"});
    EXPECT_EQ(SentenceOf(entities), "1 entity of the type Ray is not drawn");
    entities.count = 2;
    EXPECT_EQ(SentenceOf(entities), "2 entities of the type Ray are not drawn");
    Diagnostic places = Of(Code::kUnexpectedBlank);
    places.count = 2;
    EXPECT_EQ(SentenceOf(places), "a blank is not allowed here; the same in 1 more place");
    places.count = 301;
    EXPECT_EQ(SentenceOf(places), "a blank is not allowed here; the same in 300 more places");
}

TEST(Messages, AreInTheFormThatEditorsParse) {
    Diagnostic diagnostic = Of(Code::kUnexpectedBlank);
    EXPECT_EQ(MessageOf(diagnostic), "gas.lin:14: error: a blank is not allowed here (linetype GAS)");
    diagnostic.place.column = 5;
    diagnostic.severity = Severity::kWarning;
    EXPECT_EQ(MessageWithCode(diagnostic),
              "gas.lin:14:5: warning: a blank is not allowed here (linetype GAS) [unexpected-blank]");
}

TEST(Messages, NameTheByteOrTheValueOfAFileWithoutLines) {
    Diagnostic shapes{Severity::kError, Code::kUnknownVersion, {"a.shx"}, {}};
    shapes.place.byte = 18;
    EXPECT_EQ(MessageOf(shapes), "a.shx: error: byte 18: unknown version: expected 1.0 or 1.1");
    Diagnostic drawing{Severity::kNote, Code::kNoShapes, {"a.json"}, {}};
    drawing.place.path = "blocks[0].name";
    EXPECT_EQ(MessageOf(drawing), "a.json: note: blocks[0].name: the file has no shapes");
}

TEST(Messages, MoveNoCursor) {
    const Diagnostic diagnostic{Severity::kError, Code::kMissingFile, {"a\x1b[2Jb\nc"}, {}};
    EXPECT_EQ(MessageOf(diagnostic), "a?[2Jb?c: error: not found");
}

} // namespace
TEST(Sentences, CodesAreExplainedWithoutSubjects) {
    EXPECT_EQ(diagnostics::SummaryOf(Code::kMissingShape), "shape file … has no shape …");
    EXPECT_EQ(diagnostics::SummaryOf(Code::kUprightKey), "unknown key U= (upright text)");
    EXPECT_EQ(
        diagnostics::HelpOf(Code::kUprightKey),
        "unknown key U= (upright text); write R=, or use --tolerant. With --tolerant: read as R= in the "
        "whole file");
    // What both readings do is told once.
    EXPECT_EQ(diagnostics::HelpOf(Code::kTooFewNumbers),
              "a family needs five numbers before its dashes; missing ones are read as 0");
    for (const Code code : diagnostics::AllCodes()) {
        EXPECT_EQ(diagnostics::HelpOf(code).find_first_of("{}"), std::string::npos) << NameOf(code);
    }
}

TEST(Sentences, CodesAreFoundByTheirNames) {
    for (const Code code : diagnostics::AllCodes()) {
        EXPECT_EQ(diagnostics::CodeNamed(NameOf(code)), code);
    }
    EXPECT_FALSE(diagnostics::CodeNamed("").has_value());
    EXPECT_FALSE(diagnostics::CodeNamed("missing-shape-files").has_value());
}

} // namespace diagnostics
