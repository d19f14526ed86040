// Drawings of our own, made up from a number.
#pragma once

#include "drawing/database/Database.h"

#include <cstdint>
#include <memory>

/// Has layers, dashed linetypes with shapes and texts, and blocks with entities of every class.
std::unique_ptr<drawing::Database> RandomDrawing(std::uint32_t seed);
