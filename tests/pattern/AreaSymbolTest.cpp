// Area symbols from families: groups, paths, the text of every value.
#include "PatternTestSupport.h"

#include "StyleConversion/pattern/AreaSymbol.h"
#include "StyleConversion/pattern/PatternFile.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace {

using pattern::BuildAreaSymbol;
using pattern::ParsePatternLine;
using pattern::PatternLine;

class AreaSymbol : public PatternTest {};

// The symbol of the families that the texts define, described; empty for none.
std::string Convert(const std::vector<const char*>& families) {
    std::vector<PatternLine> lines(families.size());
    std::transform(families.begin(), families.end(), lines.begin(), ParsePatternLine);
    const Symbol symbol = BuildAreaSymbol("P", lines);
    return symbol ? Describe(*symbol) : "";
}

TEST_F(AreaSymbol, OfOneContinuousFamilyIsSimple) {
    EXPECT_EQ(Convert({"0, 0, 0, 0, 0.125"}), "simple P\n"
                                              "area %HATCHANGLE% 10.0 0.125\n"
                                              "path M 0.0,0.0 h 10.0\n");
}

TEST_F(AreaSymbol, TurnsTheOriginOfAFamilyAtAnAngle) {
    // (1, 1) turned by -45 degrees is (sqrt(2), 0). 1.41421 keeps all its decimals.
    EXPECT_EQ(Convert({"45, 1, 1, 0, 0.125"}), "simple P\n"
                                               "area %HATCHANGLE%+45.0 10.0 0.125\n"
                                               "path M 1.41421,0.0 h 10.0\n");
}

TEST_F(AreaSymbol, OfTwoAnglesIsACompound) {
    EXPECT_EQ(Convert({"0,0,0,0,1", "90,0,0,0,1"}), "compound P\n"
                                                    "area %HATCHANGLE% 10.0 1.0\n"
                                                    "path M 0.0,0.0 h 10.0\n"
                                                    "area %HATCHANGLE%+90.0 10.0 1.0\n"
                                                    "path M 0.0,0.0 h 10.0\n");
}

TEST_F(AreaSymbol, JoinsFamiliesOfOneTileIntoOnePath) {
    EXPECT_EQ(Convert({"0,0,0,0,1", "0,0,0.5,0,1"}), "simple P\n"
                                                     "area %HATCHANGLE% 10.0 1.0\n"
                                                     "path M 0.0,0.0 h 10.0 M 0.0,0.5 h 10.0\n");
}

TEST_F(AreaSymbol, GivesEachDefinitionItsTwoParameters) {
    std::vector<PatternLine> lines = {ParsePatternLine("0,0,0,0,1"), ParsePatternLine("90,0,0,0,1")};
    const Symbol symbol = BuildAreaSymbol("P", lines);
    const std::vector<ReadSymbol> definitions = SimpleDefinitions(symbol);
    ASSERT_EQ(definitions.size(), 2U);
    for (const ReadSymbol& definition : definitions) {
        ASSERT_EQ(definition.parameters.size(), 2U);
        const ReadParameter& color = definition.parameters[0];
        EXPECT_EQ(color.identifier, L"HATCHCOLOR");
        EXPECT_EQ(color.defaultValue, L"0xff000000");
        EXPECT_EQ(color.displayName, L"&Hatch Color");
        EXPECT_EQ(color.description, L"Color for the hatch style");
        EXPECT_EQ(color.dataType, 6);
        const ReadParameter& angle = definition.parameters[1];
        EXPECT_EQ(angle.identifier, L"HATCHANGLE");
        EXPECT_EQ(angle.defaultValue, L"0.0");
        EXPECT_EQ(angle.displayName, L"Hatch &Color");
        EXPECT_EQ(angle.description, L"Rotation angle for the hatch style");
        EXPECT_EQ(angle.dataType, 5);
    }
}

TEST_F(AreaSymbol, DrawsInTheHatchColorAndSetsNothingElse) {
    std::vector<PatternLine> lines = {ParsePatternLine("0,0,0,0,1")};
    const Symbol symbol = BuildAreaSymbol("P", lines);
    const ReadSymbol definition = SimpleDefinitions(symbol).front();
    ASSERT_EQ(definition.graphics.size(), 1U);
    ASSERT_TRUE(definition.graphics[0].path);
    const ReadPath& path = *definition.graphics[0].path;
    EXPECT_EQ(path.lineColor, L"%HATCHCOLOR%");
    EXPECT_EQ(path.fillColor, L"");
    EXPECT_EQ(path.lineWeight, L"");
    EXPECT_EQ(path.lineWeightScalable, L"");
    EXPECT_EQ(definition.description, L"");
    EXPECT_FALSE(definition.point);
    EXPECT_FALSE(definition.line);
}

TEST_F(AreaSymbol, OfNoFamiliesIsNull) {
    EXPECT_EQ(Convert({}), "");
}

TEST_F(AreaSymbol, OfFamiliesWithoutATileIsNull) {
    EXPECT_EQ(Convert({"0,0,0,0.01,1,1,-1"}), "");
    EXPECT_EQ(Convert({"0,0,0,0.01,1,1,-1", "30,0,0,0.02,1,1,-1"}), "");
}

TEST_F(AreaSymbol, LeavesOutFamiliesWithoutATile) {
    // The one between has the angle and the size of a new group but starts none.
    EXPECT_EQ(Convert({"0,0,0,0,1", "0,0,0,0.01,5,1,-1", "0,0,0.5,0,1"}),
              "simple P\n"
              "area %HATCHANGLE% 10.0 1.0\n"
              "path M 0.0,0.0 h 10.0 M 0.0,0.5 h 10.0\n");
}

TEST_F(AreaSymbol, SortsByAngleThenWidthThenHeight) {
    EXPECT_EQ(Convert({"30,0,0,0,1", "0,0,0,0,3", "0,0,0,0,2,20,-5", "0,0,0,0,1,20,-5", "-30,0,0,0,1"}),
              "compound P\n"
              "area %HATCHANGLE%+-30.0 10.0 1.0\n"
              "path M 0.0,0.0 h 10.0\n"
              "area %HATCHANGLE% 10.0 3.0\n"
              "path M 0.0,0.0 h 10.0\n"
              "area %HATCHANGLE% 25.0 1.0\n"
              "path M 0.0,0.0 h 20.0\n"
              "area %HATCHANGLE% 25.0 2.0\n"
              "path M 0.0,0.0 h 20.0\n"
              "area %HATCHANGLE%+30.0 10.0 1.0\n"
              "path M 0.0,0.0 h 10.0\n");
}

TEST_F(AreaSymbol, SortsByTheMagnitudeOfNegativeTiles) {
    // A spacing of -2 sorts behind 1 and joins 2; the magnitude is written.
    EXPECT_EQ(Convert({"0,0,0,0,-2", "0,0,0,0,1", "0,5,0,0,2"}), "compound P\n"
                                                                 "area %HATCHANGLE% 10.0 1.0\n"
                                                                 "path M 0.0,0.0 h 10.0\n"
                                                                 "area %HATCHANGLE% 10.0 2.0\n"
                                                                 "path M 0.0,0.0 h 10.0 M 5.0,0.0 h 10.0\n");
}

TEST_F(AreaSymbol, DrawsRotatedTilesFirstAtAngleZero) {
    // 45 degrees with a cycle of 2 sqrt(2), spacing and shift sqrt(2): a tile of 2 x 2.
    EXPECT_EQ(Convert({"-10,0,0,0,1", "45,0,0,1.4142135623730951,1.4142135623730951,0,-2.8284271247461903"}),
              "compound P\n"
              "area %HATCHANGLE% 2.0 2.0\n"
              "path M 0.0,0.0 L 0.0,0.0\n"
              "area %HATCHANGLE%+-10.0 10.0 1.0\n"
              "path M 0.0,0.0 h 10.0\n");
}

TEST_F(AreaSymbol, KeepsFamiliesThatSortAlikeInFileOrder) {
    std::vector<PatternLine> lines;
    std::string expected = "simple P\narea %HATCHANGLE% 10.0 1.0\npath";
    for (int i = 0; i < 40; ++i) {
        lines.push_back(ParsePatternLine("0," + std::to_string((i * 7) % 40) + ",0,0,1"));
        expected += " M " + std::to_string((i * 7) % 40) + ".0,0.0 h 10.0";
    }
    const Symbol symbol = BuildAreaSymbol("P", lines);
    EXPECT_EQ(Describe(*symbol), expected + "\n");
}

TEST_F(AreaSymbol, JoinsTilesThatDifferByLessThanATenThousandth) {
    EXPECT_EQ(Convert({"0,0,0,0,1", "0.00009,0,0,0,1.00009"}), "simple P\n"
                                                               "area %HATCHANGLE% 10.0 1.0\n"
                                                               "path M 0.0,0.0 h 10.0 M 0.0,0.0 h 10.0\n");
    EXPECT_EQ(Convert({"0,0,0,0,1", "0,0,0,0,1.00011"}), "compound P\n"
                                                         "area %HATCHANGLE% 10.0 1.0\n"
                                                         "path M 0.0,0.0 h 10.0\n"
                                                         "area %HATCHANGLE% 10.0 1.0\n" // 1.00011 is cut
                                                         "path M 0.0,0.0 h 10.0\n");
}

TEST_F(AreaSymbol, ComparesATileWithTheOneBeforeNotWithTheGroupsFirst) {
    // Three steps of 0.00008: the last differs from the first by more than the tolerance.
    EXPECT_EQ(Convert({"0,0,0,0,1", "0,0,0,0,1.00008", "0,0,0,0,1.00016"}),
              "simple P\n"
              "area %HATCHANGLE% 10.0 1.0\n"
              "path M 0.0,0.0 h 10.0 M 0.0,0.0 h 10.0 M 0.0,0.0 h 10.0\n");
}

TEST_F(AreaSymbol, LosesAFamilyWhoseTileIsAllButNothing) {
    // Angle 0 and a tile of 0.00005 by 0.00005 join the group before the first, which has no symbol.
    const char* const tiny = "0,0,0,0,0.00005,0.00003,-0.00002";
    EXPECT_EQ(Convert({tiny}), "");
    EXPECT_EQ(Convert({tiny, tiny}), "");
    EXPECT_EQ(Convert({tiny, "0,0,0,0,1"}), "simple P\n"
                                            "area %HATCHANGLE% 10.0 1.0\n"
                                            "path M 0.0,0.0 h 10.0\n");
}

TEST_F(AreaSymbol, ComparesTheNextTileWithTheFamilyThatWasLost) {
    // 0.00014 differs from the lost family's 0.00005 by less than the tolerance, from 0 by more.
    EXPECT_EQ(Convert({"0,0,0,0,0.00005,0.00003,-0.00002", "0,0,0,0,0.00014,0.00003,-0.00002"}), "");
    EXPECT_EQ(Convert({"0,0,0,0,0.00014,0.00003,-0.00002"}), "simple P\n"
                                                             "area %HATCHANGLE% 0.0 0.0\n"
                                                             "path M 0.0,0.0 h 0.0\n");
}

TEST_F(AreaSymbol, HasAnEmptyPathWhereItsLastGroupDrawsNothing) {
    EXPECT_EQ(Convert({"0,0,0,0,1,-2"}), "simple P\n"
                                         "area %HATCHANGLE% 2.0 1.0\n"
                                         "path \n");
    EXPECT_EQ(Convert({"0,0,0,0,1", "90,0,0,0,1,-2"}), "compound P\n"
                                                       "area %HATCHANGLE% 10.0 1.0\n"
                                                       "path M 0.0,0.0 h 10.0\n"
                                                       "area %HATCHANGLE%+90.0 2.0 1.0\n"
                                                       "path \n");
}

TEST_F(AreaSymbol, HasNoPathWhereAnEarlierGroupDrawsNothing) {
    EXPECT_EQ(Convert({"0,0,0,0,1,-2", "90,0,0,0,1"}), "compound P\n"
                                                       "area %HATCHANGLE% 2.0 1.0\n"
                                                       "area %HATCHANGLE%+90.0 10.0 1.0\n"
                                                       "path M 0.0,0.0 h 10.0\n");
}

TEST_F(AreaSymbol, SeparatesAFamilyEvenFromAnEmptyPath) {
    // The first family of the group draws nothing, and the blank is written all the same.
    EXPECT_EQ(Convert({"0,0,0,0,1,-2", "0,0,0,0,1,1,-1"}), "simple P\n"
                                                           "area %HATCHANGLE% 2.0 1.0\n"
                                                           "path  M 0.0,0.0 h 1.0\n");
    // One that draws nothing adds no blank.
    EXPECT_EQ(Convert({"0,0,0,0,1,1,-1", "0,0,0,0,1,-2"}), "simple P\n"
                                                           "area %HATCHANGLE% 2.0 1.0\n"
                                                           "path M 0.0,0.0 h 1.0\n");
}

TEST_F(AreaSymbol, WritesAngleAndTileAsTrimmedNumbers) {
    // 2.10305 is cut at its zero; an angle that rounds to 0 is still added.
    EXPECT_EQ(Convert({"0.000001,0,0,0,2.10305"}), "simple P\n"
                                                   "area %HATCHANGLE%+0.0 10.0 2.1\n"
                                                   "path M 0.0,0.0 h 10.0\n");
    EXPECT_EQ(Convert({"-0,0,0,0,1"}), "simple P\n"
                                       "area %HATCHANGLE% 10.0 1.0\n"
                                       "path M 0.0,0.0 h 10.0\n");
}

TEST_F(AreaSymbol, OfTheSameFamiliesTurnsTheirOriginsAgain) {
    std::vector<PatternLine> lines = {ParsePatternLine("90,3,0,0,1"), ParsePatternLine("0,3,0,0,1")};
    const std::wstring unturned = L"M 3.0,0.0 h 10.0";
    // (3, 0) turned by -90 degrees is (0, -3), then (-3, 0), (0, 3), (3, 0).
    for (const wchar_t* const turned :
         {L"M 0.0,-3.0 h 10.0", L"M -3.0,-0.0 h 10.0", L"M -0.0,3.0 h 10.0", L"M 3.0,0.0 h 10.0"}) {
        const Symbol symbol = BuildAreaSymbol("P", lines);
        const auto definitions = SimpleDefinitions(symbol);
        ASSERT_EQ(definitions.size(), 2U);
        EXPECT_EQ(Geometries(definitions[0]), std::vector<std::wstring>{unturned});
        EXPECT_EQ(Geometries(definitions[1]), std::vector<std::wstring>{turned});
    }
}

TEST_F(AreaSymbol, OfRotatedTilesStaysTheSame) {
    std::vector<PatternLine> lines = {ParsePatternLine("45,1,2,1,1,1,-1")};
    ASSERT_TRUE(lines.front().rotatedTile);
    const Symbol first = BuildAreaSymbol("P", lines);
    const Symbol second = BuildAreaSymbol("P", lines);
    EXPECT_EQ(Describe(*first), Describe(*second));
    EXPECT_EQ(lines.front().originX, 1.0);
    EXPECT_EQ(lines.front().originY, 2.0);
}

TEST_F(AreaSymbol, SortsFamiliesWhoseTileIsNoNumber) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    std::vector<PatternLine> lines(60);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        lines[i].repeatX = i % 3 == 0 ? nan : static_cast<double>(60 - i);
    }
    const Symbol symbol = BuildAreaSymbol("P", lines);
    ASSERT_NE(symbol, nullptr);
    for (std::size_t i = 1; i < 40; ++i) {
        EXPECT_LT(lines[i - 1].repeatX, lines[i].repeatX);
    }
    EXPECT_TRUE(std::isnan(lines[40].repeatX));
}

} // namespace
