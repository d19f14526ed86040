// What a tolerant reading makes of wrong documents: what is skipped, in which words, and what is kept.
#include "OxDb/OxDb.h"
#include "documents/DrawingReader.h"
#include "tests/documents/DrawingDocuments.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace {

struct Tolerated {
    std::string document;
    std::string errors;            // a line each
    std::vector<std::size_t> kept; // entities of each block
};

std::vector<std::size_t> EntityCounts(drawing::Database& drawing) {
    std::vector<std::size_t> counts;
    OxDbBlockTable* table = nullptr;
    EXPECT_EQ(drawing.getSymbolTable(table, OxDb::kForRead), Oxsys::eOk);
    OxDbBlockTableIterator* created = nullptr;
    EXPECT_EQ(table->newIterator(created, true, true), Oxsys::eOk);
    const std::unique_ptr<OxDbBlockTableIterator> iterator(created);
    for (iterator->start(true, true); !iterator->done(); iterator->step(true, true)) {
        OxDbBlockTableRecord* record = nullptr;
        EXPECT_EQ(iterator->getRecord(record, OxDb::kForRead, false), Oxsys::eOk);
        counts.push_back(static_cast<drawing::BlockRecord*>(record)->EntityCount());
        record->close();
    }
    table->close();
    return counts;
}

std::string Text(const documents::ToleratedErrors& errors) {
    std::string text;
    for (diagnostics::Diagnostic error : errors.All()) {
        const std::size_t count = std::exchange(error.count, 1);
        text += (error.place.path.empty() ? "" : error.place.path + ": ") + SentenceOf(error) +
                (error.place.item.empty() ? "" : " (" + error.place.item + ")") +
                (count > 1 ? " x " + std::to_string(count) : "") + "\n";
    }
    return text;
}

void ExpectTolerated(const std::vector<Tolerated>& documents) {
    for (const auto& [document, expected, kept] : documents) {
        documents::DrawingError fault;
        documents::ToleratedErrors errors;
        const auto drawing = documents::ReadDrawing(std::string_view(document), fault, &errors);
        ASSERT_NE(drawing, nullptr) << document << fault.Text();
        EXPECT_EQ(Text(errors), expected) << document;
        EXPECT_EQ(EntityCounts(*drawing), kept) << document;
        EXPECT_EQ(FaultOf(document) == "read", expected.empty()) << document;
    }
}

const std::string kPoint = R"({"type": "point", "position": [0, 0]})";

std::string BlockOf(const std::string& entities, const std::string& more = "") {
    return R"({"name": "B", "entities": [)" + entities + "]" + more + "}";
}

TEST(ToleratedErrors, ARightDocumentHasNone) {
    ExpectTolerated({{Document(""), "", {}}, {EntityDocument(kPoint), "", {1}}});
}

TEST(ToleratedErrors, AnEntityWithAWrongValueIsLeftOutByItself) {
    const auto among = [](const std::string& entity) {
        return EntityDocument(kPoint + "," + entity + "," + kPoint);
    };
    ExpectTolerated({
        {among("7"),
         "blocks[0].entities[1]: expected an object, found a number; the entity is skipped (block B)\n",
         {2}},
        {among(R"([{"type": ["point"]}, 5])"),
         "blocks[0].entities[1]: expected an object, found an array; the entity is skipped (block B)\n",
         {2}},
        {among(R"({"type": "circle", "center": [0, 0], "radius": "5", "id": "a", "layer": "0"})"),
         "blocks[0].entities[1].radius: expected a number, found a string; the entity is skipped (block "
         "B)\n",
         {2}},
        {among(R"({"type": "circle", "center": [0, 0]})"),
         "blocks[0].entities[1].radius: expected a number, found nothing; the entity is skipped (block B)\n",
         {2}},
        {among(R"({"type": "point", "position": [0]})"),
         "blocks[0].entities[1].position: expected a point [x, y] or [x, y, z], found 1 number; the entity "
         "is "
         "skipped (block B)\n",
         {2}},
        {among(R"({"type": "point", "position": [0, {"x": [0]}], "layer": "0"})"),
         "blocks[0].entities[1].position[1]: expected a number, found an object; the entity is skipped "
         "(block B)\n",
         {2}},
        {among(R"({"type": "circle", "type": "point", "position": [0, 0]})"),
         "blocks[0].entities[1].type: the key is given twice; the entity is skipped (block B)\n",
         {2}},
        {among(R"({"type": "ray"})"),
         "blocks[0].entities[1].type: expected the type of an entity, found \"ray\"; the entity is skipped "
         "(block B)\n",
         {2}},
        {among(R"({"type": "hatch", "loops": [{"edges": [{"type": "line", "start": [0, 0], "end": [1, 0]},
                   {"type": "line", "start": [[0], 0]}]}], "solid": true})"),
         "blocks[0].entities[1].loops[0].edges[1].start[0]: expected a number, found an array; the entity is "
         "skipped (block B)\n",
         {2}},
    });
}

// A loop that was begun goes with its entity, and is not the beginning of the next one's.
TEST(ToleratedErrors, NothingOfWhatIsLeftOutStaysBehind) {
    const std::string good = R"({"type": "hatch", "loops": [{"edges": []}]})";
    const std::string bad = R"({"type": "hatch", "loops": [{"edges": [
        {"type": "line", "start": [0, 0], "end": [1, 0]}, {"type": "none"}]}]})";
    documents::DrawingError fault;
    documents::ToleratedErrors errors;
    const std::string text = EntityDocument(bad + "," + good);
    const auto drawing = documents::ReadDrawing(std::string_view(text), fault, &errors);
    ASSERT_NE(drawing, nullptr);
    OxDbBlockTable* table = nullptr;
    ASSERT_EQ(drawing->getSymbolTable(table, OxDb::kForRead), Oxsys::eOk);
    OxDbBlockTableRecord* record = nullptr;
    ASSERT_EQ(table->getAt(L"B", record, OxDb::kForRead, false), Oxsys::eOk);
    auto& block = static_cast<drawing::BlockRecord&>(*record);
    ASSERT_EQ(block.EntityCount(), 1U);
    OxDbEntity* entity = nullptr;
    ASSERT_EQ(oxdbOpenOxDbEntity(entity, block.EntityId(0), OxDb::kForRead, false), Oxsys::eOk);
    int loopType = 0;
    OxArray<const OxGeCurve2d*> edges;
    OxArray<int> edgeTypes;
    static_cast<OxDbHatch*>(entity)->getLoopAt(0, loopType, edges, edgeTypes);
    EXPECT_EQ(edges.length(), 0);
    entity->close();
    record->close();
    table->close();
}

// The colour of B's insert is asked for when B is converted.
TEST(ToleratedErrors, InsertsOfABlockThatIsLeftOutAreNoReferences) {
    const char* const another = R"({"name": "A", "entities": [{"type": "insert", "block": "b"}]})";
    for (const char* const wrong :
         {R"({"name": "C", "entities": [{"type": "insert", "block": "b"}, {"type": "insert", "block": "b"}],
              "units": -1})",
          R"({"name": "B", "entities": [{"type": "insert", "block": "b"}]})"}) {
        documents::DrawingError fault;
        documents::ToleratedErrors errors;
        std::string blocks = BlockOf(kPoint);
        for (const char* const block : {another, wrong}) {
            blocks.append(", ").append(block);
        }
        const std::string text = Document(R"("blocks": [)" + blocks + "]");
        const auto drawing = documents::ReadDrawing(std::string_view(text), fault, &errors);
        ASSERT_NE(drawing, nullptr);
        EXPECT_EQ(errors.All().size(), 1U);
        OxDbBlockTable* table = nullptr;
        ASSERT_EQ(drawing->getSymbolTable(table, OxDb::kForRead), Oxsys::eOk);
        OxDbBlockTableRecord* record = nullptr;
        ASSERT_EQ(table->getAt(L"B", record, OxDb::kForRead, false), Oxsys::eOk);
        OxDbBlockReferenceIdIterator* created = nullptr;
        ASSERT_EQ(record->newBlockReferenceIdIterator(created), Oxsys::eOk);
        const std::unique_ptr<OxDbBlockReferenceIdIterator> iterator(created);
        int references = 0;
        for (iterator->start(); !iterator->done(); iterator->step()) {
            ++references;
            OxDbBlockReference* reference = nullptr;
            ASSERT_EQ(iterator->getBlockReference(reference, OxDb::kForRead, false), Oxsys::eOk);
            reference->close();
        }
        EXPECT_EQ(references, 1);
        record->close();
        table->close();
    }
}

TEST(ToleratedErrors, WhatNothingKnowsIsSkippedAlone) {
    ExpectTolerated({
        {Document(R"("layer": [{"a": [1, 2]}], "blocks": [)" + BlockOf(kPoint) + "]"),
         "layer: unknown key; the key is skipped\n",
         {1}},
        {EntityDocument(R"({"thickness": {"of": [1]}, "type": "point", "position": [0, 0]})"),
         "blocks[0].entities[0].thickness: unknown key; the key is skipped (block B)\n",
         {1}},
        {EntityDocument(R"({"type": "point", "position": [0, 0], "radius": 1, "height": 2})"),
         "blocks[0].entities[0].radius: an entity of type \"point\" has no such key; the key is skipped "
         "(block "
         "B)\n"
         "blocks[0].entities[0].height: an entity of type \"point\" has no such key; the key is skipped "
         "(block "
         "B)\n",
         {1}},
        {Document(R"("insunits": 2147483648)"),
         "insunits: expected a whole number from 0 to 2147483647, found 2147483648; the value is skipped\n",
         {}},
        {Document(R"("layers": {"name": ["0"]}, "blocks": [)" + BlockOf(kPoint) + "]"),
         "layers: expected an array, found an object; the value is skipped\n",
         {1}},
        {Document(R"("blocks": [)" + BlockOf(kPoint) + R"(], "blocks": [{"name": "C", "entities": []}])"),
         "blocks: the key is given twice; the key is skipped\n",
         {1}},
    });
}

TEST(ToleratedErrors, ARecordWithAWrongValueIsLeftOutByName) {
    ExpectTolerated({
        {Document(R"("layers": [{"name": "ROADS", "color": 300}, 5, {"color": 1}])"),
         "layers[0].color: expected a color (\"ByLayer\", \"ByBlock\", an index from 1 to 255 or "
         "\"#rrggbb\"), "
         "found 300; the layer is skipped (layer ROADS)\n"
         "layers[1]: expected an object, found a number; the layer is skipped\n"
         "layers[2].name: expected a string, found nothing; the layer is skipped\n",
         {}},
        {Document(R"("linetypes": [{"name": "GAS", "dashes": [{"length": 1}, {"length": []}, 7]}])"),
         "linetypes[0].dashes[1].length: expected a number, found an array; the linetype is skipped "
         "(linetype "
         "GAS)\n",
         {}},
        {Document(R"("textStyles": [{"name": "A"}, {"name": "a"}])"),
         "textStyles[1].name: expected a name that no other text style has, found \"a\"; the text style is "
         "skipped (text style a)\n",
         {}},
        {Document(R"("blocks": [{"name": "C", "units": "mm", "entities": [5, 6]}, )" + BlockOf(kPoint) + "," +
                  BlockOf("7") + "]"),
         "blocks[0].units: expected a whole number from 0 to 2147483647, found a string; the block is "
         "skipped "
         "(block "
         "C)\n"
         "blocks[2].entities[0]: expected an object, found a number; the entity is skipped (block B)\n"
         "blocks[2].name: expected a name that no other block has, found \"B\"; the block is skipped (block "
         "B)\n",
         {1}},
    });
}

TEST(ToleratedErrors, IdsThatLeadNowhereAreSkipped) {
    const std::string a = R"({"type": "point", "position": [0, 0], "id": "a"})";
    ExpectTolerated({
        {Document(R"("blocks": [)" + BlockOf(a + "," + a, R"(, "drawOrder": ["b", "a", "c"])") + "]"),
         "blocks[0].entities[1].id: expected an id that no other entity of the block has, found \"a\"; the "
         "id is "
         "skipped (block B)\n"
         "blocks[0].drawOrder[0]: expected the id of an entity of the block, found \"b\"; the id is skipped "
         "(block B)\n"
         "blocks[0].drawOrder[2]: expected the id of an entity of the block, found \"c\"; the id is skipped "
         "(block B)\n",
         {2}},
    });
}

TEST(ToleratedErrors, ThoseOfOneKindInABlockAreCounted) {
    const std::string entity = R"({"type": "point", "position": [0, 0], "thickness": 1})";
    ExpectTolerated({
        {Document(R"("blocks": [)" + BlockOf(entity + "," + entity + "," + entity) + R"(, {"entities": [)" +
                  entity + R"(], "name": "C"}])"),
         "blocks[0].entities[0].thickness: unknown key; the key is skipped (block B) x 3\n"
         "blocks[1].entities[0].thickness: unknown key; the key is skipped (block C)\n",
         {3, 1}},
    });
}

TEST(ToleratedErrors, WhatStandsBeforeTheEndOfReadableTextIsKept) {
    const std::string start =
        R"({"format": "styleconversion/drawing", "version": 1, "blocks": [)" + BlockOf(kPoint) + ", ";
    documents::DrawingError fault;
    documents::ToleratedErrors errors;
    const std::string text = start + R"({"name": "C", "entities": [)" + kPoint + ", NaN]}]}";
    const auto drawing = documents::ReadDrawing(std::string_view(text), fault, &errors);
    ASSERT_NE(drawing, nullptr);
    EXPECT_EQ(EntityCounts(*drawing), std::vector<std::size_t>{1});
    ASSERT_EQ(errors.All().size(), 1U);
    EXPECT_EQ(errors.All()[0].place.path, "blocks[1].entities[0]");
    EXPECT_EQ(errors.All()[0].code, diagnostics::Code::kInvalidJson);
    EXPECT_EQ(errors.All()[0].subjects.front().rfind("line 1, column ", 0), 0U);
    EXPECT_EQ(errors.All()[0].subjects.back(), "the block and all that follows");
    EXPECT_EQ(errors.All()[0].place.item, "block C");
    ExpectTolerated({
        {start + R"({"name": "C", "entities": [{"type": "circle", "center": [0, 0], "radius": 1e999}]}]})",
         "blocks[1].entities[0].radius: expected a number that is finite, found 1e999; the block and all "
         "that "
         "follows is skipped (block C)\n",
         {1}},
        {start + R"({"name": "C", "entities": [7, 1e999]}]})",
         "blocks[1].entities[0]: expected an object, found a number; the entity is skipped (block C)\n"
         "blocks[1].entities[1]: expected a number that is finite, found 1e999; the block and all that "
         "follows "
         "is skipped (block C)\n",
         {1}},
    });
}

TEST(ToleratedErrors, WhatIsNoDrawingIsRefused) {
    for (const char* const text :
         {"", "[]", "{}", "7", R"({"version": 1})", R"({"format": "styleconversion/drawing"})",
          R"({"format": "styleconversion/symbols", "version": 1})",
          R"({"format": "styleconversion/drawing", "version": 2})", R"({"blocks": [], "format": 1)",
          R"({"version": 1, "blocks": [)"}) {
        documents::DrawingError fault;
        documents::ToleratedErrors errors;
        EXPECT_EQ(documents::ReadDrawing(std::string_view(text), fault, &errors), nullptr) << text;
        EXPECT_EQ(fault.Text(), FaultOf(text)) << text;
    }
}

// Wherever a document is cut, and whatever byte of it is missing, the blocks before that place are kept.
TEST(ToleratedErrors, EveryCutAndEveryMissingByteLeavesTheBlocksBefore) {
    std::string text = R"({"format": "styleconversion/drawing", "version": 1, "blocks": [)";
    const std::size_t head = text.size();
    std::vector<std::size_t> ends; // of blocks
    for (const char* const name : {"A", "B", "C"}) {
        text += std::string(ends.empty() ? "" : ",") + R"({"name": ")" + name +
                R"(", "entities": [{"type": "point", "position": [0, 0], "layer": "0"}]})";
        ends.push_back(text.size());
    }
    text += "]}";
    for (std::size_t at = head; at < text.size(); ++at) {
        std::size_t before = 0;
        while (before < ends.size() && ends[before] <= at) {
            ++before;
        }
        for (const std::string& wrong : {text.substr(0, at), text.substr(0, at) + text.substr(at + 1)}) {
            documents::DrawingError fault;
            documents::ToleratedErrors errors;
            const auto drawing = documents::ReadDrawing(std::string_view(wrong), fault, &errors);
            ASSERT_NE(drawing, nullptr) << wrong;
            EXPECT_GE(EntityCounts(*drawing).size(), before) << wrong;
            EXPECT_EQ(FaultOf(wrong) == "read", errors.All().empty()) << wrong;
        }
    }
}

} // namespace
