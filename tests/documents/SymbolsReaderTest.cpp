// Symbols documents read back: what was written comes out again, and what nobody wrote is refused with its
// place.
#include "documents/SymbolsReader.h"

#include "diagnostics/Sentences.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using documents::SymbolsOfDocument;

std::string DocumentOf(const std::string& symbols) {
    return R"({"format": "styleconversion/symbols", "version": 1, "symbols": [)" + symbols + "]}";
}

// One symbol with these members beside those that must be there.
std::string SymbolWith(const std::string& members, const std::string& graphics = "",
                       const std::string& parameters = "") {
    return R"({"type": "SimpleSymbolDefinition", "name": "A", )" + members + R"("graphics": [)" + graphics +
           R"(], "parameters": [)" + parameters + "]}";
}

// "symbols[0].name: expected a text, found nothing"; empty where the document is read.
std::string RefusalOf(const std::string& document, bool tolerant = false) {
    SymbolsOfDocument read;
    diagnostics::Diagnostics problems;
    const bool isRead = ReadSymbols(document, tolerant, read, problems);
    EXPECT_EQ(problems.empty(), isRead) << document;
    if (problems.empty()) {
        return "";
    }
    const diagnostics::Diagnostic& first = problems.front();
    return (first.place.path.empty() ? "" : first.place.path + ": ") +
           diagnostics::SentenceOf(first.code, first.subjects);
}

std::string Rewritten(const std::string& document) {
    SymbolsOfDocument read;
    diagnostics::Diagnostics problems;
    EXPECT_TRUE(ReadSymbols(document, false, read, problems)) << RefusalOf(document);
    std::string text;
    documents::SymbolsWriter writer(
        [&](std::string_view piece) {
            text += piece;
            return true;
        },
        read.fidelity);
    for (const documents::ReadSymbol& symbol : read.symbols) {
        EXPECT_TRUE(writer.Add(*symbol.definition, symbol.origin ? &*symbol.origin : nullptr));
    }
    EXPECT_TRUE(writer.Finish());
    return text;
}

constexpr const char* kEveryProperty = R"({
  "format": "styleconversion/symbols",
  "version": 1,
  "fidelity": "faithful",
  "symbols": [
    {
      "type": "SimpleSymbolDefinition",
      "name": "a \"ä\" 水",
      "description": "of all",
      "kind": "linetype",
      "source": {
        "file": "b/c.lin",
        "line": 7
      },
      "graphics": [
        {
          "type": "Path",
          "geometry": "M 0.0,0.0",
          "lineColor": "ff000000",
          "fillColor": "%F%",
          "lineWeight": "%W%",
          "lineWeightScalable": "false"
        },
        {
          "type": "Text",
          "content": "'x'",
          "fontName": "Arial",
          "height": "1",
          "angle": "2",
          "positionX": "3",
          "positionY": "4",
          "horizontalAlignment": "'Left'",
          "verticalAlignment": "'Top'",
          "textColor": "%T%",
          "bold": "true",
          "italic": "true",
          "underlined": "true",
          "overlined": "true"
        }
      ],
      "parameters": [
        {
          "identifier": "W",
          "displayName": "&Weight",
          "description": "w",
          "defaultValue": "0.1",
          "dataType": 8
        }
      ],
      "pointUsage": {
        "angle": "1"
      },
      "lineUsage": {
        "angle": "2",
        "angleControl": "'FromAngle'",
        "repeat": "3",
        "startOffset": "4"
      },
      "areaUsage": {
        "angle": "5",
        "repeatX": "6",
        "repeatY": "7"
      }
    },
    {
      "type": "CompoundSymbolDefinition",
      "name": "",
      "kind": "glyph",
      "source": {
        "file": "m.shx",
        "shape": 65535,
        "path": "blocks[0]"
      },
      "symbols": [
        {
          "type": "SimpleSymbolDefinition",
          "name": "part",
          "graphics": [],
          "parameters": [],
          "pointUsage": {}
        }
      ]
    }
  ]
}
)";

TEST(SymbolsReader, DocumentWithEveryPropertyIsWrittenAgainAsItWas) {
    EXPECT_EQ(Rewritten(kEveryProperty), kEveryProperty);
}

TEST(SymbolsReader, OrderOfMembersIsFree) {
    EXPECT_EQ(RefusalOf(R"({"symbols": [{"parameters": [], "graphics": [], "name": "A",
                          "type": "SimpleSymbolDefinition"}], "version": 1,
                          "format": "styleconversion/symbols"})"),
              "");
}

TEST(SymbolsReader, WhatIsNoSymbolsDocumentIsRefused) {
    EXPECT_EQ(RefusalOf("[]"), "expected an object, found a list");
    EXPECT_EQ(RefusalOf("{}"), "format: expected \"styleconversion/symbols\", found nothing");
    EXPECT_EQ(RefusalOf(R"({"format": "styleconversion/glyphs"})"),
              "format: expected \"styleconversion/symbols\", found \"styleconversion/glyphs\"");
    EXPECT_EQ(RefusalOf(R"({"format": "styleconversion/symbols", "version": 2})"),
              "version: expected 1, found 2");
    EXPECT_EQ(RefusalOf(R"({"format": "styleconversion/symbols", "version": 1})"),
              "symbols: expected a list, found nothing");
    EXPECT_EQ(RefusalOf(R"({"format": "styleconversion/symbols", "version": 1, "fidelity": "strict"})"),
              "fidelity: expected \"faithful\", found \"strict\"");
}

TEST(SymbolsReader, InvalidValueIsRefusedWithItsPlace) {
    const std::string list = "symbols[0].";
    const struct {
        std::string symbol;
        std::string refusal;
    } rows[] = {
        {"1", "symbols[0]: expected an object, found 1"},
        {"{}",
         list + "type: expected \"SimpleSymbolDefinition\" or \"CompoundSymbolDefinition\", found nothing"},
        {R"({"type": "SimpleSymbolDefinition"})", list + "name: expected a text, found nothing"},
        {R"({"type": "SimpleSymbolDefinition", "name": "A"})",
         list + "graphics: expected a list, found nothing"},
        {SymbolWith(R"("names": 1, )"), list + "names: unknown key"},
        {SymbolWith(R"("": 1, )"), list + ": unknown key"},
        {SymbolWith(R"("description": "", )"),
         list + "description: expected a text that is not empty, found \"\""},
        {SymbolWith(R"("description": "\u0000", )"),
         list + "description: expected a text without the character U+0000, found \"?\""},
        {SymbolWith("", R"({"type": "Circle"})"),
         list + "graphics[0].type: expected \"Path\" or \"Text\", found \"Circle\""},
        {SymbolWith("", R"({"type": "Path", "geometry": 5})"),
         list + "graphics[0].geometry: expected a text, found 5"},
        {SymbolWith("", R"({"type": "Path", "height": "1"})"), list + "graphics[0].height: unknown key"},
        {SymbolWith("", R"({"type": "Path"}, {"type": "Text", "bold": "false"})"),
         list + "graphics[1].bold: expected \"true\", found \"false\""},
        {SymbolWith("", "", R"({"identifier": "A"})"),
         list + "parameters[0].dataType: expected 0, 5, 6, 7, 8 or 23, found nothing"},
        {SymbolWith("", "", R"({"dataType": 7.5})"),
         list + "parameters[0].dataType: expected 0, 5, 6, 7, 8 or 23, found 7.5"},
        {SymbolWith(R"("lineUsage": {"repeatX": "1"}, )"), list + "lineUsage.repeatX: unknown key"},
        {SymbolWith(R"("kind": "road", "source": {"file": "a"}, )"),
         list + "kind: expected \"linetype\", \"pattern\", \"block\" or \"glyph\", found \"road\""},
        {SymbolWith(R"("kind": "glyph", )"), list + "source: expected an object, found nothing"},
        {SymbolWith(R"("kind": "glyph", "source": {"file": "a", "shape": 65536}, )"),
         list + "source.shape: expected a whole number from 0 to 65535, found 65536"},
        {SymbolWith(R"("kind": "glyph", "source": {"file": "a", "line": 0}, )"),
         list + "source.line: expected a whole number from 1 on, found 0"},
        {R"({"type": "CompoundSymbolDefinition", "name": "", "symbols": [
             {"type": "CompoundSymbolDefinition", "name": "", "symbols": []}]})",
         list + "symbols[0].type: expected \"SimpleSymbolDefinition\", found \"CompoundSymbolDefinition\""},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(RefusalOf(DocumentOf(row.symbol)), row.refusal) << row.symbol;
    }
}

TEST(SymbolsReader, KeyThatStandsTwiceIsRefused) {
    EXPECT_EQ(RefusalOf(DocumentOf(SymbolWith(R"("description": "a", "description": "b", )"))),
              "symbols[0].description: the key is given twice");
    // The same key in objects beside each other is fine.
    EXPECT_EQ(RefusalOf(DocumentOf(SymbolWith("") + "," + SymbolWith(""))), "");
}

TEST(SymbolsReader, TolerantReadingSkipsTheSymbolAlone) {
    SymbolsOfDocument read;
    diagnostics::Diagnostics problems;
    EXPECT_TRUE(ReadSymbols(DocumentOf(SymbolWith("") + ", 5, " + SymbolWith("")), true, read, problems));
    EXPECT_EQ(read.symbols.size(), 2U);
    EXPECT_EQ(read.symbols[1].index, 2U);
    ASSERT_EQ(problems.size(), 1U);
    EXPECT_EQ(problems[0].severity, diagnostics::Severity::kWarning);
    EXPECT_EQ(SentenceOf(problems[0]), "expected an object, found 5; skipped");
    EXPECT_EQ(problems[0].place.path, "symbols[1]");
}

TEST(SymbolsReader, EveryCutDocumentIsRefused) {
    const std::string document = kEveryProperty;
    // The last two characters are the bracket and the end of its line.
    for (std::size_t length = 0; length + 1 < document.size(); ++length) {
        EXPECT_NE(RefusalOf(document.substr(0, length)), "") << length;
    }
}

TEST(SymbolsReader, DepthIsLimitedAndTakesNoStack) {
    const auto nested = [](std::size_t levels) {
        return DocumentOf(std::string(levels, '[') + std::string(levels, ']'));
    };
    // The document and its list are two levels.
    EXPECT_EQ(RefusalOf(nested(14)), "symbols[0]: expected an object, found a list");
    EXPECT_EQ(RefusalOf(nested(15)), "expected at most 16 levels, found more");
    EXPECT_EQ(RefusalOf(nested(300000)), "expected at most 16 levels, found more");
}

TEST(SymbolsReader, MessagesOfBrokenDocumentsAreShortAndMoveNoCursor) {
    const std::string refusal = RefusalOf("{\"format\": \"" + std::string(5000, 'x') + "\x1b[2J");
    EXPECT_EQ(refusal.rfind("expected JSON, found an error at ", 0), 0U) << refusal;
    EXPECT_LT(refusal.size(), 300U);
    EXPECT_EQ(refusal.find('\x1b'), std::string::npos);
    EXPECT_NE(RefusalOf(DocumentOf(SymbolWith(R"("shape": 1e999, )"))), "");
}

} // namespace
