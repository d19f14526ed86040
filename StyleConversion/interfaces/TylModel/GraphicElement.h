// The drawable elements of a symbol: paths and texts.
#pragma once

#include "TylModel/RootObject.h"

#include <string>

namespace TylModel {

class Path;
class Text;

/// Is shown each kind of graphic element by its AcceptVisitor.
class TYLMODEL_API IGraphicElementVisitor {
public:
    virtual ~IGraphicElementVisitor();
    /// The element is borrowed.
    virtual void VisitPath(Path& path) = 0;
    virtual void VisitText(Text& text) = 0;
};

/// Base of what a simple symbol draws. Every property is an expression string: a literal or a reference
/// "%IDENTIFIER%" to a parameter of the symbol. A property that was never set is empty. An element of this
/// class itself draws nothing.
class TYLMODEL_API GraphicElement : public TylRootObject {
public:
    ~GraphicElement() override;
};

/// Calls the AcceptVisitor of the element's own class; nothing happens for an element of another class than
/// the two below.
TYLMODEL_API void AcceptVisitor(GraphicElement& element, IGraphicElementVisitor& visitor);

/// One path: geometry with stroke and fill. Without a line colour there is no stroke, without a fill colour
/// no fill.
class TYLMODEL_API Path : public GraphicElement {
public:
    ~Path() override;
    /// Calls the visitor's operation for this class, once.
    virtual void AcceptVisitor(IGraphicElementVisitor& visitor);

    /// Path commands such as "M 0.0,0.0 L 10.0,0.0"; y points up.
    void SetGeometry(const std::wstring& geometry) { geometry_ = geometry; }
    const std::wstring& GetGeometry() const { return geometry_; }
    /// Eight hexadecimal digits, alpha first, or a parameter reference.
    void SetLineColor(const std::wstring& color) { lineColor_ = color; }
    const std::wstring& GetLineColor() const { return lineColor_; }
    /// As the line colour.
    void SetFillColor(const std::wstring& color) { fillColor_ = color; }
    const std::wstring& GetFillColor() const { return fillColor_; }
    /// Millimetres, or a parameter reference.
    void SetLineWeight(const std::wstring& weight) { lineWeight_ = weight; }
    const std::wstring& GetLineWeight() const { return lineWeight_; }
    /// "true" when the line weight grows with the symbol, "false" when it does not.
    void SetLineWeightScalable(const std::wstring& scalable) { lineWeightScalable_ = scalable; }
    const std::wstring& GetLineWeightScalable() const { return lineWeightScalable_; }

private:
    std::wstring geometry_;
    std::wstring lineColor_;
    std::wstring fillColor_;
    std::wstring lineWeight_;
    std::wstring lineWeightScalable_;
};

/// One text.
class TYLMODEL_API Text : public GraphicElement {
public:
    ~Text() override;
    /// Calls the visitor's operation for this class, once.
    virtual void AcceptVisitor(IGraphicElementVisitor& visitor);

    /// A text in single quotes, or a parameter reference.
    void SetContent(const std::wstring& content) { content_ = content; }
    const std::wstring& GetContent() const { return content_; }
    /// A typeface name, without quotes.
    void SetFontName(const std::wstring& name) { fontName_ = name; }
    const std::wstring& GetFontName() const { return fontName_; }
    /// In the units of the symbol's geometry.
    void SetHeight(const std::wstring& height) { height_ = height; }
    const std::wstring& GetHeight() const { return height_; }
    /// Degrees, counter-clockwise.
    void SetAngle(const std::wstring& angle) { angle_ = angle; }
    const std::wstring& GetAngle() const { return angle_; }
    /// The anchor that the alignments refer to, in the units of the symbol's geometry.
    void SetPositionX(const std::wstring& x) { positionX_ = x; }
    const std::wstring& GetPositionX() const { return positionX_; }
    void SetPositionY(const std::wstring& y) { positionY_ = y; }
    const std::wstring& GetPositionY() const { return positionY_; }
    /// "'Left'" or "'Right'"; centred when empty.
    void SetHorizontalAlignment(const std::wstring& alignment) { horizontalAlignment_ = alignment; }
    const std::wstring& GetHorizontalAlignment() const { return horizontalAlignment_; }
    /// "'Baseline'", "'Bottom'" or "'Top'"; in the middle when empty.
    void SetVerticalAlignment(const std::wstring& alignment) { verticalAlignment_ = alignment; }
    const std::wstring& GetVerticalAlignment() const { return verticalAlignment_; }
    /// As a path's colours.
    void SetTextColor(const std::wstring& color) { textColor_ = color; }
    const std::wstring& GetTextColor() const { return textColor_; }
    /// Each of the four styles is "true" or left empty.
    void SetBold(const std::wstring& bold) { bold_ = bold; }
    const std::wstring& GetBold() const { return bold_; }
    void SetItalic(const std::wstring& italic) { italic_ = italic; }
    const std::wstring& GetItalic() const { return italic_; }
    void SetUnderlined(const std::wstring& underlined) { underlined_ = underlined; }
    const std::wstring& GetUnderlined() const { return underlined_; }
    void SetOverlined(const std::wstring& overlined) { overlined_ = overlined; }
    const std::wstring& GetOverlined() const { return overlined_; }

private:
    std::wstring content_;
    std::wstring fontName_;
    std::wstring height_;
    std::wstring angle_;
    std::wstring positionX_;
    std::wstring positionY_;
    std::wstring horizontalAlignment_;
    std::wstring verticalAlignment_;
    std::wstring textColor_;
    std::wstring bold_;
    std::wstring italic_;
    std::wstring underlined_;
    std::wstring overlined_;
};

} // namespace TylModel
