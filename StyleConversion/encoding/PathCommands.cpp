// The "%.15g" commands, each put together as one piece.
#include "StyleConversion/encoding/PathCommands.h"

#include "StyleConversion/encoding/PathPiece.h"

namespace encoding {
namespace {

void AppendPair(std::wstring& path, std::wstring_view letter, double x, double y) {
    PathPiece().Words(letter).General(x).Words(L",").General(y).Words(L" ").AppendTo(path);
}

} // namespace

void AppendMove(std::wstring& path, double x, double y) {
    AppendPair(path, L"M ", x, y);
}

void AppendLine(std::wstring& path, double x, double y) {
    AppendPair(path, L"L ", x, y);
}

void AppendRelativeLine(std::wstring& path, double dx, double dy) {
    AppendPair(path, L"l ", dx, dy);
}

void AppendArc(std::wstring& path, double radius, bool largeArc, bool sweep, double x, double y) {
    PathPiece()
        .Words(L"A ")
        .General(radius)
        .Words(L",")
        .General(radius)
        .Words(largeArc ? L" 0 1 " : L" 0 0 ")
        .Words(sweep ? L"1 " : L"0 ")
        .General(x)
        .Words(L",")
        .General(y)
        .Words(L" ")
        .AppendTo(path);
}

std::wstring FormatNumber(double value) {
    std::wstring text;
    PathPiece().General(value).AppendTo(text);
    return text;
}

} // namespace encoding
