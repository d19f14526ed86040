// What the fuzz targets take for XML.
#include "fuzz/Xml.h"
#include "fuzz/RandomSymbols.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using fuzzing::IsXml;

TEST(Xml, IsOneElementBehindADeclarationAndADocumentType) {
    for (const char* const text :
         {"<a/>", "<a></a>", "<!DOCTYPE a>\n<a b=\"1\" c='2'>x &amp; &#39; &#x41;<b/></a>\n",
          "<?xml version=\"1.0\"?><!DOCTYPE a><a><b>\xc3\xa4\xf0\x9f\x98\x80</b></a>", "<a b=\">\"/>"}) {
        EXPECT_TRUE(IsXml(text)) << text;
    }
}

TEST(Xml, WhatReadersRefuseIsNone) {
    for (const char* const text : {"",
                                   "a",
                                   "<a>",
                                   "<a></b>",
                                   "<a/><b/>",
                                   "<a/>x",
                                   "</a>",
                                   "<a b=1/>",
                                   R"(<a b="1" b="2"/>)",
                                   R"(<a b="1"c="2"/>)",
                                   "<a b=\"<\"/>",
                                   "<a b=\"1/>",
                                   "<a>&</a>",
                                   "<a>&nbsp;</a>",
                                   "<a>&#1;</a>",
                                   "<a>&#xfffe;</a>",
                                   "<a>]]></a>",
                                   "<a>\x01</a>",
                                   "<a>\xef\xbf\xbe</a>",
                                   "<a>\xed\xa0\x80</a>",
                                   "<a>\xc0\x80</a>",
                                   "<a>\xc3</a>"}) {
        EXPECT_FALSE(IsXml(text)) << text;
    }
}

TEST(RandomSymbols, OfTheSameBytesAreTheSameDocument) {
    const std::uint8_t bytes[] = {1, 0, 1, 1, 4, 0, 1, 3, 9, 200, 17, 5, 6, 7};
    const std::string document = fuzzing::RandomSymbolsDocument(bytes, sizeof bytes);
    EXPECT_EQ(fuzzing::RandomSymbolsDocument(bytes, sizeof bytes), document);
    EXPECT_NE(fuzzing::RandomSymbolsDocument(nullptr, 0), document);
    EXPECT_EQ(nlohmann::json::parse(document).at("symbols").size(), 2U);
}

} // namespace
