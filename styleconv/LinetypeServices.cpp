#include "styleconv/LinetypeServices.h"

#include "StyleConversion/platform/Files.h"
#include "styleconv/BuiltInFont.h"
#include "styleconv/Command.h"
#include "styleconv/DrawingFile.h"
#include "styleconv/Messages.h"

#include <string_view>
#include <utility>

namespace styleconv {
namespace {

constexpr const wchar_t* kDefaultStyle = L"STANDARD";
constexpr const wchar_t* kDefaultFont = L"txt.shx";

bool IsSame(const wchar_t* first, const wchar_t* second) {
    return platform::CompareIgnoringCase(first, second) == 0;
}

// Nothing is beside standard input.
std::wstring FolderOf(const InputFile& input) {
    if (input.IsStandardInput()) {
        return {};
    }
    const platform::PathParts parts = platform::SplitPath(input.Path());
    return parts.drive + parts.directory;
}

std::vector<std::wstring> WidePaths(const std::vector<std::string>& folders) {
    std::vector<std::wstring> wide;
    wide.reserve(folders.size());
    for (const std::string& folder : folders) {
        wide.push_back(platform::PathFromBytes(folder));
    }
    return wide;
}

bool IsFontFile(const std::wstring& font) {
    return IsSame(platform::SplitPath(font).extension.c_str(), L".shx");
}

} // namespace

void AddLinetypeSourceOptions(Command& command, LinetypeSourceOptions& options) {
    command.AddText("--drawing", options.drawing, "DRAWING.json",
                    "Take text styles from this drawing document (default: one style STANDARD with txt.shx)");
    command.AddText(
        "--font", options.font, "FILE.shx|TYPEFACE",
        "Without --drawing, the font of the style STANDARD: an SHX file, or the name of a typeface");
    AddShapesOption(command, options.shapeFolders);
}

bool CheckLinetypeSourceOptions(const LinetypeSourceOptions& options) {
    if (!options.font.empty() && !options.drawing.empty()) {
        Say("--font",
            "goes without --drawing only: with it, text styles have the fonts that the drawing gives them");
        return false;
    }
    return true;
}

LinetypeServices::LinetypeServices(const InputFile& input, const LinetypeSourceOptions& options)
    : input_(input), options_(options), searchDirectory_(FolderOf(input)),
      host_(WidePaths(options.shapeFolders)), dependencies_(&host_, searchDirectory_.c_str()) {
    sources_.linetypeFolder = platform::PathToBytes(searchDirectory_);
    sources_.searchPath = options.shapeFolders;
    sources_.styles = options.drawing.empty() ? "in the empty drawing that is used without --drawing"
                                              : "in " + Shown(options.drawing);
}

bool LinetypeServices::ReadDrawing() {
    if (options_.drawing.empty()) {
        MakeDefaultDrawing();
    } else {
        drawing_ = ReadDrawingFile(options_.drawing, options_.tolerant);
    }
    host_.setWorkingDatabase(drawing_.get());
    return drawing_ != nullptr;
}

void LinetypeServices::MakeDefaultDrawing() {
    auto drawing = std::make_unique<drawing::Database>();
    drawing::TextStyleData style;
    const std::wstring font = platform::PathFromBytes(options_.font);
    if (font.empty()) {
        style.fileName = kDefaultFont;
    } else {
        (IsFontFile(font) ? style.fileName : style.typeface) = font;
    }
    drawing->AddTextStyle(kDefaultStyle, std::move(style));
    drawing_ = std::move(drawing);
}

bool LinetypeServices::GetFontInfoFromStyle(const wchar_t* styleName, LineConverter::FontInfo& info) {
    if (dependencies_.GetFontInfoFromStyle(styleName, info)) {
        return true;
    }
    if (!options_.tolerant || !IsSame(styleName, kDefaultStyle)) {
        return false;
    }
    standardMadeUp_ = true;
    info = {};
    info.fileName = kDefaultFont;
    info.xScale = 1.0;
    return true;
}

// The parser asks in upper case; the file of --font is opened as it was spelled.
bool LinetypeServices::IsFontOption(const wchar_t* name) const {
    return !options_.font.empty() && IsSame(name, platform::PathFromBytes(options_.font).c_str());
}

std::FILE* LinetypeServices::GetFile(const wchar_t* name, const wchar_t* extension) {
    if (IsFontOption(name)) {
        // By itself first: a path that is longer than those in files may be is found here.
        const std::wstring font = platform::PathFromBytes(options_.font);
        std::FILE* const stream = platform::OpenForReadingIgnoringCase(font.c_str());
        return stream != nullptr ? stream : dependencies_.GetFile(font.c_str(), extension);
    }
    if (std::FILE* const stream = dependencies_.GetFile(name, extension)) {
        return stream;
    }
    const bool standsIn = (options_.drawing.empty() || options_.tolerant) && IsSame(name, kDefaultFont);
    if (!standsIn) {
        return nullptr;
    }
    builtInFontUsed_ = true;
    return OpenBuiltInFont();
}

void LinetypeServices::SayWhatStoodIn() const {
    if (standardMadeUp_) {
        Say(input_.Name(),
            "note: text style STANDARD not found " + sources_.styles + "; read as one with txt.shx");
    }
    if (builtInFontUsed_) {
        Say(input_.Name(), "note: " + BuiltInFontText());
    }
}

std::string LinetypeServices::BuiltInFontText() const {
    return builtInFontUsed_ ? "font file txt.shx not found in " + FoldersSearched(kDefaultFont, sources_) +
                                  "; the built-in font stands in for it"
                            : "";
}

} // namespace styleconv
