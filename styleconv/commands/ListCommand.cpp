// styleconv list: what files hold, by name or as a table.
#include "conversions/Blocks.h"
#include "conversions/Glyphs.h"
#include "conversions/Linetypes.h"
#include "conversions/Patterns.h"
#include "conversions/SymbolsDocuments.h"
#include "conversions/reading/FileKind.h"
#include "diagnostics/ShownText.h"
#include "documents/ListDocument.h"
#include "styleconv/commands/Commands.h"
#include "styleconv/commands/FilesInOrder.h"
#include "styleconv/commands/Job.h"
#include "styleconv/commands/ManyFiles.h"
#include "styleconv/commands/TextTable.h"
#include "styleconv/files/FileWalk.h"
#include "styleconv/files/InputFile.h"
#include "styleconv/process/Messages.h"
#include "styleconv/process/Progress.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <memory>
#include <utility>

namespace styleconv {
namespace {

using conversions::FileKind;
using diagnostics::ShownText;
using documents::ListedSymbol;

struct ListOptions {
    std::vector<std::string> paths;
    WalkOptions walk;
    std::string output;
    std::string format;
    std::string codePage;
    bool tolerant = false;
};

conversions::Listing ListKind(FileKind kind, const conversions::Input& input, bool tolerant) {
    switch (kind) {
    case FileKind::kLinetypes:
        return ListLinetypes(input, tolerant);
    case FileKind::kPatterns:
        return ListPatterns(input, tolerant);
    case FileKind::kShapes:
        return ListGlyphs(input, tolerant);
    case FileKind::kDrawing:
        return ListBlocks(input, tolerant);
    case FileKind::kSymbols:
        return ListSymbols(input, tolerant);
    case FileKind::kUnknown:
        break;
    }
    conversions::Listing listing;
    listing.diagnostics.push_back(
        {diagnostics::Severity::kError, diagnostics::Code::kUnknownFileKind, {input.name}, {}});
    return listing;
}

conversions::Listing ListFile(const std::string& file, const ListOptions& options) {
    InputFile input(file);
    FileKind kind = FileKind::kUnknown;
    if (const auto problem = OpenForKind(input, file, kind)) {
        conversions::Listing listing;
        listing.diagnostics.push_back(*problem);
        return listing;
    }
    return ListKind(kind, input.ForJob(options.codePage), options.tolerant);
}

std::string NamesText(const std::vector<ListedSymbol>& symbols) {
    std::string text;
    for (const ListedSymbol& symbol : symbols) {
        text += symbol.name + "\n";
    }
    return text;
}

std::string DescriptionOf(const ListedSymbol& symbol) {
    return symbol.place.shape ? "number " + std::to_string(*symbol.place.shape)
                              : ShownText(symbol.description);
}

// A row tells what a symbol says of itself, and its file where there are several.
std::string Table(const std::vector<ListedSymbol>& symbols, bool tellsFiles) {
    std::vector<std::vector<std::string>> rows = {{"KIND", "NAME", "DESCRIPTION"}};
    for (const ListedSymbol& symbol : symbols) {
        rows.push_back({std::string(symbol.kind), ShownText(symbol.name), DescriptionOf(symbol)});
    }
    if (tellsFiles) {
        rows.front().insert(rows.front().begin(), "FILE");
        for (std::size_t i = 0; i < symbols.size(); ++i) {
            rows[i + 1].insert(rows[i + 1].begin(), ShownText(symbols[i].place.file));
        }
    }
    return TableText(rows);
}

// Left out, it is what a program can read of one file as it is, and else what people read.
std::string FormatOf(const ListOptions& options, bool isOneFile) {
    if (!options.format.empty()) {
        return options.format;
    }
    return isOneFile && !(options.output.empty() && IsTerminal(stdout)) ? "names" : "table";
}

ExitStatus List(const ListOptions& options) {
    if (std::find(options.paths.begin(), options.paths.end(), "-") != options.paths.end()) {
        SayLine("styleconv: list: the kind of standard input is unknown; give a file");
        return kUsageFault;
    }
    if (!CheckEncoding(options.codePage)) {
        return kUsageFault;
    }
    const Walk walk = FilesBehind(options.paths, options.walk);
    const bool isOneFile = options.paths.size() == 1 && walk.folders.empty();
    SayAll(walk.diagnostics);
    std::vector<ListedSymbol> symbols;
    std::size_t listed = 0;
    std::vector<conversions::Listing> listings(walk.files.size());
    FileWork work;
    work.work = [&](std::size_t i) { listings[i] = ListFile(walk.files[i], options); };
    work.take = [&](std::size_t i) {
        conversions::Listing listing = std::exchange(listings[i], {});
        SayAll(listing.diagnostics);
        listed += listing.isListed ? 1 : 0;
        symbols.insert(symbols.end(), std::make_move_iterator(listing.symbols.begin()),
                       std::make_move_iterator(listing.symbols.end()));
    };
    WorkOnFiles(walk.files, work);
    if (listed == 0) {
        if (walk.files.empty() && walk.diagnostics.empty()) {
            SayNoFiles();
        }
        return kInputFault;
    }
    const std::string format = FormatOf(options, isOneFile);
    const ExitStatus status = WriteResult(options.output, [&](const conversions::TextSink& sink) {
        return sink(format == "names"  ? NamesText(symbols)
                    : format == "json" ? documents::ListText(symbols)
                                       : Table(symbols, !isOneFile));
    });
    return status == kDone && (listed < walk.files.size() || !walk.diagnostics.empty()) ? kInputFault
                                                                                        : status;
}

} // namespace

void AddListCommand(CommandLine& line) {
    const auto options = std::make_shared<ListOptions>();
    Command command =
        line.AddCommand("list", "List what files hold: names, or a table of kinds and descriptions",
                        [options] { return List(*options); });
    command.AddFiles(options->paths, ".lin, .pat, .shx, .dxf and drawing .json files, and folders");
    AddWalkOptions(command, options->walk);
    command.AddFlag("--tolerant", options->tolerant, "List what is valid and report the rest");
    AddOutputOption(command, options->output);
    command.AddChoice(
        "--format", options->format, {"names", "table", "json"},
        "Form of the result: names, table or json (default: names of one file, on a terminal and of "
        "several a table)");
    AddCodePageOption(command, options->codePage);
}

} // namespace styleconv
