// How long pattern conversion takes, against a floor that only formats the same numbers.
#include "GeneratedPatterns.h"

#include "StyleConversion/encoding/NumberReader.h"
#include "StyleConversion/pattern/AreaSymbol.h"
#include "StyleConversion/pattern/FaithfulSymbol.h"
#include "StyleConversion/pattern/PatternConverter.h"
#include "StyleConversion/pattern/PatternFile.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace {

using Symbols = std::vector<TylModel::SymbolDefinition*>;

// A generated file on disk, deleted with this object.
class PatternFileOnDisk {
public:
    explicit PatternFileOnDisk(std::size_t patterns)
        : path_(std::filesystem::temp_directory_path() /
                ("pattern-benchmark-" +
                 std::to_string(std::chrono::steady_clock::now().time_since_epoch().count()) + ".pat")) {
        std::ofstream(path_, std::ios::binary) << GeneratePatterns(patterns);
    }
    ~PatternFileOnDisk() {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }
    PatternFileOnDisk(const PatternFileOnDisk&) = delete;
    PatternFileOnDisk& operator=(const PatternFileOnDisk&) = delete;

    std::wstring GetName() const { return path_.wstring(); }

private:
    std::filesystem::path path_;
};

void Delete(Symbols& symbols) {
    for (TylModel::SymbolDefinition* const symbol : symbols) {
        delete symbol;
    }
}

// The processor's time, which other programs on the machine lengthen less than the clock's.
class Stopwatch {
public:
    double GetSeconds() const { return static_cast<double>(std::clock() - start_) / CLOCKS_PER_SEC; }

private:
    std::clock_t start_ = std::clock();
};

// From bytes on disk to symbol objects; deleting them is not counted.
void ConvertPatterns(benchmark::State& state) {
    const PatternFileOnDisk file(static_cast<std::size_t>(state.range(0)));
    while (state.KeepRunning()) {
        Symbols symbols;
        const Stopwatch stopwatch;
        auto converter = std::make_unique<PatternConverter>(file.GetName());
        converter->ConvertAll(symbols);
        state.SetIterationTime(stopwatch.GetSeconds());
        Delete(symbols);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

// Collects every number in the expression strings of a symbol.
class NumberCollector : public TylModel::ISymbolDefinitionVisitor, public TylModel::IGraphicElementVisitor {
public:
    void VisitSimpleSymbolDefinition(TylModel::SimpleSymbolDefinition& definition) override {
        const TylModel::AreaUsage& usage = *definition.GetAreaUsage();
        Collect(usage.GetAngle());
        Collect(usage.GetRepeatX());
        Collect(usage.GetRepeatY());
        for (int i = 0; i < definition.GetGraphics().GetCount(); ++i) {
            AcceptVisitor(*definition.GetGraphics().GetAt(i), *this);
        }
    }
    void VisitCompoundSymbolDefinition(TylModel::CompoundSymbolDefinition& definition) override {
        for (int i = 0; i < definition.GetSymbols().GetCount(); ++i) {
            VisitSimpleSymbolDefinition(*definition.GetSymbols().GetAt(i)->GetSymbolDefinition());
        }
    }
    void VisitPath(TylModel::Path& path) override { Collect(path.GetGeometry()); }
    void VisitText(TylModel::Text& /*text*/) override {}

    std::vector<double> numbers;

private:
    void Collect(const std::wstring& expression) {
        const std::string text(expression.begin(), expression.end());
        for (std::size_t start = 0; start < text.size();) {
            const encoding::NumberReading reading =
                encoding::ReadNumber(std::string_view(text).substr(start));
            if (reading.used > 0) {
                numbers.push_back(reading.value);
            }
            start += reading.used > 0 ? reading.used : 1;
        }
    }
};

std::vector<double> CollectNumbers(std::size_t patterns) {
    const PatternFileOnDisk file(patterns);
    PatternConverter converter(file.GetName());
    Symbols symbols;
    converter.ConvertAll(symbols);
    NumberCollector collector;
    for (TylModel::SymbolDefinition* const symbol : symbols) {
        symbol->AcceptVisitor(collector);
    }
    Delete(symbols);
    return collector.numbers;
}

// The numbers that the conversion writes, by std::to_chars into one buffer, and nothing else.
void FormatNumbers(benchmark::State& state) {
    const std::vector<double> numbers = CollectNumbers(static_cast<std::size_t>(state.range(0)));
    std::vector<char> buffer(numbers.size() * 32);
    while (state.KeepRunning()) {
        const Stopwatch stopwatch;
        char* end = buffer.data();
        for (const double number : numbers) {
            end = std::to_chars(end, buffer.data() + buffer.size(), number, std::chars_format::fixed, 5).ptr;
        }
        benchmark::DoNotOptimize(end);
        benchmark::ClobberMemory();
        state.SetIterationTime(stopwatch.GetSeconds());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.counters["numbers"] = static_cast<double>(numbers.size());
}

// The example patterns: all, or those of which strict symbols lose no family.
class Examples {
public:
    explicit Examples(bool onlyWhole) {
        for (const auto& entry : std::filesystem::directory_iterator(EXAMPLE_PATTERNS)) {
            if (entry.path().extension() == ".pat") {
                std::ostringstream text;
                text << std::ifstream(entry.path(), std::ios::binary).rdbuf();
                if (!onlyWhole || IsWhole(text.str())) {
                    texts_.push_back(text.str());
                }
            }
        }
    }

    void Convert(encoding::Fidelity fidelity) const {
        pattern::PatternPolicy policy;
        policy.fidelity = fidelity;
        for (const std::string& text : texts_) {
            pattern::PatternFile file;
            ParsePatternFile(text, file, nullptr, policy);
            for (auto& [name, families] : file.patterns) {
                benchmark::DoNotOptimize(
                    fidelity == encoding::Fidelity::kStrict
                        ? pattern::BuildAreaSymbol(name, families)
                        : BuildFaithfulSymbol(name, families, pattern::FindFaithfulTiles(families)));
            }
        }
    }

private:
    static bool IsWhole(const std::string& text) {
        pattern::PatternFile file;
        pattern::ParsePatternFile(text, file);
        return std::all_of(file.patterns.begin(), file.patterns.end(), [](const auto& pattern) {
            return std::all_of(pattern.second.begin(), pattern.second.end(),
                               [](const auto& family) { return family.rowCount >= 0; });
        });
    }

    std::vector<std::string> texts_;
};

void ConvertExamples(benchmark::State& state) {
    constexpr int kTimes = 100;
    const Examples examples(state.range(1) != 0);
    const auto fidelity = static_cast<encoding::Fidelity>(state.range(0));
    while (state.KeepRunning()) {
        const Stopwatch stopwatch;
        for (int i = 0; i < kTimes; ++i) {
            examples.Convert(fidelity);
        }
        state.SetIterationTime(stopwatch.GetSeconds());
    }
}

// Of several runs the fastest is the one that other programs disturbed least.
double Fastest(const std::vector<double>& times) {
    return *std::min_element(times.begin(), times.end());
}

constexpr int kRepetitions = 7;

BENCHMARK(ConvertPatterns)
    ->Arg(1000)
    ->Arg(10000)
    ->Arg(100000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(kRepetitions)
    ->ReportAggregatesOnly()
    ->ComputeStatistics("fastest", Fastest);
BENCHMARK(FormatNumbers)
    ->Arg(10000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(kRepetitions)
    ->ReportAggregatesOnly()
    ->ComputeStatistics("fastest", Fastest);
BENCHMARK(ConvertExamples)
    ->Args({static_cast<int>(encoding::Fidelity::kStrict), 0})
    ->Args({static_cast<int>(encoding::Fidelity::kFaithful), 0})
    ->Args({static_cast<int>(encoding::Fidelity::kStrict), 1})
    ->Args({static_cast<int>(encoding::Fidelity::kFaithful), 1})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(kRepetitions)
    ->ReportAggregatesOnly()
    ->ComputeStatistics("fastest", Fastest);

// Shows the runs and keeps the fastest, in milliseconds.
class FastestReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.aggregate_name == "fastest") {
                fastest_[run.run_name.function_name + "/" + run.run_name.args] = run.GetAdjustedRealTime();
            }
        }
    }

    double GetFastest(const std::string& name) const {
        const auto found = fastest_.find(name);
        return found == fastest_.end() ? 0.0 : found->second;
    }

private:
    std::map<std::string, double> fastest_;
};

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    FastestReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    const double thousand = reporter.GetFastest("ConvertPatterns/1000");
    const double tenThousand = reporter.GetFastest("ConvertPatterns/10000");
    const double hundredThousand = reporter.GetFastest("ConvertPatterns/100000");
    const double floor = reporter.GetFastest("FormatNumbers/10000");
    if (thousand > 0 && tenThousand > 0 && hundredThousand > 0 && floor > 0) {
        std::printf("converting / formatting alone, 10,000 patterns: %.2f\n", tenThousand / floor);
        std::printf("growth of the time: x%.1f from 1,000 to 10,000 patterns, x%.1f from 10,000 to 100,000\n",
                    tenThousand / thousand, hundredThousand / tenThousand);
    }
    for (const char* const which : {"/0", "/1"}) {
        const double strict = reporter.GetFastest(std::string("ConvertExamples/0") + which);
        const double faithful = reporter.GetFastest(std::string("ConvertExamples/1") + which);
        if (strict > 0 && faithful > 0) {
            std::printf("converting the examples%s faithfully / strictly: %.2f\n",
                        which[1] == '1' ? " that are whole" : "", faithful / strict);
        }
    }
    return 0;
}
