// The example linetypes against their stored conversions, which derive_golden.py writes without this library.
#include "ConversionFixture.h"

#include "StyleConversion/linetype/CLineConverterDep.h"

#include "drawing/database/HostServices.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace linetypetest {
namespace {

std::string ReadText(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    EXPECT_TRUE(stream.good()) << path;
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

class ExampleLinetypes : public ConversionFixture {
protected:
    // With the styles of examples/linetypes/styles.json.
    ExampleLinetypes() {
        styles.styles.clear();
        styles.AddShx(L"PIPES", L"single-stroke.shx").textSize = 2;
        LineConverter::FontInfo& labels = styles.AddTrueType(L"LABELS", L"Arial");
        labels.textSize = 2.5;
        labels.italic = true;
        files.files[L"MARKS.SHX"] = ReadText(std::filesystem::path(EXAMPLES) / "shapes/marks.shx");
        files.files[L"SINGLE-STROKE.SHX"] =
            ReadText(std::filesystem::path(EXAMPLES) / "shapes/single-stroke.shx");
    }

    void ExpectStored(const std::string& name) {
        EXPECT_EQ(Convert(ReadText(std::filesystem::path(EXAMPLES) / ("linetypes/" + name + ".lin"))),
                  ReadText(std::filesystem::path(GOLDEN_LINETYPES) / (name + ".txt")));
    }
};

TEST_F(ExampleLinetypes, SimpleOnesConvertToTheirStoredSymbols) {
    ExpectStored("simple");
}

TEST_F(ExampleLinetypes, ComplexOnesConvertToTheirStoredSymbols) {
    ExpectStored("complex");
}

} // namespace
} // namespace linetypetest
