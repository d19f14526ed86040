// The text styles and shape files that the linetypes of a file find: where they are looked for, and what
// stands in.
#pragma once

#include "StyleConversion/linetype/CLineConverterDep.h"
#include "drawing/Database.h"
#include "drawing/HostServices.h"
#include "styleconv/InputFile.h"
#include "styleconv/LinetypeMessages.h"

#include <memory>
#include <string>
#include <vector>

namespace styleconv {

class Command;

struct LinetypeSourceOptions {
    std::string drawing;                   // a drawing document; empty for the one style STANDARD
    std::vector<std::string> shapeFolders; // where shape files are looked for, too
    std::string font;                      // of STANDARD without a drawing: a file or a typeface
    bool tolerant = false;                 // what the drawing lacks of STANDARD is made up for
};

/// Adds --drawing, --shapes and --font.
void AddLinetypeSourceOptions(Command& command, LinetypeSourceOptions& options);

/// False, with a message, when the options contradict each other.
bool CheckLinetypeSourceOptions(const LinetypeSourceOptions& options);

class LinetypeServices final : public LineConverter::IGetFontInfo, public LineConverter::IGetFile {
public:
    /// Both must outlive this object; the path of `input` must be provided.
    LinetypeServices(const InputFile& input, const LinetypeSourceOptions& options);

    /// False after saying why.
    bool ReadDrawing();

    bool GetFontInfoFromStyle(const wchar_t* styleName, LineConverter::FontInfo& info) override;
    std::FILE* GetFile(const wchar_t* name, const wchar_t* extension) override;

    /// Says what stood in for what was not there.
    void SayWhatStoodIn() const;

    /// "font file txt.shx not found in …; the built-in font stands in for it"; empty where it does not.
    std::string BuiltInFontText() const;

    const LinetypeSources& Sources() const { return sources_; }

private:
    void MakeDefaultDrawing();
    bool IsFontOption(const wchar_t* name) const;

    const InputFile& input_;
    const LinetypeSourceOptions& options_;
    std::wstring searchDirectory_;
    std::unique_ptr<drawing::Database> drawing_;
    drawing::HostServices host_;
    LineConverter::CLineConverterDep dependencies_;
    LinetypeSources sources_;
    bool builtInFontUsed_ = false;
    bool standardMadeUp_ = false;
};

} // namespace styleconv
