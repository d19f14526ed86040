// Why a shape file was refused, in words.
#pragma once

#include "StyleConversion/shx/ShapeFileFault.h"

#include <string>

namespace styleconv {

/// What stands behind "file: byte 412: ".
std::string Sentence(const ShxUtility::ShapeFileFaultReport& report);

} // namespace styleconv
