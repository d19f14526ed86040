#include "conversions/Restyling.h"

#include "StyleConversion/encoding/ExactNumbers.h"
#include "StyleConversion/encoding/ValueForms.h"

#include <string>
#include <utility>

namespace conversions {
namespace {

using TylModel::Parameter;

// Hosts read colours with and without a prefix: a default keeps the one that it has.
std::wstring ColorLike(const std::wstring& value, std::uint32_t color) {
    const std::wstring prefix = value.starts_with(L"0x") ? L"0x" : L"";
    return prefix + encoding::ColorString(color);
}

// With all digits that were asked for.
std::wstring WeightText(double weight) {
    wchar_t text[encoding::kLongestShortest];
    return {text, encoding::WriteShortest(text, weight)};
}

// Restyles the parameters of one symbol and keeps whether there were any.
class Restyler : public TylModel::ISymbolDefinitionVisitor {
public:
    explicit Restyler(const Restyling& restyling) : restyling_(restyling) {}

    void VisitSimpleSymbolDefinition(TylModel::SimpleSymbolDefinition& definition) override {
        auto& parameters = definition.GetParameterDefinition();
        for (int i = 0; i < parameters.GetCount(); ++i) {
            Change(*parameters.GetAt(i));
        }
    }

    void VisitCompoundSymbolDefinition(TylModel::CompoundSymbolDefinition& definition) override {
        for (int i = 0; i < definition.GetSymbols().GetCount(); ++i) {
            if (auto* const member = definition.GetSymbols().GetAt(i)->GetSymbolDefinition()) {
                VisitSimpleSymbolDefinition(*member);
            }
        }
    }

    bool isColored = false;
    bool isWeighted = false;

private:
    void Change(Parameter& parameter) {
        switch (parameter.GetDataType()) {
        case Parameter::kFillColor:
        case Parameter::kLineColor:
        case Parameter::kTextColor:
            if (restyling_.color) {
                parameter.SetDefaultValue(ColorLike(parameter.GetDefaultValue(), *restyling_.color));
                isColored = true;
            }
            break;
        case Parameter::kLineWeight:
            if (restyling_.weight) {
                parameter.SetDefaultValue(WeightText(*restyling_.weight));
                isWeighted = true;
            }
            break;
        case Parameter::kText:
        case Parameter::kAngle:
            break;
        }
    }

    const Restyling& restyling_;
};

void RestyleLosses(Captions& captions, const Restyling& restyling) {
    for (auto& [symbol, loss] : captions.losses) {
        loss.makeFaithful = [make = std::move(loss.makeFaithful), restyling] {
            auto faithful = make();
            if (faithful != nullptr) {
                Restyler restyler(restyling);
                faithful->AcceptVisitor(restyler);
            }
            return faithful;
        };
    }
}

} // namespace

void RestyledCounts::Add(const RestyledCounts& others) {
    symbols += others.symbols;
    colored += others.colored;
    weighted += others.weighted;
}

RestyledCounts Restyle(Conversion& conversion, const Restyling& restyling) {
    RestyledCounts counts;
    if (!restyling.color && !restyling.weight) {
        return counts;
    }
    for (const auto& symbol : conversion.owned) {
        Restyler restyler(restyling);
        symbol->AcceptVisitor(restyler);
        ++counts.symbols;
        counts.colored += restyler.isColored ? 1U : 0U;
        counts.weighted += restyler.isWeighted ? 1U : 0U;
    }
    RestyleLosses(conversion.captions, restyling);
    return counts;
}

} // namespace conversions
