// Reading, resolving and walking a linetype file, as a conversion strings them together.
#pragma once

#include "StyleConversion/linetype/LinResolution.h"
#include "StyleConversion/linetype/LinWalk.h"
#include "StyleConversion/linetype/LinetypeReader.h"

#include <string_view>
#include <vector>

namespace linetypetest {

class TestParser {
public:
    /// Styles and files are borrowed and may be null.
    TestParser(LineConverter::IGetFontInfo* styles, LineConverter::ShapeFileSource* files,
               const LineConverter::LinPolicy& policy = {})
        : styles_(styles), files_(files), policy_(policy) {}

    LineConverter::LinResult Read(std::string_view bytes) {
        Clear();
        return LineConverter::ReadLinetypes(bytes, policy_, file_, log_);
    }
    LineConverter::LinResult Resolve() {
        return LineConverter::ResolveNames(file_, styles_, files_, policy_, log_);
    }
    LineConverter::LinResult Parse(std::string_view bytes) {
        const LineConverter::LinResult result = Read(bytes);
        return result == LineConverter::kSuccess ? Resolve() : result;
    }
    LineConverter::LinResult Accept(LineConverter::LinStyleVisitor& visitor) {
        return LineConverter::Walk(file_, visitor, log_);
    }
    void Clear() {
        file_ = {};
        log_.Clear();
    }

    const std::vector<LineConverter::LinetypeRecord>& linetypes() const { return file_.linetypes; }
    const LineConverter::FontInfoMap& fontInfos() const { return file_.fontInfos; }
    const LineConverter::ShapeFileMap& shapeFiles() const { return file_.shapeFiles; }
    LineConverter::LinErrorLog& errorLog() { return log_; }
    const std::vector<LineConverter::LinError>& errors() const { return log_.errors(); }

private:
    LineConverter::IGetFontInfo* styles_;
    LineConverter::ShapeFileSource* files_;
    LineConverter::LinPolicy policy_;
    LineConverter::LinetypeFile file_;
    LineConverter::LinErrorLog log_;
};

} // namespace linetypetest
