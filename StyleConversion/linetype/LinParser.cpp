// Reads a linetype file: headers and patterns.
#include "StyleConversion/linetype/LinParser.h"

#include "StyleConversion/encoding/NumberReader.h"
#include "StyleConversion/platform/Files.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace LineConverter {

LinParser::LinParser(IGetFontInfo* fontInfoProvider, IGetFile* fileProvider)
    : fileProvider_(fileProvider), fontInfoProvider_(fontInfoProvider) {}

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
        reader_.Start(stream_);
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
        if (const LinResult result = ReadLinetype(header); result != kSuccess) {
            return result;
        }
    }
    return kSuccess;
}

LinResult LinParser::ReadLinetype(const char* header) {
    LinetypeRecord& record = linetypes_.emplace_back(&elementMemory_);
    if (const char* const comma = std::strchr(header, ',')) {
        record.name.assign(header, comma);
        record.description = comma + 1;
    } else {
        record.name = header;
    }
    faultLog_.EnterPlace({reader_.LineNumber(), &record, 0});
    return ReadPattern(record);
}

LinResult LinParser::ReadPattern(LinetypeRecord& record) {
    const char* cursor = reader_.ReadContentLine();
    if (cursor == nullptr) {
        return Fault(kSyntaxError, LinFaultKind::kPatternMissing);
    }
    if ((cursor[0] != 'A' && cursor[0] != 'S') || cursor[1] != ',') {
        return SyntaxError(LinFaultKind::kAlignmentMissing, cursor);
    }
    cursor += 2;
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
        // Whatever stands behind an element, other than a comma, ends the pattern and is not looked at.
    } while (*cursor++ == ',');
    return kSuccess;
}

LinResult LinParser::ReadElement(const char*& cursor, LinElement& element) {
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
    ++cursor;
    if (*cursor == '"') {
        ++cursor;
        if (const LinResult result = ParseTextElement(cursor, element); result != kSuccess) {
            return result;
        }
        element.kind = kText;
        styleReferences_.try_emplace(element.styleName, CurrentReference());
    } else {
        if (const LinResult result = ParseShapeElement(cursor, element); result != kSuccess) {
            return result;
        }
        element.kind = kShape;
        shapeFileReferences_.try_emplace(element.shapeFile, ShapeFileReference{0, CurrentReference()})
            .first->second.acceptedKinds |= ShxUtility::kShapes;
    }
    if (*cursor != ']') {
        // Behind a "]" already, a text went without a style.
        return SyntaxError(
            cursor[-1] == ']' ? LinFaultKind::kTextWithoutStyle : LinFaultKind::kElementNotClosed, cursor);
    }
    ++cursor;
    return kSuccess;
}

LinParser::Reference LinParser::CurrentReference() const {
    return {reader_.LineNumber(), linetypes_.size() - 1, linetypes_.back().elements.size()};
}

LinPlace LinParser::PlaceOf(const Reference& reference) const {
    return {reference.line, &linetypes_[reference.linetype], reference.element};
}

LinResult LinParser::SyntaxError(LinFaultKind kind, const char* cursor) {
    LinFault& fault = faultLog_.Add(kSyntaxError, kind);
    fault.line = reader_.LineNumber();
    fault.column = reader_.ColumnOf(cursor);
    fault.lineText = reader_.ContentText();
    return kSyntaxError;
}

LinResult LinParser::Fault(LinResult result, LinFaultKind kind, const std::wstring& subject) {
    faultLog_.Add(result, kind).subject = subject;
    return result;
}

} // namespace LineConverter
