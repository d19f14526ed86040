// The texts that most symbols have alike.
#pragma once

#include "TylModel/Export.h"

#include <memory>
#include <string>
#include <utility>

namespace TylModel {

/// The one copy that is kept, for as long as the process runs, of the empty text or of one that most symbols
/// have; null for any other text. What it finds decides only how much memory a property takes.
TYLMODEL_API const std::wstring* FindCommonText(const std::wstring& text);

/// The empty text.
TYLMODEL_API const std::wstring& NoText();

/// The text of a property: without memory of its own where it is empty or one that most symbols have.
class PropertyText {
public:
    /// Keeps a copy, or the common one.
    void Set(const std::wstring& text) {
        text_ = FindCommonText(text);
        if (text_ == nullptr) {
            own_ = std::make_unique<const std::wstring>(text);
            text_ = own_.get();
        }
    }
    /// The same without a copy.
    void Set(std::wstring&& text) {
        text_ = FindCommonText(text);
        if (text_ == nullptr) {
            own_ = std::make_unique<const std::wstring>(std::move(text));
            text_ = own_.get();
        }
    }
    const std::wstring& Get() const { return text_ != nullptr ? *text_ : NoText(); }

private:
    std::unique_ptr<const std::wstring> own_;
    const std::wstring* text_ = nullptr; // the common or the own one; null: none
};

} // namespace TylModel
