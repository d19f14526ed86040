// Why a shape file was refused, in words.
#pragma once

#include "StyleConversion/shx/ShapeFileFault.h"

#include <cstdint>
#include <string>

namespace styleconv {

/// What stands behind "file: byte 412: ".
std::string Sentence(const ShxUtility::ShapeFileFaultReport& report);

/// Why a shape cannot be decoded or drawn: "its program is malformed or cut short".
const char* DrawingFault(std::int32_t shxResult);

} // namespace styleconv
