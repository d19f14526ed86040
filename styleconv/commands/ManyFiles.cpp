#include "styleconv/commands/ManyFiles.h"

#include "conversions/Gathering.h"
#include "conversions/SymbolsDocuments.h"
#include "diagnostics/Sentences.h"
#include "diagnostics/ShownText.h"
#include "styleconv/commands/FilesInOrder.h"
#include "styleconv/commands/Job.h"
#include "styleconv/files/FileWalk.h"
#include "styleconv/files/Paths.h"
#include "styleconv/process/Messages.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <system_error>
#include <utility>

namespace styleconv {
namespace {

using conversions::Conversion;
using conversions::FileKind;
using diagnostics::Diagnostics;
using diagnostics::Severity;

// More names in one line help nobody.
constexpr std::size_t kMostNamed = 10;

// "3 warnings: unexpected-blank (2), wider-than-gap (1)"; empty where there is none.
std::string CountsByCode(const Diagnostics& told, Severity severity) {
    std::map<std::string, std::size_t> counts;
    std::size_t all = 0;
    for (const diagnostics::Diagnostic& diagnostic : told) {
        if (diagnostic.severity == severity) {
            const std::size_t count =
                CountsEntities(diagnostic.code) ? 1 + diagnostic.morePlaces : diagnostic.count;
            counts[std::string(NameOf(diagnostic.code))] += count;
            all += count;
        }
    }
    std::string text = Counted(all, std::string(NameOf(severity)));
    const char* separator = ": ";
    for (const auto& [name, count] : counts) {
        text += std::exchange(separator, ", ") + name + " (" + std::to_string(count) + ")";
    }
    return counts.empty() ? "" : text;
}

std::string SomeOf(const std::vector<std::string>& names) {
    std::string text;
    for (std::size_t i = 0; i < std::min(names.size(), kMostNamed); ++i) {
        text += (i == 0 ? "" : ", ") + diagnostics::ShownText(names[i]);
    }
    return names.size() > kMostNamed ? text + " and " + std::to_string(names.size() - kMostNamed) + " more"
                                     : text;
}

void SaySummary(const FilesToConvert& files, const conversions::Gathering& gathering,
                const Diagnostics& told) {
    SayLine("styleconv: " + Counted(gathering.FileCount(), "file") + ", " +
            Counted(gathering.SymbolCount(), "symbol") +
            (files.others > 0 ? "; " + Counted(files.others, "file") + " of no kind that is converted" : "") +
            (files.repeated > 0 ? "; " + Counted(files.repeated, "file") + " given again" : ""));
    for (const Severity severity : {Severity::kError, Severity::kWarning}) {
        if (const std::string counts = CountsByCode(told, severity); !counts.empty()) {
            SayLine("styleconv: " + counts);
        }
    }
    if (!gathering.Refused().empty()) {
        SayLine("styleconv: not converted: " + SomeOf(gathering.Refused()) +
                (!files.isTolerant && IsToleranceOfHelp(told) ? "; --tolerant converts what is valid in them"
                                                              : ""));
    }
}

// Of a symbols document among files of one kind, what is of their kind.
Conversion ConvertDocument(const FilesToConvert& files, const std::string& file, const MakeFront& makeFront) {
    InputFile input(file);
    if (const auto problem = input.Read()) {
        Conversion unread;
        unread.diagnostics.push_back(*problem);
        return unread;
    }
    const auto front = makeFront(file, FileKind::kSymbols);
    return ConvertSymbolsOfKind(input.ForJob(), files.kind, files.names, files.isTolerant, *front);
}

Conversion ConvertOne(const FilesToConvert& files, const std::string& file, FileKind& kind,
                      const ConvertFile& convert, const MakeFront& makeFront) {
    if (kind != FileKind::kUnknown && IsSymbolsDocument(file)) {
        kind = FileKind::kSymbols;
        return ConvertDocument(files, file, makeFront);
    }
    Conversion conversion;
    InputFile input(file);
    const bool isGiven = kind != FileKind::kUnknown;
    const auto problem = !isGiven                     ? OpenForKind(input, file, kind)
                         : kind == FileKind::kDrawing ? input.Open()
                                                      : input.Read();
    if (problem) {
        conversion.diagnostics.push_back(*problem);
    } else if (kind == FileKind::kUnknown) {
        conversion.diagnostics.push_back(
            {Severity::kError, diagnostics::Code::kUnknownFileKind, {input.Name()}, {}});
    } else {
        const auto front = makeFront(file, kind);
        conversion = convert(input, kind, *front);
    }
    return conversion;
}

} // namespace

std::string Counted(std::size_t count, const std::string& what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

void SayNoFiles() {
    SayLine("styleconv: no file of a kind that is converted: .lin, .pat, .shx, .json, .dxf");
}

FilesToConvert FilesOfKind(FileKind kind, const std::vector<std::string>& files, bool allOrNothing,
                           bool isTolerant) {
    FilesToConvert result;
    result.files = files;
    result.repeated = files.size() > 1 ? KeepFirst(result.files) : 0;
    result.kind = kind;
    result.allOrNothing = allOrNothing;
    result.isTolerant = isTolerant;
    result.tellsOrigins = files.size() > 1;
    return result;
}

void AddAllOrNothingOption(Command& command, bool& allOrNothing) {
    command.AddFlag("--all-or-nothing", allOrNothing,
                    "Of several files, write nothing when one of them cannot be converted");
}

Conversion ConvertWithStyles(const conversions::Input& input, conversions::LinetypesOptions job,
                             const StyleOptions& options, conversions::Front& front) {
    InputFile drawing(options.drawing);
    if (!options.drawing.empty()) {
        if (const auto problem = drawing.Open()) {
            Conversion failed;
            failed.diagnostics.push_back(*problem);
            return failed;
        }
        job.drawing = drawing.ForJob();
    }
    return ConvertLinetypes(input, job, front);
}

bool CheckSeveralFiles(const std::vector<std::string>& files, const std::string& selection, bool isSelected) {
    if (std::find(files.begin(), files.end(), "-") != files.end()) {
        SayLine("styleconv: standard input cannot be one of several files");
        return false;
    }
    if (isSelected && files.size() > 1) {
        SayLine("styleconv: " + selection + " cannot be used with several files: it selects from one");
        return false;
    }
    return true;
}

// What is no file, as a pipe, is read but once.
bool IsSymbolsDocument(const std::string& path) {
    std::error_code ignored;
    if (conversions::KindByName(path) != FileKind::kDrawing ||
        !std::filesystem::is_regular_file(OpenablePath(NativePath(path)), ignored)) {
        return false;
    }
    InputFile input(path);
    return !input.Open() && conversions::KindByContents(input.Start()) == FileKind::kSymbols;
}

bool AreSymbolsAmong(const std::vector<std::string>& files) {
    return std::any_of(files.begin(), files.end(), IsSymbolsDocument);
}

bool CheckMakingOptions(const std::vector<std::string>& files, const std::vector<MakingOption>& options) {
    const auto given = std::find_if(options.begin(), options.end(),
                                    [](const MakingOption& option) { return option.isGiven; });
    if (given == options.end() || !AreSymbolsAmong(files)) {
        return true;
    }
    SayLine(std::string("styleconv: ") + given->name +
            " cannot be used with a symbols document: its symbols are made already");
    return false;
}

ExitStatus ConvertFiles(const FilesToConvert& files, const ConvertFile& convert, const MakeFront& makeFront,
                        const CommonOptions& options, conversions::Form form) {
    conversions::Gathering gathering;
    conversions::RestyledCounts restyled;
    std::vector<FileKind> kinds(files.files.size(), files.kind);
    std::vector<Conversion> conversions(files.files.size());
    FileWork work;
    work.work = [&](std::size_t i) {
        conversions[i] = ConvertOne(files, files.files[i], kinds[i], convert, makeFront);
    };
    work.take = [&](std::size_t i) {
        Conversion conversion = std::exchange(conversions[i], {});
        conversion.captions.title = TitleOf(files.files[i]);
        restyled.Add(Restyle(conversion, options.restyling));
        gathering.Add(files.files[i], kinds[i], std::move(conversion));
    };
    work.soFar = [&] { return Counted(gathering.SymbolCount(), "symbol"); };
    WorkOnFiles(files.files, work);
    if (gathering.HasSymbols() &&
        !CheckCount(
            options, form, gathering.SymbolCount(),
            "convert one file by linetypes, patterns or blocks with --name, or by glyphs with --number")) {
        return kUsageFault;
    }
    Diagnostics told = files.diagnostics;
    Append(told, gathering.Told());
    SayAll(told);
    SayRestyled(restyled, options.restyling);
    SaySummary(files, gathering, told);
    const bool isComplete = gathering.Refused().empty() && files.diagnostics.empty();
    if (!gathering.HasSymbols() || (files.allOrNothing && !isComplete)) {
        if (files.files.empty() && files.diagnostics.empty()) {
            SayNoFiles();
        }
        SayLine("styleconv: nothing was written");
        return kInputFault;
    }
    const auto front = FrontWithoutFiles(options.output.empty());
    const std::string result = files.files.size() == 1  ? files.files.front()
                               : options.output.empty() ? "standard output"
                                                        : options.output;
    const ExitStatus written = WriteForm(
        options, form, result, [&](const conversions::TextSink& sink, conversions::StyleJob& styles) {
            styles.folders = files.folders;
            return gathering.Write(form, files.tellsOrigins, sink, *front, &styles);
        });
    return isComplete ? written : kInputFault;
}

} // namespace styleconv
