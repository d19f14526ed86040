// A value of a symbol that its user may override.
#pragma once

#include "TylModel/CommonTexts.h"
#include "TylModel/RootObject.h"

#include <cstdint>
#include <string>

namespace TylModel {

/// Expressions refer to a parameter by its identifier between two "%".
class TYLMODEL_API Parameter : public TylRootObject {
public:
    /// What kind of value the parameter is, and so which control edits it.
    enum DataType : std::int32_t {
        kText = 0,
        kAngle = 5,
        kFillColor = 6,
        kLineColor = 7,
        kLineWeight = 8,
        kTextColor = 23,
    };

    ~Parameter() override;

    /// What expressions name between two "%". Unique within a symbol.
    void SetIdentifier(const std::wstring& identifier) { identifier_.Set(identifier); }
    const std::wstring& GetIdentifier() const { return identifier_.Get(); }
    /// The label of the parameter's control; "&" stands before the letter of its keyboard shortcut.
    void SetDisplayName(const std::wstring& name) { displayName_.Set(name); }
    const std::wstring& GetDisplayName() const { return displayName_.Get(); }
    /// What the parameter changes.
    void SetDescription(const std::wstring& description) { description_.Set(description); }
    const std::wstring& GetDescription() const { return description_.Get(); }
    /// The value, as an expression, where the user of the symbol gives none.
    void SetDefaultValue(const std::wstring& value) { defaultValue_.Set(value); }
    const std::wstring& GetDefaultValue() const { return defaultValue_.Get(); }
    /// How the value is meant and edited.
    void SetDataType(DataType type) { dataType_ = type; }
    DataType GetDataType() const { return dataType_; }

private:
    PropertyText identifier_;
    PropertyText displayName_;
    PropertyText description_;
    PropertyText defaultValue_;
    DataType dataType_ = kText;
};

} // namespace TylModel
