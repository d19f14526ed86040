// The texts that most symbols have alike.
#pragma once

#include "TylModel/Export.h"

#include <memory>
#include <string>
#include <utility>

namespace TylModel {

/// The one copy that is kept, for as long as the process runs, of a text that most symbols have; null for any
/// other text. What it finds decides only how much memory a property takes.
TYLMODEL_API const std::wstring* FindCommonText(const std::wstring& text);

/// The empty text.
TYLMODEL_API const std::wstring& NoText();

/// The text of a property: without memory of its own where it is empty or one that most symbols have.
class PropertyText {
public:
    /// Keeps a copy, or the common one.
    void Set(const std::wstring& text) {
        if (!SetCommon(text)) {
            own_ = std::make_unique<const std::wstring>(text);
        }
    }
    /// The same without a copy.
    void Set(std::wstring&& text) {
        if (!SetCommon(text)) {
            own_ = std::make_unique<const std::wstring>(std::move(text));
        }
    }
    const std::wstring& Get() const {
        return common_ != nullptr ? *common_ : own_ != nullptr ? *own_ : NoText();
    }

private:
    bool SetCommon(const std::wstring& text) {
        common_ = FindCommonText(text);
        return common_ != nullptr;
    }

    std::unique_ptr<const std::wstring> own_;
    const std::wstring* common_ = nullptr;
};

} // namespace TylModel
