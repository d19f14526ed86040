// A small drawing and the services beside it, of whichever pair of libraries this is compiled with.
#pragma once

#include "OxDb/OxDb.h"

#include <memory>
#include <string>

/// Has one block, B: a line whose dashes carry a shape, a circle and a text. While it lives, its services are
/// those of the process, and find that shape file for every name.
class GrowthDrawing {
public:
    explicit GrowthDrawing(const std::wstring& shapeFile);
    ~GrowthDrawing();
    GrowthDrawing(const GrowthDrawing&) = delete;
    GrowthDrawing& operator=(const GrowthDrawing&) = delete;

    OxDbDatabase& Database();
    /// How many of its objects, iterators and texts have been handed out and not been given back.
    long CountOpen() const;

private:
    class Services;
    struct Parts;
    std::unique_ptr<Parts> parts_;
};
