#include "styleconv/NumberOption.h"

#include "StyleConversion/encoding/NumberReader.h"

#include <cmath>

namespace styleconv {

bool ReadNumberArgument(std::string_view text, double& value) {
    const encoding::NumberReading reading = encoding::ReadNumber(text);
    if (reading.used == 0 || reading.used != text.size() || !std::isfinite(reading.value)) {
        return false;
    }
    value = reading.value;
    return true;
}

bool ReadPointArgument(std::string_view text, double& x, double& y) {
    const std::size_t comma = text.find(',');
    return comma != std::string_view::npos && ReadNumberArgument(text.substr(0, comma), x) &&
           ReadNumberArgument(text.substr(comma + 1), y);
}

void AddNumberOption(Command& command, const std::string& name, double& value,
                     const std::string& description) {
    const auto read = [&value](const std::string& text) -> std::string {
        return ReadNumberArgument(text, value) ? "" : "a number";
    };
    command.AddReader(name, read, "NUMBER", description);
}

void AddPointOption(Command& command, const std::string& name, double& x, double& y,
                    const std::string& description) {
    const auto read = [&x, &y](const std::string& text) -> std::string {
        return ReadPointArgument(text, x, y) ? "" : "two numbers with a comma between them";
    };
    command.AddReader(name, read, "X,Y", description);
}

} // namespace styleconv
