// A value of a symbol that its user may override.
#pragma once

#include "TylModel/RootObject.h"

#include <cstdint>
#include <string>

namespace TylModel {

/// Expressions refer to a parameter by its identifier between two "%".
class TYLMODEL_API Parameter : public TylRootObject {
public:
    /// What kind of value the parameter is, and so which control edits it.
    enum DataType : std::int32_t {
        kText = 0,       ///< Any text.
        kAngle = 5,      ///< Degrees.
        kFillColor = 6,  ///< The colour of a fill.
        kLineColor = 7,  ///< The colour of a line.
        kLineWeight = 8, ///< Millimetres.
        kTextColor = 23, ///< The colour of a text.
    };

    ~Parameter() override;

    /// What expressions name between two "%". Unique within a symbol.
    void SetIdentifier(const std::wstring& identifier) { identifier_ = identifier; }
    const std::wstring& GetIdentifier() const { return identifier_; }
    /// The label of the parameter's control; "&" stands before the letter of its keyboard shortcut.
    void SetDisplayName(const std::wstring& name) { displayName_ = name; }
    const std::wstring& GetDisplayName() const { return displayName_; }
    /// What the parameter changes.
    void SetDescription(const std::wstring& description) { description_ = description; }
    const std::wstring& GetDescription() const { return description_; }
    /// The value, as an expression, where the user of the symbol gives none.
    void SetDefaultValue(const std::wstring& value) { defaultValue_ = value; }
    const std::wstring& GetDefaultValue() const { return defaultValue_; }
    /// How the value is meant and edited.
    void SetDataType(DataType type) { dataType_ = type; }
    DataType GetDataType() const { return dataType_; }

private:
    std::wstring identifier_;
    std::wstring displayName_;
    std::wstring description_;
    std::wstring defaultValue_;
    DataType dataType_ = kText;
};

} // namespace TylModel
