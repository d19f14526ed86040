// The owned array of bytes.
#include "StyleConversion/shx/CharArray.h"

#include <cstring>
#include <gtest/gtest.h>
#include <type_traits>
#include <utility>

namespace {

using ShxUtility::CharArray;

CharArray Filled(const char* text) {
    CharArray array;
    array.Resize(std::strlen(text));
    std::memcpy(array.data(), text, std::strlen(text));
    return array;
}

TEST(CharArray, IsEmptyAtFirst) {
    const CharArray array;
    EXPECT_EQ(array.data(), nullptr);
    EXPECT_EQ(array.size(), 0U);
}

TEST(CharArray, IsPolymorphic) {
    EXPECT_TRUE(std::has_virtual_destructor_v<CharArray>);
}

TEST(CharArray, ResizeMakesRoom) {
    CharArray array;
    array.Resize(3);
    ASSERT_NE(array.data(), nullptr);
    EXPECT_EQ(array.size(), 3U);
    std::memcpy(array.data(), "abc", 3);
    array.Resize(100);
    EXPECT_EQ(array.size(), 100U);
    array.Resize(0);
    EXPECT_EQ(array.data(), nullptr);
    EXPECT_EQ(array.size(), 0U);
}

TEST(CharArray, CopiesAreDeep) {
    const CharArray original = Filled("abc");
    CharArray copy(original);
    ASSERT_EQ(copy.size(), 3U);
    EXPECT_NE(copy.data(), original.data());
    EXPECT_EQ(std::memcmp(copy.data(), "abc", 3), 0);
    copy.data()[0] = 'x';
    EXPECT_EQ(original.data()[0], 'a');
}

TEST(CharArray, AssignmentReplacesTheBytes) {
    CharArray array = Filled("old bytes");
    const CharArray other = Filled("new");
    array = other;
    ASSERT_EQ(array.size(), 3U);
    EXPECT_EQ(std::memcmp(array.data(), "new", 3), 0);
    EXPECT_NE(array.data(), other.data());
    const CharArray& self = array;
    array = self;
    EXPECT_EQ(array.size(), 3U);
    array = CharArray();
    EXPECT_EQ(array.size(), 0U);
}

TEST(CharArray, MovingTakesTheBytes) {
    CharArray from = Filled("abc");
    const std::uint8_t* const bytes = from.data();
    CharArray to(std::move(from));
    EXPECT_EQ(to.data(), bytes);
    CharArray assigned = Filled("else");
    assigned = std::move(to);
    EXPECT_EQ(assigned.data(), bytes);
    EXPECT_EQ(assigned.size(), 3U);
}

} // namespace
