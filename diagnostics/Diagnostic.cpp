#include "diagnostics/Diagnostic.h"

#include "diagnostics/Sentences.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <tuple>
#include <utility>

namespace diagnostics {
namespace {

// What makes two alike: all but the place in the file.
using Kind = std::tuple<std::string, Severity, Code, Outcome, std::vector<std::string>>;

Kind KindOf(const Diagnostic& diagnostic) {
    return {diagnostic.place.file, diagnostic.severity, diagnostic.code, diagnostic.outcome,
            diagnostic.subjects};
}

} // namespace

std::size_t CountOf(const Diagnostics& diagnostics, Severity severity) {
    return static_cast<std::size_t>(
        std::count_if(diagnostics.begin(), diagnostics.end(),
                      [&](const Diagnostic& diagnostic) { return diagnostic.severity == severity; }));
}

void SortByLine(Diagnostics& diagnostics) {
    std::stable_sort(diagnostics.begin(), diagnostics.end(),
                     [](const Diagnostic& a, const Diagnostic& b) { return a.place.line < b.place.line; });
}

void MergeAlike(Diagnostics& diagnostics) {
    std::map<Kind, std::size_t> counts;
    for (const Diagnostic& diagnostic : diagnostics) {
        ++counts[KindOf(diagnostic)];
    }
    std::map<Kind, bool> seen;
    Diagnostics merged;
    for (Diagnostic& diagnostic : diagnostics) {
        const Kind kind = KindOf(diagnostic);
        const std::size_t count = counts[kind];
        const bool isMerged = !CountsEntities(diagnostic.code) && diagnostic.count == 1 && count > 1 &&
                              (count > kMostAlike || HasOneCause(diagnostic.code));
        if (!isMerged || !std::exchange(seen[kind], true)) {
            diagnostic.count = isMerged ? count : diagnostic.count;
            merged.push_back(std::move(diagnostic));
        }
    }
    diagnostics = std::move(merged);
}

void MergeAcrossFiles(Diagnostics& diagnostics) {
    const auto kindIn = [](const Diagnostic& diagnostic) {
        Kind kind = KindOf(diagnostic);
        std::get<std::string>(kind).clear();
        return kind;
    };
    std::map<Kind, std::size_t> counts;
    std::map<Kind, std::set<std::string>> files;
    for (const Diagnostic& diagnostic : diagnostics) {
        const bool countsEntities = CountsEntities(diagnostic.code);
        counts[kindIn(diagnostic)] += countsEntities ? 1 : diagnostic.count;
        if (countsEntities) { // each block of a file is worth its line
            files[kindIn(diagnostic)].insert(diagnostic.place.file);
        }
    }
    std::map<Kind, bool> seen;
    Diagnostics merged;
    for (Diagnostic& diagnostic : diagnostics) {
        const Kind kind = kindIn(diagnostic);
        const std::size_t count = counts[kind];
        const bool countsEntities = CountsEntities(diagnostic.code);
        const bool isMany = (countsEntities ? files[kind].size() : count) > kMostAlike &&
                            diagnostic.severity != Severity::kError;
        const bool isMerged = isMany || (!countsEntities && HasOneCause(diagnostic.code));
        if (!isMerged || !std::exchange(seen[kind], true)) {
            diagnostic.count = isMerged && !countsEntities ? count : diagnostic.count;
            diagnostic.morePlaces = isMerged && countsEntities ? count - 1 : 0;
            merged.push_back(std::move(diagnostic));
        }
    }
    diagnostics = std::move(merged);
}

void Append(Diagnostics& diagnostics, Diagnostics more) {
    diagnostics.insert(diagnostics.end(), std::make_move_iterator(more.begin()),
                       std::make_move_iterator(more.end()));
}

} // namespace diagnostics
