#include "conversions/Styles.h"

#include "StyleConversion/platform/Files.h"
#include "StyleConversion/platform/Utf8.h"
#include "conversions/reading/Shown.h"
#include "styles/Limits.h"

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
    case styles::Loss::kTooManyMarks:
        break;
    }
    return Code::kStyleTooManyMarks;
}

styles::QgisOptions OptionsOf(const StyleJob& job) {
    styles::QgisOptions options;
    options.hatchUnit = job.hatchesInMillimetres ? styles::HatchUnit::kMillimetre : styles::HatchUnit::kMap;
    options.scale = job.scale;
    if (!job.file.empty() && job.file != "standard input" && job.file != "standard output") {
        const std::wstring stem = platform::SplitPath(platform::PathFromBytes(job.file)).fileName;
        options.tags.push_back(platform::WideToValidUtf8(stem));
    }
    return options;
}

} // namespace

QgisStyles::QgisStyles(const TextSink& sink, StyleJob& job) : job_(job), writer_(sink, OptionsOf(job)) {}

bool QgisStyles::Add(TylModel::SymbolDefinition& symbol) {
    styles::AddedStyle added;
    if (!writer_.Add(symbol, added)) {
        return false;
    }
    const std::string item = "symbol " + ShownText(symbol.GetName());
    if (added.isRenamed) {
        job_.diagnostics.push_back({Severity::kWarning,
                                    Code::kStyleRenamed,
                                    {job_.file, 0, item},
                                    {ShownText(platform::Utf8ToWide(added.name))}});
    }
    for (const styles::Loss loss : added.losses) {
        // Nobody misses what every pattern has and the program's own buttons do.
        const Severity severity = loss == styles::Loss::kTurningParts ? Severity::kNote : Severity::kWarning;
        job_.diagnostics.push_back(
            {severity, CodeOfLoss(loss), {job_.file, 0, item}, {std::to_string(styles::kMostMarks)}});
    }
    return true;
}

} // namespace conversions
