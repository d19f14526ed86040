// Faithful symbols against lines and dashes computed straight from the numbers of a family.
#include "StyleConversion/pattern/FaithfulSymbol.h"

#include "PatternTestSupport.h"
#include "StyleConversion/pattern/PatternFile.h"
#include "StyleConversion/pattern/PatternLimits.h"

#include <cmath>
#include <random>
#include <set>
#include <sstream>

namespace {

using pattern::FaithfulTile;
using pattern::FaithfulTiles;
using pattern::PatternLine;

std::vector<PatternLine> Families(const std::string& text) {
    pattern::PatternFile file;
    pattern::PatternPolicy policy;
    policy.linesOfAnyLength = true;
    policy.fidelity = encoding::Fidelity::kFaithful;
    ParsePatternFile("*P\n" + text, file, nullptr, policy);
    return file.patterns.at("P");
}

Symbol FaithfulSymbol(const std::string& text) {
    const std::vector<PatternLine> families = Families(text);
    return BuildFaithfulSymbol("P", families, FindFaithfulTiles(families));
}

// A definition's angle, repeats and path.
using Drawn = std::vector<std::vector<std::wstring>>;
Drawn DrawnBy(const std::string& text) {
    Drawn drawn;
    for (const ReadSymbol& definition : SimpleDefinitions(FaithfulSymbol(text))) {
        drawn.push_back({definition.area->angle, definition.area->repeatX, definition.area->repeatY,
                         Geometries(definition).front()});
    }
    return drawn;
}

struct Dash {
    double x = 0.0;
    double y = 0.0;
    double length = 0.0;
};

// What the text of a path draws, turned by an angle in degrees.
std::vector<Dash> DashesOf(const std::wstring& path, double degrees) {
    const double c = std::cos(degrees * pattern::kRadiansPerDegree);
    const double s = std::sin(degrees * pattern::kRadiansPerDegree);
    std::wistringstream words(path);
    std::vector<Dash> dashes;
    double x = 0.0;
    double y = 0.0;
    for (std::wstring word; words >> word;) {
        wchar_t comma = 0;
        double toX = 0.0;
        double toY = 0.0;
        words >> toX;
        if (word != L"h") {
            words >> comma >> toY;
        }
        if (word != L"M") {
            toX += x;
            toY += y;
        }
        if (word != L"M") {
            dashes.push_back({x * c - y * s, x * s + y * c, std::hypot(toX - x, toY - y)});
        }
        x = toX;
        y = toY;
    }
    return dashes;
}

// A family by its numbers, apart from all that the library makes of them.
struct Definition {
    double angle = 0.0;
    double originX = 0.0;
    double originY = 0.0;
    double shift = 0.0;
    double spacing = 1.0;
    std::vector<double> dashes;

    std::string Text() const {
        std::ostringstream text;
        text.precision(17);
        text << angle << "," << originX << "," << originY << "," << shift << "," << spacing;
        for (const double dash : dashes) {
            text << "," << dash;
        }
        text << "\n";
        return text.str();
    }

    double Cycle() const {
        double sum = 0.0;
        for (const double dash : dashes) {
            sum += std::fabs(dash);
        }
        return sum;
    }

    double Shortest() const {
        double shortest = Cycle();
        for (const double dash : dashes) {
            shortest = std::min(shortest, std::fabs(dash));
        }
        return shortest;
    }

    // How far a drawn dash begins from the nearest of this family that has its length; which line that is and
    // which of the line's dashes, counted from the origin.
    struct Match {
        double distance = HUGE_VAL;
        long long line = 0;
        long long cycle = 0;
        std::size_t dash = 0;
    };
    Match Nearest(const Dash& drawn) const {
        const double radians = angle * 3.14159265358979323846 / 180.0;
        const double x = drawn.x - originX;
        const double y = drawn.y - originY;
        const double along = x * std::cos(radians) + y * std::sin(radians);
        const double across = y * std::cos(radians) - x * std::sin(radians);
        Match match;
        match.line = std::llround(across / spacing);
        const double miss = across - static_cast<double>(match.line) * spacing;
        double before = static_cast<double>(match.line) * shift;
        for (std::size_t i = 0; i < dashes.size(); ++i) {
            const double cycle = std::round((along - before) / Cycle());
            const double distance = std::hypot(along - before - cycle * Cycle(), miss);
            if (dashes[i] >= 0 && std::fabs(dashes[i] - drawn.length) < 1e-9 * Cycle() &&
                distance < match.distance) {
                match.distance = distance;
                match.cycle = std::llround(cycle);
                match.dash = i;
            }
            before += std::fabs(dashes[i]);
        }
        return match;
    }
};

struct Tiling {
    double angle = 0.0;
    double width = 0.0;
    double height = 0.0;
    std::vector<Dash> dashes;
};

Tiling TilingOf(const ReadSymbol& definition) {
    const std::wstring prefix = L"%HATCHANGLE%";
    const std::wstring angle = definition.area->angle.substr(prefix.size());
    Tiling tiling;
    tiling.angle = angle.empty() ? 0.0 : std::stod(angle.substr(1));
    tiling.width = std::stod(definition.area->repeatX);
    tiling.height = std::stod(definition.area->repeatY);
    tiling.dashes = DashesOf(Geometries(definition).front(), tiling.angle);
    return tiling;
}

// The worst distance of a dash from its place, as a share of the shortest, in the tile that is so many tiles
// to the right of the one at the origin and above it. Two dashes may not have the same place.
double WorstShare(const Definition& family, const Tiling& tiling, int right, int up) {
    const double radians = tiling.angle * 3.14159265358979323846 / 180.0;
    const double x = right * tiling.width;
    const double y = up * tiling.height;
    std::set<std::tuple<long long, long long, std::size_t>> places;
    double worst = 0.0;
    for (const Dash& dash : tiling.dashes) {
        const auto match =
            family.Nearest({dash.x + x * std::cos(radians) - y * std::sin(radians),
                            dash.y + x * std::sin(radians) + y * std::cos(radians), dash.length});
        worst = std::max(worst, match.distance / family.Shortest());
        EXPECT_TRUE(places.insert({match.line, match.cycle, match.dash}).second);
    }
    return worst;
}

// As many dashes as the area of the tile has, which nothing but all of them can be where none is there twice.
void ExpectComplete(const Definition& family, const Tiling& tiling) {
    double drawn = 0.0;
    for (const double dash : family.dashes) {
        drawn += dash >= 0 ? 1.0 : 0.0;
    }
    const double cells = tiling.width * tiling.height / (family.Cycle() * std::fabs(family.spacing));
    EXPECT_EQ(static_cast<double>(tiling.dashes.size()), std::round(cells) * drawn) << family.Text();
}

class FaithfulSymbols : public PatternTest {
protected:
    double Between(double low, double high) {
        return low + (high - low) * std::uniform_real_distribution<double>()(random_);
    }
    int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

    Definition RandomFamily() {
        Definition family;
        family.angle = Below(3) == 0 ? 15.0 * Below(24) : Between(-360.0, 360.0);
        family.originX = Between(-20.0, 20.0);
        family.originY = Between(-20.0, 20.0);
        family.spacing = (Below(2) == 0 ? 1.0 : -1.0) * Between(0.1, 4.0);
        for (int i = 0; i <= Below(3); ++i) {
            family.dashes.push_back(Between(0.2, 3.0));
            family.dashes.push_back(-Between(0.2, 3.0));
        }
        return family;
    }

private:
    std::mt19937_64 random_{20250207};
};

// With a shift of k / n of the cycle n lines are in phase.
TEST_F(FaithfulSymbols, DrawDashesOfFamiliesThatRepeatIn50By50TilesInTheirPlaces) {
    for (int round = 0; round < 60; ++round) {
        Definition family = RandomFamily();
        const int n = 1 + Below(round % 2 == 0 ? 60 : 256);
        family.shift = family.Cycle() * Below(2 * n) / n;
        const auto definitions = SimpleDefinitions(FaithfulSymbol(family.Text()));
        ASSERT_EQ(definitions.size(), 1U);
        const Tiling tiling = TilingOf(definitions.front());
        ExpectComplete(family, tiling);
        for (int right = 0; right < 50; right += 49) {
            for (int up = 0; up < 50; up += 7) {
                ASSERT_LT(WorstShare(family, tiling, right, up), 0.01) << family.Text() << right << " " << up;
            }
        }
    }
}

TEST_F(FaithfulSymbols, DrawDashesOfAnyFamilyInTheirPlacesAndCloseTheirTilesToAHundredthOfThem) {
    for (int round = 0; round < 60; ++round) {
        Definition family = RandomFamily();
        family.shift = Between(-10.0, 10.0);
        const auto definitions = SimpleDefinitions(FaithfulSymbol(family.Text()));
        ASSERT_EQ(definitions.size(), 1U);
        const Tiling tiling = TilingOf(definitions.front());
        ExpectComplete(family, tiling);
        EXPECT_LT(WorstShare(family, tiling, 0, 0), 1e-6) << family.Text();
        EXPECT_LT(WorstShare(family, tiling, 1, 0), 0.0142) << family.Text();
        EXPECT_LT(WorstShare(family, tiling, 0, -1), 0.0142) << family.Text();
    }
}

TEST_F(FaithfulSymbols, CutNoNumbers) {
    EXPECT_EQ(DrawnBy("0,0,0,0,0.105\n"), (Drawn{{L"%HATCHANGLE%", L"1.05", L"0.105", L"M 0,0 h 1.05"}}));
    EXPECT_EQ(DrawnBy("45.05,0,0.5,0,1.001\n").front()[0], L"%HATCHANGLE%+45.05");
    EXPECT_EQ(DrawnBy("0,0,0,0,0.70711,1.10305,-0.30305\n"),
              (Drawn{{L"%HATCHANGLE%", L"1.4061", L"0.70711", L"M 0,0 h 1.10305"}}));
}

// 990 of a cycle of 1000 are 10 back: 100 lines to a tile. Upwards, the lattice has no nearer vector.
TEST_F(FaithfulSymbols, StackRowsUntilTheDashesAreInPhase) {
    const Drawn drawn = DrawnBy("0,0,0,990,1,20,-980\n");
    ASSERT_EQ(drawn.size(), 1U);
    const double cells = std::stod(drawn[0][1]) * std::stod(drawn[0][2]) / 1000;
    EXPECT_NEAR(cells, std::round(cells), 1e-6);
    EXPECT_LE(cells, 100.5);
}

// 300 lines are in phase. Four lines up and one cycle more or less are (6.08, 6) and (-5.92, 6), the sides of
// 8 cells. They are upright to each other but for 0.0064 / 8.54 = 0.00075, a quarter of a hundredth of a
// dash.
TEST_F(FaithfulSymbols, AreNoLargerThanAHundredthOfTheirShortestDashAsks) {
    const Definition family{0, 0, 0.75, 0.02, 1.5, {0.3, -5.7}};
    const auto definitions = SimpleDefinitions(FaithfulSymbol(family.Text()));
    ASSERT_EQ(definitions.size(), 1U);
    const Tiling tiling = TilingOf(definitions.front());
    ExpectComplete(family, tiling);
    EXPECT_LE(tiling.dashes.size(), 8U);
    EXPECT_LT(WorstShare(family, tiling, 0, 0), 1e-6);
    EXPECT_LT(WorstShare(family, tiling, 1, 0), 0.0026);
    EXPECT_LT(WorstShare(family, tiling, 0, 1), 0.0026);
}

// The first family's tile of 40 by 40 would hold 1600 dashes of the second one, which needs one.
TEST_F(FaithfulSymbols, TakeNoFamilyIntoATileThatHoldsManyOfItsDashes) {
    const Drawn drawn = DrawnBy("0,0,0,0,40,10,-30\n0,0.1,0.2,0,1,0.5,-0.5\n30,0,0,0.1,7,1,-2.3\n");
    ASSERT_EQ(drawn.size(), 3U);
    EXPECT_EQ(drawn[0], (std::vector<std::wstring>{L"%HATCHANGLE%", L"40", L"40", L"M 0,0 h 10"}));
    EXPECT_EQ(drawn[1], (std::vector<std::wstring>{L"%HATCHANGLE%", L"1", L"1", L"M 0.1,0.2 h 0.5"}));
}

TEST_F(FaithfulSymbols, DrawFamiliesOfOneLatticeInOneTile) {
    EXPECT_EQ(DrawnBy("0,0,0,0,2,1,-1\n90,1,0,0,2,1,-1\n"),
              (Drawn{{L"%HATCHANGLE%", L"2", L"2", L"M 0,0 h 1 M 1,0 l 0,1"}}));
}

// The sides of bricks that are half a unit apart along a diagonal: numbers of five decimals.
TEST_F(FaithfulSymbols, DrawAHalfBondThatWasRoundedInOneTile) {
    const Drawn drawn = DrawnBy("45,0,0,0.70711,0.70711,0.70711,-0.70711\n135,0,0,0.70711,0.70711,0.70711,"
                                "-0.70711\n");
    ASSERT_EQ(drawn.size(), 1U);
    EXPECT_NEAR(std::stod(drawn[0][1]), 1.0, 2.0);
}

TEST_F(FaithfulSymbols, JudgeRoundedFamiliesByWhatTheyShare) {
    // The same vectors (3, 0) and (0, 2), each family's digits rounded otherwise.
    const Drawn drawn = DrawnBy("33.690068,0,0,1.1094,1.664101,1,-2.605551\n"
                                "0,0,0,0,2,0.5,-2.5\n"
                                "146.309932,0,0,2.496151,1.6641,1,-2.605551\n");
    ASSERT_EQ(drawn.size(), 1U);
    EXPECT_NEAR(std::stod(drawn[0][1]), 3.0, 0.001);
    EXPECT_NEAR(std::stod(drawn[0][2]), 2.0, 0.001);
}

TEST_F(FaithfulSymbols, GiveContinuousLinesATileOfTheirOwn) {
    EXPECT_EQ(DrawnBy("45,0,0,0,2\n-135,0,0,0,2\n0,0,0,1,1,1,-1\n45,0,0,0,3\n"),
              (Drawn{{L"%HATCHANGLE%+45", L"20", L"2", L"M 0,0 h 20 M 0,0 h 20"},
                     {L"%HATCHANGLE%", L"2", L"2", L"M 0,0 h 1 M 1,1 h 1"},
                     {L"%HATCHANGLE%+45", L"30", L"3", L"M 0,0 h 30"}}));
}

TEST_F(FaithfulSymbols, LeaveOutOnlyWhatHasNoPlace) {
    const auto families = Families("0,0,0,0,1e300\n0,0,0,0,1\n0,0,0,0,1,-2\n0,x,1e999,0,1,1,-1\n");
    const FaithfulTiles tiles = FindFaithfulTiles(families);
    EXPECT_EQ(tiles.unplaced, (std::vector<std::size_t>{0, 3}));
    ASSERT_EQ(tiles.tiles.size(), 1U);
    EXPECT_EQ(tiles.tiles[0].families.front().family, 1U);
}

TEST_F(FaithfulSymbols, AreMadeAlikeAgain) {
    const std::string text = "30,1,2,0,1\n60,1,2,0.3,1,1,-1\n";
    EXPECT_EQ(DrawnBy(text), DrawnBy(text));
    EXPECT_EQ(FaithfulSymbol(""), nullptr);
    EXPECT_EQ(DrawnBy("0,0,0,0,1,-1\n"), (Drawn{{L"%HATCHANGLE%", L"10", L"10", L""}}));
}

// Of a family with so many dashes a tile may hold but four cycles.
TEST_F(FaithfulSymbols, TellHowFarTheNearestTileMisses) {
    std::string text = "0,0,0,0.6,1";
    for (int i = 0; i < 2500; ++i) {
        text += ",0.00024,-0.00016";
    }
    const auto families = Families(text);
    const FaithfulTiles tiles = FindFaithfulTiles(families);
    ASSERT_EQ(tiles.tiles.size(), 1U);
    const pattern::FamilyFit& fit = tiles.tiles[0].families[0].fit;
    EXPECT_GT(fit.share, pattern::kRoundedMiss);
    // Five lines would be in phase; two are 0.2 over the cycle of 1, three 0.2 under it.
    EXPECT_EQ(fit.Cells(), 2);
    EXPECT_NEAR(fit.length, 0.2, 1e-9);
}

} // namespace
