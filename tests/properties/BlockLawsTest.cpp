// Laws of block conversion.
#include "StyleConversion/block/BlockConverter.h"
#include "TylModel/TylModel.h"
#include "drawing/database/Database.h"
#include "drawing/entities/CurveEntities.h"
#include "drawing/entities/SimpleEntities.h"
#include "tests/properties/PathNumbers.h"

#include <cmath>
#include <memory>
#include <random>

namespace {

using laws::Command;

// Numbers are written in millimetres with five decimals, and cut at a zero behind the first one. Drawings in
// kilometres make that small beside the numbers themselves.
constexpr double kMillimetres = 1e6;
constexpr double kCut = 0.0101;

struct Reading : TylModel::IGraphicElementVisitor {
    void VisitPath(TylModel::Path& path) override { geometries.push_back(path.GetGeometry()); }
    void VisitText(TylModel::Text& /*text*/) override {}
    std::vector<std::wstring> geometries;
};

class BlockLaws : public ::testing::Test {
protected:
    double Number(double least, double most) {
        // Steps of 1/64 survive a shift by whole numbers exactly.
        const auto low = static_cast<int>(least * 64);
        const auto high = static_cast<int>(most * 64);
        return std::uniform_int_distribution(low, high)(random_) / 64.0;
    }

    // A drawing in kilometres with a dashed linetype.
    static std::unique_ptr<drawing::Database> Drawing(const std::vector<double>& dashLengths) {
        auto database = std::make_unique<drawing::Database>();
        database->SetInsunits(OxDb::kUnitsKilometers);
        OxCmColor white;
        white.setColorIndex(7);
        database->AddLayer(L"0", white);
        std::vector<drawing::Dash> dashes;
        for (const double length : dashLengths) {
            drawing::Dash dash;
            dash.length = length;
            dashes.push_back(dash);
        }
        database->AddLinetype(L"D", dashes);
        return database;
    }

    static drawing::EntityProperties Properties(bool dashed) {
        OxCmColor black;
        black.setRGB(0, 0, 0);
        return {L"0", black, OxDb::kLnWtByLwDefault, dashed ? L"D" : L"Continuous"};
    }

    static std::vector<std::wstring> Convert(drawing::Database& database) {
        BlockConverter converter(&database);
        const std::unique_ptr<TylModel::SymbolDefinition> symbol(converter.Convert(L"B"));
        EXPECT_NE(symbol, nullptr);
        auto& graphics = dynamic_cast<TylModel::SimpleSymbolDefinition&>(*symbol).GetGraphics();
        Reading reading;
        for (std::int32_t i = 0; i < graphics.GetCount(); ++i) {
            TylModel::AcceptVisitor(*graphics.GetAt(i), reading);
        }
        return reading.geometries;
    }

    std::mt19937& Random() { return random_; }

private:
    std::mt19937 random_{20240704};
};

TEST_F(BlockLaws, TranslatedEntitiesGiveTranslatedPathsAndTheSameTextTwice) {
    std::size_t compared = 0;
    for (int round = 0; round < 300; ++round) {
        const std::vector<double> dashes = {Number(0.5, 3), -Number(0.5, 3), 0.0, -Number(0.5, 3)};
        const double dx = std::floor(Number(-500, 500));
        const double dy = std::floor(Number(-500, 500));
        const auto here = Drawing(dashes);
        const auto there = Drawing(dashes);
        drawing::BlockRecord& original = *here->AddBlock(L"B");
        drawing::BlockRecord& moved = *there->AddBlock(L"B");
        const bool dashed = round % 2 == 0;
        const drawing::EntityProperties properties = Properties(dashed);
        const double x = Number(-20, 20);
        const double y = Number(-20, 20);
        const double x2 = Number(-20, 20);
        const double y2 = Number(-20, 20);
        const double bulge = Number(-2, 2);
        const double radius = Number(1, 9);
        const double start = Number(0, 6);
        const double end = Number(0, 6);
        const auto fill = [&](drawing::BlockRecord& block, double sx, double sy) {
            block.Add<drawing::Point>(properties, OxGePoint3d{x + sx, y + sy, 0});
            block.Add<drawing::Line>(properties, OxGePoint3d{x + sx, y + sy, 0},
                                     OxGePoint3d{x2 + sx, y2 + sy, 0});
            block.Add<drawing::Circle>(properties, OxGePoint3d{x + sx, y + sy, 0}, radius);
            block.Add<drawing::Arc>(
                properties, drawing::ArcData{OxGePoint3d{x + sx, y + sy, 0}, radius, start, end, {0, 0, 1}});
            block.Add<drawing::Polyline>(properties,
                                         std::vector<drawing::BulgeVertex>{{{x + sx, y + sy}, bulge},
                                                                           {{x2 + sx, y2 + sy}},
                                                                           {{x + sx + 30, y2 + sy}}},
                                         round % 4 < 2, true);
        };
        fill(original, 0, 0);
        fill(moved, dx, dy);
        const auto before = Convert(*here);
        EXPECT_EQ(Convert(*here), before);
        const auto after = Convert(*there);
        ASSERT_EQ(before.size(), after.size());
        for (std::size_t path = 0; path < before.size(); ++path) {
            const auto a = laws::Commands(before[path]);
            const auto b = laws::Commands(after[path]);
            ASSERT_EQ(a.size(), b.size()) << path;
            for (std::size_t i = 0; i < a.size(); ++i) {
                ASSERT_EQ(a[i].letter, b[i].letter);
                for (std::size_t k = 0; k < a[i].numbers.size(); ++k) {
                    const bool coordinate = laws::IsCoordinate(a[i], k);
                    // Coordinates follow each other from an odd place on behind an arc's five numbers.
                    const bool isX = (k - (a[i].letter == 'A' ? 5 : 0)) % 2 == 0;
                    const double shift = !coordinate ? 0.0 : isX ? dx : dy;
                    ASSERT_NEAR(a[i].numbers[k] + shift * kMillimetres, b[i].numbers[k], kCut)
                        << path << ' ' << i;
                    ++compared;
                }
            }
        }
    }
    EXPECT_GT(compared, 10000U);
}

// Sum of the ways from point to point, lines and moves alike.
double Travel(const std::vector<Command>& commands) {
    double sum = 0.0;
    for (std::size_t i = 1; i < commands.size(); ++i) {
        const auto& from = commands[i - 1].numbers;
        const auto& to = commands[i].numbers;
        sum += std::sqrt((to[0] - from[0]) * (to[0] - from[0]) + (to[1] - from[1]) * (to[1] - from[1]));
    }
    return sum;
}

TEST_F(BlockLaws, DashesAndGapsOfALineSumToTheLine) {
    for (int round = 0; round < 500; ++round) {
        // The first one is a dash: in place of a gap or a dot the line is drawn short.
        std::vector<double> dashes = {Number(0.25, 3)};
        for (int i = std::uniform_int_distribution(1, 5)(Random()); i > 0; --i) {
            dashes.push_back(Number(-2, 2));
        }
        const auto database = Drawing(dashes);
        const OxGePoint3d start{Number(-50, 50), Number(-50, 50), 0};
        const OxGePoint3d end{Number(51, 90), Number(-50, 50), 0};
        database->AddBlock(L"B")->Add<drawing::Line>(Properties(true), start, end);
        const auto paths = Convert(*database);
        ASSERT_EQ(paths.size(), 1U);
        const auto commands = laws::Commands(paths[0]);
        const double length =
            std::sqrt((end.x - start.x) * (end.x - start.x) + (end.y - start.y) * (end.y - start.y));
        // Every point is off in both directions.
        const double error = 2 * kCut * static_cast<double>(commands.size());
        EXPECT_NEAR(Travel(commands), length * kMillimetres, error) << round;
        EXPECT_NEAR(commands.back().numbers[0], end.x * kMillimetres, 2 * kCut);
        EXPECT_NEAR(commands.back().numbers[1], end.y * kMillimetres, 2 * kCut);
    }
}

} // namespace
