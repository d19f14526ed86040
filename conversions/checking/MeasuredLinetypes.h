// How wide the shapes and texts of linetypes are, and which shapes they use.
#pragma once

#include "StyleConversion/linetype/LinStyleVisitor.h"
#include "StyleConversion/shx/ShxUtility.h"
#include "diagnostics/Code.h"
#include "preview/Box.h"

#include <cstddef>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace conversions {

/// Looks at each linetype of a walk and passes it on.
class MeasuredLinetypes final : public LineConverter::LinStyleVisitor {
public:
    /// An element that is wider than its gap; both counted from 0.
    struct Remark {
        std::size_t linetype = 0;
        std::size_t element = 0;
        diagnostics::Code code = diagnostics::Code::kWiderThanGap;
        std::vector<std::string> subjects;
    };

    explicit MeasuredLinetypes(LineConverter::LinStyleVisitor& visitor) : visitor_(visitor) {}

    void Begin() override { visitor_.Begin(); }
    void End() override { visitor_.End(); }
    void BeginLinetype(const LineConverter::LinetypeRecord& record, const std::string& description,
                       int elementCount) override;
    void EndLinetype() override;
    void Dot() override;
    void Dash(double length) override;
    void Gap(double length) override;
    void Shape(const std::string& shapeName, const LineConverter::ElementTransform& transform,
               const ShxUtility::ShapesInFile& file) override;
    void Text(const std::string& text, const LineConverter::ElementTransform& transform,
              const LineConverter::FontInfo& font, const LineConverter::ShapeFileMap& shapeFiles) override;

    const std::vector<Remark>& Remarks() const { return remarks_; }
    /// Whether a linetype uses that shape of the file.
    bool Uses(const ShxUtility::ShapesInFile& file, const std::string& shapeName) const {
        return used_.contains({&file, shapeName});
    }

private:
    struct Interval {
        double from = 0.0;
        double to = 0.0;
    };
    struct Mark {
        std::size_t element = 0;
        std::string name;        // "shape TRACK", "text \"GAS\""
        Interval extent;         // along the line
        bool isFixed = false;    // keeps its angle to the drawing: as it is along a line of that angle
        bool isEstimate = false; // of a typeface, whose letters nobody has measured
    };

    void AddOutline(Mark mark, const LineConverter::ElementTransform& transform, const std::wstring& path);
    void AddTypefaceText(const std::string& text, const LineConverter::ElementTransform& transform,
                         const LineConverter::FontInfo& font);
    // Notes the mark, which is `box` from the place of its element, unless it stands above or below the line.
    void AddMark(Mark mark, const LineConverter::ElementTransform& transform, const preview::Box& box);
    void JudgeMark(const Mark& mark);
    // The gap around a position, the pattern repeated; empty where something is drawn there.
    Interval GapAround(double position) const;

    LineConverter::LinStyleVisitor& visitor_;
    std::vector<Remark> remarks_;
    std::set<std::pair<const ShxUtility::ShapesInFile*, std::string>> used_;
    std::size_t linetype_ = 0; // counted from 1 while one is walked
    std::size_t element_ = 0;
    double position_ = 0.0;
    std::vector<Interval> drawn_; // dashes and dots
    std::vector<Mark> marks_;
};

} // namespace conversions
