#include "conversions/reading/LinetypeSources.h"

#include "StyleConversion/linetype/CLineConverterDep.h"
#include "StyleConversion/linetype/LinNames.h"
#include "StyleConversion/platform/Characters.h"
#include "StyleConversion/platform/CodePage.h"
#include "StyleConversion/platform/Files.h"
#include "StyleConversion/platform/Utf8.h"
#include "conversions/reading/Drawing.h"
#include "conversions/reading/ShapeFile.h"
#include "conversions/reading/Shown.h"
#include "drawing/database/HostServices.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

namespace conversions {
namespace {

using diagnostics::Code;
using diagnostics::Diagnostic;
using diagnostics::Outcome;

constexpr const wchar_t* kDefaultStyle = L"STANDARD";
constexpr const wchar_t* kDefaultFont = L"txt.shx";

bool IsSame(const wchar_t* first, const wchar_t* second) {
    return platform::CompareIgnoringCase(first, second) == 0;
}

std::wstring InUpperCase(std::wstring name) {
    LineConverter::MakeUpperCase(name);
    return name;
}

bool IsFontFile(const std::wstring& font) {
    return IsSame(platform::SplitPath(font).extension.c_str(), L".shx");
}

drawing::TextStyleData StyleIn(const std::string& font) {
    drawing::TextStyleData style;
    const std::wstring name = platform::PathFromBytes(font);
    (IsFontFile(name) ? style.fileName : style.typeface) = name;
    return style;
}

} // namespace

LinetypeSources::LinetypeSources(const Input& input, const LinetypeSourceOptions& options, Front& front)
    : input_(input), options_(options), front_(front) {}

bool LinetypeSources::ReadDrawing(diagnostics::Diagnostics& diagnostics) {
    if (options_.drawing) {
        drawing_ = conversions::ReadDrawing(*options_.drawing, options_.tolerant, diagnostics);
        std::erase_if(diagnostics, [](const Diagnostic& diagnostic) {
            return diagnostic.code == Code::kNoUnit; // only its styles are of use here
        });
    } else {
        MakeDefaultDrawing();
    }
    return drawing_ != nullptr;
}

void LinetypeSources::MakeDefaultDrawing() {
    drawing_ = std::make_unique<drawing::Database>();
    if (options_.styleFonts != nullptr) {
        for (const StyleFonts::Entry& entry : options_.styleFonts->All()) {
            drawing_->AddTextStyle(platform::Utf8ToWide(entry.style), StyleIn(entry.font));
        }
    }
    drawing::TextStyleData standard;
    standard.fileName = kDefaultFont;
    // Where it has a font by name, it is there already.
    drawing_->AddTextStyle(kDefaultStyle,
                           options_.font.empty() ? std::move(standard) : StyleIn(options_.font));
}

bool LinetypeSources::GetFontInfoFromStyle(const wchar_t* styleName, LineConverter::FontInfo& info) {
    drawing::HostServices host;
    host.setWorkingDatabase(drawing_.get());
    if (!LineConverter::CLineConverterDep(&host, nullptr).GetFontInfoFromStyle(styleName, info)) {
        if (!options_.tolerant || !IsSame(styleName, kDefaultStyle)) {
            return false;
        }
        standardAssumed_ = true;
        info = {};
        info.fileName = kDefaultFont;
        info.xScale = 1.0;
    }
    if (options_.styleFonts != nullptr) {
        options_.styleFonts->Use(styleName);
    }
    spellings_[InUpperCase(info.fileName)] = info.fileName;
    return true;
}

bool LinetypeSources::GetShapeFile(const std::wstring& name, std::string& bytes) {
    FoundFile file = front_.FindShapeFile(name);
    if (file.isFound) {
        found_[name] = file.name.empty() ? ShownText(AsSpelled(name)) : file.name;
        bytes = std::move(file.bytes);
        return true;
    }
    if ((options_.drawing && !options_.tolerant) || !IsSame(name.c_str(), kDefaultFont)) {
        return false;
    }
    builtInFontUsed_ = true;
    bytes = BuiltInFont();
    return true;
}

diagnostics::Diagnostics LinetypeSources::StandIns(diagnostics::Severity severity) const {
    diagnostics::Diagnostics standIns;
    const auto add = [&](Code code, std::vector<std::string> subjects) {
        standIns.push_back({severity, code, {input_.name}, std::move(subjects), Outcome::kRepaired});
    };
    if (standardAssumed_) {
        add(Code::kAssumedStandard, {DrawingName()});
    }
    if (builtInFontUsed_) {
        add(Code::kBuiltInFont, {"txt.shx", PlacesSearched(kDefaultFont)});
    }
    return standIns;
}

std::string LinetypeSources::DrawingName() const {
    return options_.drawing ? options_.drawing->name : std::string();
}

std::string LinetypeSources::StylesWithoutDrawing() const {
    std::vector<std::string> names{ShownText(std::wstring_view(kDefaultStyle))};
    if (options_.styleFonts != nullptr) {
        for (const StyleFonts::Entry& entry : options_.styleFonts->All()) {
            if (!IsSame(platform::Utf8ToWide(entry.style).c_str(), kDefaultStyle)) {
                names.push_back(ShownText(platform::Utf8ToWide(entry.style)));
            }
        }
    }
    std::string text = names.front();
    for (std::size_t i = 1; i < names.size(); ++i) {
        text += (i + 1 < names.size() ? ", " : " and ") + names[i];
    }
    return text;
}

std::wstring LinetypeSources::AsSpelled(const std::wstring& name) const {
    const auto known = spellings_.find(name);
    if (known != spellings_.end()) {
        return known->second;
    }
    // As it stands in the file, wherever that is.
    const std::string narrow = platform::WideToAnsi(name);
    const auto at = std::search(input_.bytes.begin(), input_.bytes.end(), narrow.begin(), narrow.end(),
                                [](char a, char b) { return platform::AsciiUpper(a) == b; });
    return at == input_.bytes.end() || narrow.empty()
               ? name
               : platform::AnsiToWide(
                     input_.bytes.substr(static_cast<std::size_t>(at - input_.bytes.begin()), narrow.size()));
}

std::string LinetypeSources::NameOfFound(const std::wstring& name) const {
    const auto found = found_.find(name);
    return found == found_.end() ? input_.name : found->second;
}

} // namespace conversions
