// Symbols as one style library of QGIS, which its style manager imports.
#pragma once

#include "TylModel/TylModel.h"
#include "styles/Loss.h"
#include "styles/QgisExpression.h"
#include "styles/UniqueNames.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace styles {

/// Takes the next piece of a document's UTF-8 text. False stops the writing: the piece could not be stored.
using TextSink = std::function<bool(std::string_view)>;

/// What stands before and behind the symbols of a library.
inline constexpr std::string_view kQgisLibraryHead = "<!DOCTYPE qgis_style>\n"
                                                     "<qgis_style version=\"2\">\n"
                                                     "<symbols>\n";
inline constexpr std::string_view kQgisLibraryTail = "</symbols>\n"
                                                     "<colorramps/>\n"
                                                     "<textformats/>\n"
                                                     "<labelsettings/>\n"
                                                     "<legendpatchshapes/>\n"
                                                     "</qgis_style>\n";

struct QgisOptions {
    HatchUnit hatchUnit = HatchUnit::kMap;
    double scale = 1.0; // multiplies all lengths but pens
};

/// What became of one symbol.
struct AddedStyle {
    std::string name; // in the library, where no two are alike
    bool isRenamed = false;
    Losses losses;
};

/// Writes one library: call Add for each symbol in turn, then Finish. The text of one symbol at a time is
/// held in memory.
class QgisLibraryWriter {
public:
    QgisLibraryWriter(TextSink sink, QgisOptions options) : sink_(std::move(sink)), options_(options) {}

    /// The tags, as UTF-8, stand beside the one that names the kind. False when the sink refused a piece;
    /// nothing more is to be written then.
    bool Add(TylModel::SymbolDefinition& symbol, const std::vector<std::string>& tags, AddedStyle& added);
    bool Finish();

private:
    TextSink sink_;
    QgisOptions options_;
    UniqueNames names_{" (", ")"};
    bool started_ = false;
};

} // namespace styles
