// Usage, parameters and path as the symbol model has them.
#include "StyleConversion/pattern/AreaDefinition.h"

#include "StyleConversion/interfaces/HostNames.h"

#include <utility>

namespace pattern {
namespace {

using TylModel::SimpleSymbolDefinition;

// What the parameters stand for, in the numbers of the symbol model.
constexpr int kAngleType = 5;
constexpr int kFillColorType = 6;

const std::wstring kHatchColor = L"HATCHCOLOR";
const std::wstring kHatchColorReference = L"%HATCHCOLOR%";
const std::wstring kHatchColorDefault = L"0xff000000";
const std::wstring kHatchColorDisplayName = L"&Hatch Color";
const std::wstring kHatchColorDescription = L"Color for the hatch style";
const std::wstring kHatchAngle = L"HATCHANGLE";
const std::wstring kHatchAngleReference = L"%HATCHANGLE%";
const std::wstring kHatchAngleDefault = L"0.0";
// The angle's display name speaks of a colour: hosts know it by this text.
const std::wstring kHatchAngleDisplayName = L"Hatch &Color";
const std::wstring kHatchAngleDescription = L"Rotation angle for the hatch style";

void AdoptParameter(SimpleSymbolDefinition& definition, const std::wstring& identifier,
                    const std::wstring& defaultValue, const std::wstring& displayName,
                    const std::wstring& description, int type) {
    auto parameter = std::make_unique<TylModel::Parameter>();
    parameter->SetIdentifier(identifier);
    parameter->SetDefaultValue(defaultValue);
    parameter->SetDisplayName(displayName);
    parameter->SetDescription(description);
    parameter->SetDataType(static_cast<TylModel::Parameter::DataType>(type));
    host::Adopt(definition.GetParameterDefinition(), std::move(parameter));
}

void AdoptUsage(SimpleSymbolDefinition& definition, const UsageTexts& texts) {
    auto usage = std::make_unique<TylModel::AreaUsage>();
    std::wstring angle = kHatchAngleReference;
    if (!texts.angle.empty()) {
        angle += L'+' + texts.angle;
    }
    usage->SetAngle(angle);
    usage->SetRepeatX(texts.repeatX);
    usage->SetRepeatY(texts.repeatY);
    definition.AdoptAreaUsage(usage.release());
}

std::unique_ptr<TylModel::SymbolDefinition> MakeCompound(const std::wstring& name, Definitions& definitions) {
    auto compound = std::make_unique<TylModel::CompoundSymbolDefinition>();
    compound->SetName(name);
    for (std::unique_ptr<SimpleSymbolDefinition>& definition : definitions) {
        auto symbol = std::make_unique<TylModel::SimpleSymbol>();
        symbol->AdoptSymbolDefinition(definition.release());
        host::Adopt(compound->GetSymbols(), std::move(symbol));
    }
    return compound;
}

} // namespace

std::unique_ptr<SimpleSymbolDefinition> MakeDefinition(const std::wstring& name, const UsageTexts& usage) {
    auto definition = std::make_unique<SimpleSymbolDefinition>();
    definition->SetName(name);
    AdoptUsage(*definition, usage);
    AdoptParameter(*definition, kHatchColor, kHatchColorDefault, kHatchColorDisplayName,
                   kHatchColorDescription, kFillColorType);
    AdoptParameter(*definition, kHatchAngle, kHatchAngleDefault, kHatchAngleDisplayName,
                   kHatchAngleDescription, kAngleType);
    return definition;
}

void AdoptPath(SimpleSymbolDefinition& definition, const std::wstring& geometry) {
    auto path = std::make_unique<TylModel::Path>();
    path->SetGeometry(geometry);
    path->SetLineColor(kHatchColorReference);
    host::Adopt(definition.GetGraphics(), std::move(path));
}

std::unique_ptr<TylModel::SymbolDefinition> Joined(const std::wstring& name, Definitions& definitions) {
    if (definitions.empty()) {
        return nullptr;
    }
    if (definitions.size() == 1) {
        return std::move(definitions.front());
    }
    return MakeCompound(name, definitions);
}

} // namespace pattern
