// Files of which only pieces are held.
#include "exchange/DxfPieces.h"

#include "tests/exchange/DxfFiles.h"
#include "tests/support/Trickle.h"

#include <gtest/gtest.h>

namespace {

using exchange::DxfPieces;

/// The drawing's document or the refusal, and what is said of the reading.
std::string OutcomeOf(const std::unique_ptr<drawing::Database>& database,
                      const diagnostics::Diagnostic& fault, const exchange::DxfNotes& notes) {
    std::string outcome = database != nullptr ? DocumentOf(*database) : diagnostics::MessageOf(fault);
    for (const diagnostics::Diagnostic& note : notes.All()) {
        outcome += '\n' + diagnostics::MessageOf(note);
    }
    return outcome;
}

std::string WholeOutcome(const std::string& bytes) {
    diagnostics::Diagnostic fault;
    exchange::DxfNotes notes;
    const auto database = exchange::ReadDxf(bytes, fault, notes);
    return OutcomeOf(database, fault, notes);
}

std::string PiecesOutcome(Trickle& source, std::size_t pieceSize) {
    diagnostics::Diagnostic fault;
    exchange::DxfNotes notes;
    const auto database = exchange::ReadDxf(source, fault, notes, pieceSize);
    return OutcomeOf(database, fault, notes);
}

// What needs more than the record that is read: old polylines, linetypes, names, an unknown layer, a repair.
DxfWriter FileOfAllThatIsKept() {
    DxfWriter types;
    types.Text(0, "LTYPE").Text(2, "GAPS").Number(40, 3).Number(49, 2).Integer(74, 0).Number(49, -1);
    types.Text(0, "STYLE").Text(2, "NOTES").Text(3, "romans.shx").Number(41, 0.5);
    DxfWriter entities;
    entities.Text(0, "POLYLINE").Text(8, "A LAYER OF ITS OWN").Number(40, 0.5).Number(41, 0.25);
    for (int i = 0; i < 5; ++i) {
        entities.Text(0, "VERTEX").Point(10, i, 2.5 * i).Number(42, 0.125);
    }
    entities.Text(0, "SEQEND").Text(0, "LINE").Text(8, "0").Point(10, 1, 2).Text(11, "none");
    entities.Text(0, "TEXT").Text(8, "A LAYER OF ITS OWN").Text(1, std::string(300, 'x')).Number(40, 2);
    entities.Text(0, "CIRCLE").Text(8, "0").Text(6, "GAPS").Point(10, 0.5, 0.25).Number(40, 12.75);
    DxfWriter block;
    block.Text(0, "BLOCK").Text(2, "B").Integer(70, 0).Append(entities).Text(0, "ENDBLK");
    return DxfWriter().Append(Section("TABLES", types)).Append(Section("BLOCKS", block));
}

} // namespace

TEST(DxfPieces, GiveTheDrawingOfTheWholeFileWhateverTheirSize) {
    const DxfWriter file = FileOfAllThatIsKept(); // without its end, which is told
    for (const std::string& bytes : {file.Ascii("\n"), file.Ascii("\r\n"), file.Ascii("\r"),
                                     "\xEF\xBB\xBF" + file.Ascii(), file.Binary(), file.Binary(true)}) {
        const std::string expected = WholeOutcome(bytes);
        ASSERT_NE(expected.find("A LAYER OF ITS OWN"), std::string::npos) << expected;
        for (const std::size_t pieceSize : {1, 2, 3, 7, 64, 1000, 1 << 16}) {
            for (const std::size_t most : {1, 5, 1 << 16}) {
                Trickle source(bytes, most);
                EXPECT_EQ(PiecesOutcome(source, pieceSize), expected) << pieceSize << ' ' << most;
                EXPECT_EQ(source.begun, 1);
            }
        }
    }
}

TEST(DxfPieces, RefuseWhatTheWholeFileIsRefusedFor) {
    const std::string file = FileOfAllThatIsKept().Ascii("\n");
    const std::string binary = FileOfAllThatIsKept().Binary();
    for (std::size_t size = 0; size < 400; size += 3) {
        for (const std::string& bytes : {file.substr(0, size), binary.substr(0, size),
                                         file.substr(0, size) + "junk\njunk\n" + file.substr(size)}) {
            Trickle source(bytes, 11);
            EXPECT_EQ(PiecesOutcome(source, 8), WholeOutcome(bytes)) << bytes;
        }
    }
}

TEST(DxfPieces, HoldOnlyWhatWasNotTakenAway) {
    const std::string bytes = "one two three four";
    Trickle source(bytes, 4);
    DxfPieces pieces(source, 4);
    EXPECT_EQ(pieces.Rest(), "");
    EXPECT_TRUE(pieces.Extend());
    EXPECT_EQ(pieces.Rest(), "one ");
    const std::string_view one = pieces.Rest().substr(0, 3);
    pieces.Skip(4);
    EXPECT_TRUE(pieces.Require(5));
    EXPECT_EQ(pieces.Rest().substr(0, 5), "two t");
    EXPECT_EQ(one, "one") << "stays until Release";
    EXPECT_EQ(pieces.Offset(), 4U);
    EXPECT_FALSE(pieces.Require(15));
    EXPECT_EQ(pieces.Rest(), "two three four");
    EXPECT_FALSE(pieces.Extend());
}

TEST(DxfPieces, ATextThatIsNoUtf8TellsTheEncodingOfAllTexts) {
    struct Row {
        const char* description;
        const char* page; // in the header; null: there is no header
        const char* layer;
        const char* text;
        const char* expectedLayer;
        const char* expectedText;
        int begun; // how often the file is read from its start
    };
    const Row rows[] = {
        {"all ASCII", "ANSI_1252", "ROAD", "x", "ROAD", "x", 1},
        {"all UTF-8", "ANSI_1252",
         "STRA\xC3\x9F"
         "E",
         "\xC3\xA4",
         "STRA\xC3\x9F"
         "E",
         "\xC3\xA4", 1},
        {"ASCII before it", "ANSI_1251", "ROAD", "\xC4", "ROAD", "\xD0\x94", 1},
        {"UTF-8 before it", "ANSI_1251", "\xD0\xB4", "\xC4", "\xD0\xA0\xD2\x91", "\xD0\x94", 2},
        {"without a page", nullptr, "ROAD", "\xE4", "ROAD", "\xC3\xA4", 1},
        {"UTF-8 before it, without a page", nullptr, "\xC3\xA4", "\xE4", "\xC3\x83\xC2\xA4", "\xC3\xA4", 2},
    };
    for (const Row& row : rows) {
        DxfWriter file;
        if (row.page != nullptr) {
            file.Append(Section("HEADER", DxfWriter().Text(9, "$PAGE").Text(3, row.page)));
        }
        DxfWriter text;
        text.Text(0, "TEXT").Text(8, row.layer).Point(10, 0, 0).Number(40, 1).Text(1, row.text);
        file.Append(FileOf(text));
        for (const std::string& bytes : {file.Ascii(), file.Binary()}) {
            Trickle source(bytes, 3);
            const std::string outcome = PiecesOutcome(source, 16);
            EXPECT_NE(outcome.find('"' + std::string(row.expectedLayer) + '"'), std::string::npos)
                << row.description << outcome;
            EXPECT_NE(outcome.find('"' + std::string(row.expectedText) + '"'), std::string::npos)
                << row.description << outcome;
            EXPECT_EQ(source.begun, row.begun) << row.description;
            EXPECT_EQ(outcome, WholeOutcome(bytes)) << row.description;
        }
    }
}
