// A drawing document to symbols: by the converter of hosts, and by the tool's whole job.
#include "conversions/Blocks.h"
#include "documents/DrawingReader.h"
#include "drawing/database/HostServices.h"
#include "fuzz/Documents.h"
#include "fuzz/Fuzzing.h"
#include "fuzz/Inputs.h"
#include "fuzz/Jobs.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <string>

namespace {

using fuzzing::Require;
using Json = nlohmann::json;

// Only shape files that load are found: a host is to give out no others.
bool IsFound(const std::wstring& shapeFile) {
    return shapeFile == L"marks.shx" || shapeFile == L"single-stroke.shx";
}

class Services : public drawing::HostServices {
public:
    Services() : HostServices({ShapesFolder()}) {}

    Oxsys::ErrorStatus findFile(wchar_t* path, int pathLength, const wchar_t* fileName,
                                OxDbDatabase* database, FindFileHint hint) override {
        const std::wstring name = fileName == nullptr ? L"" : fileName;
        return IsFound(name) ? HostServices::findFile(path, pathLength, fileName, database, hint)
                             : Oxsys::eFileNotFound;
    }

private:
    static std::wstring ShapesFolder() {
        const std::string folder = EXAMPLE_SHAPES_FOLDER;
        return {folder.begin(), folder.end()};
    }
};

// The same files for a job.
class Front : public conversions::Front {
public:
    conversions::FoundFile FindShapeFile(const std::wstring& name) override {
        if (!IsFound(name)) {
            return {};
        }
        const std::string file = EXAMPLE_SHAPES_FOLDER "/" + std::string(name.begin(), name.end());
        std::ifstream stream(file, std::ios::binary);
        return {true, file, "", {std::istreambuf_iterator<char>(stream), {}}};
    }
};

// The smallest length that anything is repeated by, and the largest number of the document.
struct Sizes {
    double largest = 0.0;
    double smallestRepeat = 1e300;
    bool repeats = false;
};

void Measure(const Json& value, bool repeated, Sizes& sizes) {
    if (value.is_number()) {
        const double magnitude = std::fabs(value.get<double>());
        sizes.largest = std::max(sizes.largest, magnitude);
        if (repeated && magnitude > 0.0) {
            sizes.smallestRepeat = std::min(sizes.smallestRepeat, magnitude);
        }
    }
    if (value.is_array()) {
        for (const Json& item : value) {
            Measure(item, repeated, sizes);
        }
    } else if (value.is_object()) {
        for (const auto& [key, part] : value.items()) {
            const bool repeats = key == "dashes" || key == "pattern" || key == "patternLength";
            sizes.repeats = sizes.repeats || repeats;
            if (key != "shapeNumber" && key != "color" && key != "lineWeight") {
                Measure(part, repeated || repeats, sizes);
            }
        }
    }
}

// Lines with very many dashes and hatches of very many lines are what drawings may ask for and no finding.
bool TakesLittleWork(std::string_view text) {
    const Json document = Json::parse(text, nullptr, false);
    Sizes sizes;
    if (document.is_structured()) {
        Measure(document, false, sizes);
    }
    // Bulges and angles multiply lengths.
    constexpr double kMostRepetitions = 1e5;
    return !sizes.repeats ||
           sizes.largest * std::max(1.0, sizes.largest) / sizes.smallestRepeat <= kMostRepetitions;
}

std::unique_ptr<drawing::Database> Read(std::string_view text, std::string& fault) {
    documents::DrawingError found;
    auto database = documents::ReadDrawing(text, found);
    Require((database == nullptr) == !found.Text().empty(), "a fault with every refusal");
    fault = found.Text();
    return database;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Services services;
    oxdbSetHostApplicationServices(&services);
    const std::string_view text = fuzzing::Text(data, size);
    if (!TakesLittleWork(text)) {
        return 0;
    }
    std::string fault;
    const auto database = Read(text, fault);
    if (!database) {
        const fuzzing::Stream file = fuzzing::OpenBytes(text);
        documents::DrawingError again;
        Require(!documents::ReadDrawing(file.get(), again) && again.Text() == fault,
                "a file to be refused as its text is");
        return 0;
    }
    database->LimitHatchLines(100000);
    const fuzzing::Symbols symbols = fuzzing::ConvertBlocks(*database);
    const std::string document = fuzzing::TextOf(symbols);
    fuzzing::RequireDocument(document, symbols.size());
    Require(fuzzing::TextOf(fuzzing::ConvertBlocks(*database)) == document, "the same document twice");
    if (database->HatchesTooDense() == 0) {
        Front front;
        const std::string fromJob =
            fuzzing::DocumentOf(conversions::ConvertBlocks(fuzzing::InputOf(text), {}, front));
        Require(fromJob == (symbols.empty() ? "" : document), "the same document from the whole job");
    }
    return 0;
}
