// Reads shape files from bytes.
#pragma once

#include "StyleConversion/shx/ShxUtility.h"

#include <cstdint>
#include <string>

namespace shx_tests {

inline ShxUtility::ShxResult Load(const std::string& bytes, ShxUtility::ShapesInFile& file,
                                  std::uint32_t kinds = ShxUtility::kAllKinds) {
    return ShxUtility::LoadShapeFile(bytes, file, kinds);
}

inline ShxUtility::ShxResult Load(const std::string& bytes) {
    ShxUtility::ShapesInFile file;
    return Load(bytes, file);
}

} // namespace shx_tests
