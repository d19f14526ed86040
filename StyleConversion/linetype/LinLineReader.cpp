// Reads a linetype file line by line: header lines, and the lines of patterns.
#include "StyleConversion/linetype/LinLineReader.h"

#include <algorithm>
#include <cstring>

namespace LineConverter {
namespace {

bool IsBlank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

void CutComment(char* text) {
    if (char* const comment = std::strchr(text, ';')) {
        *comment = 0;
    }
}

void RemoveTrailingBlanks(char* text) {
    char* end = text + std::strlen(text);
    while (end != text && IsBlank(end[-1])) {
        --end;
    }
    *end = 0;
}

} // namespace

void LinLineReader::Start(std::FILE* stream) {
    stream_ = stream;
    line_ = 0;
    pieceColumn_ = 0;
    pieceLength_ = 0;
    lineEnded_ = true;
    content_[0] = 0;
    contentText_ = content_.data();
    position_ = nullptr;
    end_ = nullptr;
}

const char* LinLineReader::ReadHeaderLine() {
    while (ReadPiece(header_)) {
        if (header_[0] != '*') {
            continue;
        }
        char* const text = header_.data() + 1;
        CutComment(text);
        RemoveTrailingBlanks(text);
        if (*text != 0 && *text != ',') {
            return text;
        }
    }
    return nullptr;
}

const char* LinLineReader::ReadContentLine() {
    while (ReadPiece(content_)) {
        char* text = content_.data();
        while (IsBlank(*text)) {
            ++text;
        }
        CutComment(text);
        if (*text != 0) {
            RemoveTrailingBlanks(text);
            contentText_ = text;
            return text;
        }
    }
    return nullptr;
}

std::uint64_t LinLineReader::ColumnOf(const char* at) const {
    return pieceColumn_ + static_cast<std::uint64_t>(at - content_.data()) + 1;
}

bool LinLineReader::ReadPiece(Line& line) {
    std::size_t length = 0;
    bool ended = false;
    while (!ended && length < line.size() - 1 && (position_ != end_ || Refill())) {
        const std::size_t available =
            std::min(static_cast<std::size_t>(end_ - position_), line.size() - 1 - length);
        const void* const lineEnd = std::memchr(position_, '\n', available);
        const std::size_t taken =
            lineEnd != nullptr ? static_cast<std::size_t>(static_cast<const char*>(lineEnd) - position_) + 1
                               : available;
        std::memcpy(line.data() + length, position_, taken);
        position_ += taken;
        length += taken;
        ended = lineEnd != nullptr;
    }
    if (length == 0) {
        return false;
    }
    line[length] = 0;
    line_ += lineEnded_ ? 1 : 0;
    pieceColumn_ = lineEnded_ ? 0 : pieceColumn_ + pieceLength_;
    pieceLength_ = length;
    lineEnded_ = ended;
    return true;
}

bool LinLineReader::Refill() {
    const std::size_t size = std::fread(chunk_.data(), 1, chunk_.size(), stream_);
    position_ = chunk_.data();
    end_ = position_ + size;
    return size > 0;
}

} // namespace LineConverter
