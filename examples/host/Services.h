// What this application answers when a conversion asks for shape files and text styles.
#pragma once

#include <OxDb/OxDbHostApplicationServices.h>
#include <StyleConversion/linetype/Services.h>

#include <cstdio>
#include <filesystem>
#include <map>
#include <string>
#include <utility>

/// The files of one folder, whatever the case of their names.
class ShapeFolder {
public:
    explicit ShapeFolder(std::filesystem::path folder) : folder_(std::move(folder)) {}
    /// The path of the file of that name, or of that name and the extension; empty when there is none.
    std::filesystem::path Find(const std::wstring& name, const std::wstring& extension) const;

private:
    std::filesystem::path folder_;
};

/// Opens shape files for linetypes.
class ShapeOpener : public LineConverter::IGetFile {
public:
    explicit ShapeOpener(const ShapeFolder& folder) : folder_(folder) {}
    std::FILE* GetFile(const wchar_t* name, const wchar_t* extension) override;

private:
    const ShapeFolder& folder_;
};

/// Sets every text in one typeface.
class OneTypeface : public LineConverter::IGetFontInfo {
public:
    bool GetFontInfoFromStyle(const wchar_t* styleName, LineConverter::FontInfo& info) override;
};

/// Finds shape files for blocks. Each name is looked for once, and a file that is no shape file is not found.
class FileSearch : public OxDbHostApplicationServices {
public:
    explicit FileSearch(const ShapeFolder& folder) : folder_(folder) {}
    Oxsys::ErrorStatus findFile(wchar_t* path, int pathLength, const wchar_t* fileName,
                                OxDbDatabase* database, FindFileHint hint) override;
    /// How many files were opened to look at them.
    int FilesLookedAt() const { return filesLookedAt_; }

private:
    std::wstring LookFor(const std::wstring& name);

    const ShapeFolder& folder_;
    std::map<std::wstring, std::wstring> paths_; // by name; empty: no such shape file
    int filesLookedAt_ = 0;
};
