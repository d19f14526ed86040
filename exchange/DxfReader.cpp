// Reads DXF files into drawings in memory.
#include "exchange/DxfReader.h"

#include "StyleConversion/platform/Characters.h"
#include "StyleConversion/platform/Utf8.h"
#include "diagnostics/Sentences.h"
#include "diagnostics/ShownText.h"
#include "exchange/DxfEntities.h"
#include "exchange/DxfTables.h"
#include "exchange/DxfText.h"

#include <algorithm>
#include <deque>
#include <optional>
#include <unordered_map>
#include <utility>

namespace exchange {
namespace {

using diagnostics::Code;

enum class Section { kNone, kTables, kBlocks, kEntities, kObjects, kOther };

constexpr std::int32_t kAnonymous = 1; // group code 70 of a block
constexpr std::string_view kModelSpace = "*Model_Space";
constexpr std::string_view kPaperSpace = "*Paper_Space";

bool IsLayoutName(std::string_view name) {
    std::string folded = FoldedName(name);
    if (folded.starts_with('$')) { // as old files write it
        folded.front() = '*';
    }
    return folded == FoldedName(kModelSpace) || folded.starts_with(FoldedName(kPaperSpace));
}

/// The header's variables that count.
struct Header {
    OxDb::UnitsValue units = OxDb::kUnitsUndefined;
    double linetypeScale = 1.0;
    std::optional<bool> isMetric;
    std::string_view codePage;
};

Header ReadHeader(const DxfRecord& section) {
    Header header;
    std::string_view variable;
    for (const DxfPair& pair : section.pairs) {
        if (pair.code == 9) {
            variable = pair.Word();
        } else if (variable == "$INSUNITS" && pair.code == 70) {
            header.units = static_cast<OxDb::UnitsValue>(section.IntegerOf(pair, 0, {0}));
        } else if (variable == "$LTSCALE" && pair.code == 40) {
            header.linetypeScale = PositiveScale(section.NumberOf(pair, 1.0));
        } else if (variable == "$MEASUREMENT" && pair.code == 70) {
            header.isMetric = section.IntegerOf(pair, 0) != 0;
        } else if (pair.code == 3 && (pair.Word().starts_with("ANSI_") || pair.Word().starts_with("ansi_") ||
                                      pair.Word().starts_with("DOS") || pair.Word().starts_with("dos"))) {
            header.codePage = pair.Word(); // whatever the variable is called
        }
    }
    return header;
}

class Reader {
public:
    /// A file `isUtf8` as long as it does not turn out to be in another encoding.
    Reader(DxfPieces pieces, bool isUtf8, DxfNotes& notes)
        : notes_(notes), cursor_(std::move(pieces)), isUtf8_(isUtf8) {
        if (cursor_.IsBinary()) {
            notes_.CountBytes();
        }
    }

    std::unique_ptr<drawing::Database> Read(diagnostics::Diagnostic& fault);
    /// Texts were read as UTF-8 before one came that is none: the file is to be read anew, as not in UTF-8.
    bool IsMisread() const { return isMisread_; }

private:
    void FollowEncoding();
    std::unique_ptr<drawing::Database> Refuse(const DxfFault& why, diagnostics::Diagnostic& fault) const;
    void Take(const DxfRecord& record);
    void BeginSection(const DxfRecord& record);
    void BeginBlock(const DxfRecord& record);
    void TakeEntity(const DxfRecord& record);
    void TakeDrawOrder(const DxfRecord& record);
    DxfBlock& Space(std::string_view name);
    void Open(const Header& header);

    DxfNotes& notes_;
    DxfRecordCursor cursor_;
    bool isUtf8_;
    bool isMisread_ = false;
    std::string codePage_;
    std::unique_ptr<drawing::Database> database_ = std::make_unique<drawing::Database>();
    // These wait for the header, which says how texts are encoded.
    std::optional<DxfTextDecoder> texts_;
    std::optional<DxfTableReader> tables_;
    std::optional<DxfEntityReader> entities_;
    Section section_ = Section::kNone;
    std::deque<DxfBlock> blocks_;
    std::unordered_map<std::string, DxfBlock*> byName_; // in small letters
    std::unordered_map<std::uint64_t, DxfBlock*> byHandle_;
    DxfBlock* current_ = nullptr; // the block or space that entities go to
};

void Reader::Open(const Header& header) {
    database_->SetInsunits(header.units);
    database_->SetLinetypeScale(header.linetypeScale);
    if (header.isMetric) {
        database_->SetMetric(*header.isMetric);
    }
    if (!texts_) {
        codePage_ = header.codePage;
        texts_.emplace(isUtf8_, codePage_);
        tables_.emplace(*database_, *texts_, notes_);
        entities_.emplace(*database_, *texts_, notes_);
    }
}

// The encoding is that of all texts, and known only when the last one is read. What was read before the first
// text that is no UTF-8 was mostly ASCII, and is right then.
void Reader::FollowEncoding() {
    if (!isUtf8_ || cursor_.Encoding() < DxfEncoding::kOther) {
        return;
    }
    isUtf8_ = false;
    if (texts_) {
        texts_.emplace(isUtf8_, codePage_);
        isMisread_ = cursor_.Encoding() == DxfEncoding::kOtherThanUtf8 || !texts_->ReadsAscii();
    }
}

// Null, for a file that is refused.
std::unique_ptr<drawing::Database> Reader::Refuse(const DxfFault& why, diagnostics::Diagnostic& fault) const {
    fault = {diagnostics::Severity::kError, why.code,
             notes_.PlaceOf({why.place, current_ != nullptr ? current_->name : std::string()}), why.subjects};
    return nullptr;
}

std::unique_ptr<drawing::Database> Reader::Read(diagnostics::Diagnostic& fault) {
    DxfRecord record;
    bool hasSection = false;
    bool isAtEnd = false;
    while (!isAtEnd && cursor_.Next(record)) {
        FollowEncoding();
        if (isMisread_) {
            return nullptr;
        }
        hasSection = hasSection || record.type == "SECTION";
        isAtEnd = record.type == "EOF";
        if (!isAtEnd && cursor_.IsBroken()) {
            break;
        }
        if (!hasSection) {
            return Refuse({record.place, Code::kNoSection, {diagnostics::ShownText(record.type)}}, fault);
        }
        Take(record);
    }
    if (!isAtEnd && cursor_.IsBroken()) {
        return Refuse(cursor_.Fault(), fault);
    }
    if (!hasSection) {
        return Refuse({1, Code::kNoSection, {"nothing"}}, fault);
    }
    if (!isAtEnd) {
        notes_.Repair({record.place, {}}, Code::kMissingEndMark, {});
    }
    if (database_->insunits() == OxDb::kUnitsUndefined) {
        notes_.Add({}, diagnostics::Severity::kWarning, Code::kNoUnit,
                   {diagnostics::UnitHelp(database_->IsMetric())}, diagnostics::Outcome::kNone);
    }
    tables_->Finish();
    entities_->End();
    return std::move(database_);
}

void Reader::Take(const DxfRecord& record) {
    if (record.type == "SECTION") {
        BeginSection(record);
        return;
    }
    if (record.type == "ENDSEC" || record.type == "EOF") {
        entities_->End();
        section_ = Section::kNone;
        return;
    }
    switch (section_) {
    case Section::kTables:
        tables_->Take(record);
        break;
    case Section::kBlocks:
        if (record.type == "BLOCK") {
            BeginBlock(record);
        } else if (record.type == "ENDBLK") {
            entities_->End();
            current_ = nullptr;
        } else {
            entities_->Take(record);
        }
        break;
    case Section::kEntities:
        TakeEntity(record);
        break;
    case Section::kObjects:
        if (record.type == "SORTENTSTABLE") {
            TakeDrawOrder(record);
        }
        break;
    default:
        break;
    }
}

void Reader::BeginSection(const DxfRecord& record) {
    if (section_ != Section::kNone) {
        notes_.Repair({record.place, {}}, Code::kMissingSectionEnd, {});
        entities_->End();
    }
    const std::string_view name = record.Word(2);
    Open(name == "HEADER" ? ReadHeader(record)
                          : Header{database_->insunits(), database_->LinetypeScale(), {}, {}});
    notes_.RepairInvalid({record.place, {}}, record);
    current_ = nullptr;
    section_ = name == "TABLES"     ? Section::kTables
               : name == "BLOCKS"   ? Section::kBlocks
               : name == "ENTITIES" ? Section::kEntities
               : name == "OBJECTS"  ? Section::kObjects
                                    : Section::kOther;
    if (section_ == Section::kBlocks || section_ == Section::kEntities) {
        tables_->Finish();
    }
}

void Reader::BeginBlock(const DxfRecord& record) {
    const std::string_view name = record.Word(2);
    const std::wstring wide = texts_->Decode(name);
    const std::string folded = FoldedName(name);
    const auto properties = tables_->Blocks().find(folded);
    drawing::BlockData data;
    data.layout = IsLayoutName(name);
    data.anonymous = (record.Integer(70, 0) & kAnonymous) != 0;
    data.basePoint = {record.Number(10, 0.0), record.Number(20, 0.0), record.Number(30, 0.0)};
    if (properties != tables_->Blocks().end()) {
        data.units = properties->second.units;
    }
    notes_.RepairInvalid({record.place, {}}, record);
    drawing::BlockRecord* const added = name.empty() ? nullptr : database_->AddBlock(wide, data);
    current_ = nullptr;
    if (added == nullptr) {
        const std::string shown = platform::WideToValidUtf8(wide);
        if (name.empty()) {
            notes_.Lose({record.place, {}}, Code::kUnnamedBlock, {});
        } else {
            notes_.Lose({record.place, {}}, Code::kDuplicateEntry,
                        {"block", diagnostics::ShownText(std::string_view(shown))});
        }
    } else {
        blocks_.push_back({added, platform::WideToValidUtf8(wide), {}});
        current_ = &blocks_.back();
        byName_[folded] = current_;
        if (properties != tables_->Blocks().end()) {
            byHandle_[properties->second.handle] = current_;
        }
    }
    entities_->Begin(current_);
}

// The block of a space, which is made where the file has none.
DxfBlock& Reader::Space(std::string_view name) {
    const std::string folded = FoldedName(name);
    const auto known = byName_.find(folded);
    const auto old = byName_.find('$' + folded.substr(1));
    if (known != byName_.end() || old != byName_.end()) {
        return *(known != byName_.end() ? known : old)->second;
    }
    drawing::BlockData data;
    data.layout = true;
    const auto properties = tables_->Blocks().find(folded);
    const std::string text(name);
    blocks_.push_back({database_->AddBlock(std::wstring(name.begin(), name.end()), data), text, {}});
    byName_[folded] = &blocks_.back();
    if (properties != tables_->Blocks().end()) {
        byHandle_[properties->second.handle] = &blocks_.back();
    }
    return blocks_.back();
}

void Reader::TakeEntity(const DxfRecord& record) {
    // Vertices and attributes go with what they belong to.
    const bool isPart = record.type == "VERTEX" || record.type == "ATTRIB" || record.type == "SEQEND";
    if (!isPart) {
        DxfBlock& space = Space(record.Integer(67, 0) != 0 ? kPaperSpace : kModelSpace);
        if (&space != current_) {
            current_ = &space;
            entities_->Begin(current_);
        }
    }
    entities_->Take(record);
}

// Each entity is drawn as if it had the handle that follows its own; others are drawn by their own.
void Reader::TakeDrawOrder(const DxfRecord& record) {
    std::unordered_map<std::uint64_t, std::uint64_t> standIns;
    std::uint64_t owner = 0;
    std::uint64_t entity = 0;
    for (const DxfPair& pair : record.pairs) {
        if (pair.code == 330 && entity == 0) {
            owner = pair.Handle(); // the last one before the entities is the block
        } else if (pair.code == 331) {
            entity = pair.Handle();
        } else if (pair.code == 5 && entity != 0) {
            standIns[entity] = pair.Handle();
        }
    }
    const auto place = byHandle_.find(owner);
    if (place == byHandle_.end() || standIns.empty()) {
        return;
    }
    const DxfBlock& block = *place->second;
    std::vector<std::pair<std::uint64_t, std::size_t>> keys;
    keys.reserve(block.record->EntityCount());
    for (std::size_t i = 0; i < block.record->EntityCount(); ++i) {
        const std::uint64_t handle = i < block.handles.size() ? block.handles[i] : 0;
        const auto standIn = standIns.find(handle);
        keys.emplace_back(standIn != standIns.end() ? standIn->second : handle, i);
    }
    std::sort(keys.begin(), keys.end());
    std::vector<OxDbObjectId> order;
    order.reserve(keys.size());
    for (const auto& [handle, index] : keys) {
        order.push_back(block.record->EntityId(index));
    }
    block.record->SetDrawOrder(std::move(order));
}

// `begin` gives the bytes from the first one on.
template <class Begin>
std::unique_ptr<drawing::Database> ReadAnew(const Begin& begin, diagnostics::Diagnostic& fault,
                                            DxfNotes& notes) {
    for (const bool isUtf8 : {true, false}) {
        notes = DxfNotes();
        Reader reader(begin(), isUtf8, notes);
        std::unique_ptr<drawing::Database> drawing = reader.Read(fault);
        if (!reader.IsMisread()) {
            return drawing;
        }
    }
    return nullptr; // not reached: a file that is not taken for UTF-8 is not misread
}

} // namespace

bool LooksLikeDxf(std::string_view bytes) {
    DxfPairCursor cursor{DxfPieces(bytes)};
    DxfPair pair;
    constexpr int kComment = 999;
    do {
        if (cursor.Next(pair) != DxfPairCursor::Outcome::kPair) {
            return false;
        }
    } while (pair.code == kComment);
    return pair.code == 0 && pair.Word() == "SECTION";
}

std::unique_ptr<drawing::Database> ReadDxf(std::string_view bytes, diagnostics::Diagnostic& fault,
                                           DxfNotes& notes) {
    return ReadAnew([bytes] { return DxfPieces(bytes); }, fault, notes);
}

std::unique_ptr<drawing::Database> ReadDxf(ByteSource& source, diagnostics::Diagnostic& fault,
                                           DxfNotes& notes, std::size_t pieceSize) {
    return ReadAnew(
        [&source, pieceSize] {
            source.Rewind();
            return DxfPieces(source, pieceSize);
        },
        fault, notes);
}

} // namespace exchange
