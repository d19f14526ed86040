// Collects names, asks for styles, loads files, and drops the linetypes that lack something.
#include "StyleConversion/linetype/LinResolution.h"

#include "StyleConversion/linetype/LinNames.h"
#include "StyleConversion/shx/ShapeFileReader.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace LineConverter {
namespace {

constexpr std::uint32_t kFontKinds = ShxUtility::kFont | ShxUtility::kUnifont;

// The element, counted from 0, that first names a style or file.
struct Reference {
    const LinetypeRecord* linetype = nullptr;
    std::size_t element = 0;

    LinPlace Place() const { return {linetype->elements[element].line, linetype, element + 1}; }
};

// Which kinds of shape file will do under a name.
struct ShapeFileReference {
    std::uint32_t acceptedKinds = 0;
    Reference first;
};

using MissingNames = std::map<std::wstring, LinError, Utf16Less>;

class Resolver {
public:
    Resolver(LinetypeFile& file, IGetFontInfo* styles, ShapeFileSource* shapeFiles, const LinPolicy& policy,
             LinErrorLog& errors)
        : file_(file), styles_(styles), shapeFiles_(shapeFiles), policy_(policy), errors_(errors) {}

    LinResult Resolve();

private:
    void CollectNames();
    LinResult ResolveStyles();
    LinResult ResolveStyle(const std::wstring& name, const Reference& reference);
    LinResult LoadShapeFiles();
    LinResult LoadShapeFile(const std::wstring& name, std::uint32_t acceptedKinds);
    void DropUnresolvedLinetypes();
    bool IsResolved(const LinetypeRecord& linetype);
    // What the element needs and does not have.
    std::optional<LinError> MissingFor(const LinElement& element) const;
    LinResult Error(LinResult result, LinErrorKind kind, const std::wstring& subject);
    void Tolerate(LinErrorKind kind, const std::wstring& subject);

    LinetypeFile& file_;
    IGetFontInfo* styles_;
    ShapeFileSource* shapeFiles_;
    const LinPolicy& policy_;
    LinErrorLog& errors_;
    std::map<std::wstring, Reference, Utf16Less> styleReferences_;
    std::map<std::wstring, ShapeFileReference, Utf16Less> shapeFileReferences_;
    // What is wrong with styles and files, where that loses only the linetypes that need them.
    MissingNames missingStyles_;
    MissingNames missingFiles_;
};

LinResult Resolver::Resolve() {
    CollectNames();
    LinResult result = ResolveStyles();
    if (result == kSuccess) {
        result = LoadShapeFiles();
    }
    if (result == kSuccess && policy_.errorsStayLocal) {
        DropUnresolvedLinetypes();
    }
    return result;
}

void Resolver::CollectNames() {
    for (const LinetypeRecord& linetype : file_.linetypes) {
        for (std::size_t i = 0; i < linetype.elements.size(); ++i) {
            const LinElement& element = linetype.elements[i];
            if (element.kind == kText) {
                styleReferences_.try_emplace(element.complex->styleName, Reference{&linetype, i});
            } else if (element.kind == kShape) {
                shapeFileReferences_
                    .try_emplace(element.complex->shapeFile, ShapeFileReference{0, {&linetype, i}})
                    .first->second.acceptedKinds |= ShxUtility::kShapes;
            }
        }
    }
}

LinResult Resolver::ResolveStyles() {
    for (const auto& [name, reference] : styleReferences_) {
        errors_.EnterPlace(reference.Place());
        const LinResult result = ResolveStyle(name, reference);
        if (EndsReading(policy_, result)) {
            return result;
        }
        if (result != kSuccess) {
            missingStyles_[name] = errors_.TakeLast();
        }
    }
    return kSuccess;
}

LinResult Resolver::ResolveStyle(const std::wstring& name, const Reference& reference) {
    if (styles_ == nullptr) {
        return Error(kStyleNotResolved, LinErrorKind::kNobodyKnowsStyles, name);
    }
    FontInfo& fontInfo = file_.fontInfos[name];
    if (!styles_->GetFontInfoFromStyle(name.c_str(), fontInfo)) {
        if (!policy_.unknownStylesAreStandard || !styles_->GetFontInfoFromStyle(kStandardStyle, fontInfo)) {
            file_.fontInfos.erase(name);
            return Error(kStyleNotResolved, LinErrorKind::kStyleUnknown, name);
        }
        Tolerate(LinErrorKind::kStyleUnknown, name);
    }
    if (fontInfo.typeface.empty()) {
        MakeUpperCase(fontInfo.fileName);
        shapeFileReferences_.try_emplace(fontInfo.fileName, ShapeFileReference{0, reference})
            .first->second.acceptedKinds |= kFontKinds;
    }
    return kSuccess;
}

LinResult Resolver::LoadShapeFiles() {
    for (const auto& [name, reference] : shapeFileReferences_) {
        errors_.EnterPlace(reference.first.Place());
        const LinResult result = LoadShapeFile(name, reference.acceptedKinds);
        if (EndsReading(policy_, result)) {
            return result;
        }
        if (result != kSuccess) {
            missingFiles_[name] = errors_.TakeLast();
        }
    }
    return kSuccess;
}

LinResult Resolver::LoadShapeFile(const std::wstring& name, std::uint32_t acceptedKinds) {
    if (shapeFiles_ == nullptr) {
        return Error(kShapeFileNotLoaded, LinErrorKind::kNobodyFindsFiles, name);
    }
    std::string bytes;
    if (!shapeFiles_->GetShapeFile(name, bytes)) {
        return Error(kShapeFileNotLoaded, LinErrorKind::kShapeFileNotFound, name);
    }
    ShxUtility::ShapeFileReport report;
    const ShxUtility::ShxResult loaded =
        ShxUtility::LoadShapeFile(bytes, file_.shapeFiles[name], acceptedKinds, report, policy_.shapeFiles);
    if (loaded != ShxUtility::kSuccess) {
        file_.shapeFiles.erase(name);
        LinError& error = errors_.Add(kShapeFileNotLoaded, LinErrorKind::kShapeFileNotLoaded);
        error.subject = name;
        error.shxResult = loaded;
        error.shapeFileReport = report;
        return kShapeFileNotLoaded;
    }
    if (report.otherMaker) {
        Tolerate(LinErrorKind::kShapeFileOfOtherMaker, name);
    }
    if (report.trailerMissing) {
        Tolerate(LinErrorKind::kShapeFileWithoutTrailer, name);
    }
    return kSuccess;
}

void Resolver::DropUnresolvedLinetypes() {
    std::erase_if(file_.linetypes, [this](const LinetypeRecord& linetype) { return !IsResolved(linetype); });
    errors_.EnterPlace({});
}

// Logs what the linetype lacks, each once.
bool Resolver::IsResolved(const LinetypeRecord& linetype) {
    std::set<std::pair<LinErrorKind, std::wstring>> logged;
    for (std::size_t i = 0; i < linetype.elements.size(); ++i) {
        const std::optional<LinError> missing = MissingFor(linetype.elements[i]);
        if (missing && logged.emplace(missing->kind, missing->subject).second) {
            errors_.EnterPlace(Reference{&linetype, i}.Place());
            errors_.AddLike(*missing);
        }
    }
    return logged.empty();
}

std::optional<LinError> FindMissing(const MissingNames& missing, const std::wstring& name) {
    const auto found = missing.find(name);
    return found == missing.end() ? std::nullopt : std::optional<LinError>(found->second);
}

std::optional<LinError> Resolver::MissingFor(const LinElement& element) const {
    if (element.kind == kShape) {
        const auto file = file_.shapeFiles.find(element.complex->shapeFile);
        if (file != file_.shapeFiles.end() && file->second.kind != ShxUtility::kShapes) {
            LinError error;
            error.result = kShapeFileNotLoaded;
            error.kind = LinErrorKind::kNotAShapeFile;
            error.subject = element.complex->shapeFile;
            return error;
        }
        return FindMissing(missingFiles_, element.complex->shapeFile);
    }
    if (element.kind == kText) {
        const auto style = file_.fontInfos.find(element.complex->styleName);
        if (style == file_.fontInfos.end()) {
            return FindMissing(missingStyles_, element.complex->styleName);
        }
        return style->second.typeface.empty() ? FindMissing(missingFiles_, style->second.fileName)
                                              : std::nullopt;
    }
    return std::nullopt;
}

LinResult Resolver::Error(LinResult result, LinErrorKind kind, const std::wstring& subject) {
    errors_.Add(result, kind).subject = subject;
    return result;
}

void Resolver::Tolerate(LinErrorKind kind, const std::wstring& subject) {
    LinError& error = errors_.Add(kSuccess, kind);
    error.subject = subject;
    error.tolerated = true;
}

} // namespace

LinResult ResolveNames(LinetypeFile& file, IGetFontInfo* styles, ShapeFileSource* shapeFiles,
                       const LinPolicy& policy, LinErrorLog& errors) {
    try {
        return Resolver(file, styles, shapeFiles, policy, errors).Resolve();
    } catch (...) {
        return kOutOfMemory;
    }
}

} // namespace LineConverter
