// Forms that a strict reading refuses, or reads only a part of, and a tolerant one takes as they are meant.
#include "TolerantFixture.h"

#include <ostream>

namespace linetypetest {
namespace {

using LineConverter::LinErrorKind;

// How elements are shown: A (NaN: none) R S X Y.
constexpr const char* kPlainText = "text GAS in Arial of 0 at nan 0 1 0 0;";

struct LooseForm {
    const char* pattern;
    const char* clean; // the same as it should be written
    LinErrorKind kind;
};

void PrintTo(const LooseForm& row, std::ostream* out) {
    *out << row.pattern;
}

class TolerantForms : public TolerantFixture, public testing::WithParamInterface<LooseForm> {};

TEST_P(TolerantForms, AreReadAsTheyAreMeantAndLogged) {
    const std::string file = std::string("*X\n") + GetParam().pattern + "\n";
    const std::string meant = StrictWalk(std::string("*X\n") + GetParam().clean + "\n");
    ASSERT_NE(meant.rfind("result", 0), 0U);
    EXPECT_NE(StrictWalk(file), meant) << "a strict reading takes it alike";
    EXPECT_EQ(Walk(file), meant);
    EXPECT_EQ(ErrorKinds(), Kinds{GetParam().kind});
    EXPECT_TRUE(AllTolerated());
    EXPECT_EQ(parser.errors()[0].line, 2U);
    EXPECT_EQ(parser.errors()[0].linetype, "X");
}

INSTANTIATE_TEST_SUITE_P(Alignment, TolerantForms,
                         testing::Values(LooseForm{"a,1,-1", "A,1,-1", LinErrorKind::kAlignmentLowerCase},
                                         LooseForm{"s,1,-1", "S,1,-1", LinErrorKind::kAlignmentLowerCase},
                                         LooseForm{"A ,1,-1", "A,1,-1", LinErrorKind::kBlank}));

INSTANTIATE_TEST_SUITE_P(
    Blanks, TolerantForms,
    testing::Values(
        LooseForm{"A,1 ,-1", "A,1,-1", LinErrorKind::kBlank},
        LooseForm{"A,1\t,\t-1", "A,1,-1", LinErrorKind::kBlank},
        LooseForm{"A,1, [\"GAS\",ST],-1", "A,1,[\"GAS\",ST],-1", LinErrorKind::kBlank},
        LooseForm{"A,1,[ \"GAS\",ST],-1", "A,1,[\"GAS\",ST],-1", LinErrorKind::kBlank},
        LooseForm{"A,1,[\"GAS\" ,ST],-1", "A,1,[\"GAS\",ST],-1", LinErrorKind::kBlank},
        LooseForm{"A,1,[\"GAS\", ST],-1", "A,1,[\"GAS\",ST],-1", LinErrorKind::kBlank},
        LooseForm{"A,1,[\"GAS\",ST ],-1", "A,1,[\"GAS\",ST],-1", LinErrorKind::kBlank},
        LooseForm{"A,1,[\"GAS\",ST] ,-1", "A,1,[\"GAS\",ST],-1", LinErrorKind::kBlank},
        LooseForm{"A,1,[\"GAS\",ST, S=2],-1", "A,1,[\"GAS\",ST,S=2],-1", LinErrorKind::kBlank},
        LooseForm{"A,1,[\"GAS\",ST,S =2],-1", "A,1,[\"GAS\",ST,S=2],-1", LinErrorKind::kBlank},
        LooseForm{"A,1,[\"GAS\",ST,S=2 ],-1", "A,1,[\"GAS\",ST,S=2],-1", LinErrorKind::kBlank},
        LooseForm{"A,1,[\"GAS\",ST,S=2 ,X=1],-1", "A,1,[\"GAS\",ST,S=2,X=1],-1", LinErrorKind::kBlank},
        LooseForm{"A,1,[ mark , marks.shx ],-1", "A,1,[mark,marks.shx],-1", LinErrorKind::kBlank}));

INSTANTIATE_TEST_SUITE_P(
    Placement, TolerantForms,
    testing::Values(
        LooseForm{"A,[\"GAS\",ST,U=5]", "A,[\"GAS\",ST,R=5]", LinErrorKind::kUprightRotation},
        LooseForm{"A,[\"GAS\",ST,u=10g]", "A,[\"GAS\",ST,r=10g]", LinErrorKind::kUprightRotation},
        LooseForm{"A,[\"GAS\",ST,U=5,R=7]", "A,[\"GAS\",ST,R=7]", LinErrorKind::kUprightRotation},
        LooseForm{"A,[\"GAS\",ST,R=7,U=5]", "A,[\"GAS\",ST,R=5]", LinErrorKind::kUprightRotation},
        LooseForm{"A,[\"GAS\",ST,A=7,U=5]", "A,[\"GAS\",ST,A=7,R=5]", LinErrorKind::kUprightRotation},
        LooseForm{"A,[mark,marks.shx,U=5]", "A,[mark,marks.shx,R=5]", LinErrorKind::kUprightRotation},
        LooseForm{"A,[mark,marks.shx,S=2,]", "A,[mark,marks.shx,S=2]", LinErrorKind::kCommaBeforeBracket},
        LooseForm{"A,[mark,marks.shx,]", "A,[mark,marks.shx]", LinErrorKind::kCommaBeforeBracket},
        LooseForm{"A,[\"GAS\",ST,]", "A,[\"GAS\",ST]", LinErrorKind::kCommaBeforeBracket}));

INSTANTIATE_TEST_SUITE_P(
    Styles, TolerantForms,
    testing::Values(LooseForm{"A,[\"A\"],1", "A,[\"A\",STANDARD],1", LinErrorKind::kStyleLeftOut},
                    LooseForm{"A,[\"A\",S=2],1", "A,[\"A\",STANDARD,S=2],1", LinErrorKind::kStyleLeftOut},
                    LooseForm{"A,[\"A\",,S=2],1", "A,[\"A\",STANDARD,S=2],1", LinErrorKind::kStyleLeftOut},
                    LooseForm{"A,[\"A\",],1", "A,[\"A\",STANDARD],1", LinErrorKind::kStyleLeftOut}));

INSTANTIATE_TEST_SUITE_P(
    Quotes, TolerantForms,
    testing::Values(LooseForm{R"(A,[\"GAS\",ST,S=2],1)", R"(A,["GAS",ST,S=2],1)",
                              LinErrorKind::kEscapedQuote},
                    LooseForm{R"(A,[\"GAS",ST],1)", R"(A,["GAS",ST],1)", LinErrorKind::kEscapedQuote},
                    LooseForm{R"(A,[\"\",ST],1)", R"(A,["",ST],1)", LinErrorKind::kEscapedQuote}));

INSTANTIATE_TEST_SUITE_P(Lines, TolerantForms,
                         testing::Values(LooseForm{"Pipes of the water works\nA,1,-1", "A,1,-1",
                                                   LinErrorKind::kLineSkipped}));

using TolerantReading = TolerantFixture;

TEST_F(TolerantReading, SemicolonBetweenQuotesIsOfTheText) {
    EXPECT_EQ(Elements("A,[\"G;S\",ST] ; remark \"x;y\""), "text G;S in Arial of 0 at nan 0 1 0 0;");
    EXPECT_EQ(ErrorKinds(), Kinds{LinErrorKind::kSemicolonInText});
}

TEST_F(TolerantReading, SemicolonBehindAQuoteThatNothingClosesIsAComment) {
    EXPECT_EQ(Elements("A,1,-1;it's 2\" wide"), "dash 1;gap 1;");
    EXPECT_TRUE(parser.errors().empty());
}

TEST_F(TolerantReading, EscapedQuoteInATextIsOfTheText) {
    EXPECT_EQ(Elements(R"(A,["8\"",ST],1)"), R"(text 8" in Arial of 0 at nan 0 1 0 0;dash 1;)");
    EXPECT_EQ(ErrorKinds(), Kinds{LinErrorKind::kEscapedQuote});
    EXPECT_EQ(Elements(R"(A,["a\"b\"c",ST])"), R"(text a"b"c in Arial of 0 at nan 0 1 0 0;)");
}

TEST_F(TolerantReading, BackslashBeforeTheLastQuoteIsOfTheTextAsInAStrictReading) {
    const std::string text = "*X\nA,[\"GAS\\\",ST],1\n";
    EXPECT_EQ(Walk(text), StrictWalk(text));
    EXPECT_TRUE(parser.errors().empty());
}

TEST_F(TolerantReading, EscapedTextThatNothingClosesIsAnError) {
    EXPECT_EQ(Names("*WRONG\nA,[\\\"GAS\\\" x\n*AFTER\nA,2\n"), "AFTER;");
    EXPECT_EQ(parser.errors().back().kind, LinErrorKind::kTextNotClosed);
}

TEST_F(TolerantReading, DoubleBracketBehindATextWithoutStyleIsStillOne) {
    const std::string text = "*X\nA,[\"A\"]],1\n";
    EXPECT_EQ(Walk(text), StrictWalk(text));
    EXPECT_TRUE(parser.errors().empty());
}

TEST_F(TolerantReading, CharacterCodesInTextsAreTold) {
    EXPECT_EQ(Elements(R"(A,["20\U+00b0",ST])"), "text 20\\U+00b0 in Arial of 0 at nan 0 1 0 0;");
    EXPECT_EQ(ErrorKinds(), Kinds{LinErrorKind::kCharacterCodeInText});
    Elements(R"(A,["20\U+00b",ST])");
    EXPECT_TRUE(parser.errors().empty()) << "three digits are no code";
}

TEST_F(TolerantReading, WhatStandsBehindThePatternIsToldAndNotRead) {
    EXPECT_EQ(Elements("A,1,-1 a remark"), "dash 1;gap 1;");
    EXPECT_EQ(ErrorKinds(), Kinds{LinErrorKind::kTextBehindPattern});
    EXPECT_EQ(parser.errors()[0].lineText, "a remark");
    EXPECT_EQ(parser.errors()[0].column, 8U);
}

TEST_F(TolerantReading, ErrorLosesItsLinetypeAndNoOther) {
    for (const char* const wrong :
         {"A,x", "A,1,,2", "A,1,", "B,1", "A,[\"GAS", "A,[mark]", "A,[mark,]", "A,[\"GAS\"ST]",
          "A,[\"GAS\",ST,Q=1]", "A,[\"GAS\",ST,S=x]", "A,[\"GAS\",ST,S=1d]", ""}) {
        EXPECT_EQ(Names(std::string("*BEFORE\nA,1\n*WRONG\n") + wrong + "\n*AFTER\nA,2\n"), "BEFORE;AFTER;")
            << wrong;
        EXPECT_EQ(parser.errors().back().linetype, "WRONG") << wrong;
        EXPECT_FALSE(parser.errors().back().tolerated) << wrong;
    }
}

TEST_F(TolerantReading, EveryErrorOfTheFileIsLogged) {
    EXPECT_EQ(Names("*A\nA,x\n*B\nA,1\n*C\nA,1,,1\n*D\n"), "B;");
    EXPECT_EQ(ErrorKinds(), (Kinds{LinErrorKind::kDashNotANumber, LinErrorKind::kDashNotANumber,
                                   LinErrorKind::kPatternMissing}));
    EXPECT_EQ(parser.errors()[0].line, 2U);
    EXPECT_EQ(parser.errors()[1].line, 6U);
    EXPECT_EQ(parser.errors()[2].line, 7U);
}

TEST_F(TolerantReading, HeaderEndsThePatternBeforeIt) {
    EXPECT_EQ(Names("*A\n*B\nA,1,\n*C,c\nA,1\n"), "C;");
    EXPECT_EQ(ErrorKinds(), (Kinds{LinErrorKind::kPatternMissing, LinErrorKind::kPatternNotContinued}));
}

TEST_F(TolerantReading, WalkIsOfTheLinetypesThatAreLeft) {
    EXPECT_EQ(Walk("*A\nA,1,x\n*B\nA,[\"GAS\",ST],\n2\n*C\nA,,\n*D\nA,3\n"),
              std::string("begin;linetype B||2;") + kPlainText +
                  "dash 2;end linetype;linetype D||1;dash 3;end linetype;end;");
    EXPECT_EQ(parser.linetypes()[0].line, 3U);
    EXPECT_EQ(parser.linetypes()[0].elements[0].line, 4U);
    EXPECT_EQ(parser.linetypes()[0].elements[1].line, 5U);
    EXPECT_EQ(parser.linetypes()[1].line, 8U);
}

TEST_F(TolerantReading, FormsOfOneKindAreLoggedOnceALine) {
    Walk("*X\nA,1 ,2 ,3 ,\n4 ,5\n");
    EXPECT_EQ(ErrorKinds(), (Kinds{LinErrorKind::kBlank, LinErrorKind::kBlank}));
    EXPECT_EQ(parser.errors()[1].line, 3U);
}

} // namespace
} // namespace linetypetest
