#include "styleconv/DrawingFile.h"

#include "documents/DrawingReader.h"
#include "styleconv/InputFile.h"
#include "styleconv/Messages.h"

namespace styleconv {

std::unique_ptr<drawing::Database> ReadDrawingFile(const std::string& argument) {
    InputFile input(argument);
    if (!input.Read()) {
        return nullptr;
    }
    documents::DrawingFault fault;
    std::unique_ptr<drawing::Database> drawing = documents::ReadDrawing(input.Bytes(), fault);
    if (!drawing) {
        Say(input.Name(), fault.Text());
    }
    return drawing;
}

} // namespace styleconv
