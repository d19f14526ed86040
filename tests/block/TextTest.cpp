// Texts of one line, attribute definitions and paragraph texts.
#include "tests/block/BlockTest.h"

#include <limits>
#include <numbers>

namespace blocktest {
namespace {

using drawing::Operation;
using Texts = std::vector<std::wstring>;

using std::numbers::pi;

class TextEntities : public BlockTest {
protected:
    TextEntities() {
        drawing::TextStyleData plain;
        plain.typeface = L"Arial";
        database.AddTextStyle(L"STANDARD", plain);
        drawing::TextStyleData heavy;
        heavy.typeface = L"Times New Roman";
        heavy.bold = true;
        heavy.italic = true;
        database.AddTextStyle(L"HEAVY", heavy);
        drawing::TextStyleData shapes;
        shapes.fileName = L"txt.shx";
        database.AddTextStyle(L"SHX", shapes);
    }

    static drawing::TextData Data(const std::wstring& text) {
        drawing::TextData data;
        data.position = {1, 2, 3};
        data.height = 2.5;
        data.text = text;
        return data;
    }

    void Add(const drawing::TextData& data) { block.Add<drawing::Text>(Drawn(L"0", Rgb(1, 2, 3)), data); }

    void Add(const drawing::ParagraphTextData& data) {
        block.Add<drawing::ParagraphText>(Drawn(L"0", Rgb(1, 2, 3)), data);
    }
};

TEST_F(TextEntities, TextOfOneLine) {
    Add(Data(L"Tree"));
    const Symbol symbol = Convert();
    const TylModel::Text& text = TextAt(symbol, 0);
    EXPECT_EQ(text.GetContent(), L"'Tree'");
    EXPECT_EQ(text.GetFontName(), L"Arial");
    EXPECT_EQ(text.GetHeight(), L"2.5");
    EXPECT_EQ(text.GetAngle(), L"0");
    EXPECT_EQ(text.GetPositionX(), L"1.0");
    EXPECT_EQ(text.GetPositionY(), L"2.0");
    EXPECT_EQ(text.GetHorizontalAlignment(), L"'Left'");
    EXPECT_EQ(text.GetVerticalAlignment(), L"'Baseline'");
    EXPECT_EQ(text.GetTextColor(), L"ff010203");
    EXPECT_EQ(text.GetBold(), L"");
    EXPECT_EQ(text.GetItalic(), L"");
    EXPECT_EQ(text.GetUnderlined(), L"");
    EXPECT_EQ(text.GetOverlined(), L"");
    EXPECT_EQ(Identifiers(symbol), Texts{L"ROTATION"});
}

TEST_F(TextEntities, LengthsAreScaledToMillimetres) {
    database.SetInsunits(OxDb::kUnitsInches);
    Add(Data(L"Tree"));
    const Symbol symbol = Convert();
    EXPECT_EQ(TextAt(symbol, 0).GetHeight(), L"63.5");
    EXPECT_EQ(TextAt(symbol, 0).GetPositionX(), L"25.4");
    EXPECT_EQ(TextAt(symbol, 0).GetPositionY(), L"50.8");
}

TEST_F(TextEntities, AnglesAreWholeDegreesCutOffBehindHalfADegree) {
    struct Case {
        double degrees;
        std::wstring angle;
    };
    const Case cases[] = {{9.6, L"10"},  {9.4, L"9"},   {-0.4, L"0"},          {-0.6, L"0"},  {-1.4, L"0"},
                          {-1.6, L"-1"}, {90, L"90"},   {360, L"360"},         {-90, L"-89"}, {0.5, L"1"},
                          {720, L"720"}, {-2.6, L"-2"}, {1e12, L"-2147483648"}};
    for (const Case& row : cases) {
        drawing::TextData data = Data(L"x");
        data.rotation = row.degrees * pi / 180;
        Add(data);
        drawing::ParagraphTextData paragraph;
        paragraph.rotation = data.rotation;
        Add(paragraph);
    }
    drawing::TextData none = Data(L"x");
    none.rotation = std::numeric_limits<double>::quiet_NaN();
    Add(none);
    const Symbol symbol = Convert();
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        const auto index = static_cast<std::int32_t>(2 * i);
        EXPECT_EQ(TextAt(symbol, index).GetAngle(), cases[i].angle) << cases[i].degrees;
        EXPECT_EQ(TextAt(symbol, index + 1).GetAngle(), cases[i].angle) << cases[i].degrees;
    }
    EXPECT_EQ(TextAt(symbol, symbol->GetGraphics().GetCount() - 1).GetAngle(), L"-2147483648");
}

TEST_F(TextEntities, AlignmentsWithoutANameAreLeftUnset) {
    constexpr OxDb::TextHorzMode kHorizontal[] = {OxDb::kTextLeft,  OxDb::kTextCenter, OxDb::kTextRight,
                                                  OxDb::kTextAlign, OxDb::kTextMid,    OxDb::kTextFit};
    const std::wstring horizontalTexts[] = {L"'Left'", L"", L"'Right'", L"", L"", L""};
    constexpr OxDb::TextVertMode kVertical[] = {OxDb::kTextBase, OxDb::kTextBottom, OxDb::kTextVertMid,
                                                OxDb::kTextTop};
    const std::wstring verticalTexts[] = {L"'Baseline'", L"'Bottom'", L"", L"'Top'"};
    for (const OxDb::TextHorzMode horizontal : kHorizontal) {
        for (const OxDb::TextVertMode vertical : kVertical) {
            drawing::TextData data = Data(L"x");
            data.horizontalMode = horizontal;
            data.verticalMode = vertical;
            Add(data);
        }
    }
    const Symbol symbol = Convert();
    std::int32_t index = 0;
    for (const std::wstring& horizontal : horizontalTexts) {
        for (const std::wstring& vertical : verticalTexts) {
            EXPECT_EQ(TextAt(symbol, index).GetHorizontalAlignment(), horizontal) << index;
            EXPECT_EQ(TextAt(symbol, index).GetVerticalAlignment(), vertical) << index;
            ++index;
        }
    }
}

TEST_F(TextEntities, StyleGivesFontBoldAndItalic) {
    drawing::TextData data = Data(L"x");
    data.style = L"HEAVY";
    Add(data);
    const Symbol symbol = Convert();
    EXPECT_EQ(TextAt(symbol, 0).GetFontName(), L"Times New Roman");
    EXPECT_EQ(TextAt(symbol, 0).GetBold(), L"true");
    EXPECT_EQ(TextAt(symbol, 0).GetItalic(), L"true");
}

TEST_F(TextEntities, WithoutAReadableStyleTheTextIsMadeWithoutAFont) {
    for (const wchar_t* const style : {L"", L"NOWHERE", L"SHX"}) {
        drawing::TextData data = Data(L"x");
        data.style = style;
        Add(data);
    }
    const Symbol symbol = Convert();
    ASSERT_EQ(symbol->GetGraphics().GetCount(), 3);
    for (std::int32_t i = 0; i < 3; ++i) {
        EXPECT_EQ(TextAt(symbol, i).GetFontName(), L"");
        EXPECT_EQ(TextAt(symbol, i).GetHeight(), L"2.5");
    }
}

TEST_F(TextEntities, FailingStyleOrFontLeavesFontBoldAndItalicUnset) {
    drawing::TextData data = Data(L"x");
    data.style = L"HEAVY";
    Add(data);
    for (const Operation operation : {Operation::kOpenObject, Operation::kTextStyleFont}) {
        database.Failures().Clear();
        database.Failures().Fail(operation, 1, Oxsys::eInvalidInput);
        const Symbol symbol = Convert();
        EXPECT_EQ(TextAt(symbol, 0).GetFontName(), L"") << drawing::OperationName(operation);
        EXPECT_EQ(TextAt(symbol, 0).GetBold(), L"");
        EXPECT_EQ(TextAt(symbol, 0).GetItalic(), L"");
        EXPECT_EQ(TextAt(symbol, 0).GetContent(), L"'x'");
    }
}

TEST_F(TextEntities, QuotesAreNotEscaped) {
    Add(Data(L"O'Hare"));
    drawing::ParagraphTextData paragraph;
    paragraph.contents = L"{\\fArial;it's}\\P%%c";
    Add(paragraph);
    const Symbol symbol = Convert();
    EXPECT_EQ(TextAt(symbol, 0).GetContent(), L"'O'Hare'");
    EXPECT_EQ(TextAt(symbol, 1).GetContent(), L"'{\\fArial;it's}\\P%%c'");
}

TEST_F(TextEntities, AttributeDefinitionBecomesAParameterThatTheTextShows) {
    block.Add<drawing::AttributeDefinition>(Drawn(L"0", ByLayer()), Data(L"X"), L"NAME", L"Name?");
    const Symbol symbol = Convert();
    EXPECT_EQ(TextAt(symbol, 0).GetContent(), L"%NAME%");
    EXPECT_EQ(Identifiers(symbol), (Texts{L"NAME", L"COLORBYLAYER0", L"ROTATION"}));
    const TylModel::Parameter& parameter = ParameterAt(symbol, 0);
    EXPECT_EQ(parameter.GetDisplayName(), L"Name?");
    EXPECT_EQ(parameter.GetDescription(), L"Name?");
    EXPECT_EQ(parameter.GetDefaultValue(), L"'X'");
    EXPECT_EQ(static_cast<int>(parameter.GetDataType()), 0);
}

TEST_F(TextEntities, AttributesOfOneTagAreTwoParameters) {
    block.Add<drawing::AttributeDefinition>(Solid(), Data(L"X"), L"NAME", L"");
    block.Add<drawing::AttributeDefinition>(Solid(), Data(L"Y"), L"NAME", L"");
    const Symbol symbol = Convert();
    EXPECT_EQ(Identifiers(symbol), (Texts{L"NAME", L"NAME", L"ROTATION"}));
    EXPECT_EQ(ParameterAt(symbol, 1).GetDefaultValue(), L"'Y'");
}

TEST_F(TextEntities, TextColourMayBeAParameter) {
    block.Add<drawing::Text>(Drawn(L"0", ByLayer(), -1), Data(L"x"));
    const Symbol symbol = Convert();
    EXPECT_EQ(TextAt(symbol, 0).GetTextColor(), L"%COLORBYLAYER0%");
    EXPECT_EQ(Identifiers(symbol), (Texts{L"COLORBYLAYER0", L"ROTATION"}));
}

TEST_F(TextEntities, ParagraphTextIsPlacedAtTheMiddleOfItsExtent) {
    drawing::ParagraphTextData data;
    data.location = {10, 20, 3};
    data.textHeight = 2.5;
    data.contents = L"Line\\PLine";
    data.style = L"HEAVY";
    data.actualWidth = 5;
    data.actualHeight = 3;
    Add(data);
    const Symbol symbol = Convert();
    const TylModel::Text& text = TextAt(symbol, 0);
    EXPECT_EQ(text.GetContent(), L"'Line\\PLine'");
    EXPECT_EQ(text.GetHeight(), L"2.5");
    EXPECT_EQ(text.GetPositionX(), L"12.5");
    EXPECT_EQ(text.GetPositionY(), L"18.5");
    EXPECT_EQ(text.GetHorizontalAlignment(), L"");
    EXPECT_EQ(text.GetVerticalAlignment(), L"");
    EXPECT_EQ(text.GetFontName(), L"Times New Roman");
    EXPECT_EQ(text.GetBold(), L"true");
    EXPECT_EQ(text.GetTextColor(), L"ff010203");
}

} // namespace
} // namespace blocktest
