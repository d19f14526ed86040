// Reads a linetype file line by line: header lines, and the lines of patterns.
#include "StyleConversion/linetype/LinLineReader.h"

#include <algorithm>
#include <cstring>
#include <string_view>
#include <utility>

namespace LineConverter {
namespace {

constexpr auto IsBlank = LinLineReader::IsBlank;

void CutComment(char* text) {
    if (char* const comment = std::strchr(text, ';')) {
        *comment = 0;
    }
}

// A ";" between quotes is not a comment; one behind a quote that nothing closes is. Whether there was one
// between quotes.
bool CutCommentBehindTexts(char* text) {
    bool hasSemicolon = false;
    while (char* const mark = std::strpbrk(text, "\";")) {
        if (*mark == ';') {
            *mark = 0;
            break;
        }
        char* const end = std::strchr(mark + 1, '"');
        if (end == nullptr) {
            CutComment(mark);
            break;
        }
        hasSemicolon =
            hasSemicolon || std::memchr(mark, ';', static_cast<std::size_t>(end - mark)) != nullptr;
        text = end + 1;
    }
    return hasSemicolon;
}

void RemoveTrailingBlanks(char* text) {
    char* end = text + std::strlen(text);
    while (end != text && IsBlank(end[-1])) {
        --end;
    }
    *end = 0;
}

} // namespace

const char* LinLineReader::PastBlanks(const char* text) {
    while (IsBlank(*text)) {
        ++text;
    }
    return text;
}

bool LinLineReader::LooksLikePattern(const char* text) {
    return *text != 0 && std::strchr("ASas", *text) != nullptr && *PastBlanks(text + 1) == ',';
}

void LinLineReader::Start(std::FILE* stream, const LinPolicy& policy, LinFaultLog* log) {
    stream_ = stream;
    policy_ = policy;
    log_ = log;
    byteOrderMark_ = false;
    headerHeld_ = false;
    line_ = 0;
    pieceColumn_ = 0;
    pieceLength_ = 0;
    lineEnded_ = true;
    content_[0] = 0;
    contentText_ = content_.data();
    position_ = nullptr;
    end_ = nullptr;
    if (policy_.looseForm) {
        SkipByteOrderMark();
    }
}

void LinLineReader::SkipByteOrderMark() {
    constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";
    if (Refill() &&
        std::string_view(position_, static_cast<std::size_t>(end_ - position_)).starts_with(kByteOrderMark)) {
        position_ += kByteOrderMark.size();
        byteOrderMark_ = true;
    }
}

const char* LinLineReader::ReadHeaderLine() {
    while (std::exchange(headerHeld_, false) || ReadPiece(header_)) {
        if (header_[0] != '*') {
            NotePassedLine();
        } else if (const char* const text = HeaderText()) {
            return text;
        }
    }
    return nullptr;
}

// Null when it has no name.
const char* LinLineReader::HeaderText() {
    NoteLongLine(header_, true);
    char* const text = header_.data() + 1;
    CutComment(text);
    RemoveTrailingBlanks(text);
    const bool hasName = *text != 0 && *text != ',';
    if (policy_.looseForm && !hasName) {
        log_->Forgive(LinFaultKind::kHeaderWithoutName, line_);
    }
    if (byteOrderMark_ && line_ == 1) {
        log_->Forgive(LinFaultKind::kByteOrderMark, line_);
    }
    return hasName ? text : nullptr;
}

// A line that is no header, where one is looked for, is no loss unless it was meant to be read.
void LinLineReader::NotePassedLine() {
    NoteLongLine(header_, false);
    if (!policy_.looseForm) {
        return;
    }
    const char* const text = PastBlanks(header_.data());
    if (*text == '*') {
        log_->Forgive(LinFaultKind::kHeaderIndented, line_);
    } else if (LooksLikePattern(text)) {
        log_->Forgive(LinFaultKind::kPatternWithoutHeader, line_);
    }
}

// Tells of a line that a strict reading takes apart: of one that is read, where there is something behind the
// first piece; of one that is passed over, where a later piece would be a header.
void LinLineReader::NoteLongLine(const Line& line, bool isRead) {
    constexpr std::size_t kPiece = kLineBufferSize - 1;
    if (!policy_.linesOfAnyLength || pieceLength_ <= kPiece) {
        return;
    }
    bool differs = false;
    if (isRead) {
        differs = !std::all_of(line.data() + kPiece, line.data() + pieceLength_, IsBlank);
    } else {
        for (std::size_t at = kPiece; at < pieceLength_; at += kPiece) {
            differs = differs || line[at] == '*';
        }
    }
    if (differs) {
        log_->Forgive(LinFaultKind::kLineTooLong, line_);
    }
}

const char* LinLineReader::ReadContentLine() {
    while (ReadPiece(content_)) {
        if (policy_.looseForm && content_[0] == '*') {
            header_.swap(content_);
            content_[0] = 0;
            contentText_ = content_.data();
            headerHeld_ = true;
            return nullptr;
        }
        NoteLongLine(content_, true);
        char* text = content_.data();
        while (IsBlank(*text)) {
            ++text;
        }
        if (!policy_.looseForm) {
            CutComment(text);
        } else if (CutCommentBehindTexts(text)) {
            log_->Forgive(LinFaultKind::kSemicolonInText, line_);
        }
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
    while (!ended && (length < line.size() - 1 || MakeRoom(line)) && (position_ != end_ || Refill())) {
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

// False when the piece is to end where the room does.
bool LinLineReader::MakeRoom(Line& line) const {
    if (policy_.linesOfAnyLength) {
        line.resize(line.size() * 2);
    }
    return policy_.linesOfAnyLength;
}

bool LinLineReader::Refill() {
    const std::size_t size = std::fread(chunk_.data(), 1, chunk_.size(), stream_);
    position_ = chunk_.data();
    end_ = position_ + size;
    return size > 0;
}

} // namespace LineConverter
