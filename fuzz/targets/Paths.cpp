// Path geometry of the symbol model.
#include "StyleConversion/platform/Utf8.h"
#include "fuzz/Fuzzing.h"
#include "preview/PathReader.h"

#include <cmath>
#include <string>

namespace {

using fuzzing::Require;

class CheckingSink : public preview::PathSink {
public:
    void MoveTo(preview::Point point) override {
        ++moves_;
        Take(point);
    }
    void LineTo(preview::Point point) override { Take(point); }
    void ArcTo(const preview::ArcShape& shape, preview::Point point) override {
        Require(std::isfinite(shape.radiusX) && std::isfinite(shape.radiusY) && std::isfinite(shape.rotation),
                "a finite arc");
        const auto arc = preview::CenterOf(last_, shape, point);
        Require(!arc || (std::isfinite(arc->center.x) && std::isfinite(arc->sweep)), "a finite centre");
        Take(point);
    }

    std::size_t Commands() const { return commands_; }

private:
    void Take(preview::Point point) {
        Require(moves_ > 0, "a move as the first command");
        Require(std::isfinite(point.x) && std::isfinite(point.y), "finite points");
        last_ = point;
        ++commands_;
    }

    preview::Point last_;
    std::size_t moves_ = 0;
    std::size_t commands_ = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::wstring text = platform::Utf8ToWide(fuzzing::Text(data, size));
    CheckingSink sink;
    const preview::PathReading reading = preview::ReadPath(text, sink);
    Require(reading.commands == sink.Commands(), "the commands that the sink was told of");
    Require(reading.used <= text.size() && (!reading.complete || reading.used == text.size()),
            "a reading that is complete at the end of the text only");
    CheckingSink again;
    const std::wstring_view before = std::wstring_view(text).substr(0, reading.used);
    const preview::PathReading rereading = preview::ReadPath(before, again);
    Require(rereading.complete && rereading.commands == reading.commands,
            "what was read to be a path of the same commands");
    return 0;
}
