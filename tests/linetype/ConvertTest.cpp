// The entry points: files to symbols.
#include "FakeServices.h"
#include "ShapeBytes.h"
#include "SymbolText.h"
#include "TestFile.h"

#include "StyleConversion/linetype/LinStyleVisitor.h"
#include "StyleConversion/linetype/LineConverter.h"
#include "tests/support/ReadSymbol.h"

#include "drawing/database/Database.h"
#include "drawing/database/HostServices.h"

#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace linetypetest {
namespace {

using Symbols = std::vector<TylModel::SymbolDefinition*>;

class Convert : public testing::Test {
protected:
    Convert() : objectsBefore_(CountModelObjects()) {
        drawing::TextStyleData style;
        style.fileName = L"txt.shx";
        database.AddTextStyle(L"Standard", style);
        style.typeface = L"Arial";
        style.fileName.clear();
        database.AddTextStyle(L"ST", style);
        host.setWorkingDatabase(&database);
    }
    ~Convert() override {
        EXPECT_EQ(CountModelObjects(), objectsBefore_);
        EXPECT_TRUE(database.IsEverythingClosed());
    }

    // Names of the symbols, or "null".
    static std::string Names(Symbols* symbols) {
        const std::unique_ptr<Symbols> owned(symbols);
        std::string names;
        if (!owned) {
            return "null";
        }
        for (TylModel::SymbolDefinition* const symbol : *owned) {
            names += platform::WideToAnsi(Read(*symbol).name) + ";";
            delete symbol;
        }
        return names;
    }

    std::wstring Write(std::string_view text) { return folder.Write("lines/test.lin", text); }

    TestFolder folder;
    drawing::Database database;
    drawing::HostServices host{{folder.Path("search")}};

private:
    long objectsBefore_;
};

constexpr const char* kSimple = "*X\nA,1\n*Y\nA,2\n";
constexpr const char* kComplex = "*X\nA,1,[MARK,marks.shx],[\"A\",STANDARD],[\"A\",st]\n";

TEST_F(Convert, FileWithoutNamesNeedsOnlyItsName) {
    EXPECT_EQ(Names(LineConverter::Convert(Write(kSimple).c_str(), 1.0)), "X;Y;");
}

TEST_F(Convert, FileThatNamesAShapeFileOrAStyleNeedsServices) {
    EXPECT_EQ(Names(LineConverter::Convert(Write("*X\nA,[MARK,marks.shx]\n").c_str(), 1.0)), "null");
    EXPECT_EQ(Names(LineConverter::Convert(Write("*X\nA,[\"A\",st]\n").c_str(), 1.0)), "null");
}

TEST_F(Convert, FileThatCannotBeOpenedGivesNull) {
    EXPECT_EQ(Names(LineConverter::Convert(folder.Path("none.lin").c_str(), 1.0)), "null");
    EXPECT_EQ(Names(LineConverter::Convert(folder.Path("none.lin").c_str(), &host, 1.0)), "null");
}

TEST_F(Convert, NullNameGivesNull) {
    EXPECT_EQ(Names(LineConverter::Convert(nullptr, 1.0)), "null");
    EXPECT_EQ(Names(LineConverter::Convert(nullptr, &host, 1.0)), "null");
}

TEST_F(Convert, SyntaxErrorGivesNullForTheWholeFile) {
    EXPECT_EQ(Names(LineConverter::Convert(Write("*X\nA,1\n*Y\nA,x\n").c_str(), 1.0)), "null");
}

TEST_F(Convert, FileWithoutLinetypesGivesAnEmptyVector) {
    EXPECT_EQ(Names(LineConverter::Convert(Write("; nothing\n").c_str(), 1.0)), "");
}

TEST_F(Convert, ScaleMultipliesLengths) {
    const std::unique_ptr<Symbols> symbols(LineConverter::Convert(Write("*X\nA,1,-1\n").c_str(), 25.4));
    ASSERT_EQ(symbols->size(), 1U);
    const std::unique_ptr<TylModel::SymbolDefinition> symbol(symbols->front());
    EXPECT_EQ(SymbolText::Of(*symbol),
              "simple X {path M 0,0 L 25.4,0 ; params LINECOLOR LINEWEIGHT; line repeat=50.8}");
}

TEST_F(Convert, ShapeFilesAreFoundBesideTheLinetypeFileBeforeTheHostIsAsked) {
    folder.Write("lines/marks.shx", ShapesFile({{130, "MARK", UnitStroke()}}));
    folder.Write("search/marks.shx", "this is no shape file");
    EXPECT_EQ(Names(LineConverter::Convert(Write("*X\nA,[MARK,marks.shx]\n").c_str(), &host, 1.0)), "X;");
    EXPECT_EQ(host.Failures().Calls(drawing::Operation::kFindFile), 0U);
}

TEST_F(Convert, HostFindsWhatIsNotBesideTheLinetypeFile) {
    folder.Write("search/Marks.shx", ShapesFile({{130, "MARK", UnitStroke()}}));
    folder.Write("search/txt.shx", ShapesFile({FontInformation(8, 2, 0), {65, "A", UnitStroke()}}));
    EXPECT_EQ(Names(LineConverter::Convert(Write(kComplex).c_str(), &host, 1.0)), "X;");
}

TEST_F(Convert, NullServicesKnowNoStylesButFindFilesBesideTheLinetypeFile) {
    OxDbHostApplicationServices* const nobody = nullptr;
    folder.Write("lines/marks.shx", ShapesFile({{130, "MARK", UnitStroke()}}));
    EXPECT_EQ(Names(LineConverter::Convert(Write("*X\nA,[MARK,marks]\n").c_str(), nobody, 1.0)), "X;");
    EXPECT_EQ(Names(LineConverter::Convert(Write("*X\nA,[\"A\",st]\n").c_str(), nobody, 1.0)), "null");
}

TEST_F(Convert, EveryFailingCallOfTheDrawingGivesNullAndLeavesNothingOpen) {
    folder.Write("search/marks.shx", ShapesFile({{130, "MARK", UnitStroke()}}));
    folder.Write("search/txt.shx", ShapesFile({FontInformation(8, 2, 0), {65, "A", UnitStroke()}}));
    const std::wstring file = Write(kComplex);
    host.ShareFailures(database.Failures());
    ASSERT_EQ(Names(LineConverter::Convert(file.c_str(), &host, 1.0)), "X;");
    const std::uint64_t calls = database.Failures().AllCalls();
    // Two styles: table, record, three texts, two closings each; two files.
    EXPECT_EQ(calls, 2U * 7U + 2U);
    std::size_t nulls = 0;
    for (std::uint64_t call = 1; call <= calls; ++call) {
        database.Failures().Clear();
        database.Failures().FailAnyCall(call, Oxsys::eInvalidInput);
        const std::string names = Names(LineConverter::Convert(file.c_str(), &host, 1.0));
        EXPECT_EQ(database.Failures().FailedCalls(), 1U);
        EXPECT_TRUE(database.IsEverythingClosed()) << call;
        nulls += names == "null" ? 1 : 0;
    }
    // All but the closings, which are not looked at.
    EXPECT_EQ(nulls, calls - 4U);
}

TEST_F(Convert, ShapeFileThatIsAFontGivesNull) {
    folder.Write("lines/marks.shx", ShapesFile({FontInformation(8, 2, 0), {130, "MARK", UnitStroke()}}));
    EXPECT_EQ(Names(LineConverter::Convert(Write("*X\nA,[MARK,marks.shx]\n").c_str(), &host, 1.0)), "null");
}

TEST_F(Convert, ShapeThatTheFileLacksGivesNull) {
    folder.Write("lines/marks.shx", ShapesFile({{130, "mark", UnitStroke()}}));
    EXPECT_EQ(Names(LineConverter::Convert(Write("*X\nA,1\n*Y\nA,[mark,marks.shx]\n").c_str(), &host, 1.0)),
              "null");
}

// The slot of a virtual operation in its table, where pointers to members are laid out so.
#if defined(__GXX_ABI_VERSION) && defined(__x86_64__)
template <class Member>
std::size_t SlotOf(Member member) {
    std::size_t words[2] = {};
    static_assert(sizeof member == sizeof words);
    std::memcpy(words, &member, sizeof words);
    return (words[0] - 1) / sizeof(void*);
}

TEST(Interfaces, VirtualOperationsStandInTheirSlots) {
    EXPECT_EQ(SlotOf(&LineConverter::IGetFile::GetFile), 0U);
    EXPECT_EQ(SlotOf(&LineConverter::IGetFontInfo::GetFontInfoFromStyle), 0U);
    using Visitor = LineConverter::LinStyleVisitor;
    EXPECT_EQ(SlotOf(&Visitor::Begin), 0U);
    EXPECT_EQ(SlotOf(&Visitor::End), 1U);
    EXPECT_EQ(SlotOf(&Visitor::BeginLinetype), 2U);
    EXPECT_EQ(SlotOf(&Visitor::EndLinetype), 3U);
    EXPECT_EQ(SlotOf(&Visitor::Dot), 4U);
    EXPECT_EQ(SlotOf(&Visitor::Dash), 5U);
    EXPECT_EQ(SlotOf(&Visitor::Gap), 6U);
    EXPECT_EQ(SlotOf(&Visitor::Shape), 7U);
    EXPECT_EQ(SlotOf(&Visitor::Text), 8U);
}
#endif

} // namespace
} // namespace linetypetest
