// The options of a call, which are a JSON object.
#pragma once

#include "conversions/Forms.h"
#include "conversions/reading/FileKind.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace c_interface {

enum class Job : std::uint8_t { kConvert = 1, kList = 2, kCheck = 4 };

/// As the command line has them where nothing is said.
struct Options {
    conversions::FileKind kind = conversions::FileKind::kUnknown; // as name and contents tell
    conversions::Form form = conversions::Form::kJson;
    bool isTolerant = false;
    bool isFaithful = false;
    bool hasNotes = false;
    std::string encoding;
    std::string font;
    std::string drawing; // the name to ask for
    std::vector<std::wstring> names;
    std::vector<std::wstring> layersToIgnore;
};

/// Reads those that the job has. Returns what is wrong with them; nothing where all is well.
std::string ReadOptions(std::string_view text, Job job, Options& options);

} // namespace c_interface
