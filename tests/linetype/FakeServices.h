// Text styles and shape files as a test wants them.
#pragma once

#include "StyleConversion/linetype/Services.h"
#include "tests/support/TemporaryStream.h"

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace linetypetest {

class FakeStyles : public LineConverter::IGetFontInfo {
public:
    bool GetFontInfoFromStyle(const wchar_t* styleName, LineConverter::FontInfo& info) override {
        asked.emplace_back(styleName);
        const auto found = styles.find(styleName);
        if (found == styles.end()) {
            return false;
        }
        info = found->second;
        return true;
    }

    /// Adds a style with a TrueType typeface.
    LineConverter::FontInfo& AddTrueType(const std::wstring& name, const std::wstring& typeface) {
        LineConverter::FontInfo& info = styles[name];
        info.typeface = typeface;
        return info;
    }

    /// Adds a style with an SHX font.
    LineConverter::FontInfo& AddShx(const std::wstring& name, const std::wstring& fileName) {
        LineConverter::FontInfo& info = styles[name];
        info.fileName = fileName;
        return info;
    }

    std::map<std::wstring, LineConverter::FontInfo> styles;
    std::vector<std::wstring> asked;
};

class FakeFiles : public LineConverter::IGetFile {
public:
    std::FILE* GetFile(const wchar_t* name, const wchar_t* extension) override {
        asked.push_back(std::wstring(name) + L"|" + extension);
        const auto found = files.find(name);
        if (found == files.end()) {
            return nullptr;
        }
        std::FILE* const stream = test_support::OpenTemporary();
        std::fwrite(found->second.data(), 1, found->second.size(), stream);
        std::rewind(stream);
        return stream;
    }

    std::map<std::wstring, std::string> files;
    std::vector<std::wstring> asked;
};

} // namespace linetypetest
