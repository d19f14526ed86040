#include "conversions/TolerantCheck.h"

#include "conversions/Blocks.h"
#include "conversions/Glyphs.h"
#include "conversions/Linetypes.h"
#include "conversions/Patterns.h"
#include "conversions/SymbolsDocuments.h"

#include <algorithm>

namespace conversions {
namespace {

using diagnostics::Diagnostic;
using diagnostics::Diagnostics;
using diagnostics::Severity;

Conversion LinetypesTolerantly(const Input& input, const CheckOptions& options, Front& front) {
    LinetypesOptions job;
    static_cast<LinetypeSourceOptions&>(job) = options.linetypes;
    job.tolerant = true;
    return ConvertLinetypes(input, job, front);
}

Conversion BlocksTolerantly(const Input& input, const CheckOptions& options, Front& front) {
    BlocksOptions job;
    static_cast<DrawingView&>(job) = options.view;
    job.layersToIgnore = options.layersToIgnore;
    job.tolerant = true;
    return ConvertBlocks(input, job, front);
}

const Diagnostic* OfCode(const Diagnostics& diagnostics, diagnostics::Code code) {
    const auto found = std::find_if(diagnostics.begin(), diagnostics.end(),
                                    [&](const Diagnostic& diagnostic) { return diagnostic.code == code; });
    return found == diagnostics.end() ? nullptr : &*found;
}

} // namespace

Conversion ConvertTolerantly(FileKind kind, const Input& input, const CheckOptions& options, Front& front) {
    switch (kind) {
    case FileKind::kLinetypes:
        return LinetypesTolerantly(input, options, front);
    case FileKind::kPatterns: {
        PatternsOptions job;
        job.tolerant = true;
        return ConvertPatterns(input, job, front);
    }
    case FileKind::kShapes: {
        GlyphsOptions job;
        job.tolerant = true;
        return ConvertGlyphs(input, job, front);
    }
    case FileKind::kSymbols:
        return ConvertSymbols(input, true, front);
    case FileKind::kDrawing:
    case FileKind::kUnknown:
        break;
    }
    return BlocksTolerantly(input, options, front);
}

Diagnostics JudgedTolerantly(Diagnostics found, const Conversion& tolerant) {
    for (Diagnostic& diagnostic : found) {
        if (diagnostic.severity != Severity::kError) {
            continue;
        }
        if (const Diagnostic* const judged = OfCode(tolerant.diagnostics, diagnostic.code)) {
            diagnostic.severity = judged->severity;
            diagnostic.outcome = judged->outcome;
        } else if (tolerant.isConverted) {
            diagnostic.severity = Severity::kWarning;
        }
    }
    for (const Diagnostic& diagnostic : tolerant.diagnostics) {
        if (diagnostic.severity == Severity::kError && OfCode(found, diagnostic.code) == nullptr) {
            found.push_back(diagnostic);
        }
    }
    return found;
}

} // namespace conversions
