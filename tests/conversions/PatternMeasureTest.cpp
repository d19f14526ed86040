// How far strict symbols of patterns are from their definitions, against numbers worked out by hand and
// against tiles that are laid one by one.
#include "conversions/checking/PatternMeasure.h"
#include "StyleConversion/pattern/AreaSymbol.h"
#include "preview/ResolvedSymbol.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>

namespace conversions_test {
namespace {

using conversions::PatternMeasure;
using Families = std::vector<pattern::PatternLine>;

PatternMeasure Measured(const std::vector<std::string>& texts) {
    Families families;
    for (const std::string& text : texts) {
        families.push_back(pattern::ParsePatternLine(text));
    }
    Families drawn = families;
    const auto symbol = pattern::BuildAreaSymbol("X", drawn);
    EXPECT_NE(symbol, nullptr);
    return symbol ? conversions::MeasurePattern(families, *symbol) : PatternMeasure{};
}

struct Row {
    const char* family;
    double across; // of the spacing
    double along;  // of the shortest dash
    double exact;  // the number that is to blame; none where it is written as it is
    double written;
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.family;
}

class MeasuredFamily : public testing::TestWithParam<Row> {};

TEST_P(MeasuredFamily, IsSoFarFromItsPlaceAfterTenTiles) {
    const PatternMeasure measure = Measured({GetParam().family});
    EXPECT_TRUE(measure.lost.empty());
    EXPECT_NEAR(measure.worst.across, GetParam().across, 1e-4);
    EXPECT_NEAR(measure.worst.along, GetParam().along, 1e-4);
    if (GetParam().exact != GetParam().written) {
        ASSERT_TRUE(measure.worst.cut.has_value());
        EXPECT_NEAR(measure.worst.cut->exact, GetParam().exact, 1e-9);
        EXPECT_NEAR(measure.worst.cut->written, GetParam().written, 1e-12);
    } else {
        EXPECT_FALSE(measure.worst.cut.has_value());
    }
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, MeasuredFamily,
    testing::Values(
        // Nothing is cut.
        Row{"0,0,0,0,1", 0, 0, 0, 0}, Row{"0,0.25,0,0.5,1,0.5,-0.5", 0, 0, 0, 0},
        // A tile 0.005 too low, ten times, of 0.105.
        Row{"0,0,0,0,0.105", 0.05 / 0.105, 0, 0.105, 0.1},
        // A tile 0.005 too short, ten times, of dashes 0.5 long.
        Row{"0,0,0,0,1,0.5,-0.605", 0, 0.05 / 0.5, 1.105, 1.1},
        // The origin alone is cut, by 0.00501.
        Row{"0,0.30501,0,0,1,0.5,-0.5", 0, 0.00501 / 0.5, 0.30501, 0.3},
        Row{"0,0,0.30501,0,1,0.5,-0.5", 0.00501, 0, 0.30501, 0.3},
        // A dash is cut, which moves its end; its cycle is not.
        Row{"0,0,0,0,1,0.505,-0.495", 0, 0.005 / 0.495, 0.505, 0.5},
        // 10 of 1000 out of phase from each line to the next.
        Row{"0,0,0,990,1,20,-980", 0, 100.0 / 20.0, 0, 0},
        // The angle is off by 0.005 degrees, over ten tiles 10 wide and the line in the last of them.
        Row{"30.105,0,0,0,1", 110 * 0.005 * pattern::kRadiansPerDegree, 0, 30.105, 30.1},
        // An upright tile: sides of half the root of 2, each 0.0071068 too short, seen at 45 degrees.
        Row{"45,0,0,0.5,0.5,0.5,-0.5", 0.201, 0.201, 0.7071067811865476, 0.7}));

TEST(PatternMeasure, FamiliesWithoutATileAreLost) {
    const PatternMeasure measure = Measured({"0,0,0,0,1", "0,0,0,0.001,1,1,-1", "0,0,0,0,0.105"});
    EXPECT_EQ(measure.lost, std::vector<std::size_t>{1});
    EXPECT_EQ(measure.worst.family, 2U);
}

TEST(PatternMeasure, FamiliesThatShareTheTileOfNoneAreLost) {
    EXPECT_EQ(Measured({"0,0,0,0,0.00005,0.00005,-0.00004", "0,0,0,0,1"}).lost, std::vector<std::size_t>{0});
}

TEST(PatternMeasure, FamiliesThatDrawNothingAreNotLost) {
    EXPECT_TRUE(Measured({"0,0,0,0.3,1,-1", "0,0,0,0,1"}).lost.empty());
}

TEST(PatternMeasure, EachFamilyIsComparedWithItsOwnLines) {
    // Drawn in another order, in two tiles, one of which two families share.
    const PatternMeasure measure = Measured(
        {"90,1,2,0,2,1,-1", "0,0,0,0,2,1.5,-0.5", "45,0,0,0,0.105", "0,0.5,1,0,2,0.5,-1.5", "63,4,5,0,3"});
    EXPECT_TRUE(measure.lost.empty());
    EXPECT_EQ(measure.worst.family, 2U);
    EXPECT_NEAR(measure.worst.Share(), 0.05 / 0.105, 1e-4);
}

// Errors of the dash that begins at `from` against a family of one dash and one gap.
struct Errors {
    double across = 0.0;
    double along = 0.0;
};

class LaidTiles {
public:
    LaidTiles(const pattern::PatternLine& line, const preview::Member& member) : line_(line) {
        const double radians = line.angle * pattern::kRadiansPerDegree;
        cos_ = std::cos(radians);
        sin_ = std::sin(radians);
        const double turn = member.angle.value * pattern::kRadiansPerDegree;
        const auto& path = std::get<preview::PathPart>(member.parts.front());
        for (const double i : {-10.0, 10.0}) {
            for (const double j : {-10.0, 10.0}) {
                preview::ForEachPiece(
                    path.outline,
                    [&](preview::Point from, preview::Point to, bool) {
                        Take(from.x + i * *member.repeatX, from.y + j * *member.repeatY, turn, 0.0);
                        Take(to.x + i * *member.repeatX, to.y + j * *member.repeatY, turn, line.dashes[0]);
                    },
                    [](auto...) {});
            }
        }
    }

    Errors worst;

private:
    void Take(double tileX, double tileY, double turn, double behind) {
        const double x = tileX * std::cos(turn) - tileY * std::sin(turn) - line_.originX;
        const double y = tileX * std::sin(turn) + tileY * std::cos(turn) - line_.originY;
        const double across = y * cos_ - x * sin_;
        const double row = std::round(across / line_.spacing);
        const double along = x * cos_ + y * sin_ - behind - row * line_.offset;
        worst.across = std::max(worst.across, std::fabs(across - row * line_.spacing));
        worst.along = std::max(worst.along, std::fabs(std::remainder(along, line_.dashTotal)));
    }

    const pattern::PatternLine& line_;
    double cos_ = 1.0;
    double sin_ = 0.0;
};

TEST(PatternMeasure, IsTheWorstErrorOfTilesLaidOneByOne) {
    std::mt19937 random(20);
    const auto number = [&](int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(random) / 1000.0;
    };
    int compared = 0;
    for (int i = 0; i < 3000; ++i) {
        const double dash = number(500, 9000);
        const double gap = number(500, 9000);
        const double quarter = (dash + gap) * std::uniform_int_distribution<int>(0, 3)(random) / 4.0;
        std::string text = i % 3 == 0 ? "45" : std::to_string(number(0, 180000));
        for (const double value :
             {number(-5000, 5000), number(-5000, 5000), quarter + number(0, 2), number(500, 9000), dash}) {
            text += "," + std::to_string(value);
        }
        text += ",-" + std::to_string(gap);
        const Families families{pattern::ParsePatternLine(text)};
        Families drawn = families;
        const auto symbol = pattern::BuildAreaSymbol("X", drawn);
        if (!symbol) {
            continue;
        }
        const PatternMeasure measure = conversions::MeasurePattern(families, *symbol);
        const pattern::PatternLine& line = families.front();
        const double shortest = std::min(dash, gap);
        const double along = measure.worst.along * shortest;
        if (measure.worst.across > 0.4 || along > 0.4 * line.dashTotal) {
            continue; // nearest to another line
        }
        const Errors laid = LaidTiles(line, preview::Resolve(*symbol).members.front()).worst;
        const double little = 1e-9 * (line.dashTotal + line.spacing) * 100;
        EXPECT_NEAR(laid.across, measure.worst.across * line.spacing, little) << text;
        EXPECT_NEAR(laid.along, along, little) << text;
        ++compared;
    }
    EXPECT_GT(compared, 1000);
}

} // namespace
} // namespace conversions_test
