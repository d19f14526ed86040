#include "conversions/Drawings.h"

#include "conversions/reading/Drawing.h"
#include "conversions/reading/FileKind.h"
#include "documents/DrawingWriter.h"

namespace conversions {

LoadedDrawing LoadDrawing(const Input& input, bool tolerant) {
    LoadedDrawing loaded;
    loaded.drawing = ReadDrawing(input, tolerant, loaded.diagnostics);
    if (loaded.drawing == nullptr) {
        TellWrongKind(input, FileKind::kDrawing, KindAdvice::kOtherCommand, loaded.diagnostics);
    }
    MergeAlike(loaded.diagnostics);
    return loaded;
}

bool WriteDocument(const drawing::Database& drawing, const TextSink& sink, Front& front) {
    front.BeginStage("Writing", 0);
    return documents::WriteDrawing(drawing, sink);
}

} // namespace conversions
