// A style of a web map as a folder: the style, its pictures, and the sheet that it takes them from.
#pragma once

#include "conversions/Forms.h"
#include "styleconv/commands/CommandLine.h"

#include <functional>
#include <string>

namespace styleconv {

/// Writes style.json last of all. Where no sheet can be made, the rest is written and that is told.
ExitStatus WriteStyleFolder(const std::string& folder, const conversions::StyleJob& styles,
                            const std::function<bool(const conversions::TextSink& sink)>& write);

} // namespace styleconv
