// Shapes drawn from an empty state.
#pragma once

#include "StyleConversion/shx/ShxUtility.h"
#include "tests/support/MemoryFile.h"
#include "tests/support/ShapeFileBuilder.h"

#include <string>
#include <vector>

namespace {

/// The state that a drawing starts from and, afterwards, the one that it left.
struct Drawing {
    std::wstring path;
    double x = 0.0;
    double y = 0.0;
    double scale = 1.0;
    ShxUtility::PositionStack stack;
    std::vector<std::uint16_t> active;
    bool penDown = true;
    double rotation = 0.0;
    bool vertical = false;

    int Draw(const ShxUtility::ShapeInstructions& instructions,
             const ShxUtility::ShapesInFile& file = ShxUtility::ShapesInFile()) {
        return ShxUtility::DrawShape(path, x, y, scale, stack, active, penDown, instructions, file, rotation,
                                     vertical);
    }

    /// Decodes and draws a program.
    int DrawProgram(const test_support::Bytes& program,
                    const ShxUtility::ShapesInFile& file = ShxUtility::ShapesInFile(),
                    int kind = ShxUtility::kShapes) {
        ShxUtility::ShapeInstructions instructions;
        const int result = ShxUtility::DecodeShape(instructions, program.data(),
                                                   static_cast<std::uint16_t>(program.size()), kind);
        return result != 0 ? result : Draw(instructions, file);
    }

    /// The path, which is ASCII.
    std::string Text() const {
        std::string text;
        for (const wchar_t character : path) {
            text += static_cast<char>(character);
        }
        return text;
    }
};

inline ShxUtility::ShapesInFile Loaded(const test_support::ShapeFileBuilder& builder) {
    ShxUtility::ShapesInFile file;
    if (ShxUtility::LoadShapeFile(builder.Text(), file, ShxUtility::kAllKinds) != 0) {
        throw std::runtime_error("the file of the test does not load");
    }
    return file;
}

} // namespace
