#include "styles/SpriteSheet.h"

#include "styles/Limits.h"

#include <algorithm>
#include <numeric>

namespace styles {

SpriteSheet PlaceOnSheet(std::vector<SheetPicture> pictures) {
    SpriteSheet sheet;
    std::vector<std::size_t> order(pictures.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t first, std::size_t second) {
        return pictures[first].height > pictures[second].height;
    });
    int x = 0;
    int top = 0;
    int bottom = 0;
    for (const std::size_t at : order) {
        SheetPicture& picture = pictures[at];
        if (x > 0 && x + picture.width > kSheetRow) {
            x = 0;
            top = bottom;
        }
        picture.x = x;
        picture.y = top;
        x += picture.width;
        bottom = std::max(bottom, top + picture.height);
        sheet.width = std::max(sheet.width, x);
    }
    sheet.height = std::max(sheet.height, bottom);
    sheet.pictures = std::move(pictures);
    return sheet;
}

std::string SheetIndex(const SpriteSheet& sheet, int ratio) {
    const auto number = [ratio](int pixels) { return std::to_string(pixels * ratio); };
    std::string text = "{";
    for (const SheetPicture& picture : sheet.pictures) {
        text += text.size() > 1 ? ",\n" : "\n";
        text += "  \"" + picture.name + R"(": {"x": )" + number(picture.x) + R"(, "y": )" +
                number(picture.y) + R"(, "width": )" + number(picture.width) + R"(, "height": )" +
                number(picture.height) + R"(, "pixelRatio": )" + std::to_string(ratio) + "}";
    }
    return text + (sheet.pictures.empty() ? "}\n" : "\n}\n");
}

} // namespace styles
