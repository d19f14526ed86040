// Lines, and pieces of long lines.
#include "StyleConversion/encoding/LineCursor.h"

namespace encoding {

bool LineCursor::Next(std::size_t longest) {
    if (rest_.empty()) {
        return false;
    }
    const bool continues = !piece_.empty() && piece_.back() != '\n';
    column_ = continues ? column_ + piece_.size() : 0;
    line_ += continues ? 0 : 1;
    // Looks no further than the piece may reach, so that a file that is one long line is read once.
    const std::string_view reach = rest_.substr(0, longest);
    const std::size_t end = reach.find('\n');
    piece_ = reach.substr(0, end == std::string_view::npos ? end : end + 1);
    rest_.remove_prefix(piece_.size());
    return true;
}

} // namespace encoding
