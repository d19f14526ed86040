// Tells the front of each linetype of a walk before it is built.
#pragma once

#include "StyleConversion/linetype/LinStyleVisitor.h"
#include "conversions/reading/Front.h"
#include "conversions/reading/LinetypeDiagnostics.h"

#include <string>

namespace conversions {

/// Passes everything on.
class AnnouncedLinetypes final : public LineConverter::LinStyleVisitor {
public:
    AnnouncedLinetypes(LineConverter::LinStyleVisitor& visitor, Front& front)
        : visitor_(visitor), front_(front) {}

    void Begin() override { visitor_.Begin(); }
    void End() override { visitor_.End(); }
    void BeginLinetype(const LineConverter::LinetypeRecord& record, const std::string& description,
                       int elementCount) override {
        front_.AtItem(LinetypeItem(record.name));
        visitor_.BeginLinetype(record, description, elementCount);
    }
    void EndLinetype() override { visitor_.EndLinetype(); }
    void Dot() override { visitor_.Dot(); }
    void Dash(double length) override { visitor_.Dash(length); }
    void Gap(double length) override { visitor_.Gap(length); }
    void Shape(const std::string& shapeName, const LineConverter::ElementTransform& transform,
               const ShxUtility::ShapesInFile& file) override {
        visitor_.Shape(shapeName, transform, file);
    }
    void Text(const std::string& text, const LineConverter::ElementTransform& transform,
              const LineConverter::FontInfo& font, const LineConverter::ShapeFileMap& shapeFiles) override {
        visitor_.Text(text, transform, font, shapeFiles);
    }

private:
    LineConverter::LinStyleVisitor& visitor_;
    Front& front_;
};

} // namespace conversions
