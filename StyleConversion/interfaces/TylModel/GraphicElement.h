// The drawable elements of a symbol: paths and texts.
#pragma once

#include "TylModel/CommonTexts.h"
#include "TylModel/RootObject.h"

#include <string>
#include <utility>

namespace TylModel {

class Path;
class Text;

/// Is shown each kind of graphic element by GraphicElement::AcceptVisitor.
class TYLMODEL_API IGraphicElementVisitor {
public:
    virtual ~IGraphicElementVisitor();
    /// The element is borrowed.
    virtual void VisitPath(Path& path) = 0;
    virtual void VisitText(Text& text) = 0;
};

/// Base of what a simple symbol draws. Every property is an expression string: a literal or a reference
/// "%IDENTIFIER%" to a parameter of the symbol. A property that was never set is empty.
class TYLMODEL_API GraphicElement : public TylRootObject {
public:
    ~GraphicElement() override;
    /// Calls the visitor's operation for this element's class, once.
    virtual void AcceptVisitor(IGraphicElementVisitor& visitor) = 0;
};

/// One path: geometry with stroke and fill. Without a line colour there is no stroke, without a fill colour
/// no fill.
class TYLMODEL_API Path : public GraphicElement {
public:
    ~Path() override;
    void AcceptVisitor(IGraphicElementVisitor& visitor) override;

    /// Path commands such as "M 0.0,0.0 L 10.0,0.0"; y points up.
    void SetGeometry(const std::wstring& geometry) { geometry_ = geometry; }
    /// The same without a copy, for paths of many megabytes.
    void SetGeometry(std::wstring&& geometry) { geometry_ = std::move(geometry); }
    const std::wstring& GetGeometry() const { return geometry_; }
    /// Eight hexadecimal digits, alpha first, or a parameter reference.
    void SetLineColor(const std::wstring& color) { lineColor_.Set(color); }
    void SetLineColor(std::wstring&& color) { lineColor_.Set(std::move(color)); }
    const std::wstring& GetLineColor() const { return lineColor_.Get(); }
    /// As the line colour.
    void SetFillColor(const std::wstring& color) { fillColor_.Set(color); }
    const std::wstring& GetFillColor() const { return fillColor_.Get(); }
    /// Millimetres, or a parameter reference.
    void SetLineWeight(const std::wstring& weight) { lineWeight_.Set(weight); }
    void SetLineWeight(std::wstring&& weight) { lineWeight_.Set(std::move(weight)); }
    const std::wstring& GetLineWeight() const { return lineWeight_.Get(); }
    /// "true" when the line weight grows with the symbol, "false" when it does not.
    void SetLineWeightScalable(const std::wstring& scalable) { lineWeightScalable_.Set(scalable); }
    const std::wstring& GetLineWeightScalable() const { return lineWeightScalable_.Get(); }

private:
    std::wstring geometry_;
    PropertyText lineColor_;
    PropertyText fillColor_;
    PropertyText lineWeight_;
    PropertyText lineWeightScalable_;
};

/// One text.
class TYLMODEL_API Text : public GraphicElement {
public:
    ~Text() override;
    void AcceptVisitor(IGraphicElementVisitor& visitor) override;

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
    void SetHorizontalAlignment(const std::wstring& alignment) { horizontalAlignment_.Set(alignment); }
    const std::wstring& GetHorizontalAlignment() const { return horizontalAlignment_.Get(); }
    /// "'Baseline'", "'Bottom'" or "'Top'"; in the middle when empty.
    void SetVerticalAlignment(const std::wstring& alignment) { verticalAlignment_.Set(alignment); }
    const std::wstring& GetVerticalAlignment() const { return verticalAlignment_.Get(); }
    /// As a path's colours.
    void SetTextColor(const std::wstring& color) { textColor_.Set(color); }
    const std::wstring& GetTextColor() const { return textColor_.Get(); }
    /// Each of the four styles is "true" or left empty.
    void SetBold(const std::wstring& bold) { bold_.Set(bold); }
    const std::wstring& GetBold() const { return bold_.Get(); }
    void SetItalic(const std::wstring& italic) { italic_.Set(italic); }
    const std::wstring& GetItalic() const { return italic_.Get(); }
    void SetUnderlined(const std::wstring& underlined) { underlined_.Set(underlined); }
    const std::wstring& GetUnderlined() const { return underlined_.Get(); }
    void SetOverlined(const std::wstring& overlined) { overlined_.Set(overlined); }
    const std::wstring& GetOverlined() const { return overlined_.Get(); }

private:
    std::wstring content_;
    std::wstring fontName_;
    std::wstring height_;
    std::wstring angle_;
    std::wstring positionX_;
    std::wstring positionY_;
    PropertyText horizontalAlignment_;
    PropertyText verticalAlignment_;
    PropertyText textColor_;
    PropertyText bold_;
    PropertyText italic_;
    PropertyText underlined_;
    PropertyText overlined_;
};

} // namespace TylModel
