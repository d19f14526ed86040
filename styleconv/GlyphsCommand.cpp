#include "styleconv/GlyphsCommand.h"

#include "StyleConversion/platform/CodePage.h"
#include "StyleConversion/platform/Files.h"
#include "StyleConversion/platform/Utf8.h"
#include "StyleConversion/shx/ShapeFileFault.h"
#include "StyleConversion/shx/ShxUtility.h"
#include "documents/GlyphsDocument.h"
#include "styleconv/CheckedShapes.h"
#include "styleconv/FileStream.h"
#include "styleconv/GlyphSymbols.h"
#include "styleconv/Messages.h"
#include "styleconv/NumberOption.h"
#include "styleconv/OutputFile.h"
#include "styleconv/Progress.h"
#include "styleconv/ShapeFileMessages.h"
#include "styleconv/SymbolOutput.h"
#include "styleconv/WorkLimits.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <memory>

namespace styleconv {
namespace {

struct GlyphsOptions : CommonOptions {
    std::string file;
    std::string codePage;
    std::vector<std::int64_t> numbers;
    double scale = 1.0;
    double rotation = 0.0; // degrees
    double x = 0.0;
    double y = 0.0;
    bool vertical = false;
    bool tolerant = false;
};

// False, after saying why, where the file is refused or has no shapes.
bool LoadShapes(const InputFile& input, ShxUtility::ShapesInFile& file, bool tolerant = false) {
    const FileStream stream(platform::OpenForReading(input.Path().c_str()));
    if (!stream) {
        Say(input.Name(), std::string("cannot be opened: ") + std::strerror(errno));
        return false;
    }
    ShxUtility::ShapeFileFaultReport report;
    const ShxUtility::ShapeFilePolicy policy =
        tolerant ? ShxUtility::kTolerantShapeFilePolicy : ShxUtility::ShapeFilePolicy();
    if (LoadShapeFile(stream.get(), file, ShxUtility::kAllKinds, report, policy) != ShxUtility::kSuccess) {
        SayAtByte(input.Name(), static_cast<std::size_t>(report.offset), Sentence(report));
        return false;
    }
    SayFindings(ForgivenOfShapeFile(input.Name(), report));
    if (file.numberIndex.empty()) {
        Say(input.Name(), "the file has no shapes");
        return false;
    }
    return true;
}

// Positions of the shapes to draw, in the order in which they are drawn. False, after saying so, where the
// file lacks one; to a tolerant conversion, where it lacks all.
bool ChooseShapes(const InputFile& input, const ShxUtility::ShapesInFile& file, const GlyphsOptions& options,
                  std::vector<std::size_t>& positions) {
    if (options.numbers.empty()) {
        for (std::size_t i = 0; i < file.shapes.size(); ++i) {
            // The font information is no glyph.
            if (file.shapes[i].number != 0) {
                positions.push_back(i);
            }
        }
        return true;
    }
    bool complete = true;
    for (const std::int64_t number : options.numbers) {
        const bool possible = number >= 0 && number <= UINT16_MAX;
        const auto found =
            possible ? file.numberIndex.find(static_cast<std::uint16_t>(number)) : file.numberIndex.end();
        if (found == file.numberIndex.end()) {
            SayMissing(input.Name(), "the file has no shape " + std::to_string(number), options.tolerant);
            complete = false;
        } else {
            positions.push_back(found->second);
        }
    }
    if (options.tolerant && positions.empty()) {
        Say(input.Name(), "none of the shapes asked for can be drawn");
    }
    return options.tolerant ? !positions.empty() : complete;
}

documents::Glyph DrawGlyph(const ShxUtility::ShapesInFile& file, const ShxUtility::Shape& shape,
                           const GlyphsOptions& options) {
    documents::Glyph glyph;
    glyph.number = shape.number;
    glyph.name = platform::AnsiToWide(shape.name);
    ShxUtility::ShapeInstructions instructions;
    glyph.result = ShxUtility::DecodeShape(instructions, shape.data.data(),
                                           static_cast<std::uint16_t>(shape.data.size()), file.kind);
    if (glyph.result != ShxUtility::kSuccess) {
        return glyph;
    }
    glyph.endX = options.x;
    glyph.endY = options.y;
    double scale = options.scale;
    ShxUtility::PositionStack positions;
    std::vector<std::uint16_t> activeSubshapes;
    bool penDown = true;
    glyph.result =
        ShxUtility::DrawShape(glyph.path, glyph.endX, glyph.endY, scale, positions, activeSubshapes, penDown,
                              instructions, file, options.rotation, options.vertical);
    return glyph;
}

// Named as --number names it.
void NowAtShape(const ShxUtility::Shape& shape) {
    NowAtItem("shape " + std::to_string(shape.number));
}

// Takes the shapes that cannot be drawn out of those to draw, and names them. False when none is left.
bool KeepDrawn(const InputFile& input, const ShxUtility::ShapesInFile& file, const GlyphsOptions& options,
               std::vector<std::size_t>& positions) {
    BeginStage("Checking", positions.size());
    std::erase_if(positions, [&](std::size_t position) {
        const ShxUtility::Shape& shape = file.shapes[position];
        NowAtShape(shape);
        const ShxUtility::ShxResult result = ResultOfDrawing(file, shape, options.vertical);
        if (result == ShxUtility::kSuccess) {
            return false;
        }
        SayFindings(
            {{input.Name(), 0, Severity::kWarning,
              std::string("it cannot be drawn: ") + DrawingFault(result) + "; left out", ShownShape(shape)}});
        return true;
    });
    if (positions.empty()) {
        Say(input.Name(), "none of the shapes can be drawn");
    }
    return !positions.empty();
}

ExitStatus WriteDocument(const ShxUtility::ShapesInFile& file, const std::vector<std::size_t>& positions,
                         const GlyphsOptions& options) {
    OutputFile output(options.output);
    documents::GlyphsWriter writer(file, [&](std::string_view text) { return output.Write(text); });
    BeginWriting(options.output.empty(), positions.size());
    for (const std::size_t position : positions) {
        NowAtShape(file.shapes[position]);
        if (!writer.Add(DrawGlyph(file, file.shapes[position], options))) {
            return kInputFault;
        }
    }
    return writer.Finish() && output.Commit() ? kDone : kInputFault;
}

ExitStatus WritePictures(const ShxUtility::ShapesInFile& file, const std::vector<std::size_t>& positions,
                         const GlyphsOptions& options) {
    std::vector<std::unique_ptr<TylModel::SimpleSymbolDefinition>> symbols;
    BeginStage("Drawing", positions.size());
    for (const std::size_t position : positions) {
        NowAtShape(file.shapes[position]);
        symbols.push_back(SymbolOf(DrawGlyph(file, file.shapes[position], options)));
    }
    // Letters that are turned stand on no common line.
    const bool isFont = file.kind != ShxUtility::kShapes;
    if (isFont && options.rotation == 0.0) {
        AlignGlyphs(symbols);
    }
    std::vector<TylModel::SymbolDefinition*> borrowed;
    borrowed.reserve(symbols.size());
    for (const auto& symbol : symbols) {
        borrowed.push_back(symbol.get());
    }
    return WriteSymbols(borrowed, options);
}

ExitStatus Glyphs(const GlyphsOptions& options) {
    InputFile input(options.file);
    if (!input.Read() || !input.ProvidePath()) {
        return kInputFault;
    }
    if (!ChooseCodePage(input, options.codePage)) {
        return kUsageFault;
    }
    ShxUtility::ShapesInFile file;
    std::vector<std::size_t> positions;
    if (!LoadShapes(input, file, options.tolerant) || !ChooseShapes(input, file, options, positions) ||
        (options.tolerant && !KeepDrawn(input, file, options, positions))) {
        return kInputFault;
    }
    return options.format == "json" ? WriteDocument(file, positions, options)
                                    : WritePictures(file, positions, options);
}

} // namespace

void AddGlyphsCommand(CommandLine& line) {
    const auto options = std::make_shared<GlyphsOptions>();
    Command command = line.AddCommand("glyphs", "Draw the shapes of a shape or font file",
                                      [options] { return Glyphs(*options); });
    command.AddFile(options->file, "A .shx file, or - for standard input");
    command.AddIntegers("--number", options->numbers, "N", "Draw only this shape; may be given again");
    AddNumberOption(command, "--scale", options->scale, "Path units per shape unit (default: 1)");
    AddNumberOption(command, "--rotation", options->rotation,
                    "Degrees by which shapes are turned counter-clockwise (default: 0)");
    AddPointOption(command, "--at", options->x, options->y,
                   "Where every shape begins, in path units (default: 0,0)");
    command.AddFlag("--vertical", options->vertical, "Draw as in vertical text");
    AddTolerantOption(command, options->tolerant);
    AddCodePageOption(command, options->codePage);
    AddCommonOptions(command, *options);
}

bool ListShapes(const InputFile& input, std::vector<std::string>& names) {
    ShxUtility::ShapesInFile file;
    if (!LoadShapes(input, file)) {
        return false;
    }
    for (const ShxUtility::Shape& shape : file.shapes) {
        if (shape.number != 0 && !shape.name.empty()) {
            names.push_back(platform::WideToValidUtf8(platform::AnsiToWide(shape.name)));
        }
    }
    return true;
}

} // namespace styleconv
