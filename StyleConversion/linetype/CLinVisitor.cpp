// Builds one line symbol for each linetype that it is shown.
#include "StyleConversion/linetype/CLinVisitor.h"

#include "StyleConversion/encoding/ControlCodes.h"
#include "StyleConversion/encoding/Degrees.h"
#include "StyleConversion/encoding/PathCommands.h"
#include "StyleConversion/encoding/ValueForms.h"
#include "StyleConversion/linetype/LinNames.h"
#include "StyleConversion/linetype/LineSymbolParts.h"
#include "StyleConversion/linetype/ShxDrawing.h"
#include "StyleConversion/platform/CodePage.h"

#include <cmath>

namespace LineConverter {
namespace {

using TylModel::CompoundSymbolDefinition;
using TylModel::SimpleSymbolDefinition;

// The bytes of a font's information.
constexpr std::size_t kHeightByte = 0;
constexpr std::size_t kModesByte = 2;
constexpr std::uint8_t kBothOrientations = 2;

// Whether an element keeps its angle to the drawing: a rotation against the line goes before.
bool HasFixedAngle(const ElementTransform& transform) {
    return transform.relativeRotation == 0.0 && !std::isnan(transform.absoluteRotation);
}

} // namespace

CLinVisitor::CLinVisitor(double scale, LinErrorLog* errorLog, const LinPolicy& policy)
    : results_(std::make_unique<std::vector<TylModel::SymbolDefinition*>>()), scale_(scale),
      errorLog_(errorLog), policy_(policy) {}

CLinVisitor::~CLinVisitor() {
    DeleteResults();
}

void CLinVisitor::DeleteResults() {
    for (TylModel::SymbolDefinition* const definition : *results_) {
        delete definition;
    }
    results_->clear();
}

void CLinVisitor::Begin() {
    DeleteResults();
    compound_.reset();
    simple_.reset();
    failed_ = false;
}

void CLinVisitor::End() {}

std::vector<TylModel::SymbolDefinition*>* CLinVisitor::TakeResults() {
    if (failed_) {
        return nullptr;
    }
    auto fresh = std::make_unique<std::vector<TylModel::SymbolDefinition*>>();
    results_.swap(fresh);
    return fresh.release();
}

void CLinVisitor::BeginLinetype(const LinetypeRecord& record, const std::string& description,
                                int /*elementCount*/) {
    dashPath_.clear();
    position_ = 0.0;
    compound_.reset();
    simple_ = std::make_unique<SimpleSymbolDefinition>();
    hasText_ = false;
    linetypeFailed_ = false;
    if (record.name.empty()) {
        name_ = L"LINE_SYMBOL";
    } else if (AnsiToWide(record.name, name_) != kSuccess) {
        Fail(LinErrorKind::kNameNotConvertible, {});
    }
    if (AnsiToWide(description, description_) != kSuccess) {
        Fail(LinErrorKind::kNameNotConvertible, {});
    }
}

void CLinVisitor::EndLinetype() {
    if (linetypeFailed_) {
        compound_.reset();
        simple_.reset();
        return;
    }
    AddLinePath(*simple_, dashPath_);
    AddLineColorParameter(*simple_);
    AddLineWeightParameter(*simple_);
    if (hasText_) {
        AddTextColorParameter(*simple_);
    }
    const std::wstring repeat = encoding::FormatNumber(position_ * scale_);
    AddLineUsage(*simple_).SetRepeat(repeat);
    simple_->SetName(name_);

    // Room first: nothing may fail between letting go of a symbol and keeping its address.
    if (results_->size() == results_->capacity()) {
        results_->reserve(results_->size() * 2 + 1);
    }
    if (compound_ == nullptr) {
        if (!description_.empty()) {
            simple_->SetDescription(description_);
        }
        results_->push_back(simple_.release());
        return;
    }
    auto& members = host::Referred(compound_->GetSymbols());
    for (int i = host::CountOf(members) - 1; i >= 0; --i) {
        auto& definition = host::Referred(host::ItemAt(members, i).GetSymbolDefinition());
        host::Referred(definition.GetLineUsage()).SetRepeat(repeat);
    }
    auto dashes = std::make_unique<TylModel::SimpleSymbol>();
    dashes->AdoptSymbolDefinition(simple_.release());
    host::Adopt(members, std::move(dashes));
    compound_->SetName(name_);
    if (!description_.empty()) {
        compound_->SetDescription(description_);
    }
    results_->push_back(compound_.release());
}

CompoundSymbolDefinition& CLinVisitor::Compound() {
    if (compound_ == nullptr) {
        compound_ = std::make_unique<CompoundSymbolDefinition>();
    }
    return *compound_;
}

void CLinVisitor::Dot() {
    const double x = position_ * scale_;
    encoding::AppendMove(dashPath_, x, 0.0);
    encoding::AppendLine(dashPath_, x, 0.0);
}

void CLinVisitor::Dash(double length) {
    encoding::AppendMove(dashPath_, position_ * scale_, 0.0);
    position_ += length;
    encoding::AppendLine(dashPath_, position_ * scale_, 0.0);
}

void CLinVisitor::Gap(double length) {
    position_ += length;
}

double CLinVisitor::ElementX(const ElementTransform& transform) const {
    return (transform.offsetX + position_) * scale_;
}

double CLinVisitor::ElementY(const ElementTransform& transform) const {
    return transform.offsetY * scale_;
}

CLinVisitor::Place CLinVisitor::PlaceInFixedFrame(const ElementTransform& transform) const {
    const double y = ElementY(transform);
    // Required: R40
    if (!policy_.faithful || y == 0.0 || transform.absoluteRotation == 0.0) {
        return {0.0, y};
    }
    const double angle = transform.absoluteRotation * encoding::kRadiansPerDegree;
    return {y * std::sin(angle), y * std::cos(angle)};
}

void CLinVisitor::Shape(const std::string& shapeName, const ElementTransform& transform,
                        const ShxUtility::ShapesInFile& file) {
    const double x = ElementX(transform);
    const auto found = file.nameIndex.find(shapeName);
    if (found == file.nameIndex.end()) {
        Fail(LinErrorKind::kShapeNotInFile, platform::AnsiToWide(shapeName));
        return;
    }
    ShxPen pen;
    const Place place =
        HasFixedAngle(transform) ? PlaceInFixedFrame(transform) : Place{x, ElementY(transform)};
    pen.x = place.x;
    pen.y = place.y;
    pen.scale = transform.scale * scale_;
    pen.rotation = transform.relativeRotation;
    std::wstring path;
    const ShxUtility::ShxResult drawn = DrawShxShape(path, pen, file.shapes[found->second], file);
    if (drawn != ShxUtility::kSuccess) {
        Fail(LinErrorKind::kShapeNotDrawn, platform::AnsiToWide(shapeName), drawn);
        return;
    }
    AddDrawnMember(path, transform, x);
}

void CLinVisitor::Text(const std::string& text, const ElementTransform& transform, const FontInfo& font,
                       const ShapeFileMap& shapeFiles) {
    if (font.typeface.empty()) {
        AddShxText(text, transform, font, shapeFiles);
    } else {
        AddTrueTypeText(text, transform, font);
    }
}

void CLinVisitor::AddTrueTypeText(const std::string& text, const ElementTransform& transform,
                                  const FontInfo& font) {
    const std::wstring yes = L"true";
    auto element = std::make_unique<TylModel::Text>();
    if (font.bold) {
        element->SetBold(yes);
    }
    if (font.italic) {
        element->SetItalic(yes);
    }
    element->SetFontName(font.typeface);
    std::wstring wide;
    if (AnsiToWide(text, wide) != kSuccess) {
        Fail(LinErrorKind::kTextNotConvertible, {});
        return;
    }
    const encoding::DecodedText decoded = encoding::DecodeControlCodes(wide, policy_.looseForm);
    element->SetContent(encoding::QuotedSafely(decoded.characters));
    if (decoded.overlined) {
        element->SetOverlined(yes);
    }
    if (decoded.underlined) {
        element->SetUnderlined(yes);
    }
    element->SetHorizontalAlignment(std::wstring(L"'Left'"));
    element->SetVerticalAlignment(std::wstring(L"'Baseline'"));
    const double size = font.textSize != 0.0 ? transform.scale * font.textSize : transform.scale;
    element->SetHeight(encoding::FormatNumber(size * scale_));
    element->SetTextColor(std::wstring(L"%TEXTCOLOR%"));
    const double x = ElementX(transform);
    if (HasFixedAngle(transform)) {
        const Place place = PlaceInFixedFrame(transform);
        if (place.x != 0.0) {
            element->SetPositionX(encoding::FormatNumber(place.x));
        }
        element->SetPositionY(encoding::FormatNumber(place.y));
        SimpleSymbolDefinition& definition = AddMember(Compound(), name_);
        FixAngle(AddLineUsage(definition), transform.absoluteRotation, x);
        host::Adopt(definition.GetGraphics(), std::move(element));
        AddTextColorParameter(definition);
        return;
    }
    if (transform.relativeRotation != 0.0) {
        element->SetAngle(encoding::FormatNumber(transform.relativeRotation));
    }
    element->SetPositionX(encoding::FormatNumber(x));
    element->SetPositionY(encoding::FormatNumber(ElementY(transform)));
    host::Adopt(simple_->GetGraphics(), std::move(element));
    hasText_ = true;
}

void CLinVisitor::AddShxText(const std::string& text, const ElementTransform& transform, const FontInfo& font,
                             const ShapeFileMap& shapeFiles) {
    const auto found = shapeFiles.find(font.fileName);
    if (found == shapeFiles.end()) {
        Fail(LinErrorKind::kFontNotLoaded, font.fileName);
        return;
    }
    const ShxUtility::ShapesInFile& file = found->second;
    if (file.kind != ShxUtility::kFont && file.kind != ShxUtility::kUnifont) {
        Fail(LinErrorKind::kNotAFont, font.fileName);
        return;
    }
    const std::vector<std::uint8_t>& information = file.fontInfo;
    if (information.size() <= (font.isVertical ? kModesByte : kHeightByte)) {
        Fail(LinErrorKind::kFontWithoutInformation, font.fileName);
        return;
    }
    const auto height = static_cast<std::int8_t>(information[kHeightByte]);
    if (height == 0) {
        Fail(LinErrorKind::kFontHeightZero, font.fileName);
        return;
    }
    std::wstring wide;
    if (AnsiToWide(text, wide) != kSuccess) {
        Fail(LinErrorKind::kTextNotConvertible, {});
        return;
    }
    const double x = ElementX(transform);
    ShxPen pen;
    const Place place =
        HasFixedAngle(transform) ? PlaceInFixedFrame(transform) : Place{x, ElementY(transform)};
    pen.x = place.x;
    pen.y = place.y;
    pen.scale = transform.scale * scale_ / height;
    if (font.textSize != 0.0) {
        pen.scale *= font.textSize;
    }
    pen.rotation = transform.relativeRotation;
    pen.vertical = font.isVertical && information[kModesByte] == kBothOrientations;
    std::wstring path;
    for (const wchar_t character :
         ToUtf16Units(encoding::DecodeControlCodes(wide, policy_.looseForm).characters)) {
        const ShxUtility::Shape* const glyph = FindGlyph(file, character);
        if (glyph == nullptr) {
            continue;
        }
        const ShxUtility::ShxResult drawn = DrawShxShape(path, pen, *glyph, file);
        if (drawn != ShxUtility::kSuccess) {
            Fail(LinErrorKind::kCharacterNotDrawn, std::wstring(1, character), drawn);
            return;
        }
    }
    AddDrawnMember(path, transform, x);
}

void CLinVisitor::AddDrawnMember(const std::wstring& path, const ElementTransform& transform, double x) {
    if (path.empty()) {
        return;
    }
    SimpleSymbolDefinition& definition = AddMember(Compound(), name_);
    AddLineColorParameter(definition);
    AddLineWeightParameter(definition);
    AddLinePath(definition, path);
    TylModel::LineUsage& usage = AddLineUsage(definition);
    if (HasFixedAngle(transform)) {
        FixAngle(usage, transform.absoluteRotation, x);
    }
}

void CLinVisitor::Fail(LinErrorKind kind, const std::wstring& subject, ShxUtility::ShxResult shxResult) {
    (policy_.errorsStayLocal ? linetypeFailed_ : failed_) = true;
    if (errorLog_ != nullptr) {
        // The walk itself has gone well: no result code.
        LinError& error = errorLog_->Add(kSuccess, kind);
        error.subject = subject;
        error.shxResult = shxResult;
    }
}

} // namespace LineConverter
