// The "%.15g" formatters over their shared buffer.
#include "StyleConversion/encoding/PathCommands.h"

#include "StyleConversion/encoding/GeneralNumber.h"

#include <charconv>
#include <cstddef>

namespace encoding {
namespace {

// The longest command, an arc with five such numbers and two flags, takes 116 characters.
constexpr std::size_t kBufferSize = 256;

wchar_t sharedBuffer[kBufferSize];

// Writes into the shared buffer from its start. Nothing that it is given can overrun it: see kBufferSize.
class Writer {
public:
    Writer& Literal(const char* text) {
        for (; *text != 0; ++text) {
            sharedBuffer[length_++] = static_cast<wchar_t>(*text);
        }
        return *this;
    }

    Writer& Number(double value) {
        length_ = static_cast<std::size_t>(WriteGeneral(sharedBuffer + length_, value) - sharedBuffer);
        return *this;
    }

    Writer& Integer(int value) {
        char digits[16] = {};
        const char* const end = std::to_chars(digits, digits + sizeof digits, value).ptr;
        for (const char* digit = digits; digit != end; ++digit) {
            sharedBuffer[length_++] = static_cast<wchar_t>(*digit);
        }
        return *this;
    }

    // Terminates the text and returns its length.
    std::size_t Finish() {
        sharedBuffer[length_] = 0;
        return length_;
    }

private:
    std::size_t length_ = 0;
};

std::size_t WritePair(const char* command, double x, double y) {
    return Writer().Literal(command).Number(x).Literal(",").Number(y).Literal(" ").Finish();
}

std::size_t WriteArc(double radius, int largeArc, int sweep, double x, double y) {
    return Writer()
        .Literal("A ")
        .Number(radius)
        .Literal(",")
        .Number(radius)
        .Literal(" 0 ")
        .Integer(largeArc)
        .Literal(" ")
        .Integer(sweep)
        .Literal(" ")
        .Number(x)
        .Literal(",")
        .Number(y)
        .Literal(" ")
        .Finish();
}

std::size_t WriteNumber(double value) {
    return Writer().Number(value).Finish();
}

} // namespace

const wchar_t* FormatMove(double x, double y) {
    WritePair("M ", x, y);
    return sharedBuffer;
}

const wchar_t* FormatLine(double x, double y) {
    WritePair("L ", x, y);
    return sharedBuffer;
}

const wchar_t* FormatRelativeLine(double dx, double dy) {
    WritePair("l ", dx, dy);
    return sharedBuffer;
}

const wchar_t* FormatNumber(double value) {
    WriteNumber(value);
    return sharedBuffer;
}

const wchar_t* FormatArc(double radius, int largeArc, int sweep, double x, double y) {
    WriteArc(radius, largeArc, sweep, x, y);
    return sharedBuffer;
}

void AppendMove(std::wstring& path, double x, double y) {
    path.append(sharedBuffer, WritePair("M ", x, y));
}

void AppendLine(std::wstring& path, double x, double y) {
    path.append(sharedBuffer, WritePair("L ", x, y));
}

void AppendRelativeLine(std::wstring& path, double dx, double dy) {
    path.append(sharedBuffer, WritePair("l ", dx, dy));
}

void AppendNumber(std::wstring& text, double value) {
    text.append(sharedBuffer, WriteNumber(value));
}

void AppendArc(std::wstring& path, double radius, int largeArc, int sweep, double x, double y) {
    path.append(sharedBuffer, WriteArc(radius, largeArc, sweep, x, y));
}

} // namespace encoding
