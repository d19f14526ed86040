// The exported class: names, conversion by name and of all, what is cached and who owns what.
#include "StyleConversion/pattern/PatternConverter.h"

#include "PatternTestSupport.h"

#include "StyleConversion/platform/CodePage.h"
#include "StyleConversion/platform/Files.h"
#include "tests/support/LineEnds.h"

#include <filesystem>
#include <string>
#include <type_traits>
#include <vector>

namespace {

class Converter : public PatternTest {};

constexpr std::string_view kTwoPatterns = "*B,second\n0,0,0,0,2\n*A,first\n0,0,0,0,1\n";

std::vector<std::wstring> Names(PatternConverter& converter) {
    std::vector<std::wstring> names = {L"from before"};
    converter.GetPatternNames(names);
    return names;
}

std::string ConvertOne(PatternConverter& converter, const std::wstring& name) {
    const Symbol symbol(converter.Convert(name));
    return symbol ? Describe(*symbol) : "null";
}

const std::string kSymbolA = "simple A\narea %HATCHANGLE% 10.0 1.0\npath M 0.0,0.0 h 10.0\n";
const std::string kSymbolB = "simple B\narea %HATCHANGLE% 10.0 2.0\npath M 0.0,0.0 h 10.0\n";

TEST_F(Converter, HasNoVirtualOperations) {
    EXPECT_FALSE(std::is_polymorphic_v<PatternConverter>);
}

TEST_F(Converter, NamesPatternsInTheOrderOfTheirNames) {
    const TemporaryFile file(kTwoPatterns);
    PatternConverter converter(file.GetName());
    EXPECT_EQ(Names(converter), (std::vector<std::wstring>{L"A", L"B"}));
}

TEST_F(Converter, NamesPatternsThatConvertToNothing) {
    const TemporaryFile file("*EMPTY,no families\n*DRIFT,no tile\n0,0,0,0.01,1,1,-1\n");
    PatternConverter converter(file.GetName());
    EXPECT_EQ(Names(converter), (std::vector<std::wstring>{L"DRIFT", L"EMPTY"}));
    EXPECT_EQ(ConvertOne(converter, L"EMPTY"), "null");
    EXPECT_EQ(ConvertOne(converter, L"DRIFT"), "null");
    EXPECT_EQ(ConvertAll(converter), std::vector<std::string>{});
}

TEST_F(Converter, ConvertsOnePatternByName) {
    const TemporaryFile file(kTwoPatterns);
    PatternConverter converter(file.GetName());
    EXPECT_EQ(ConvertOne(converter, L"B"), kSymbolB);
    EXPECT_EQ(ConvertOne(converter, L"A"), kSymbolA);
}

TEST_F(Converter, TellsUpperFromLowerCase) {
    const TemporaryFile file(kTwoPatterns);
    PatternConverter converter(file.GetName());
    EXPECT_EQ(ConvertOne(converter, L"a"), "null");
}

TEST_F(Converter, GivesNullForAnUnknownName) {
    const TemporaryFile file(kTwoPatterns);
    PatternConverter converter(file.GetName());
    EXPECT_EQ(ConvertOne(converter, L"C"), "null");
    EXPECT_EQ(ConvertOne(converter, L""), "null");
    EXPECT_EQ(ConvertOne(converter, std::wstring(100000, L'A')), "null");
}

TEST_F(Converter, TakesANameUpToItsTerminator) {
    const TemporaryFile file(kTwoPatterns);
    PatternConverter converter(file.GetName());
    EXPECT_EQ(ConvertOne(converter, std::wstring(L"A\0B", 3)), kSymbolA);
}

TEST_F(Converter, ConvertsAllPatternsInTheOrderOfTheirNames) {
    const TemporaryFile file(std::string(kTwoPatterns) + "*AA,no tile\n0,0,0,0.01,1,1,-1\n");
    PatternConverter converter(file.GetName());
    EXPECT_EQ(ConvertAll(converter), (std::vector<std::string>{kSymbolA, kSymbolB}));
}

TEST_F(Converter, DropsThePointersThatAVectorHeldWithoutDeletingThem) {
    const TemporaryFile file(kTwoPatterns);
    PatternConverter converter(file.GetName());
    std::vector<TylModel::SymbolDefinition*> symbols;
    converter.ConvertAll(symbols);
    const std::vector<Symbol> first(symbols.begin(), symbols.end());
    converter.ConvertAll(symbols);
    const std::vector<Symbol> second(symbols.begin(), symbols.end());
    ASSERT_EQ(first.size(), 2U);
    ASSERT_EQ(second.size(), 2U);
    // The first ones are alive and others.
    EXPECT_EQ(Describe(*first[0]), kSymbolA);
    EXPECT_NE(first[0].get(), second[0].get());
}

TEST_F(Converter, EmptiesAVectorEvenWhereThereIsNothingToConvert) {
    TylModel::SimpleSymbolDefinition kept;
    std::vector<TylModel::SymbolDefinition*> symbols = {&kept};
    PatternConverter converter(TemporaryFile().GetName());
    converter.ConvertAll(symbols);
    EXPECT_TRUE(symbols.empty());
    EXPECT_EQ(Names(converter), std::vector<std::wstring>{});
    EXPECT_EQ(ConvertOne(converter, L"A"), "null");
}

TEST_F(Converter, ReadsItsFileInBinaryUpToTheEndOfTheText) {
    const TemporaryFile file("*A,a\r\n1,0,0,0,1\r\n\x1a*B,b\r\n");
    PatternConverter converter(file.GetName());
    EXPECT_EQ(Names(converter), (std::vector<std::wstring>{L"A"}));
}

TEST_F(Converter, ReadsAFileOfMoreThanOneBlockWhole) {
    std::string text = "*A,a\n";
    while (text.size() < 200000) {
        text += "1,0,0,0,1\n";
    }
    const TemporaryFile file(text + "*B,b\n");
    PatternConverter converter(file.GetName());
    EXPECT_EQ(Names(converter), (std::vector<std::wstring>{L"A", L"B"}));
}

TEST_F(Converter, FindsNoPatternsInADirectory) {
    PatternConverter converter(platform::PathFromBytes(std::filesystem::temp_directory_path().string()));
    EXPECT_EQ(Names(converter), std::vector<std::wstring>{});
}

TEST_F(Converter, DoesNotTouchTheFileBeforeItIsAsked) {
    const TemporaryFile file;
    PatternConverter converter(file.GetName());
    file.Write(kTwoPatterns);
    EXPECT_EQ(ConvertOne(converter, L"A"), kSymbolA);
}

TEST_F(Converter, KeepsWhatItReadWhenTheFileChanges) {
    const TemporaryFile file(kTwoPatterns);
    PatternConverter converter(file.GetName());
    EXPECT_EQ(Names(converter), (std::vector<std::wstring>{L"A", L"B"}));
    file.Write("*C,third\n0,0,0,0,3\n");
    EXPECT_EQ(Names(converter), (std::vector<std::wstring>{L"A", L"B"}));
    EXPECT_EQ(ConvertOne(converter, L"C"), "null");
    EXPECT_EQ(ConvertOne(converter, L"A"), kSymbolA);
    EXPECT_EQ(ConvertAll(converter), (std::vector<std::string>{kSymbolA, kSymbolB}));
}

TEST_F(Converter, ReadsAgainAsLongAsItFindsNoPattern) {
    const TemporaryFile file("; nothing yet\n0,0,0,0,1\n");
    PatternConverter converter(file.GetName());
    EXPECT_EQ(Names(converter), std::vector<std::wstring>{});
    file.Write(kTwoPatterns);
    EXPECT_EQ(ConvertOne(converter, L"B"), kSymbolB);
    file.Write("");
    EXPECT_EQ(ConvertAll(converter), (std::vector<std::string>{kSymbolA, kSymbolB}));
}

TEST_F(Converter, ReadsADirectoryAsNoPatterns) {
    PatternConverter converter(std::filesystem::temp_directory_path().wstring());
    EXPECT_EQ(Names(converter), std::vector<std::wstring>{});
}

TEST_F(Converter, LeavesItsSymbolsBehind) {
    const TemporaryFile file(kTwoPatterns);
    Symbol symbol;
    {
        PatternConverter converter(file.GetName());
        symbol.reset(converter.Convert(L"A"));
    }
    EXPECT_EQ(Describe(*symbol), kSymbolA);
}

TEST_F(Converter, TurnsOriginsAgainWithEachConversion) {
    const TemporaryFile file("*A,upright\n90,3,0,0,1\n");
    PatternConverter converter(file.GetName());
    const std::string head = "simple A\narea %HATCHANGLE%+90.0 10.0 1.0\npath ";
    EXPECT_EQ(ConvertOne(converter, L"A"), head + "M 0.0,-3.0 h 10.0\n");
    EXPECT_EQ(ConvertAll(converter), std::vector<std::string>{head + "M -3.0,-0.0 h 10.0\n"});
    PatternConverter fresh(file.GetName());
    EXPECT_EQ(ConvertOne(fresh, L"A"), head + "M 0.0,-3.0 h 10.0\n");
}

TEST_F(Converter, ConvertsTheNamelessPattern) {
    const TemporaryFile file("*,nameless\n0,0,0,0,1\n");
    PatternConverter converter(file.GetName());
    EXPECT_EQ(Names(converter), std::vector<std::wstring>{L""});
    EXPECT_EQ(ConvertOne(converter, L""), "simple \narea %HATCHANGLE% 10.0 1.0\npath M 0.0,0.0 h 10.0\n");
}

TEST_F(Converter, WidensNamesThroughTheCodePage) {
    // An umlaut in UTF-8, in a page of one byte a character, and a byte that is no UTF-8.
    const TemporaryFile utf8("*H\xc3\xb6lzer,\n0,0,0,0,1\n");
    const TemporaryFile latin("*H\xf6lzer,\n0,0,0,0,1\n");
    ASSERT_TRUE(platform::SetAnsiCodePage("UTF-8"));
    PatternConverter utf8Converter(utf8.GetName());
    EXPECT_EQ(Names(utf8Converter), std::vector<std::wstring>{L"H\u00f6lzer"});
    EXPECT_NE(ConvertOne(utf8Converter, L"H\u00f6lzer"), "null");

    PatternConverter brokenConverter(latin.GetName());
    const std::vector<std::wstring> broken = Names(brokenConverter);
    ASSERT_EQ(broken.size(), 1U);
    EXPECT_NE(ConvertOne(brokenConverter, broken.front()), "null");

    ASSERT_TRUE(platform::SetAnsiCodePage("WINDOWS-1252"));
    PatternConverter latinConverter(latin.GetName());
    EXPECT_EQ(Names(latinConverter), std::vector<std::wstring>{L"H\u00f6lzer"});
    const Symbol symbol(latinConverter.Convert(L"H\u00f6lzer"));
    ASSERT_TRUE(platform::SetAnsiCodePage("UTF-8"));
    ASSERT_NE(symbol, nullptr);
    EXPECT_EQ(Read(*symbol).name, L"H\u00f6lzer");
}

TEST_F(Converter, GivesTheSameForLineEndsOfEitherKind) {
    // Remarks, blank lines, both kinds of header, a line of the greatest length, and a last line without an
    // end.
    const std::string text = "; a remark\n"
                             "\n"
                             "*B,second\n"
                             "0,0,0,0,1,20,-5\n"
                             "90,0,0,0,1" +
                             std::string(117, ' ') +
                             "\n"
                             "\n"
                             "; another remark\n"
                             "*A\n"
                             "0,0,0,0,2";
    // The cycle of 20 and 5 is 25 wide; a family without dashes is drawn over 10.
    const std::vector<std::string> symbols = {
        "simple A\narea %HATCHANGLE% 10.0 2.0\npath M 0.0,0.0 h 10.0\n",
        "compound B\narea %HATCHANGLE% 25.0 1.0\npath M 0.0,0.0 h 20.0\n"
        "area %HATCHANGLE%+90.0 10.0 1.0\npath M 0.0,0.0 h 10.0\n"};
    for (const std::string& ends : {text, support::WithCarriageReturns(text)}) {
        const TemporaryFile file(ends);
        PatternConverter converter(file.GetName());
        EXPECT_EQ(Names(converter), (std::vector<std::wstring>{L"A", L"B"}));
        EXPECT_EQ(ConvertAll(converter), symbols);
        EXPECT_EQ(ConvertOne(converter, L"A"), symbols.front());
    }
}

// It ends no line: here it is part of the name.
TEST_F(Converter, TakesACarriageReturnAloneForACharacter) {
    const TemporaryFile file("*A\r0,0\n0,0,0,0,1\r\r\n");
    PatternConverter converter(file.GetName());
    EXPECT_EQ(Names(converter), std::vector<std::wstring>{L"A\r0"});
    EXPECT_EQ(ConvertOne(converter, L"A\r0"),
              "simple A\r0\narea %HATCHANGLE% 10.0 1.0\npath M 0.0,0.0 h 10.0\n");
}

TEST_F(Converter, HandsOutTheLongestNameThatALineHolds) {
    const std::string name(126, 'N');
    const TemporaryFile file("*" + name + "\n0,0,0,0,1\n");
    PatternConverter converter(file.GetName());
    EXPECT_EQ(Names(converter), std::vector<std::wstring>{std::wstring(126, L'N')});
    EXPECT_NE(ConvertOne(converter, std::wstring(126, L'N')), "null");
}

} // namespace
