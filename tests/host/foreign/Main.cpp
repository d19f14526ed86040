// Conversions by the foreign pair:
//   foreign_host RECORDING EXAMPLES OUTPUT
#include "tests/host/Conversions.h"
#include "tests/host/RecordedDrawing.h"
#include "tests/support/ReadSymbol.h"

#include <cstdio>
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>

namespace {

class ForeignServices final : public OxDbHostApplicationServices {
public:
    ForeignServices(std::filesystem::path shapes, OxDbDatabase& current)
        : shapes_(std::move(shapes)), current_(current) {}
    bool lookFor(wchar_t* path, std::size_t room, const wchar_t* name, int hint) override {
        return hint == 2 && FindShape(shapes_, name, path, room);
    }
    OxDbDatabase* currentDrawing() override { return &current_; }

private:
    std::filesystem::path shapes_;
    OxDbDatabase& current_;
};

} // namespace

static long CountOpen() {
    return OxDbObject::CountOpen() + Counting::Living() + CountTexts();
}

int main(int argc, char** argv) {
    if (argc != 4) {
        return 2;
    }
    std::ifstream recording(argv[1], std::ios::binary);
    const std::filesystem::path examples(argv[2]);
    std::ofstream out(argv[3], std::ios::binary);
    std::vector<RecordedDrawing> drawings = Read(recording);
    // The first one has the text styles of the linetype files.
    OxDbDatabase styles(drawings.at(0));
    ForeignServices services(examples / "shapes", styles);
    SetServices(&services);
    for (RecordedDrawing& drawing : drawings) {
        out << "drawing\n";
        OxDbDatabase database(drawing);
        ConvertBlocks(database, L"Ignored", out);
    }
    ConvertLinetypes(examples / "linetypes", examples / "shapes", &services, out);
    ConvertPatterns(examples / "patterns", out);
    if (CountModelObjects() != 0 || CountOpen() != 0) {
        std::fprintf(stderr, "%ld objects left, %ld open\n", CountModelObjects(), CountOpen());
        return 1;
    }
    return out ? 0 : 1;
}
