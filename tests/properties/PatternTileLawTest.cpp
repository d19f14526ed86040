// The tile of a family, laid side by side, is the family.
#include "StyleConversion/pattern/LinePath.h"
#include "StyleConversion/pattern/PatternLine.h"
#include "tests/properties/PathNumbers.h"

#include <cmath>
#include <random>
#include <string>

namespace {

using pattern::PatternLine;

struct Point {
    double x;
    double y;
};

Point Turned(Point p, double degrees) {
    const double angle = degrees * 3.14159265358979323846 / 180.0;
    return {p.x * std::cos(angle) - p.y * std::sin(angle), p.x * std::sin(angle) + p.y * std::cos(angle)};
}

// The family as its definition says: line n is shifted n times along and across.
class Family {
public:
    Family(double angle, Point origin, double shift, double spacing, const std::vector<double>& dashes)
        : angle_(angle), origin_(origin), shift_(shift), spacing_(spacing), dashes_(dashes) {
        for (const double dash : dashes_) {
            cycle_ += std::fabs(dash);
            drawn_ += dash > 0 ? dash : 0;
        }
    }

    double DrawnLengthPerArea() const { return drawn_ / cycle_ / std::fabs(spacing_); }

    // Whether a dash from one point to the other is one of the family's.
    bool Has(Point from, Point to) const {
        const Point a = Turned({from.x - origin_.x, from.y - origin_.y}, -angle_);
        const Point b = Turned({to.x - origin_.x, to.y - origin_.y}, -angle_);
        const double line = std::round(a.y / spacing_);
        if (std::fabs(a.y - line * spacing_) > kTolerance || std::fabs(b.y - a.y) > kTolerance) {
            return false;
        }
        double at = 0.0;
        for (const double dash : dashes_) {
            const double phase = (a.x - line * shift_ - at) / cycle_;
            if (dash > 0 && std::fabs(phase - std::round(phase)) * cycle_ < kTolerance &&
                std::fabs(b.x - a.x - dash) < kTolerance) {
                return true;
            }
            at += std::fabs(dash);
        }
        return false;
    }

private:
    // Numbers are cut at a zero behind their first decimal, and tiles may be off by a ten-thousandth of a
    // cycle: little beside the thousands of units that the families here measure.
    static constexpr double kTolerance = 2.5;

    double angle_;
    Point origin_;
    double shift_;
    double spacing_;
    std::vector<double> dashes_;
    double cycle_ = 0.0;
    double drawn_ = 0.0;
};

class PatternTiles : public ::testing::Test {
protected:
    int Between(int least, int most) { return std::uniform_int_distribution(least, most)(random_); }

    void Check(double angle, Point origin, double shift, double spacing, const std::vector<double>& dashes) {
        std::string text = std::to_string(angle) + "," + std::to_string(origin.x) + "," +
                           std::to_string(origin.y) + "," + std::to_string(shift) + "," +
                           std::to_string(spacing);
        for (const double dash : dashes) {
            text += "," + std::to_string(dash);
        }
        PatternLine line = pattern::ParsePatternLine(text);
        if (line.rowCount < 0) {
            return;
        }
        const Family family(angle, origin, shift, spacing, dashes);
        const double tileAngle = line.rotatedTile ? 0.0 : line.angle;
        const double width = std::fabs(line.repeatX);
        const double height = std::fabs(line.repeatY);
        double drawn = 0.0;
        std::wstring path;
        pattern::AppendLinePath(path, line);
        const auto commands = laws::Commands(path);
        for (std::size_t i = 0; i + 1 < commands.size(); i += 2) {
            const Point from{commands[i].numbers[0], commands[i].numbers[1]};
            const auto& end = commands[i + 1].numbers;
            const Point to =
                commands[i + 1].letter == 'h' ? Point{from.x + end[0], from.y} : Point{end[0], end[1]};
            drawn += std::sqrt((to.x - from.x) * (to.x - from.x) + (to.y - from.y) * (to.y - from.y));
            for (int column = -2; column <= 2; ++column) {
                for (int row = -2; row <= 2; ++row) {
                    const double x = column * width;
                    const double y = row * height;
                    ASSERT_TRUE(family.Has(Turned({from.x + x, from.y + y}, tileAngle),
                                           Turned({to.x + x, to.y + y}, tileAngle)))
                        << text << " tile " << column << ' ' << row;
                }
            }
        }
        // As much is drawn as by the family, so none of its dashes is missing.
        ASSERT_NEAR(drawn / (width * height) / family.DrawnLengthPerArea(), 1.0, 0.002) << text;
        ++tiles_;
        rotated_ += line.rotatedTile ? 1 : 0;
        stacked_ += line.rowCount > 1 ? 1 : 0;
    }

    int tiles_ = 0;
    int rotated_ = 0;
    int stacked_ = 0;

private:
    std::mt19937 random_{20240705};
};

TEST_F(PatternTiles, SideBySideAreTheLinesOfTheFamily) {
    for (int round = 0; round < 3000; ++round) {
        const double cycle = 1000.0 * Between(1, 8);
        // Steps that come round exactly; others have tiles that are off by up to a quarter of a step.
        const double shift = cycle * Between(0, 7) / 8.0 + cycle * Between(-1, 1);
        const double spacing = 250.0 * Between(1, 12);
        const double dash = cycle * Between(1, 7) / 8.0;
        constexpr double kAngles[] = {0, 45, 135, 90, 30, 315, 225, 17.5};
        // A tile at 45 degrees stands upright where shift and spacing are equal.
        const bool square = round % 3 == 0;
        Check(kAngles[Between(0, 7)], {500.0 * Between(-9, 9), 500.0 * Between(-9, 9)},
              square ? cycle / 2 : shift, square ? cycle / 2 : spacing, {dash, dash - cycle});
    }
    EXPECT_GT(tiles_, 1000);
    EXPECT_GT(rotated_, 50);
    EXPECT_GT(stacked_, 100);
}

} // namespace
