#include "styleconv/BuiltInFont.h"

#include "StyleConversion/platform/Files.h"
#include "styleconv/BuiltInFontBytes.h"

namespace styleconv {

std::string_view BuiltInFontBytes() {
    return {reinterpret_cast<const char*>(kBuiltInFont), sizeof kBuiltInFont};
}

std::FILE* OpenBuiltInFont() {
    // The reader of fonts reads streams, and C has none over memory.
    std::FILE* const stream = platform::OpenTemporary();
    if (stream != nullptr &&
        std::fwrite(kBuiltInFont, 1, sizeof kBuiltInFont, stream) != sizeof kBuiltInFont) {
        std::fclose(stream);
        return nullptr;
    }
    if (stream != nullptr) {
        std::rewind(stream);
    }
    return stream;
}

} // namespace styleconv
