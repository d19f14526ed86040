#include "conversions/Styles.h"

#include "StyleConversion/platform/Utf8.h"
#include "conversions/StyleTags.h"
#include "conversions/reading/Shown.h"
#include "preview/ResolvedSymbol.h"
#include "styles/BarePicture.h"
#include "styles/Limits.h"
#include "styles/Numbers.h"
#include "styles/QgisLayerStyle.h"

#include <cmath>
#include <utility>

namespace conversions {
namespace {

using diagnostics::Code;
using diagnostics::Severity;

Code CodeOfLoss(styles::Loss loss) {
    switch (loss) {
    case styles::Loss::kUnderlining:
        return Code::kStyleUnderlining;
    case styles::Loss::kTurningText:
        return Code::kStyleTurningText;
    case styles::Loss::kTurningParts:
        return Code::kStyleTurningParts;
    case styles::Loss::kAreaText:
        return Code::kStyleAreaText;
    case styles::Loss::kAreaFill:
        return Code::kStyleAreaFill;
    case styles::Loss::kUnrepeated:
        return Code::kStyleUnrepeated;
    case styles::Loss::kUprightMarks:
        return Code::kStyleUprightMarks;
    case styles::Loss::kFixedText:
        return Code::kStyleFixedText;
    case styles::Loss::kNoCell:
        return Code::kStyleNoCell;
    case styles::Loss::kLongRepeat:
        return Code::kStyleLongRepeat;
    case styles::Loss::kTooLarge:
        return Code::kStyleTooLarge;
    case styles::Loss::kTooDense:
        return Code::kStyleTooDense;
    case styles::Loss::kNoInk:
        return Code::kStyleNoInk;
    case styles::Loss::kTooManyMarks:
        break;
    }
    return Code::kStyleTooManyMarks;
}

styles::QgisOptions OptionsOf(const StyleJob& job) {
    styles::QgisOptions options;
    options.hatchUnit = job.hatchesInMillimetres ? styles::HatchUnit::kMillimetre : styles::HatchUnit::kMap;
    options.scale = job.scale;
    return options;
}

// What a loss's sentence speaks of.
std::string SubjectOf(styles::Loss loss) {
    return loss == styles::Loss::kTooManyMarks ? std::to_string(styles::kMostMarks)
                                               : std::to_string(styles::kLargestPicture);
}

// The file that a symbol comes from.
const std::string& SourceOf(const TylModel::SymbolDefinition& symbol, const Captions& captions,
                            const StyleJob& job) {
    const auto source = captions.sources.find(&symbol);
    return source != captions.sources.end() ? source->second : job.file;
}

diagnostics::Place PlaceOf(TylModel::SymbolDefinition& symbol, const Captions& captions,
                           const StyleJob& job) {
    return {SourceOf(symbol, captions, job), 0, "symbol " + ShownText(symbol.GetName())};
}

void TellOfName(const std::string& name, const diagnostics::Place& place, StyleJob& job) {
    job.diagnostics.push_back(
        {Severity::kWarning, Code::kStyleRenamed, place, {ShownText(platform::Utf8ToWide(name))}});
}

void TellOfLosses(const styles::Losses& losses, const diagnostics::Place& place, StyleJob& job) {
    for (const styles::Loss loss : losses) {
        // Nobody misses what every pattern has and the program's own buttons do.
        const Severity severity = loss == styles::Loss::kTurningParts ? Severity::kNote : Severity::kWarning;
        job.diagnostics.push_back({severity, CodeOfLoss(loss), place, {SubjectOf(loss)}});
    }
}

// Empty where it is no reason.
std::string WhyNoBarePicture(styles::Loss loss) {
    const std::string side = styles::PlainNumber(styles::kLargestMillimetres) + " mm";
    switch (loss) {
    case styles::Loss::kNoCell:
        return "no tile of at most " + side + " repeats it without a seam";
    case styles::Loss::kTooLarge:
        return "it is larger than " + side;
    case styles::Loss::kTooDense:
        return "it has more strokes than a picture can show";
    case styles::Loss::kNoInk:
        return "it draws nothing";
    default:
        return "";
    }
}

} // namespace

QgisStyles::QgisStyles(const TextSink& sink, const Captions& captions, StyleJob& job)
    : captions_(captions), job_(job), writer_(sink, OptionsOf(job)) {}

const std::vector<std::string>& QgisStyles::TagsOf(const TylModel::SymbolDefinition& symbol) {
    const std::string& file = SourceOf(symbol, captions_, job_);
    const auto [tags, isNew] = tags_.try_emplace(file);
    if (isNew && file != "standard input" && file != "standard output") {
        tags->second = StyleTags(file, job_.folders);
    }
    return tags->second;
}

bool QgisStyles::Add(TylModel::SymbolDefinition& symbol) {
    styles::AddedStyle added;
    if (!writer_.Add(symbol, TagsOf(symbol), added)) {
        return false;
    }
    const diagnostics::Place place = PlaceOf(symbol, captions_, job_);
    if (added.isRenamed) {
        TellOfName(added.name, place, job_);
    }
    TellOfLosses(added.losses, place, job_);
    return true;
}

QgisEntries::QgisEntries(const Captions& captions, StyleJob& job)
    : styles_(
          [this](std::string_view piece) {
              text_ += piece;
              return true;
          },
          captions, job) {}

std::string QgisEntries::Of(TylModel::SymbolDefinition& symbol) {
    text_.clear();
    styles_.Add(symbol);
    return text_.starts_with(styles::kQgisLibraryHead) ? text_.substr(styles::kQgisLibraryHead.size())
                                                       : text_;
}

bool WriteLayerStyle(TylModel::SymbolDefinition& symbol, const TextSink& sink, const Captions& captions,
                     StyleJob& job) {
    styles::Losses losses;
    if (!sink(styles::QgisLayerStyle(symbol, OptionsOf(job), losses))) {
        return false;
    }
    TellOfLosses(losses, PlaceOf(symbol, captions, job), job);
    return true;
}

bool WriteBarePicture(TylModel::SymbolDefinition& symbol, const TextSink& sink, const Captions& captions,
                      StyleJob& job) {
    const styles::BarePicture picture = styles::DrawBare(preview::Resolve(symbol), job.scale, job.length);
    const diagnostics::Place place = PlaceOf(symbol, captions, job);
    for (const styles::Loss loss : picture.losses) {
        if (const std::string why = WhyNoBarePicture(loss); !why.empty()) {
            job.diagnostics.push_back({Severity::kError, Code::kNoBarePicture, place, {why}});
        } else {
            TellOfLosses({loss}, place, job);
        }
    }
    return !picture.svg.empty() && sink(picture.svg) && sink("\n");
}

MaplibreStyles::MaplibreStyles(const TextSink& sink, const Captions& captions, StyleJob& job)
    : captions_(captions), job_(job), writer_(sink, {job.scale, job.allowsApproximate}) {}

bool MaplibreStyles::Add(TylModel::SymbolDefinition& symbol) {
    styles::AddedLayer added;
    if (!writer_.Add(symbol, added)) {
        return false;
    }
    const diagnostics::Place place = PlaceOf(symbol, captions_, job_);
    if (added.isRenamed) {
        TellOfName(added.name, place, job_);
    }
    TellOfLosses(added.picture.losses, place, job_);
    if (added.pictureName.empty()) {
        return true;
    }
    if (job_.allowsApproximate && added.picture.error > styles::kSeamless) {
        const std::string error = styles::PlainNumber(std::round(added.picture.error * 100) / 100);
        job_.diagnostics.push_back({Severity::kWarning, Code::kStyleApproximate, place, {error}});
    }
    job_.pictures.push_back(
        {added.pictureName, std::move(added.picture.svg), added.picture.width, added.picture.height});
    return true;
}

} // namespace conversions
