// Texts from files cannot become markup, and numbers are written as pictures need them.
#include "preview/Markup.h"
#include "preview/NumberTexts.h"
#include "preview/PageTemplate.h"
#include "preview/PathData.h"
#include "preview/SvgWriter.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace preview;

TEST(Markup, WhatHasAMeaningInMarkupIsEscaped) {
    EXPECT_EQ(Escaped(L"a<b>&\"'"), "a&lt;b&gt;&amp;&quot;&#39;");
    EXPECT_EQ(Escaped(L"\u00e4\u2205"), "\xc3\xa4\xe2\x88\x85");
}

TEST(Markup, CharactersThatNoDocumentMayHoldAreReplaced) {
    EXPECT_EQ(Escaped(std::wstring_view(L"a\0b\x01\t\n\x7f", 7)), "a\xef\xbf\xbd"
                                                                  "b\xef\xbf\xbd\t\n\xef\xbf\xbd");
    EXPECT_EQ(Escaped(L"\xfffe\xffff\xfffd"), "\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd");
    EXPECT_EQ(Escaped(std::wstring{static_cast<wchar_t>(0xd800)}), "\xef\xbf\xbd");
}

TEST(Markup, JsonCannotEndAScript) {
    const struct {
        nlohmann::ordered_json value;
        const char* json;
    } rows[] = {
        {"</script>\"\\\n", R"("\u003c/script>\"\\\n")"},
        {"<!--", R"("\u003c!--")"},
        {{{"<", 1.5}, {"a", {2, "\x7f"}}}, R"({"\u003c":1.5,"a":[2,"\u007f"]})"},
        {"\xff", "\"\xef\xbf\xbd\""},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(JsonInScript(row.value), row.json);
    }
}

TEST(PageTemplate, FieldsAreFilledOnceAndEscaped) {
    EXPECT_EQ(Filled("<a>{{x}}|{{y}}|{{x}}</a>", {Field::Text("x", L"<{{y}}>"), Field::Markup("y", "<b>")}),
              "<a>&lt;{{y}}&gt;|<b>|&lt;{{y}}&gt;</a>");
}

TEST(PageTemplate, AFieldWithoutAValueIsEmptyAndAnOpenOneStays) {
    EXPECT_EQ(Filled("a{{none}}b", {}), "ab");
    EXPECT_EQ(Filled("a{{open", {}), "a{{open");
}

TEST(PageTemplate, IsCutAtAField) {
    const SplitTemplate parts = SplitAt("head{{cards}}tail", "cards");
    EXPECT_EQ(parts.before, "head");
    EXPECT_EQ(parts.after, "tail");
}

TEST(NumberTexts, PixelsAreHundredths) {
    const struct {
        double value;
        const char* text;
    } rows[] = {
        {0, "0"},          {-0.0, "0"},         {1, "1"},
        {12.5, "12.5"},    {0.07, "0.07"},      {-0.07, "-0.07"},
        {-3.456, "-3.46"}, {0.004, "0"},        {-0.004, "0"},
        {99.999, "100"},   {1e300, "10000000"}, {-1e300, "-10000000"},
        {NAN, "0"},        {INFINITY, "0"},
    };
    for (const auto& row : rows) {
        std::string text;
        AppendPixels(text, row.value);
        EXPECT_EQ(text, row.text) << row.value;
    }
}

TEST(NumberTexts, ShownNumbersHaveFourDigits) {
    EXPECT_EQ(ShownNumber(0.95), "0.95");
    EXPECT_EQ(ShownNumber(1.41421356), "1.414");
    EXPECT_EQ(ShownNumber(123456.0), "123500");
    EXPECT_EQ(ShownNumber(-0.000123456), "-0.0001235");
    EXPECT_EQ(ShownNumber(0.0), "0");
}

TEST(PathData, WritesDifferencesOfRoundedPoints) {
    PathData data;
    data.MoveTo({0.004, 1});
    data.LineTo({10.006, 1});
    data.LineTo({10.006, -2});
    data.LineTo({0, 0});
    data.CurveTo({1, 1}, {2, 2}, {3, 3});
    data.Finish();
    EXPECT_EQ(data.Strokes(), "M0 1h10.01v-3l-10.01 2c1 1 2 2 3 3");
    EXPECT_EQ(data.Dots(), "");
}

TEST(PathData, WhatComesToAPointIsADot) {
    PathData data;
    data.MoveTo({1, 1});
    data.LineTo({1.001, 1});
    data.MoveTo({2, 2});
    data.MoveTo({3, 3});
    data.LineTo({3, 3});
    data.LineTo({4, 3});
    data.MoveTo({5, 5});
    data.LineTo({5, 5});
    data.Finish();
    EXPECT_EQ(data.Dots(), "M1 1h0M5 5h0");
    EXPECT_EQ(data.Strokes(), "M3 3h1");
}

TEST(SvgWriter, NestsElementsAndEscapesValues) {
    std::string out;
    SvgWriter svg(out);
    svg.Open("g")
        .Set("id", L"a\"b")
        .Open("path")
        .Set("x", 1.5)
        .Close()
        .Open("text")
        .Text(L"<")
        .Close()
        .Close();
    EXPECT_EQ(out, "<g id=\"a&quot;b\"><path x=\"1.5\"/><text>&lt;</text></g>");
}

} // namespace
