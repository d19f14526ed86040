// Shape files behind text styles, and single shapes of them as paths.
#include "StyleConversion/block/BlockConverter.h"

#include "OxDb/OxDbDatabase.h"
#include "OxDb/OxDbHostApplicationServices.h"
#include "StyleConversion/block/Limits.h"
#include "StyleConversion/block/Opened.h"
#include "StyleConversion/platform/Files.h"
#include "StyleConversion/shx/ShxUtility.h"

#include <cstdio>
#include <memory>

namespace {

constexpr double kDegreesPerRadian = 57.29577951308232;

// The file that a text style names; null when the style cannot be read.
std::unique_ptr<wchar_t[]> StyleFileName(OxDbObjectId styleId) {
    block::Opened<OxDbTextStyleTableRecord> style;
    wchar_t* name = nullptr;
    if (!style.Accept(oxdbOpenOxDbObject(style.Receive(), styleId, OxDb::kForRead)) ||
        style->fileName(name) != Oxsys::eOk) {
        return nullptr;
    }
    return std::unique_ptr<wchar_t[]>(name);
}

std::FILE* OpenShapeFile(const wchar_t* name) {
    OxDbHostApplicationServices* const services = oxdbHostApplicationServices();
    if (services == nullptr) {
        return nullptr;
    }
    wchar_t path[block::kShapeFilePathLength] = L"";
    if (services->findFile(path, block::kShapeFilePathLength, name, nullptr,
                           OxDbHostApplicationServices::kCompiledShapeFile) != Oxsys::eOk ||
        path[0] == L'\0') {
        return nullptr;
    }
    return platform::OpenForReading(path);
}

} // namespace

bool BlockConverter::ParseShxId(OxDbObjectId styleId, ShxUtility::ShapesInFile& shapes) const {
    const std::unique_ptr<wchar_t[]> name = StyleFileName(styleId);
    if (name == nullptr) {
        return false;
    }
    std::FILE* const file = OpenShapeFile(name.get());
    if (file == nullptr) {
        return false;
    }
    // A stream that is no shape file stays open: that is wanted so. Hosts that cannot afford it do not give
    // such files out.
    if (ShxUtility::LoadShapeFile(file, shapes, ShxUtility::kAllKinds) != ShxUtility::kSuccess) {
        return false; // NOLINT(clang-analyzer-unix.Stream): see above
    }
    std::fclose(file);
    return true;
}

std::wstring BlockConverter::ProcessShape(const ShxUtility::ShapesInFile& shapes, int shapeNumber,
                                          double& scale, double& x, double& y, double rotation) const {
    const auto found = shapes.numberIndex.find(static_cast<std::uint16_t>(shapeNumber));
    if (found == shapes.numberIndex.end()) {
        return {};
    }
    const ShxUtility::CharArray& program = shapes.shapes[found->second].data;
    ShxUtility::ShapeInstructions instructions;
    if (ShxUtility::DecodeShape(instructions, program.data(), static_cast<std::uint16_t>(program.size()),
                                shapes.kind) != ShxUtility::kSuccess) {
        return {};
    }
    std::wstring path;
    ShxUtility::PositionStack positionStack;
    std::vector<std::uint16_t> activeSubshapes;
    bool penDown = true;
    if (ShxUtility::DrawShape(path, x, y, scale, positionStack, activeSubshapes, penDown, instructions,
                              shapes, rotation * kDegreesPerRadian, false) != ShxUtility::kSuccess) {
        return {};
    }
    return path;
}
