#include "styleconv/NumberOption.h"

#include "StyleConversion/encoding/NumberReader.h"

#include <CLI/CLI.hpp>
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

CLI::Option* AddNumberOption(CLI::App& command, const std::string& name, double& value,
                             const std::string& description) {
    const auto read = [name, &value](const std::string& text) {
        if (!ReadNumberArgument(text, value)) {
            throw CLI::ValidationError(name, "expected a number, found \"" + text + "\"");
        }
    };
    return command.add_option_function<std::string>(name, read, description)->type_name("NUMBER");
}

CLI::Option* AddPointOption(CLI::App& command, const std::string& name, double& x, double& y,
                            const std::string& description) {
    const auto read = [name, &x, &y](const std::string& text) {
        if (!ReadPointArgument(text, x, y)) {
            throw CLI::ValidationError(name, "expected two numbers with a comma between them, found \"" +
                                                 text + "\"");
        }
    };
    return command.add_option_function<std::string>(name, read, description)->type_name("X,Y");
}

} // namespace styleconv
