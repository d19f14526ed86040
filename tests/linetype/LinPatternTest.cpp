// Headers and the dashes of patterns.
#include "ParserFixture.h"

#include <ostream>

namespace linetypetest {
namespace {

using LineConverter::kSyntaxError;
using LineConverter::LinErrorKind;

class LinPattern : public ParserFixture {};

TEST_F(LinPattern, FileOfCommentsAndBlankLinesHasNoLinetypes) {
    EXPECT_EQ(Walk("; a comment\n\n   \n;;another\n"), "begin;end;");
    EXPECT_EQ(Walk(""), "begin;end;");
}

TEST_F(LinPattern, HeaderGivesNameAndDescriptionAndPatternGivesDashes) {
    EXPECT_EQ(Walk("*DASHED,Dashed __ __\nA,.5,-.25\n"),
              "begin;linetype DASHED|Dashed __ __|2;dash 0.5;gap 0.25;end linetype;end;");
    EXPECT_EQ(parser.linetypes()[0].elements[1].length, -0.25);
    EXPECT_EQ(parser.linetypes()[0].elements[1].kind, LineConverter::kDash);
}

TEST_F(LinPattern, DescriptionIsEverythingBehindTheFirstComma) {
    EXPECT_EQ(Walk("*a b,x, y ,z \nA,1\n"), "begin;linetype a b|x, y ,z|1;dash 1;end linetype;end;");
}

TEST_F(LinPattern, HeaderWithoutCommaHasNoDescription) {
    EXPECT_EQ(Walk("*X\nA,1\n"), "begin;linetype X||1;dash 1;end linetype;end;");
}

TEST_F(LinPattern, HeadersWithoutANameArePassedOver) {
    EXPECT_EQ(Walk("*,foo\nA,1\n*\nA,2\n*  \nA,2\n*;x\nA,2\n*X\nA,3\n"),
              "begin;linetype X||1;dash 3;end linetype;end;");
}

TEST_F(LinPattern, NameKeepsItsCaseAndItsBlanks) {
    EXPECT_EQ(Walk("* my Line ,d\nA,1\n"), "begin;linetype  my Line |d|1;dash 1;end linetype;end;");
}

TEST_F(LinPattern, StarMustStandInTheFirstColumn) {
    EXPECT_EQ(Walk(" *X\nA,1\n\t*Y\n"), "begin;end;");
}

TEST_F(LinPattern, StrayLinesBetweenLinetypesArePassedOver) {
    EXPECT_EQ(Walk("prose\nA,9\n*X\nA,1\nA,2\nmore\n*Y\nA,3"),
              "begin;linetype X||1;dash 1;end linetype;linetype Y||1;dash 3;end linetype;end;");
}

TEST_F(LinPattern, LinetypesOfOneNameAllStand) {
    EXPECT_EQ(Walk("*X\nA,1\n*X\nA,2\n"),
              "begin;linetype X||1;dash 1;end linetype;linetype X||1;dash 2;end linetype;end;");
}

TEST_F(LinPattern, SemicolonStartsACommentEverywhere) {
    EXPECT_EQ(Walk("*X,des;cription\nA,1 ;,2\n"), "begin;linetype X|des|1;dash 1;end linetype;end;");
    EXPECT_EQ(Walk("*X\nA,[\"a;b\",ST],1\n"), "result 3");
}

TEST_F(LinPattern, LinesBetweenHeaderAndPatternMayBeBlankOrComments) {
    EXPECT_EQ(Walk("*X\n\n; comment\n \t \n  A,1\n"), "begin;linetype X||1;dash 1;end linetype;end;");
}

struct PatternCase {
    const char* pattern;
    const char* elements;
};

void PrintTo(const PatternCase& row, std::ostream* out) {
    *out << row.pattern;
}

class LinPatternTable : public LinPattern, public testing::WithParamInterface<PatternCase> {};

TEST_P(LinPatternTable, Reads) {
    EXPECT_EQ(Elements(GetParam().pattern), GetParam().elements);
}

INSTANTIATE_TEST_SUITE_P(Dashes, LinPatternTable,
                         testing::Values(PatternCase{"A,.5,-.25", "dash 0.5;gap 0.25;"},
                                         PatternCase{"S,.5", "dash 0.5;"}, PatternCase{"A,0", "dot;"},
                                         PatternCase{"A,-0", "dot;"},
                                         PatternCase{"A,1e1,-2E-1,+3", "dash 10;gap 0.2;dash 3;"},
                                         PatternCase{"A, 1,\t2", "dash 1;dash 2;"},
                                         PatternCase{"A,1e2x,2", "dash 100;"},
                                         PatternCase{"A,1 ,2", "dash 1;"}, PatternCase{"A,1x,2", "dash 1;"},
                                         PatternCase{"A,1]", "dash 1;"},
                                         PatternCase{"A,1.2.3,4", "dash 1.2;"}, PatternCase{"A,0x10", "dot;"},
                                         PatternCase{"A,1e999,-1e999,1e-999", "dash inf;gap inf;dot;"}));

INSTANTIATE_TEST_SUITE_P(Refused, LinPatternTable,
                         testing::Values(PatternCase{"A,.5,,.5", "result 3"}, PatternCase{"B,.5", "result 3"},
                                         PatternCase{"a,.5", "result 3"}, PatternCase{"s,.5", "result 3"},
                                         PatternCase{"A", "result 3"}, PatternCase{"A.5", "result 3"},
                                         PatternCase{"A ,.5", "result 3"}, PatternCase{"A,x", "result 3"},
                                         PatternCase{"A,inf", "result 3"}, PatternCase{"A,nan", "result 3"},
                                         PatternCase{"A,-", "result 3"}, PatternCase{"A,]", "result 3"},
                                         // An exponent without digits makes it no number.
                                         PatternCase{"A,1e,2,-1", "result 3"},
                                         PatternCase{"A,1,2E+", "result 3"}, PatternCase{"A,", "result 3"},
                                         PatternCase{"A,1,", "result 3"}));

TEST_F(LinPattern, CommaAtTheEndOfALineContinuesThePattern) {
    EXPECT_EQ(Elements("A,.5,-.25,\n.5"), "dash 0.5;gap 0.25;dash 0.5;");
    EXPECT_EQ(Elements("A,\n\n1,  ; comment\n;comment\n  2,\n-3"), "dash 1;dash 2;gap 3;");
}

TEST_F(LinPattern, ContinuationTakesTheNextLineWhateverItIs) {
    EXPECT_EQ(Walk("*X\nA,1,\n*Y\nA,2\n"), "result 3");
}

TEST_F(LinPattern, CommaAtTheEndOfTheFileIsASyntaxError) {
    EXPECT_EQ(Walk("*X\nA,1,"), "result 3");
    EXPECT_EQ(parser.errors()[0].kind, LinErrorKind::kPatternNotContinued);
}

TEST_F(LinPattern, HeaderAtTheEndOfTheFileIsASyntaxError) {
    EXPECT_EQ(Parse("*X"), kSyntaxError);
    EXPECT_EQ(parser.errors()[0].kind, LinErrorKind::kPatternMissing);
    EXPECT_EQ(Parse("*X\n\n;\n"), kSyntaxError);
}

TEST_F(LinPattern, FailureTellsLineColumnLinetypeAndElement) {
    EXPECT_EQ(Parse("; one\r\n*GOOD\r\nA,1\r\n*BAD,description\r\n  A,.5,\r\n  -.25,,7\r\n"), kSyntaxError);
    ASSERT_EQ(parser.errors().size(), 1U);
    const LineConverter::LinError& error = parser.errors()[0];
    EXPECT_EQ(error.kind, LinErrorKind::kDashNotANumber);
    EXPECT_EQ(error.result, kSyntaxError);
    EXPECT_EQ(error.line, 6U);
    EXPECT_EQ(error.column, 8U);
    EXPECT_EQ(error.lineText, "-.25,,7");
    EXPECT_EQ(error.linetype, "BAD");
    EXPECT_EQ(error.element, 3U);
}

TEST_F(LinPattern, ClearForgetsEverything) {
    EXPECT_EQ(Parse("*X\nA,[\"A\",STANDARD],[MARK,MARKS.SHX],x\n"), kSyntaxError);
    EXPECT_EQ(parser.linetypes().size(), 1U);
    parser.Clear();
    EXPECT_TRUE(parser.linetypes().empty());
    EXPECT_TRUE(parser.errors().empty());
    // Names of the failed file are not resolved for the next one.
    EXPECT_EQ(Walk("*X\nA,1\n"), "begin;linetype X||1;dash 1;end linetype;end;");
    EXPECT_TRUE(styles.asked.empty());
    EXPECT_TRUE(files.asked.empty());
}

} // namespace
} // namespace linetypetest
