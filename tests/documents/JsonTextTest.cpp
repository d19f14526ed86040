// JSON text, byte by byte.
#include "documents/JsonText.h"

#include "StyleConversion/platform/Utf8.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <nlohmann/json.hpp>
#include <random>

namespace documents {
namespace {

std::string TextOf(std::wstring_view value) {
    std::string text;
    JsonText(text).Text(value);
    return text;
}

TEST(JsonText, EscapesQuotesBackslashesAndControlCharactersAndNothingElse) {
    struct Case {
        std::wstring value;
        std::string text;
    };
    const Case cases[] = {
        {L"", R"("")"},
        {L"M 0.0,0.0 L 1.0,0.0", R"("M 0.0,0.0 L 1.0,0.0")"},
        {L"a\"b\\c", R"("a\"b\\c")"},
        {L"\b\f\n\r\t", R"("\b\f\n\r\t")"},
        {std::wstring(1, L'\0'), R"("\u0000")"},
        {L"\x01\x0b\x1f\x20\x7f", "\"\\u0001\\u000b\\u001f \x7f\""},
        {L"/'<>&", R"("/'<>&")"},
        {L"\u00e4\u20ac\U0001F600", "\"\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\""},
        {L"\u0080\u2028\ufffe", "\"\xC2\x80\xE2\x80\xA8\xEF\xBF\xBE\""},
        // A pair of surrogates is one character, halves of one are none.
        {{wchar_t(0xd83d), wchar_t(0xde00)}, "\"\xF0\x9F\x98\x80\""},
        {{L'a', wchar_t(0xd83d), L'b'},
         "\"a\xEF\xBF\xBD"
         "b\""},
        {{wchar_t(0xde00), wchar_t(0xd83d)}, "\"\xEF\xBF\xBD\xEF\xBF\xBD\""},
        {{wchar_t(0xd83d), L'"', wchar_t(0xde00)}, "\"\xEF\xBF\xBD\\\"\xEF\xBF\xBD\""},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(TextOf(row.value), row.text);
    }
}

TEST(JsonText, WhatIsNotPlainIsSeenWhereverItStands) {
    for (std::size_t place = 0; place < 100; ++place) {
        for (const wchar_t other : {L'"', L'\\', L'\x1f', L'\0', L'\x80', L'\xff22', wchar_t(0xd800)}) {
            std::wstring value(100, L'a');
            value[place] = other;
            EXPECT_EQ(TextOf(value), nlohmann::json(platform::WideToValidUtf8(value)).dump()) << place;
        }
        for (const wchar_t plain : {L' ', L'!', L'#', L'[', L']', L'\x7f'}) {
            std::wstring value(100, L'a');
            value[place] = plain;
            std::string text(100, 'a');
            text[place] = static_cast<char>(plain);
            EXPECT_EQ(TextOf(value), '"' + text + '"') << place;
        }
    }
}

TEST(JsonText, WhatIsNoCharacterIsReplaced) {
    if constexpr (sizeof(wchar_t) > 2) {
        const auto beyond = static_cast<wchar_t>(0x110000);
        const auto negative = static_cast<wchar_t>(0x80000041);
        EXPECT_EQ(TextOf({&beyond, 1}), "\"\xEF\xBF\xBD\"");
        EXPECT_EQ(TextOf({&negative, 1}), "\"\xEF\xBF\xBD\"");
        for (const std::uint32_t none : {0x80000041U, 0x800000a0U, 0xffffffffU, 0x7fffffffU, 0x110000U}) {
            const std::wstring many(40, static_cast<wchar_t>(none));
            EXPECT_EQ(TextOf(L'a' + many).size(), 3 + 3 * many.size()) << none;
        }
    }
}

TEST(JsonText, TextsAreThoseOfTheLibraryThatReadsThem) {
    std::mt19937 random(1);
    // Mostly ASCII, in runs longer and shorter than a piece.
    const std::uint32_t limits[] = {0x80, 0x80, 0x80, 0x30, 0x800, 0x10000, 0x120000};
    for (int i = 0; i < 3000; ++i) {
        std::wstring value;
        const std::size_t length = random() % (i % 100 == 0 ? 2000 : 20);
        while (value.size() < length) {
            const std::uint32_t limit = limits[random() % std::size(limits)];
            const std::size_t run = random() % 300;
            for (std::size_t k = 0; k <= run && value.size() < length; ++k) {
                value += static_cast<wchar_t>(random() % limit);
            }
        }
        EXPECT_EQ(TextOf(value), nlohmann::json(platform::WideToValidUtf8(value)).dump());
    }
}

TEST(JsonText, MembersAndItemsStandOnLinesOfTheirOwn) {
    std::string text = "before ";
    JsonText json(text, 1);
    json.BeginObject();
    json.Key("empty");
    json.BeginObject();
    json.EndObject();
    json.Key("none");
    json.BeginList();
    json.EndList();
    json.Key("list");
    json.BeginList();
    json.Integer(-1);
    json.PlainText("two");
    json.BeginList();
    json.EndList();
    json.BeginObject();
    json.Key("a");
    json.Text(L"b");
    json.Key("c");
    json.BeginList();
    json.Number(0.5);
    json.EndList();
    json.EndObject();
    json.Integer(3);
    json.EndList();
    json.Key("last");
    json.Integer(0);
    json.EndObject();
    EXPECT_EQ(text, "before {\n"
                    "    \"empty\": {},\n"
                    "    \"none\": [],\n"
                    "    \"list\": [\n"
                    "      -1,\n"
                    "      \"two\",\n"
                    "      [],\n"
                    "      {\n"
                    "        \"a\": \"b\",\n"
                    "        \"c\": [\n"
                    "          0.5\n"
                    "        ]\n"
                    "      },\n"
                    "      3\n"
                    "    ],\n"
                    "    \"last\": 0\n"
                    "  }");
}

TEST(JsonText, NumbersKeepAPointOrAnExponent) {
    struct Case {
        double value;
        std::string text;
    };
    const double infinity = std::numeric_limits<double>::infinity();
    const Case cases[] = {
        {0.5, "0.5"},
        {-0.0, "-0.0"},
        {3, "3.0"},
        {0.1, "0.1"},
        {1e-7, "1e-07"},
        {1e300, "1e+300"},
        {1.0 / 3, "0.3333333333333333"},
        {infinity, "null"},
        {-infinity, "null"},
        {std::nan(""), "null"},
    };
    for (const Case& row : cases) {
        std::string text;
        JsonText(text).Number(row.value);
        EXPECT_EQ(text, row.text);
    }
}

TEST(JsonText, IntegersAreWrittenOverTheirWholeRange) {
    std::string text;
    JsonText(text).Integer(std::numeric_limits<std::int64_t>::min());
    JsonText(text).Integer(std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(text, "-92233720368547758089223372036854775807");
}

} // namespace
} // namespace documents
