// The drawing that this application has open.
#pragma once

#include <drawing/database/Database.h>

#include <memory>

/// A drawing in millimetres with two blocks. VALVE: two triangles tip to tip, and a dashed spindle. HEDGE:
/// two lines with shapes in their gaps, those of the second in a file that is no shape file.
std::unique_ptr<drawing::Database> OpenDrawing();
