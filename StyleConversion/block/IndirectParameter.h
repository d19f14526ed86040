// Parameters that stand for what a layer or an insert would decide.
#pragma once

#include "StyleConversion/block/BlockSymbol.h"

#include <string>
#include <string_view>

namespace block {

/// The fixed parts of a parameter that is named after a layer or a block.
struct IndirectParameter {
    std::wstring_view identifier;
    std::wstring_view displayName;
    TylModel::Parameter::DataType dataType;
};

/// "%identifierNAME%".
inline std::wstring Reference(const IndirectParameter& kind, std::wstring_view name) {
    std::wstring reference;
    reference.reserve(kind.identifier.size() + name.size() + 2);
    reference += L'%';
    reference += kind.identifier;
    reference += name;
    reference += L'%';
    return reference;
}

/// The same. Adds the parameter to the symbol where it has none of that identifier; one that it has keeps the
/// default that it was given first. `defaultValue` is called for a new one only.
template <class DefaultValue>
std::wstring ReferToParameter(BlockSymbol& symbol, const IndirectParameter& kind, std::wstring_view name,
                              DefaultValue defaultValue) {
    std::wstring reference = Reference(kind, name);
    const std::wstring_view identifier = std::wstring_view(reference).substr(1, reference.size() - 2);
    if (!symbol.HasParameter(identifier)) {
        const std::wstring displayName = std::wstring(kind.displayName).append(name);
        auto parameter = std::make_unique<TylModel::Parameter>();
        parameter->SetIdentifier(std::wstring(identifier));
        parameter->SetDisplayName(displayName);
        parameter->SetDescription(displayName);
        parameter->SetDefaultValue(defaultValue());
        parameter->SetDataType(kind.dataType);
        symbol.Adopt(std::move(parameter));
    }
    return reference;
}

} // namespace block
