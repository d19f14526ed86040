#include "tests/preview/SampleSymbols.h"

#include "StyleConversion/encoding/TrimmedNumber.h"

#include <cmath>
#include <numbers>
#include <utility>

namespace preview_test {

using TylModel::Parameter;
using TylModel::SimpleSymbolDefinition;

using Members = std::vector<std::unique_ptr<SimpleSymbolDefinition>>;

TylModel::Path& AddPath(SimpleSymbolDefinition& definition, const std::wstring& geometry,
                        const std::wstring& lineColor) {
    auto path = std::make_unique<TylModel::Path>();
    path->SetGeometry(geometry);
    path->SetLineColor(lineColor);
    TylModel::Path& result = *path;
    definition.GetGraphics().Adopt(path.release());
    return result;
}

TylModel::Text& AddText(SimpleSymbolDefinition& definition, const std::wstring& content) {
    auto text = std::make_unique<TylModel::Text>();
    text->SetContent(content);
    text->SetFontName(L"DejaVu Sans");
    text->SetHeight(L"1");
    text->SetPositionX(L"0");
    text->SetPositionY(L"0");
    text->SetHorizontalAlignment(L"'Left'");
    text->SetVerticalAlignment(L"'Baseline'");
    text->SetTextColor(L"ff000000");
    TylModel::Text& result = *text;
    definition.GetGraphics().Adopt(text.release());
    return result;
}

void AddParameter(SimpleSymbolDefinition& definition, const std::wstring& identifier,
                  const std::wstring& displayName, const std::wstring& defaultValue,
                  Parameter::DataType type) {
    auto parameter = std::make_unique<Parameter>();
    parameter->SetIdentifier(identifier);
    parameter->SetDisplayName(displayName);
    parameter->SetDescription(L"About " + displayName);
    parameter->SetDefaultValue(defaultValue);
    parameter->SetDataType(type);
    definition.GetParameterDefinition().Adopt(parameter.release());
}

void AddLineParameters(SimpleSymbolDefinition& definition) {
    AddParameter(definition, L"LINECOLOR", L"Line &Color", L"ff000000", Parameter::kLineColor);
    AddParameter(definition, L"LINEWEIGHT", L"Line &Thickness", L"0.0", Parameter::kLineWeight);
}

void SetLineUsage(SimpleSymbolDefinition& definition, const std::wstring& repeat) {
    auto usage = std::make_unique<TylModel::LineUsage>();
    usage->SetRepeat(repeat);
    definition.AdoptLineUsage(usage.release());
}

void SetAreaUsage(SimpleSymbolDefinition& definition, const std::wstring& angle, const std::wstring& repeatX,
                  const std::wstring& repeatY) {
    auto usage = std::make_unique<TylModel::AreaUsage>();
    usage->SetAngle(angle);
    usage->SetRepeatX(repeatX);
    usage->SetRepeatY(repeatY);
    definition.AdoptAreaUsage(usage.release());
    AddParameter(definition, L"HATCHCOLOR", L"&Hatch Color", L"0xff000000", Parameter::kFillColor);
    AddParameter(definition, L"HATCHANGLE", L"Hatch &Color", L"0.0", Parameter::kAngle);
}

void SetPointUsage(SimpleSymbolDefinition& definition) {
    AddParameter(definition, L"ROTATION", L"Rotation", L"0.0", Parameter::kAngle);
    auto usage = std::make_unique<TylModel::PointUsage>();
    usage->SetAngle(L"%ROTATION%");
    definition.AdoptPointUsage(usage.release());
}

std::unique_ptr<SimpleSymbolDefinition> NewSymbol(const std::wstring& name) {
    auto symbol = std::make_unique<SimpleSymbolDefinition>();
    symbol->SetName(name);
    return symbol;
}

SymbolPointer Compound(const std::wstring& name, Members members) {
    auto compound = std::make_unique<TylModel::CompoundSymbolDefinition>();
    compound->SetName(name);
    for (auto& definition : members) {
        auto member = std::make_unique<TylModel::SimpleSymbol>();
        member->AdoptSymbolDefinition(definition.release());
        compound->GetSymbols().Adopt(member.release());
    }
    return compound;
}

SymbolPointer PointSymbol(const std::wstring& name, const std::wstring& geometry) {
    auto symbol = NewSymbol(name);
    AddPath(*symbol, geometry);
    SetPointUsage(*symbol);
    return symbol;
}

namespace {

std::unique_ptr<SimpleSymbolDefinition> Dashes(const std::wstring& name, const std::wstring& geometry,
                                               const std::wstring& repeat) {
    auto symbol = NewSymbol(name);
    AddPath(*symbol, geometry, L"%LINECOLOR%").SetLineWeight(L"%LINEWEIGHT%");
    AddLineParameters(*symbol);
    SetLineUsage(*symbol, repeat);
    return symbol;
}

SymbolPointer GasLine() {
    auto symbol = Dashes(L"GAS", L"M 0,0 L 0.5,0 M 0.95,0 L 0.95,0 ", L"0.95");
    TylModel::Text& text = AddText(*symbol, L"'GAS'");
    text.SetHeight(L"0.1");
    text.SetPositionX(L"0.56");
    text.SetPositionY(L"-0.05");
    text.SetTextColor(L"%TEXTCOLOR%");
    AddParameter(*symbol, L"TEXTCOLOR", L"&Text Color", L"ff000000", Parameter::kTextColor);
    symbol->SetDescription(L"Gas line ----GAS----GAS----");
    return symbol;
}

SymbolPointer FenceWithUprightMark() {
    Members members;
    members.push_back(Dashes(L"FENCE", L"M 0,0 A 0.1,0.1 0 0 1 0.2,0 M 0.2,0 A 0.1,0.1 0 0 1 0,0 ", L"1"));
    members.push_back(Dashes(L"FENCE", L"M -0.1,0 l 0.2,0.2 M 0,0 l 0.1,-0.1 ", L"1"));
    TylModel::LineUsage& upright = *members.back()->GetLineUsage();
    upright.SetAngle(L"0");
    upright.SetAngleControl(L"'FromAngle'");
    upright.SetStartOffset(L"0.6");
    members.push_back(Dashes(L"FENCE", L"M 0.2,0 L 1,0 ", L"1"));
    return Compound(L"FENCE", std::move(members));
}

SymbolPointer Bricks() {
    Members members;
    members.push_back(NewSymbol(L"BRICKS"));
    AddPath(*members.back(), L"M 0.0,0.0 h 10.0", L"%HATCHCOLOR%");
    SetAreaUsage(*members.back(), L"%HATCHANGLE%", L"10.0", L"1.0");
    members.push_back(NewSymbol(L"BRICKS"));
    AddPath(*members.back(), L"M 0.0,0.0 h 1.0 M 1.0,1.0 h 1.0", L"%HATCHCOLOR%");
    SetAreaUsage(*members.back(), L"%HATCHANGLE%+90.0", L"2.0", L"2.0");
    return Compound(L"BRICKS", std::move(members));
}

SymbolPointer Tree() {
    auto symbol = NewSymbol(L"TREE");
    AddPath(*symbol, L"M 5.0,0.0 A 5.0,5.0 0.0 0 1 -5.0,0.0 A 5.0,5.0 0.0 0 1 5.0,0.0",
            L"%COLORBYLAYERTrees & Co%")
        .SetLineWeight(L"0.5");
    TylModel::Path& trunk = AddPath(*symbol, L"M -1.0,-1.0 L 1.0,-1.0 L 1.0,1.0 L -1.0,1.0", L"");
    trunk.SetFillColor(L"ff804020");
    TylModel::Text& text = AddText(*symbol, L"%KIND%");
    text.SetPositionY(L"2.0");
    text.SetHorizontalAlignment(L"");
    AddParameter(*symbol, L"COLORBYLAYERTrees & Co", L"Color Defined ByLayer Trees & Co", L"ff20a040",
                 Parameter::kLineColor);
    AddParameter(*symbol, L"KIND", L"Kind?", L"'Oak'", Parameter::kText);
    SetPointUsage(*symbol);
    return symbol;
}

} // namespace

std::vector<SymbolPointer> TypicalSymbols() {
    std::vector<SymbolPointer> symbols;
    symbols.push_back(Dashes(L"DASHDOT", L"M 0,0 L 0.5,0 M 0.75,0 L 0.75,0 ", L"1"));
    symbols.push_back(GasLine());
    symbols.push_back(FenceWithUprightMark());
    symbols.push_back(Bricks());
    symbols.push_back(Tree());
    return symbols;
}

namespace {

SymbolPointer AreaSymbol(const std::wstring& name, const std::wstring& geometry, const std::wstring& angle,
                         const std::wstring& repeatX, const std::wstring& repeatY) {
    auto symbol = NewSymbol(name);
    AddPath(*symbol, geometry, L"%HATCHCOLOR%");
    SetAreaUsage(*symbol, angle, repeatX, repeatY);
    return symbol;
}

// Twelve dashes of 15 degrees on a circle of radius 50, as a dashed circle of a drawing is written.
SymbolPointer DashedCircle() {
    const double kDegree = std::numbers::pi / 180;
    std::wstring geometry = L"M 50.0,0.0";
    const auto append = [&](double degrees) {
        geometry += encoding::Double2TrimmedString(50 * std::cos(degrees * kDegree));
        geometry += L",";
        geometry += encoding::Double2TrimmedString(50 * std::sin(degrees * kDegree));
    };
    for (int i = 0; i < 12; ++i) {
        geometry += L" A 50.0,50.0 0.0 0 0 ";
        append(30 * i + 15);
        geometry += L" M ";
        append(30 * i + 30);
    }
    return PointSymbol(L"dashed-circle", geometry);
}

// Ticks across a line: red ones at each unit that turn with it, and blue ones at 0.5, 2.5, ... that stay
// upright.
SymbolPointer Ticks() {
    const auto tick = [](const wchar_t* color, const wchar_t* repeat) {
        auto member = NewSymbol(L"ticks");
        AddPath(*member, L"M 0,-0.1 L 0,0.1 ", color).SetLineWeight(L"0.02");
        SetLineUsage(*member, repeat);
        return member;
    };
    Members members;
    members.push_back(tick(L"ffff0000", L"1"));
    members.push_back(tick(L"ff0000ff", L"2"));
    TylModel::LineUsage& upright = *members.back()->GetLineUsage();
    upright.SetAngle(L"0");
    upright.SetAngleControl(L"'FromAngle'");
    upright.SetStartOffset(L"0.5");
    return Compound(L"ticks", std::move(members));
}

// Three rows of dashes in a tile of 4 by 3, one of them far above the tile.
SymbolPointer Rows(const std::wstring& length) {
    auto symbol = NewSymbol(L"rows-" + length);
    AddPath(*symbol, L"M 0.0,0.0 h " + length + L" M 0.5,1.0 h " + length + L" M 1.0,8.0 h " + length,
            L"%HATCHCOLOR%");
    SetAreaUsage(*symbol, L"%HATCHANGLE%", L"4.0", L"3.0");
    return symbol;
}

SymbolPointer SquareWithAHole() {
    auto symbol = NewSymbol(L"square-with-a-hole");
    AddPath(*symbol,
            L"M -50.0,-50.0 h 100.0 v 100.0 h -100.0M -20.0,-20.0 L 20.0,-20.0 L 20.0,20.0 L -20.0,20.0", L"")
        .SetFillColor(L"ff0000ff");
    SetPointUsage(*symbol);
    return symbol;
}

// Four texts round a cross, each anchored at the middle.
SymbolPointer Texts() {
    auto symbol = NewSymbol(L"texts");
    AddPath(*symbol, L"M -50.0,-50.0 L -50.0,-50.0 M 50.0,50.0 L 50.0,50.0", L"ff00ff00");
    TylModel::Text& left = AddText(*symbol, L"'HHHH'");
    left.SetHeight(L"10");
    left.SetTextColor(L"ffff0000");
    TylModel::Text& right = AddText(*symbol, L"'HHHH'");
    right.SetHeight(L"10");
    right.SetHorizontalAlignment(L"'Right'");
    right.SetVerticalAlignment(L"'Top'");
    right.SetTextColor(L"ff0000ff");
    TylModel::Text& turned = AddText(*symbol, L"'HHHH'");
    turned.SetHeight(L"10");
    turned.SetAngle(L"90");
    turned.SetTextColor(L"ff000000");
    SetPointUsage(*symbol);
    return symbol;
}

SymbolPointer Weighted(const std::wstring& name, const std::wstring& geometry,
                       const std::wstring& weight = L"2.54") {
    auto symbol = NewSymbol(name);
    TylModel::Path& path = AddPath(*symbol, geometry);
    path.SetLineWeight(weight);
    path.SetLineWeightScalable(L"false");
    SetPointUsage(*symbol);
    return symbol;
}

} // namespace

std::vector<SymbolPointer> MeasuredSymbols() {
    std::vector<SymbolPointer> symbols;
    symbols.push_back(PointSymbol(L"half-circle-clockwise", L"M -50.0,0.0 A 50.0,50.0 0.0 0 1 50.0,0.0"));
    symbols.push_back(PointSymbol(L"half-circle-counterclockwise", L"M -50,0 A 50,50 0 0 0 50,0 "));
    symbols.push_back(PointSymbol(L"large-bulge", L"M 0.0,0.0 A 62.5,62.5 0.0 1 1 100.0,0.0"));
    symbols.push_back(PointSymbol(L"large-bulge-counterclockwise", L"M 0,0 A 62.5,62.5 0 1 0 100,0 "));
    symbols.push_back(PointSymbol(L"tilted-ellipse", L"M 43.30127,25.0 A 50.0,10.0 30.0 1 1 -43.30127,-25.0 "
                                                     L"A 50.0,10.0 30.0 1 1 43.30127,25.0"));
    symbols.push_back(DashedCircle());
    symbols.push_back(SquareWithAHole());
    symbols.push_back(Texts());
    symbols.push_back(Weighted(L"weight-small", L"M 0,0 h 20"));
    symbols.push_back(Weighted(L"weight-large", L"M 0,0 h 20000"));
    symbols.push_back(Weighted(L"weight-of-a-sign", L"M 0,0 h 1000", L"20"));
    auto white = NewSymbol(L"white");
    AddPath(*white, L"M -50,0 h 100", L"ffffffff");
    SetPointUsage(*white);
    symbols.push_back(std::move(white));
    symbols.push_back(AreaSymbol(L"joined-lines", L"M 0.0,0.0 h 1.0", L"%HATCHANGLE%+45.0", L"1.0", L"1.0"));
    symbols.push_back(AreaSymbol(L"over-the-edge", L"M 3.0,0.5 h 2.0", L"%HATCHANGLE%", L"4.0", L"1.0"));
    symbols.push_back(AreaSymbol(L"slanted", L"M 0.0,0.0 L 5.0,3.0", L"%HATCHANGLE%", L"1.0", L"1.0"));
    for (const wchar_t* length : {L"0.5", L"3.5", L"4.0", L"9.5"}) {
        symbols.push_back(Rows(length));
    }
    symbols.push_back(Ticks());
    return symbols;
}

std::vector<SymbolPointer> HostileSymbols() {
    std::vector<SymbolPointer> symbols;
    const std::wstring dash = L"M 0,0 L 0.5,0 ";
    for (const wchar_t* repeat : {L"1e-9", L"1e300", L"nan", L"-1", L"0", L"1e999", L"%X%", L"5e-324"}) {
        symbols.push_back(Dashes(L"repeat " + std::wstring(repeat), dash, repeat));
        auto area = NewSymbol(L"tile " + std::wstring(repeat));
        AddPath(*area, L"M 0.0,0.0 h 1.0", L"%HATCHCOLOR%");
        SetAreaUsage(*area, L"%HATCHANGLE%+45.0", repeat, L"1.0");
        symbols.push_back(std::move(area));
    }
    for (const wchar_t* geometry :
         {L"", L"M", L"L 1,1", L"M nan,0 L 1,1", L"M 1e308,0 L -1e308,0", L"M 0,0 A 1e-300,1 0 0 1 1,1",
          L"M 0,0 A 1e300,1e300 0 1 1 1e-300,0", L"M 1,1", L"M 3.09e20,0 L 3.1e20,1"}) {
        symbols.push_back(PointSymbol(L"path " + std::wstring(geometry), geometry));
    }
    auto markup = NewSymbol(L"</script><script>document.title='broken'</script>");
    markup->SetDescription(L"\"><img src=x onerror=\"document.title='broken'\">&amp;\x01\xfffe");
    AddText(*markup, L"'<b>&amp; it's '' ]]> \x02'").SetFontName(L"'; } * { fill: red } \" < &");
    AddParameter(*markup, L"<i>%\"'", L"<script>document.title='broken'</script>", L"'</script>'",
                 Parameter::kText);
    SetPointUsage(*markup);
    symbols.push_back(std::move(markup));
    return symbols;
}

} // namespace preview_test
