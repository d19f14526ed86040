#include "styleconv/PatternsCommand.h"

#include "StyleConversion/pattern/AreaSymbol.h"
#include "StyleConversion/pattern/PatternFile.h"
#include "StyleConversion/pattern/PatternLimits.h"
#include "StyleConversion/platform/CodePage.h"
#include "StyleConversion/platform/Utf8.h"
#include "styleconv/EmptyFile.h"
#include "styleconv/Finding.h"
#include "styleconv/Messages.h"
#include "styleconv/PatternFindings.h"
#include "styleconv/Progress.h"
#include "styleconv/SymbolOutput.h"
#include "styleconv/WorkLimits.h"

#include <algorithm>
#include <memory>
#include <string_view>
#include <utility>

namespace styleconv {
namespace {

struct PatternsOptions : CommonOptions {
    std::string file;
    std::vector<std::string> names;
    std::string codePage;
    std::string units;
    bool tolerant = false;
};

struct LoadedPatterns {
    pattern::PatternFile file;
    pattern::PatternReading reading;
};

// False, after saying why, when the file has no patterns or its reading ended early.
bool Load(const InputFile& input, LoadedPatterns& loaded, const pattern::PatternPolicy& policy = {}) {
    pattern::ParsePatternFile(input.Bytes(), loaded.file, &loaded.reading, policy);
    if (loaded.reading.end == pattern::PatternReading::End::kLineTooLong) {
        SayAtLine(input.Name(), loaded.reading.endLine,
                  "the line has more than " + std::to_string(pattern::kLongestLine) +
                      " characters; nothing from here on can be read");
        return false;
    }
    if (loaded.file.patterns.empty()) {
        SayFileIsEmpty(input, kNoPatterns);
        return false;
    }
    return true;
}

// Where a tolerant conversion keeps what it left out, to say it in the order of the file; a strict one says
// it at once.
using LeftOut = std::vector<Finding>*;

std::string WhyItBecomesNothing(const std::vector<pattern::PatternLine>& lines) {
    if (lines.empty()) {
        return "has no lines";
    }
    const auto hasTile = [](const pattern::PatternLine& line) { return line.rowCount >= 0; };
    return std::any_of(lines.begin(), lines.end(), hasTile)
               ? "has a repeat tile too small to draw: its sides are shorter than 0.0001"
               : "has no repeat tile: no rectangle of any size repeats its lines";
}

// Converts the pattern, or tells why it becomes nothing.
std::unique_ptr<TylModel::SymbolDefinition> ConvertPattern(const InputFile& input, LoadedPatterns& loaded,
                                                           const std::string& name,
                                                           std::string_view consequence, LeftOut leftOut) {
    NowAtItem(PatternItem(name));
    std::vector<pattern::PatternLine>& lines = loaded.file.patterns.at(name);
    auto symbol = pattern::BuildAreaSymbol(name, lines);
    if (symbol != nullptr) {
        return symbol;
    }
    const std::size_t line = loaded.reading.headerLines.at(name).front();
    const std::string reason = WhyItBecomesNothing(lines);
    if (leftOut != nullptr) {
        leftOut->push_back({input.Name(), line, Severity::kWarning, "the pattern " + reason + "; left out",
                            PatternItem(name)});
    } else {
        SayAtLine(input.Name(), line, PatternItem(name) + " " + reason + std::string(consequence));
    }
    return symbol;
}

// All that can be converted, in the order of the names. False when that is none.
bool ConvertAll(const InputFile& input, LoadedPatterns& loaded, LeftOut leftOut, Symbols& symbols) {
    BeginStage("Converting", loaded.file.patterns.size());
    for (const auto& [name, lines] : loaded.file.patterns) {
        if (auto symbol = ConvertPattern(input, loaded, name, "; left out", leftOut)) {
            symbols.push_back(std::move(symbol));
        }
    }
    return !symbols.empty();
}

// Those asked for, in the order asked. False when one is not there or cannot be converted; a tolerant
// conversion needs but one.
bool ConvertNamed(const InputFile& input, LoadedPatterns& loaded, const std::vector<std::string>& names,
                  LeftOut leftOut, Symbols& symbols) {
    bool complete = true;
    BeginStage("Converting", names.size());
    for (const std::string& name : names) {
        const std::string narrow = platform::WideToAnsi(platform::Utf8ToWide(name));
        if (!loaded.file.patterns.contains(narrow)) {
            SayMissing(input.Name(), "the file has no pattern named " + Shown(name), leftOut != nullptr);
            complete = false;
        } else if (auto symbol = ConvertPattern(input, loaded, narrow, "", leftOut)) {
            symbols.push_back(std::move(symbol));
        } else {
            complete = false;
        }
    }
    return complete || (leftOut != nullptr && !symbols.empty());
}

pattern::PatternPolicy PolicyOf(const PatternsOptions& options) {
    pattern::PatternPolicy policy =
        options.tolerant ? pattern::kTolerantPatternPolicy : pattern::PatternPolicy();
    if (!options.units.empty()) {
        policy.wantedUnit = options.units == "mm" ? pattern::Unit::kMillimetre : pattern::Unit::kInch;
    }
    return policy;
}

ExitStatus Patterns(const PatternsOptions& options) {
    InputFile input(options.file);
    if (!input.Read()) {
        return kInputFault;
    }
    if (!ChooseCodePage(input, options.codePage)) {
        return kUsageFault;
    }
    LoadedPatterns loaded;
    if (!Load(input, loaded, PolicyOf(options))) {
        return kInputFault;
    }
    std::vector<Finding> findings;
    if (options.tolerant) {
        findings = ForgivenPatternSlips(input.Name(), loaded.file, loaded.reading);
    }
    const LeftOut leftOut = options.tolerant ? &findings : nullptr;
    Symbols symbols;
    const bool converted = options.names.empty()
                               ? ConvertAll(input, loaded, leftOut, symbols)
                               : ConvertNamed(input, loaded, options.names, leftOut, symbols);
    SortByLine(findings);
    SayFindings(findings);
    if (converted) {
        return WriteSymbols(symbols, options);
    }
    if (options.names.empty()) {
        Say(input.Name(), "none of the file's patterns can be converted");
    } else if (options.tolerant) {
        Say(input.Name(), "none of the patterns asked for can be converted");
    }
    return kInputFault;
}

} // namespace

void AddPatternsCommand(CommandLine& line) {
    const auto options = std::make_shared<PatternsOptions>();
    Command command = line.AddCommand("patterns", "Convert the hatch patterns of a .pat file",
                                      [options] { return Patterns(*options); });
    command.AddFile(options->file, "A pattern file, or - for standard input");
    AddNameOption(command, options->names, "Convert only this pattern; may be given again");
    AddTolerantOption(command, options->tolerant);
    command.AddChoice("--units", options->units, {"mm", "inch"},
                      "Scale to this unit, mm or inch, a file that says ;%UNITS= otherwise");
    AddCodePageOption(command, options->codePage);
    AddCommonOptions(command, *options);
}

void CheckPatterns(const InputFile& input, std::vector<Finding>& findings) {
    LoadedPatterns loaded;
    pattern::ParsePatternFile(input.Bytes(), loaded.file, &loaded.reading, pattern::kTolerantPatternPolicy);
    for (Finding& finding : CheckedPatterns(input.Name(), loaded.file, loaded.reading)) {
        findings.push_back(std::move(finding));
    }
    if (loaded.file.patterns.empty()) {
        findings.push_back({input.Name(), 0, Severity::kError, EmptyFileText(input, kNoPatterns), ""});
    }
}

bool ListPatterns(const InputFile& input, std::vector<std::string>& names) {
    LoadedPatterns loaded;
    if (!Load(input, loaded)) {
        return false;
    }
    for (const auto& [name, description] : loaded.file.descriptions) {
        names.push_back(platform::WideToValidUtf8(platform::AnsiToWide(name)));
    }
    return true;
}

} // namespace styleconv
