// Reads a linetype file: headers and patterns.
#include "StyleConversion/linetype/LinParser.h"

#include "StyleConversion/encoding/NumberReader.h"
#include "StyleConversion/platform/Files.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace LineConverter {

LinParser::LinParser(IGetFontInfo* fontInfoProvider, IGetFile* fileProvider, const LinPolicy& policy)
    : fileProvider_(fileProvider), fontInfoProvider_(fontInfoProvider), policy_(policy) {}

LinParser::~LinParser() {
    Clear();
}

void LinParser::Clear() {
    if (stream_ != nullptr) {
        std::fclose(stream_);
        stream_ = nullptr;
    }
    linetypes_.clear();
    elementMemory_.release();
    fontInfos_.clear();
    shapeFiles_.clear();
    styleReferences_.clear();
    shapeFileReferences_.clear();
    elementLines_.clear();
    lines_.clear();
    missingStyles_.clear();
    missingFiles_.clear();
    forgivenLine_ = 0;
    forgivenKinds_ = 0;
    faultLog_.Clear();
}

LinResult LinParser::Parse(const std::wstring& path) {
    const LinResult result = Read(path);
    return result == kSuccess ? Resolve() : result;
}

LinResult LinParser::Read(const std::wstring& path) {
    try {
        stream_ = platform::OpenForReading(path.c_str());
        if (stream_ == nullptr) {
            return Fault(kCannotOpen, LinFaultKind::kFileNotOpened);
        }
        reader_.Start(stream_, policy_, &faultLog_);
        if (const LinResult result = ReadLinetypes(); result != kSuccess) {
            return result;
        }
        if (std::fclose(std::exchange(stream_, nullptr)) != 0) {
            return Fault(kCannotClose, LinFaultKind::kFileNotClosed);
        }
        return kSuccess;
    } catch (...) {
        return kOutOfMemory;
    }
}

LinResult LinParser::ReadLinetypes() {
    while (const char* const header = reader_.ReadHeaderLine()) {
        const LinResult result = ReadLinetype(header);
        if (EndsReading(result)) {
            return result;
        }
        if (result != kSuccess) {
            DropLastLinetype();
        }
        faultLog_.EnterPlace({});
    }
    return kSuccess;
}

void LinParser::DropLastLinetype() {
    elementLines_.resize(lines_.back().firstElement);
    lines_.pop_back();
    linetypes_.pop_back();
}

LinResult LinParser::ReadLinetype(const char* header) {
    LinetypeRecord& record = linetypes_.emplace_back(&elementMemory_);
    if (const char* const comma = std::strchr(header, ',')) {
        record.name.assign(header, comma);
        record.description = comma + 1;
    } else {
        record.name = header;
    }
    lines_.push_back({reader_.LineNumber(), elementLines_.size()});
    faultLog_.EnterPlace({reader_.LineNumber(), &record, 0});
    return ReadPattern(record);
}

LinResult LinParser::ReadPattern(LinetypeRecord& record) {
    const char* cursor = ReadPatternLine();
    if (cursor == nullptr) {
        return Fault(kSyntaxError, LinFaultKind::kPatternMissing);
    }
    if (const LinResult result = ReadAlignment(cursor); result != kSuccess) {
        return result;
    }
    record.elements.reserve(1 +
                            static_cast<std::size_t>(std::count(cursor, cursor + std::strlen(cursor), ',')));
    do {
        LinElement& element = record.elements.emplace_back();
        faultLog_.EnterPlace({reader_.LineNumber(), &record, record.elements.size()});
        if (*cursor == 0) {
            cursor = reader_.ReadContentLine();
            if (cursor == nullptr) {
                return Fault(kSyntaxError, LinFaultKind::kPatternNotContinued);
            }
            faultLog_.EnterPlace({reader_.LineNumber(), &record, record.elements.size()});
        }
        elementLines_.push_back(reader_.LineNumber());
        if (const LinResult result = ReadElement(cursor, element); result != kSuccess) {
            return result;
        }
    } while (MoreElementsFollow(cursor));
    return kSuccess;
}

// The first line of a pattern; where the form is loose, lines of another kind may stand before it.
const char* LinParser::ReadPatternLine() {
    const char* line = reader_.ReadContentLine();
    while (policy_.looseForm && line != nullptr && !LinLineReader::LooksLikePattern(line)) {
        Forgive(LinFaultKind::kLineSkipped, line);
        line = reader_.ReadContentLine();
    }
    return line;
}

LinResult LinParser::ReadAlignment(const char*& cursor) {
    const char* const letter = cursor;
    const bool isLowerCase = policy_.looseForm && (*letter == 'a' || *letter == 's');
    if (*letter != 'A' && *letter != 'S' && !isLowerCase) {
        return SyntaxError(LinFaultKind::kAlignmentMissing, letter);
    }
    ++cursor;
    SkipBlanks(cursor);
    if (*cursor != ',') {
        return SyntaxError(LinFaultKind::kAlignmentMissing, letter);
    }
    ++cursor;
    if (isLowerCase) {
        Forgive(LinFaultKind::kAlignmentLowerCase, letter);
    }
    return kSuccess;
}

// Whatever stands behind an element, other than a comma, ends the pattern and is not looked at.
bool LinParser::MoreElementsFollow(const char*& cursor) {
    if (policy_.looseForm && *cursor != 0 && *cursor != ',') {
        const char* next = LinLineReader::PastBlanks(cursor);
        if (*next != ',') {
            Forgive(LinFaultKind::kTextBehindPattern, next);
            return false;
        }
        SkipBlanks(cursor);
    }
    return *cursor++ == ',';
}

LinResult LinParser::ReadElement(const char*& cursor, LinElement& element) {
    if (*LinLineReader::PastBlanks(cursor) == '[') {
        SkipBlanks(cursor);
    }
    if (*cursor == '[') {
        return ReadComplexElement(cursor, element);
    }
    const encoding::NumberReading number = encoding::ReadNumber(cursor);
    if (number.used == 0) {
        return SyntaxError(LinFaultKind::kDashNotANumber, cursor);
    }
    element.kind = kDash;
    element.length = number.value;
    cursor += number.used;
    return kSuccess;
}

LinResult LinParser::ReadComplexElement(const char*& cursor, LinElement& element) {
    element.complex = std::make_unique<ComplexElement>();
    ++cursor;
    SkipBlanks(cursor);
    if (*cursor == '"') {
        ++cursor;
        if (const LinResult result = ParseTextElement(cursor, *element.complex); result != kSuccess) {
            return result;
        }
        element.kind = kText;
    } else {
        if (const LinResult result = ParseShapeElement(cursor, *element.complex); result != kSuccess) {
            return result;
        }
        element.kind = kShape;
    }
    if (*cursor != ']') {
        // Behind a "]" already, a text went without a style.
        return SyntaxError(
            cursor[-1] == ']' ? LinFaultKind::kTextWithoutStyle : LinFaultKind::kElementNotClosed, cursor);
    }
    ++cursor;
    return kSuccess;
}

LinPlace LinParser::PlaceOf(const Reference& reference) const {
    return {ElementLine(reference.linetype, reference.element), &linetypes_[reference.linetype],
            reference.element + 1};
}

void LinParser::SkipBlanks(const char*& cursor) {
    const char* const end = LinLineReader::PastBlanks(cursor);
    if (policy_.looseForm && end != cursor) {
        Forgive(LinFaultKind::kBlank, cursor);
        cursor = end;
    }
}

// The text of a name.
std::string_view LinParser::WithoutBlanks(const char* start, const char* end) {
    const char* const whole = start;
    const char* const wholeEnd = end;
    if (policy_.looseForm) {
        start = std::min(LinLineReader::PastBlanks(start), end);
        while (end != start && LinLineReader::IsBlank(end[-1])) {
            --end;
        }
        if (start != whole || end != wholeEnd) {
            Forgive(LinFaultKind::kBlank, start != whole ? whole : end);
        }
    }
    return {start, static_cast<std::size_t>(end - start)};
}

void LinParser::Forgive(LinFaultKind kind, const char* cursor) {
    if (reader_.LineNumber() != forgivenLine_) {
        forgivenLine_ = reader_.LineNumber();
        forgivenKinds_ = 0;
    }
    static_assert(static_cast<unsigned>(LinFaultKind::kShapeFileWithoutTrailer) < 64);
    const std::uint64_t bit = std::uint64_t{1} << static_cast<unsigned>(kind);
    if ((forgivenKinds_ & bit) == 0) {
        forgivenKinds_ |= bit;
        LinFault& fault = faultLog_.Forgive(kind, reader_.LineNumber());
        fault.column = reader_.ColumnOf(cursor);
        fault.lineText = std::string_view(cursor).substr(0, kLongestTextInFault);
    }
}

LinResult LinParser::SyntaxError(LinFaultKind kind, const char* cursor) {
    LinFault& fault = faultLog_.Add(kSyntaxError, kind);
    fault.line = reader_.LineNumber();
    fault.column = reader_.ColumnOf(cursor);
    fault.lineText = std::string_view(reader_.ContentText()).substr(0, kLongestTextInFault);
    return kSyntaxError;
}

LinResult LinParser::Fault(LinResult result, LinFaultKind kind, const std::wstring& subject) {
    faultLog_.Add(result, kind).subject = subject;
    return result;
}

} // namespace LineConverter
