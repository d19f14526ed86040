// From the host's streams to bytes.
#include "StyleConversion/linetype/ShapeFileSource.h"

#include "StyleConversion/platform/FileBytes.h"

namespace LineConverter {

bool HostShapeFiles::GetShapeFile(const std::wstring& name, std::string& bytes) {
    const platform::OwnedFile stream(files_.GetFile(name.c_str(), L".shx"));
    bytes.clear();
    if (!stream) {
        return false;
    }
    // What comes before an error of the device is a file that is cut short.
    static_cast<void>(platform::ReadToEnd(stream.get(), bytes));
    return true;
}

} // namespace LineConverter
