// Symbols and glyphs as documents, byte by byte.
#include "documents/SymbolsDocument.h"

#include "documents/GlyphsDocument.h"

#include <gtest/gtest.h>
#include <memory>

namespace documents {
namespace {

// A symbol with every kind of object that a document has, and a member of its own.
void Fill(TylModel::SimpleSymbolDefinition& symbol) {
    symbol.SetName(L"A \"name\"");
    auto path = std::make_unique<TylModel::Path>();
    path->SetGeometry(L"M 0.0,0.0");
    path->SetLineWeightScalable(L"false");
    symbol.GetGraphics().Adopt(path.release());
    symbol.GetGraphics().Adopt(new TylModel::Path);
    auto text = std::make_unique<TylModel::Text>();
    text->SetContent(L"'\u00e4'");
    text->SetOverlined(L"true");
    symbol.GetGraphics().Adopt(text.release());
    auto parameter = std::make_unique<TylModel::Parameter>();
    parameter->SetIdentifier(L"P");
    parameter->SetDataType(TylModel::Parameter::kLineColor);
    symbol.GetParameterDefinition().Adopt(parameter.release());
    symbol.AdoptPointUsage(new TylModel::PointUsage);
    auto line = std::make_unique<TylModel::LineUsage>();
    line->SetRepeat(L"1");
    symbol.AdoptLineUsage(line.release());
    auto area = std::make_unique<TylModel::AreaUsage>();
    area->SetRepeatX(L"2");
    area->SetRepeatY(L"3");
    symbol.AdoptAreaUsage(area.release());
}

std::string Written(const std::vector<TylModel::SymbolDefinition*>& symbols) {
    std::string text;
    SymbolsWriter writer([&](std::string_view piece) {
        text += piece;
        return true;
    });
    for (TylModel::SymbolDefinition* const symbol : symbols) {
        EXPECT_TRUE(writer.Add(*symbol));
    }
    EXPECT_TRUE(writer.Finish());
    return text;
}

constexpr const char* kHead = "{\n"
                              "  \"format\": \"styleconversion/symbols\",\n"
                              "  \"version\": 1,\n"
                              "  \"symbols\": [";

TEST(SymbolsDocument, WithoutSymbolsIsAnEmptyList) {
    EXPECT_EQ(Written({}), std::string(kHead) + "]\n}\n");
}

TEST(SymbolsDocument, SaysThatItsSymbolsAreFaithful) {
    std::string text;
    SymbolsWriter writer(
        [&](std::string_view piece) {
            text += piece;
            return true;
        },
        encoding::Fidelity::kFaithful);
    EXPECT_TRUE(writer.Finish());
    EXPECT_EQ(text, "{\n  \"format\": \"styleconversion/symbols\",\n  \"version\": 1,\n"
                    "  \"fidelity\": \"faithful\",\n  \"symbols\": []\n}\n");
}

TEST(SymbolsDocument, EmptyPropertiesAreLeftOutButNotTypeNameAndLists) {
    TylModel::SimpleSymbolDefinition simple;
    TylModel::CompoundSymbolDefinition compound;
    EXPECT_EQ(Written({&simple, &compound}), std::string(kHead) +
                                                 "\n"
                                                 "    {\n"
                                                 "      \"type\": \"SimpleSymbolDefinition\",\n"
                                                 "      \"name\": \"\",\n"
                                                 "      \"graphics\": [],\n"
                                                 "      \"parameters\": []\n"
                                                 "    },\n"
                                                 "    {\n"
                                                 "      \"type\": \"CompoundSymbolDefinition\",\n"
                                                 "      \"name\": \"\",\n"
                                                 "      \"symbols\": []\n"
                                                 "    }\n"
                                                 "  ]\n"
                                                 "}\n");
}

TEST(SymbolsDocument, HoldsGraphicsParametersAndUsagesInOrder) {
    TylModel::CompoundSymbolDefinition compound;
    compound.SetName(L"C");
    compound.SetDescription(L"D");
    auto definition = std::make_unique<TylModel::SimpleSymbolDefinition>();
    Fill(*definition);
    auto member = std::make_unique<TylModel::SimpleSymbol>();
    member->AdoptSymbolDefinition(definition.release());
    compound.GetSymbols().Adopt(member.release());
    EXPECT_EQ(Written({&compound}), std::string(kHead) + R"(
    {
      "type": "CompoundSymbolDefinition",
      "name": "C",
      "description": "D",
      "symbols": [
        {
          "type": "SimpleSymbolDefinition",
          "name": "A \"name\"",
          "graphics": [
            {
              "type": "Path",
              "geometry": "M 0.0,0.0",
              "lineWeightScalable": "false"
            },
            {
              "type": "Path"
            },
            {
              "type": "Text",
              "content": "')" + "\xC3\xA4" +
                                        R"('",
              "overlined": "true"
            }
          ],
          "parameters": [
            {
              "identifier": "P",
              "dataType": 7
            }
          ],
          "pointUsage": {},
          "lineUsage": {
            "repeat": "1"
          },
          "areaUsage": {
            "repeatX": "2",
            "repeatY": "3"
          }
        }
      ]
    }
  ]
}
)");
}

TEST(SymbolsDocument, StopsWhenAPieceCannotBeStored) {
    TylModel::SimpleSymbolDefinition symbol;
    SymbolsWriter writer([](std::string_view) { return false; });
    EXPECT_FALSE(writer.Add(symbol));
    EXPECT_FALSE(writer.Finish());
    SymbolsWriter empty([](std::string_view) { return false; });
    EXPECT_FALSE(empty.Finish());
}

TEST(GlyphsDocument, HoldsTheFilesKindItsBytesAndTheGlyphs) {
    ShxUtility::ShapesInFile file;
    file.kind = ShxUtility::kFont;
    file.isVersion10 = false;
    file.fontInfo = {8, 255, 0};
    std::string text;
    GlyphsWriter writer(file, [&](std::string_view piece) {
        text += piece;
        return true;
    });
    Glyph glyph;
    glyph.number = 65;
    glyph.name = L"UCA";
    glyph.path = L"M 0,0 ";
    glyph.endX = 2;
    glyph.endY = -0.5;
    EXPECT_TRUE(writer.Add(glyph));
    glyph.endX = -0.0;
    glyph.endY = 9007199254740992.0;
    EXPECT_TRUE(writer.Add(glyph));
    Glyph failed;
    failed.number = 66;
    failed.result = static_cast<ShxUtility::ShxResult>(3);
    EXPECT_TRUE(writer.Add(failed));
    EXPECT_TRUE(writer.Finish());
    EXPECT_EQ(text, R"({
  "format": "styleconversion/glyphs",
  "version": 1,
  "kind": "kFont",
  "isVersion10": false,
  "fontInfo": [8,255,0],
  "glyphs": [
    {
      "number": 65,
      "name": "UCA",
      "geometry": "M 0,0 ",
      "end": [
        2,
        -0.5
      ],
      "result": 0
    },
    {
      "number": 65,
      "name": "UCA",
      "geometry": "M 0,0 ",
      "end": [
        -0.0,
        9.007199254740992e+15
      ],
      "result": 0
    },
    {
      "number": 66,
      "name": "",
      "result": 3
    }
  ]
}
)");
}

} // namespace
} // namespace documents
