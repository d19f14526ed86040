// Entities of a drawing as JSON.
#pragma once

#include "OxDb/OxDb.h"
#include "documents/JsonText.h"

#include <string>

namespace documents {

/// Writes an entity of a drawing in memory as one object in one line; without an id where that is empty.
void WriteEntity(JsonText& json, OxDbObjectId entity, const std::string& id);

/// A colour, under a key.
void PutColor(JsonText& json, std::string_view key, const OxCmColor& color);
/// Values under a key, left out where they are what reading takes for a missing one.
void PutText(JsonText& json, std::string_view key, const std::wstring& value,
             const std::wstring& fallback = {});
void PutNumber(JsonText& json, std::string_view key, double value, double fallback);
void PutInteger(JsonText& json, std::string_view key, std::int64_t value, std::int64_t fallback);
void PutFlag(JsonText& json, std::string_view key, bool value);
/// [x, y], or with z where that is not 0; left out where it is the origin.
void PutPoint(JsonText& json, std::string_view key, const OxGePoint3d& point);
/// [x, y]
void PutPair(JsonText& json, std::string_view key, double x, double y);

} // namespace documents
