// Pattern files as a tolerant reading takes them, and what it logs.
#include "StyleConversion/pattern/PatternFile.h"
#include "StyleConversion/pattern/PatternLimits.h"
#include "StyleConversion/pattern/RepeatTile.h"

#include <gtest/gtest.h>
#include <ostream>
#include <string>

namespace {

using namespace pattern;
using Kind = PatternError::Kind;

bool AreSame(const PatternLine& a, const PatternLine& b) {
    return a.angle == b.angle && a.originX == b.originX && a.originY == b.originY && a.offset == b.offset &&
           a.spacing == b.spacing && a.repeatX == b.repeatX && a.repeatY == b.repeatY &&
           a.dashes == b.dashes && a.rowCount == b.rowCount && a.rotatedTile == b.rotatedTile;
}

bool AreSame(const PatternFile& a, const PatternFile& b) {
    return a.descriptions.size() == b.descriptions.size() &&
           std::equal(a.patterns.begin(), a.patterns.end(), b.patterns.begin(), b.patterns.end(),
                      [](const auto& x, const auto& y) {
                          return x.first == y.first &&
                                 std::equal(x.second.begin(), x.second.end(), y.second.begin(),
                                            y.second.end(),
                                            [](const auto& l, const auto& m) { return AreSame(l, m); });
                      });
}

PatternFile Strict(const std::string& text) {
    PatternFile file;
    ParsePatternFile(text, file);
    return file;
}

struct Reading {
    PatternFile file;
    PatternReading reading;
};

Reading Tolerant(const std::string& text, PatternPolicy policy = kTolerantPatternPolicy) {
    Reading result;
    ParsePatternFile(text, result.file, &result.reading, policy);
    return result;
}

struct LooseForm {
    const char* text;
    const char* clean;
    Kind kind;
    std::size_t line;
};

void PrintTo(const LooseForm& row, std::ostream* out) {
    *out << testing::PrintToString(std::string(row.text));
}

class TolerantPatterns : public testing::TestWithParam<LooseForm> {};

TEST_P(TolerantPatterns, AreReadAsTheyAreMeantAndLogged) {
    const Reading read = Tolerant(GetParam().text);
    EXPECT_TRUE(AreSame(read.file, Strict(GetParam().clean)));
    EXPECT_FALSE(AreSame(Strict(GetParam().text), Strict(GetParam().clean)))
        << "a strict reading takes it alike";
    ASSERT_EQ(read.reading.errors.size(), 1U);
    EXPECT_EQ(read.reading.errors[0].kind, GetParam().kind);
    EXPECT_EQ(read.reading.errors[0].line, GetParam().line);
    EXPECT_TRUE(read.reading.errors[0].changes);
}

INSTANTIATE_TEST_SUITE_P(
    LooseForms, TolerantPatterns,
    testing::Values(LooseForm{"*X\n  *Y\n0,0,0,0,1\n", "*X\n*Y\n0,0,0,0,1\n", Kind::kIndentedHeader, 2},
                    LooseForm{"*X\n0,0,0,0,1\n \t\n", "*X\n0,0,0,0,1\n", Kind::kBlankLine, 3},
                    LooseForm{"*X\n0,0,0,0,1\n ; remark\n", "*X\n0,0,0,0,1\n", Kind::kIndentedRemark, 3},
                    LooseForm{"*X\n0,0,0,0,1,1,-1 ; one, two\n", "*X\n0,0,0,0,1,1,-1\n", Kind::kRemarkBehind,
                              2},
                    LooseForm{"*X ; remark\n0,0,0,0,1\n", "*X\n0,0,0,0,1\n", Kind::kRemarkBehind, 1},
                    LooseForm{"*X\n0,0,0,0,1,1,-1,\n", "*X\n0,0,0,0,1,1,-1\n", Kind::kEmptyNumber, 2},
                    LooseForm{"*X\n0,0,0,0,1,1,-1, ,5\n", "*X\n0,0,0,0,1,1,-1\n", Kind::kEmptyNumber, 2},
                    LooseForm{"\xEF\xBB\xBF*X\n0,0,0,0,1\n", "*X\n0,0,0,0,1\n", Kind::kByteOrderMark, 1}));

TEST(TolerantPatternFile, LineOfAnyLengthIsRead) {
    std::string dashes;
    for (int i = 0; i < 100; ++i) {
        dashes += ",1,-1";
    }
    const Reading read = Tolerant("*X\n0,0,0,0,1" + dashes + "\n*Y\n0,0,0,0,1\n");
    EXPECT_EQ(read.file.patterns.at("X")[0].dashes.size(), 200U);
    EXPECT_EQ(read.file.patterns.count("Y"), 1U);
    ASSERT_EQ(read.reading.errors.size(), 1U);
    EXPECT_EQ(read.reading.errors[0].kind, Kind::kLongLine);
    EXPECT_EQ(read.reading.end, PatternReading::End::kEndOfFile);
    const std::string remark = ";" + std::string(kLongestLine - 1, '-');
    EXPECT_TRUE(Tolerant("*X\n" + remark + "\n0,0,0,0,1\n").reading.errors.empty());
    EXPECT_EQ(Tolerant("*X\n" + remark + "-\n0,0,0,0,1\n").reading.errors.size(), 1U);
}

TEST(TolerantPatternFile, FamilyBeforeTheFirstHeaderIsLostAndTold) {
    const Reading read = Tolerant("0,0,0,0,1\n*X\n0,0,0,0,2\n");
    EXPECT_EQ(read.file.patterns.at("X").size(), 1U);
    ASSERT_EQ(read.reading.errors.size(), 1U);
    EXPECT_EQ(read.reading.errors[0].kind, Kind::kFamilyWithoutHeader);
}

TEST(TolerantPatternFile, WhatIsWrongAndReadTheSameIsToldAsThat) {
    const std::pair<const char*, Kind> lines[] = {
        {"0,0,0,0,1,1,", Kind::kEmptyNumber}, {"0,,0,0,1", Kind::kEmptyNumber},
        {"0,x,0,0,1", Kind::kNotANumber},     {"0,1 m,0,0,1", Kind::kTextBehindNumber},
        {"0,0,0", Kind::kTooFewNumbers},      {"0,0,0,0,1;remark", Kind::kRemarkBehind},
    };
    for (const auto& [line, kind] : lines) {
        const std::string text = std::string("*X\n") + line + "\n";
        const Reading read = Tolerant(text);
        EXPECT_TRUE(AreSame(read.file, Strict(text))) << line;
        ASSERT_EQ(read.reading.errors.size(), 1U) << line;
        EXPECT_EQ(read.reading.errors[0].kind, kind) << line;
    }
}

TEST(TolerantPatternFile, NothingIsToldOfWhatAStrictReadingTakesAsItIsMeant) {
    for (const char* const text :
         {"Prose, with 1 comma\n*X\n 0, 0,\t0, 0, 1\n", "  \n ; remark\n*X,a \n0,0,0,0,1 \r\n",
          "\xEF\xBB\xBF; remark\n*X\n+.5,0,-0,1e0,1\n"}) {
        const Reading read = Tolerant(text);
        EXPECT_TRUE(read.reading.errors.empty()) << text;
        EXPECT_TRUE(AreSame(read.file, Strict(text))) << text;
    }
}

TEST(PatternUnits, AreScaledWhereAnotherIsWanted) {
    const std::string text = "*X\n0,0,0,0,1\n;%UNITS=MM\n45,254,-25.4,0,25.4,50.8,-25.4\n";
    PatternPolicy inch;
    inch.wantedUnit = Unit::kInch;
    const Reading read = Tolerant(text, inch);
    const PatternLine& before = read.file.patterns.at("X")[0];
    const PatternLine& scaled = read.file.patterns.at("X")[1];
    EXPECT_EQ(before.spacing, 1.0);
    EXPECT_EQ(scaled.angle, 45.0);
    // 1 / 25.4 is not exact.
    EXPECT_NEAR(scaled.originX, 10.0, 1e-12);
    EXPECT_NEAR(scaled.originY, -1.0, 1e-12);
    EXPECT_NEAR(scaled.spacing, 1.0, 1e-12);
    EXPECT_NEAR(scaled.dashes[0], 2.0, 1e-12);
    EXPECT_EQ(read.reading.unit, Unit::kMillimetre);
    EXPECT_EQ(read.reading.unitLine, 3U);
    PatternPolicy millimetre;
    millimetre.wantedUnit = Unit::kMillimetre;
    EXPECT_TRUE(AreSame(Tolerant(text, millimetre).file, Strict(text)));
    const Reading inches = Tolerant("*X\n; %units = inch\n0,0,0,0,1\n", millimetre);
    EXPECT_EQ(inches.file.patterns.at("X")[0].spacing, 25.4);
}

struct Tile {
    const char* family;
    int rowCount;
    double error;
};

void PrintTo(const Tile& row, std::ostream* out) {
    *out << row.family;
}

class TilePhase : public testing::TestWithParam<Tile> {};

TEST_P(TilePhase, ErrorIsThatOfTheStack) {
    const PatternLine line = ParsePatternLine(GetParam().family);
    EXPECT_EQ(line.rowCount, GetParam().rowCount);
    EXPECT_NEAR(PhaseError(line), GetParam().error, 1e-12);
}

// Shift, spacing, dashes: after n lines the phase is n × shift less whole cycles.
INSTANTIATE_TEST_SUITE_P(Families, TilePhase,
                         testing::Values(Tile{"0,0,0,0,1,1,-1", 1, 0.0},            // no shift
                                         Tile{"0,0,0,0.25,1,0.5,-0.5", 4, 0.0},     // 4 × 0.25 = 1
                                         Tile{"0,0,0,0.3334,1,0.5,-0.5", 3, 2e-4},  // 1.0002 is nearest, at 3
                                         Tile{"45,0,0,0.5,0.5,0.5,-0.5", 1, 0.0})); // upright

} // namespace
