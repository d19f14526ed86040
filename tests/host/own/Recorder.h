// Records what a drawing of our own answers.
#pragma once

#include "tests/host/RecordedDrawing.h"

#include "OxDb/OxDb.h"

/// Looks up text styles of the given names too, which no entity may need.
RecordedDrawing Record(OxDbDatabase& database, const std::vector<std::wstring>& styleNames = {});
