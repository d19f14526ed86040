#include "styleconv/commands/StyleFolder.h"

#include "diagnostics/ShownText.h"
#include "styleconv/files/OutputFile.h"
#include "styleconv/process/Messages.h"
#include "styleconv/process/Rasteriser.h"
#include "styles/SpriteSheet.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace styleconv {
namespace {

using Pictures = std::vector<conversions::StylePicture>;

styles::SpriteSheet SheetOf(const Pictures& pictures) {
    std::vector<styles::SheetPicture> sizes;
    sizes.reserve(pictures.size());
    for (const conversions::StylePicture& picture : pictures) {
        sizes.push_back({picture.name, picture.width, picture.height});
    }
    return styles::PlaceOnSheet(std::move(sizes));
}

Raster DrawSheet(const styles::SpriteSheet& sheet, const Pictures& pictures, int ratio) {
    std::vector<PlacedPicture> placed;
    placed.reserve(pictures.size());
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        const styles::SheetPicture& place = sheet.pictures[i];
        placed.push_back(
            {pictures[i].svg, place.x * ratio, place.y * ratio, place.width * ratio, place.height * ratio});
    }
    return DrawPictures(placed, sheet.width * ratio, sheet.height * ratio);
}

struct FolderFile {
    std::string name; // below the folder, with / before it
    std::string bytes;
};

// The sheet and its index, in both sizes. What cannot be made is told.
std::vector<FolderFile> SheetFiles(const std::string& folder, const Pictures& pictures) {
    const styles::SpriteSheet sheet = SheetOf(pictures);
    std::vector<FolderFile> files;
    for (const auto& [name, ratio] : {std::pair("/sprite", 1), std::pair("/sprite@2x", 2)}) {
        Raster raster = DrawSheet(sheet, pictures, ratio);
        if (raster.problem.empty()) {
            files.push_back({std::string(name) + ".png", std::move(raster.png)});
            files.push_back({std::string(name) + ".json", styles::SheetIndex(sheet, ratio)});
        } else {
            SayLine(diagnostics::ShownText(folder + name) + ".png: note: not written: " + raster.problem +
                    "; a sprite builder makes it of the folder sprite");
        }
    }
    return files;
}

} // namespace

ExitStatus WriteStyleFolder(const std::string& folder, const conversions::StyleJob& styles,
                            const std::function<bool(const conversions::TextSink& sink)>& write) {
    std::string style;
    if (!write([&](std::string_view text) {
            style += text;
            return true;
        })) {
        return kInputFault;
    }
    // All that takes time comes before the first file.
    const std::vector<FolderFile> sheet = SheetFiles(folder, styles.pictures);
    const auto writePicture = [&](const conversions::StylePicture& picture) {
        return WriteWholeFile(folder + "/sprite/" + picture.name + ".svg", picture.svg);
    };
    const auto writeFile = [&](const FolderFile& file) {
        return WriteWholeFile(folder + file.name, file.bytes);
    };
    return MakeFolder(folder + "/sprite") &&
                   std::all_of(styles.pictures.begin(), styles.pictures.end(), writePicture) &&
                   std::all_of(sheet.begin(), sheet.end(), writeFile) &&
                   WriteWholeFile(folder + "/style.json", style)
               ? kDone
               : kInputFault;
}

} // namespace styleconv
