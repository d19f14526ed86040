// What of a line is read, and which lines are skipped.
#include "StyleConversion/linetype/LinLineReader.h"

#include "StyleConversion/linetype/LinLimits.h"
#include "StyleConversion/platform/Characters.h"

namespace LineConverter {
namespace {

constexpr std::size_t kLongestPiece = kLineBufferSize - 1;

std::string_view WithoutComment(std::string_view text) {
    // Required: R33
    return text.substr(0, text.find(';'));
}

// Where the comment begins: a ";" between quotes is none, one behind a quote that nothing closes is.
std::size_t CommentBehindTexts(std::string_view text) {
    std::size_t mark = text.find_first_of("\";");
    while (mark != std::string_view::npos && text[mark] == '"') {
        const std::size_t end = text.find('"', mark + 1);
        mark = end == std::string_view::npos ? text.find(';', mark) : text.find_first_of("\";", end + 1);
    }
    return mark;
}

} // namespace

std::string_view PastBlanks(std::string_view text) {
    while (!text.empty() && platform::IsBlank(text.front())) {
        text.remove_prefix(1);
    }
    return text;
}

std::string_view WithoutTrailingBlanks(std::string_view text) {
    while (!text.empty() && platform::IsBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

bool LooksLikePattern(std::string_view text) {
    constexpr std::string_view kLetters = "ASas";
    return !text.empty() && kLetters.find(text.front()) != std::string_view::npos &&
           PastBlanks(text.substr(1)).starts_with(',');
}

LinLineReader::LinLineReader(std::string_view bytes, const LinPolicy& policy, LinErrorLog& log)
    : policy_(policy), log_(log),
      hasByteOrderMark_(policy.looseForm && platform::StartsWithByteOrderMark(bytes)),
      cursor_(hasByteOrderMark_ ? platform::WithoutByteOrderMark(bytes) : bytes) {}

bool LinLineReader::Next() {
    return cursor_.Next(policy_.linesOfAnyLength ? encoding::LineCursor::kWholeLines : kLongestPiece);
}

std::optional<std::string_view> LinLineReader::ReadHeaderLine() {
    while (Next()) {
        if (!cursor_.Text().starts_with('*')) {
            NoteSkippedLine();
        } else if (const std::optional<std::string_view> text = HeaderText()) {
            return text;
        }
    }
    return std::nullopt;
}

// None when it has no name.
std::optional<std::string_view> LinLineReader::HeaderText() {
    NoteLongLine(true);
    const std::string_view text = WithoutTrailingBlanks(WithoutComment(cursor_.Text().substr(1)));
    const bool hasName = !text.empty() && text.front() != ',';
    if (policy_.looseForm && !hasName) {
        log_.AddTolerated(LinErrorKind::kHeaderWithoutName, LineNumber());
    }
    if (hasByteOrderMark_ && LineNumber() == 1) {
        log_.AddTolerated(LinErrorKind::kByteOrderMark, LineNumber());
    }
    return hasName ? std::optional(text) : std::nullopt;
}

// A line that is no header, where one is looked for, is no loss unless it was meant to be read.
void LinLineReader::NoteSkippedLine() {
    NoteLongLine(false);
    if (!policy_.looseForm) {
        return;
    }
    const std::string_view text = PastBlanks(cursor_.Text());
    if (text.starts_with('*')) {
        log_.AddTolerated(LinErrorKind::kHeaderIndented, LineNumber());
    } else if (LooksLikePattern(text)) {
        log_.AddTolerated(LinErrorKind::kPatternWithoutHeader, LineNumber());
    }
}

// Logs a line that a strict reading takes apart: one that is read, where there is something behind the first
// piece; one that is skipped, where a later piece would be a header.
void LinLineReader::NoteLongLine(bool isRead) {
    const std::string_view line = cursor_.Piece();
    if (!policy_.linesOfAnyLength || line.size() <= kLongestPiece) {
        return;
    }
    bool differs = false;
    if (isRead) {
        differs = !PastBlanks(line.substr(kLongestPiece)).empty();
    } else {
        for (std::size_t at = kLongestPiece; at < line.size(); at += kLongestPiece) {
            differs = differs || line[at] == '*';
        }
    }
    if (differs) {
        log_.AddTolerated(LinErrorKind::kLineTooLong, LineNumber());
    }
}

std::optional<std::string_view> LinLineReader::ReadContentLine() {
    for (encoding::LineCursor before = cursor_; Next(); before = cursor_) {
        if (policy_.looseForm && cursor_.Text().starts_with('*')) {
            cursor_ = before;
            contentText_ = {};
            return std::nullopt;
        }
        NoteLongLine(true);
        const std::string_view text = PastBlanks(cursor_.Text());
        std::string_view content = WithoutComment(text);
        if (policy_.looseForm) {
            const std::string_view behindTexts = text.substr(0, CommentBehindTexts(text));
            if (behindTexts.size() > content.size()) {
                log_.AddTolerated(LinErrorKind::kSemicolonInText, LineNumber());
            }
            content = behindTexts;
        }
        if (!content.empty()) {
            contentText_ = WithoutTrailingBlanks(content);
            return contentText_;
        }
    }
    return std::nullopt;
}

} // namespace LineConverter
