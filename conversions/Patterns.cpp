#include "conversions/Patterns.h"

#include "StyleConversion/pattern/AreaSymbol.h"
#include "StyleConversion/pattern/FaithfulSymbol.h"
#include "StyleConversion/platform/CodePage.h"
#include "StyleConversion/platform/Utf8.h"
#include "conversions/checking/PatternCheck.h"
#include "conversions/reading/FileKind.h"
#include "conversions/reading/Patterns.h"
#include "conversions/reading/Shown.h"
#include "diagnostics/Sentences.h"

#include <set>
#include <utility>

namespace conversions {
namespace {

using diagnostics::Code;
using diagnostics::Diagnostics;
using diagnostics::Outcome;
using diagnostics::Severity;

class PatternConversion {
public:
    PatternConversion(const Input& input, const PatternsOptions& options, Front& front)
        : input_(input), options_(options), front_(front) {}

    Conversion Run() {
        result_.fidelity = options_.fidelity;
        Diagnostics& found = result_.diagnostics;
        if (ReadPatterns(input_, Policy(), loaded_, found)) {
            if (options_.tolerant) {
                found = ToleratedPatterns(input_, loaded_);
            }
            TellMissingUnit(input_, loaded_, options_.unit, found);
            result_.isConverted = options_.names.empty() ? ConvertAll() : ConvertNamed();
            if (options_.tolerant) {
                SortByLine(found);
            }
            if (!result_.isConverted && (options_.names.empty() || options_.tolerant)) {
                found.push_back({Severity::kError,
                                 Code::kNothingConverted,
                                 {input_.name},
                                 {options_.names.empty() ? "patterns" : "patterns asked for"}});
            }
        }
        if (result_.isConverted) {
            WarnOfKind(input_, FileKind::kPatterns, found);
            result_.UseAll();
        } else {
            TellWrongKind(input_, FileKind::kPatterns, KindAdvice::kOtherCommand, found);
        }
        MergeAlike(found);
        return std::move(result_);
    }

private:
    pattern::PatternPolicy Policy() const {
        pattern::PatternPolicy policy =
            options_.tolerant ? pattern::kTolerantPatternPolicy : pattern::PatternPolicy();
        policy.wantedUnit = options_.unit;
        policy.fidelity = options_.fidelity;
        return policy;
    }

    // All that can be converted, in the order of the names.
    bool ConvertAll() {
        front_.BeginStage("Converting", loaded_.file.patterns.size());
        for (const auto& [name, lines] : loaded_.file.patterns) {
            ConvertOne(name);
        }
        return !result_.owned.empty();
    }

    // Those asked for, in the order asked. A tolerant conversion needs but one.
    bool ConvertNamed() {
        bool isComplete = true;
        front_.BeginStage("Converting", options_.names.size());
        for (const std::wstring& name : options_.names) {
            const std::string narrow = platform::WideToAnsi(name);
            if (!loaded_.file.patterns.contains(narrow)) {
                result_.diagnostics.push_back({options_.tolerant ? Severity::kWarning : Severity::kError,
                                               Code::kMissingName,
                                               {input_.name},
                                               {"pattern", ShownText(name)}});
                isComplete = false;
            } else {
                isComplete = ConvertOne(narrow) && isComplete;
            }
        }
        return isComplete || (options_.tolerant && !result_.owned.empty());
    }

    // Or says why it becomes nothing.
    bool ConvertOne(const std::string& name) {
        front_.AtItem(PatternItem(name));
        std::vector<pattern::PatternLine>& lines = loaded_.file.patterns.at(name);
        const bool isFirst = converted_.insert(name).second;
        if (isFirst) {
            Append(result_.diagnostics, DuplicatePatterns(input_, loaded_, name));
        }
        if (auto symbol = Build(name, lines, isFirst)) {
            result_.captions.descriptions[symbol.get()] =
                platform::WideToValidUtf8(platform::AnsiToWide(loaded_.file.descriptions.at(name)));
            result_.owned.push_back(std::move(symbol));
            result_.places.emplace_back(input_.name, loaded_.reading.headerLines.at(name).front());
            return true;
        }
        const bool isError = !options_.tolerant && !options_.names.empty();
        diagnostics::Place place;
        place.file = input_.name;
        place.line = loaded_.reading.headerLines.at(name).front();
        place.item = PatternItem(name);
        result_.diagnostics.push_back({isError ? Severity::kError : Severity::kWarning,
                                       WhyNoSymbol(lines),
                                       std::move(place),
                                       {},
                                       isError ? Outcome::kNone : Outcome::kSkipped});
        return false;
    }

    std::unique_ptr<TylModel::SymbolDefinition>
    Build(const std::string& name, std::vector<pattern::PatternLine>& lines, bool isFirst) {
        if (options_.fidelity == encoding::Fidelity::kStrict) {
            return isFirst ? BuildMeasured(name, lines) : pattern::BuildAreaSymbol(name, lines);
        }
        const pattern::FaithfulTiles tiles = pattern::FindFaithfulTiles(lines);
        if (isFirst) {
            Append(result_.diagnostics, FaithfulLosses(input_, loaded_, name, tiles));
        }
        return pattern::BuildFaithfulSymbol(name, lines, tiles);
    }

    // What it loses is told, and is no reason to fail.
    std::unique_ptr<TylModel::SymbolDefinition> BuildMeasured(const std::string& name,
                                                              std::vector<pattern::PatternLine>& lines) {
        const std::vector<pattern::PatternLine> families = lines;
        auto symbol = pattern::BuildAreaSymbol(name, lines);
        if (symbol != nullptr) {
            if (auto losses = StrictLosses(input_, loaded_, name, families, *symbol)) {
                losses->severity = Severity::kWarning;
                result_.captions.losses[symbol.get()] = {
                    SentenceOf(*losses), [name, shown = symbol->GetName(), families] {
                        std::shared_ptr<TylModel::SymbolDefinition> faithful = pattern::BuildFaithfulSymbol(
                            name, families, pattern::FindFaithfulTiles(families));
                        if (faithful != nullptr) {
                            faithful->SetName(shown); // the encoding of the file is in use no more
                        }
                        return faithful;
                    }};
                result_.diagnostics.push_back(std::move(*losses));
            }
        }
        return symbol;
    }

    const Input& input_;
    const PatternsOptions& options_;
    Front& front_;
    LoadedPatterns loaded_;
    std::set<std::string> converted_; // names; one may be asked for several times
    Conversion result_;
};

} // namespace

Conversion ConvertPatterns(const Input& input, const PatternsOptions& options, Front& front) {
    const platform::ThreadCodePage page(EncodingOf(input));
    return PatternConversion(input, options, front).Run();
}

Listing ListPatterns(const Input& input, bool tolerant) {
    const platform::ThreadCodePage page(EncodingOf(input));
    Listing listing;
    LoadedPatterns loaded;
    listing.isListed =
        ReadPatterns(input, tolerant ? pattern::kTolerantPatternPolicy : pattern::PatternPolicy(), loaded,
                     listing.diagnostics);
    if (!listing.isListed) {
        TellWrongKind(input, FileKind::kPatterns, KindAdvice::kOtherName, listing.diagnostics);
        return listing;
    }
    if (tolerant) {
        listing.diagnostics = ToleratedPatterns(input, loaded);
        MergeAlike(listing.diagnostics);
    }
    const auto utf8 = [](const std::string& text) {
        return platform::WideToValidUtf8(platform::AnsiToWide(text));
    };
    for (const auto& [name, description] : loaded.file.descriptions) {
        listing.symbols.push_back({"pattern",
                                   utf8(name),
                                   utf8(description),
                                   {input.name, loaded.reading.headerLines.at(name).front()}});
    }
    return listing;
}

} // namespace conversions
