#include "conversions/reading/Input.h"

#include "StyleConversion/platform/CodePage.h"
#include "StyleConversion/platform/Utf8.h"

namespace conversions {

bool IsKnownEncoding(const std::string& encoding) {
    return platform::PageDecoder(encoding).IsKnown();
}

void UseEncoding(const Input& input) {
    if (input.encoding.empty() || !platform::SetThreadCodePage(input.encoding)) {
        platform::SetThreadCodePage(platform::IsUtf8(input.bytes) ? "UTF-8" : "WINDOWS-1252");
    }
}

} // namespace conversions
