#include "preview/PathReader.h"

#include "StyleConversion/encoding/NumberReader.h"
#include "StyleConversion/platform/Characters.h"

#include <string>

namespace preview {
namespace {

// The characters that numbers are made of.
bool BelongsToNumber(char c) {
    return (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.' || c == 'e' || c == 'E';
}

// Looks at the text as ASCII; any other character becomes one that no path holds.
std::string Narrowed(std::wstring_view text) {
    std::string narrow;
    narrow.reserve(text.size());
    for (const wchar_t c : text) {
        narrow += c > L'\0' && c <= L'~' ? static_cast<char>(c) : '?';
    }
    return narrow;
}

class Cursor {
public:
    explicit Cursor(std::string_view text) : text_(text) {}

    std::size_t Position() const { return position_; }
    bool AtEnd() const { return position_ == text_.size(); }

    void SkipBlanks() {
        while (!AtEnd() && platform::IsBlank(text_[position_])) {
            ++position_;
        }
    }

    char Take() { return AtEnd() ? '\0' : text_[position_++]; }

    // A finite number with what separates it from the one before: blanks and at most one comma.
    bool Number(double& value) {
        SkipBlanks();
        if (!AtEnd() && text_[position_] == ',') {
            ++position_;
            SkipBlanks();
        }
        // Only the number itself is shown to the reader, whose time may grow with what it is shown.
        std::size_t end = position_;
        while (end < text_.size() && BelongsToNumber(text_[end])) {
            ++end;
        }
        const auto reading = encoding::ReadNumber(text_.substr(position_, end - position_));
        position_ += reading.used;
        value = reading.value;
        return reading.used > 0 && std::isfinite(value);
    }

    bool Flag(bool& flag) {
        double value = 0.0;
        const bool read = Number(value) && (value == 0.0 || value == 1.0);
        flag = value == 1.0;
        return read;
    }

private:
    std::string_view text_;
    std::size_t position_ = 0;
};

class Reader {
public:
    Reader(std::string_view text, PathSink& sink) : cursor_(text), sink_(sink) {}

    PathReading Read() {
        PathReading reading;
        for (;;) {
            cursor_.SkipBlanks();
            reading.used = cursor_.Position();
            if (cursor_.AtEnd()) {
                reading.complete = true;
                return reading;
            }
            if (!Command(cursor_.Take(), reading.commands == 0)) {
                return reading;
            }
            ++reading.commands;
        }
    }

private:
    bool Command(char letter, bool first) {
        if (first && letter != 'M') {
            return false;
        }
        switch (letter) {
        case 'M':
            return Absolute() && (sink_.MoveTo(current_), true);
        case 'L':
            return Absolute() && (sink_.LineTo(current_), true);
        case 'l':
            return Relative(true, true);
        case 'h':
            return Relative(true, false);
        case 'v':
            return Relative(false, true);
        case 'A':
            return Arc();
        default:
            return false;
        }
    }

    bool Absolute() { return cursor_.Number(current_.x) && cursor_.Number(current_.y); }

    bool Relative(bool alongX, bool alongY) {
        Point step;
        const bool read = (!alongX || cursor_.Number(step.x)) && (!alongY || cursor_.Number(step.y));
        current_ = current_ + step;
        if (!read || !std::isfinite(current_.x) || !std::isfinite(current_.y)) {
            return false;
        }
        sink_.LineTo(current_);
        return true;
    }

    bool Arc() {
        ArcShape shape;
        const bool read = cursor_.Number(shape.radiusX) && cursor_.Number(shape.radiusY) &&
                          cursor_.Number(shape.rotation) && cursor_.Flag(shape.largeArc) &&
                          cursor_.Flag(shape.clockwise) && Absolute();
        if (read) {
            sink_.ArcTo(shape, current_);
        }
        return read;
    }

    Cursor cursor_;
    PathSink& sink_;
    Point current_;
};

} // namespace

PathReading ReadPath(std::wstring_view text, PathSink& sink) {
    const std::string narrow = Narrowed(text);
    return Reader(narrow, sink).Read();
}

} // namespace preview
