// What pictures say in their markup. How they look is tested on rasterised ones.
#include "preview/Picture.h"
#include "preview/Gallery.h"
#include "preview/NumberTexts.h"
#include "preview/SymbolSvg.h"
#include "preview/TextMetrics.h"
#include "tests/preview/SampleSymbols.h"

#include <gtest/gtest.h>

namespace {

using namespace preview;
using namespace preview_test;

Picture Draw(TylModel::SymbolDefinition& symbol, bool bindings = false) {
    PictureStyle style;
    style.bindings = bindings;
    return DrawPicture(Resolve(symbol), style);
}

std::size_t Count(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

bool Has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

std::unique_ptr<TylModel::SimpleSymbolDefinition> DashSymbol(const std::wstring& repeat) {
    auto symbol = NewSymbol(L"DASHED");
    AddPath(*symbol, L"M 0,0 L 0.5,0 ", L"%LINECOLOR%").SetLineWeight(L"%LINEWEIGHT%");
    AddLineParameters(*symbol);
    SetLineUsage(*symbol, repeat);
    return symbol;
}

TEST(Picture, ALineWeightIsMillimetresOfTheScaleShown) {
    const struct {
        const wchar_t* path;
        const char* width; // pixels, of a weight of 2 mm
        bool isHairline;
    } rows[] = {
        {L"M 0,0 L 140,0 ", "stroke-width=\"4\"",
         false}, // 320 pixels less twice 20 for 140 mm: 2 a millimetre
        {L"M 0,0 L 14,0 ", "stroke-width=\"40\"", false}, // 20 a millimetre
        {L"M 0,0 L 1400,0 ", "stroke-width=\"1\"", true}, // less than can be seen
    };
    for (const wchar_t* const scalable : {L"", L"false", L"true"}) {
        for (const auto& row : rows) {
            auto symbol = NewSymbol(L"A");
            TylModel::Path& path = AddPath(*symbol, row.path);
            path.SetLineWeight(L"2");
            path.SetLineWeightScalable(scalable);
            SetPointUsage(*symbol);
            const std::string markup = Draw(*symbol).markup;
            EXPECT_TRUE(Has(markup, row.width)) << markup;
            EXPECT_EQ(Has(markup, "vector-effect=\"non-scaling-stroke\""), row.isHairline) << markup;
        }
    }
}

TEST(Picture, TheWeightsOfLinesAndHatchesAreOfTheirScaleToo) {
    auto line = DashSymbol(L"1");
    static_cast<TylModel::Path&>(*line->GetGraphics().GetAt(0)).SetLineWeight(L"0.5");
    auto area = NewSymbol(L"A");
    AddPath(*area, L"M 0,0 L 1,0 ").SetLineWeight(L"0.5");
    SetAreaUsage(*area, L"0", L"1", L"1");
    for (TylModel::SymbolDefinition* const symbol : {line.get(), area.get()}) {
        const Picture picture = Draw(*symbol);
        std::string width;
        AppendPixels(width, 0.5 * picture.scale);
        EXPECT_GT(picture.scale, 4.0);
        EXPECT_TRUE(Has(picture.markup, "stroke-width=\"" + width + "\"")) << picture.markup;
    }
}

TEST(Picture, DashesTooShortToBeSeenAreDots) {
    // As "A,.00001,-.125" becomes: some 30 pixels from dot to dot, on lines of 272 pixels and more.
    auto symbol = NewSymbol(L"DOTS");
    AddPath(*symbol, L"M 0,0 L 0.00001,0 ");
    SetLineUsage(*symbol, L"0.12501");
    const Picture picture = Draw(*symbol);
    EXPECT_TRUE(picture.notes.empty()) << picture.notes.front();
    EXPECT_GE(Count(picture.markup, "h0"), 3U * 9U) << picture.markup;
    EXPECT_TRUE(Has(picture.markup, "stroke-linecap=\"round\"")) << picture.markup;
}

TEST(Picture, APathWithoutColoursIsNotDrawn) {
    auto symbol = NewSymbol(L"A");
    AddPath(*symbol, L"M 0,0 L 1,1", L"");
    SetPointUsage(*symbol);
    EXPECT_FALSE(Has(Draw(*symbol).markup, "<path"));
}

TEST(Picture, TransparencyIsKept) {
    auto symbol = NewSymbol(L"A");
    AddPath(*symbol, L"M 0,0 L 1,1", L"80102030");
    SetPointUsage(*symbol);
    EXPECT_TRUE(Has(Draw(*symbol).markup, "stroke=\"#102030\" stroke-opacity=\"0.5\""));
}

TEST(Picture, ATextKeepsFontStyleAndAnchor) {
    auto symbol = NewSymbol(L"A");
    TylModel::Text& text = AddText(*symbol, L"'A''B'");
    text.SetFontName(L"Some \"Font'");
    text.SetBold(L"true");
    text.SetItalic(L"true");
    text.SetUnderlined(L"true");
    text.SetOverlined(L"true");
    text.SetAngle(L"30");
    text.SetHorizontalAlignment(L"'Right'");
    SetPointUsage(*symbol);
    const std::string markup = Draw(*symbol).markup;
    for (const char* part : {"font-family=\"&#39;Some Font&#39;, sans-serif\"", "font-weight=\"bold\"",
                             "font-style=\"italic\"", "text-decoration=\"underline overline\"",
                             "text-anchor=\"end\"", "rotate(-30)", ">A&#39;B</text>"}) {
        EXPECT_TRUE(Has(markup, part)) << part << " in " << markup;
    }
}

TEST(Picture, TheHeightOfATextIsThatOfItsCapitals) {
    const struct {
        VerticalAnchor anchor;
        double baseLine; // above the position, for capitals of 1
    } rows[] = {
        {VerticalAnchor::kBaseline, 0.0},
        {VerticalAnchor::kTop, -1.0},
        {VerticalAnchor::kMiddle, -0.5},
        {VerticalAnchor::kBottom, kDescent / kCapitalHeight},
    };
    for (const auto& row : rows) {
        TextPart text;
        text.height = 1.0;
        text.vertical = row.anchor;
        EXPECT_DOUBLE_EQ(BaselineShift(text), row.baseLine);
    }
}

TEST(Picture, EachMemberOfACompoundHasItsOwnRepeat) {
    std::vector<std::unique_ptr<TylModel::SimpleSymbolDefinition>> members;
    for (const wchar_t* repeat : {L"1", L"2"}) {
        members.push_back(DashSymbol(repeat));
        AddPath(*members.back(), L"M 0,0 L 0.1,0.1 ");
    }
    const std::string markup = Draw(*Compound(L"A", std::move(members))).markup;
    const std::size_t often = Count(markup, "#s-0\"");
    const std::size_t seldom = Count(markup, "#s-1\"");
    EXPECT_GT(seldom, 2U);
    EXPECT_GE(often, seldom * 2 - 3); // on three lines each may begin with one in common
    EXPECT_LE(often, seldom * 2);
}

TEST(Picture, AnUprightMemberIsNotTurnedByTheLine) {
    auto symbol = DashSymbol(L"1");
    AddPath(*symbol, L"M 0,0 L 0.1,0.1 ");
    EXPECT_TRUE(Has(Draw(*symbol).markup, ") rotate("));
    symbol->GetLineUsage()->SetAngle(L"30");
    symbol->GetLineUsage()->SetAngleControl(L"'FromAngle'");
    const std::string upright = Draw(*symbol).markup;
    EXPECT_FALSE(Has(upright, ") rotate(")) << upright;
    EXPECT_TRUE(Has(upright, "<g transform=\"rotate(-30)\">")) << upright;
}

TEST(Picture, ThePageCanSeeWhichParametersAnElementFollows) {
    const std::string dashes = Draw(*DashSymbol(L"1"), true).markup;
    EXPECT_TRUE(Has(dashes, "data-stroke=\"0\"")) << dashes;
    EXPECT_TRUE(Has(dashes, "data-weight=\"0;1*1\"")) << dashes;
    auto area = NewSymbol(L"A");
    AddPath(*area, L"M 0.0,0.0 h 10.0", L"%HATCHCOLOR%");
    SetAreaUsage(*area, L"%HATCHANGLE%+45.0", L"10.0", L"1.0");
    const std::string hatch = Draw(*area, true).markup;
    EXPECT_TRUE(Has(hatch, "transform=\"rotate(-45)\" data-angle=\"45;1*1\"")) << hatch;
    EXPECT_FALSE(Has(Draw(*area, false).markup, "data-"));
}

TEST(Picture, DescribesTheSymbol) {
    EXPECT_EQ(Describe(Resolve(*DashSymbol(L"0.75"))), "Line symbol, repeat 0.75");
    EXPECT_EQ(Describe(Resolve(*PointSymbol(L"A", L"M 0,0 L 25.4,12.7"))),
              "Point symbol, 25.4 \xc3\x97 12.7 mm");
    auto area = NewSymbol(L"A");
    SetAreaUsage(*area, L"0", L"10.0", L"0.125");
    EXPECT_EQ(Describe(Resolve(*area)), "Area symbol, tile 10 \xc3\x97 0.125");
}

TEST(Picture, LightColoursGetDarkPaper) {
    auto symbol = NewSymbol(L"A");
    AddPath(*symbol, L"M 0,0 L 1,1", L"ffffffff");
    EXPECT_LT(Luminance(PaperFor(Resolve(*symbol))), 0.1);
    AddPath(*symbol, L"M 0,0 L 1,1", L"ff000000");
    const double both = Luminance(PaperFor(Resolve(*symbol)));
    EXPECT_GT(Contrast(both, 0.0), 4);
    EXPECT_GT(Contrast(both, 1.0), 4);
    EXPECT_EQ(PaperFor(Resolve(*PointSymbol(L"A", L"M 0,0 L 1,1"))), (Color{255, 255, 255, 255}));
}

TEST(Picture, EveryColourOfASymbolIsSeenOnItsPaper) {
    const auto paperFor = [](const std::vector<std::wstring>& inks) {
        auto symbol = NewSymbol(L"A");
        for (const std::wstring& ink : inks) {
            AddPath(*symbol, L"M 0,0 L 1,1", ink);
        }
        return Luminance(PaperFor(Resolve(*symbol)));
    };
    // Yellow and cyan are all but white.
    EXPECT_LT(paperFor({L"ffffff00"}), 0.1);
    EXPECT_LT(paperFor({L"ff00ffff"}), 0.1);
    EXPECT_EQ(paperFor({L"ffffbf00"}), 1.0);
    const double forThree = paperFor({L"ffffffff", L"ff808080", L"ff0000ff"});
    for (const Color& ink : {Color{255, 255, 255, 255}, Color{255, 128, 128, 128}, Color{255, 0, 0, 255}}) {
        EXPECT_GT(Contrast(forThree, Luminance(ink)), 1.9) << ColorText(ink);
    }
    const double forTwo = paperFor({L"ffffffff", L"ff0000ff"});
    EXPECT_GT(Contrast(forTwo, 1.0), 2.5);
    EXPECT_GT(Contrast(forTwo, Luminance({255, 0, 0, 255})), 2.5);
}

TEST(Picture, ASparseTileIsRepeatedNonetheless) {
    auto symbol = NewSymbol(L"A");
    AddPath(*symbol, L"M 1.0,1.0 h 0.05 M 3.0,2.0 h 0.05", L"%HATCHCOLOR%");
    SetAreaUsage(*symbol, L"%HATCHANGLE%", L"4.0", L"3.0");
    // At least two tiles each way.
    EXPECT_GE(Count(Draw(*symbol).markup, "M"), 2U * 2U * 2U);
}

TEST(Picture, APathWithoutColoursTakesItsRoom) {
    auto symbol = NewSymbol(L"A");
    AddPath(*symbol, L"M 0,0 L 0,1 ");
    SetPointUsage(*symbol);
    AddPath(*symbol, L"M 0,0 L 0,10 ", L"");
    // A tenth of 240 pixels less twice 20 is seen.
    const std::string markup = Draw(*symbol).markup;
    EXPECT_TRUE(Has(markup, "v-20\"")) << markup;
    EXPECT_EQ(Describe(Resolve(*symbol)), "Point symbol, 0 \xc3\x97 1 mm");
}

TEST(Picture, HostileSymbolsGiveSmallPicturesThatSaySo) {
    for (const auto& symbol : HostileSymbols()) {
        const Picture picture = Draw(*symbol, true);
        EXPECT_LT(picture.markup.size(), 600'000U);
        for (const char* word : {"nan", "inf", "e+"}) {
            EXPECT_FALSE(Has(picture.markup, word)) << picture.markup.substr(0, 1000);
        }
    }
    // What stands beside the line keeps a picture from showing single repetitions of a millionth of its size.
    auto dense = DashSymbol(L"1e-6");
    AddPath(*dense, L"M 0,0 L 1,1 ");
    EXPECT_EQ(Draw(*dense).notes, std::vector<std::string>{"Not all repetitions are drawn."});
    EXPECT_EQ(Draw(*DashSymbol(L"1e300")).notes,
              std::vector<std::string>{"The repeat is longer than the picture."});
    EXPECT_EQ(Draw(*DashSymbol(L"nan")).notes, std::vector<std::string>{"Values that cannot be read: 1."});
    EXPECT_TRUE(Draw(*DashSymbol(L"1")).notes.empty());
}

TEST(Picture, AMillionCommandsAreDrawnOnceEach) {
    std::wstring path = L"M 0,0 ";
    for (int i = 0; i < 500'000; ++i) {
        path += L"l 1,1 l 1,-1 ";
    }
    const std::string point = Draw(*PointSymbol(L"A", path)).markup;
    EXPECT_GT(point.size(), 1'000U);
    auto line = NewSymbol(L"A");
    AddPath(*line, path);
    SetLineUsage(*line, L"1");
    EXPECT_FALSE(Draw(*line).notes.empty());
    auto area = NewSymbol(L"A");
    AddPath(*area, path);
    SetAreaUsage(*area, L"0", L"1", L"1");
    EXPECT_FALSE(Draw(*area).notes.empty());
}

TEST(Picture, IsDrawnAtTheScaleThatIsAskedFor) {
    auto symbol = NewSymbol(L"A");
    AddPath(*symbol, L"M 0,0 L 2,0");
    const ResolvedSymbol resolved = Resolve(*symbol);
    PictureStyle style;
    EXPECT_DOUBLE_EQ(DrawPicture(resolved, style).scale, FittingScale(resolved, style));
    style.scale = 10; // two units are twenty pixels, in the middle
    const Picture picture = DrawPicture(resolved, style);
    EXPECT_EQ(picture.scale, 10);
    EXPECT_TRUE(Has(picture.markup, "M-10 0h20")) << picture.markup;
    EXPECT_EQ(DrawPicture(Resolve(*NewSymbol(L"empty")), style).scale, 0);
}

// Four lines of 1, 2, 4 and 8 units fill a card at 260, 130, 65 and 32.5 pixels for each unit.
TEST(Gallery, TheScaleInTheMiddleIsTheCommonOne) {
    std::vector<SymbolPointer> symbols;
    std::string page;
    GalleryWriter writer({.count = 4}, [&](std::string_view piece) {
        page += piece;
        return true;
    });
    for (const wchar_t* const path : {L"M 0,0 L 1,0", L"M 0,0 L 2,0", L"M 0,0 L 4,0", L"M 0,0 L 8,0"}) {
        auto symbol = NewSymbol(L"A");
        AddPath(*symbol, path);
        writer.Measure(*symbol);
        symbols.push_back(std::move(symbol));
    }
    for (const auto& symbol : symbols) {
        ASSERT_TRUE(writer.Add(*symbol));
    }
    EXPECT_EQ(Count(page, "\"scale\":130.0}"), 3U);
    EXPECT_EQ(Count(page, "\"sameScale\""), 3U) << "the one in the middle has it already";
}

TEST(Gallery, OnlySymbolsThatLoseSomethingBringTheirFaithfulDrawing) {
    std::string page;
    GalleryWriter writer({.count = 3}, [&](std::string_view piece) {
        page += piece;
        return true;
    });
    const auto symbol = PointSymbol(L"A", L"M 0,0 L 26,0");
    const auto faithful = PointSymbol(L"A", L"M 0,0 L 26,0 L 26,26");
    GalleryFacts facts;
    ASSERT_TRUE(writer.Add(*symbol, facts));
    facts.loss = "a <side> is lost";
    ASSERT_TRUE(writer.Add(*symbol, facts));
    EXPECT_EQ(Count(page, "<li class=\"loss\">a &lt;side&gt; is lost</li>"), 1U);
    EXPECT_FALSE(Has(page, "\"faithful\":"));
    facts.faithful = faithful.get();
    ASSERT_TRUE(writer.Add(*symbol, facts));
    EXPECT_EQ(Count(page, "\"faithful\":"), 1U);
    // 10 pixels a unit, as the symbol itself, about the middle of its frame.
    EXPECT_TRUE(Has(page, "M-130 0h260v-260")) << page;
}

TEST(Gallery, NamesOfAFileCannotBecomeMarkup) {
    std::string page;
    const auto symbols = HostileSymbols();
    GalleryWriter writer({.count = symbols.size()}, [&](std::string_view piece) {
        page += piece;
        return true;
    });
    for (const auto& symbol : symbols) {
        ASSERT_TRUE(writer.Add(*symbol));
    }
    ASSERT_TRUE(writer.Finish());
    // One of each symbol, the document, the library and the page's own.
    EXPECT_EQ(Count(page, "</script>"), symbols.size() + 3);
    EXPECT_EQ(Count(page, "<script"), symbols.size() + 3);
    EXPECT_FALSE(Has(page, "<img"));
    EXPECT_FALSE(Has(page, "{{"));
}

std::string PageOf(TylModel::SymbolDefinition& symbol) {
    std::string page;
    GalleryWriter writer({.count = 1}, [&](std::string_view piece) {
        page += piece;
        return true;
    });
    EXPECT_TRUE(writer.Add(symbol) && writer.Finish());
    return page;
}

TEST(Gallery, ALongNameMayBreakBehindEachUnderscore) {
    auto symbol = NewSymbol(L"A_<B>__C_");
    EXPECT_TRUE(Has(PageOf(*symbol), ">A_<wbr>&lt;B&gt;_<wbr>_<wbr>C_</h3>"));
    EXPECT_TRUE(Has(PageOf(*symbol), "aria-label=\"Enlarge A_&lt;B&gt;__C_\""));
    symbol->SetName(L"");
    EXPECT_TRUE(Has(PageOf(*symbol), "<h3 class=\"name\"></h3>"));
}

TEST(Gallery, ACardHasNoPartsWithoutAText) {
    const auto glyph = NewSymbol(L"A");
    AddPath(*glyph, L"M 0,0 L 30,0 ");
    const std::string page = PageOf(*glyph);
    for (const char* const part : {"description", "source", "notes", "parameters"}) {
        EXPECT_FALSE(Has(page, "class=\"" + std::string(part) + "\"")) << part;
    }
    EXPECT_TRUE(Has(PageOf(*DashSymbol(L"1")),
                    "<details class=\"parameters\"><summary tabindex=\"-1\">2 parameters<"));
}

TEST(Gallery, StopsWhenItsTextCannotBeStored) {
    GalleryWriter writer({.count = 1}, [](std::string_view) { return false; });
    EXPECT_FALSE(writer.Add(*DashSymbol(L"1")));
}

TEST(SymbolSheet, ALongNameIsWrittenSmallerAndThenOnTwoLines) {
    const auto svgOf = [](std::size_t length) {
        auto symbol = NewSymbol(std::wstring(length, L'W'));
        AddPath(*symbol, L"M 0,0 L 1,0");
        return SymbolSvg(*symbol);
    };
    const auto line = [](std::size_t length) { return ">" + std::string(length, 'W') + "</text>"; };
    EXPECT_TRUE(Has(svgOf(20), "font-size=\"22\" ") && Has(svgOf(20), line(20)));
    EXPECT_TRUE(Has(svgOf(70), line(70)) && !Has(svgOf(70), "font-size=\"22\" "));
    EXPECT_TRUE(Has(svgOf(101), line(51)) && Has(svgOf(101), line(50)));
}

TEST(SymbolSheet, HoldsEverySymbolAndEndsWithoutAny) {
    std::string sheet;
    const TextSink sink = [&](std::string_view piece) {
        sheet += piece;
        return true;
    };
    const auto symbols = TypicalSymbols();
    SheetWriter writer(symbols.size(), sink);
    for (const auto& symbol : symbols) {
        ASSERT_TRUE(writer.Add(*symbol));
    }
    ASSERT_TRUE(writer.Finish());
    EXPECT_EQ(Count(sheet, "<svg"), symbols.size() + 1);
    EXPECT_EQ(Count(sheet, "</svg>"), symbols.size() + 1);
    sheet.clear();
    ASSERT_TRUE(SheetWriter(0, sink).Finish());
    EXPECT_EQ(Count(sheet, "</svg>"), 1U);
}

} // namespace
