// How long linetype files take from bytes to symbols, against the time that their numbers alone take.
//
// The floor reads every number of the file with std::from_chars and formats every number of the symbols'
// geometry with std::to_chars, and does nothing else: no lines, no names, no objects. Each time is the best
// of several runs.
#include "StyleConversion/linetype/LineConverter.h"
#include "StyleConversion/platform/Files.h"

#include <charconv>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Symbols = std::vector<TylModel::SymbolDefinition*>;

constexpr int kRuns = 7;
constexpr int kSignificantDigits = 15;
constexpr unsigned kSeed = 20240607;

struct Pattern {
    std::vector<std::string> numbers; // as the file has them
    std::vector<double> values;
};

// Two to eight dashes, gaps and dots in turn, with one to three decimals.
std::vector<Pattern> MakePatterns(std::size_t count) {
    std::minstd_rand random(kSeed);
    std::vector<Pattern> patterns(count);
    for (Pattern& pattern : patterns) {
        const std::size_t pairs = 1 + random() % 4;
        for (std::size_t i = 0; i < 2 * pairs; ++i) {
            const bool gap = i % 2 == 1;
            const auto thousandths =
                static_cast<unsigned>(!gap && random() % 4 == 0 ? 0 : 1 + random() % 9999);
            char digits[16];
            std::snprintf(digits, sizeof digits, "%s%u.%03u", gap ? "-" : "", thousandths / 1000,
                          thousandths % 1000);
            pattern.numbers.emplace_back(digits);
            double value = 0.0;
            std::from_chars(digits, digits + pattern.numbers.back().size(), value);
            pattern.values.push_back(value);
        }
    }
    return patterns;
}

std::string MakeFile(const std::vector<Pattern>& patterns, const std::string& complexElements) {
    std::string text = ";; Linetypes for measuring\n";
    for (std::size_t i = 0; i < patterns.size(); ++i) {
        text += "*LINETYPE_" + std::to_string(i) + ",Linetype number " + std::to_string(i) + " __ . __\nA";
        for (const std::string& number : patterns[i].numbers) {
            text += "," + number;
        }
        text += complexElements + "\n\n";
    }
    return text;
}

// Of several runs of `work`, each followed by `tidy`, whose time does not count.
template <class Work, class Tidy>
double BestMilliseconds(Work work, Tidy tidy) {
    double best = 1e300;
    for (int run = 0; run < kRuns; ++run) {
        const Clock::time_point start = Clock::now();
        work();
        const std::chrono::duration<double, std::milli> taken = Clock::now() - start;
        best = taken.count() < best ? taken.count() : best;
        tidy();
    }
    return best;
}

class Floor {
public:
    // Reads and formats; keeps a sum so that nothing is left out.
    void Run(const std::vector<Pattern>& patterns) {
        for (const Pattern& pattern : patterns) {
            double position = 0.0;
            for (const std::string& number : pattern.numbers) {
                double length = 0.0;
                std::from_chars(number.data(), number.data() + number.size(), length);
                if (length >= 0.0) {
                    Format(position);
                    Format(0.0);
                    position += length;
                    Format(position);
                    Format(0.0);
                } else {
                    position -= length;
                }
            }
            Format(position);
        }
    }

    std::size_t sum() const { return sum_; }

private:
    void Format(double value) {
        char digits[32];
        sum_ += static_cast<std::size_t>(std::to_chars(digits, digits + sizeof digits, value,
                                                       std::chars_format::general, kSignificantDigits)
                                             .ptr -
                                         digits);
    }

    std::size_t sum_ = 0;
};

void Delete(Symbols* symbols) {
    if (symbols == nullptr) {
        return;
    }
    for (TylModel::SymbolDefinition* const symbol : *symbols) {
        delete symbol;
    }
    delete symbols;
}

class TemporaryFile {
public:
    explicit TemporaryFile(const std::string& bytes)
        : path_(std::filesystem::temp_directory_path() /
                ("linetype-benchmark-" + std::to_string(std::random_device()()) + ".lin")) {
        std::FILE* const file = std::fopen(path_.string().c_str(), "wb");
        std::fwrite(bytes.data(), 1, bytes.size(), file);
        std::fclose(file);
    }
    ~TemporaryFile() { std::filesystem::remove(path_); }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    std::wstring path() const { return platform::PathFromBytes(path_.string()); }

private:
    std::filesystem::path path_;
};

// One style, STANDARD, in one font of two letters, and one library with one shape.
class Services : public LineConverter::IGetFontInfo, public LineConverter::IGetFile {
public:
    bool GetFontInfoFromStyle(const wchar_t* /*styleName*/, LineConverter::FontInfo& info) override {
        info.fileName = L"FONT.SHX";
        return true;
    }

    std::FILE* GetFile(const wchar_t* name, const wchar_t* /*extension*/) override {
        using namespace std::string_literals;
        // A letter of four strokes; a square.
        const std::string font = "Vorlanx-86 shapes 1.0\r\n\x1A"s + "\0\0\0\0\3\0"s + "\0\0\7\0"s +
                                 "A\0\x07\0"s + "B\0\x07\0"s + "F\0\x08\2\0\0\0"s + "A\0\x24\x20\x2C\x28\0"s +
                                 "B\0\x24\x20\x2C\x28\0"s + "EOF";
        const std::string shapes = "Vorlanx-86 shapes 1.0\r\n\x1A"s + "\0\0\0\0\1\0"s + "\x82\0\x0A\0"s +
                                   "MARK\0\x14\x10\x1C\x18\0"s + "EOF";
        const std::string& bytes = name[0] == L'F' ? font : shapes;
        std::FILE* const stream = std::tmpfile();
        std::fwrite(bytes.data(), 1, bytes.size(), stream);
        std::rewind(stream);
        return stream;
    }
};

// Makes the same objects anew.
TylModel::SymbolDefinition* Copy(const TylModel::SimpleSymbolDefinition& from) {
    auto copy = std::make_unique<TylModel::SimpleSymbolDefinition>();
    copy->SetName(from.GetName());
    copy->SetDescription(from.GetDescription());
    for (std::int32_t i = 0; i < from.GetGraphics().GetCount(); ++i) {
        const auto& path = static_cast<const TylModel::Path&>(*from.GetGraphics().GetAt(i));
        auto element = std::make_unique<TylModel::Path>();
        element->SetGeometry(path.GetGeometry());
        element->SetLineColor(path.GetLineColor());
        element->SetLineWeight(path.GetLineWeight());
        element->SetLineWeightScalable(path.GetLineWeightScalable());
        copy->GetGraphics().Adopt(element.release());
    }
    for (std::int32_t i = 0; i < from.GetParameterDefinition().GetCount(); ++i) {
        const TylModel::Parameter& parameter = *from.GetParameterDefinition().GetAt(i);
        auto element = std::make_unique<TylModel::Parameter>();
        element->SetIdentifier(parameter.GetIdentifier());
        element->SetDisplayName(parameter.GetDisplayName());
        element->SetDescription(parameter.GetDescription());
        element->SetDefaultValue(parameter.GetDefaultValue());
        element->SetDataType(parameter.GetDataType());
        copy->GetParameterDefinition().Adopt(element.release());
    }
    auto usage = std::make_unique<TylModel::LineUsage>();
    usage->SetRepeat(from.GetLineUsage()->GetRepeat());
    copy->AdoptLineUsage(usage.release());
    return copy.release();
}

bool MeasureSimple(std::size_t count) {
    const std::vector<Pattern> patterns = MakePatterns(count);
    const std::string bytes = MakeFile(patterns, "");
    const TemporaryFile file(bytes);
    Floor floor;
    const double floorTime = BestMilliseconds([&] { floor.Run(patterns); }, [] {});
    Symbols* symbols = nullptr;
    const double time = BestMilliseconds([&] { symbols = LineConverter::Convert(file.path().c_str(), 1.0); },
                                         [&] { Delete(std::exchange(symbols, nullptr)); });
    symbols = LineConverter::Convert(file.path().c_str(), 1.0);
    if (symbols == nullptr || symbols->size() != count || floor.sum() == 0) {
        return false;
    }
    auto* copies = new Symbols();
    const double modelTime = BestMilliseconds(
        [&] {
            for (TylModel::SymbolDefinition* const symbol : *symbols) {
                copies->push_back(Copy(static_cast<TylModel::SimpleSymbolDefinition&>(*symbol)));
            }
        },
        [&] { Delete(std::exchange(copies, new Symbols())); });
    Delete(copies);
    Delete(symbols);
    std::printf("simple  %7zu linetypes %7.0f kB %8.2f ms %5.2f us each; numbers %7.2f ms, ratio %5.2f; "
                "model objects %7.2f ms, the rest %7.2f ms, ratio %5.2f\n",
                count, static_cast<double>(bytes.size()) / 1000, time,
                time * 1000 / static_cast<double>(count), floorTime, time / floorTime, modelTime,
                time - modelTime, (time - modelTime) / floorTime);
    return true;
}

bool MeasureComplex(std::size_t count) {
    const std::vector<Pattern> patterns = MakePatterns(count);
    const std::string bytes =
        MakeFile(patterns, ",[MARK,marks.shx,S=.1,X=.05],-.2,[\"AB\",STANDARD,S=.1,R=0,X=-.1,Y=-.05],-.2");
    const TemporaryFile file(bytes);
    Services services;
    Symbols* symbols = nullptr;
    bool converted = true;
    const double time = BestMilliseconds(
        [&] { symbols = LineConverter::Convert(file.path().c_str(), &services, &services, 1.0); },
        [&] {
            converted = converted && symbols != nullptr && symbols->size() == count;
            Delete(std::exchange(symbols, nullptr));
        });
    std::printf("complex %7zu linetypes %7.0f kB %8.2f ms %5.2f us each\n", count,
                static_cast<double>(bytes.size()) / 1000, time, time * 1000 / static_cast<double>(count));
    return converted;
}

} // namespace

int main() {
    std::printf("Best of %d runs\n", kRuns);
    bool good = true;
    for (const std::size_t count : {12500, 25000, 50000, 100000}) {
        good = MeasureSimple(count) && good;
    }
    for (const std::size_t count : {2500, 5000, 10000}) {
        good = MeasureComplex(count) && good;
    }
    if (!good) {
        std::fputs("a conversion failed\n", stderr);
    }
    return good ? 0 : 1;
}
