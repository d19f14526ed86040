// The parts that line symbols are put together from.
#include "StyleConversion/linetype/LineSymbolParts.h"

#include "StyleConversion/encoding/PathCommands.h"

#include <utility>

namespace LineConverter {
namespace {

using TylModel::Parameter;
using TylModel::SimpleSymbolDefinition;

// What the parameters stand for, in the numbers of the symbol model.
constexpr int kLineColorType = 7;
constexpr int kLineWeightType = 8;
constexpr int kTextColorType = 23;

// The strings of a parameter, made once: every linetype has two of them.
struct ParameterStrings {
    std::wstring identifier;
    std::wstring displayName;
    std::wstring description;
    std::wstring defaultValue;
};

void AddParameter(SimpleSymbolDefinition& definition, const ParameterStrings& strings, int type) {
    auto parameter = std::make_unique<Parameter>();
    parameter->SetIdentifier(strings.identifier);
    parameter->SetDisplayName(strings.displayName);
    parameter->SetDescription(strings.description);
    parameter->SetDefaultValue(strings.defaultValue);
    parameter->SetDataType(static_cast<Parameter::DataType>(type));
    host::Adopt(definition.GetParameterDefinition(), std::move(parameter));
}

} // namespace

void AddLineColorParameter(SimpleSymbolDefinition& definition) {
    static const ParameterStrings strings{L"LINECOLOR", L"Line &Color", L"Line Color", L"ff000000"};
    AddParameter(definition, strings, kLineColorType);
}

void AddLineWeightParameter(SimpleSymbolDefinition& definition) {
    static const ParameterStrings strings{L"LINEWEIGHT", L"Line &Thickness", L"Line Thickness", L"0.0"};
    AddParameter(definition, strings, kLineWeightType);
}

void AddTextColorParameter(SimpleSymbolDefinition& definition) {
    static const ParameterStrings strings{L"TEXTCOLOR", L"&Text Color", L"Text Color", L"ff000000"};
    AddParameter(definition, strings, kTextColorType);
}

void AddLinePath(SimpleSymbolDefinition& definition, const std::wstring& geometry) {
    static const std::wstring lineColor = L"%LINECOLOR%";
    static const std::wstring lineWeight = L"%LINEWEIGHT%";
    static const std::wstring no = L"false";
    auto path = std::make_unique<TylModel::Path>();
    path->SetGeometry(geometry);
    path->SetLineColor(lineColor);
    path->SetLineWeight(lineWeight);
    path->SetLineWeightScalable(no);
    host::Adopt(definition.GetGraphics(), std::move(path));
}

SimpleSymbolDefinition& AddMember(TylModel::CompoundSymbolDefinition& compound, const std::wstring& name) {
    auto member = std::make_unique<TylModel::SimpleSymbol>();
    auto definition = std::make_unique<SimpleSymbolDefinition>();
    definition->SetName(name);
    SimpleSymbolDefinition& adopted = *definition;
    member->AdoptSymbolDefinition(definition.release());
    host::Adopt(compound.GetSymbols(), std::move(member));
    return adopted;
}

TylModel::LineUsage& AddLineUsage(SimpleSymbolDefinition& definition) {
    definition.AdoptLineUsage(std::make_unique<TylModel::LineUsage>().release());
    return host::Referred(definition.GetLineUsage());
}

void FixAngle(TylModel::LineUsage& usage, double angle, double startOffset) {
    usage.SetAngle(encoding::FormatNumber(angle));
    usage.SetAngleControl(std::wstring(L"'FromAngle'"));
    usage.SetStartOffset(encoding::FormatNumber(startOffset));
}

} // namespace LineConverter
