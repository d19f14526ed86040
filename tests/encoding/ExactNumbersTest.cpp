// Where numbers are exact, the shortest text that reads back as the same double is written instead of the
// trimmed one.
#include "StyleConversion/encoding/ExactNumbers.h"
#include "StyleConversion/encoding/NumberReader.h"
#include "StyleConversion/encoding/ScaledPath.h"
#include "StyleConversion/encoding/TrimmedNumber.h"
#include "tests/encoding/RandomDoubles.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace {

std::wstring Exact(double value) {
    const encoding::ExactNumbersInUse exact;
    return encoding::Double2TrimmedString(value);
}

TEST(ExactNumbers, AreTheShortestTextOfTheDouble) {
    const struct {
        double value;
        const wchar_t* text;
    } rows[] = {
        {0.0, L"0"},
        {-0.0, L"0"},
        {3.0, L"3"},
        {-1.5, L"-1.5"},
        {0.105, L"0.105"},
        {0.70711, L"0.70711"},
        {2.10305, L"2.10305"},
        {0.1 + 0.2, L"0.30000000000000004"},
        {1e-7, L"1e-07"},
        {1e22, L"1e+22"},
        {-2.2250738585072014e-308, L"-2.2250738585072014e-308"},
        {std::numeric_limits<double>::infinity(), L"inf"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Exact(row.value), row.text) << row.value;
    }
}

TEST(ExactNumbers, ReadBackAsTheSameDouble) {
    RandomDoubles random(7);
    for (int i = 0; i < 100000; ++i) {
        const double value = i % 2 == 0 ? random.Bits() : random.DecimalLooking();
        if (!std::isfinite(value)) {
            continue;
        }
        const std::wstring wide = Exact(value);
        const std::string text(wide.begin(), wide.end());
        const encoding::NumberReading reading = encoding::ReadNumber(text);
        ASSERT_EQ(reading.used, text.size()) << text;
        ASSERT_EQ(reading.value, value) << text;
    }
}

TEST(ExactNumbers, AreInUseInTheirScopeAlone) {
    EXPECT_FALSE(encoding::AreNumbersExact());
    {
        const encoding::ExactNumbersInUse outer;
        { const encoding::ExactNumbersInUse inner; }
        EXPECT_TRUE(encoding::AreNumbersExact());
    }
    EXPECT_EQ(encoding::Double2TrimmedString(0.105), L"0.1");
}

// A relative step adds its rounding to the point before it, and a step that is all but level would be lost.
TEST(ExactNumbers, LinesGoToThePointItself) {
    const encoding::ExactNumbersInUse exact;
    std::wstring path;
    encoding::AppendLineToString(path, {0.0, 0.0}, {5.0, 0.000001}, 1.0);
    encoding::AppendLineToString(path, {5.0, 0.0}, {5.0, 2.5}, 2.0);
    EXPECT_EQ(path, L" L 5,1e-06 L 10,5");
}

} // namespace
