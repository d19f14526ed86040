// styleconv list: the names of what a file holds.
#include "conversions/Blocks.h"
#include "conversions/Glyphs.h"
#include "conversions/Linetypes.h"
#include "conversions/Patterns.h"
#include "conversions/reading/FileKind.h"
#include "styleconv/commands/Commands.h"
#include "styleconv/commands/Job.h"
#include "styleconv/files/InputFile.h"
#include "styleconv/process/Messages.h"

#include <algorithm>
#include <memory>

namespace styleconv {
namespace {

using conversions::FileKind;

struct ListOptions {
    std::string file;
    std::string output;
    std::string codePage;
};

conversions::Listing ListNames(FileKind kind, const conversions::Input& input) {
    switch (kind) {
    case FileKind::kLinetypes:
        return ListLinetypes(input);
    case FileKind::kPatterns:
        return ListPatterns(input);
    case FileKind::kShapes:
        return ListGlyphs(input);
    case FileKind::kDrawing:
        return ListBlocks(input);
    case FileKind::kUnknown:
        break;
    }
    conversions::Listing listing;
    listing.diagnostics.push_back(
        {diagnostics::Severity::kError, diagnostics::Code::kUnknownFileKind, {input.name}, {}});
    return listing;
}

ExitStatus List(const ListOptions& options) {
    if (options.file == "-") {
        SayLine("styleconv: list: the kind of standard input is unknown; give a file");
        return kUsageFault;
    }
    InputFile input(options.file);
    FileKind kind = FileKind::kUnknown;
    if (const auto problem = OpenForKind(input, options.file, kind)) {
        return SayProblem(*problem);
    }
    if (!CheckEncoding(options.codePage)) {
        return kUsageFault;
    }
    const conversions::Listing listing = ListNames(kind, input.ForJob(options.codePage));
    SayAll(listing.diagnostics);
    if (!listing.isListed) {
        return kInputFault;
    }
    return WriteResult(options.output, [&](const conversions::TextSink& sink) {
        return std::all_of(listing.names.begin(), listing.names.end(),
                           [&](const std::string& name) { return sink(name) && sink("\n"); });
    });
}

} // namespace

void AddListCommand(CommandLine& line) {
    const auto options = std::make_shared<ListOptions>();
    Command command = line.AddCommand("list", "Print the names of what a file holds, one per line",
                                      [options] { return List(*options); });
    command.AddFile(options->file, "A .lin, .pat, .shx, .dxf or drawing .json file");
    AddOutputOption(command, options->output);
    // For those who give it to every command.
    command.AddOnlyChoice("--format", "json");
    AddCodePageOption(command, options->codePage);
}

} // namespace styleconv
