// A linetype parser that forgives what can be forgiven, over a text.
#pragma once

#include "ParserFixture.h"

#include <set>
#include <vector>

namespace linetypetest {

class TolerantFixture : public ParserFixture {
protected:
    using LinFaultKind = LineConverter::LinFaultKind;
    using Kinds = std::vector<LinFaultKind>;

    TolerantFixture() : ParserFixture(LineConverter::kTolerantLinPolicy) {}

    /// What a strict reading shows.
    std::string StrictWalk(std::string_view text) {
        LineConverter::LinParser strict(&styles, &files);
        const LineConverter::LinResult result = strict.Parse(folder.Write("strict.lin", text));
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

    Kinds FaultKinds() const {
        Kinds kinds;
        for (const LineConverter::LinFault& fault : parser.faults()) {
            kinds.push_back(fault.kind);
        }
        return kinds;
    }

    /// Whether all faults of the last reading were forgiven.
    bool AllForgiven() const {
        for (const LineConverter::LinFault& fault : parser.faults()) {
            if (!fault.forgiven) {
                return false;
            }
        }
        return true;
    }
};

} // namespace linetypetest
