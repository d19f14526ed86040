// Opens, reads and closes the file.
#include "StyleConversion/linetype/LinParser.h"

#include "StyleConversion/linetype/LinResolution.h"
#include "StyleConversion/linetype/LinWalk.h"
#include "StyleConversion/linetype/LinetypeReader.h"
#include "StyleConversion/platform/Files.h"

namespace LineConverter {

LinResult LinParser::Parse(const std::wstring& path) {
    try {
        if (const LinResult result = Read(path); result != kSuccess) {
            return result;
        }
        if (fileProvider_ == nullptr) {
            return ResolveNames(file_, fontInfoProvider_, nullptr, {}, errors_);
        }
        HostShapeFiles shapeFiles(*fileProvider_);
        return ResolveNames(file_, fontInfoProvider_, &shapeFiles, {}, errors_);
    } catch (...) {
        return kOutOfMemory;
    }
}

LinResult LinParser::Read(const std::wstring& path) {
    stream_.reset(platform::OpenForReading(path.c_str()));
    if (!stream_) {
        return Error(kCannotOpen, LinErrorKind::kFileNotOpened);
    }
    std::string bytes;
    // What comes before an error of the device is read.
    static_cast<void>(platform::ReadToEnd(stream_.get(), bytes));
    if (const LinResult result = ReadLinetypes(bytes, {}, file_, errors_); result != kSuccess) {
        return result;
    }
    return std::fclose(stream_.release()) == 0 ? kSuccess : Error(kCannotClose, LinErrorKind::kFileNotClosed);
}

void LinParser::Clear() {
    stream_.reset();
    file_ = {};
    errors_.Clear();
}

LinResult LinParser::Accept(LinStyleVisitor& visitor) {
    return Walk(file_, visitor, errors_);
}

LinResult LinParser::Error(LinResult result, LinErrorKind kind) {
    errors_.Add(result, kind);
    return result;
}

} // namespace LineConverter
