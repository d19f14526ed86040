// Conversions by our own models, and a recording of the drawings for another pair:
//   own_host RECORDING EXAMPLES OUTPUT
#include "RandomDrawing.h"
#include "Recorder.h"
#include "tests/host/Conversions.h"

#include "documents/DrawingReader.h"
#include "drawing/database/HostServices.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <memory>

namespace {

constexpr std::uint32_t kRandomDrawings = 100;

std::unique_ptr<drawing::Database> ReadDrawing(const std::filesystem::path& path) {
    std::FILE* const file = std::fopen(path.string().c_str(), "rb");
    if (file == nullptr) {
        return nullptr;
    }
    documents::DrawingError fault;
    std::unique_ptr<drawing::Database> drawing = documents::ReadDrawing(file, fault);
    std::fclose(file);
    return drawing;
}

// Looks for shape files as the other host does.
class OwnServices final : public OxDbHostApplicationServices {
public:
    explicit OwnServices(std::filesystem::path shapes) : shapes_(std::move(shapes)) {}
    Oxsys::ErrorStatus findFile(wchar_t* path, int length, const wchar_t* name, OxDbDatabase* /*database*/,
                                FindFileHint hint) override {
        return hint == kCompiledShapeFile && FindShape(shapes_, name, path, static_cast<std::size_t>(length))
                   ? Oxsys::eOk
                   : Oxsys::eFileNotFound;
    }

private:
    std::filesystem::path shapes_;
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        return 2;
    }
    const std::filesystem::path examples(argv[2]);
    std::ofstream out(argv[3], std::ios::binary);
    OwnServices services(examples / "shapes");
    oxdbSetHostApplicationServices(&services);

    std::vector<std::unique_ptr<drawing::Database>> drawings;
    drawings.push_back(ReadDrawing(examples / "linetypes" / "styles.json"));
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(examples / "drawings")) {
        if (entry.path().extension() == ".json") {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    for (const std::filesystem::path& file : files) {
        drawings.push_back(ReadDrawing(file));
    }
    for (std::uint32_t seed = 0; seed < kRandomDrawings; ++seed) {
        drawings.push_back(RandomDrawing(seed));
    }

    std::vector<RecordedDrawing> recorded;
    for (const std::unique_ptr<drawing::Database>& drawing : drawings) {
        if (drawing == nullptr) {
            std::fputs("an example cannot be read\n", stderr);
            return 1;
        }
        recorded.push_back(Record(*drawing, {L"PIPES", L"LABELS"}));
        out << "drawing\n";
        ConvertBlocks(*drawing, L"Ignored", out);
        if (!drawing->IsEverythingClosed()) {
            std::fputs("something is left open\n", stderr);
            return 1;
        }
    }
    services.setWorkingDatabase(drawings.front().get());
    ConvertLinetypes(examples / "linetypes", examples / "shapes", &services, out);
    ConvertPatterns(examples / "patterns", out);
    std::ofstream recording(argv[1], std::ios::binary);
    Write(recording, recorded);
    return out && recording ? 0 : 1;
}
