#include "conversions/reading/Drawing.h"

#include "conversions/reading/FileKind.h"
#include "diagnostics/Sentences.h"
#include "documents/DrawingReader.h"
#include "exchange/DxfReader.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace conversions {

using diagnostics::Diagnostic;
using diagnostics::Diagnostics;
using diagnostics::Outcome;
using diagnostics::Severity;

namespace {

enum class Reading : std::uint8_t { kStrict, kTolerant, kCheck };

// What a reading says of a part of the file that it left out or read otherwise.
Diagnostic Told(Diagnostic diagnostic, const Input& input, Reading reading) {
    diagnostic.place.file = input.name;
    if (reading != Reading::kTolerant && diagnostic.severity == Severity::kError) {
        diagnostic.outcome = Outcome::kNone;
    } else if (diagnostic.severity == Severity::kError) {
        diagnostic.severity = Severity::kWarning;
    }
    return diagnostic;
}

std::unique_ptr<drawing::Database> ReadDocument(const Input& input, std::string_view bytes, Reading reading,
                                                Diagnostics& diagnostics) {
    documents::DrawingError error;
    documents::ToleratedErrors tolerated;
    documents::ToleratedErrors* const kept = reading == Reading::kStrict ? nullptr : &tolerated;
    auto drawing = input.stream != nullptr && bytes.empty()
                       ? documents::ReadDrawing(input.stream, error, kept)
                       : documents::ReadDrawing(bytes, error, kept);
    if (drawing == nullptr) {
        Diagnostic refusal;
        refusal.code = error.code;
        refusal.place.file = input.name;
        refusal.place.path = error.path;
        refusal.subjects = error.subjects;
        diagnostics.push_back(std::move(refusal));
    }
    if (drawing != nullptr && drawing->insunits() == OxDb::kUnitsUndefined) {
        Diagnostic noUnit;
        noUnit.severity = Severity::kWarning;
        noUnit.code = diagnostics::Code::kNoUnit;
        noUnit.place.file = input.name;
        noUnit.subjects = {diagnostics::UnitHelp(drawing->IsMetric())};
        diagnostics.push_back(std::move(noUnit));
    }
    if (drawing != nullptr || reading == Reading::kTolerant) {
        for (Diagnostic diagnostic : tolerated.All()) {
            diagnostic.severity = Severity::kError;
            diagnostics.push_back(Told(std::move(diagnostic), input, reading));
        }
    }
    return drawing;
}

Diagnostic Unreadable(const Input& input) {
    return {Severity::kError,
            diagnostics::Code::kUnreadableFile,
            {input.name},
            {"reading failed before its end"}};
}

/// The bytes of a file that is open.
class StreamSource : public exchange::ByteSource {
public:
    explicit StreamSource(std::FILE* stream) : stream_(stream) {}

    std::size_t Read(char* bytes, std::size_t most) override { return std::fread(bytes, 1, most, stream_); }
    void Rewind() override { std::rewind(stream_); }

private:
    std::FILE* stream_;
};

// `read` reads it with what it is given for the fault and the notes.
template <class Read>
std::unique_ptr<drawing::Database> ReadDxfFile(const Input& input, Reading reading, Diagnostics& diagnostics,
                                               const Read& read) {
    Diagnostic fault;
    exchange::DxfNotes notes;
    std::unique_ptr<drawing::Database> drawing = read(fault, notes);
    if (input.stream != nullptr && std::ferror(input.stream) != 0) {
        diagnostics.push_back(Unreadable(input));
        return nullptr;
    }
    if (drawing == nullptr) {
        fault.place.file = input.name;
        diagnostics.push_back(std::move(fault));
        return drawing;
    }
    for (const Diagnostic& note : notes.All()) {
        diagnostics.push_back(Told(note, input, reading));
    }
    if (reading == Reading::kStrict && CountOf(notes.All(), Severity::kError) > 0) {
        drawing.reset();
    }
    return drawing;
}

// False where reading failed.
bool ReadRest(std::FILE* stream, std::string& bytes) {
    std::array<char, 1 << 16> block{};
    std::size_t count = 0;
    while ((count = std::fread(block.data(), 1, block.size(), stream)) > 0) {
        bytes.append(block.data(), count);
    }
    return std::ferror(stream) == 0;
}

std::unique_ptr<drawing::Database> ReadBytes(const Input& input, std::string_view bytes, Reading reading,
                                             Diagnostics& diagnostics) {
    if (std::optional<Diagnostic> stranger = KnownStranger(input.name, bytes)) {
        diagnostics.push_back(std::move(*stranger));
        return nullptr;
    }
    if (!IsDxf(input.name, bytes)) {
        return ReadDocument(input, bytes, reading, diagnostics);
    }
    return ReadDxfFile(input, reading, diagnostics, [bytes](Diagnostic& fault, exchange::DxfNotes& notes) {
        return exchange::ReadDxf(bytes, fault, notes);
    });
}

// Both kinds are read as they come where their first bytes tell which of them it is, and, for DXF, where
// reading can begin anew; else the file is held as a whole.
std::unique_ptr<drawing::Database> ReadStream(const Input& input, Reading reading, Diagnostics& diagnostics) {
    const int first = std::getc(input.stream);
    std::ungetc(first, input.stream);
    if (first == '{' || first == EOF) {
        return ReadDocument(input, {}, reading, diagnostics);
    }
    if (input.canRewind) {
        StreamSource source(input.stream);
        std::array<char, 1 << 12> start{};
        const std::size_t size = source.Read(start.data(), start.size());
        source.Rewind();
        const std::string_view begin(start.data(), size);
        if (IsDxf(input.name, begin) && !KnownStranger(input.name, begin)) {
            return ReadDxfFile(input, reading, diagnostics,
                               [&](Diagnostic& fault, exchange::DxfNotes& notes) {
                                   return exchange::ReadDxf(source, fault, notes);
                               });
        }
    }
    std::string bytes;
    if (!ReadRest(input.stream, bytes)) {
        diagnostics.push_back(Unreadable(input));
        return nullptr;
    }
    return ReadBytes(input, bytes, reading, diagnostics);
}

std::unique_ptr<drawing::Database> Read(const Input& input, Reading reading, Diagnostics& diagnostics) {
    return input.stream != nullptr ? ReadStream(input, reading, diagnostics)
                                   : ReadBytes(input, input.bytes, reading, diagnostics);
}

} // namespace

std::unique_ptr<drawing::Database> ReadDrawing(const Input& input, bool tolerant, Diagnostics& diagnostics) {
    return Read(input, tolerant ? Reading::kTolerant : Reading::kStrict, diagnostics);
}

std::unique_ptr<drawing::Database> CheckDrawingFile(const Input& input, Diagnostics& diagnostics) {
    return Read(input, Reading::kCheck, diagnostics);
}

const drawing::BlockRecord* ModelSpaceOf(const drawing::Database& drawing) {
    for (const wchar_t* const name : {L"*Model_Space", L"$Model_Space"}) { // the latter in old files
        if (const drawing::BlockRecord* const space = drawing.FindBlock(name)) {
            return space;
        }
    }
    return nullptr;
}

void ForgetUnusedUnit(const drawing::Database& drawing, const std::vector<std::wstring>& names,
                      Diagnostics& diagnostics) {
    const bool isUsed = std::any_of(names.begin(), names.end(), [&](const std::wstring& name) {
        const drawing::BlockRecord* const block = drawing.FindBlock(name);
        return block != nullptr && block->Data().units == OxDb::kUnitsUndefined;
    });
    if (!isUsed) {
        std::erase_if(diagnostics, [](const Diagnostic& diagnostic) {
            return diagnostic.code == diagnostics::Code::kNoUnit;
        });
    }
}

Diagnostic NoBlocks(const std::string& file, const drawing::Database& drawing) {
    const drawing::BlockRecord* const space = ModelSpaceOf(drawing);
    if (space == nullptr || space->EntityCount() == 0) {
        return {Severity::kError, diagnostics::Code::kNoBlocks, {file}, {}};
    }
    return {
        Severity::kError, diagnostics::Code::kOnlyModelSpace, {file}, {std::to_string(space->EntityCount())}};
}

} // namespace conversions
