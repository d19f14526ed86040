#include "preview/SymbolSvg.h"

#include "preview/NumberTexts.h"
#include "preview/Picture.h"
#include "preview/SvgWriter.h"

#include "StyleConversion/platform/Utf8.h"

#include <algorithm>
#include <cmath>

namespace preview {
namespace {

constexpr std::string_view kXmlHead = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
constexpr std::string_view kCaptionFont =
    "system-ui, -apple-system, 'Segoe UI', 'DejaVu Sans', 'Liberation Sans', sans-serif";

constexpr std::string_view kSheetColor = "#eef0f3";
constexpr std::string_view kBorderColor = "#d4d8de";
constexpr std::string_view kNameColor = "#1a1d21";
constexpr std::string_view kDetailColor = "#5c6570";
constexpr std::string_view kNoteColor = "#9a4a00";

// A card: the picture above, the caption below, all in pixels.
struct CardSize {
    double width;
    double picture; // height
    double caption; // height
    double padding;
    double nameSize;
    double detailSize;
    int notes; // lines of notes that there is room for

    double Height() const { return picture + caption; }
};

constexpr CardSize kSheetCard{300, 220, 84, 12, 15, 11.5, 1};
constexpr CardSize kSingleCard{640, 440, 116, 20, 22, 14, 2};

constexpr double kGap = 16;
constexpr double kLineHeight = 1.5;
// The mean advance of a letter of the caption's font, in em; a little too much rather than too little.
constexpr double kCaptionAdvance = 0.57;
// A name on one line may be so many times smaller than usual.
constexpr double kSmallestShare = 1.6;
constexpr wchar_t kEllipsis = L'\u2026';

std::wstring Shortened(const std::wstring& text, double width, double fontSize) {
    const auto most = static_cast<std::size_t>(std::max(4.0, width / (fontSize * kCaptionAdvance)));
    if (text.size() <= most) {
        return text;
    }
    return text.substr(0, most - 1) + kEllipsis;
}

class CardDrawing {
public:
    CardDrawing(SvgWriter& svg, const CardSize& size, const ResolvedSymbol& symbol, const PictureStyle& style)
        : svg_(svg), size_(size), symbol_(symbol), style_(style) {}

    // `out` is what `svg` writes to: pictures are appended as they are.
    void Draw(std::string& out);

private:
    void Paper();
    void Name();
    void Line(const std::wstring& text, double fontSize, std::string_view color, bool bold);

    SvgWriter& svg_;
    const CardSize& size_;
    const ResolvedSymbol& symbol_;
    const PictureStyle& style_;
    double y_ = 0.0; // base line of the caption's last line
};

void CardDrawing::Paper() {
    svg_.Open("rect")
        .Set("width", size_.width)
        .Set("height", size_.Height())
        .Set("rx", 6)
        .Set("fill", "#ffffff")
        .Set("stroke", kBorderColor)
        .Close();
    const Color paper = PaperFor(symbol_);
    if (!(paper == Color{255, 255, 255, 255})) {
        svg_.Open("rect")
            .Set("x", 6)
            .Set("y", 6)
            .Set("width", size_.width - 12)
            .Set("height", size_.picture - 6)
            .Set("rx", 4)
            .Set("fill", ColorText(paper))
            .Close();
    }
}

void CardDrawing::Line(const std::wstring& text, double fontSize, std::string_view color, bool bold) {
    y_ += fontSize * kLineHeight;
    svg_.Open("text").Set("x", size_.padding).Set("y", y_);
    svg_.Set("font-size", fontSize).Set("fill", color);
    if (bold) {
        svg_.Set("font-weight", "bold");
    }
    svg_.Text(Shortened(text, size_.width - 2 * size_.padding, fontSize)).Close();
}

// A long name is written smaller, and then on two lines in the room of one, so that all of it can be read.
void CardDrawing::Name() {
    const double width = size_.width - 2 * size_.padding;
    const double fitting =
        width / (kCaptionAdvance * std::max<double>(1.0, static_cast<double>(symbol_.name.size())));
    if (fitting >= size_.nameSize / kSmallestShare) {
        Line(symbol_.name, std::min(size_.nameSize, fitting), kNameColor, true);
        return;
    }
    const std::size_t half = (symbol_.name.size() + 1) / 2;
    const double fontSize = size_.nameSize / 2;
    Line(symbol_.name.substr(0, half), fontSize, kNameColor, true);
    Line(symbol_.name.substr(half), fontSize, kNameColor, true);
}

void CardDrawing::Draw(std::string& out) {
    Paper();
    const Picture picture = DrawPicture(symbol_, style_);
    svg_.Text("\n");
    out += picture.markup;
    svg_.Text("\n").Open("g").Set("font-family", kCaptionFont);
    y_ = size_.picture + 2;
    Name();
    Line(platform::Utf8ToWide(Describe(symbol_)), size_.detailSize, kDetailColor, false);
    if (!symbol_.description.empty()) {
        Line(symbol_.description, size_.detailSize, kDetailColor, false);
    }
    const auto notes = std::min(picture.notes.size(), static_cast<std::size_t>(size_.notes));
    for (std::size_t i = 0; i < notes; ++i) {
        Line(platform::Utf8ToWide(picture.notes[i]), size_.detailSize, kNoteColor, false);
    }
    svg_.Close();
}

void OpenDocument(SvgWriter& svg, double width, double height, const std::wstring& title) {
    std::string viewBox = "0 0 ";
    AppendPixels(viewBox, width);
    viewBox += ' ';
    AppendPixels(viewBox, height);
    svg.Open("svg").Set("xmlns", "http://www.w3.org/2000/svg");
    svg.Set("width", width).Set("height", height).Set("viewBox", viewBox).Set("role", "img");
    svg.Open("title").Text(title).Close();
}

std::size_t ColumnsFor(std::size_t count) {
    constexpr std::size_t kMostColumns = 6;
    std::size_t columns = 1;
    while (columns < kMostColumns && columns * columns < count) {
        ++columns;
    }
    return columns;
}

} // namespace

std::string SymbolSvg(TylModel::SymbolDefinition& symbol) {
    const ResolvedSymbol resolved = Resolve(symbol);
    PictureStyle style;
    style.width = kSingleCard.width;
    style.height = kSingleCard.picture;
    style.trueSize = true;
    std::string out(kXmlHead);
    SvgWriter svg(out);
    OpenDocument(svg, kSingleCard.width, kSingleCard.Height(), resolved.name);
    CardDrawing(svg, kSingleCard, resolved, style).Draw(out);
    svg.Text("\n").Close();
    out += '\n';
    return out;
}

SheetWriter::SheetWriter(std::size_t count, TextSink sink)
    : count_(count), columns_(ColumnsFor(count)), sink_(std::move(sink)) {}

std::string SheetWriter::Head() const {
    const std::size_t rows = (std::max<std::size_t>(count_, 1) + columns_ - 1) / columns_;
    const double width = static_cast<double>(columns_) * (kSheetCard.width + kGap) + kGap;
    const double height = static_cast<double>(rows) * (kSheetCard.Height() + kGap) + kGap;
    std::string out(kXmlHead);
    SvgWriter svg(out);
    OpenDocument(svg, width, height, std::to_wstring(count_) + (count_ == 1 ? L" symbol" : L" symbols"));
    svg.Open("rect").Set("width", width).Set("height", height).Set("fill", kSheetColor).Close();
    return out; // the document stays open
}

bool SheetWriter::Add(TylModel::SymbolDefinition& symbol) {
    const ResolvedSymbol resolved = Resolve(symbol);
    PictureStyle style;
    style.width = kSheetCard.width;
    style.height = kSheetCard.picture;
    style.idPrefix = 's';
    style.idPrefix += std::to_string(added_);
    std::string out = added_ == 0 ? Head() : std::string();
    const double x = static_cast<double>(added_ % columns_) * (kSheetCard.width + kGap) + kGap;
    const std::size_t row = added_ / columns_;
    const double y = static_cast<double>(row) * (kSheetCard.Height() + kGap) + kGap;
    SvgWriter svg(out);
    // An svg element of its own cuts off what reaches over the card.
    svg.Text("\n").Open("svg").Set("x", x).Set("y", y);
    svg.Set("width", kSheetCard.width).Set("height", kSheetCard.Height());
    CardDrawing(svg, kSheetCard, resolved, style).Draw(out);
    svg.Close();
    ++added_;
    return sink_(out);
}

bool SheetWriter::Finish() {
    return (added_ > 0 || sink_(Head())) && sink_("\n</svg>\n");
}

} // namespace preview
