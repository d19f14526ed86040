// Writes drawings in memory as drawing documents.
#include "documents/DrawingWriter.h"

#include "documents/EntityJson.h"

#include <string>
#include <unordered_map>

namespace documents {
namespace {

constexpr std::size_t kPieceBytes = 65536; // handed to the sink at a time, or a little more

class Writer {
public:
    explicit Writer(const TextSink& sink) : sink_(sink) {}

    bool Write(const drawing::Database& drawing) {
        json_.BeginObject();
        json_.Key("format");
        json_.PlainText("styleconversion/drawing");
        json_.Key("version");
        json_.Integer(1);
        PutInteger(json_, "insunits", drawing.insunits(), OxDb::kUnitsUndefined);
        PutNumber(json_, "linetypeScale", drawing.LinetypeScale(), 1.0);
        if (drawing.IsMetric()) {
            json_.Key("metric");
            json_.Boolean(*drawing.IsMetric());
        }
        WriteTable("layers", drawing.Layers());
        WriteTable("linetypes", drawing.Linetypes());
        WriteTable("textStyles", drawing.TextStyles());
        WriteTable("blocks", drawing.Blocks());
        json_.EndObject();
        text_ += '\n';
        return Hand(0);
    }

private:
    // Gives the text to the sink where there is more than that. Once refused, nothing more is given.
    bool Hand(std::size_t most) {
        if (isTaken_ && text_.size() > most) {
            isTaken_ = sink_(text_);
            text_.clear();
        }
        return isTaken_;
    }

    template <class Record>
    void WriteTable(std::string_view key, const std::vector<Record*>& records) {
        json_.Key(key);
        json_.BeginList();
        for (const Record* const record : records) {
            if (!Hand(kPieceBytes)) {
                break;
            }
            json_.BeginObject();
            json_.Key("name");
            json_.Text(record->Name());
            WriteRecord(*record);
            json_.EndObject();
        }
        json_.EndList();
    }

    void WriteRecord(const drawing::LayerRecord& layer) {
        PutColor(json_, "color", layer.color());
        PutInteger(json_, "lineWeight", layer.lineWeight(), OxDb::kLnWtByLwDefault);
        PutText(json_, "linetype", layer.Linetype(), L"Continuous");
        PutFlag(json_, "off", layer.State() == drawing::LayerState::kOff);
        PutFlag(json_, "frozen", layer.State() == drawing::LayerState::kFrozen);
    }

    void WriteRecord(const drawing::LinetypeRecord& linetype) {
        json_.Key("patternLength");
        json_.Number(linetype.patternLength());
        json_.Key("dashes");
        json_.BeginList();
        for (const drawing::Dash& dash : linetype.Dashes()) {
            json_.BeginObject();
            json_.StayOnLine(true);
            WriteDash(dash);
            json_.EndObject();
            json_.StayOnLine(false);
        }
        json_.EndList();
    }

    void WriteDash(const drawing::Dash& dash) {
        json_.Key("length");
        json_.Number(dash.length);
        if (dash.shapeStyle.empty()) {
            return; // what else it has belongs to a shape or text
        }
        PutText(json_, "shapeStyle", dash.shapeStyle);
        PutInteger(json_, "shapeNumber", dash.shapeNumber, 0);
        if (dash.text) {
            json_.Key("text");
            json_.Text(*dash.text);
        }
        PutPair(json_, "offset", dash.offset.x, dash.offset.y);
        PutNumber(json_, "scale", dash.scale, 1.0);
        PutNumber(json_, "rotation", dash.rotation, 0.0);
    }

    void WriteRecord(const drawing::TextStyleRecord& style) {
        const drawing::TextStyleData& data = style.Data();
        PutText(json_, "fileName", data.fileName);
        PutText(json_, "bigFontFileName", data.bigFontFileName);
        PutText(json_, "typeface", data.typeface);
        PutFlag(json_, "bold", data.bold);
        PutFlag(json_, "italic", data.italic);
        PutFlag(json_, "isShapeFile", data.isShapeFile);
        PutFlag(json_, "isVertical", data.isVertical);
        PutNumber(json_, "obliquingAngle", data.obliquingAngle, 0.0);
        PutNumber(json_, "textSize", data.textSize, 0.0);
        PutNumber(json_, "xScale", data.xScale, 1.0);
        PutInteger(json_, "flagBits", data.flagBits, 0);
    }

    void WriteRecord(const drawing::BlockRecord& block) {
        const drawing::BlockData& data = block.Data();
        PutFlag(json_, "layout", data.layout);
        PutFlag(json_, "anonymous", data.anonymous);
        PutInteger(json_, "units", data.units, OxDb::kUnitsUndefined);
        WriteBasePoint(data.basePoint);
        const std::vector<OxDbObjectId>* const order = block.DrawOrder();
        std::unordered_map<const OxDbStub*, std::string>
            ids; // of the entities, where an order refers to them
        json_.Key("entities");
        json_.BeginList();
        for (std::size_t i = 0; i < block.EntityCount() && Hand(kPieceBytes); ++i) {
            const OxDbObjectId entity = block.EntityId(i);
            const std::string id = order != nullptr ? std::to_string(i) : std::string();
            if (order != nullptr) {
                ids[entity.stub()] = id;
            }
            WriteEntity(json_, entity, id);
        }
        json_.EndList();
        if (order != nullptr) {
            WriteOrder(*order, ids);
        }
    }

    void WriteBasePoint(const OxGePoint3d& point) {
        if (point.x != 0.0 || point.y != 0.0 || point.z != 0.0) {
            json_.Key("basePoint");
            json_.StayOnLine(true);
            json_.BeginList();
            for (const double number : {point.x, point.y, point.z}) {
                json_.Number(number);
            }
            json_.EndList();
            json_.StayOnLine(false);
        }
    }

    void WriteOrder(const std::vector<OxDbObjectId>& order,
                    const std::unordered_map<const OxDbStub*, std::string>& ids) {
        json_.Key("drawOrder");
        json_.StayOnLine(true);
        json_.BeginList();
        for (const OxDbObjectId entity : order) {
            json_.PlainText(ids.at(entity.stub()));
        }
        json_.EndList();
        json_.StayOnLine(false);
    }

    const TextSink& sink_;
    std::string text_;
    JsonText json_{text_};
    bool isTaken_ = true;
};

} // namespace

bool WriteDrawing(const drawing::Database& drawing, const TextSink& sink) {
    return Writer(sink).Write(drawing);
}

} // namespace documents
