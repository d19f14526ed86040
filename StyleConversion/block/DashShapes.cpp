// The shapes and texts that a linetype carries at its dashes, and the shape files that they come from.
#include "StyleConversion/block/Dashes.h"
#include "StyleConversion/block/Faithful.h"
#include "StyleConversion/block/Limits.h"
#include "StyleConversion/block/Opened.h"
#include "StyleConversion/block/ShapeFileSource.h"
#include "StyleConversion/encoding/Degrees.h"
#include "StyleConversion/platform/Characters.h"
#include "StyleConversion/platform/Files.h"
#include "StyleConversion/shx/ShxUtility.h"

#include <cmath>
#include <cstdio>

namespace {

// Shape units above the base line, as the font's information has it: a signed byte. 0 when there is none.
double HeightAboveBaseLine(const ShxUtility::ShapesInFile& shapes) {
    return shapes.fontInfo.empty() ? 0.0 : static_cast<double>(static_cast<std::int8_t>(shapes.fontInfo[0]));
}

// The file that a text style names; false when the style cannot be read.
bool ReadStyleFileName(OxDbObjectId styleId, block::HandedOutText& name) {
    block::Opened<OxDbTextStyleTableRecord> style;
    return style.Open(styleId) && style->fileName(name.Receive()) == Oxsys::eOk && name.Get() != nullptr;
}

std::FILE* OpenShapeFile(const wchar_t* name) {
    OxDbHostApplicationServices* const services = oxdbHostApplicationServices();
    if (services == nullptr) {
        return nullptr;
    }
    wchar_t path[block::kShapeFilePathLength] = L"";
    if (host::FindShapeFile(*services, path, block::kShapeFilePathLength, name) != Oxsys::eOk ||
        path[0] == L'\0') {
        return nullptr;
    }
    return platform::OpenForReading(path);
}

} // namespace

void BlockConverter::Dashes::DrawShape(int index, const OxGePoint2d& at, double direction, double stretch) {
    const OxDbObjectId style = linetype_.shapeStyleAt(index);
    ShxUtility::ShapesInFile shapes;
    if (host::IsNull(style) || !converter_.ParseShxId(style, shapes)) {
        return;
    }
    // Required: R14
    const double cosine = std::cos(direction);
    const double sine = std::sin(direction);
    const OxGeVector2d offset = linetype_.shapeOffsetAt(index);
    double x = at.x + cosine * offset.x - sine * offset.y;
    double y = at.y + sine * offset.x + cosine * offset.y;
    double scale = linetype_.shapeScaleAt(index) * stretch;
    if (block::IsFaithful()) {
        x *= converter_.scale_;
        y *= converter_.scale_;
        scale *= converter_.scale_;
    }
    const double rotation = linetype_.shapeRotationAt(index) + direction;
    const auto draw = [&](int number) {
        shapePath_ += converter_.ProcessShape(shapes, number, scale, x, y, rotation);
    };
    if (const int number = static_cast<int>(linetype_.shapeNumberAt(index)); number != 0) {
        draw(number);
        return;
    }
    const wchar_t* const text = host::TextAt(linetype_, index);
    if (text == nullptr) {
        return;
    }
    if (const double above = HeightAboveBaseLine(shapes); above != 0.0) {
        scale /= above;
    }
    // Point and scale go on from character to character, also from one that could not be drawn.
    platform::ForEachUtf16Unit(text, draw);
}

namespace {

thread_local block::ShapeFileSource* shapeFilesInUse = nullptr;

} // namespace

block::ShapeFilesInUse::ShapeFilesInUse(ShapeFileSource& source) : before_(shapeFilesInUse) {
    shapeFilesInUse = &source;
}

block::ShapeFilesInUse::~ShapeFilesInUse() {
    shapeFilesInUse = before_;
}

bool BlockConverter::ParseShxId(OxDbObjectId styleId, ShxUtility::ShapesInFile& shapes) const {
    block::HandedOutText name;
    if (!ReadStyleFileName(styleId, name)) {
        return false;
    }
    if (shapeFilesInUse != nullptr) {
        const ShxUtility::ShapesInFile* const found = shapeFilesInUse->Find(name.Get());
        if (found != nullptr) {
            shapes = *found;
        }
        return found != nullptr;
    }
    std::FILE* const file = OpenShapeFile(name.Get());
    if (file == nullptr) {
        return false;
    }
    // Required: R15
    if (ShxUtility::LoadShapeFile(file, shapes, ShxUtility::kAllKinds) != ShxUtility::kSuccess) {
        return false; // NOLINT(clang-analyzer-unix.Stream): see above
    }
    std::fclose(file);
    return true;
}

std::wstring BlockConverter::ProcessShape(const ShxUtility::ShapesInFile& shapes, int shapeNumber,
                                          double& scale, double& x, double& y, double rotation) const {
    ShxUtility::GlyphPen pen;
    pen.x = x;
    pen.y = y;
    pen.scale = scale;
    pen.rotation = rotation * encoding::kDegreesPerRadian;
    std::wstring path;
    const ShxUtility::ShxResult result =
        ShxUtility::DrawGlyph(shapes, static_cast<std::uint16_t>(shapeNumber), shapes.kind, pen, path);
    x = pen.x;
    y = pen.y;
    scale = pen.scale;
    return result == ShxUtility::kSuccess ? path : std::wstring();
}
