// Resolves the text styles and SHX files that linetypes name.
#include "StyleConversion/linetype/LinParser.h"

#include <memory>

namespace LineConverter {
namespace {

struct CloseStream {
    void operator()(std::FILE* stream) const { std::fclose(stream); }
};

constexpr const wchar_t* kShapeFileExtension = L".shx";
constexpr std::uint32_t kFontKinds = ShxUtility::kFont | ShxUtility::kUnifont;

} // namespace

LinResult LinParser::Resolve() {
    try {
        const LinResult result = ResolveStyles();
        return result == kSuccess ? LoadShapeFiles() : result;
    } catch (...) {
        return kOutOfMemory;
    }
}

LinResult LinParser::ResolveStyles() {
    for (const auto& [styleName, reference] : styleReferences_) {
        faultLog_.EnterPlace(PlaceOf(reference));
        if (fontInfoProvider_ == nullptr) {
            return Fault(kStyleNotResolved, LinFaultKind::kNobodyKnowsStyles, styleName);
        }
        FontInfo& fontInfo = fontInfos_[styleName];
        if (!fontInfoProvider_->GetFontInfoFromStyle(styleName.c_str(), fontInfo)) {
            fontInfos_.erase(styleName);
            return Fault(kStyleNotResolved, LinFaultKind::kStyleUnknown, styleName);
        }
        if (fontInfo.typeface.empty()) {
            MakeUpperCase(fontInfo.fileName);
            shapeFileReferences_.try_emplace(fontInfo.fileName, ShapeFileReference{0, reference})
                .first->second.acceptedKinds |= kFontKinds;
        }
    }
    return kSuccess;
}

LinResult LinParser::LoadShapeFiles() {
    for (const auto& [name, reference] : shapeFileReferences_) {
        faultLog_.EnterPlace(PlaceOf(reference.first));
        if (fileProvider_ == nullptr) {
            return Fault(kShapeFileNotLoaded, LinFaultKind::kNobodyFindsFiles, name);
        }
        if (const LinResult result = LoadOneShapeFile(name, reference.acceptedKinds); result != kSuccess) {
            return result;
        }
    }
    return kSuccess;
}

LinResult LinParser::LoadOneShapeFile(const std::wstring& name, std::uint32_t acceptedKinds) {
    const std::unique_ptr<std::FILE, CloseStream> stream(
        fileProvider_->GetFile(name.c_str(), kShapeFileExtension));
    if (!stream) {
        return Fault(kShapeFileNotLoaded, LinFaultKind::kShapeFileNotFound, name);
    }
    ShxUtility::ShapeFileFaultReport report;
    const ShxUtility::ShxResult loaded =
        ShxUtility::LoadShapeFile(stream.get(), shapeFiles_[name], acceptedKinds, report);
    if (loaded != ShxUtility::kSuccess) {
        shapeFiles_.erase(name);
        LinFault& fault = faultLog_.Add(kShapeFileNotLoaded, LinFaultKind::kShapeFileNotLoaded);
        fault.subject = name;
        fault.shxResult = loaded;
        fault.shapeFileFault = report;
        return kShapeFileNotLoaded;
    }
    return kSuccess;
}

} // namespace LineConverter
