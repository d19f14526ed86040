#include "styles/MarkerParts.h"
#include "styles/SquareSvg.h"
#include "tests/styles/StyleSamples.h"

#include <gtest/gtest.h>

namespace {

using namespace styles;

preview::ResolvedSymbol Resolved(TylModel::SymbolDefinition& symbol) {
    return preview::Resolve(symbol);
}

TEST(MarkerParts, ARunEndsWhereAnotherColourOrPenBegins) {
    const auto definition = preview_test::NewSymbol(L"POINT");
    preview_test::AddPath(*definition, L"M 0,0 L 1,0", L"ffff0000");
    preview_test::AddPath(*definition, L"M 0,1 L 1,1", L"ffff0000");
    preview_test::AddPath(*definition, L"M 0,2 L 1,2", L"ff0000ff");
    preview_test::AddPath(*definition, L"M 0,3 L 1,3", L"ff0000ff").SetLineWeight(L"0.5");
    preview_test::AddPath(*definition, L"M 0,4 L 1,4", L"ffff0000");
    preview_test::SetPointUsage(*definition);
    const preview::ResolvedSymbol symbol = Resolved(*definition);
    const MarkerParts marker = MarkerPartsOf(symbol, 1.0);
    std::vector<std::size_t> sizes;
    std::vector<double> pens;
    for (const styles::Run& run : marker.runs) {
        sizes.push_back(run.items.size());
        pens.push_back(run.ink.pen);
    }
    EXPECT_EQ(sizes, (std::vector<std::size_t>{2, 1, 1, 1}));
    EXPECT_EQ(pens, (std::vector<double>{0.3, 0.3, 0.5, 0.3}));
    EXPECT_EQ(marker.runs[1].ink.color, (preview::Color{255, 0, 0, 255}));
}

TEST(MarkerParts, AFillAndALineOfAnotherColourAreTwoRuns) {
    for (const bool alike : {false, true}) {
        const auto definition = preview_test::NewSymbol(L"POINT");
        preview_test::AddPath(*definition, L"M 0,0 L 1,0 L 1,1 L 0,0", L"ffff0000")
            .SetFillColor(alike ? L"ffff0000" : L"ff00ff00");
        preview_test::SetPointUsage(*definition);
        const preview::ResolvedSymbol symbol = Resolved(*definition);
        const MarkerParts marker = MarkerPartsOf(symbol, 1.0);
        if (alike) {
            ASSERT_EQ(marker.runs.size(), 1U);
            EXPECT_EQ(marker.runs[0].items.at(0).paint, Paint::kBoth);
        } else {
            ASSERT_EQ(marker.runs.size(), 2U);
            EXPECT_EQ(marker.runs[0].items.at(0).paint, Paint::kFill);
            EXPECT_EQ(marker.runs[1].items.at(0).paint, Paint::kStroke);
        }
    }
}

TEST(MarkerParts, TheSquareHoldsWhatIsFarthestFromTheInsertionPoint) {
    const auto definition = preview_test::NewSymbol(L"POINT");
    preview_test::AddPath(*definition, L"M 1,1 L 2,-7").SetLineWeight(L"0.5");
    preview_test::SetPointUsage(*definition);
    // Seven units, larger or smaller, and a tenth or a pen.
    EXPECT_DOUBLE_EQ(MarkerPartsOf(Resolved(*definition), 2.0).reach, 15.4);
    EXPECT_DOUBLE_EQ(MarkerPartsOf(Resolved(*definition), 0.5).reach, 4.0);
}

TEST(MarkerParts, LinesOfTextsAndAnglesOfTextsThatFollowAParameterAreLost) {
    const struct {
        const wchar_t* underlined;
        const wchar_t* overlined;
        const wchar_t* angle;
        Losses losses;
    } kCases[] = {
        {L"false", L"false", L"15", {}},
        {L"true", L"false", L"0", {Loss::kUnderlining}},
        {L"false", L"true", L"0", {Loss::kUnderlining}},
        {L"false", L"false", L"%TILT%", {Loss::kTurningText}},
        {L"true", L"true", L"%TILT%+30", {Loss::kUnderlining, Loss::kTurningText}},
    };
    for (const auto& test : kCases) {
        const auto definition = preview_test::NewSymbol(L"POINT");
        preview_test::AddParameter(*definition, L"TILT", L"Tilt", L"15", TylModel::Parameter::kAngle);
        TylModel::Text& text = preview_test::AddText(*definition, L"'A'");
        text.SetUnderlined(test.underlined);
        text.SetOverlined(test.overlined);
        text.SetAngle(test.angle);
        preview_test::SetPointUsage(*definition);
        EXPECT_EQ(MarkerPartsOf(Resolved(*definition), 1.0).losses, test.losses) << test.angle;
    }
}

TEST(SquareSvg, HasTheAnchorInItsMiddleAndColourAndPenAsParameters) {
    const auto definition = preview_test::NewSymbol(L"POINT");
    preview_test::AddPath(*definition, L"M 0,0 L 1,2 M 1,1 L 1,1");
    const preview::ResolvedSymbol symbol = Resolved(*definition);
    const Item item{&symbol.members.at(0).parts.at(0), Paint::kStroke};
    // A square of 10 units is 1000 wide: a unit is 100, and y points down.
    const char* const pen = " stroke=\"param(fill)\" stroke-opacity=\"param(fill-opacity)\""
                            " stroke-width=\"param(outline-width)\"";
    EXPECT_EQ(
        DrawSquare({item}, {1, 0}, 5, 1, symbol).text,
        std::string("<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" width=\"1000\" height=\"1000\""
                    " viewBox=\"0 0 1000 1000\"><path d=\"M400,500L500,300\" fill=\"none\"") +
            pen +
            " stroke-linecap=\"butt\" stroke-linejoin=\"bevel\"/><path d=\"M500,400h0.01\" fill=\"none\"" +
            pen + " stroke-linecap=\"round\" stroke-linejoin=\"round\"/></svg>");
}

TEST(SquareSvg, TextsOfParametersBecomeParameters) {
    const auto definition = preview_test::NewSymbol(L"POINT");
    preview_test::AddParameter(*definition, L"STOP", L"Stop", L"'0<1'", TylModel::Parameter::kText);
    preview_test::AddText(*definition, L"%STOP%");
    preview_test::AddText(*definition, L"'fixed & plain'");
    const preview::ResolvedSymbol symbol = Resolved(*definition);
    const SquareSvg svg = DrawSquare({{&symbol.members.at(0).parts.at(0), Paint::kText},
                                      {&symbol.members.at(0).parts.at(1), Paint::kText}},
                                     {}, 5, 1, symbol);
    EXPECT_NE(svg.text.find(">param(text)</text>"), std::string::npos);
    EXPECT_NE(svg.text.find(">fixed &amp; plain</text>"), std::string::npos);
    ASSERT_EQ(svg.attributes.size(), 1U);
    EXPECT_EQ(svg.attributes[0].name, "text");
    EXPECT_EQ(svg.attributes[0].attribute, L"STOP");
    EXPECT_EQ(svg.attributes[0].standard, L"0<1");
}

} // namespace
