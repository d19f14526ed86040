// Line ends, the end of the text, and the limit of a line.
#include "StyleConversion/pattern/LineCursor.h"

namespace pattern {
namespace {

constexpr char kEndOfText = '\x1a';

} // namespace

LineCursor::LineCursor(std::string_view bytes) : rest_(bytes.substr(0, bytes.find(kEndOfText))) {}

LineCursor::Step LineCursor::Next(std::size_t longest, std::string_view& line) {
    if (rest_.empty()) {
        return Step::kEnd;
    }
    ++number_;
    const std::size_t end = rest_.find('\n');
    line = rest_.substr(0, end);
    if (end == std::string_view::npos) {
        rest_ = {};
    } else {
        rest_.remove_prefix(end + 1);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
    }
    length_ = line.size();
    if (line.size() > longest) {
        return Step::kTooLong;
    }
    line = line.substr(0, line.find('\0'));
    return Step::kLine;
}

} // namespace pattern
