#include "exchange/DxfPairs.h"
#include "tests/support/DxfWriter.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using exchange::DxfPair;
using exchange::DxfPairCursor;
using exchange::DxfPieces;
using Outcome = DxfPairCursor::Outcome;

// "code=value@place" of each pair, and how the file ends.
std::string Pairs(std::string_view bytes) {
    DxfPairCursor cursor{DxfPieces(bytes)};
    DxfPair pair;
    std::string all;
    Outcome outcome = Outcome::kPair;
    while ((outcome = cursor.Next(pair)) == Outcome::kPair) {
        all += std::to_string(pair.code) + "=" + std::string(pair.value) + "@" + std::to_string(pair.place) +
               " ";
    }
    return all + (outcome == Outcome::kEnd      ? "end"
                  : outcome == Outcome::kNoCode ? "no code @" + std::to_string(pair.place)
                                                : "cut @" + std::to_string(pair.place));
}

DxfPair PairOf(int code, std::string_view value) {
    return {code, false, value, 1};
}

TEST(DxfPairs, AreTwoLinesEach) {
    EXPECT_EQ(Pairs("  0\r\nSECTION\r\n 10\r\n1.5\r\n"), "0=SECTION@1 10=1.5@3 end");
    EXPECT_EQ(Pairs("0\nA\n1\n two \n"), "0=A@1 1= two @3 end");
    EXPECT_EQ(Pairs("0\rA\r1\rB"), "0=A@1 1=B@3 end");
    EXPECT_EQ(Pairs("\xef\xbb\xbf"
                    "0\nA"),
              "0=A@1 end");
    EXPECT_EQ(Pairs(""), "end");
}

TEST(DxfPairs, MayHaveBlankLinesBetweenThemAndAsValues) {
    EXPECT_EQ(Pairs("0\nA\n\n\n1\n\n2\nB\n"), "0=A@1 1=@5 2=B@7 end");
}

TEST(DxfPairs, EndWhereALineIsNoGroupCodeOrAValueIsMissing) {
    EXPECT_EQ(Pairs("0\nA\nword\nB\n"), "0=A@1 no code @3");
    EXPECT_EQ(Pairs("0\nA\n1.5\nB\n"), "0=A@1 no code @3");
    EXPECT_EQ(Pairs("0\nA\n123456\nB\n"), "0=A@1 no code @3");
    EXPECT_EQ(Pairs("0\nA\n10\n"), "0=A@1 cut @3");
    EXPECT_EQ(Pairs("-5\nA\n"), "-5=A@1 end");
}

TEST(DxfPairs, NumbersAreReadWithBlanksInsideToo) {
    EXPECT_EQ(PairOf(10, " 1.5 ").Number(), 1.5);
    EXPECT_EQ(PairOf(10, "1.0E 05").Number(), 1e5);
    EXPECT_EQ(PairOf(10, "1e400").Number(), std::nullopt);
    EXPECT_EQ(PairOf(10, "").Number(), std::nullopt);
    EXPECT_EQ(PairOf(10, "1x").Number(), std::nullopt);
    EXPECT_EQ(PairOf(70, "   64").Integer(), 64);
    EXPECT_EQ(PairOf(70, "1.5").Integer(), std::nullopt);
    EXPECT_EQ(PairOf(70, "2147483647").Integer(), 2147483647);
    EXPECT_EQ(PairOf(70, "2147483648").Integer(), std::nullopt);
    EXPECT_EQ(PairOf(5, "1aF").Handle(), 0x1afU);
    EXPECT_EQ(PairOf(5, "").Handle(), 0U);
    EXPECT_EQ(PairOf(5, "FFFFFFFFFFFFFFFF").Handle(), ~std::uint64_t{0});
    EXPECT_EQ(PairOf(5, "10000000000000000").Handle(), 0U);
}

TEST(DxfPairs, BinaryValuesAreThoseOfTheText) {
    DxfWriter file;
    file.Text(0, "SECTION")
        .Number(10, -2.5)
        .Integer(70, -3)
        .Integer(90, 100000)
        .Integer(290, 1)
        .Integer(160, 5);
    file.Integer(1071, 34).Text(1000, "font").Integer(370, -2).Number(210, 0.25);
    for (const bool shortCodes : {false, true}) {
        const std::string bytes = file.Binary(shortCodes);
        const std::string ascii = file.Ascii();
        DxfPairCursor binary{DxfPieces(bytes)};
        DxfPairCursor text{DxfPieces(ascii)};
        EXPECT_TRUE(binary.IsBinary());
        DxfPair fromBinary;
        DxfPair fromText;
        while (text.Next(fromText) == Outcome::kPair) {
            ASSERT_EQ(binary.Next(fromBinary), Outcome::kPair);
            EXPECT_EQ(fromBinary.code, fromText.code);
            EXPECT_EQ(fromBinary.Number(), fromText.Number()) << fromText.code;
        }
        EXPECT_EQ(binary.Next(fromBinary), Outcome::kEnd);
        EXPECT_EQ(fromBinary.place, bytes.size());
    }
}

TEST(DxfPairs, ABinaryFileCutAnywhereEndsOrIsCut) {
    DxfWriter file;
    file.Text(0, "SECTION").Number(10, 1.0).Integer(70, 1);
    const std::string bytes = file.Binary();
    for (std::size_t size = 22; size < bytes.size(); ++size) {
        const std::string ending = Pairs(std::string_view(bytes).substr(0, size));
        EXPECT_TRUE(ending.ends_with("end") || ending.find("cut @") != std::string::npos) << size;
    }
}

} // namespace
