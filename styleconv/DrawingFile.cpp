#include "styleconv/DrawingFile.h"

#include "documents/DrawingReader.h"
#include "styleconv/Messages.h"

namespace styleconv {

std::unique_ptr<drawing::Database> ReadDrawingFile(const std::string& argument) {
    InputFile input(argument);
    return input.Open() ? ReadDrawing(input) : nullptr;
}

std::unique_ptr<drawing::Database> ReadDrawing(const InputFile& input) {
    documents::DrawingFault fault;
    std::unique_ptr<drawing::Database> drawing = documents::ReadDrawing(input.Stream(), fault);
    if (!drawing) {
        Say(input.Name(), fault.Text());
    }
    return drawing;
}

} // namespace styleconv
