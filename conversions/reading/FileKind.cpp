#include "conversions/reading/FileKind.h"

#include "StyleConversion/encoding/NumberReader.h"
#include "StyleConversion/platform/Characters.h"
#include "exchange/DxfReader.h"

#include <algorithm>
#include <string>
#include <utility>

namespace conversions {
namespace {

using diagnostics::Severity;

struct KindWords {
    FileKind kind;
    std::string_view extension;
    const char* name;
    const char* command;
};

constexpr KindWords kKinds[] = {
    {FileKind::kLinetypes, ".lin", "linetype file", "linetypes"},
    {FileKind::kPatterns, ".pat", "pattern file", "patterns"},
    {FileKind::kShapes, ".shx", "shape file", "glyphs"},
    {FileKind::kDrawing, ".json", "drawing", "blocks"},
    {FileKind::kDrawing, ".dxf", "drawing", "blocks"},
    {FileKind::kSymbols, ".json", "symbols document", "convert"},
};

const KindWords& WordsOf(FileKind kind) {
    return *std::find_if(std::begin(kKinds), std::end(kKinds),
                         [&](const KindWords& words) { return words.kind == kind; });
}

constexpr std::string_view kDxfExtension = ".dxf";

bool EndsWithIgnoringCase(std::string_view text, std::string_view end) {
    return text.size() >= end.size() &&
           std::equal(end.begin(), end.end(), text.end() - static_cast<std::ptrdiff_t>(end.size()),
                      [](char a, char b) { return a == platform::AsciiLower(b); });
}

// "A,.5,-.25"
bool IsLinetypePattern(std::string_view line) {
    return line.size() > 1 &&
           (platform::AsciiLower(line[0]) == 'a' || platform::AsciiLower(line[0]) == 's') && line[1] == ',';
}

// "45,0,0,0,.125": at least five numbers.
bool IsFamily(std::string_view line) {
    constexpr int kNumbers = 5;
    for (int i = 0; i < kNumbers; ++i) {
        line = platform::WithoutBlanks(line);
        const std::size_t used = encoding::ReadNumber(line).used;
        line = platform::WithoutBlanks(line.substr(used));
        if (used == 0 || (i + 1 < kNumbers && !line.starts_with(','))) {
            return false;
        }
        line = line.substr(line.empty() ? 0 : 1);
    }
    return true;
}

// Both kinds have headers that begin with "*"; what follows the first that is followed by anything tells.
FileKind KindOfText(std::string_view text) {
    bool hasHeader = false;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        const std::string_view line = platform::WithoutBlanks(text.substr(0, end));
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
        if (line.starts_with('*')) {
            hasHeader = true;
        } else if (hasHeader && IsLinetypePattern(line)) {
            return FileKind::kLinetypes;
        } else if (hasHeader && IsFamily(line)) {
            return FileKind::kPatterns;
        } else if (hasHeader && !line.empty() && !line.starts_with(';')) {
            hasHeader = false;
        }
    }
    return FileKind::kUnknown;
}

// By the format that it names, the first of several: others stand in its texts.
FileKind KindOfDocument(std::string_view bytes) {
    if (!platform::WithoutBlanks(bytes).starts_with('{')) {
        return FileKind::kUnknown;
    }
    const std::size_t drawing = bytes.find("styleconversion/drawing");
    const std::size_t symbols = bytes.substr(0, drawing).find("styleconversion/symbols");
    return symbols != std::string_view::npos   ? FileKind::kSymbols
           : drawing != std::string_view::npos ? FileKind::kDrawing
                                               : FileKind::kUnknown;
}

// What files begin with that are none of these, but of a kind that is often met.
struct OtherStart {
    std::string_view bytes;
    diagnostics::Code code;
};
constexpr OtherStart kOtherStarts[] = {{"\xff\xfe", diagnostics::Code::kOtherEncoding},
                                       {"\xfe\xff", diagnostics::Code::kOtherEncoding},
                                       {"PK\x03\x04", diagnostics::Code::kZipArchive}};

diagnostics::Diagnostic WrongKind(const Input& input, FileKind kind, FileKind found, KindAdvice advice,
                                  Severity severity) {
    const KindWords& words = WordsOf(found);
    std::string help =
        advice == KindAdvice::kOtherCommand
            ? std::string("use \"styleconv ") + words.command + "\""
            : "its name should end in " +
                  std::string(exchange::LooksLikeDxf(input.bytes) ? kDxfExtension : words.extension);
    return {severity,
            diagnostics::Code::kWrongFileKind,
            {input.name},
            {words.name, WordsOf(kind).name, std::move(help)}};
}

} // namespace

FileKind KindByName(std::string_view name) {
    for (const KindWords& words : kKinds) {
        if (EndsWithIgnoringCase(name, words.extension)) {
            return words.kind;
        }
    }
    return FileKind::kUnknown;
}

FileKind KindByContents(std::string_view bytes) {
    if (bytes.starts_with("Vorlanx-86 ")) {
        return FileKind::kShapes;
    }
    if (const FileKind kind = KindOfDocument(bytes); kind != FileKind::kUnknown) {
        return kind;
    }
    if (exchange::LooksLikeDxf(bytes)) {
        return FileKind::kDrawing;
    }
    return KindOfText(platform::WithoutByteOrderMark(bytes));
}

bool IsDxf(std::string_view name, std::string_view bytes) {
    return exchange::LooksLikeDxf(bytes) ||
           (EndsWithIgnoringCase(name, kDxfExtension) && !platform::WithoutBlanks(bytes).starts_with('{'));
}

std::optional<diagnostics::Diagnostic> KnownStranger(const std::string& name, std::string_view bytes) {
    for (const OtherStart& start : kOtherStarts) {
        if (bytes.starts_with(start.bytes)) {
            return diagnostics::Diagnostic{Severity::kError, start.code, {name}, {}};
        }
    }
    return std::nullopt;
}

void TellWrongKind(const Input& input, FileKind kind, KindAdvice advice,
                   diagnostics::Diagnostics& diagnostics) {
    if (std::optional<diagnostics::Diagnostic> stranger = KnownStranger(input.name, input.bytes)) {
        diagnostics = {std::move(*stranger)};
        return;
    }
    FileKind found = KindByContents(input.bytes);
    if (found == FileKind::kUnknown) {
        found = KindByName(input.name);
    }
    if (found != FileKind::kUnknown && found != kind) {
        diagnostics.clear();
        diagnostics.push_back(WrongKind(input, kind, found, advice, Severity::kError));
    }
}

void WarnOfKind(const Input& input, FileKind kind, diagnostics::Diagnostics& diagnostics) {
    const FileKind found = KindByContents(input.bytes);
    if (found != FileKind::kUnknown && found != kind) {
        diagnostics.insert(diagnostics.begin(),
                           WrongKind(input, kind, found, KindAdvice::kOtherCommand, Severity::kWarning));
    }
}

} // namespace conversions
