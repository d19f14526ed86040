#include "styleconv/DashShapes.h"

#include "StyleConversion/block/Limits.h"
#include "StyleConversion/block/Opened.h"
#include "StyleConversion/block/Utf16Units.h"
#include "StyleConversion/platform/Files.h"
#include "StyleConversion/shx/ShxUtility.h"
#include "styleconv/CheckedShapes.h"
#include "styleconv/FileStream.h"
#include "styleconv/Messages.h"
#include "styleconv/ShapeFileMessages.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <utility>

namespace styleconv {
namespace {

std::string NameOf(const OxDbLinetypeTableRecord& linetype) {
    const wchar_t* name = nullptr;
    return linetype.getName(name) == Oxsys::eOk && name != nullptr ? Shown(name) : std::string();
}

void AddNew(std::vector<std::string>& texts, std::string text) {
    if (std::find(texts.begin(), texts.end(), text) == texts.end()) {
        texts.push_back(std::move(text));
    }
}

// False where the file has none that can be drawn; `fault` says why.
bool CanDraw(const ShxUtility::ShapesInFile& shapes, int number, std::string& fault) {
    const auto found = shapes.numberIndex.find(static_cast<std::uint16_t>(number));
    if (found == shapes.numberIndex.end()) {
        fault = "is not there";
        return false;
    }
    const ShxUtility::ShxResult result = ResultOfDrawing(shapes, shapes.shapes[found->second]);
    fault = result == ShxUtility::kSuccess ? "" : std::string("cannot be drawn: ") + DrawingFault(result);
    return result == ShxUtility::kSuccess;
}

} // namespace

const std::vector<std::string>& DashShapes::LacksOf(const OxDbLinetypeTableRecord& linetype) {
    const auto [known, isNew] = lacks_.try_emplace(linetype.objectId().stub());
    std::vector<std::string>& lacks = known->second;
    for (int i = 0; isNew && i < linetype.numDashes(); ++i) {
        const OxDbObjectId style = linetype.shapeStyleAt(i);
        const int number = linetype.shapeNumberAt(i);
        const wchar_t* text = nullptr;
        const bool hasText = linetype.textAt(i, text) == Oxsys::eOk && text != nullptr && *text != L'\0';
        if (style.isNull() || (number == 0 && !hasText)) {
            continue;
        }
        const Source& source = SourceOf(style);
        if (!source.shapes) {
            AddNew(lacks, std::string(number != 0 ? "the shapes" : "the texts") + " of linetype " +
                              NameOf(linetype) + ": " + source.whyNot);
        } else if (number != 0) {
            AddLacksOfShape(source, number, lacks);
        } else {
            AddLacksOfText(source, text, lacks);
        }
    }
    return lacks;
}

void DashShapes::AddLacksOfShape(const Source& source, int number, std::vector<std::string>& lacks) const {
    std::string fault;
    if (!CanDraw(*source.shapes, number, fault)) {
        AddNew(lacks, "shape " + std::to_string(number) + " of " + source.name + ", which " + fault);
    }
}

void DashShapes::AddLacksOfText(const Source& source, const wchar_t* text,
                                std::vector<std::string>& lacks) const {
    block::ForEachUtf16Unit(text, [&](std::uint16_t unit) {
        std::string fault;
        if (!CanDraw(*source.shapes, unit, fault)) {
            AddNew(lacks,
                   "character " + std::to_string(unit) +
                       (unit > 0x20 && unit < 0x7f ? std::string(" (") + static_cast<char>(unit) + ")" : "") +
                       " of " + source.name + ", which " + fault);
        }
    });
}

const DashShapes::Source& DashShapes::SourceOf(OxDbObjectId styleId) {
    const auto known = sources_.find(styleId.stub());
    return known != sources_.end() ? known->second
                                   : sources_.emplace(styleId.stub(), Load(styleId)).first->second;
}

DashShapes::Source DashShapes::Load(OxDbObjectId styleId) {
    Source source;
    block::Opened<OxDbTextStyleTableRecord> style;
    if (!style.Accept(oxdbOpenOxDbObject(style.Receive(), styleId, OxDb::kForRead))) {
        const std::wstring* const missing = drawing_.MissingName(styleId);
        source.whyNot = "the drawing has no text style " + (missing != nullptr ? Shown(*missing) : "");
        return source;
    }
    wchar_t* given = nullptr;
    const Oxsys::ErrorStatus status = style->fileName(given);
    const std::unique_ptr<wchar_t[]> fileName(given);
    if (status != Oxsys::eOk || fileName == nullptr || fileName[0] == L'\0') {
        const wchar_t* styleName = nullptr;
        style->getName(styleName);
        source.whyNot = "text style " + (styleName != nullptr ? Shown(styleName) : "") +
                        " has no shape file, and only such texts are drawn in linetypes of a drawing";
        return source;
    }
    source.name = Shown(fileName.get());
    std::array<wchar_t, block::kShapeFilePathLength> path{};
    if (search_.findFile(path.data(), static_cast<int>(path.size()), fileName.get(), nullptr,
                         OxDbHostApplicationServices::kCompiledShapeFile) != Oxsys::eOk) {
        source.whyNot = search_.WhyNot(fileName.get());
        return source;
    }
    const FileStream file(platform::OpenForReading(path.data()));
    ShxUtility::ShapesInFile shapes;
    if (file && LoadShapeFile(file.get(), shapes, ShxUtility::kAllKinds) == ShxUtility::kSuccess) {
        source.shapes = std::move(shapes);
    } else {
        source.whyNot = "shape file " + source.name + " cannot be read any more"; // it was, a moment before
    }
    return source;
}

} // namespace styleconv
