// A linetype file on disk, read with the host's services: what the entry points convert.
#pragma once

#include "StyleConversion/linetype/LinErrors.h"
#include "StyleConversion/linetype/LinResult.h"
#include "StyleConversion/linetype/LinStyleVisitor.h"
#include "StyleConversion/linetype/LinetypeFile.h"
#include "StyleConversion/linetype/Services.h"
#include "StyleConversion/platform/FileBytes.h"

#include <string>

namespace LineConverter {

/// Reads strictly. Not to be used again after a failure before Clear.
class LinParser {
public:
    /// Both are borrowed and may be null: then no file may name a text style, or a shape file.
    LinParser(IGetFontInfo* fontInfoProvider, IGetFile* fileProvider)
        : fontInfoProvider_(fontInfoProvider), fileProvider_(fileProvider) {}

    /// Reads all linetypes of a file and resolves what they name. The file is closed before any style or
    /// shape file is asked for; after an error in its text it stays open until Clear.
    LinResult Parse(const std::wstring& path);

    /// Closes the file if it is still open and forgets everything.
    void Clear();

    /// Shows the linetypes to `visitor`; see Walk.
    LinResult Accept(LinStyleVisitor& visitor);

    const LinetypeFile& file() const { return file_; }

    /// Why the last operations failed.
    const LinErrorLog& errorLog() const { return errors_; }

private:
    LinResult Read(const std::wstring& path);
    LinResult Error(LinResult result, LinErrorKind kind);

    IGetFontInfo* fontInfoProvider_;
    IGetFile* fileProvider_;
    platform::OwnedFile stream_;
    LinetypeFile file_;
    LinErrorLog errors_;
};

} // namespace LineConverter
