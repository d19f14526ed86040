// What a walk over parsed linetypes calls.
#pragma once

#include "StyleConversion/linetype/LinetypeFile.h"

#include <string>

namespace LineConverter {

/// Is shown linetypes in file order and each one's elements in pattern order. Lengths are in the file's
/// units; everything is borrowed and lives until the walk ends.
class LinStyleVisitor {
public:
    LinStyleVisitor() = default;
    LinStyleVisitor(const LinStyleVisitor&) = delete;
    LinStyleVisitor& operator=(const LinStyleVisitor&) = delete;

    /// Once, before and after all linetypes.
    virtual void Begin() = 0;
    virtual void End() = 0;

    virtual void BeginLinetype(const LinetypeRecord& record, const std::string& description,
                               int elementCount) = 0;
    virtual void EndLinetype() = 0;

    virtual void Dot() = 0;
    /// `length` is above 0.
    virtual void Dash(double length) = 0;
    /// `length` is above 0.
    virtual void Gap(double length) = 0;
    /// A shape of `file`, which is a plain shape library. It need not have a shape of that name.
    virtual void Shape(const std::string& shapeName, const ElementTransform& transform,
                       const ShxUtility::ShapesInFile& file) = 0;
    /// A text in `font`; `shapeFiles` has the SHX font that it names, where it names one.
    virtual void Text(const std::string& text, const ElementTransform& transform, const FontInfo& font,
                      const ShapeFileMap& shapeFiles) = 0;

    virtual ~LinStyleVisitor() = default;
};

} // namespace LineConverter
