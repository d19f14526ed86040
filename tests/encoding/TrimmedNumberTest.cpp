// A number has five decimals and is cut at the leftmost zero among the second to the fifth.
#include "StyleConversion/encoding/TrimmedNumber.h"

#include <gtest/gtest.h>

namespace {

struct Trimmed {
    double value;
    const wchar_t* text;
};

TEST(TrimmedNumber, KeepsOneDecimalAtLeastAndIsCutAtTheLeftmostZeroBehindIt) {
    const Trimmed rows[] = {
        {0.0, L"0.0"},        {3.0, L"3.0"},         {1.25, L"1.25"},
        {100.0, L"100.0"},    {0.12345, L"0.12345"}, {2.10305, L"2.1"},
        {1.50001, L"1.5"},    {-0.5, L"-0.5"},       {-0.0, L"-0.0"},
        {0.10101, L"0.1"},    {-1.25, L"-1.25"},     {12.34506, L"12.345"},
        {1.999999, L"2.0"},   {0.01, L"0.01"},       {0.001, L"0.0"},
        {0.00001, L"0.0"},    {10.20304, L"10.2"},   {0.11101, L"0.111"},
        {0.11110, L"0.1111"}, {-0.000001, L"-0.0"},  {99999.99999, L"99999.99999"},
    };
    for (const Trimmed& row : rows) {
        EXPECT_EQ(encoding::Double2TrimmedString(row.value), row.text) << row.value;
    }
}

// 0.000005 as a double lies above 5e-6 exactly, 0.5^6 = 0.015625 exactly between two texts: the even one.
TEST(TrimmedNumber, IsRoundedAsTheExactBinaryValue) {
    EXPECT_EQ(encoding::Double2TrimmedString(0.015625), L"0.01562");
    EXPECT_EQ(encoding::Double2TrimmedString(0.046875), L"0.04688");
    EXPECT_EQ(encoding::Double2TrimmedString(2.000005), L"2.0");
}

} // namespace
