// Forms that a strict reading refuses, or reads only a part of, and a tolerant one takes as they are meant.
#include "TolerantFixture.h"

#include <ostream>

namespace linetypetest {
namespace {

using LineConverter::LinFaultKind;

// How elements are shown: A (NaN: none) R S X Y.
constexpr const char* kPlainText = "text GAS in Arial of 0 at nan 0 1 0 0;";

struct Slip {
    const char* pattern;
    const char* clean; // the same as it should be written
    LinFaultKind kind;
};

void PrintTo(const Slip& row, std::ostream* out) {
    *out << row.pattern;
}

class TolerantSlips : public TolerantFixture, public testing::WithParamInterface<Slip> {};

TEST_P(TolerantSlips, AreReadAsTheyAreMeantAndTold) {
    const std::string file = std::string("*X\n") + GetParam().pattern + "\n";
    const std::string meant = StrictWalk(std::string("*X\n") + GetParam().clean + "\n");
    ASSERT_NE(meant.rfind("result", 0), 0U);
    EXPECT_NE(StrictWalk(file), meant) << "this is no slip";
    EXPECT_EQ(Walk(file), meant);
    EXPECT_EQ(FaultKinds(), Kinds{GetParam().kind});
    EXPECT_TRUE(AllForgiven());
    EXPECT_EQ(parser.faults()[0].line, 2U);
    EXPECT_EQ(parser.faults()[0].linetype, "X");
}

INSTANTIATE_TEST_SUITE_P(Alignment, TolerantSlips,
                         testing::Values(Slip{"a,1,-1", "A,1,-1", LinFaultKind::kAlignmentLowerCase},
                                         Slip{"s,1,-1", "S,1,-1", LinFaultKind::kAlignmentLowerCase},
                                         Slip{"A ,1,-1", "A,1,-1", LinFaultKind::kBlank}));

INSTANTIATE_TEST_SUITE_P(
    Blanks, TolerantSlips,
    testing::Values(Slip{"A,1 ,-1", "A,1,-1", LinFaultKind::kBlank},
                    Slip{"A,1\t,\t-1", "A,1,-1", LinFaultKind::kBlank},
                    Slip{"A,1, [\"GAS\",ST],-1", "A,1,[\"GAS\",ST],-1", LinFaultKind::kBlank},
                    Slip{"A,1,[ \"GAS\",ST],-1", "A,1,[\"GAS\",ST],-1", LinFaultKind::kBlank},
                    Slip{"A,1,[\"GAS\" ,ST],-1", "A,1,[\"GAS\",ST],-1", LinFaultKind::kBlank},
                    Slip{"A,1,[\"GAS\", ST],-1", "A,1,[\"GAS\",ST],-1", LinFaultKind::kBlank},
                    Slip{"A,1,[\"GAS\",ST ],-1", "A,1,[\"GAS\",ST],-1", LinFaultKind::kBlank},
                    Slip{"A,1,[\"GAS\",ST] ,-1", "A,1,[\"GAS\",ST],-1", LinFaultKind::kBlank},
                    Slip{"A,1,[\"GAS\",ST, S=2],-1", "A,1,[\"GAS\",ST,S=2],-1", LinFaultKind::kBlank},
                    Slip{"A,1,[\"GAS\",ST,S =2],-1", "A,1,[\"GAS\",ST,S=2],-1", LinFaultKind::kBlank},
                    Slip{"A,1,[\"GAS\",ST,S=2 ],-1", "A,1,[\"GAS\",ST,S=2],-1", LinFaultKind::kBlank},
                    Slip{"A,1,[\"GAS\",ST,S=2 ,X=1],-1", "A,1,[\"GAS\",ST,S=2,X=1],-1", LinFaultKind::kBlank},
                    Slip{"A,1,[ mark , marks.shx ],-1", "A,1,[mark,marks.shx],-1", LinFaultKind::kBlank}));

INSTANTIATE_TEST_SUITE_P(
    Placement, TolerantSlips,
    testing::Values(Slip{"A,[\"GAS\",ST,U=5]", "A,[\"GAS\",ST,R=5]", LinFaultKind::kUprightRotation},
                    Slip{"A,[\"GAS\",ST,u=10g]", "A,[\"GAS\",ST,r=10g]", LinFaultKind::kUprightRotation},
                    Slip{"A,[\"GAS\",ST,U=5,R=7]", "A,[\"GAS\",ST,R=7]", LinFaultKind::kUprightRotation},
                    Slip{"A,[\"GAS\",ST,R=7,U=5]", "A,[\"GAS\",ST,R=5]", LinFaultKind::kUprightRotation},
                    Slip{"A,[\"GAS\",ST,A=7,U=5]", "A,[\"GAS\",ST,A=7,R=5]", LinFaultKind::kUprightRotation},
                    Slip{"A,[mark,marks.shx,U=5]", "A,[mark,marks.shx,R=5]", LinFaultKind::kUprightRotation},
                    Slip{"A,[mark,marks.shx,S=2,]", "A,[mark,marks.shx,S=2]",
                         LinFaultKind::kCommaBeforeBracket},
                    Slip{"A,[mark,marks.shx,]", "A,[mark,marks.shx]", LinFaultKind::kCommaBeforeBracket},
                    Slip{"A,[\"GAS\",ST,]", "A,[\"GAS\",ST]", LinFaultKind::kCommaBeforeBracket}));

INSTANTIATE_TEST_SUITE_P(
    Styles, TolerantSlips,
    testing::Values(Slip{"A,[\"A\"],1", "A,[\"A\",STANDARD],1", LinFaultKind::kStyleLeftOut},
                    Slip{"A,[\"A\",S=2],1", "A,[\"A\",STANDARD,S=2],1", LinFaultKind::kStyleLeftOut},
                    Slip{"A,[\"A\",,S=2],1", "A,[\"A\",STANDARD,S=2],1", LinFaultKind::kStyleLeftOut},
                    Slip{"A,[\"A\",],1", "A,[\"A\",STANDARD],1", LinFaultKind::kStyleLeftOut}));

INSTANTIATE_TEST_SUITE_P(Lines, TolerantSlips,
                         testing::Values(Slip{"Pipes of the water works\nA,1,-1", "A,1,-1",
                                              LinFaultKind::kLineSkipped}));

using TolerantReading = TolerantFixture;

TEST_F(TolerantReading, SemicolonBetweenQuotesIsOfTheText) {
    EXPECT_EQ(Elements("A,[\"G;S\",ST] ; remark \"x;y\""), "text G;S in Arial of 0 at nan 0 1 0 0;");
    EXPECT_EQ(FaultKinds(), Kinds{LinFaultKind::kSemicolonInText});
}

TEST_F(TolerantReading, SemicolonBehindAQuoteThatNothingClosesIsAComment) {
    EXPECT_EQ(Elements("A,1,-1;it's 2\" wide"), "dash 1;gap 1;");
    EXPECT_TRUE(parser.faults().empty());
}

TEST_F(TolerantReading, DoubleBracketBehindATextWithoutStyleIsStillOne) {
    const std::string text = "*X\nA,[\"A\"]],1\n";
    EXPECT_EQ(Walk(text), StrictWalk(text));
    EXPECT_TRUE(parser.faults().empty());
}

TEST_F(TolerantReading, CharacterCodesInTextsAreTold) {
    EXPECT_EQ(Elements(R"(A,["20\U+00b0",ST])"), "text 20\\U+00b0 in Arial of 0 at nan 0 1 0 0;");
    EXPECT_EQ(FaultKinds(), Kinds{LinFaultKind::kCharacterCodeInText});
    Elements(R"(A,["20\U+00b",ST])");
    EXPECT_TRUE(parser.faults().empty()) << "three digits are no code";
}

TEST_F(TolerantReading, WhatStandsBehindThePatternIsToldAndNotRead) {
    EXPECT_EQ(Elements("A,1,-1 a remark"), "dash 1;gap 1;");
    EXPECT_EQ(FaultKinds(), Kinds{LinFaultKind::kTextBehindPattern});
    EXPECT_EQ(parser.faults()[0].lineText, "a remark");
    EXPECT_EQ(parser.faults()[0].column, 8U);
}

TEST_F(TolerantReading, FaultLosesItsLinetypeAndNoOther) {
    for (const char* const wrong :
         {"A,x", "A,1,,2", "A,1,", "B,1", "A,[\"GAS", "A,[mark]", "A,[mark,]", "A,[\"GAS\"ST]",
          "A,[\"GAS\",ST,Q=1]", "A,[\"GAS\",ST,S=x]", "A,[\"GAS\",ST,S=1d]", ""}) {
        EXPECT_EQ(Names(std::string("*BEFORE\nA,1\n*WRONG\n") + wrong + "\n*AFTER\nA,2\n"), "BEFORE;AFTER;")
            << wrong;
        EXPECT_EQ(parser.faults().back().linetype, "WRONG") << wrong;
        EXPECT_FALSE(parser.faults().back().forgiven) << wrong;
    }
}

TEST_F(TolerantReading, EveryFaultOfTheFileIsTold) {
    EXPECT_EQ(Names("*A\nA,x\n*B\nA,1\n*C\nA,1,,1\n*D\n"), "B;");
    EXPECT_EQ(FaultKinds(), (Kinds{LinFaultKind::kDashNotANumber, LinFaultKind::kDashNotANumber,
                                   LinFaultKind::kPatternMissing}));
    EXPECT_EQ(parser.faults()[0].line, 2U);
    EXPECT_EQ(parser.faults()[1].line, 6U);
    EXPECT_EQ(parser.faults()[2].line, 7U);
}

TEST_F(TolerantReading, HeaderEndsThePatternBeforeIt) {
    EXPECT_EQ(Names("*A\n*B\nA,1,\n*C,c\nA,1\n"), "C;");
    EXPECT_EQ(FaultKinds(), (Kinds{LinFaultKind::kPatternMissing, LinFaultKind::kPatternNotContinued}));
}

TEST_F(TolerantReading, WalkIsOfTheLinetypesThatAreLeft) {
    EXPECT_EQ(Walk("*A\nA,1,x\n*B\nA,[\"GAS\",ST],\n2\n*C\nA,,\n*D\nA,3\n"),
              std::string("begin;linetype B||2;") + kPlainText +
                  "dash 2;end linetype;linetype D||1;dash 3;end linetype;end;");
    EXPECT_EQ(parser.HeaderLine(0), 3U);
    EXPECT_EQ(parser.ElementLine(0, 0), 4U);
    EXPECT_EQ(parser.ElementLine(0, 1), 5U);
    EXPECT_EQ(parser.HeaderLine(1), 8U);
}

TEST_F(TolerantReading, SlipsOfOneKindAreToldOnceALine) {
    Walk("*X\nA,1 ,2 ,3 ,\n4 ,5\n");
    EXPECT_EQ(FaultKinds(), (Kinds{LinFaultKind::kBlank, LinFaultKind::kBlank}));
    EXPECT_EQ(parser.faults()[1].line, 3U);
}

} // namespace
} // namespace linetypetest
