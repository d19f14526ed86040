// Texts: of one line, as definition of an attribute, and of paragraphs.
#pragma once

#include "OxDb/OxDbEntity.h"

/// A text of one line. Strings stay the entity's own, are never null and may be used while it is open.
class OXDB_API OxDbText : public OxDbEntity {
public:
    ~OxDbText() override;
    static const OxRxClass* desc();

    /// The text style record; null when the text has none.
    virtual OxDbObjectId textStyle() const = 0;
    /// Drawing units.
    virtual double height() const = 0;
    /// Radians, counter-clockwise.
    virtual double rotation() const = 0;
    /// The insertion point: the left end of the base line, however the text is aligned.
    virtual OxGePoint3d position() const = 0;
    /// How the text stands to its alignment point.
    virtual OxDb::TextHorzMode horizontalMode() const = 0;
    virtual OxDb::TextVertMode verticalMode() const = 0;
    /// Whether the point that the modes speak of is known, and that point; else it is the insertion point.
    virtual bool hasAlignmentPoint() const = 0;
    virtual OxGePoint3d alignmentPoint() const = 0;
    /// The text, with its control codes.
    virtual const wchar_t* textStringConst() const = 0;
};

/// The definition of an attribute in a block: a text that each reference of the block may have its own value
/// for. The text string is the default value.
class OXDB_API OxDbAttributeDefinition : public OxDbText {
public:
    ~OxDbAttributeDefinition() override;
    static const OxRxClass* desc();

    /// The attribute's name, and what a user is asked for it.
    virtual const wchar_t* tagConst() const = 0;
    virtual const wchar_t* promptConst() const = 0;
};

/// A text of paragraphs.
class OXDB_API OxDbMText : public OxDbEntity {
public:
    ~OxDbMText() override;
    static const OxRxClass* desc();

    /// The text style record; null when the text has none.
    virtual OxDbObjectId textStyle() const = 0;
    /// Drawing units.
    virtual double textHeight() const = 0;
    /// Radians, counter-clockwise.
    virtual double rotation() const = 0;
    /// The insertion point, in drawing units.
    virtual OxGePoint3d location() const = 0;
    /// Which point of the text stands at the insertion point: 1 to 9, from the top left by rows.
    virtual int attachment() const = 0;
    /// The extent of the text as it is set, in drawing units.
    virtual double actualWidth() const = 0;
    virtual double actualHeight() const = 0;
    /// The text with its formatting codes. Stays the entity's own, never null.
    virtual const wchar_t* contents() const = 0;
};
