// The parts that line symbols are put together from.
#include "StyleConversion/linetype/LineSymbolParts.h"

#include "StyleConversion/encoding/PathCommands.h"

#include <utility>

namespace LineConverter {
namespace {

using TylModel::Parameter;
using TylModel::SimpleSymbolDefinition;

// The strings of a parameter, made once: every linetype has two of them.
struct ParameterStrings {
    std::wstring identifier;
    std::wstring displayName;
    std::wstring description;
    std::wstring defaultValue;
};

void AddParameter(SimpleSymbolDefinition& definition, const ParameterStrings& strings,
                  Parameter::DataType type) {
    auto parameter = std::make_unique<Parameter>();
    parameter->SetIdentifier(strings.identifier);
    parameter->SetDisplayName(strings.displayName);
    parameter->SetDescription(strings.description);
    parameter->SetDefaultValue(strings.defaultValue);
    parameter->SetDataType(type);
    definition.GetParameterDefinition().Adopt(parameter.release());
}

} // namespace

void AddLineColorParameter(SimpleSymbolDefinition& definition) {
    static const ParameterStrings strings{L"LINECOLOR", L"Line &Color", L"Line Color", L"ff000000"};
    AddParameter(definition, strings, Parameter::kLineColor);
}

void AddLineWeightParameter(SimpleSymbolDefinition& definition) {
    static const ParameterStrings strings{L"LINEWEIGHT", L"Line &Thickness", L"Line Thickness", L"0.0"};
    AddParameter(definition, strings, Parameter::kLineWeight);
}

void AddTextColorParameter(SimpleSymbolDefinition& definition) {
    static const ParameterStrings strings{L"TEXTCOLOR", L"&Text Color", L"Text Color", L"ff000000"};
    AddParameter(definition, strings, Parameter::kTextColor);
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
    definition.GetGraphics().Adopt(path.release());
}

SimpleSymbolDefinition& AddMember(TylModel::CompoundSymbolDefinition& compound, const std::wstring& name) {
    auto member = std::make_unique<TylModel::SimpleSymbol>();
    auto definition = std::make_unique<SimpleSymbolDefinition>();
    definition->SetName(name);
    SimpleSymbolDefinition& adopted = *definition;
    member->AdoptSymbolDefinition(definition.release());
    compound.GetSymbols().Adopt(member.release());
    return adopted;
}

TylModel::LineUsage& AddLineUsage(SimpleSymbolDefinition& definition) {
    definition.AdoptLineUsage(std::make_unique<TylModel::LineUsage>().release());
    return *definition.GetLineUsage();
}

void FixAngle(TylModel::LineUsage& usage, double angle, double startOffset) {
    usage.SetAngle(NumberText(angle));
    usage.SetAngleControl(L"'FromAngle'");
    usage.SetStartOffset(NumberText(startOffset));
}

std::wstring NumberText(double value) {
    return encoding::FormatNumber(value);
}

} // namespace LineConverter
