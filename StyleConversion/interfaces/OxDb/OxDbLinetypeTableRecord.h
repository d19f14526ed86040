// Linetypes.
#pragma once

#include "OxDb/OxDbSymbolTable.h"
#include "OxDb/OxGePoint.h"

/// A pattern of dashes, gaps and dots, each of which may carry a shape or a text. Dash indices count from 0;
/// for an index that there is not, the reads give 0, a null id, a scale of 1, and textAt fails.
class OXDB_API OxDbLinetypeTableRecord : public OxDbSymbolTableRecord {
public:
    ~OxDbLinetypeTableRecord() override;
    static const OxRxClass* desc();

    /// The length of one repetition, in drawing units: as a rule the sum of the magnitudes of the dashes.
    virtual double patternLength() const = 0;
    /// How many dashes, gaps and dots; 0 for a continuous line.
    virtual int numDashes() const = 0;
    /// Drawing units: above 0 a dash, below 0 a gap of that magnitude, 0 a dot.
    virtual double dashLengthAt(int index) const = 0;
    /// The text style whose file or font the dash's shape or text is taken from; null when it has neither.
    virtual OxDbObjectId shapeStyleAt(int index) const = 0;
    /// The number of the shape in the style's file; 0 when the dash carries a text.
    virtual int shapeNumberAt(int index) const = 0;
    /// From the dash's end, x along the direction of travel, y to its left; drawing units.
    virtual OxGeVector2d shapeOffsetAt(int index) const = 0;
    /// The size of the shape or text beside its own.
    virtual double shapeScaleAt(int index) const = 0;
    /// Radians, counter-clockwise from the direction of travel.
    virtual double shapeRotationAt(int index) const = 0;
    /// The dash's text. The string stays the record's own; it is null when the dash has none.
    virtual Oxsys::ErrorStatus textAt(int index, const wchar_t*& text) const = 0;
};
