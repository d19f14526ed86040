// Writes down what a walk over linetypes shows.
#pragma once

#include "StyleConversion/encoding/PathCommands.h"
#include "StyleConversion/linetype/LinStyleVisitor.h"
#include "StyleConversion/platform/CodePage.h"

#include <string>

namespace linetypetest {

inline std::string Number(double value) {
    return platform::WideToAnsi(encoding::FormatNumber(value));
}

/// "A R S X Y", each a number.
inline std::string Transform(const LineConverter::ElementTransform& transform) {
    return Number(transform.absoluteRotation) + " " + Number(transform.relativeRotation) + " " +
           Number(transform.scale) + " " + Number(transform.offsetX) + " " + Number(transform.offsetY);
}

/// One call after the other, each ending in ";": "dash 0.5;", "shape NAME in KIND at A R S X Y;".
class RecordingVisitor : public LineConverter::LinStyleVisitor {
public:
    void Begin() override { record += "begin;"; }
    void End() override { record += "end;"; }
    void BeginLinetype(const LineConverter::LinetypeRecord& linetype, const std::string& description,
                       int elementCount) override {
        record += "linetype " + linetype.name + "|" + description + "|" + std::to_string(elementCount) + ";";
    }
    void EndLinetype() override { record += "end linetype;"; }
    void Dot() override { record += "dot;"; }
    void Dash(double length) override { record += "dash " + Number(length) + ";"; }
    void Gap(double length) override { record += "gap " + Number(length) + ";"; }
    void Shape(const std::string& shapeName, const LineConverter::ElementTransform& transform,
               const ShxUtility::ShapesInFile& file) override {
        record += "shape " + shapeName + " of " + std::to_string(file.shapes.size()) + " at " +
                  Transform(transform) + ";";
    }
    void Text(const std::string& text, const LineConverter::ElementTransform& transform,
              const LineConverter::FontInfo& font, const LineConverter::ShapeFileMap& shapeFiles) override {
        record += "text " + text + " in " + platform::WideToAnsi(font.typeface + font.fileName) + " of " +
                  std::to_string(shapeFiles.size()) + " at " + Transform(transform) + ";";
    }

    std::string record;
};

} // namespace linetypetest
