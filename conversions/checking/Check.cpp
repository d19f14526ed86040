#include "conversions/checking/Check.h"

#include "StyleConversion/platform/CodePage.h"

#include <utility>

namespace conversions {
namespace {

using diagnostics::Diagnostics;
using diagnostics::Severity;

Diagnostics CheckKind(FileKind kind, const Input& input, const CheckOptions& options, Front& front) {
    switch (kind) {
    case FileKind::kLinetypes:
        return CheckLinetypes(input, options.linetypes, front);
    case FileKind::kPatterns:
        return CheckPatterns(input);
    case FileKind::kShapes:
        return CheckShapes(input, front);
    case FileKind::kDrawing:
    case FileKind::kSymbols:
    case FileKind::kUnknown:
        break;
    }
    return CheckDrawing(input, options, front);
}

} // namespace

Diagnostics Check(FileKind kind, const Input& input, const CheckOptions& options, Front& front) {
    const platform::ThreadCodePage page(EncodingOf(input));
    Diagnostics found = CheckKind(kind, input, options, front);
    if (CountOf(found, Severity::kError) > 0) {
        TellWrongKind(input, kind, KindAdvice::kOtherName, found);
    }
    MergeAlike(found);
    return found;
}

} // namespace conversions
