// Where the bytes of the shape files that linetypes name come from.
#pragma once

#include "StyleConversion/linetype/Services.h"

#include <string>

namespace LineConverter {

class ShapeFileSource {
public:
    ShapeFileSource() = default;
    ShapeFileSource(const ShapeFileSource&) = delete;
    ShapeFileSource& operator=(const ShapeFileSource&) = delete;
    virtual ~ShapeFileSource() = default;

    /// Replaces `bytes` by those of the file; false where there is none. `name` is as a linetype file or a
    /// text style gives it, in upper case, and may lack its extension ".shx".
    virtual bool GetShapeFile(const std::wstring& name, std::string& bytes) = 0;
};

/// The files that a host opens.
class HostShapeFiles final : public ShapeFileSource {
public:
    /// `files` is borrowed.
    explicit HostShapeFiles(IGetFile& files) : files_(files) {}

    bool GetShapeFile(const std::wstring& name, std::string& bytes) override;

private:
    IGetFile& files_;
};

} // namespace LineConverter
