#include "styleconv/LinetypesCommand.h"

#include "StyleConversion/linetype/CLinVisitor.h"
#include "StyleConversion/linetype/LinParser.h"
#include "StyleConversion/platform/CodePage.h"
#include "StyleConversion/platform/Utf8.h"
#include "styleconv/AnnouncedLinetypes.h"
#include "styleconv/EmptyFile.h"
#include "styleconv/LackedCharacters.h"
#include "styleconv/LinetypeFindings.h"
#include "styleconv/LinetypeMessages.h"
#include "styleconv/LinetypeServices.h"
#include "styleconv/Messages.h"
#include "styleconv/NumberOption.h"
#include "styleconv/Progress.h"
#include "styleconv/SymbolOutput.h"

#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace styleconv {
namespace {

struct LinetypesOptions : CommonOptions, LinetypeSourceOptions {
    std::string file;
    std::vector<std::string> names;
    std::string codePage;
    double scale = 1.0;
};

struct Converted {
    Symbols symbols;
    bool hasLinetypes = false;
    std::set<std::wstring> withFaults; // names; where no symbol has it, that linetype was left out
};

// False after saying why.
bool ConvertAll(const InputFile& input, const LinetypesOptions& options, Converted& converted) {
    LinetypeServices services(input, options);
    if (!services.ReadDrawing()) {
        return false;
    }
    const LineConverter::LinPolicy policy =
        options.tolerant ? LineConverter::kTolerantLinPolicy : LineConverter::LinPolicy();
    LineConverter::LinParser parser(&services, &services, policy);
    LineConverter::LinResult result = parser.Parse(input.Path());
    services.SayWhatStoodIn();
    if (result == LineConverter::kSuccess) {
        LineConverter::CLinVisitor visitor(options.scale, &parser.faultLog(), policy);
        AnnouncedLinetypes announced(visitor);
        BeginStage("Converting", parser.linetypes().size());
        result = parser.Accept(announced);
        const std::unique_ptr<std::vector<TylModel::SymbolDefinition*>> results(visitor.TakeResults());
        for (std::size_t i = 0; results && i < results->size(); ++i) {
            converted.symbols.emplace_back((*results)[i]);
        }
        if (result == LineConverter::kSuccess && options.tolerant) {
            converted.hasLinetypes = !converted.symbols.empty() || !parser.faults().empty();
            for (const LineConverter::LinFault& fault : parser.faults()) {
                if (!fault.linetype.empty()) {
                    converted.withFaults.insert(platform::AnsiToWide(fault.linetype));
                }
            }
            std::vector<Finding> findings =
                ForgivenLinetypeFaults(input.Name(), parser.faults(), services.Sources());
            AddLackedCharacters(input.Name(), parser, Severity::kWarning, "; left out", findings);
            SortByLine(findings);
            SayFindings(findings);
            return true;
        }
        if (result == LineConverter::kSuccess && results) {
            return true;
        }
    }
    SayLinetypeFaults(input.Name(), parser.faults(), services.Sources());
    return false;
}

// Those asked for, in the order asked. False, after saying so, when one is not there; a tolerant conversion
// needs but one.
bool ChooseNamed(const InputFile& input, const LinetypesOptions& options, const Converted& converted,
                 std::vector<TylModel::SymbolDefinition*>& chosen) {
    bool complete = true;
    for (const std::string& name : options.names) {
        const std::wstring wide = platform::Utf8ToWide(name);
        const std::size_t before = chosen.size();
        for (const auto& symbol : converted.symbols) {
            if (symbol->GetName() == wide) {
                chosen.push_back(symbol.get());
            }
        }
        if (chosen.size() == before) {
            complete = false;
            // Why one was left out has been said.
            if (!converted.withFaults.contains(wide)) {
                SayMissing(input.Name(), "the file has no linetype named " + Shown(name), options.tolerant);
            }
        }
    }
    if (options.tolerant && chosen.empty()) {
        Say(input.Name(), "none of the linetypes asked for can be converted");
    }
    return complete || (options.tolerant && !chosen.empty());
}

ExitStatus Linetypes(const LinetypesOptions& options) {
    if (!CheckLinetypeSourceOptions(options)) {
        return kUsageFault;
    }
    InputFile input(options.file);
    if (!input.Read() || !input.ProvidePath()) {
        return kInputFault;
    }
    if (!ChooseCodePage(input, options.codePage)) {
        return kUsageFault;
    }
    Converted converted;
    if (!ConvertAll(input, options, converted)) {
        return kInputFault;
    }
    if (converted.symbols.empty() && !converted.hasLinetypes) {
        SayFileIsEmpty(input, kNoLinetypes);
        return kInputFault;
    }
    if (options.names.empty()) {
        if (converted.symbols.empty()) {
            Say(input.Name(), "none of the file's linetypes can be converted");
            return kInputFault;
        }
        return WriteSymbols(converted.symbols, options);
    }
    std::vector<TylModel::SymbolDefinition*> chosen;
    return ChooseNamed(input, options, converted, chosen) ? WriteSymbols(chosen, options) : kInputFault;
}

} // namespace

void AddLinetypesCommand(CommandLine& line) {
    const auto options = std::make_shared<LinetypesOptions>();
    Command command = line.AddCommand("linetypes", "Convert the linetypes of a .lin file",
                                      [options] { return Linetypes(*options); });
    command.AddFile(options->file, "A linetype file, or - for standard input");
    AddNameOption(command, options->names, "Convert only the linetypes of this name; may be given again");
    AddNumberOption(command, "--scale", options->scale, "Multiply all lengths by this (default: 1)");
    AddLinetypeSourceOptions(command, *options);
    AddTolerantOption(command, options->tolerant);
    AddCodePageOption(command, options->codePage);
    AddCommonOptions(command, *options);
}

bool ListLinetypes(const InputFile& input, std::vector<std::string>& names) {
    LineConverter::LinParser parser(nullptr, nullptr);
    if (parser.Read(input.Path()) != LineConverter::kSuccess) {
        SayLinetypeFaults(input.Name(), parser.faults(), {});
        return false;
    }
    for (const LineConverter::LinetypeRecord& record : parser.linetypes()) {
        names.push_back(platform::WideToValidUtf8(platform::AnsiToWide(record.name)));
    }
    if (names.empty()) {
        SayFileIsEmpty(input, kNoLinetypes);
    }
    return !names.empty();
}

} // namespace styleconv
