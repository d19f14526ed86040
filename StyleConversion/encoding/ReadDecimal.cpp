#include "StyleConversion/encoding/ReadDecimal.h"

namespace encoding {

std::from_chars_result ReadDecimal(const char* first, const char* last, double& value) {
    return std::from_chars(first, last, value);
}

} // namespace encoding
