#include "tests/host/RecordedDrawing.h"

#include <bit>
#include <istream>
#include <ostream>
#include <stdexcept>
#include <type_traits>

namespace {

// Both directions go through the same lists of fields.
class Writer {
public:
    explicit Writer(std::ostream& out) : out_(out) {}
    void Number(std::int64_t& number) { out_ << number << '\n'; }

private:
    std::ostream& out_;
};

class Reader {
public:
    explicit Reader(std::istream& in) : in_(in) {}
    void Number(std::int64_t& number) {
        if (!(in_ >> number)) {
            throw std::runtime_error("no recording");
        }
    }

private:
    std::istream& in_;
};

template <class File, class Integer>
requires std::is_integral_v<Integer>
void Pass(File& file, Integer& value) {
    auto number = static_cast<std::int64_t>(value);
    file.Number(number);
    value = static_cast<Integer>(number);
}

template <class File>
void Pass(File& file, double& value) {
    auto bits = std::bit_cast<std::int64_t>(value);
    file.Number(bits);
    value = std::bit_cast<double>(bits);
}

template <class File>
void Pass(File& file, RecordedLoop& loop);

template <class File, class List>
requires requires(List list) {
    list.resize(1);
}
void Pass(File& file, List& list) {
    auto size = static_cast<std::int64_t>(list.size());
    file.Number(size);
    list.resize(static_cast<std::size_t>(size));
    for (auto& item : list) {
        Pass(file, item);
    }
}

template <class File, class... Fields>
void PassAll(File& file, Fields&... fields) {
    (Pass(file, fields), ...);
}

template <class File>
void Pass(File& file, RecordedLoop& loop) {
    PassAll(file, loop.kind, loop.numbers, loop.bulges, loop.edges);
}
template <class File>
void Pass(File& file, RecordedLayer& layer) {
    PassAll(file, layer.name, layer.color, layer.lineWeight);
}
template <class File>
void Pass(File& file, RecordedDash& dash) {
    PassAll(file, dash.length, dash.style, dash.shapeNumber, dash.placing, dash.hasText, dash.text);
}
template <class File>
void Pass(File& file, RecordedLinetype& linetype) {
    PassAll(file, linetype.patternLength, linetype.dashes);
}
template <class File>
void Pass(File& file, RecordedStyle& style) {
    PassAll(file, style.name, style.fileName, style.typeface, style.bold, style.italic, style.sizes);
}
template <class File>
void Pass(File& file, RecordedSamples& samples) {
    PassAll(file, samples.tolerance, samples.points);
}
template <class File>
void Pass(File& file, RecordedEntity& entity) {
    PassAll(file, entity.kind, entity.layer, entity.color, entity.fillColor, entity.lineWeight,
            entity.linetype, entity.style, entity.numbers, entity.texts, entity.loops, entity.samples);
}
template <class File>
void Pass(File& file, RecordedBlock& block) {
    PassAll(file, block.name, block.isLayout, block.isAnonymous, block.units, block.entities, block.drawOrder,
            block.reference);
}

template <class File>
void Pass(File& file, std::pair<std::wstring, RecordedLayer>& layer) {
    PassAll(file, layer.first, layer.second);
}

template <class File>
void Pass(File& file, RecordedDrawing& drawing) {
    std::vector<std::pair<std::wstring, RecordedLayer>> layers(drawing.layers.begin(), drawing.layers.end());
    PassAll(file, drawing.units, layers, drawing.linetypes, drawing.styles, drawing.blocks);
    drawing.layers = {layers.begin(), layers.end()};
}

} // namespace

void Write(std::ostream& out, const std::vector<RecordedDrawing>& drawings) {
    Writer writer(out);
    std::vector<RecordedDrawing> copy = drawings;
    Pass(writer, copy);
}

std::vector<RecordedDrawing> Read(std::istream& in) {
    Reader reader(in);
    std::vector<RecordedDrawing> drawings;
    Pass(reader, drawings);
    return drawings;
}
