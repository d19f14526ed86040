// The example patterns against their stored conversions, which derive_golden.py writes without this library.
#include "PatternTestSupport.h"

#include "StyleConversion/pattern/PatternFile.h"

#include <fstream>
#include <iterator>
#include <set>

namespace {

class ExamplePatterns : public PatternTest {};

std::string ReadText(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    EXPECT_TRUE(stream.good()) << path;
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::set<std::filesystem::path> Examples() {
    std::set<std::filesystem::path> examples;
    for (const auto& entry : std::filesystem::directory_iterator(EXAMPLE_PATTERNS)) {
        if (entry.path().extension() == ".pat") {
            examples.insert(entry.path());
        }
    }
    return examples;
}

TEST_F(ExamplePatterns, ConvertToTheirStoredSymbols) {
    const std::set<std::filesystem::path> examples = Examples();
    EXPECT_GE(examples.size(), 6U);
    for (const std::filesystem::path& example : examples) {
        std::string described;
        for (const Symbol& symbol : ConvertText(ReadText(example))) {
            described += Describe(*symbol);
        }
        const std::filesystem::path golden =
            std::filesystem::path(GOLDEN_PATTERNS) / (example.stem().string() + ".txt");
        EXPECT_EQ(described, ReadText(golden)) << example;
    }
}

TEST_F(ExamplePatterns, ReachEveryKindOfTile) {
    bool rotated = false;
    bool stacked = false;
    bool none = false;
    bool compound = false;
    for (const std::filesystem::path& example : Examples()) {
        const std::string text = ReadText(example);
        pattern::PatternFile file;
        pattern::ParsePatternFile(text, file);
        for (const auto& [name, lines] : file.patterns) {
            for (const pattern::PatternLine& line : lines) {
                rotated = rotated || line.rotatedTile;
                stacked = stacked || line.rowCount > 1;
                none = none || line.rowCount < 0;
            }
        }
        for (const Symbol& symbol : ConvertText(text)) {
            compound = compound || SimpleDefinitions(symbol).size() > 1;
        }
    }
    EXPECT_TRUE(rotated);
    EXPECT_TRUE(stacked);
    EXPECT_TRUE(none);
    EXPECT_TRUE(compound);
}

TEST_F(ExamplePatterns, SayWhatTheyShow) {
    for (const std::filesystem::path& example : Examples()) {
        EXPECT_EQ(ReadText(example).front(), ';') << example;
    }
}

} // namespace
