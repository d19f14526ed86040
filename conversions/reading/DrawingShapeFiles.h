// The shape files that the linetypes of a drawing draw from.
#pragma once

#include "StyleConversion/block/ShapeFileSource.h"
#include "conversions/reading/Front.h"
#include "diagnostics/Diagnostic.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace conversions {

/// Asks the front for each file once. A tolerant reading takes files of any maker's signature and without a
/// trailer, and the built-in font in place of a txt.shx that is not there.
class DrawingShapeFiles final : public block::ShapeFileSource {
public:
    struct File {
        std::optional<ShxUtility::ShapesInFile> shapes;
        /// What is said of the file: why there are no shapes, or what was tolerated.
        diagnostics::Diagnostics diagnostics;
    };

    /// `drawing` is what messages call the drawing. The front must outlive this object.
    DrawingShapeFiles(std::string drawing, bool tolerant, Front& front);

    const ShxUtility::ShapesInFile* Find(const wchar_t* name) override;

    const File& Open(const std::wstring& name);

    /// What is said of all files that were asked for: of those without shapes, too, where `withRefusals`.
    diagnostics::Diagnostics Told(bool withRefusals) const;

private:
    File Load(const std::wstring& name);
    File Missing(const std::wstring& name) const;

    std::string drawing_;
    bool tolerant_;
    Front& front_;
    std::map<std::wstring, File> files_;
    std::vector<const File*> order_; // as they were asked for
};

} // namespace conversions
