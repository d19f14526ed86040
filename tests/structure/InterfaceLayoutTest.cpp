// The binary interface: programs that were compiled earlier rely on the order of virtual operations and
// fields.
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/linetype/FontInfo.h"
#include "StyleConversion/linetype/LinStyleVisitor.h"
#include "StyleConversion/linetype/Services.h"
#include "StyleConversion/pattern/PatternConverter.h"
#include "drawing/database/Database.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

namespace {

// In the binary interface of this compiler a pointer to a virtual operation is one more than the bytes before
// its slot.
template <class Operation>
std::ptrdiff_t SlotOf(Operation operation) {
    std::array<std::ptrdiff_t, sizeof operation / sizeof(std::ptrdiff_t)> words{};
    std::memcpy(words.data(), &operation, sizeof operation);
    return (words[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
}

// The bytes of a field at `offset` of any object.
template <class Field, class Object>
Field FieldAt(const Object& object, std::size_t offset) {
    Field field;
    // NOLINTNEXTLINE(bugprone-sizeof-expression): a field may be a pointer, and its bytes are wanted
    std::memcpy(&field, reinterpret_cast<const char*>(&object) + offset, sizeof field);
    return field;
}

TEST(InterfaceLayout, ServicesHaveTheirOperationBeforeTheDestructor) {
    EXPECT_EQ(SlotOf(&LineConverter::IGetFile::GetFile), 0);
    EXPECT_EQ(SlotOf(&LineConverter::IGetFontInfo::GetFontInfoFromStyle), 0);
    EXPECT_EQ(sizeof(LineConverter::IGetFile), sizeof(void*));
    EXPECT_EQ(sizeof(LineConverter::IGetFontInfo), sizeof(void*));
}

TEST(InterfaceLayout, TheVisitorOfLinetypesHasItsOperationsInTheOrderOfUse) {
    using LineConverter::LinStyleVisitor;
    EXPECT_EQ(SlotOf(&LinStyleVisitor::Begin), 0);
    EXPECT_EQ(SlotOf(&LinStyleVisitor::End), 1);
    EXPECT_EQ(SlotOf(&LinStyleVisitor::BeginLinetype), 2);
    EXPECT_EQ(SlotOf(&LinStyleVisitor::EndLinetype), 3);
    EXPECT_EQ(SlotOf(&LinStyleVisitor::Dot), 4);
    EXPECT_EQ(SlotOf(&LinStyleVisitor::Dash), 5);
    EXPECT_EQ(SlotOf(&LinStyleVisitor::Gap), 6);
    EXPECT_EQ(SlotOf(&LinStyleVisitor::Shape), 7);
    EXPECT_EQ(SlotOf(&LinStyleVisitor::Text), 8);
}

TEST(InterfaceLayout, FontInfoHasItsFieldsInOrderWithoutGapsButForAlignment) {
    using LineConverter::FontInfo;
    constexpr std::size_t kText = sizeof(std::wstring);
    EXPECT_EQ(offsetof(FontInfo, fileName), 0);
    EXPECT_EQ(offsetof(FontInfo, bigFontFileName), kText);
    EXPECT_EQ(offsetof(FontInfo, typeface), 2 * kText);
    EXPECT_EQ(offsetof(FontInfo, bold), 3 * kText);
    EXPECT_EQ(offsetof(FontInfo, italic), 3 * kText + 1);
    EXPECT_EQ(offsetof(FontInfo, isShapeFile), 3 * kText + 2);
    EXPECT_EQ(offsetof(FontInfo, isVertical), 3 * kText + 3);
    EXPECT_EQ(offsetof(FontInfo, textSize), 3 * kText + 8);
    EXPECT_EQ(offsetof(FontInfo, xScale), 3 * kText + 16);
    EXPECT_EQ(offsetof(FontInfo, obliquingAngle), 3 * kText + 24);
    EXPECT_EQ(offsetof(FontInfo, flagBits), 3 * kText + 32);
}

TEST(InterfaceLayout, ABlockConverterIsItsDatabaseItsScaleAndItsLayers) {
    drawing::Database database;
    database.SetInsunits(OxDb::kUnitsInches);
    const BlockConverter converter(&database);
    EXPECT_EQ(FieldAt<OxDbDatabase*>(converter, 0), &database);
    EXPECT_EQ(FieldAt<double>(converter, sizeof(void*)), 25.4);
    EXPECT_EQ(sizeof converter, sizeof(void*) + sizeof(double) + sizeof(std::vector<std::wstring>));
}

TEST(InterfaceLayout, APatternConverterIsItsFileNameAndTwoMaps) {
    using Map = std::map<std::string, std::string>;
    EXPECT_EQ(sizeof(PatternConverter), sizeof(std::wstring) + 2 * sizeof(Map));
}

} // namespace
