// The drawing that this application has open.
#pragma once

#include <drawing/database/Database.h>

#include <memory>

/// A drawing in millimetres with one block, VALVE: two triangles tip to tip, and a dashed spindle.
std::unique_ptr<drawing::Database> OpenDrawing();
