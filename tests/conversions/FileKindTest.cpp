// Kinds of files: told by name and by contents, and what is said of a file of another kind.
#include "conversions/Linetypes.h"
#include "conversions/Patterns.h"
#include "conversions/checking/Check.h"
#include "tests/conversions/FilesInMemory.h"

#include <gtest/gtest.h>

namespace conversions_test {
namespace {

using conversions::FileKind;
using conversions::KindByContents;
using conversions::KindByName;

TEST(FileKinds, AreToldByTheEndOfTheNameInAnyCase) {
    EXPECT_EQ(KindByName("a.lin"), FileKind::kLinetypes);
    EXPECT_EQ(KindByName("lines/A.PAT"), FileKind::kPatterns);
    EXPECT_EQ(KindByName("a.b.ShX"), FileKind::kShapes);
    EXPECT_EQ(KindByName("a.json"), FileKind::kDrawing);
    EXPECT_EQ(KindByName("lin"), FileKind::kUnknown);
    EXPECT_EQ(KindByName(""), FileKind::kUnknown);
}

TEST(FileKinds, AreToldByWhatFollowsTheFirstHeader) {
    EXPECT_EQ(KindByContents("; a\n*X,x\n; b\nA,.5,-.25\n"), FileKind::kLinetypes);
    EXPECT_EQ(KindByContents("*X,x\r\n  45, 0,0, 0,.125\r\n"), FileKind::kPatterns);
    EXPECT_EQ(KindByContents("\xef\xbb\xbf*X\n0,0,0,0,1,1,-1\n"), FileKind::kPatterns);
    EXPECT_EQ(KindByContents("Vorlanx-86 shapes 1.0\r\n\x1a"), FileKind::kShapes);
    EXPECT_EQ(KindByContents(" {\"format\": \"styleconversion/drawing\"}"), FileKind::kDrawing);
}

TEST(FileKinds, AreUnknownWhereThatIsNotClear) {
    for (const char* const bytes : {"", "A,1\n", "0,0,0,0,1\n", "*X\n", "*X\n0,0,0,0\n", "{}", "*X\nB,1\n"}) {
        EXPECT_EQ(KindByContents(bytes), FileKind::kUnknown) << bytes;
    }
}

TEST(FileKinds, AFileOfAnotherKindIsSaidToBeThatAndNothingElse) {
    conversions::Front front;
    const std::string text = "*X\n;" + std::string(127, '-') + "\nA,1,[\"G\",STANDARD]\n";
    const conversions::Conversion result = ConvertPatterns(Named("rtw.lin", text), {}, front);
    EXPECT_FALSE(result.isConverted);
    EXPECT_EQ(Messages(result.diagnostics),
              "rtw.lin: error: this is a linetype file, not a pattern file; use "
              "\"styleconv linetypes\" [wrong-file-kind]\n");
    EXPECT_EQ(Messages(ConvertLinetypes(Named("a", "*X\n0,0,0,0,1\n"), {}, front).diagnostics),
              "a: error: this is a pattern file, not a linetype file; use \"styleconv patterns\" "
              "[wrong-file-kind]\n");
}

TEST(FileKinds, AFileThatIsConvertedAllTheSameIsWarnedOf) {
    conversions::Front front;
    // The pattern's line reads as a family: 0 for the letter, and four numbers.
    const conversions::Conversion result = ConvertPatterns(Named("rtw.lin", "*X\nA,1,-2,3,4\n"), {}, front);
    EXPECT_TRUE(result.isConverted);
    EXPECT_EQ(Messages(result.diagnostics), "rtw.lin: warning: this is a linetype file, not a pattern file; "
                                            "use \"styleconv linetypes\" [wrong-file-kind]\n");
}

TEST(FileKinds, ACheckNamesTheEndThatTheNameShouldHave) {
    conversions::Front front;
    EXPECT_EQ(Messages(Check(FileKind::kPatterns, Named("a.pat", "*X\nA,x\n"), {}, front)),
              "a.pat: error: this is a linetype file, not a pattern file; its name should end in .lin "
              "[wrong-file-kind]\n");
}

TEST(FileKinds, FilesThatAreNoneOfTheseAreSaidToBeWhatTheyAre) {
    conversions::Front front;
    const std::string littleEndian("\xff\xfe*\0X\0\n\0", 8);
    const std::string bigEndian("\xfe\xff\0*\0X\0\n", 8);
    for (const std::string& text : {littleEndian, bigEndian}) {
        EXPECT_EQ(Messages(ConvertPatterns(Named("a.pat", text), {}, front).diagnostics),
                  "a.pat: error: the file is UTF-16; save it as UTF-8 [other-encoding]\n");
    }
    EXPECT_EQ(Messages(ConvertLinetypes(Named("a.lin", "PK\x03\x04*X\nA,1\n"), {}, front).diagnostics),
              "a.lin: error: the file is a ZIP archive; unpack it, and give what is in it [zip-archive]\n");
}

} // namespace
} // namespace conversions_test
