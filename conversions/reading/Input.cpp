#include "conversions/reading/Input.h"

#include "StyleConversion/platform/CodePage.h"
#include "StyleConversion/platform/Utf8.h"

namespace conversions {

bool IsKnownEncoding(const std::string& encoding) {
    return platform::PageDecoder(encoding).IsKnown();
}

std::string EncodingOf(const Input& input) {
    if (!input.encoding.empty() && IsKnownEncoding(input.encoding)) {
        return input.encoding;
    }
    return platform::IsUtf8(input.bytes) ? "UTF-8" : "WINDOWS-1252";
}

} // namespace conversions
