// Linetypes converted over the styles and files of ParserFixture.
#pragma once

#include "ParserFixture.h"
#include "StyleConversion/linetype/CLinVisitor.h"
#include "SymbolText.h"

#include <memory>

namespace linetypetest {

class ConversionFixture : public ParserFixture {
protected:
    ConversionFixture() : objectsBefore_(CountModelObjects()) {}
    ~ConversionFixture() override { EXPECT_EQ(CountModelObjects(), objectsBefore_); }

    /// The symbols of a text, each as SymbolText has it and with a line's end; "failed" when the visitor
    /// failed.
    std::string Convert(std::string_view text, double scale = 1.0) {
        if (const LineConverter::LinResult result = Parse(text); result != LineConverter::kSuccess) {
            return "result " + std::to_string(result);
        }
        LineConverter::CLinVisitor visitor(scale, &parser.errorLog());
        if (const LineConverter::LinResult result = parser.Accept(visitor);
            result != LineConverter::kSuccess) {
            return "result " + std::to_string(result);
        }
        const std::unique_ptr<std::vector<TylModel::SymbolDefinition*>> symbols(visitor.TakeResults());
        return symbols ? TakeTexts(*symbols) : "failed";
    }

    /// The same for one linetype "X" of that pattern.
    std::string ConvertPattern(const std::string& pattern, double scale = 1.0) {
        return Convert("*X\nA," + pattern + "\n", scale);
    }

    /// What ConvertPattern gives for a pattern of one dash of length 4 and one member besides.
    static std::string WithDash(const std::string& member) {
        return "compound X [" + member +
               ", simple X {path M 0,0 L 4,0 ; params LINECOLOR LINEWEIGHT; line repeat=4}]\n";
    }

    LineConverter::LinErrorKind LastError() const { return parser.errors().back().kind; }

private:
    long objectsBefore_;
};

} // namespace linetypetest
