// Lines as a tolerant reading takes them: of any length, behind a byte-order mark, and those that are passed
// over.
#include "TolerantFixture.h"

#include "StyleConversion/linetype/LinLimits.h"

namespace linetypetest {
namespace {

using LineConverter::LinErrorKind;

constexpr std::size_t kLongestPiece = LineConverter::kLineBufferSize - 1;

class TolerantLines : public TolerantFixture {
protected:
    // A pattern of `count` dashes on one line.
    static std::string Dashes(std::size_t count) {
        std::string pattern = "A";
        for (std::size_t i = 0; i < count; ++i) {
            pattern += ",1";
        }
        return pattern;
    }
};

TEST_F(TolerantLines, LineOfAnyLengthIsOneLine) {
    ASSERT_EQ(Parse("*X\n" + Dashes(100000) + "\n*Y\nA,1\n"), LineConverter::kSuccess);
    ASSERT_EQ(parser.linetypes().size(), 2U);
    EXPECT_EQ(parser.linetypes()[0].elements.size(), 100000U);
    EXPECT_EQ(ErrorKinds(), Kinds{LinErrorKind::kLineTooLong});
    EXPECT_EQ(Names("*" + std::string(5000, 'N') + "\nA,1\n"), std::string(5000, 'N') + ";");
}

TEST_F(TolerantLines, LongLineIsToldWhereAStrictReadingTakesItApart) {
    // 1,023 bytes without the line's end, and 1,025.
    EXPECT_EQ(Dashes(511).size(), kLongestPiece);
    Parse("*X\n" + Dashes(511) + "\n");
    EXPECT_TRUE(parser.errors().empty());
    Parse("*X\n" + Dashes(512) + "\n");
    EXPECT_EQ(ErrorKinds(), Kinds{LinErrorKind::kLineTooLong});
    Parse("*X\nA,1" + std::string(3000, ' ') + "\n");
    EXPECT_TRUE(parser.errors().empty()) << "blanks are no loss";
    Parse(std::string(3000, '-') + "\n*X\nA,1\n");
    EXPECT_TRUE(parser.errors().empty()) << "nor is prose";
    Parse(std::string(kLongestPiece, '-') + "*Y\n*X\nA,1\n");
    EXPECT_EQ(ErrorKinds(), Kinds{LinErrorKind::kLineTooLong}) << "a strict reading finds a header there";
}

TEST_F(TolerantLines, ByteOrderMarkIsSkippedAndToldWhereItHidesAHeader) {
    EXPECT_EQ(Names("\xEF\xBB\xBF*X\nA,1\n"), "X;");
    EXPECT_EQ(ErrorKinds(), Kinds{LinErrorKind::kByteOrderMark});
    EXPECT_EQ(Names("\xEF\xBB\xBF; pipes\n*X\nA,1\n"), "X;");
    EXPECT_TRUE(parser.errors().empty());
}

TEST_F(TolerantLines, ProseBetweenLinetypesIsNoError) {
    EXPECT_EQ(Names("Linetypes of the water works\n\n*X\nA,1\nAnd another\n*Y\nA,1\n"), "X;Y;");
    EXPECT_TRUE(parser.errors().empty());
}

TEST_F(TolerantLines, WhatWasMeantToBeReadIsTold) {
    EXPECT_EQ(Names("*X\nA,1\nA,2\n *Y\nA,3\n*,no name\nA,4\n*\n"), "X;");
    EXPECT_EQ(ErrorKinds(), (Kinds{LinErrorKind::kPatternWithoutHeader, LinErrorKind::kHeaderIndented,
                                   LinErrorKind::kPatternWithoutHeader, LinErrorKind::kHeaderWithoutName,
                                   LinErrorKind::kPatternWithoutHeader, LinErrorKind::kHeaderWithoutName}));
}

// Each deletion touches one line's text or joins two lines: the linetypes of no more than those are lost.
TEST_F(TolerantLines, DeletionOfAByteLosesTheOneOrTwoLinetypesItTouches) {
    const std::string linetypes[] = {
        "*DASHED,Dashed __ __ __\r\nA,.5,-.25\r\n",
        "*GAS,Gas ----GAS----\r\nA,.5,-.2,[\"GAS\",ST,S=.1,R=0.0,X=-0.1,Y=-.05],-.25\r\n",
        "*MARKED\r\nA,.25,-.1,[MARK,marks.shx,x=-.1,s=.1],-.1,1\r\n",
        "*LONG,Goes on\r\n; a remark, with an \"A,\"\r\nA,.5,-.25,\r\n0,-.25\r\n\r\n",
        "*BEHIND\r\nA,1,[\"x;y\",STANDARD],-1\r\n",
        "*LAST,The last\r\nS,1,-1\r\n",
    };
    std::string file;
    std::vector<std::pair<std::size_t, std::string>> starts;
    for (const std::string& text : linetypes) {
        starts.emplace_back(file.size(), text.substr(1, text.find_first_of(",\r") - 1));
        file += text;
    }
    ASSERT_EQ(Names(file), "DASHED;GAS;MARKED;LONG;BEHIND;LAST;");
    for (std::size_t deleted = 0; deleted < file.size(); ++deleted) {
        std::string damaged = file;
        damaged.erase(deleted, 1);
        const std::string names = ";" + Names(damaged);
        for (std::size_t i = 0; i < starts.size(); ++i) {
            const std::size_t end = i + 1 < starts.size() ? starts[i + 1].first : file.size();
            // Of the linetype's own bytes, and of the line's end before it.
            const bool isTouched = deleted + 1 >= starts[i].first && deleted < end;
            if (!isTouched) {
                EXPECT_NE(names.find(";" + starts[i].second + ";"), std::string::npos)
                    << "without byte " << deleted << ": " << names;
            }
        }
    }
}

} // namespace
} // namespace linetypetest
