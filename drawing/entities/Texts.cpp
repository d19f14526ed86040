// Texts, attribute definitions and paragraph texts.
#include "drawing/entities/Texts.h"

namespace drawing {

OxDbObjectId TextStyleId(Core& core, NameIndex name) {
    return core.names.Text(name).empty() ? OxDbObjectId()
                                         : IdOrMissing(core, core.names.Things(name).textStyle, name);
}

AttributeDefinition::AttributeDefinition(Core& core, const EntityProperties& properties, const TextData& data,
                                         std::wstring tag, std::wstring prompt)
    : TextLine(core, properties, data), tag_(std::move(tag)), prompt_(std::move(prompt)) {}

AttributeDefinition::~AttributeDefinition() = default;

ParagraphText::ParagraphText(Core& core, const EntityProperties& properties, ParagraphTextData data)
    : ResidentEntity(core, properties), style_(core.names.Intern(data.style)), data_(std::move(data)) {}

ParagraphText::~ParagraphText() = default;

OxDbObjectId ParagraphText::textStyle() const {
    return TextStyleId(SharedCore(), style_);
}

} // namespace drawing
