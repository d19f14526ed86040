// The drawing by our own models.
#include "tests/host/GrowthDrawing.h"

#include "drawing/database/Database.h"
#include "drawing/entities/SimpleEntities.h"
#include "drawing/entities/Texts.h"

#include <cwchar>

/// Finds one shape file, whatever is asked for.
class GrowthDrawing::Services final : public OxDbHostApplicationServices {
public:
    explicit Services(std::wstring shapeFile) : shapeFile_(std::move(shapeFile)) {}
    Oxsys::ErrorStatus findFile(wchar_t* path, int length, const wchar_t* /*name*/,
                                OxDbDatabase* /*database*/, FindFileHint /*hint*/) override {
        if (shapeFile_.size() >= static_cast<std::size_t>(length)) {
            return Oxsys::eBufferTooSmall;
        }
        std::wmemcpy(path, shapeFile_.c_str(), shapeFile_.size() + 1);
        return Oxsys::eOk;
    }

private:
    std::wstring shapeFile_;
};

struct GrowthDrawing::Parts {
    explicit Parts(const std::wstring& shapeFile) : services(shapeFile) {}
    Services services;
    drawing::Database database;
};

GrowthDrawing::GrowthDrawing(const std::wstring& shapeFile) : parts_(std::make_unique<Parts>(shapeFile)) {
    drawing::Database& database = parts_->database;
    database.AddLayer(L"Walls", OxCmColor());
    drawing::TextStyleData style;
    style.fileName = L"marks.shx";
    database.AddTextStyle(L"MARKS", style);
    drawing::Dash dash;
    dash.length = 2.0;
    drawing::Dash gap;
    gap.length = -1.0;
    gap.shapeStyle = L"MARKS";
    gap.shapeNumber = 131;
    database.AddLinetype(L"MARKED", {dash, gap});
    drawing::BlockRecord* const block = database.AddBlock(L"B");
    drawing::EntityProperties properties;
    properties.layer = L"Walls";
    properties.linetype = L"MARKED";
    block->Add<drawing::Line>(properties, OxGePoint3d{0, 0, 0}, OxGePoint3d{3, 0, 0});
    properties.linetype = L"Continuous";
    block->Add<drawing::Circle>(properties, OxGePoint3d{0, 0, 0}, 5.0);
    drawing::TextData text;
    text.text = L"a text that is longer than what strings hold within themselves";
    block->Add<drawing::Text>(properties, text);
    oxdbSetHostApplicationServices(&parts_->services);
}

GrowthDrawing::~GrowthDrawing() {
    oxdbSetHostApplicationServices(nullptr);
}

OxDbDatabase& GrowthDrawing::Database() {
    return parts_->database;
}

long GrowthDrawing::CountOpen() const {
    return static_cast<long>(parts_->database.Counts().OpenNow());
}
