#include "conversions/checking/DashShapes.h"

#include "StyleConversion/block/Opened.h"
#include "StyleConversion/platform/Characters.h"
#include "conversions/reading/ShapeFile.h"
#include "conversions/reading/Shown.h"
#include "diagnostics/Sentences.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace conversions {
namespace {

using diagnostics::Code;

std::string NameOf(const OxDbLinetypeTableRecord& linetype) {
    const wchar_t* name = nullptr;
    return linetype.getName(name) == Oxsys::eOk && name != nullptr ? ShownText(name) : std::string();
}

void AddNew(std::vector<Loss>& losses, Loss loss) {
    if (std::find(losses.begin(), losses.end(), loss) == losses.end()) {
        losses.push_back(std::move(loss));
    }
}

// "character 71 (G)"
std::string ShownCharacter(std::uint16_t unit) {
    const bool isVisible = unit > 0x20 && unit < 0x7f;
    return "character " + std::to_string(unit) +
           (isVisible ? std::string(" (") + static_cast<char>(unit) + ")" : "");
}

// Adds the loss where the file has no such shape that can be drawn.
void AddShape(const ShxUtility::ShapesInFile& shapes, const std::string& file, std::uint16_t number,
              const std::string& what, std::vector<Loss>& losses) {
    const auto found = shapes.numberIndex.find(number);
    if (found == shapes.numberIndex.end()) {
        AddNew(losses, {Code::kDashShapeMissing, {what, file}});
        return;
    }
    const ShxUtility::ShxResult result = ResultOfDrawing(shapes, shapes.shapes[found->second]);
    if (result != ShxUtility::kSuccess) {
        AddNew(losses, {Code::kDashShapeInvalid,
                        {what, file, diagnostics::SentenceOf(CodeOfDrawing(result), {"it"})}});
    }
}

} // namespace

const std::vector<Loss>& DashShapes::LossesOf(const OxDbLinetypeTableRecord& linetype) {
    const auto [known, isNew] = losses_.try_emplace(linetype.objectId().stub());
    std::vector<Loss>& losses = known->second;
    for (int i = 0; isNew && i < linetype.numDashes(); ++i) {
        const OxDbObjectId style = linetype.shapeStyleAt(i);
        const int number = linetype.shapeNumberAt(i);
        const wchar_t* text = nullptr;
        const bool hasText = linetype.textAt(i, text) == Oxsys::eOk && text != nullptr && *text != L'\0';
        if (style.isNull() || (number == 0 && !hasText)) {
            continue;
        }
        const Source& source = SourceOf(style);
        if (source.shapes == nullptr) {
            Loss loss = source.whyNot;
            loss.subjects.insert(loss.subjects.begin(), {number != 0 ? "shapes" : "texts", NameOf(linetype)});
            AddNew(losses, std::move(loss));
        } else if (number != 0) {
            AddShape(*source.shapes, source.name, static_cast<std::uint16_t>(number),
                     "shape " + std::to_string(number), losses);
        } else {
            platform::ForEachUtf16Unit(text, [&](std::uint16_t unit) {
                AddShape(*source.shapes, source.name, unit, ShownCharacter(unit), losses);
            });
        }
    }
    return losses;
}

const DashShapes::Source& DashShapes::SourceOf(OxDbObjectId styleId) {
    const auto known = sources_.find(styleId.stub());
    return known != sources_.end() ? known->second
                                   : sources_.emplace(styleId.stub(), Load(styleId)).first->second;
}

DashShapes::Source DashShapes::WithoutShapes(Code code, std::vector<std::string> subjects) {
    Source source;
    source.whyNot = {code, std::move(subjects)};
    return source;
}

DashShapes::Source DashShapes::Load(OxDbObjectId styleId) {
    block::Opened<OxDbTextStyleTableRecord> style;
    if (!style.Accept(oxdbOpenOxDbObject(style.Receive(), styleId, OxDb::kForRead))) {
        const std::wstring* const missing = drawing_.MissingName(styleId);
        return WithoutShapes(Code::kDashStyleMissing, {missing != nullptr ? ShownText(*missing) : ""});
    }
    wchar_t* given = nullptr;
    const Oxsys::ErrorStatus status = style->fileName(given);
    const std::unique_ptr<wchar_t[]> fileName(given);
    if (status != Oxsys::eOk || fileName == nullptr || fileName[0] == L'\0') {
        const wchar_t* styleName = nullptr;
        style->getName(styleName);
        return WithoutShapes(Code::kDashStyleWithoutFile, {styleName != nullptr ? ShownText(styleName) : ""});
    }
    const DrawingShapeFiles::File& file = files_.Open(fileName.get());
    const std::string name = ShownText(fileName.get());
    if (!file.shapes) {
        const diagnostics::Diagnostic& why = file.diagnostics.front();
        if (why.code == Code::kMissingShapeFile) {
            return WithoutShapes(Code::kDashFileMissing, {name, why.subjects.back()});
        }
        const std::string place = why.place.byte ? "byte " + std::to_string(*why.place.byte) + ": " : "";
        return WithoutShapes(Code::kDashFileInvalid,
                             {name, place + diagnostics::SentenceOf(why.code, why.subjects)});
    }
    Source source;
    source.name = name;
    source.shapes = &*file.shapes;
    return source;
}

} // namespace conversions
