#include "preview/ResolvedSymbol.h"

#include "preview/TextMetrics.h"

#include <unordered_map>
#include <utility>

namespace preview {
namespace {

// Reads the values of one simple definition against its own parameters, and says references in terms of the
// parameters of the whole symbol.
class DefinitionReader {
public:
    DefinitionReader(TylModel::SimpleSymbolDefinition& definition, ResolvedSymbol& symbol,
                     std::unordered_map<std::wstring, std::size_t>& indices)
        : definition_(definition), symbol_(symbol), indices_(indices) {}

    Member Read();

private:
    friend class PartReader;

    void ReadParameters();
    void ReadUsage(Member& member);

    std::size_t IndexInSymbol(std::size_t parameter) const {
        return indices_.find(scope_.Identifier(parameter))->second;
    }

    Amount ReadAmount(const std::wstring& expression);
    std::optional<Paint> ReadPaint(const std::wstring& expression);
    std::optional<double> ReadLength(const std::wstring& expression);
    bool ReadFlag(const std::wstring& expression) { return FlagOf(expression, scope_).value_or(false); }

    TylModel::SimpleSymbolDefinition& definition_;
    ResolvedSymbol& symbol_;
    std::unordered_map<std::wstring, std::size_t>& indices_;
    ParameterScope scope_;
};

class PartReader : public TylModel::IGraphicElementVisitor {
public:
    PartReader(DefinitionReader& reader, Member& member) : reader_(reader), member_(member) {}

    void VisitPath(TylModel::Path& path) override;
    void VisitText(TylModel::Text& text) override;

private:
    std::wstring ReadContent(TylModel::Text& text, std::optional<std::size_t>& parameter);

    DefinitionReader& reader_;
    Member& member_;
};

Amount DefinitionReader::ReadAmount(const std::wstring& expression) {
    Amount amount;
    if (expression.empty()) {
        return amount;
    }
    const auto value = NumberOf(expression, scope_);
    auto sum = ReadSum(expression, scope_);
    if (!value || !sum) {
        ++symbol_.unreadable;
        return amount;
    }
    amount.value = *value;
    amount.sum = std::move(*sum);
    for (Sum::Term& term : amount.sum.terms) {
        term.parameter = IndexInSymbol(term.parameter);
    }
    return amount;
}

std::optional<Paint> DefinitionReader::ReadPaint(const std::wstring& expression) {
    if (expression.empty()) {
        return std::nullopt;
    }
    Paint paint;
    const auto color = ColorOf(expression, scope_);
    if (color) {
        paint.color = *color;
    } else {
        ++symbol_.unreadable;
    }
    if (const auto parameter = ReadReference(expression, scope_)) {
        paint.parameter = IndexInSymbol(*parameter);
    }
    return paint;
}

// A distance between repetitions; nothing where there is none.
std::optional<double> DefinitionReader::ReadLength(const std::wstring& expression) {
    if (expression.empty()) {
        return std::nullopt;
    }
    const auto value = NumberOf(expression, scope_);
    if (!value) {
        ++symbol_.unreadable;
        return std::nullopt;
    }
    return *value == 0.0 ? std::nullopt : std::optional(std::fabs(*value));
}

void DefinitionReader::ReadParameters() {
    const auto& parameters = definition_.GetParameterDefinition();
    for (int i = 0; i < parameters.GetCount(); ++i) {
        scope_.Add(parameters.GetAt(i)->GetIdentifier(), parameters.GetAt(i)->GetDefaultValue());
    }
    for (int i = 0; i < parameters.GetCount(); ++i) {
        const TylModel::Parameter& parameter = *parameters.GetAt(i);
        if (!indices_.try_emplace(parameter.GetIdentifier(), symbol_.parameters.size()).second) {
            continue;
        }
        const std::wstring& value = parameter.GetDefaultValue();
        symbol_.parameters.push_back({parameter.GetIdentifier(), parameter.GetDisplayName(),
                                      parameter.GetDescription(), parameter.GetDataType(), value,
                                      ColorOf(value, scope_), NumberOf(value, scope_),
                                      TextOf(value, scope_)});
    }
}

void DefinitionReader::ReadUsage(Member& member) {
    member.hasUsage = true;
    if (const auto* const line = definition_.GetLineUsage()) {
        member.usage = Usage::kLine;
        member.angle = ReadAmount(line->GetAngle());
        member.fromAngle = TextOf(line->GetAngleControl(), scope_) == L"FromAngle";
        member.repeat = ReadLength(line->GetRepeat());
        member.startOffset = ReadAmount(line->GetStartOffset()).value;
    } else if (const auto* const area = definition_.GetAreaUsage()) {
        member.usage = Usage::kArea;
        member.angle = ReadAmount(area->GetAngle());
        member.repeatX = ReadLength(area->GetRepeatX());
        member.repeatY = ReadLength(area->GetRepeatY());
    } else if (const auto* const point = definition_.GetPointUsage()) {
        member.angle = ReadAmount(point->GetAngle());
    } else {
        member.hasUsage = false;
    }
}

Member DefinitionReader::Read() {
    ReadParameters();
    Member member;
    ReadUsage(member);
    PartReader parts(*this, member);
    const auto& graphics = definition_.GetGraphics();
    for (int i = 0; i < graphics.GetCount(); ++i) {
        TylModel::AcceptVisitor(*graphics.GetAt(i), parts);
    }
    return member;
}

void PartReader::VisitPath(TylModel::Path& path) {
    PathPart part;
    if (!ReadPath(path.GetGeometry(), part.outline).complete) {
        ++reader_.symbol_.unreadable;
        return;
    }
    part.line = reader_.ReadPaint(path.GetLineColor());
    part.fill = reader_.ReadPaint(path.GetFillColor());
    part.weight = reader_.ReadAmount(path.GetLineWeight());
    part.scalable = reader_.ReadFlag(path.GetLineWeightScalable());
    member_.frame.Include(part.outline.Bounds());
    if (part.line || part.fill) {
        member_.bounds.Include(part.outline.Bounds());
    }
    member_.parts.emplace_back(std::move(part));
}

std::wstring PartReader::ReadContent(TylModel::Text& text, std::optional<std::size_t>& parameter) {
    if (const auto reference = ReadReference(text.GetContent(), reader_.scope_)) {
        parameter = reader_.IndexInSymbol(*reference);
    }
    if (const auto content = TextOf(text.GetContent(), reader_.scope_)) {
        return *content;
    }
    ++reader_.symbol_.unreadable;
    return text.GetContent();
}

void PartReader::VisitText(TylModel::Text& text) {
    TextPart part;
    part.content = ReadContent(text, part.contentParameter);
    part.fontName = TextOf(text.GetFontName(), reader_.scope_).value_or(text.GetFontName());
    part.height = std::fabs(reader_.ReadAmount(text.GetHeight()).value);
    part.angle = reader_.ReadAmount(text.GetAngle());
    part.position = {reader_.ReadAmount(text.GetPositionX()).value,
                     reader_.ReadAmount(text.GetPositionY()).value};
    const auto horizontal = TextOf(text.GetHorizontalAlignment(), reader_.scope_);
    part.horizontal = horizontal == L"Left"    ? HorizontalAnchor::kLeft
                      : horizontal == L"Right" ? HorizontalAnchor::kRight
                                               : HorizontalAnchor::kMiddle;
    const auto vertical = TextOf(text.GetVerticalAlignment(), reader_.scope_);
    part.vertical = vertical == L"Baseline" ? VerticalAnchor::kBaseline
                    : vertical == L"Bottom" ? VerticalAnchor::kBottom
                    : vertical == L"Top"    ? VerticalAnchor::kTop
                                            : VerticalAnchor::kMiddle;
    part.color = reader_.ReadPaint(text.GetTextColor()).value_or(Paint{});
    part.bold = reader_.ReadFlag(text.GetBold());
    part.italic = reader_.ReadFlag(text.GetItalic());
    part.underlined = reader_.ReadFlag(text.GetUnderlined());
    part.overlined = reader_.ReadFlag(text.GetOverlined());
    const Box bounds = EstimatedBounds(part);
    member_.frame.Include(bounds);
    member_.bounds.Include(bounds);
    member_.parts.emplace_back(std::move(part));
}

class SymbolReader : public TylModel::ISymbolDefinitionVisitor {
public:
    void VisitSimpleSymbolDefinition(TylModel::SimpleSymbolDefinition& definition) override {
        symbol.members.push_back(DefinitionReader(definition, symbol, indices_).Read());
    }

    void VisitCompoundSymbolDefinition(TylModel::CompoundSymbolDefinition& definition) override {
        for (int i = 0; i < definition.GetSymbols().GetCount(); ++i) {
            if (auto* const member = definition.GetSymbols().GetAt(i)->GetSymbolDefinition()) {
                VisitSimpleSymbolDefinition(*member);
            }
        }
    }

    ResolvedSymbol symbol;

private:
    std::unordered_map<std::wstring, std::size_t> indices_;
};

} // namespace

ResolvedSymbol Resolve(TylModel::SymbolDefinition& symbol) {
    SymbolReader reader;
    symbol.AcceptVisitor(reader);
    reader.symbol.name = symbol.GetName();
    reader.symbol.description = symbol.GetDescription();
    if (!reader.symbol.members.empty()) {
        reader.symbol.usage = reader.symbol.members.front().usage;
    }
    return std::move(reader.symbol);
}

} // namespace preview
