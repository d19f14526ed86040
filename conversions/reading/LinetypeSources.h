// The text styles and shape files of linetypes: where they come from, what stands in for those that are
// missing, and how messages call them.
#pragma once

#include "StyleConversion/linetype/Services.h"
#include "StyleConversion/linetype/ShapeFileSource.h"
#include "conversions/reading/Front.h"
#include "conversions/reading/Input.h"
#include "conversions/reading/StyleFonts.h"
#include "diagnostics/Diagnostic.h"
#include "drawing/database/Database.h"

#include <map>
#include <memory>
#include <optional>
#include <string>

namespace conversions {

struct LinetypeSourceOptions {
    std::optional<Input> drawing; // a drawing document with the text styles; else there is one, STANDARD
    std::string font;             // of STANDARD where there is no drawing: a .shx file or a typeface
    const StyleFonts* styleFonts = nullptr; // of more styles, or of STANDARD, where there is no drawing
    bool tolerant = false;                  // STANDARD and its font stand in with a drawing, too
};

class LinetypeSources final : public LineConverter::IGetFontInfo, public LineConverter::ShapeFileSource {
public:
    /// All must outlive this object.
    LinetypeSources(const Input& input, const LinetypeSourceOptions& options, Front& front);

    /// Reads the drawing, if there is one. False where it is refused.
    bool ReadDrawing(diagnostics::Diagnostics& diagnostics);

    bool GetFontInfoFromStyle(const wchar_t* styleName, LineConverter::FontInfo& info) override;
    bool GetShapeFile(const std::wstring& name, std::string& bytes) override;

    /// What stood in for what was not there.
    diagnostics::Diagnostics StandIns(diagnostics::Severity severity) const;

    /// What messages call the drawing; empty where there is none.
    std::string DrawingName() const;
    /// Where there is no drawing, the styles that there are: "STANDARD and GAS".
    std::string StylesWithoutDrawing() const;
    /// A name that linetypes give in upper case, as it stands in the file or in the drawing.
    std::wstring AsSpelled(const std::wstring& name) const;
    /// "in ., shapes/"
    std::string PlacesSearched(const std::wstring& name) const { return front_.PlacesSearched(name); }
    /// What messages call a shape file that was found under that name.
    std::string NameOfFound(const std::wstring& name) const;

private:
    void MakeDefaultDrawing();
    void Remember(const std::wstring& fontFile);

    const Input& input_;
    const LinetypeSourceOptions& options_;
    Front& front_;
    std::unique_ptr<drawing::Database> drawing_;
    std::map<std::wstring, std::wstring> spellings_; // of font files, by their names in upper case
    std::map<std::wstring, std::string> found_;      // names of files, by the names asked for
    bool builtInFontUsed_ = false;
    bool standardAssumed_ = false;
};

} // namespace conversions
