// Where the shape files of text styles come from, for a program that has them at hand.
#pragma once

#include "StyleConversion/shx/ShapesInFile.h"

namespace block {

/// Finds and reads shape files by the names that text styles have.
class ShapeFileSource {
public:
    virtual ~ShapeFileSource() = default;

    /// The file of that name, which stays valid as long as the source; null where there is none that can be
    /// used. Asked anew for each dash that carries something.
    virtual const ShxUtility::ShapesInFile* Find(const wchar_t* name) = 0;
};

/// As long as it lives, block conversions of its thread take shape files from the source, which must outlive
/// it, and ask no host services. One inside of another goes first. A converter itself holds no more than its
/// host knows of: its drawing, its scale and its layers.
class ShapeFilesInUse {
public:
    explicit ShapeFilesInUse(ShapeFileSource& source);
    ~ShapeFilesInUse();
    ShapeFilesInUse(const ShapeFilesInUse&) = delete;
    ShapeFilesInUse& operator=(const ShapeFilesInUse&) = delete;

private:
    ShapeFileSource* before_;
};

} // namespace block
