// Linetypes of dashes as symbols.
#include "ConversionFixture.h"

namespace linetypetest {
namespace {

class SimpleSymbol : public ConversionFixture {};

TEST_F(SimpleSymbol, DashesGapsAndDotsBecomeOnePath) {
    EXPECT_EQ(ConvertPattern(".5,-.25,0,-.25"), "simple X {path M 0,0 L 0.5,0 M 0.75,0 L 0.75,0 ; "
                                                "params LINECOLOR LINEWEIGHT; line repeat=1}\n");
}

TEST_F(SimpleSymbol, LengthsAreScaled) {
    EXPECT_EQ(ConvertPattern("1,-2,3", 2.5), "simple X {path M 0,0 L 2.5,0 M 7.5,0 L 15,0 ; "
                                             "params LINECOLOR LINEWEIGHT; line repeat=15}\n");
    EXPECT_EQ(ConvertPattern("1", -2), "simple X {path M -0,0 L -2,0 ; "
                                       "params LINECOLOR LINEWEIGHT; line repeat=-2}\n");
}

TEST_F(SimpleSymbol, OnlyGapsGiveAnEmptyPathAndTheSumAsRepeat) {
    EXPECT_EQ(ConvertPattern("-1,-.5", 2), "simple X {path ; params LINECOLOR LINEWEIGHT; line repeat=3}\n");
}

TEST_F(SimpleSymbol, PositionsAreSummedBeforeTheyAreScaled) {
    // 0.1 + 0.2 is 0.30000000000000004, which has 15 digits "0.3"; × 1e15 it shows.
    EXPECT_EQ(ConvertPattern(".1,-.2", 1e15),
              "simple X {path M 0,0 L 100000000000000,0 ; params LINECOLOR LINEWEIGHT; "
              "line repeat=300000000000000}\n");
    EXPECT_EQ(
        ConvertPattern(".7,-.1,.3", 3),
        // 0.7 + 0.1 = 0.7999999999999999 (× 3: 2.3999999999999995), + 0.3 = 1.0999999999999999.
        "simple X {path M 0,0 L 2.1,0 M 2.4,0 L 3.3,0 ; params LINECOLOR LINEWEIGHT; line repeat=3.3}\n");
}

TEST_F(SimpleSymbol, NameAndDescriptionAreCarriedOver) {
    EXPECT_EQ(Convert("*Dashed,__ __\nA,1\n*caf\xC3\xA9\nA,2\n"),
              "simple Dashed (__ __) {path M 0,0 L 1,0 ; params LINECOLOR LINEWEIGHT; line repeat=1}\n"
              "simple caf\xC3\xA9 {path M 0,0 L 2,0 ; params LINECOLOR LINEWEIGHT; line repeat=2}\n");
}

TEST_F(SimpleSymbol, SymbolsComeInFileOrderAndDuplicatesStay) {
    EXPECT_EQ(Convert("*B\nA,1\n*A\nA,2\n*B\nA,3\n"),
              "simple B {path M 0,0 L 1,0 ; params LINECOLOR LINEWEIGHT; line repeat=1}\n"
              "simple A {path M 0,0 L 2,0 ; params LINECOLOR LINEWEIGHT; line repeat=2}\n"
              "simple B {path M 0,0 L 3,0 ; params LINECOLOR LINEWEIGHT; line repeat=3}\n");
}

TEST_F(SimpleSymbol, FileWithoutLinetypesGivesNoSymbols) {
    EXPECT_EQ(Convert("; nothing\n"), "");
}

TEST_F(SimpleSymbol, LinetypeWithoutANameIsCalledLineSymbol) {
    LineConverter::CLinVisitor visitor(1.0);
    LineConverter::LinetypeRecord record;
    visitor.Begin();
    visitor.BeginLinetype(record, record.description, 0);
    visitor.EndLinetype();
    visitor.End();
    const std::unique_ptr<std::vector<TylModel::SymbolDefinition*>> symbols(visitor.TakeResults());
    ASSERT_EQ(symbols->size(), 1U);
    const std::unique_ptr<TylModel::SymbolDefinition> symbol(symbols->front());
    EXPECT_EQ(Read(*symbol).name, L"LINE_SYMBOL");
}

TEST_F(SimpleSymbol, ResultsAreTakenOnceAndLeaveAnEmptyVector) {
    ASSERT_EQ(Parse("*X\nA,1\n"), LineConverter::kSuccess);
    LineConverter::CLinVisitor visitor(1.0);
    ASSERT_EQ(parser.Accept(visitor), LineConverter::kSuccess);
    const std::unique_ptr<std::vector<TylModel::SymbolDefinition*>> first(visitor.TakeResults());
    const std::unique_ptr<std::vector<TylModel::SymbolDefinition*>> second(visitor.TakeResults());
    EXPECT_EQ(first->size(), 1U);
    EXPECT_TRUE(second->empty());
    delete first->front();
}

TEST_F(SimpleSymbol, NewRunDropsWhatThePreviousOneLeft) {
    ASSERT_EQ(Parse("*X\nA,1\n"), LineConverter::kSuccess);
    LineConverter::CLinVisitor visitor(1.0);
    parser.Accept(visitor);
    parser.Accept(visitor);
    const std::unique_ptr<std::vector<TylModel::SymbolDefinition*>> symbols(visitor.TakeResults());
    EXPECT_EQ(symbols->size(), 1U);
    delete symbols->front();
}

struct ParameterTexts {
    const wchar_t* identifier;
    const wchar_t* displayName;
    const wchar_t* description;
    const wchar_t* defaultValue;
    int dataType;
};

TEST_F(SimpleSymbol, ParametersHaveTheirTextsInTheirOrder) {
    const ParameterTexts expected[] = {
        {L"LINECOLOR", L"Line &Color", L"Line Color", L"ff000000", 7},
        {L"LINEWEIGHT", L"Line &Thickness", L"Line Thickness", L"0.0", 8},
        {L"TEXTCOLOR", L"&Text Color", L"Text Color", L"ff000000", 23},
    };
    ASSERT_EQ(Parse("*X\nA,1,[\"a\",ST]\n"), LineConverter::kSuccess);
    LineConverter::CLinVisitor visitor(1.0);
    parser.Accept(visitor);
    const std::unique_ptr<std::vector<TylModel::SymbolDefinition*>> symbols(visitor.TakeResults());
    const std::unique_ptr<TylModel::SymbolDefinition> symbol(symbols->front());
    const std::vector<ReadParameter> parameters = Read(*symbol).parameters;
    ASSERT_EQ(parameters.size(), 3U);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(parameters[i].identifier, expected[i].identifier);
        EXPECT_EQ(parameters[i].displayName, expected[i].displayName);
        EXPECT_EQ(parameters[i].description, expected[i].description);
        EXPECT_EQ(parameters[i].defaultValue, expected[i].defaultValue);
        EXPECT_EQ(parameters[i].dataType, expected[i].dataType);
    }
}

} // namespace
} // namespace linetypetest
