// Texts, attribute definitions and paragraph texts.
#pragma once

#include "OxDb/OxDbText.h"
#include "drawing/database/Resident.h"

#include <optional>
#include <string>

namespace drawing {

/// What a text of one line is made of. Lengths are drawing units.
struct TextData {
    OxGePoint3d position;
    double height = 1.0;
    double rotation = 0.0; // radians
    std::wstring text;
    /// A style of the drawing; an unknown one gives an id that cannot be opened, an empty name a null id.
    std::wstring style = L"STANDARD";
    OxDb::TextHorzMode horizontalMode = OxDb::kTextLeft;
    OxDb::TextVertMode verticalMode = OxDb::kTextBase;
    std::optional<OxGePoint3d> alignmentPoint = std::nullopt; // that of the modes; none where it is not known
};

/// What single-line texts of both kinds do alike.
template <class Interface>
class TextLine : public ResidentEntity<Interface> {
public:
    /// Nothing is checked.
    TextLine(Core& core, const EntityProperties& properties, TextData data)
        : ResidentEntity<Interface>(core, properties), style_(core.names.Intern(data.style)),
          data_(std::move(data)) {
        data_.style.clear(); // the name is kept once, in the pool
        data_.style.shrink_to_fit();
    }

    OxDbObjectId textStyle() const override;
    double height() const override { return data_.height; }
    double rotation() const override { return data_.rotation; }
    OxGePoint3d position() const override { return data_.position; }
    OxDb::TextHorzMode horizontalMode() const override { return data_.horizontalMode; }
    OxDb::TextVertMode verticalMode() const override { return data_.verticalMode; }
    bool hasAlignmentPoint() const override { return data_.alignmentPoint.has_value(); }
    OxGePoint3d alignmentPoint() const override { return data_.alignmentPoint.value_or(data_.position); }
    const wchar_t* textStringConst() const override { return data_.text.c_str(); }

    /// What it was made with.
    TextData Data() const {
        TextData data = data_;
        data.style = this->SharedCore().names.Text(style_);
        return data;
    }

private:
    NameIndex style_;
    TextData data_;
};

/// The id of a text style by the name that a text has for it.
OXDB_API OxDbObjectId TextStyleId(Core& core, NameIndex name);

template <class Interface>
OxDbObjectId TextLine<Interface>::textStyle() const {
    return TextStyleId(this->SharedCore(), style_);
}

/// A text of one line.
class OXDB_API Text : public TextLine<OxDbText> {
public:
    using TextLine::TextLine;
};

/// The place of a text that each insert has its own of.
class OXDB_API AttributeDefinition : public TextLine<OxDbAttributeDefinition> {
public:
    /// `tag` names the text, `prompt` asks a person for it.
    AttributeDefinition(Core& core, const EntityProperties& properties, TextData data, std::wstring tag,
                        std::wstring prompt);
    ~AttributeDefinition() override;

    const wchar_t* tagConst() const override { return tag_.c_str(); }
    const wchar_t* promptConst() const override { return prompt_.c_str(); }

private:
    std::wstring tag_;
    std::wstring prompt_;
};

/// What a paragraph text is made of. Lengths are drawing units; the actual width and height are those that
/// the text takes.
struct ParagraphTextData {
    OxGePoint3d location;
    double textHeight = 1.0;
    double rotation = 0.0; // radians
    std::wstring contents;
    std::wstring style = L"STANDARD"; // as TextData's
    double actualWidth = 0.0;
    double actualHeight = 0.0;
    int attachment = 1; // 1 to 9: the point of the text at its location, from the top left by rows
};

/// A text of paragraphs; its contents have control codes.
class OXDB_API ParagraphText : public ResidentEntity<OxDbMText> {
public:
    /// Nothing is checked.
    ParagraphText(Core& core, const EntityProperties& properties, ParagraphTextData data);
    ~ParagraphText() override;

    OxDbObjectId textStyle() const override;
    double textHeight() const override { return data_.textHeight; }
    double rotation() const override { return data_.rotation; }
    OxGePoint3d location() const override { return data_.location; }
    int attachment() const override { return data_.attachment; }
    double actualWidth() const override { return data_.actualWidth; }
    double actualHeight() const override { return data_.actualHeight; }
    const wchar_t* contents() const override { return data_.contents.c_str(); }

    /// What it was made with.
    ParagraphTextData Data() const {
        ParagraphTextData data = data_;
        data.style = SharedCore().names.Text(style_);
        return data;
    }

private:
    NameIndex style_;
    ParagraphTextData data_;
};

} // namespace drawing
