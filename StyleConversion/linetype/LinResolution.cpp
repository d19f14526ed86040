// Resolves the text styles and SHX files that linetypes name.
#include "StyleConversion/linetype/LinParser.h"

#include <memory>
#include <set>
#include <utility>

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
        CollectReferences();
        LinResult result = ResolveStyles();
        if (result == kSuccess) {
            result = LoadShapeFiles();
        }
        if (result == kSuccess && policy_.faultsStayLocal) {
            DropUnresolvedLinetypes();
        }
        return result;
    } catch (...) {
        return kOutOfMemory;
    }
}

void LinParser::CollectReferences() {
    for (std::size_t linetype = 0; linetype < linetypes_.size(); ++linetype) {
        const auto& elements = linetypes_[linetype].elements;
        for (std::size_t i = 0; i < elements.size(); ++i) {
            const LinElement& element = elements[i];
            if (element.kind == kText) {
                styleReferences_.try_emplace(element.complex->styleName, Reference{linetype, i});
            } else if (element.kind == kShape) {
                shapeFileReferences_
                    .try_emplace(element.complex->shapeFile, ShapeFileReference{0, {linetype, i}})
                    .first->second.acceptedKinds |= ShxUtility::kShapes;
            }
        }
    }
}

LinResult LinParser::ResolveStyles() {
    for (const auto& [styleName, reference] : styleReferences_) {
        faultLog_.EnterPlace(PlaceOf(reference));
        const LinResult result = ResolveStyle(styleName, reference);
        if (EndsReading(result)) {
            return result;
        }
        if (result != kSuccess) {
            missingStyles_[styleName] = faultLog_.TakeLast();
        }
    }
    return kSuccess;
}

LinResult LinParser::ResolveStyle(const std::wstring& styleName, const Reference& reference) {
    if (fontInfoProvider_ == nullptr) {
        return Fault(kStyleNotResolved, LinFaultKind::kNobodyKnowsStyles, styleName);
    }
    FontInfo& fontInfo = fontInfos_[styleName];
    if (!fontInfoProvider_->GetFontInfoFromStyle(styleName.c_str(), fontInfo)) {
        if (!policy_.unknownStylesAreStandard ||
            !fontInfoProvider_->GetFontInfoFromStyle(L"STANDARD", fontInfo)) {
            fontInfos_.erase(styleName);
            return Fault(kStyleNotResolved, LinFaultKind::kStyleUnknown, styleName);
        }
        Fault(kSuccess, LinFaultKind::kStyleUnknown, styleName);
        faultLog_.ForgiveLast();
    }
    if (fontInfo.typeface.empty()) {
        MakeUpperCase(fontInfo.fileName);
        shapeFileReferences_.try_emplace(fontInfo.fileName, ShapeFileReference{0, reference})
            .first->second.acceptedKinds |= kFontKinds;
    }
    return kSuccess;
}

LinResult LinParser::LoadShapeFiles() {
    for (const auto& [name, reference] : shapeFileReferences_) {
        faultLog_.EnterPlace(PlaceOf(reference.first));
        const LinResult result = LoadOneShapeFile(name, reference.acceptedKinds);
        if (EndsReading(result)) {
            return result;
        }
        if (result != kSuccess) {
            missingFiles_[name] = faultLog_.TakeLast();
        }
    }
    return kSuccess;
}

LinResult LinParser::LoadOneShapeFile(const std::wstring& name, std::uint32_t acceptedKinds) {
    if (fileProvider_ == nullptr) {
        return Fault(kShapeFileNotLoaded, LinFaultKind::kNobodyFindsFiles, name);
    }
    const std::unique_ptr<std::FILE, CloseStream> stream(
        fileProvider_->GetFile(name.c_str(), kShapeFileExtension));
    if (!stream) {
        return Fault(kShapeFileNotLoaded, LinFaultKind::kShapeFileNotFound, name);
    }
    ShxUtility::ShapeFileFaultReport report;
    const ShxUtility::ShxResult loaded =
        ShxUtility::LoadShapeFile(stream.get(), shapeFiles_[name], acceptedKinds, report, policy_.shapeFiles);
    if (loaded != ShxUtility::kSuccess) {
        shapeFiles_.erase(name);
        LinFault& fault = faultLog_.Add(kShapeFileNotLoaded, LinFaultKind::kShapeFileNotLoaded);
        fault.subject = name;
        fault.shxResult = loaded;
        fault.shapeFileFault = report;
        return kShapeFileNotLoaded;
    }
    if (report.otherMaker) {
        Fault(kSuccess, LinFaultKind::kShapeFileOfOtherMaker, name);
        faultLog_.ForgiveLast();
    }
    if (report.trailerMissing) {
        Fault(kSuccess, LinFaultKind::kShapeFileWithoutTrailer, name);
        faultLog_.ForgiveLast();
    }
    return kSuccess;
}

void LinParser::DropUnresolvedLinetypes() {
    std::size_t kept = 0;
    for (std::size_t linetype = 0; linetype < linetypes_.size(); ++linetype) {
        if (!IsResolved(linetype)) {
            continue;
        }
        if (kept != linetype) {
            linetypes_[kept] = std::move(linetypes_[linetype]);
            lines_[kept] = lines_[linetype];
        }
        ++kept;
    }
    linetypes_.erase(linetypes_.begin() + static_cast<std::ptrdiff_t>(kept), linetypes_.end());
    lines_.resize(kept);
    faultLog_.EnterPlace({});
}

// Tells what the linetype lacks, each once.
bool LinParser::IsResolved(std::size_t linetype) {
    std::set<std::pair<LinFaultKind, std::wstring>> told;
    const auto& elements = linetypes_[linetype].elements;
    for (std::size_t i = 0; i < elements.size(); ++i) {
        const std::optional<LinFault> missing = MissingFor(elements[i]);
        if (missing && told.emplace(missing->kind, missing->subject).second) {
            faultLog_.EnterPlace(PlaceOf({linetype, i}));
            faultLog_.AddLike(*missing);
        }
    }
    return told.empty();
}

std::optional<LinFault> LinParser::MissingFor(const LinElement& element) const {
    const auto missingIn = [](const auto& faults, const std::wstring& name) {
        const auto found = faults.find(name);
        return found == faults.end() ? std::nullopt : std::optional<LinFault>(found->second);
    };
    if (element.kind == kShape) {
        const auto file = shapeFiles_.find(element.complex->shapeFile);
        if (file != shapeFiles_.end() && file->second.kind != ShxUtility::kShapes) {
            LinFault fault;
            fault.result = kShapeFileNotLoaded;
            fault.kind = LinFaultKind::kNotAShapeFile;
            fault.subject = element.complex->shapeFile;
            return fault;
        }
        return missingIn(missingFiles_, element.complex->shapeFile);
    }
    if (element.kind == kText) {
        const auto style = fontInfos_.find(element.complex->styleName);
        if (style == fontInfos_.end()) {
            return missingIn(missingStyles_, element.complex->styleName);
        }
        return style->second.typeface.empty() ? missingIn(missingFiles_, style->second.fileName)
                                              : std::nullopt;
    }
    return std::nullopt;
}

} // namespace LineConverter
