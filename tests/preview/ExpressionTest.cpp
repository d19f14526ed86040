// The values of the symbol model are literals, references and sums; what is neither is no value.
#include "preview/Expression.h"

#include <gtest/gtest.h>

namespace {

using namespace preview;

ParameterScope Scope() {
    ParameterScope scope;
    scope.Add(L"HATCHANGLE", L"30");
    scope.Add(L"HATCHCOLOR", L"0xff102030");
    scope.Add(L"LINECOLOR", L"80ff0001");
    scope.Add(L"100%", L"7");
    scope.Add(L"My + Layer", L"5");
    scope.Add(L"NAME", L"'it''s'");
    scope.Add(L"ALIAS", L"%LINECOLOR%");
    scope.Add(L"SUM", L"%HATCHANGLE%+1");
    scope.Add(L"SELF", L"%SELF%");
    scope.Add(L"TWICE", L"%TWICE%+%TWICE%");
    scope.Add(L"SHOWN", L"true");
    scope.Add(L"HATCHANGLE", L"99"); // the first one counts
    return scope;
}

TEST(Expression, NumbersReferencesAndSumsHaveAValue) {
    const ParameterScope scope = Scope();
    const struct {
        const wchar_t* expression;
        double value;
    } rows[] = {
        {L"0", 0.0},
        {L"-0.125", -0.125},
        {L" 12.5 ", 12.5},
        {L"1e3", 1000.0},
        {L"%HATCHANGLE%", 30.0},
        {L"%HATCHANGLE%+45.0", 75.0},
        {L"%HATCHANGLE% + 45.0", 75.0},
        {L"%HATCHANGLE%+-45.0", -15.0},
        {L"90-%HATCHANGLE%", 60.0},
        {L"-%HATCHANGLE%", -30.0},
        {L"1+2-4+8", 7.0},
        {L"%100%%", 7.0},
        {L"%100%%+1", 8.0},
        {L"%My + Layer%", 5.0},
        {L"%My + Layer%+%HATCHANGLE%", 35.0},
        {L"%SUM%+1", 32.0},
    };
    for (const auto& row : rows) {
        const auto value = NumberOf(row.expression, scope);
        ASSERT_TRUE(value) << row.expression;
        EXPECT_EQ(*value, row.value) << row.expression;
    }
}

TEST(Expression, WhatIsNoSumHasNoNumber) {
    const ParameterScope scope = Scope();
    for (const wchar_t* expression : {L"",
                                      L" ",
                                      L"x",
                                      L"12x",
                                      L"1+",
                                      L"+",
                                      L"1++",
                                      L"1*2",
                                      L"nan",
                                      L"inf",
                                      L"1e999",
                                      L"1e308+1e308",
                                      L"%",
                                      L"%%",
                                      L"%MISSING%",
                                      L"%HATCHANGLE",
                                      L"HATCHANGLE%",
                                      L"%HATCHANGLE%45",
                                      L"%LINECOLOR%",
                                      L"%NAME%",
                                      L"'1'",
                                      L"1\u00e4",
                                      L"%SELF%",
                                      L"1+%SELF%",
                                      L"%TWICE%"}) {
        EXPECT_FALSE(NumberOf(expression, scope)) << expression;
    }
}

TEST(Expression, ASumOfManyTermsIsRefused) {
    std::wstring sum = L"1";
    for (int i = 1; i < 64; ++i) {
        sum += L"+1";
    }
    EXPECT_EQ(NumberOf(sum, {}), 64.0);
    EXPECT_FALSE(NumberOf(sum + L"+1", {}));
}

TEST(Expression, DefaultsThatMultiplyEndSoon) {
    ParameterScope scope;
    for (int i = 0; i < 60; ++i) {
        const std::wstring next = std::to_wstring(i + 1);
        std::wstring twice = L"%P";
        twice.append(next).append(L"%+%P").append(next).append(L"%");
        scope.Add(L"P" + std::to_wstring(i), twice);
    }
    scope.Add(L"P60", L"1");
    EXPECT_FALSE(NumberOf(L"%P0%", scope)); // would be 2 to the power of 60 terms
    EXPECT_EQ(NumberOf(L"%P57%", scope), 8.0);
}

TEST(Expression, LongTextsWithoutMeaningAreRefusedQuickly) {
    ParameterScope scope = Scope();
    EXPECT_FALSE(NumberOf(std::wstring(1'000'000, L'%'), scope));
    EXPECT_FALSE(NumberOf(L"1" + std::wstring(1'000'000, L'-'), scope));
    EXPECT_FALSE(NumberOf(std::wstring(1'000'000, L'9'), scope));
    EXPECT_FALSE(NumberOf(L"%" + std::wstring(1'000'000, L'A'), scope));
}

TEST(Expression, ASumKeepsItsParametersApart) {
    const ParameterScope scope = Scope();
    const auto sum = ReadSum(L"10-%HATCHANGLE%+%100%%+2", scope);
    ASSERT_TRUE(sum);
    EXPECT_EQ(sum->constant, 12.0);
    ASSERT_EQ(sum->terms.size(), 2U);
    EXPECT_EQ(sum->terms[0].factor, -1.0);
    EXPECT_EQ(sum->terms[0].parameter, scope.Find(L"HATCHANGLE"));
    EXPECT_EQ(sum->terms[1].factor, 1.0);
    EXPECT_EQ(sum->terms[1].parameter, scope.Find(L"100%"));
}

TEST(Expression, ColoursAreEightDigitsAlphaFirst) {
    const ParameterScope scope = Scope();
    EXPECT_EQ(ColorOf(L"ff112233", scope), (Color{0xff, 0x11, 0x22, 0x33}));
    EXPECT_EQ(ColorOf(L"00FFab0C", scope), (Color{0x00, 0xff, 0xab, 0x0c}));
    EXPECT_EQ(ColorOf(L"0xff000000", scope), (Color{0xff, 0, 0, 0}));
    EXPECT_EQ(ColorOf(L"%HATCHCOLOR%", scope), (Color{0xff, 0x10, 0x20, 0x30}));
    EXPECT_EQ(ColorOf(L"%ALIAS%", scope), (Color{0x80, 0xff, 0x00, 0x01}));
    for (const wchar_t* expression : {L"", L"112233", L"#112233", L"ff11223", L"ff1122334", L"ff11223g",
                                      L"0x", L"0x0xff00", L"%MISSING%", L"%SELF%", L"%NAME%", L"red"}) {
        EXPECT_FALSE(ColorOf(expression, scope)) << expression;
    }
}

TEST(Expression, TextsStandInQuotes) {
    const ParameterScope scope = Scope();
    const struct {
        const wchar_t* expression;
        const wchar_t* text;
    } rows[] = {
        {L"''", L""},           {L"'GAS'", L"GAS"},   {L"'it''s'", L"it's"},    {L"'it's'", L"it's"},
        {L"''''", L"'"},        {L"'a'''", L"a'"},    {L"'%NAME%'", L"%NAME%"}, {L"%NAME%", L"it's"},
        {L"' two '", L" two "}, {L"'Left'", L"Left"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(TextOf(row.expression, scope), row.text) << row.expression;
    }
    for (const wchar_t* expression : {L"", L"'", L"GAS", L"'GAS", L"GAS'", L"12", L"%MISSING%", L"%SELF%"}) {
        EXPECT_FALSE(TextOf(expression, scope)) << expression;
    }
}

TEST(Expression, FlagsAreTrueAndFalse) {
    const ParameterScope scope = Scope();
    EXPECT_EQ(FlagOf(L"true", scope), true);
    EXPECT_EQ(FlagOf(L"false", scope), false);
    EXPECT_EQ(FlagOf(L"%SHOWN%", scope), true);
    EXPECT_FALSE(FlagOf(L"'true'", scope));
    EXPECT_FALSE(FlagOf(L"", scope));
}

TEST(Expression, AReferenceIsTheWholeExpression) {
    const ParameterScope scope = Scope();
    EXPECT_EQ(ReadReference(L"%NAME%", scope), scope.Find(L"NAME"));
    EXPECT_FALSE(ReadReference(L"%NAME%+1", scope));
    EXPECT_FALSE(ReadReference(L"%MISSING%", scope));
    EXPECT_FALSE(ReadReference(L"%", scope));
}

TEST(Color, LuminanceAndContrastAreThoseOfTheEye) {
    EXPECT_DOUBLE_EQ(Luminance(Color{255, 0, 0, 0}), 0.0);
    EXPECT_DOUBLE_EQ(Luminance(Color{255, 255, 255, 255}), 1.0);
    EXPECT_DOUBLE_EQ(Contrast(0.0, 1.0), 21.0);
    EXPECT_DOUBLE_EQ(Contrast(1.0, 0.0), 21.0);
    EXPECT_DOUBLE_EQ(Contrast(0.3, 0.3), 1.0);
}

} // namespace
