#include "StyleConversion/encoding/ReadDecimal.h"

#include "StyleConversion/encoding/wasi/FastDecimal.h"

namespace encoding {

std::from_chars_result ReadDecimal(const char* first, const char* last, double& value) {
    return FastDecimal(first, last, value);
}

} // namespace encoding
