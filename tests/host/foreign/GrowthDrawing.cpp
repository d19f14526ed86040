// The drawing by the foreign pair.
#include "tests/host/GrowthDrawing.h"

#include "tests/host/RecordedDrawing.h"

#include <cwchar>

namespace {

RecordedEntity Entity(const std::wstring& kind, int linetype, const std::vector<double>& numbers) {
    RecordedEntity entity;
    entity.kind = kind;
    entity.layer = L"Walls";
    entity.color = 0x1000000; // by layer
    entity.lineWeight = -1;
    entity.linetype = linetype;
    entity.numbers = numbers;
    return entity;
}

RecordedDrawing Record() {
    RecordedDrawing drawing;
    drawing.units = 4;
    drawing.layers[L"Walls"] = {L"Walls", 0xff, 25};
    drawing.styles.push_back({L"MARKS", L"marks.shx", L"", 0, 0, {0, 1, 0}});
    drawing.linetypes.push_back({3, {{2, 0, 0, {0, 0, 1, 0}, 0, L""}, {-1, 1, 131, {0, 0, 1, 0}, 0, L""}}});
    RecordedBlock block;
    block.name = L"B";
    block.entities = {Entity(L"Line", 1, {0, 0, 0, 3, 0, 0}), Entity(L"Circle", 0, {0, 0, 0, 5}),
                      Entity(L"Text", 0, {2.5, 0, 1, 2, 0, 0, 0})};
    block.entities.back().texts = {L"a text that is longer than what strings hold within themselves"};
    block.drawOrder = {0, 1, 2};
    drawing.blocks.push_back(block);
    return drawing;
}

} // namespace

/// Finds one shape file, whatever is asked for.
class GrowthDrawing::Services final : public OxDbHostApplicationServices {
public:
    explicit Services(std::wstring shapeFile) : shapeFile_(std::move(shapeFile)) {}
    bool lookFor(wchar_t* path, std::size_t room, const wchar_t* /*name*/, int /*hint*/) override {
        if (shapeFile_.size() >= room) {
            return false;
        }
        std::wmemcpy(path, shapeFile_.c_str(), shapeFile_.size() + 1);
        return true;
    }
    OxDbDatabase* currentDrawing() override { return nullptr; }

private:
    std::wstring shapeFile_;
};

struct GrowthDrawing::Parts {
    explicit Parts(const std::wstring& shapeFile) : services(shapeFile) {}
    Services services;
    RecordedDrawing recorded = Record();
    OxDbDatabase database{recorded};
};

GrowthDrawing::GrowthDrawing(const std::wstring& shapeFile) : parts_(std::make_unique<Parts>(shapeFile)) {
    SetServices(&parts_->services);
}

GrowthDrawing::~GrowthDrawing() {
    SetServices(nullptr);
}

OxDbDatabase& GrowthDrawing::Database() {
    return parts_->database;
}

long GrowthDrawing::CountOpen() const {
    return OxDbObject::CountOpen() + Counting::Living() + CountTexts();
}
