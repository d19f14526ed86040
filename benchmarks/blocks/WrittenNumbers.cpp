#include "WrittenNumbers.h"

#include "StyleConversion/encoding/NumberReader.h"
#include "StyleConversion/encoding/TrimmedNumber.h"

#include <charconv>
#include <ctime>
#include <string>
#include <string_view>

namespace {

class NumberCollector : public TylModel::IGraphicElementVisitor {
public:
    void VisitPath(TylModel::Path& path) override {
        const std::wstring& geometry = path.GetGeometry();
        const std::string text(geometry.begin(), geometry.end());
        for (std::size_t start = 0; start < text.size();) {
            const encoding::NumberReading reading =
                encoding::ReadNumber(std::string_view(text).substr(start));
            if (reading.used > 0) {
                numbers.push_back(reading.value);
            }
            start += reading.used > 0 ? reading.used : 1;
        }
    }
    void VisitText(TylModel::Text& /*text*/) override {}

    std::vector<double> numbers;
};

} // namespace

std::vector<double> NumbersOf(TylModel::SimpleSymbolDefinition& symbol) {
    NumberCollector collector;
    for (std::int32_t i = 0; i < symbol.GetGraphics().GetCount(); ++i) {
        AcceptVisitor(*symbol.GetGraphics().GetAt(i), collector);
    }
    return collector.numbers;
}

double ProcessorTime() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

double TimeOfStandardFormatting(const std::vector<double>& numbers) {
    std::vector<char> buffer(numbers.size() * 32);
    const double start = ProcessorTime();
    char* end = buffer.data();
    for (const double number : numbers) {
        end = std::to_chars(end, buffer.data() + buffer.size(), number, std::chars_format::fixed, 5).ptr;
    }
    return ProcessorTime() - start;
}

double TimeOfTrimmedFormatting(const std::vector<double>& numbers) {
    std::wstring text;
    const double start = ProcessorTime();
    for (const double number : numbers) {
        text += encoding::Double2TrimmedString(number);
    }
    return ProcessorTime() - start;
}
