#include "conversions/Linetypes.h"

#include "StyleConversion/linetype/CLinVisitor.h"
#include "StyleConversion/linetype/LinResolution.h"
#include "StyleConversion/linetype/LinWalk.h"
#include "StyleConversion/linetype/LinetypeReader.h"
#include "StyleConversion/platform/CodePage.h"
#include "StyleConversion/platform/Utf8.h"
#include "conversions/reading/AnnouncedLinetypes.h"
#include "conversions/reading/FileKind.h"
#include "conversions/reading/LinetypeDiagnostics.h"
#include "conversions/reading/MissingCharacters.h"
#include "conversions/reading/Patterns.h"
#include "conversions/reading/Shown.h"

#include <memory>
#include <set>
#include <utility>

namespace conversions {
namespace {

using diagnostics::Code;
using diagnostics::Diagnostics;
using diagnostics::Outcome;
using diagnostics::Severity;

class LinetypeConversion {
public:
    LinetypeConversion(const Input& input, const LinetypesOptions& options, Front& front)
        : input_(input), options_(options), front_(front), sources_(input, options, front) {}

    Conversion Run() {
        if (sources_.ReadDrawing(result_.diagnostics) && ConvertAll()) {
            result_.isConverted = options_.names.empty() ? ChooseAll() : ChooseNamed();
        }
        if (!result_.isConverted) {
            result_.symbols.clear();
            TellWrongKind(input_, FileKind::kLinetypes, KindAdvice::kOtherCommand, result_.diagnostics);
        }
        MergeAlike(result_.diagnostics);
        return std::move(result_);
    }

private:
    bool ConvertAll() {
        LineConverter::LinPolicy policy =
            options_.tolerant ? LineConverter::kTolerantLinPolicy : LineConverter::LinPolicy();
        policy.faithful = options_.fidelity == encoding::Fidelity::kFaithful;
        result_.fidelity = options_.fidelity;
        LineConverter::LinResult result = ReadLinetypes(input_.bytes, policy, file_, log_);
        if (result == LineConverter::kSuccess) {
            result = ResolveNames(file_, &sources_, &sources_, policy, log_);
        }
        Append(result_.diagnostics, sources_.StandIns(Severity::kNote));
        if (result == LineConverter::kSuccess) {
            LineConverter::CLinVisitor visitor(options_.scale, &log_, policy);
            AnnouncedLinetypes announced(visitor, front_);
            front_.BeginStage("Converting", file_.linetypes.size());
            result = Walk(file_, announced, log_);
            TakeSymbols(visitor);
        }
        const bool isConverted = result == LineConverter::kSuccess && (options_.tolerant || hasResults_);
        if (isConverted && options_.tolerant) {
            TellTolerated();
        } else if (!isConverted) {
            TellErrors();
        } else {
            hasLinetypes_ = !result_.owned.empty();
        }
        return isConverted;
    }

    void TakeSymbols(LineConverter::CLinVisitor& visitor) {
        const std::unique_ptr<std::vector<TylModel::SymbolDefinition*>> results(visitor.TakeResults());
        hasResults_ = results != nullptr;
        for (std::size_t i = 0; results && i < results->size(); ++i) {
            result_.owned.emplace_back((*results)[i]);
        }
        FindPlaces();
    }

    // The symbols stand in the order of their linetypes, some of which may have none.
    void FindPlaces() {
        std::size_t next = 0;
        for (const auto& symbol : result_.owned) {
            while (next < file_.linetypes.size() &&
                   platform::AnsiToWide(file_.linetypes[next].name) != symbol->GetName()) {
                ++next;
            }
            result_.places.emplace_back(input_.name,
                                        next < file_.linetypes.size() ? file_.linetypes[next++].line : 0);
        }
    }

    void TellTolerated() {
        hasLinetypes_ = !result_.owned.empty() || !log_.errors().empty();
        for (const LineConverter::LinError& error : log_.errors()) {
            if (!error.linetype.empty()) {
                withErrors_.insert(platform::AnsiToWide(error.linetype));
            }
        }
        Diagnostics found = DiagnosticsOf(input_.name, log_.errors(), Manner::kTolerant, sources_);
        Append(found,
               MissingCharacters(input_.name, file_, sources_, Severity::kWarning, Outcome::kRepaired));
        SortByLine(found);
        Append(result_.diagnostics, std::move(found));
    }

    void TellErrors() {
        Append(result_.diagnostics, DiagnosticsOf(input_.name, log_.errors(), Manner::kStrict, sources_));
        if (log_.errors().empty()) {
            result_.diagnostics.push_back({Severity::kError, Code::kOutOfMemory, {input_.name}, {}});
        }
    }

    bool ChooseAll() {
        if (!hasLinetypes_) {
            result_.diagnostics.push_back(EmptyFile(input_, Code::kNoLinetypes));
        } else if (result_.owned.empty()) {
            TellNothing("linetypes");
        }
        result_.UseAll();
        return !result_.owned.empty();
    }

    // Those asked for, in the order asked.
    bool ChooseNamed() {
        if (!hasLinetypes_) {
            return ChooseAll();
        }
        bool isComplete = true;
        for (const std::wstring& name : options_.names) {
            const std::size_t before = result_.symbols.size();
            for (const auto& symbol : result_.owned) {
                if (symbol->GetName() == name) {
                    result_.symbols.push_back(symbol.get());
                }
            }
            if (result_.symbols.size() == before) {
                isComplete = false;
                // Why one was skipped has been said.
                if (!withErrors_.contains(name)) {
                    result_.diagnostics.push_back({options_.tolerant ? Severity::kWarning : Severity::kError,
                                                   Code::kMissingName,
                                                   {input_.name},
                                                   {"linetype", ShownText(name)}});
                }
            }
        }
        if (options_.tolerant && result_.symbols.empty()) {
            TellNothing("linetypes asked for");
        }
        return isComplete || (options_.tolerant && !result_.symbols.empty());
    }

    void TellNothing(const char* what) {
        result_.diagnostics.push_back({Severity::kError, Code::kNothingConverted, {input_.name}, {what}});
    }

    const Input& input_;
    const LinetypesOptions& options_;
    Front& front_;
    LinetypeSources sources_;
    LineConverter::LinetypeFile file_;
    LineConverter::LinErrorLog log_;
    Conversion result_;
    bool hasResults_ = false;
    bool hasLinetypes_ = false;
    std::set<std::wstring> withErrors_; // names; where no symbol has it, that linetype was skipped
};

std::string Utf8Of(const std::string& text) {
    return platform::WideToValidUtf8(platform::AnsiToWide(text));
}

} // namespace

Conversion ConvertLinetypes(const Input& input, const LinetypesOptions& options, Front& front) {
    const platform::ThreadCodePage page(EncodingOf(input));
    return LinetypeConversion(input, options, front).Run();
}

Listing ListLinetypes(const Input& input, bool tolerant) {
    const platform::ThreadCodePage page(EncodingOf(input));
    Listing listing;
    LineConverter::LinetypeFile file;
    LineConverter::LinErrorLog log;
    const LineConverter::LinPolicy policy =
        tolerant ? LineConverter::kTolerantLinPolicy : LineConverter::LinPolicy();
    const bool isRead = ReadLinetypes(input.bytes, policy, file, log) == LineConverter::kSuccess;
    if (!isRead || tolerant) {
        Front front;
        const LinetypeSourceOptions options;
        listing.diagnostics =
            DiagnosticsOf(input.name, log.errors(), tolerant ? Manner::kTolerant : Manner::kStrict,
                          LinetypeSources(input, options, front));
    }
    if (isRead && file.linetypes.empty()) {
        listing.diagnostics.push_back(EmptyFile(input, Code::kNoLinetypes));
    }
    listing.isListed = isRead && !file.linetypes.empty();
    if (listing.isListed) {
        for (const LineConverter::LinetypeRecord& record : file.linetypes) {
            listing.symbols.push_back({"linetype",
                                       Utf8Of(record.name),
                                       Utf8Of(record.description),
                                       {input.name, static_cast<std::uint64_t>(record.line)}});
        }
    } else {
        TellWrongKind(input, FileKind::kLinetypes, KindAdvice::kOtherName, listing.diagnostics);
    }
    return listing;
}

} // namespace conversions
