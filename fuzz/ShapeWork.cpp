#include "fuzz/ShapeWork.h"

#include "StyleConversion/shx/ShxUtility.h"

#include <algorithm>

namespace fuzzing {
namespace {

using namespace ShxUtility;

// Goes the way that drawing goes, drawing nothing; it ends where drawing fails at the latest.
class WorkCounter {
public:
    WorkCounter(const ShapesInFile& file, std::size_t& budget) : file_(file), budget_(budget) {}

    bool Fits(const std::uint8_t* program, std::size_t size, std::int32_t kind) {
        ShapeInstructions instructions;
        DecodeShape(instructions, program, static_cast<std::uint16_t>(size), kind);
        // Decoding a subshape again each time is work as well.
        const std::size_t work = instructions.size() + size + 1;
        if (work > budget_) {
            return false;
        }
        budget_ -= work;
        return std::all_of(
            instructions.begin(), instructions.end(), [&](const ShapeInstruction& instruction) {
                return instruction.op != ShapeOp::Subshape ||
                       SubshapeFits(static_cast<std::uint16_t>(static_cast<std::int32_t>(instruction.x)));
            });
    }

private:
    bool SubshapeFits(std::uint16_t number) {
        const auto found = file_.numberIndex.find(number);
        const bool active = std::find(active_.begin(), active_.end(), number) != active_.end();
        if (active || found == file_.numberIndex.end()) {
            return true;
        }
        const CharArray& program = file_.shapes[found->second].data;
        active_.push_back(number);
        const bool fits = Fits(program.data(), program.size(), kShapes);
        active_.pop_back();
        return fits;
    }

    const ShapesInFile& file_;
    std::size_t& budget_;
    std::vector<std::uint16_t> active_;
};

} // namespace

bool FitsBudget(const ShapesInFile& file, const std::uint8_t* program, std::size_t size, std::int32_t kind,
                std::size_t& budget) {
    return WorkCounter(file, budget).Fits(program, size, kind);
}

bool AllFitBudget(const ShapesInFile& file) {
    std::size_t budget = kMostInstructions;
    return std::all_of(file.shapes.begin(), file.shapes.end(), [&](const Shape& shape) {
        return FitsBudget(file, shape.data.data(), shape.data.size(), file.kind, budget);
    });
}

bool AllFitBudget(std::string_view shapeFile, const ShapeFilePolicy& policy) {
    ShapesInFile file;
    ShapeFileReport report;
    LoadShapeFile(shapeFile, file, kAllKinds, report, policy);
    return AllFitBudget(file);
}

} // namespace fuzzing
