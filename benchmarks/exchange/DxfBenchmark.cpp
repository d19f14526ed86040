// How long reading a DXF file takes, against a plain loop over its pairs that reads their numbers:
// dxf_benchmark [ENTITIES]
#include "exchange/DxfReader.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <random>
#include <string>
#include <string_view>

namespace {

constexpr int kRuns = 5; // of which the fastest counts: the one that other programs disturbed least

/// Lines, arcs, circles, polylines and texts on ten layers, in the model space.
class FileGenerator {
public:
    std::string Make(std::size_t entities) {
        Pair(0, "SECTION");
        Pair(2, "ENTITIES");
        for (std::size_t i = 0; i < entities; ++i) {
            Entity(i);
        }
        Pair(0, "ENDSEC");
        Pair(0, "EOF");
        return std::move(file_);
    }

private:
    void Pair(int code, std::string_view value) {
        const std::string text = std::to_string(code);
        file_.append(text.size() < 3 ? 3 - text.size() : 0, ' ').append(text).append("\n");
        file_.append(value).append("\n");
    }
    void Number(int code, double value) {
        char text[32];
        const auto [end, error] = std::to_chars(text, text + sizeof text, value);
        Pair(code, std::string_view(text, static_cast<std::size_t>(end - text)));
    }
    double Coordinate() { return static_cast<double>(random_() % 10000000) / 1000.0; }
    void Point(int code) {
        Number(code, Coordinate());
        Number(code + 10, Coordinate());
    }
    void Entity(std::size_t index) {
        static constexpr const char* kTypes[] = {"LINE",  "LINE",       "CIRCLE", "ARC",
                                                 "POINT", "LWPOLYLINE", "TEXT"};
        const std::string_view type = kTypes[index % std::size(kTypes)];
        Pair(0, type);
        Pair(8, "LAYER" + std::to_string(index % 10));
        if (type == "LWPOLYLINE") {
            Pair(90, "3");
            Point(10);
            Point(10);
        }
        Point(10);
        if (type == "LINE") {
            Point(11);
        } else if (type == "CIRCLE" || type == "ARC" || type == "TEXT") {
            Number(40, Coordinate());
        }
        if (type == "ARC") {
            Number(50, static_cast<double>(random_() % 360));
            Number(51, static_cast<double>(random_() % 360));
        } else if (type == "TEXT") {
            Pair(1, "text");
        }
    }

    std::string file_;
    std::mt19937 random_{1};
};

double SecondsOf(const std::function<void()>& work) {
    double best = 1e9;
    for (int run = 0; run < kRuns; ++run) {
        const auto start = std::chrono::steady_clock::now();
        work();
        best =
            std::min(best, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
    return best;
}

// The sum of all numbers in places of coordinates, so that none is left out.
double PlainLoop(std::string_view file) {
    double sum = 0.0;
    const auto line = [&] {
        const std::size_t end = std::min(file.find('\n'), file.size());
        const std::string_view text = file.substr(0, end);
        file.remove_prefix(std::min(end + 1, file.size()));
        return text;
    };
    while (!file.empty()) {
        std::string_view word = line();
        while (word.starts_with(' ')) {
            word.remove_prefix(1);
        }
        int code = 0;
        std::from_chars(word.data(), word.data() + word.size(), code);
        const std::string_view value = line();
        if (code >= 10 && code < 60) {
            double number = 0.0;
            std::from_chars(value.data(), value.data() + value.size(), number);
            sum += number;
        }
    }
    return sum;
}

/// Gives the bytes of a file piece by piece, as a stream does.
class Pieces : public exchange::ByteSource {
public:
    explicit Pieces(std::string_view bytes) : bytes_(bytes) {}
    std::size_t Read(char* bytes, std::size_t most) override {
        const std::size_t count = bytes_.copy(bytes, most, at_);
        at_ += count;
        return count;
    }
    void Rewind() override { at_ = 0; }

private:
    std::string_view bytes_;
    std::size_t at_ = 0;
};

// Kibibytes in use, or the most that ever were; 0 where the system does not tell.
long Memory(const char* key) {
    long kibibytes = 0;
    if (std::FILE* const file = std::fopen("/proc/self/status", "r")) {
        char line[256];
        while (std::fgets(line, sizeof line, file) != nullptr) {
            if (std::string_view(line).starts_with(key)) {
                kibibytes = std::strtol(line + std::string_view(key).size(), nullptr, 10);
            }
        }
        std::fclose(file);
    }
    return kibibytes;
}

} // namespace

int main(int argc, char** argv) {
    const std::size_t entities = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 600000;
    const std::string file = FileGenerator().Make(entities);
    const double megabytes = static_cast<double>(file.size()) / 1e6;
    double sum = 0.0;
    const double plain = SecondsOf([&] { sum += PlainLoop(file); });
    const long before = Memory("VmRSS:");
    long filled = 0;
    std::size_t blocks = 0;
    const double read = SecondsOf([&] {
        diagnostics::Diagnostic fault;
        exchange::DxfNotes notes;
        Pieces source(file);
        const auto database = exchange::ReadDxf(source, fault, notes);
        blocks = database != nullptr ? database->Blocks().size() : 0;
        filled = std::max(filled, Memory("VmRSS:"));
    });
    std::printf("%zu entities, %.1f MB (%zu block, sum %g)\n", entities, megabytes, blocks, sum);
    std::printf("plain loop %.3f s (%.0f MB/s), reading %.3f s (%.0f MB/s), ratio %.2f\n", plain,
                megabytes / plain, read, megabytes / read, read / plain);
    std::printf("reading and the drawing take %.2f times the file\n",
                static_cast<double>(filled - before) * 1024.0 / static_cast<double>(file.size()));
    return blocks == 1 ? 0 : 1;
}
