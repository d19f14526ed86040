// Texts, attribute definitions and paragraph texts.
#pragma once

#include "OxDb/OxDbText.h"
#include "drawing/database/Resident.h"

#include <algorithm>
#include <cstddef>
#include <memory>
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

/// A text that takes no more room than its characters.
class TightText {
public:
    explicit TightText(const std::wstring& text)
        : characters_(new wchar_t[text.size() + 1]), size_(text.size()) {
        std::copy_n(text.c_str(), size_ + 1, characters_.get());
    }
    const wchar_t* Characters() const { return characters_.get(); }
    std::wstring Text() const { return {characters_.get(), size_}; }

private:
    std::unique_ptr<wchar_t[]> characters_;
    std::size_t size_;
};

/// What single-line texts of both kinds do alike.
template <class Interface>
class TextLine : public ResidentEntity<Interface> {
public:
    /// Nothing is checked.
    TextLine(Core& core, const EntityProperties& properties, const TextData& data)
        : ResidentEntity<Interface>(core, properties), position_(data.position), height_(data.height),
          rotation_(data.rotation), text_(data.text), style_(core.names.Intern(data.style)) {
        if (data.horizontalMode != OxDb::kTextLeft || data.verticalMode != OxDb::kTextBase ||
            data.alignmentPoint) {
            alignment_ = std::make_unique<const Alignment>(
                Alignment{data.horizontalMode, data.verticalMode, data.alignmentPoint});
        }
    }

    OxDbObjectId textStyle() const override;
    double height() const override { return height_; }
    double rotation() const override { return rotation_; }
    OxGePoint3d position() const override { return position_; }
    OxDb::TextHorzMode horizontalMode() const override { return Aligned().horizontalMode; }
    OxDb::TextVertMode verticalMode() const override { return Aligned().verticalMode; }
    bool hasAlignmentPoint() const override { return Aligned().point.has_value(); }
    OxGePoint3d alignmentPoint() const override { return Aligned().point.value_or(position_); }
    const wchar_t* textStringConst() const override { return text_.Characters(); }

    /// What it was made with.
    TextData Data() const {
        const Alignment aligned = Aligned();
        return {position_,
                height_,
                rotation_,
                text_.Text(),
                this->SharedCore().names.Text(style_),
                aligned.horizontalMode,
                aligned.verticalMode,
                aligned.point};
    }

private:
    struct Alignment {
        OxDb::TextHorzMode horizontalMode = OxDb::kTextLeft;
        OxDb::TextVertMode verticalMode = OxDb::kTextBase;
        std::optional<OxGePoint3d> point;
    };

    Alignment Aligned() const { return alignment_ ? *alignment_ : Alignment(); }

    OxGePoint3d position_;
    double height_;
    double rotation_;
    TightText text_;
    std::unique_ptr<const Alignment> alignment_; // null where it is the usual one
    NameIndex style_;
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
    AttributeDefinition(Core& core, const EntityProperties& properties, const TextData& data,
                        std::wstring tag, std::wstring prompt);
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
