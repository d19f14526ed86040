#include "styles/LineParts.h"
#include "styles/Limits.h"
#include "tests/styles/StyleSamples.h"

#include <gtest/gtest.h>

namespace {

using namespace styles;
using styles_test::LineSymbol;

TEST(LineParts, DashesOnTheLineAreAlternatingLengthsAndAPhase) {
    const struct {
        const wchar_t* geometry;
        const wchar_t* repeat;
        std::vector<double> lengths;
        double phase;
    } kCases[] = {
        {L"M 0,0 L 4,0 ", L"6", {4, 2}, 0},
        {L"M 1,0 L 4,0 ", L"6", {3, 3}, 5},                     // begins in the gap
        {L"M 0,0 L 4,0 M 5,0 L 9,0 ", L"9", {8, 1}, 4},         // joined round the end: begins in the dash
        {L"M 0,0 L 2,0 M 2,0 L 4,0 M 4,0 L 6,0 ", L"6", {}, 0}, // without a gap
        {L"M 0,0 L 6,0 M 7.5,0 L 9,0 ", L"10.5", {6, 1.5, 1.5, 1.5}, 0},
        {L"M 4,0 L 0,0 ", L"6", {4, 2}, 0}, // drawn backwards
    };
    for (const auto& test : kCases) {
        const preview::ResolvedSymbol symbol = LineSymbol(test.geometry, test.repeat);
        const LineParts line = LinePartsOf(symbol, 1.0);
        ASSERT_EQ(line.parts.size(), 1U);
        const auto& dashes = std::get<Dashes>(line.parts.front());
        EXPECT_EQ(dashes.lengths, test.lengths);
        EXPECT_EQ(dashes.phase, test.phase);
        EXPECT_EQ(dashes.ink.pen, kDefaultPen);
    }
}

TEST(LineParts, DotsAndMarksHavePlacesWithinTheRepeat) {
    const preview::ResolvedSymbol symbol = LineSymbol(L"M 0,0 L 4,0 M 5,0 L 5,0 M 11,0 L 11,0 ", L"6");
    const LineParts line = LinePartsOf(symbol, 2.0);
    ASSERT_EQ(line.parts.size(), 2U); // both dots are at one place
    EXPECT_EQ(std::get<Dashes>(line.parts[0]).lengths, (std::vector<double>{8, 4}));
    EXPECT_EQ(std::get<Dots>(line.parts[1]).places, (Places{12, 10}));
}

TEST(LineParts, AMarkStandsOnTheLineWhereItsMiddleIs) {
    const preview::ResolvedSymbol symbol = LineSymbol(L"M 7,-1 L 9,2 ", L"6");
    const LineParts line = LinePartsOf(symbol, 1.0);
    ASSERT_EQ(line.parts.size(), 1U);
    const auto& mark = std::get<Mark>(line.parts.front());
    EXPECT_EQ(mark.anchor, (preview::Point{8, 0}));
    EXPECT_EQ(mark.places, (Places{6, 2}));
    EXPECT_TRUE(mark.turnsWithLine);
}

TEST(LineParts, AMarkWithItsOwnAngleStandsWhereItBegins) {
    const auto definition = preview_test::NewSymbol(L"UPRIGHT");
    preview_test::AddPath(*definition, L"M 1,-1 L 3,2 ");
    auto usage = std::make_unique<TylModel::LineUsage>();
    usage->SetRepeat(L"6");
    usage->SetAngleControl(L"'FromAngle'");
    usage->SetAngle(L"30");
    usage->SetStartOffset(L"7");
    definition->AdoptLineUsage(usage.release());
    const preview::ResolvedSymbol symbol = preview::Resolve(*definition);
    const LineParts line = LinePartsOf(symbol, 1.0);
    const auto& mark = std::get<Mark>(line.parts.at(0));
    EXPECT_EQ(mark.anchor, (preview::Point{0, 0}));
    EXPECT_EQ(mark.places, (Places{6, 1}));
    EXPECT_FALSE(mark.turnsWithLine);
    EXPECT_EQ(mark.angle, 30);
}

TEST(LineParts, WhatDoesNotRepeatIsLost) {
    const preview::ResolvedSymbol symbol = LineSymbol(L"M 0,0 L 4,0 ", L"");
    const LineParts line = LinePartsOf(symbol, 1.0);
    EXPECT_TRUE(line.parts.empty());
    EXPECT_EQ(line.losses, Losses{Loss::kUnrepeated});
}

TEST(LineParts, MarksBeyondTheLimitAreLost) {
    for (const std::size_t count : {kMostMarks, kMostMarks + 1}) {
        std::wstring geometry;
        for (std::size_t i = 0; i < count; ++i) {
            const std::wstring x = std::to_wstring(i);
            geometry += L"M " + x + L",0 L " + x + L",0 ";
        }
        const preview::ResolvedSymbol symbol = LineSymbol(geometry, L"10000");
        const LineParts line = LinePartsOf(symbol, 1.0);
        EXPECT_EQ(line.parts.size(), kMostMarks);
        EXPECT_EQ(line.losses.contains(Loss::kTooManyMarks), count > kMostMarks);
    }
}

} // namespace
