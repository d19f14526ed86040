// Shape files put together byte by byte.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace linetypetest {

inline std::string Bytes(std::initializer_list<int> values) {
    std::string bytes;
    for (const int value : values) {
        bytes += static_cast<char>(value);
    }
    return bytes;
}

inline std::string Word(std::size_t value) {
    return Bytes({static_cast<int>(value & 0xFF), static_cast<int>(value >> 8)});
}

/// One entry: number, name, program (without the name's zero byte).
struct Entry {
    std::size_t number;
    std::string name;
    std::string program;

    std::string Content() const { return name + Bytes({0}) + program; }
};

inline std::string ShapesFile(const std::vector<Entry>& entries, const std::string& version = "1.0") {
    std::string file = "Vorlanx-86 shapes " + version + "\r\n\x1A" + Word(0) + Word(0) + Word(entries.size());
    for (const Entry& entry : entries) {
        file += Word(entry.number) + Word(entry.Content().size());
    }
    for (const Entry& entry : entries) {
        file += entry.Content();
    }
    return file + "EOF";
}

inline std::string UnifontFile(const std::vector<Entry>& entries) {
    std::string file = "Vorlanx-86 unifont 1.0\r\n\x1A" + Word(entries.size());
    for (const Entry& entry : entries) {
        file += Word(entry.number) + Word(entry.Content().size()) + entry.Content();
    }
    return file;
}

/// Font information: characters `above` units high, `below` units under the line, `modes` 2 for both
/// orientations.
inline Entry FontInformation(int above, int below, int modes) {
    return {0, "FONT", Bytes({above, below, modes, 0})};
}

/// A program of one vector, one unit along x: "M x,y l 1,0 " at scale 1.
inline std::string UnitStroke() {
    return Bytes({0x10, 0});
}

} // namespace linetypetest
