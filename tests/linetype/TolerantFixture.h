// A tolerant linetype parser over a text.
#pragma once

#include "ParserFixture.h"

#include <set>
#include <vector>

namespace linetypetest {

class TolerantFixture : public ParserFixture {
protected:
    using LinErrorKind = LineConverter::LinErrorKind;
    using Kinds = std::vector<LinErrorKind>;

    TolerantFixture() : ParserFixture(LineConverter::kTolerantLinPolicy) {}

    /// What a strict reading shows.
    std::string StrictWalk(std::string_view text) {
        TestParser strict(&styles, &shapeFiles);
        const LineConverter::LinResult result = strict.Parse(text);
        if (result != LineConverter::kSuccess) {
            return "result " + std::to_string(result);
        }
        RecordingVisitor visitor;
        strict.Accept(visitor);
        return visitor.record;
    }

    /// The names of the linetypes that a reading finds, each followed by ";".
    std::string Names(std::string_view text) {
        EXPECT_EQ(Parse(text), LineConverter::kSuccess);
        std::string names;
        for (const LineConverter::LinetypeRecord& record : parser.linetypes()) {
            names += record.name + ";";
        }
        return names;
    }

    Kinds ErrorKinds() const {
        Kinds kinds;
        for (const LineConverter::LinError& error : parser.errors()) {
            kinds.push_back(error.kind);
        }
        return kinds;
    }

    /// Whether all errors of the last reading were tolerated.
    bool AllTolerated() const {
        for (const LineConverter::LinError& error : parser.errors()) {
            if (!error.tolerated) {
                return false;
            }
        }
        return true;
    }
};

} // namespace linetypetest
