// Line ends, the end of the text, and the limit of a line.
#include "StyleConversion/pattern/TextModeLines.h"

namespace pattern {
namespace {

constexpr char kEndOfText = '\x1a';

} // namespace

TextModeLines::TextModeLines(std::string_view bytes) : cursor_(bytes.substr(0, bytes.find(kEndOfText))) {}

TextModeLines::Step TextModeLines::Next(std::size_t longest, std::string_view& line) {
    if (!cursor_.Next()) {
        return Step::kEnd;
    }
    line = cursor_.Piece();
    if (line.ends_with('\n')) {
        line.remove_suffix(1);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
    }
    length_ = line.size();
    line = line.substr(0, longest);
    line = line.substr(0, line.find('\0'));
    return length_ > longest ? Step::kTooLong : Step::kLine;
}

} // namespace pattern
