// What entities keep of what they were made with, and the room that they take.
#include "drawing/database/Arena.h"
#include "drawing/database/Database.h"
#include "drawing/entities/CurveEntities.h"
#include "drawing/entities/SimpleEntities.h"
#include "drawing/entities/Texts.h"

#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <vector>

namespace {

using drawing::EntityProperties;

drawing::BlockRecord& BlockOf(drawing::Database& database) {
    return *database.AddBlock(L"A");
}

TEST(StoredEntities, HaveTheirOwnPropertiesHoweverManyShareThem) {
    drawing::Database database;
    drawing::BlockRecord& block = BlockOf(database);
    std::vector<const drawing::Line*> lines;
    constexpr std::size_t kCount = 200;
    const auto propertiesOf = [](std::size_t index) {
        EntityProperties properties;
        properties.layer = L"LAYER " + std::to_wstring(index % 7);
        properties.linetype = index % 2 == 0 ? L"ByLayer" : L"DASHED";
        properties.color.setColorIndex(static_cast<std::uint8_t>(1 + index % 5));
        properties.lineWeight = static_cast<OxDb::LineWeight>(index % 3);
        properties.hidden = index % 11 == 0;
        return properties;
    };
    for (std::size_t i = 0; i < kCount; ++i) {
        lines.push_back(&block.Add<drawing::Line>(propertiesOf(i), OxGePoint3d{}, OxGePoint3d{1, 0, 0}));
    }
    for (std::size_t i = 0; i < kCount; ++i) {
        const EntityProperties expected = propertiesOf(i);
        const EntityProperties found = lines[i]->Properties();
        EXPECT_EQ(found.layer, expected.layer) << i;
        EXPECT_EQ(found.linetype, expected.linetype) << i;
        EXPECT_EQ(found.color, expected.color) << i;
        EXPECT_EQ(found.lineWeight, expected.lineWeight) << i;
        EXPECT_EQ(found.hidden, expected.hidden) << i;
    }
}

TEST(StoredEntities, AreRecoloredOneByOne) {
    drawing::Database database;
    drawing::BlockRecord& block = BlockOf(database);
    auto& first = block.Add<drawing::Point>({}, OxGePoint3d{});
    const auto& second = block.Add<drawing::Point>({}, OxGePoint3d{});
    OxCmColor red;
    red.setRGB(255, 0, 0);
    first.Recolor(red);
    EXPECT_EQ(first.color(), red);
    EXPECT_EQ(first.Properties().layer, L"0");
    EXPECT_TRUE(second.color().isByLayer());
}

TEST(StoredEntities, OfAnArcHaveTheNormalThatItWasMadeWith) {
    drawing::Database database;
    drawing::BlockRecord& block = BlockOf(database);
    for (const OxGeVector3d normal :
         {OxGeVector3d{0, 0, 1}, OxGeVector3d{0, 0, -1}, OxGeVector3d{0, 0, 2}, OxGeVector3d{1, 0, 0}}) {
        const auto& arc = block.Add<drawing::Arc>({}, drawing::ArcData{{1, 2, 3}, 4, 0.5, 1.5, normal});
        for (const OxGeVector3d& found : {arc.normal(), arc.Data().normal}) {
            EXPECT_EQ(found.x, normal.x);
            EXPECT_EQ(found.y, normal.y);
            EXPECT_EQ(found.z, normal.z);
        }
        EXPECT_EQ(arc.Data().center.z, 3);
        EXPECT_EQ(arc.Data().radius, 4);
        EXPECT_EQ(arc.Data().startAngle, 0.5);
        EXPECT_EQ(arc.Data().endAngle, 1.5);
    }
}

TEST(StoredEntities, OfATextHaveAllItsCharactersModesAndPoints) {
    drawing::Database database;
    drawing::BlockRecord& block = BlockOf(database);
    drawing::TextData data;
    data.position = {1, 2, 3};
    data.height = 4;
    data.rotation = 0.5;
    data.style = L"NOTES";
    data.horizontalMode = static_cast<OxDb::TextHorzMode>(70000);
    data.verticalMode = static_cast<OxDb::TextVertMode>(-70000);
    for (const std::wstring& characters :
         {std::wstring(), std::wstring(L"a"), std::wstring(L"a\0b", 3), std::wstring(1000, L'x')}) {
        data.text = characters;
        const auto& text = block.Add<drawing::Text>({}, data);
        EXPECT_EQ(text.Data().text, characters);
        EXPECT_EQ(std::wstring(text.textStringConst()), characters.substr(0, characters.find(L'\0')));
        EXPECT_EQ(text.Data().style, L"NOTES");
        EXPECT_EQ(text.Data().position.z, 3);
        EXPECT_EQ(text.Data().height, 4);
        EXPECT_EQ(text.Data().rotation, 0.5);
        EXPECT_EQ(text.horizontalMode(), 70000);
        EXPECT_EQ(text.verticalMode(), -70000);
        EXPECT_FALSE(text.Data().alignmentPoint);
        EXPECT_EQ(text.alignmentPoint().y, 2); // its place, where there is no other
    }
    data.alignmentPoint = OxGePoint3d{7, 8, 9};
    const auto& text = block.Add<drawing::Text>({}, data);
    ASSERT_TRUE(text.Data().alignmentPoint);
    EXPECT_EQ(text.Data().alignmentPoint->x, 7);
    EXPECT_EQ(text.alignmentPoint().z, 9);
}

// A drawing has millions of them.
TEST(StoredEntities, TakeLittleRoomBesidesTheirNumbers) {
    constexpr std::size_t kCommon = 4 * sizeof(void*);
    constexpr std::size_t kNumber = sizeof(double);
    EXPECT_LE(sizeof(drawing::Point), kCommon + 3 * kNumber);
    EXPECT_LE(sizeof(drawing::Line), kCommon + 6 * kNumber);
    EXPECT_LE(sizeof(drawing::Circle), kCommon + 4 * kNumber);
    EXPECT_LE(sizeof(drawing::Arc), kCommon + 6 * kNumber + sizeof(void*));
    EXPECT_LE(sizeof(drawing::Polyline), kCommon + 2 * sizeof(void*));
    EXPECT_LE(sizeof(drawing::Text), kCommon + 5 * kNumber + 4 * sizeof(void*));
}

TEST(Arena, GivesRoomOfItsOwnToEachAligned) {
    drawing::Arena arena;
    std::vector<std::pair<unsigned char*, std::size_t>> pieces;
    const auto take = [&](std::size_t size, std::size_t alignment) {
        auto* const piece = static_cast<unsigned char*>(arena.Allocate(size, alignment));
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(piece) % alignment, 0U) << size;
        std::memset(piece, static_cast<int>(pieces.size() % 251), size);
        pieces.emplace_back(piece, size);
    };
    for (std::size_t i = 0; i < 3000; ++i) {
        take(1 + i % 200, std::size_t{1} << i % 4);
    }
    take(1000000, 8); // larger than any chunk
    take(1, 1);
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        for (std::size_t k = 0; k < pieces[i].second; ++k) {
            ASSERT_EQ(pieces[i].first[k], i % 251) << i;
        }
    }
}

} // namespace
