// A symbol model of another making: texts are UTF-16, set by value and given back converted; collections are
// lists that are handed out by pointer; each symbol keeps count of how often it was changed.
#pragma once

#include <cstddef>
#include <list>
#include <memory>
#include <string>
#include <utility>

namespace TylModel {

std::u16string Narrowed(const std::wstring& text);
std::wstring Widened(const std::u16string& text);

class TylRootObject {
public:
    TylRootObject();
    virtual ~TylRootObject();
    TylRootObject(TylRootObject&&) = delete;

    static long Living();
};

/// What can be drawn or said of a symbol, each with a serial number.
class Numbered : public TylRootObject {
public:
    unsigned long serial = 0;
};

template <class T, class Item = std::unique_ptr<T>, class Items = std::list<Item>>
class TylOwnerCollection {
public:
    int Adopt(T* item) {
        Item owned(item);
        items_.push_back(std::move(owned));
        return -1;
    }
    std::size_t HowMany() { return items_.size(); }
    T& operator[](std::size_t place) {
        return **std::next(items_.begin(), static_cast<std::ptrdiff_t>(place));
    }

private:
    Items items_;
};

class ISymbolDefinitionVisitor;
class IGraphicElementVisitor;

/// One property: what was set, and whether anything was.
struct Property {
    std::u16string text;
    bool isSet = false;
    void operator=(const std::wstring& value) {
        text = Narrowed(value);
        isSet = true;
    }
};

class SymbolDefinition : public Numbered {
public:
    void SetName(std::wstring text) { name = text; }
    void SetDescription(std::wstring text) { description = text; }
    void AcceptVisitor(ISymbolDefinitionVisitor*) {}
    Property name, description;
};

class GraphicElement : public Numbered {
public:
    virtual bool IsPath() const { return false; }
};

class Path final : public GraphicElement {
public:
    bool IsPath() const override { return true; }
    void SetGeometry(std::wstring text) { geometry = text; }
    void SetLineColor(std::wstring text) { lineColor = text; }
    void SetFillColor(std::wstring text) { fillColor = text; }
    void SetLineWeight(std::wstring text) { lineWeight = text; }
    void SetLineWeightScalable(std::wstring text) { scalable = text; }
    void AcceptVisitor(IGraphicElementVisitor*) {}
    Property geometry, lineColor, fillColor, lineWeight, scalable;
};

class Text final : public GraphicElement {
public:
    void SetContent(std::wstring text) { content = text; }
    void SetFontName(std::wstring text) { fontName = text; }
    void SetHeight(std::wstring text) { height = text; }
    void SetAngle(std::wstring text) { angle = text; }
    void SetPositionX(std::wstring text) { x = text; }
    void SetPositionY(std::wstring text) { y = text; }
    void SetHorizontalAlignment(std::wstring text) { horizontal = text; }
    void SetVerticalAlignment(std::wstring text) { vertical = text; }
    void SetTextColor(std::wstring text) { color = text; }
    void SetBold(std::wstring text) { bold = text; }
    void SetItalic(std::wstring text) { italic = text; }
    void SetUnderlined(std::wstring text) { underlined = text; }
    void SetOverlined(std::wstring text) { overlined = text; }
    void AcceptVisitor(IGraphicElementVisitor*) {}
    Property content, fontName, height, angle, x, y, horizontal, vertical, color, bold, italic, underlined,
        overlined;
};

class Parameter final : public Numbered {
public:
    enum class DataType : int { String, Real = 1, Angle = 5 };
    void SetIdentifier(std::wstring text) {
        identifier = text;
        asked_ = std::move(text);
    }
    const std::wstring& GetIdentifier() { return asked_; }
    void SetDisplayName(std::wstring text) { displayName = text; }
    void SetDescription(std::wstring text) { description = text; }
    void SetDefaultValue(std::wstring text) { defaultValue = text; }
    void SetDataType(DataType value) { type = value; }
    Property identifier, displayName, description, defaultValue;
    DataType type{};

private:
    std::wstring asked_;
};

class PointUsage final : public TylRootObject {
public:
    void SetAngle(std::wstring text) { angle = text; }
    Property angle;
};

class LineUsage final : public TylRootObject {
public:
    void SetAngle(std::wstring text) { angle = text; }
    void SetAngleControl(std::wstring text) { control = text; }
    void SetRepeat(std::wstring text) { repeat = text; }
    void SetStartOffset(std::wstring text) { offset = text; }
    Property angle, control, repeat, offset;
};

class AreaUsage final : public TylRootObject {
public:
    void SetAngle(std::wstring text) { angle = text; }
    void SetRepeatX(std::wstring text) { repeatX = text; }
    void SetRepeatY(std::wstring text) { repeatY = text; }
    Property angle, repeatX, repeatY;
};

class SimpleSymbolDefinition final : public SymbolDefinition {
public:
    TylOwnerCollection<GraphicElement>* GetGraphics() { return &graphics_; }
    TylOwnerCollection<Parameter>* GetParameterDefinition() { return &parameters_; }
    void AdoptPointUsage(PointUsage* usage) { point.reset(usage); }
    void AdoptLineUsage(LineUsage* usage) { line.reset(usage); }
    void AdoptAreaUsage(AreaUsage* usage) { area.reset(usage); }
    LineUsage* GetLineUsage() { return line.get(); }
    std::unique_ptr<PointUsage> point;
    std::unique_ptr<LineUsage> line;
    std::unique_ptr<AreaUsage> area;

private:
    TylOwnerCollection<GraphicElement> graphics_;
    TylOwnerCollection<Parameter> parameters_;
};

class SimpleSymbol final : public TylRootObject {
public:
    void AdoptSymbolDefinition(SimpleSymbolDefinition* definition) { definition_.reset(definition); }
    SimpleSymbolDefinition& GetSymbolDefinition() { return *definition_; }

private:
    std::unique_ptr<SimpleSymbolDefinition> definition_;
};

class CompoundSymbolDefinition final : public SymbolDefinition {
public:
    TylOwnerCollection<SimpleSymbol>* GetSymbols() { return &symbols_; }

private:
    TylOwnerCollection<SimpleSymbol> symbols_;
};

} // namespace TylModel
