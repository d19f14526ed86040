// Number texts against std::to_chars for the same numbers, in one run.
#include "StyleConversion/encoding/GeneralNumber.h"
#include "StyleConversion/encoding/TrimmedNumber.h"

#include <benchmark/benchmark.h>
#include <charconv>
#include <cmath>
#include <random>
#include <vector>

namespace {

constexpr std::size_t kCount = 4096;

// Coordinates as drawings have them: three decimals, or turned by an angle and so with digits to the end.
std::vector<double> Coordinates(bool turned) {
    std::mt19937_64 random(1);
    std::vector<double> values(kCount);
    for (double& value : values) {
        value = static_cast<double>(random() % 2'000'000) / 1000.0 - 1000.0;
        value = turned ? value * std::cos(0.5) : value;
    }
    return values;
}

void FloorFixed(benchmark::State& state) {
    const std::vector<double> values = Coordinates(state.range(0) != 0);
    char text[400];
    for (auto _ : state) {
        for (const double value : values) {
            benchmark::DoNotOptimize(
                std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, 5));
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kCount));
}

void Trimmed(benchmark::State& state) {
    const std::vector<double> values = Coordinates(state.range(0) != 0);
    wchar_t text[encoding::kLongestTrimmed];
    for (auto _ : state) {
        for (const double value : values) {
            benchmark::DoNotOptimize(encoding::WriteTrimmed(text, value));
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kCount));
}

void FloorGeneral(benchmark::State& state) {
    const std::vector<double> values = Coordinates(state.range(0) != 0);
    char text[400];
    for (auto _ : state) {
        for (const double value : values) {
            benchmark::DoNotOptimize(
                std::to_chars(text, text + sizeof text, value, std::chars_format::general, 15));
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kCount));
}

void General(benchmark::State& state) {
    const std::vector<double> values = Coordinates(state.range(0) != 0);
    wchar_t text[encoding::kLongestGeneral];
    for (auto _ : state) {
        for (const double value : values) {
            benchmark::DoNotOptimize(encoding::WriteGeneral(text, value));
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kCount));
}

BENCHMARK(FloorFixed)->ArgName("turned")->Arg(0)->Arg(1);
BENCHMARK(Trimmed)->ArgName("turned")->Arg(0)->Arg(1);
BENCHMARK(FloorGeneral)->ArgName("turned")->Arg(0)->Arg(1);
BENCHMARK(General)->ArgName("turned")->Arg(0)->Arg(1);

} // namespace
