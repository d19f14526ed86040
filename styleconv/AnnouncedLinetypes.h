// Announces each linetype of a walk before it is built.
#pragma once

#include "StyleConversion/linetype/LinStyleVisitor.h"
#include "styleconv/LinetypeFindings.h"
#include "styleconv/WorkLimits.h"

#include <string>

namespace styleconv {

/// Passes everything on.
class AnnouncedLinetypes final : public LineConverter::LinStyleVisitor {
public:
    explicit AnnouncedLinetypes(LineConverter::LinStyleVisitor& visitor) : visitor_(visitor) {}

    void Begin() override { visitor_.Begin(); }
    void End() override { visitor_.End(); }
    void BeginLinetype(const LineConverter::LinetypeRecord& record, const std::string& description,
                       int elementCount) override {
        NowAtItem(LinetypeItem(record.name));
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
};

} // namespace styleconv
