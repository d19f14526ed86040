// Millimetres per drawing unit.
#include "StyleConversion/block/UnitScale.h"

#include "tests/block/BlockTest.h"

#include <bit>
#include <cstdint>
#include <limits>

namespace blocktest {
namespace {

TEST(UnitScale, HasTheExactBitsOfEachFactor) {
    constexpr std::uint64_t kBits[] = {
        0x408f400000000000, 0x4039666666666666, 0x40730ccccccccccc, 0x41388e8000000000, 0x3ff0000000000000,
        0x4024000000000000, 0x408f400000000000, 0x412e848000000000, 0x3efaa242b58735e9, 0x3f9a027525460aa6,
        0x408c933333333333, 0x3e7ad7f29abcaf48, 0x3eb0c6f7a0b5ed8d, 0x3f50624dd2f1a9fc, 0x4059000000000000,
        0x40c3880000000000, 0x40f86a0000000000, 0x426d1a94a2000000, 0x42e10d9316ec0000, 0x43e069157c1ee640,
        0x43facd2da48e7920};
    static_assert(std::size(kBits) == block::kUnitCount);
    for (int unit = 0; unit < block::kUnitCount; ++unit) {
        const double* const factor = block::MillimetresPer(static_cast<OxDb::UnitsValue>(unit));
        ASSERT_NE(factor, nullptr) << unit;
        EXPECT_EQ(std::bit_cast<std::uint64_t>(*factor), kBits[unit]) << unit;
    }
}

TEST(UnitScale, HasNoFactorForOtherCodes) {
    for (const std::int32_t code :
         {-1, 21, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()}) {
        EXPECT_EQ(block::MillimetresPer(static_cast<OxDb::UnitsValue>(code)), nullptr) << code;
    }
}

class Units : public BlockTest {
protected:
    // A point at (1, 2) in a block of that unit.
    void AddBlockIn(const std::wstring& name, std::int32_t units) {
        drawing::BlockData data;
        data.units = static_cast<OxDb::UnitsValue>(units);
        database.AddBlock(name, data)->Add<drawing::Point>(Solid(), OxGePoint3d{1, 2, 0});
    }

    static std::wstring PointOf(BlockConverter& converter, const std::wstring& name) {
        const Symbol symbol(dynamic_cast<TylModel::SimpleSymbolDefinition*>(converter.Convert(name)));
        return PathAt(symbol, 0).GetGeometry();
    }
};

TEST_F(Units, BlockInTheDrawingsUnitsOrWithoutUnitsTakesTheDrawingsScale) {
    database.SetInsunits(OxDb::kUnitsCentimeters);
    AddBlockIn(L"SAME", 5);
    AddBlockIn(L"NONE", 0);
    BlockConverter converter(&database);
    EXPECT_EQ(PointOf(converter, L"SAME"), L"M 10.0,20.0 L 10.0,20.0");
    EXPECT_EQ(PointOf(converter, L"NONE"), L"M 10.0,20.0 L 10.0,20.0");
}

TEST_F(Units, BlockInInchesWithinADrawingInMetresHasItsOwnScaleAndTheConverterTheOldOneAfterwards) {
    database.SetInsunits(OxDb::kUnitsMeters);
    AddBlockIn(L"INCHES", 1);
    AddBlockIn(L"NONE", 0);
    BlockConverter converter(&database);
    EXPECT_EQ(PointOf(converter, L"INCHES"), L"M 25.4,50.8 L 25.4,50.8");
    EXPECT_EQ(PointOf(converter, L"NONE"), L"M 1000.0,2000.0 L 1000.0,2000.0");
}

TEST_F(Units, DrawingWithoutUnitsCountsAsOneInMetres) {
    database.SetInsunits(OxDb::kUnitsUndefined);
    AddBlockIn(L"NONE", 0);
    AddBlockIn(L"MILLIMETRES", 4);
    BlockConverter converter(&database);
    EXPECT_EQ(PointOf(converter, L"NONE"), L"M 1000.0,2000.0 L 1000.0,2000.0");
    EXPECT_EQ(PointOf(converter, L"MILLIMETRES"), L"M 1.0,2.0 L 1.0,2.0");
    EXPECT_EQ(PointOf(converter, L"NONE"), L"M 1000.0,2000.0 L 1000.0,2000.0");
}

TEST_F(Units, UnknownUnitOfTheDrawingLeavesTheScaleAtOneAndThenAtTheLastBlocksOwn) {
    database.SetInsunits(static_cast<OxDb::UnitsValue>(21));
    AddBlockIn(L"NONE", 0);
    AddBlockIn(L"INCHES", 1);
    BlockConverter converter(&database);
    EXPECT_EQ(PointOf(converter, L"NONE"), L"M 1.0,2.0 L 1.0,2.0");
    EXPECT_EQ(PointOf(converter, L"INCHES"), L"M 25.4,50.8 L 25.4,50.8");
    EXPECT_EQ(PointOf(converter, L"NONE"), L"M 25.4,50.8 L 25.4,50.8");
}

TEST_F(Units, UnknownUnitOfABlockKeepsTheDrawingsScale) {
    database.SetInsunits(OxDb::kUnitsCentimeters);
    AddBlockIn(L"ODD", 99);
    BlockConverter converter(&database);
    EXPECT_EQ(PointOf(converter, L"ODD"), L"M 10.0,20.0 L 10.0,20.0");
}

TEST_F(Units, ScaleIsRestoredAlsoAfterABlockThatCannotBeRead) {
    database.SetInsunits(OxDb::kUnitsMeters);
    AddBlockIn(L"INCHES", 1);
    AddBlockIn(L"NONE", 0);
    BlockConverter converter(&database);
    database.Failures().Fail(drawing::Operation::kBlockGetName, 1, Oxsys::eInvalidInput);
    EXPECT_EQ(converter.Convert(L"INCHES"), nullptr);
    EXPECT_EQ(PointOf(converter, L"NONE"), L"M 1000.0,2000.0 L 1000.0,2000.0");
}

} // namespace
} // namespace blocktest
