#include "styleconv/CheckedShapes.h"

#include "StyleConversion/linetype/LinNames.h"
#include "StyleConversion/platform/CodePage.h"
#include "StyleConversion/platform/Files.h"
#include "StyleConversion/shx/ShapeDrawer.h"
#include "StyleConversion/shx/ShxUtility.h"
#include "styleconv/FileStream.h"
#include "styleconv/Messages.h"
#include "styleconv/ShapeFileMessages.h"
#include "styleconv/WorkLimits.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <map>
#include <memory>
#include <optional>
#include <utility>

namespace styleconv {
namespace {

bool HasLowerCase(const std::string& name) {
    return std::any_of(name.begin(), name.end(), [](char c) { return LineConverter::UpperCase(c) != c; });
}

// Where shapes are drawn to see whether they can be.
struct Nowhere {
    void MoveTo(double /*x*/, double /*y*/) {}
    void LineBy(double /*dx*/, double /*dy*/) {}
    void ArcTo(double /*radius*/, int /*largeArc*/, int /*sweep*/, double /*x*/, double /*y*/) {}
};

class ShapeCheck {
public:
    ShapeCheck(const InputFile& input, std::vector<Finding>& findings) : input_(input), findings_(findings) {}

    void Add(Severity severity, std::string message, std::optional<std::uint64_t> byte = std::nullopt) {
        findings_.push_back({input_.Name(), 0, severity, std::move(message), "", byte, std::nullopt});
    }

    void CheckLoading(const ShxUtility::ShapeFileFaultReport& report) {
        if (report.otherMaker) {
            Add(Severity::kError, "the signature is another maker's: expected the words \"Vorlanx-86 \"", 0);
        }
        if (report.trailerMissing) {
            Add(Severity::kError, "expected \"EOF\" behind the last shape", report.trailer);
        } else if (report.end < input_.Bytes().size()) {
            Add(Severity::kWarning,
                std::to_string(input_.Bytes().size() - report.end) + " bytes behind the end are not read",
                report.end);
        }
    }

    void CheckAll(const ShxUtility::ShapesInFile& file) {
        for (const ShxUtility::Shape& shape : file.shapes) {
            if (shape.number != 0) {
                CheckShape(file, shape);
            }
        }
        const bool hasShapes = !file.numberIndex.empty();
        if (!hasShapes) {
            Add(Severity::kError, "the file has no shapes");
        } else if (file.kind == ShxUtility::kUnifont && file.fontInfo.empty()) {
            Add(Severity::kError, "the font has no information (shape 0), so no text can be written in it");
        } else if (file.kind == ShxUtility::kShapes && LooksLikeFont(file)) {
            Add(Severity::kWarning,
                "the shapes have the numbers of letters, but without font information (shape 0) "
                "the file is a library of shapes and no text can be written in it");
        }
    }

private:
    static bool LooksLikeFont(const ShxUtility::ShapesInFile& file) {
        return file.numberIndex.contains('A') && file.numberIndex.contains('a') &&
               file.numberIndex.contains('0');
    }

    void CheckShape(const ShxUtility::ShapesInFile& file, const ShxUtility::Shape& shape) {
        const std::string item = ShownShape(shape);
        NowAtItem(item);
        const std::optional<std::uint64_t> byte = PlaceOf(shape);
        const auto add = [&](Severity severity, std::string message) {
            findings_.push_back({input_.Name(), 0, severity, std::move(message), item, byte, shape.number});
        };
        const ShxUtility::ShxResult result = ResultOfDrawing(file, shape);
        if (result != ShxUtility::kSuccess) {
            const std::string code = std::to_string(static_cast<std::int32_t>(result));
            add(Severity::kError,
                std::string("it cannot be drawn: ") + DrawingFault(result) + " (result " + code + ")");
        }
        // In a font, names are remarks.
        if (shape.name.empty() || file.kind != ShxUtility::kShapes) {
            return;
        }
        const auto [first, isNew] = numbers_.try_emplace(shape.name, shape.number);
        if (!isNew) {
            add(Severity::kWarning, "shape " + std::to_string(first->second) +
                                        " has the same name, and a linetype finds that one");
        }
        if (HasLowerCase(shape.name)) {
            add(Severity::kWarning, "no linetype can find a name with lower-case letters");
        }
    }

    // Where the shape's name and program stand.
    std::optional<std::uint64_t> PlaceOf(const ShxUtility::Shape& shape) {
        std::string entry = shape.name;
        entry.push_back('\0');
        entry.append(reinterpret_cast<const char*>(shape.data.data()), shape.data.size());
        const std::size_t at = input_.Bytes().find(entry, searched_);
        if (at == std::string::npos) {
            return std::nullopt;
        }
        searched_ = at; // entries are in file order
        return at;
    }

    const InputFile& input_;
    std::vector<Finding>& findings_;
    std::map<std::string, std::uint16_t> numbers_; // of names
    std::size_t searched_ = 0;
};

} // namespace

ShxUtility::ShxResult ResultOfDrawing(const ShxUtility::ShapesInFile& file, const ShxUtility::Shape& shape,
                                      bool vertical) {
    ShxUtility::ShapeInstructions instructions;
    const ShxUtility::ShxResult decoded = ShxUtility::DecodeShape(
        instructions, shape.data.data(), static_cast<std::uint16_t>(shape.data.size()), file.kind);
    if (decoded != ShxUtility::kSuccess) {
        return decoded;
    }
    double x = 0.0;
    double y = 0.0;
    double scale = 1.0;
    ShxUtility::PositionStack positions;
    std::vector<std::uint16_t> activeSubshapes;
    bool penDown = true;
    Nowhere nowhere;
    const ShxUtility::DrawingState state{x, y, scale, positions, activeSubshapes, penDown};
    return ShxUtility::ShapeDrawer<Nowhere>(nowhere, state, file, 0.0).Draw(instructions, vertical);
}

std::string ShownShape(const ShxUtility::Shape& shape) {
    return "shape " + std::to_string(shape.number) +
           (shape.name.empty() ? "" : " " + Shown(platform::AnsiToWide(shape.name)));
}

void CheckShapes(const InputFile& input, std::vector<Finding>& findings) {
    ShapeCheck check(input, findings);
    const FileStream stream(platform::OpenForReading(input.Path().c_str()));
    if (!stream) {
        check.Add(Severity::kError, std::string("cannot be opened: ") + std::strerror(errno));
        return;
    }
    ShxUtility::ShapesInFile file;
    ShxUtility::ShapeFileFaultReport report;
    if (LoadShapeFile(stream.get(), file, ShxUtility::kAllKinds, report,
                      ShxUtility::kTolerantShapeFilePolicy) != ShxUtility::kSuccess) {
        check.Add(Severity::kError, Sentence(report), report.offset);
        return;
    }
    check.CheckLoading(report);
    check.CheckAll(file);
}

std::vector<Finding> ForgivenOfShapeFile(const std::string& file,
                                         const ShxUtility::ShapeFileFaultReport& report) {
    std::vector<Finding> findings;
    if (report.otherMaker) {
        findings.push_back({file, 0, Severity::kWarning,
                            "the signature is another maker's; the file is read all the same", ""});
    }
    if (report.trailerMissing) {
        findings.push_back({file, 0, Severity::kWarning,
                            "\"EOF\" is missing at the end; the file is read all the same", ""});
    }
    return findings;
}

} // namespace styleconv
