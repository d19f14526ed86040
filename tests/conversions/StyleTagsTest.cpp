#include "conversions/StyleTags.h"

#include <gtest/gtest.h>

namespace {

using conversions::StyleTags;
using Texts = std::vector<std::string>;

TEST(StyleTags, AreTheFoldersAndTheFile) {
    const struct {
        std::string file;
        Texts folders; // that were given
        Texts tags;
    } kCases[] = {
        {"walls.pat", {}, {"walls"}},
        {"city/roads/kerbs.lin", {}, {"city", "roads", "kerbs"}},
        {"city/roads/kerbs.lin", {"city"}, {"city", "roads", "kerbs"}},
        {"./city//kerbs.old.lin", {"./city"}, {"city", "kerbs.old"}},
        {"../../city/kerbs.lin", {}, {"city", "kerbs"}},
        {R"(city\roads/kerbs.lin)", {}, {"city", "roads", "kerbs"}},
        {"kerbs/kerbs.lin", {}, {"kerbs"}},
        {"roads/a/roads/b.lin", {}, {"roads", "a", "b"}},
        {"Stra\xc3\x9f"
         "en/Z\xc3\xa4une.lin",
         {},
         {"Stra\xc3\x9f"
          "en",
          "Z\xc3\xa4une"}},
        // Where an absolute path begins says nothing of the symbols.
        {"/home/city/roads/kerbs.lin", {}, {"kerbs"}},
        {"/home/city/roads/kerbs.lin", {"/home/city"}, {"city", "roads", "kerbs"}},
        {"/home/city/roads/kerbs.lin", {"/home/city/"}, {"city", "roads", "kerbs"}},
        {"/home/city/roads/kerbs.lin", {"/home/city/roads", "/home/city"}, {"city", "roads", "kerbs"}},
        {"/home/city/roads/kerbs.lin", {"/home/cit", "city", "/home/city/roads/kerbs"}, {"kerbs"}},
        {"/city/kerbs.lin", {"/"}, {"city", "kerbs"}},
        {"/kerbs.lin", {"/"}, {"kerbs"}},
        {"", {}, {}},
        {"city/", {}, {"city"}},
    };
    for (const auto& test : kCases) {
        EXPECT_EQ(StyleTags(test.file, test.folders), test.tags) << test.file;
    }
}

} // namespace
