// A linetype parser over a text, with styles and files that a test provides.
#pragma once

#include "FakeServices.h"
#include "RecordingVisitor.h"
#include "ShapeBytes.h"
#include "StyleConversion/platform/CodePage.h"
#include "TestFile.h"
#include "TestParser.h"

#include <gtest/gtest.h>
#include <string>

namespace linetypetest {

/// Has the TrueType style ST, the SHX style STANDARD in TXT.SHX (A and B), and the library MARKS.SHX (MARK,
/// TICK).
class ParserFixture : public testing::Test {
protected:
    explicit ParserFixture(const LineConverter::LinPolicy& policy = {})
        : shapeFiles(files), parser(&styles, &shapeFiles, policy) {
        // The files here are UTF-8, and some systems have another page of their own.
        platform::SetAnsiCodePage("UTF-8");
        styles.AddTrueType(L"ST", L"Arial");
        styles.AddShx(L"STANDARD", L"txt.shx");
        files.files[L"TXT.SHX"] =
            ShapesFile({FontInformation(8, 2, 0), {65, "A", UnitStroke()}, {66, "B", UnitStroke()}});
        files.files[L"MARKS.SHX"] = ShapesFile({{130, "MARK", UnitStroke()}, {131, "TICK", UnitStroke()}});
    }

    LineConverter::LinResult Parse(std::string_view text) { return parser.Parse(text); }

    /// What a walk shows, or "result N" when the text cannot be read.
    std::string Walk(std::string_view text) {
        if (const LineConverter::LinResult result = Parse(text); result != LineConverter::kSuccess) {
            return "result " + std::to_string(result);
        }
        RecordingVisitor visitor;
        const LineConverter::LinResult result = parser.Accept(visitor);
        return visitor.record + (result != LineConverter::kSuccess ? "result " + std::to_string(result) : "");
    }

    /// The elements of one pattern line, or "result N".
    std::string Elements(const std::string& pattern) {
        std::string record = Walk("*X\n" + pattern + "\n");
        const std::string start = "begin;linetype X||";
        const std::string end = "end linetype;end;";
        if (record.compare(0, start.size(), start) != 0 || record.size() < start.size() + end.size()) {
            return record;
        }
        record = record.substr(record.find(';', start.size()) + 1);
        return record.substr(0, record.find(end)) + record.substr(record.find(end) + end.size());
    }

    TestFolder folder;
    FakeStyles styles;
    FakeFiles files;
    LineConverter::HostShapeFiles shapeFiles;
    TestParser parser;
};

} // namespace linetypetest
