// Builds one line symbol for each linetype that it is shown.
#pragma once

#include "StyleConversion/interfaces/HostNames.h"
#include "StyleConversion/linetype/LinErrors.h"
#include "StyleConversion/linetype/LinPolicy.h"
#include "StyleConversion/linetype/LinStyleVisitor.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace LineConverter {

/// A linetype of dashes becomes a simple symbol; one with shapes, with texts in SHX fonts or with texts at a
/// fixed angle becomes a compound, each of those a member and the dashes the last one. A text in a TrueType
/// font that turns with the line is part of the dashes' symbol.
///
/// An element that cannot be drawn is left out and marks the whole run as failed; where the policy keeps
/// errors local, its linetype is left out and the run goes on. Operations may throw std::bad_alloc; nothing
/// is lost then.
class CLinVisitor final : public LinStyleVisitor {
public:
    /// `scale` multiplies every length. `errorLog` is borrowed, may be null, and is told why a run failed.
    explicit CLinVisitor(double scale, LinErrorLog* errorLog = nullptr, const LinPolicy& policy = {});
    ~CLinVisitor() override;

    void Begin() override;
    void End() override;
    void BeginLinetype(const LinetypeRecord& record, const std::string& description,
                       int elementCount) override;
    void EndLinetype() override;
    void Dot() override;
    void Dash(double length) override;
    void Gap(double length) override;
    void Shape(const std::string& shapeName, const ElementTransform& transform,
               const ShxUtility::ShapesInFile& file) override;
    void Text(const std::string& text, const ElementTransform& transform, const FontInfo& font,
              const ShapeFileMap& shapeFiles) override;

    /// The symbols in the order of their linetypes, which with the vector are the caller's from then on; null
    /// when the run has failed.
    std::vector<TylModel::SymbolDefinition*>* TakeResults();

private:
    void DeleteResults();
    // The compound symbol of the linetype: made for its first member, since most linetypes have none.
    TylModel::CompoundSymbolDefinition& Compound();
    void AddTrueTypeText(const std::string& text, const ElementTransform& transform, const FontInfo& font);
    void AddShxText(const std::string& text, const ElementTransform& transform, const FontInfo& font,
                    const ShapeFileMap& shapeFiles);
    void AddDrawnMember(const std::wstring& path, const ElementTransform& transform, double x);
    // The distance along the line, and to its left, at which an element is placed.
    double ElementX(const ElementTransform& transform) const;
    double ElementY(const ElementTransform& transform) const;
    // Where an element with an absolute angle stands in the frame that is turned by it, from its place on the
    // line.
    struct Place {
        double x;
        double y;
    };
    Place PlaceInFixedFrame(const ElementTransform& transform) const;
    void Fail(LinErrorKind kind, const std::wstring& subject,
              ShxUtility::ShxResult shxResult = ShxUtility::kSuccess);

    std::unique_ptr<std::vector<TylModel::SymbolDefinition*>> results_;
    std::unique_ptr<TylModel::CompoundSymbolDefinition> compound_;
    std::unique_ptr<TylModel::SimpleSymbolDefinition> simple_;
    // Of one linetype; the storage serves the next one too.
    std::wstring dashPath_;
    // Along the pattern, in the file's units.
    double position_ = 0.0;
    double scale_;
    std::wstring name_;
    std::wstring description_;
    bool failed_ = false;         // the run
    bool linetypeFailed_ = false; // the linetype, where errors stay local
    bool hasText_ = false;
    LinErrorLog* errorLog_;
    LinPolicy policy_;
};

} // namespace LineConverter
