// Checks linetype files.
#include "StyleConversion/linetype/CLinVisitor.h"
#include "StyleConversion/linetype/LinResolution.h"
#include "StyleConversion/linetype/LinWalk.h"
#include "StyleConversion/linetype/LinetypeReader.h"
#include "StyleConversion/platform/Characters.h"
#include "StyleConversion/platform/CodePage.h"
#include "conversions/checking/Check.h"
#include "conversions/checking/MeasuredLinetypes.h"
#include "conversions/reading/AnnouncedLinetypes.h"
#include "conversions/reading/LinetypeDiagnostics.h"
#include "conversions/reading/MissingCharacters.h"
#include "conversions/reading/Patterns.h"
#include "conversions/reading/Shown.h"

#include <map>
#include <memory>
#include <utility>

namespace conversions {
namespace {

using diagnostics::Code;
using diagnostics::Diagnostics;
using diagnostics::Severity;
using LineConverter::LinetypeRecord;

std::string InUpperCase(std::string name) {
    for (char& c : name) {
        c = platform::AsciiUpper(c);
    }
    return name;
}

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

class LinetypeCheck {
public:
    LinetypeCheck(const Input& input, const LineConverter::LinetypeFile& file, Diagnostics& found)
        : input_(input), file_(file), found_(found) {}

    // What the file itself says, before styles and shapes are looked for.
    void CheckNamesAndPatterns() {
        for (std::size_t i = 0; i < file_.linetypes.size(); ++i) {
            CheckName(i);
            CheckPattern(i);
        }
    }

    void AddRemarks(const MeasuredLinetypes& measured) {
        for (const MeasuredLinetypes::Remark& remark : measured.Remarks()) {
            Add(file_.linetypes[remark.linetype].elements[remark.element].line, Severity::kWarning,
                remark.code, file_.linetypes[remark.linetype].name, remark.subjects);
        }
    }

    void NoteUnusedShapes(const MeasuredLinetypes& measured, const LinetypeSources& sources) {
        for (const auto& [fileName, file] : file_.shapeFiles) {
            if (file.kind != ShxUtility::kShapes) {
                continue;
            }
            std::string unused;
            for (const auto& [name, position] : file.nameIndex) {
                if (!measured.Uses(file, name)) {
                    unused += (unused.empty() ? "" : ", ") + ShownText(platform::AnsiToWide(name));
                }
            }
            if (!unused.empty()) {
                Add(0, Severity::kNote, Code::kUnusedShapes, "",
                    {ShownText(sources.AsSpelled(fileName)), unused});
            }
        }
    }

private:
    void Add(std::uint64_t line, Severity severity, Code code, const std::string& linetype,
             std::vector<std::string> subjects = {}) {
        diagnostics::Place place;
        place.file = input_.name;
        place.line = line;
        place.item = linetype.empty() ? "" : LinetypeItem(linetype);
        found_.push_back({severity, code, std::move(place), std::move(subjects)});
    }

    void CheckName(std::size_t index) {
        const std::string& name = file_.linetypes[index].name;
        const std::uint64_t line = file_.linetypes[index].line;
        const auto [same, isNew] = lines_.try_emplace(name, line);
        const auto [similar, isNewInUpperCase] = names_.try_emplace(InUpperCase(name), index);
        if (!isNew) {
            Add(line, Severity::kWarning, Code::kDuplicateName, name, {std::to_string(same->second)});
        } else if (!isNewInUpperCase) {
            Add(line, Severity::kWarning, Code::kSimilarName, name,
                {std::to_string(file_.linetypes[similar->second].line)});
        }
        if (name.find_first_not_of(" \t") == std::string::npos) {
            Add(line, Severity::kWarning, Code::kBlankName, "");
        } else if (IsBlank(name.front()) || IsBlank(name.back())) {
            Add(line, Severity::kWarning, Code::kBlankAroundName, name);
        }
    }

    void CheckPattern(std::size_t index) {
        const LinetypeRecord& record = file_.linetypes[index];
        const auto isGap = [](const LineConverter::LinElement& element) {
            return element.kind == LineConverter::kDash && element.length < 0.0;
        };
        double length = 0.0;
        bool draws = false;
        for (const LineConverter::LinElement& element : record.elements) {
            length += isGap(element) ? -element.length : element.length;
            draws = draws || !isGap(element);
        }
        const std::uint64_t line = record.elements.front().line;
        if (length == 0.0) {
            Add(line, Severity::kWarning, Code::kNoPatternLength, record.name);
        } else if (!draws) {
            Add(line, Severity::kWarning, Code::kGapsOnly, record.name);
        } else if (isGap(record.elements.front())) {
            Add(line, Severity::kWarning, Code::kStartsWithGap, record.name);
        }
    }

    const Input& input_;
    const LineConverter::LinetypeFile& file_;
    Diagnostics& found_;
    std::map<std::string, std::uint64_t> lines_; // of names
    std::map<std::string, std::size_t> names_;   // in upper case, to linetypes
};

// What a walk along all linetypes shows.
void CheckWalk(const LineConverter::LinetypeFile& file, LineConverter::LinErrorLog& log,
               const LinetypeSources& sources, const Input& input, Front& front, LinetypeCheck& check,
               Diagnostics& found) {
    LineConverter::CLinVisitor visitor(1.0, &log, LineConverter::kTolerantLinPolicy);
    MeasuredLinetypes measured(visitor);
    AnnouncedLinetypes announced(measured, front);
    Walk(file, announced, log);
    const std::unique_ptr<std::vector<TylModel::SymbolDefinition*>> symbols(visitor.TakeResults());
    for (TylModel::SymbolDefinition* const symbol : *symbols) {
        delete symbol;
    }
    Append(found,
           MissingCharacters(input.name, file, sources, Severity::kError, diagnostics::Outcome::kNone));
    check.AddRemarks(measured);
    check.NoteUnusedShapes(measured, sources);
}

} // namespace

Diagnostics CheckLinetypes(const Input& input, const LinetypeSourceOptions& options, Front& front) {
    Diagnostics found;
    LinetypeSources sources(input, options, front);
    if (!sources.ReadDrawing(found)) {
        return found;
    }
    const LineConverter::LinPolicy& policy = LineConverter::kTolerantLinPolicy;
    LineConverter::LinetypeFile file;
    LineConverter::LinErrorLog log;
    LineConverter::LinResult result = ReadLinetypes(input.bytes, policy, file, log);
    LinetypeCheck check(input, file, found);
    if (result == LineConverter::kSuccess) {
        check.CheckNamesAndPatterns();
        result = ResolveNames(file, &sources, &sources, policy, log);
    }
    if (result == LineConverter::kSuccess) {
        CheckWalk(file, log, sources, input, front, check, found);
    }
    Append(found, DiagnosticsOf(input.name, log.errors(), Manner::kChecked, sources));
    if (result != LineConverter::kSuccess && log.errors().empty()) {
        found.push_back({Severity::kError, Code::kOutOfMemory, {input.name}, {}});
    } else if (file.linetypes.empty() && log.errors().empty()) {
        found.push_back(EmptyFile(input, Code::kNoLinetypes));
    }
    Append(found, sources.StandIns(Severity::kWarning));
    SortByLine(found);
    return found;
}

} // namespace conversions
