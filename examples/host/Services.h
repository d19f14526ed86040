// What this application answers when linetype conversion asks for shape files and text styles.
#pragma once

#include <StyleConversion/linetype/Services.h>

#include <filesystem>
#include <utility>

/// Opens shape files of one folder.
class ShapeFolder : public LineConverter::IGetFile {
public:
    explicit ShapeFolder(std::filesystem::path folder) : folder_(std::move(folder)) {}
    std::FILE* GetFile(const wchar_t* name, const wchar_t* extension) override;

private:
    std::filesystem::path folder_;
};

/// Sets every text in one typeface.
class OneTypeface : public LineConverter::IGetFontInfo {
public:
    bool GetFontInfoFromStyle(const wchar_t* styleName, LineConverter::FontInfo& info) override;
};
