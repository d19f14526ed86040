// A small table of texts, each at the first free place from the one that its length and two of its letters
// give.
#include "TylModel/CommonTexts.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace TylModel {
namespace {

// Of lines, of hatch patterns, of blocks, and of texts.
constexpr std::array<std::wstring_view, 32> kTexts{
    L"LINECOLOR",
    L"%LINECOLOR%",
    L"Line &Color",
    L"Line Color",
    L"ff000000",
    L"LINEWEIGHT",
    L"%LINEWEIGHT%",
    L"Line &Thickness",
    L"Line Thickness",
    L"false",
    L"'FromAngle'",

    L"HATCHCOLOR",
    L"%HATCHCOLOR%",
    L"0xff000000",
    L"&Hatch Color",
    L"Color for the hatch style",
    L"HATCHANGLE",
    L"%HATCHANGLE%",
    L"Hatch &Color",
    L"Rotation angle for the hatch style",

    L"ROTATION",
    L"%ROTATION%",
    L"&Rotation",
    L"Rotation",

    L"TEXTCOLOR",
    L"%TEXTCOLOR%",
    L"&Text Color",
    L"Text Color",
    L"'Left'",
    L"'Baseline'",

    L"0.0",
    L"true",
};

class Table {
public:
    Table() {
        for (const std::wstring_view text : kTexts) {
            std::size_t place = FirstPlace(text);
            while (!texts_[place].empty()) {
                place = Next(place);
            }
            texts_[place] = text;
        }
    }

    const std::wstring* Find(std::wstring_view text) const {
        for (std::size_t place = FirstPlace(text); !texts_[place].empty(); place = Next(place)) {
            if (texts_[place] == text) {
                return &texts_[place];
            }
        }
        return nullptr;
    }

private:
    static constexpr std::size_t kPlaces = 128; // most of them empty, so that other texts are soon refused

    static std::size_t FirstPlace(std::wstring_view text) {
        const auto middle = static_cast<std::size_t>(text[text.size() / 2]);
        return (3 * text.size() + static_cast<std::size_t>(text.front()) + 2 * middle) % kPlaces;
    }
    static std::size_t Next(std::size_t place) { return (place + 1) % kPlaces; }

    std::array<std::wstring, kPlaces> texts_;
};

const Table kTable;
const std::wstring kNoText;

} // namespace

const std::wstring* FindCommonText(const std::wstring& text) {
    return text.empty() ? &kNoText : kTable.Find(text);
}

const std::wstring& NoText() {
    return kNoText;
}

} // namespace TylModel
