#include "styles/Intervals.h"

#include <gtest/gtest.h>

namespace {

using styles::Interval;
using Intervals = std::vector<Interval>;

TEST(Intervals, AreJoinedWhereTheyTouchRoundThePeriod) {
    const struct {
        Intervals given;
        Intervals joined;
    } kCases[] = {
        {{}, {}},
        {{{1, 2}, {4, 5}}, {{1, 2}, {4, 5}}},
        {{{4, 5}, {1, 2}}, {{1, 2}, {4, 5}}},     // in the order of the line
        {{{1, 3}, {3, 4}}, {{1, 4}}},             // they touch
        {{{1, 5}, {2, 3}}, {{1, 5}}},             // one in the other
        {{{0, 2}, {7, 10}}, {{7, 12}}},           // round the end of the period
        {{{0, 2}, {2.5, 4}, {7, 14}}, {{7, 14}}}, // over several of the next one
        {{{-3, 2}}, {{7, 12}}},                   // from the period before
        {{{21, 22}}, {{1, 2}}},                   // from a later one
        {{{0, 4}, {4, 10}}, {{0, 10}}},           // all of it
        {{{3, 25}}, {{0, 10}}},                   // more than all of it
        {{{5, 15}}, {{0, 10}}},                   // all of it from elsewhere
        {{{0, 5}, {5, 8}, {8, 9.5}}, {{0, 9.5}}}, // nearly all
    };
    for (const auto& test : kCases) {
        EXPECT_EQ(styles::Joined(test.given, 10), test.joined);
    }
}

TEST(Intervals, PlacesLieWithinThePeriod) {
    EXPECT_EQ(styles::PhaseOf(4.4, 8), 4.4);
    EXPECT_EQ(styles::PhaseOf(8, 8), 0);
    EXPECT_EQ(styles::PhaseOf(-1, 8), 7);
    EXPECT_EQ(styles::PhaseOf(17, 8), 1);
    // So near to the end that it is the beginning.
    EXPECT_EQ(styles::PhaseOf(8 - 1e-12, 8), 0);
}

} // namespace
