#include "styles/Numbers.h"
#include "styles/Base64.h"

#include <gtest/gtest.h>

namespace {

TEST(StyleNumbers, AreWrittenInFixedNotation) {
    const struct {
        double value;
        const char* text;
    } kCases[] = {
        {0.0, "0"},
        {-0.0, "0"},
        {8.8, "8.8"},
        {-0.25, "-0.25"},
        {100.0, "100"},
        {1e-5, "0.00001"},
        {-1.25e-7, "-0.000000125"},
        {1e20, "100000000000000000000"},
        {1.5e16, "15000000000000000"},
        {1e-13, "0"},
        {std::numeric_limits<double>::infinity(), "0"},
        {std::numeric_limits<double>::quiet_NaN(), "0"},
    };
    for (const auto& test : kCases) {
        EXPECT_EQ(styles::PlainNumber(test.value), test.text);
    }
}

// The table of RFC 4648, section 10.
TEST(StyleBase64, EndsInPadding) {
    const struct {
        const char* bytes;
        const char* text;
    } kCases[] = {
        {"", ""},
        {"f", "Zg=="},
        {"fo", "Zm8="},
        {"foo", "Zm9v"},
        {"foob", "Zm9vYg=="},
        {"fooba", "Zm9vYmE="},
        {"foobar", "Zm9vYmFy"},
    };
    for (const auto& test : kCases) {
        EXPECT_EQ(styles::Base64(test.bytes), test.text);
    }
    EXPECT_EQ(styles::Base64("\xff\xfe\xfd"), "//79");
}

} // namespace
