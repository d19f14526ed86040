#include "preview/Gallery.h"

#include "StyleConversion/platform/Utf8.h"
#include "preview/GalleryFiles.h"
#include "preview/Markup.h"
#include "preview/PageTemplate.h"
#include "preview/Picture.h"
#include "preview/SvgWriter.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace preview {
namespace {

using TylModel::Parameter;
using Json = nlohmann::ordered_json;

// The size of a card's picture in pixels; the style sheet's .picture has the same proportion.
constexpr double kPictureWidth = 300;
constexpr double kPictureHeight = 220;

std::string Counted(std::size_t count, const std::string& noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

std::string_view KindOf(Usage usage) {
    switch (usage) {
    case Usage::kLine:
        return "line";
    case Usage::kArea:
        return "area";
    case Usage::kPoint:
        break;
    }
    return "point";
}

// The default of a parameter as its control shows it.
Json ShownValue(const ResolvedParameter& parameter) {
    switch (parameter.type) {
    case Parameter::kFillColor:
    case Parameter::kLineColor:
    case Parameter::kTextColor:
        return ColorText(parameter.color.value_or(Color{}));
    case Parameter::kAngle:
    case Parameter::kLineWeight:
        return parameter.number.value_or(0.0);
    case Parameter::kText:
        break;
    }
    return platform::WideToValidUtf8(parameter.text.value_or(parameter.defaultValue));
}

Json ParametersOf(const ResolvedSymbol& symbol) {
    Json parameters = Json::array();
    for (const ResolvedParameter& parameter : symbol.parameters) {
        parameters.push_back({{"identifier", platform::WideToValidUtf8(parameter.identifier)},
                              {"label", platform::WideToValidUtf8(parameter.displayName)},
                              {"description", platform::WideToValidUtf8(parameter.description)},
                              {"type", static_cast<int>(parameter.type)},
                              {"value", ShownValue(parameter)}});
    }
    return parameters;
}

std::string PictureSvg(const ResolvedSymbol& symbol, const Picture& picture) {
    std::string out;
    SvgWriter svg(out);
    svg.Open("svg").Set("xmlns", "http://www.w3.org/2000/svg").Set("viewBox", "0 0 300 220");
    svg.Set("role", "img").Open("title").Text(symbol.name).Text(", ").Text(Describe(symbol)).Close();
    out += picture.markup;
    svg.Close();
    return out;
}

// A long name may go on in the next line behind each underscore.
std::string BreakableName(std::wstring_view name) {
    std::string markup;
    for (std::size_t at = 0; at < name.size();) {
        const std::size_t end = std::min(name.find(L'_', at), name.size() - 1) + 1;
        markup += Escaped(name.substr(at, end - at));
        markup += end < name.size() ? "<wbr>" : "";
        at = end;
    }
    return markup;
}

PictureStyle StyleOfCard(std::size_t number) {
    PictureStyle style;
    style.width = kPictureWidth;
    style.height = kPictureHeight;
    style.idPrefix = 's';
    style.idPrefix += std::to_string(number);
    style.bindings = true;
    style.tiles = true;
    return style;
}

// What the page's script needs of a symbol. `sameScale` is that of its kind, 0 for none.
Json DataOf(const ResolvedSymbol& symbol, const Picture& picture, PictureStyle style, double sameScale) {
    Json data = {
        {"svg", PictureSvg(symbol, picture)}, {"scale", picture.scale}, {"parameters", ParametersOf(symbol)}};
    if (picture.scale > 0 && sameScale > 0 && sameScale != picture.scale) {
        style.scale = sameScale;
        data["sameScale"] = {{"svg", PictureSvg(symbol, DrawPicture(symbol, style))}, {"scale", sameScale}};
    }
    return data;
}

// Adds the drawing that can be laid over the symbol's own, and the parameters that it follows.
void AddFaithful(Json& data, const ResolvedSymbol& symbol, const Picture& picture, std::size_t number,
                 TylModel::SymbolDefinition& faithful) {
    PictureStyle style = StyleOfCard(number);
    style.idPrefix.insert(0, "f");
    style.scale = picture.scale;
    style.frame = FrameOf(symbol);
    const ResolvedSymbol resolved = Resolve(faithful);
    data["faithful"] = PictureSvg(resolved, DrawPicture(resolved, style));
    data["faithfulParameters"] = ParametersOf(resolved);
}

// The data with one more member, whose text is JSON already.
std::string WithSymbol(const Json& data, const std::string& symbol) {
    std::string text = JsonInScript(data);
    text.pop_back();
    return text + ",\"symbol\":" + InScript(symbol) + "}";
}

// What the styles that a reader takes out stand in.
std::string LibraryOf(const GalleryPage& page) {
    return page.styleHead.empty() ? "null"
                                  : JsonInScript(Json{{"head", page.styleHead}, {"tail", page.styleTail}});
}

std::string GlyphMarkup(const GlyphFacts* glyph) {
    return glyph == nullptr ? "" : " data-glyph=\"" + std::to_string(glyph->character) + "\"";
}

// A browser takes in pages of thousands of cards the faster the less there is in each: what has no text is
// left out.
std::string Line(std::string_view kind, std::string_view text) {
    std::string markup;
    if (!text.empty()) {
        markup.append("<p class=\"").append(kind).append("\">").append(Escaped(text)).append("</p>\n");
    }
    return markup;
}

std::string NotesMarkup(const Picture& picture, const std::string& loss) {
    std::string items = loss.empty() ? "" : "<li class=\"loss\">" + Escaped(loss) + "</li>";
    for (const std::string& note : picture.notes) {
        items += "<li>" + Escaped(note) + "</li>";
    }
    return items.empty() ? items : "<ul class=\"notes\">" + items + "</ul>\n";
}

std::string ParametersMarkup(std::size_t count) {
    return count == 0
               ? ""
               : R"(<details class="parameters"><summary tabindex="-1">)" + Counted(count, "parameter") +
                     "</summary><div class=\"controls\"></div></details>\n";
}

} // namespace

bool GalleryWriter::WriteHead() {
    const std::string_view page = SplitAt(gallery_files::kPage, "cards").before;
    return sink_(
        Filled(page, {Field::Text("title", page_.title), Field::Text("count", Counted(page_.count, "symbol")),
                      Field::Markup("scriptHash", gallery_files::kScriptHash),
                      Field::Markup("style", gallery_files::kStyle)}));
}

void GalleryWriter::Measure(TylModel::SymbolDefinition& symbol) {
    const ResolvedSymbol resolved = Resolve(symbol);
    const double scale = FittingScale(resolved, StyleOfCard(0));
    if (scale > 0) {
        scales_[resolved.usage].push_back(scale);
    }
}

double GalleryWriter::CommonScale(Usage usage) {
    std::vector<double>& scales = scales_[usage];
    if (scales.empty()) {
        return 0.0;
    }
    if (!isSorted_) {
        for (auto& [kind, each] : scales_) {
            std::sort(each.begin(), each.end());
        }
        isSorted_ = true;
    }
    return scales[scales.size() / 2];
}

bool GalleryWriter::Add(TylModel::SymbolDefinition& symbol, const GalleryFacts& facts) {
    const ResolvedSymbol resolved = Resolve(symbol);
    const PictureStyle style = StyleOfCard(added_);
    const Picture picture = DrawPicture(resolved, style);
    Json data = DataOf(resolved, picture, style, CommonScale(resolved.usage));
    if (facts.faithful != nullptr && picture.scale > 0) {
        AddFaithful(data, resolved, picture, added_, *facts.faithful);
    }
    if (facts.glyph != nullptr) {
        data["glyph"] = {
            {"advance", facts.glyph->advance}, {"above", facts.glyph->above}, {"below", facts.glyph->below}};
    }
    if (!page_.styleHead.empty()) {
        data["style"] = facts.style;
    }
    const std::string description =
        resolved.description.empty() ? facts.description : platform::WideToValidUtf8(resolved.description);
    const bool written =
        (added_ > 0 || WriteHead()) &&
        sink_(Filled(gallery_files::kCard,
                     {Field::Text("kind", KindOf(resolved.usage)), Field::Text("source", facts.source),
                      Field::Markup("glyph", GlyphMarkup(facts.glyph)), Field::Text("name", resolved.name),
                      Field::Markup("breakableName", BreakableName(resolved.name)),
                      Field::Markup("description", Line("description", description)),
                      Field::Text("detail", Describe(resolved)),
                      Field::Markup("sourceLine", Line("source", facts.source)),
                      Field::Markup("notes", NotesMarkup(picture, facts.loss)),
                      Field::Markup("parameters", ParametersMarkup(resolved.parameters.size())),
                      Field::Markup("data", WithSymbol(data, facts.json))}));
    ++added_;
    return written;
}

bool GalleryWriter::Finish() {
    const std::string_view page = SplitAt(gallery_files::kPage, "cards").after;
    return (added_ > 0 || WriteHead()) &&
           sink_(Filled(page, {Field::Markup("document", InScript(page_.document)),
                               Field::Markup("library", LibraryOf(page_)),
                               Field::Markup("script", gallery_files::kScript)}));
}

} // namespace preview
