// Octant arcs and fractional arcs as instructions.
#include "tests/shx/Decoding.h"

#include <gtest/gtest.h>

namespace {

using namespace ShxUtility;

TEST(DecodeOctantArc, EveryOctantByte) {
    for (int byte = 0; byte <= 255; ++byte) {
        const int start = byte / 16 % 8;
        const int span = byte % 8;
        int end = 0;
        if (span == 0) {
            end = start + 8; // All round, counter-clockwise whatever bit 7 says.
        } else if (byte >= 128) {
            end = start - span;
        } else {
            end = start + span;
        }
        EXPECT_EQ(Decode({10, 9, byte}), (Decoded{0, {Arc(start * 45, end * 45, 9)}})) << byte;
    }
}

TEST(DecodeOctantArc, SomeOctantBytesWrittenOut) {
    EXPECT_EQ(Decode({10, 1, 0x00}), (Decoded{0, {Arc(0, 360, 1)}}));
    EXPECT_EQ(Decode({10, 1, 0x8c}), (Decoded{0, {Arc(0, -180, 1)}}));
    EXPECT_EQ(Decode({10, 1, 0x12}), (Decoded{0, {Arc(45, 135, 1)}}));
    EXPECT_EQ(Decode({10, 1, 0xf7}), (Decoded{0, {Arc(315, 0, 1)}}));
    // A clockwise full circle is drawn counter-clockwise.
    EXPECT_EQ(Decode({10, 1, 0xa0}), (Decoded{0, {Arc(90, 450, 1)}}));
    EXPECT_EQ(Decode({10, 1, 0xa8}), (Decoded{0, {Arc(90, 450, 1)}}));
}

TEST(DecodeOctantArc, TheRadiusIsUnsignedAndNotZero) {
    EXPECT_EQ(Decode({10, 255, 0x01}), (Decoded{0, {Arc(0, 45, 255)}}));
    EXPECT_EQ(Decode({10, 0, 0x01}), (Decoded{2, {}}));
    EXPECT_EQ(Decode({10, 0}), (Decoded{2, {}}));
}

TEST(DecodeOctantArc, EveryTruncationIsRefused) {
    EXPECT_EQ(Decode({10}), (Decoded{2, {}}));
    EXPECT_EQ(Decode({10, 1}), (Decoded{2, {}}));
}

TEST(DecodeFractionalArc, OffsetsAreRoundedToWholeDegrees) {
    for (int offset = 0; offset <= 255; ++offset) {
        // 45 degrees in 256 parts, rounded half up, in whole numbers.
        const int degrees = (offset * 45 + 128) / 256;
        EXPECT_EQ(Decode({11, offset, 0, 0, 3, 0x01}), (Decoded{0, {Arc(degrees, 45, 3)}})) << offset;
        const int octants = degrees != 0 ? 0 : 1;
        EXPECT_EQ(Decode({11, 0, offset, 0, 3, 0x01}), (Decoded{0, {Arc(0, octants * 45 + degrees, 3)}}))
            << offset;
    }
}

TEST(DecodeFractionalArc, CounterClockwise) {
    // Offsets 56 and 28 of 256: 9.84 and 4.92 degrees, rounded 10 and 5. From 45 + 10 over 2 octants, of
    // which the second is the one that the end offset is in: to (2 - 1 + 1) * 45 + 5.
    EXPECT_EQ(Decode({11, 56, 28, 0, 3, 0x12}), (Decoded{0, {Arc(55, 95, 3)}}));
    // Without an end offset both octants are whole.
    EXPECT_EQ(Decode({11, 56, 0, 0, 3, 0x12}), (Decoded{0, {Arc(55, 135, 3)}}));
}

TEST(DecodeFractionalArc, ClockwiseAddsBothOffsetsToo) {
    // (1 - 2 + 1) * 45 + 5, and (0 - 2 + 1) * 45.
    EXPECT_EQ(Decode({11, 56, 28, 0, 3, 0x92}), (Decoded{0, {Arc(55, 5, 3)}}));
    EXPECT_EQ(Decode({11, 56, 0, 0, 3, 0x92}), (Decoded{0, {Arc(55, -45, 3)}}));
}

TEST(DecodeFractionalArc, ASpanOfZeroIsAllEightOctantsInItsDirection) {
    EXPECT_EQ(Decode({11, 0, 0, 0, 3, 0x20}), (Decoded{0, {Arc(90, 450, 3)}}));
    EXPECT_EQ(Decode({11, 0, 0, 0, 3, 0xa0}), (Decoded{0, {Arc(90, -270, 3)}}));
    EXPECT_EQ(Decode({11, 0, 255, 0, 3, 0xa0}), (Decoded{0, {Arc(90, (1 - 8 + 2) * 45 + 45, 3)}}));
}

TEST(DecodeFractionalArc, AnEndOffsetThatRoundsToNothingIsNone) {
    // 2 of 256 are 0.35 degrees.
    EXPECT_EQ(Decode({11, 0, 2, 0, 3, 0x02}), (Decoded{0, {Arc(0, 90, 3)}}));
    EXPECT_EQ(Decode({11, 0, 3, 0, 3, 0x02}), (Decoded{0, {Arc(0, 46, 3)}}));
}

TEST(DecodeFractionalArc, EveryOctantByteInBothDirections) {
    for (int byte = 0; byte <= 255; ++byte) {
        const int start = byte / 16 % 8;
        const int span = byte % 8 == 0 ? 8 : byte % 8;
        const int turned = byte >= 128 ? -span : span;
        EXPECT_EQ(Decode({11, 0, 0, 1, 2, byte}), (Decoded{0, {Arc(start * 45, (start + turned) * 45, 258)}}))
            << byte;
        const int partly = byte >= 128 ? 1 - span : span - 1;
        EXPECT_EQ(Decode({11, 128, 128, 1, 2, byte}),
                  (Decoded{0, {Arc(start * 45 + 23, (start + partly) * 45 + 23, 258)}}))
            << byte;
    }
}

TEST(DecodeFractionalArc, ARadiusThatIsAMultipleOf256IsRefused) {
    EXPECT_EQ(Decode({11, 0, 0, 1, 0, 0x01}), (Decoded{2, {}}));
    EXPECT_EQ(Decode({11, 0, 0, 0, 0, 0x01}), (Decoded{2, {}}));
    EXPECT_EQ(Decode({11, 0, 0, 255, 255, 0x01}), (Decoded{0, {Arc(0, 45, 65535)}}));
    EXPECT_EQ(Decode({11, 0, 0, 1, 1, 0x01}), (Decoded{0, {Arc(0, 45, 257)}}));
}

TEST(DecodeFractionalArc, EveryTruncationIsRefused) {
    const std::vector<int> whole = {11, 56, 28, 0, 3, 0x12};
    for (std::size_t size = 1; size < whole.size(); ++size) {
        EXPECT_EQ(Decode({whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)}),
                  (Decoded{2, {}}))
            << size;
    }
}

} // namespace
