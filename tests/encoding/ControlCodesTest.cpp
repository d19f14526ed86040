// The "%%" codes in texts.
#include "StyleConversion/encoding/ControlCodes.h"

#include <gtest/gtest.h>
#include <ostream>
#include <string>

namespace encodingtest {
namespace {

using encoding::DecodeControlCodes;

struct CodeCase {
    const wchar_t* text;
    std::wstring characters;
};

void PrintTo(const CodeCase& row, std::ostream* out) {
    *out << testing::PrintToString(std::wstring(row.text));
}

class ControlCodes : public testing::TestWithParam<CodeCase> {};

TEST_P(ControlCodes, GiveCharacters) {
    EXPECT_EQ(DecodeControlCodes(GetParam().text).characters, GetParam().characters);
}

INSTANTIATE_TEST_SUITE_P(Signs, ControlCodes,
                         testing::Values(CodeCase{L"%%c%%C", L"\u2205\u2205"},
                                         CodeCase{L"45%%d%%D", L"45\u00B0\u00B0"},
                                         CodeCase{L"%%p%%P1", L"\u00B1\u00B11"},
                                         CodeCase{L"a%%ob%%Oc", L"abc"}, CodeCase{L"%%ua%%U", L"a"}));

INSTANTIATE_TEST_SUITE_P(Codes, ControlCodes,
                         testing::Values(CodeCase{L"%%065", L"A"}, CodeCase{L"%%65", L"A"},
                                         CodeCase{L"%%65x", L"Ax"}, CodeCase{L"%%0651", L"A1"},
                                         CodeCase{L"%%9", L"\t"}, CodeCase{L"%%256", L"\u0100"},
                                         CodeCase{L"%%999", L"\u03E7"},
                                         CodeCase{L"%%000", std::wstring(1, L'\0')},
                                         CodeCase{L"%%65%%66", L"AB"}));

INSTANTIATE_TEST_SUITE_P(PercentSigns, ControlCodes,
                         testing::Values(CodeCase{L"", L""}, CodeCase{L"%", L"%"}, CodeCase{L"50%", L"50%"},
                                         CodeCase{L"5%6", L"5%6"}, CodeCase{L"%%", L""},
                                         CodeCase{L"a%%", L"a"},
                                         // A third sign is what the code stands for; a fourth is a single
                                         // one, and two more are dropped at the end.
                                         CodeCase{L"%%%", L"%"}, CodeCase{L"%%%%", L"%%"},
                                         CodeCase{L"%%%%%", L"%"}, CodeCase{L"%%%65", L"%65"},
                                         CodeCase{L"%%x", L"x"}, CodeCase{L"%% ", L" "},
                                         CodeCase{L"%d", L"%d"}));

struct LineCase {
    const wchar_t* text;
    bool overlined;
    bool underlined;
};

void PrintTo(const LineCase& row, std::ostream* out) {
    *out << testing::PrintToString(std::wstring(row.text));
}

class OverAndUnderline : public testing::TestWithParam<LineCase> {};

TEST_P(OverAndUnderline, HoldWhenEveryCharacterHasThem) {
    EXPECT_EQ(DecodeControlCodes(GetParam().text).overlined, GetParam().overlined);
    EXPECT_EQ(DecodeControlCodes(GetParam().text).underlined, GetParam().underlined);
}

INSTANTIATE_TEST_SUITE_P(Texts, OverAndUnderline,
                         testing::Values(LineCase{L"abc", false, false}, LineCase{L"%%uabc%%u", false, true},
                                         LineCase{L"%%oabc", true, false}, LineCase{L"%%o%%uabc", true, true},
                                         LineCase{L"%%ua%%ub", false, false},
                                         LineCase{L"a%%ubc", false, false},
                                         LineCase{L"%%oa%%ub", true, false},
                                         LineCase{L"%%oa%%o%%ob", true, false},
                                         // Of no character, everything holds.
                                         LineCase{L"", true, true}, LineCase{L"%%u%%u%%", true, true},
                                         LineCase{L"%%u%%065%%d", false, true}));

} // namespace
} // namespace encodingtest
