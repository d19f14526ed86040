#include "styleconv/CheckedLinetypes.h"

#include "StyleConversion/linetype/CLinVisitor.h"
#include "StyleConversion/linetype/LinParser.h"
#include "StyleConversion/platform/CodePage.h"
#include "styleconv/AnnouncedLinetypes.h"
#include "styleconv/EmptyFile.h"
#include "styleconv/LackedCharacters.h"
#include "styleconv/LinetypeFindings.h"
#include "styleconv/MeasuredLinetypes.h"
#include "styleconv/Messages.h"
#include "styleconv/Progress.h"

#include <map>
#include <memory>
#include <utility>

namespace styleconv {
namespace {

using LineConverter::LinetypeRecord;

std::string InUpperCase(std::string name) {
    for (char& c : name) {
        c = LineConverter::UpperCase(c);
    }
    return name;
}

class LinetypeCheck {
public:
    LinetypeCheck(const InputFile& input, const LineConverter::LinParser& parser,
                  std::vector<Finding>& findings)
        : input_(input), parser_(parser), findings_(findings) {}

    // What the file itself says, before styles and shapes are looked for.
    void CheckNamesAndPatterns() {
        for (std::size_t i = 0; i < parser_.linetypes().size(); ++i) {
            CheckName(i);
            CheckPattern(i);
        }
    }

    void AddRemarks(const MeasuredLinetypes& measured) {
        for (const MeasuredLinetypes::Remark& remark : measured.Remarks()) {
            Add(parser_.ElementLine(remark.linetype, remark.element), Severity::kWarning, remark.text,
                LinetypeItem(parser_.linetypes()[remark.linetype].name));
        }
    }

    void NoteUnusedShapes(const MeasuredLinetypes& measured) {
        for (const auto& [fileName, file] : parser_.shapeFiles()) {
            if (file.kind != ShxUtility::kShapes) {
                continue;
            }
            std::string unused;
            for (const auto& [name, position] : file.nameIndex) {
                if (!measured.Uses(file, name)) {
                    unused += (unused.empty() ? "" : ", ") + Shown(platform::AnsiToWide(name));
                }
            }
            if (!unused.empty()) {
                Add(0, Severity::kNote, "no linetype uses these shapes of " + Shown(fileName) + ": " + unused,
                    "");
            }
        }
    }

private:
    void Add(std::uint64_t line, Severity severity, std::string message, std::string item) {
        findings_.push_back({input_.Name(), line, severity, std::move(message), std::move(item)});
    }

    void CheckName(std::size_t index) {
        const LinetypeRecord& record = parser_.linetypes()[index];
        const std::uint64_t line = parser_.HeaderLine(index);
        const auto [same, isNew] = lines_.try_emplace(record.name, line);
        const auto [similar, isNewInUpperCase] = names_.try_emplace(InUpperCase(record.name), index);
        if (!isNew) {
            Add(line, Severity::kWarning,
                "the name is used in line " + std::to_string(same->second) + " already",
                LinetypeItem(record.name));
        } else if (!isNewInUpperCase) {
            Add(line, Severity::kWarning,
                "the name differs only in case from the one in line " +
                    std::to_string(parser_.HeaderLine(similar->second)),
                LinetypeItem(record.name));
        }
        if (record.name.find_first_not_of(" \t") == std::string::npos) {
            Add(line, Severity::kWarning, "the name is nothing but blanks", "");
        } else if (record.name.front() == ' ' || record.name.back() == ' ' || record.name.front() == '\t' ||
                   record.name.back() == '\t') {
            Add(line, Severity::kWarning, "the blank before or behind the name is part of it",
                LinetypeItem(record.name));
        }
    }

    void CheckPattern(std::size_t index) {
        const LinetypeRecord& record = parser_.linetypes()[index];
        double length = 0.0;
        bool draws = false;
        for (const LineConverter::LinElement& element : record.elements) {
            const bool isGap = element.kind == LineConverter::kDash && element.length < 0.0;
            length += isGap ? -element.length : element.length;
            draws = draws || !isGap;
        }
        const std::uint64_t line = parser_.ElementLine(index, 0);
        if (length == 0.0) {
            Add(line, Severity::kWarning, "the pattern has no length, so nothing can be repeated",
                LinetypeItem(record.name));
        } else if (!draws) {
            Add(line, Severity::kWarning, "the pattern has gaps only and draws nothing",
                LinetypeItem(record.name));
        } else if (record.elements.front().kind == LineConverter::kDash &&
                   record.elements.front().length < 0.0) {
            Add(line, Severity::kWarning,
                "the pattern begins with a gap: a line begins and ends with a dash elsewhere",
                LinetypeItem(record.name));
        }
    }

    const InputFile& input_;
    const LineConverter::LinParser& parser_;
    std::vector<Finding>& findings_;
    std::map<std::string, std::uint64_t> lines_; // of names
    std::map<std::string, std::size_t> names_;   // in upper case, to linetypes
};

} // namespace

bool CheckLinetypes(const InputFile& input, const LinetypeSourceOptions& options,
                    std::vector<Finding>& findings) {
    LinetypeServices services(input, options);
    if (!services.ReadDrawing()) {
        return false;
    }
    std::vector<Finding> found;
    LineConverter::LinParser parser(&services, &services, LineConverter::kTolerantLinPolicy);
    LineConverter::LinResult result = parser.Read(input.Path());
    LinetypeCheck check(input, parser, found);
    if (result == LineConverter::kSuccess) {
        check.CheckNamesAndPatterns();
        result = parser.Resolve();
    }
    if (result == LineConverter::kSuccess) {
        LineConverter::CLinVisitor visitor(1.0, &parser.faultLog(), LineConverter::kTolerantLinPolicy);
        MeasuredLinetypes measured(visitor);
        AnnouncedLinetypes announced(measured);
        parser.Accept(announced);
        const std::unique_ptr<std::vector<TylModel::SymbolDefinition*>> symbols(visitor.TakeResults());
        for (TylModel::SymbolDefinition* const symbol : *symbols) {
            delete symbol;
        }
        AddLackedCharacters(input.Name(), parser, Severity::kError, "", found);
        check.AddRemarks(measured);
        check.NoteUnusedShapes(measured);
    }
    for (Finding& finding : CheckedLinetypeFaults(input.Name(), parser.faults(), services.Sources())) {
        found.push_back(std::move(finding));
    }
    if (result != LineConverter::kSuccess && parser.faults().empty()) {
        found.push_back({input.Name(), 0, Severity::kError, "there is not enough memory", ""});
    } else if (parser.linetypes().empty() && parser.faults().empty()) {
        found.push_back({input.Name(), 0, Severity::kError, EmptyFileText(input, kNoLinetypes), ""});
    }
    const std::string standIn = services.BuiltInFontText();
    if (!standIn.empty()) {
        found.push_back({input.Name(), 0, Severity::kWarning, standIn, ""});
    }
    SortByLine(found);
    findings.insert(findings.end(), found.begin(), found.end());
    return true;
}

} // namespace styleconv
