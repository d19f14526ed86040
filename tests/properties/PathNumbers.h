// Path text as commands with their numbers.
#pragma once

#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

namespace laws {

struct Command {
    char letter = ' ';
    std::vector<double> numbers;
};

/// Numbers stand between blanks and commas.
inline std::vector<Command> Commands(const std::wstring& path) {
    std::string text;
    for (const wchar_t c : path) {
        text += c == L',' ? ' ' : static_cast<char>(c);
    }
    std::vector<Command> commands;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        if (word.size() == 1 && std::string("MLAlh").find(word[0]) != std::string::npos) {
            commands.push_back({word[0], {}});
        } else {
            commands.back().numbers.push_back(std::stod(word));
        }
    }
    return commands;
}

/// Whether the number at `index` of the command is a coordinate: radii, rotation and flags of an arc are not.
inline bool IsCoordinate(const Command& command, std::size_t index) {
    return command.letter != 'A' || index >= 5;
}

} // namespace laws
