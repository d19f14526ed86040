// Writes DXF files in tests, pair by pair, in each of their forms.
#pragma once

#include <cstdint>
#include <cstring>
#include <nlohmann/json.hpp>
#include <string>
#include <utility>
#include <vector>

/// A pair of which the value is written as the form of the file has it.
struct DxfTestPair {
    int code = 0;
    std::string text;
    double number = 0.0;
    bool isNumber = false;
};

class DxfWriter {
public:
    DxfWriter& Text(int code, const std::string& text) {
        pairs_.push_back({code, text, 0.0, false});
        return *this;
    }
    DxfWriter& Number(int code, double number) {
        pairs_.push_back({code, nlohmann::json(number).dump(), number, true});
        return *this;
    }
    DxfWriter& Integer(int code, std::int64_t number) {
        pairs_.push_back({code, std::to_string(number), static_cast<double>(number), true});
        return *this;
    }
    DxfWriter& Point(int code, double x, double y) { return Number(code, x).Number(code + 10, y); }
    DxfWriter& Append(const DxfWriter& other) {
        pairs_.insert(pairs_.end(), other.pairs_.begin(), other.pairs_.end());
        return *this;
    }

    /// Lines that end in `lineEnd`.
    std::string Ascii(const std::string& lineEnd = "\r\n") const {
        std::string file;
        for (const DxfTestPair& pair : pairs_) {
            const std::string code = std::to_string(pair.code);
            file += std::string(code.size() < 3 ? 3 - code.size() : 0, ' ') + code + lineEnd;
            file += pair.text + lineEnd;
        }
        return file;
    }

    /// The binary form, with group codes of two bytes, or of one as old files have them.
    std::string Binary(bool shortCodes = false) const {
        std::string file("Program Binary DXF\r\n\x1a\0", 22);
        for (const DxfTestPair& pair : pairs_) {
            AppendCode(file, pair.code, shortCodes);
            AppendValue(file, pair);
        }
        return file;
    }

private:
    template <class T>
    static void AppendBytes(std::string& file, T value, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            file += static_cast<char>(static_cast<std::uint64_t>(value) >> (8 * i) & 0xffU);
        }
    }
    static void AppendCode(std::string& file, int code, bool shortCodes) {
        if (!shortCodes) {
            AppendBytes(file, code, 2);
        } else if (code < 255) {
            AppendBytes(file, code, 1);
        } else {
            file += '\xff';
            AppendBytes(file, code, 2);
        }
    }
    static bool IsIn(int code, std::initializer_list<std::pair<int, int>> ranges) {
        for (const auto& [first, last] : ranges) {
            if (code >= first && code <= last) {
                return true;
            }
        }
        return false;
    }
    static void AppendValue(std::string& file, const DxfTestPair& pair) {
        const int code = pair.code;
        const auto whole = static_cast<std::int64_t>(pair.number);
        if (IsIn(code, {{10, 59}, {110, 149}, {210, 239}, {460, 469}, {1010, 1059}})) {
            std::uint64_t bits = 0;
            std::memcpy(&bits, &pair.number, sizeof bits);
            AppendBytes(file, bits, 8);
        } else if (IsIn(code, {{60, 79}, {170, 179}, {270, 289}, {370, 389}, {400, 409}, {1060, 1070}})) {
            AppendBytes(file, whole, 2);
        } else if (IsIn(code, {{90, 99}, {420, 429}, {440, 459}, {1071, 1071}})) {
            AppendBytes(file, whole, 4);
        } else if (IsIn(code, {{160, 169}})) {
            AppendBytes(file, whole, 8);
        } else if (IsIn(code, {{290, 299}})) {
            AppendBytes(file, whole, 1);
        } else {
            file += pair.text;
            file += '\0';
        }
    }

    std::vector<DxfTestPair> pairs_;
};
