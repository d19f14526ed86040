// Headers and family lines of a pattern file.
#include "StyleConversion/pattern/PatternFile.h"

#include "StyleConversion/pattern/LineCursor.h"
#include "StyleConversion/pattern/PatternLimits.h"
#include "StyleConversion/platform/Files.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>

namespace pattern {
namespace {

// Only the space counts, not the tab.
std::string_view TrimSpaces(std::string_view text) {
    text.remove_prefix(std::min(text.size(), text.find_first_not_of(' ')));
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

struct Header {
    std::string name;
    std::string description;
};

// `text` is what stands behind the asterisk. Without a comma the name describes itself.
Header ParseHeader(std::string_view text) {
    const std::size_t comma = text.find(',');
    const std::string_view name = TrimSpaces(text.substr(0, comma));
    const std::string_view description =
        comma == std::string_view::npos ? name : TrimSpaces(text.substr(comma + 1));
    return {std::string(name), std::string(description)};
}

// Takes the lines of a file one after another.
class PatternFileParser {
public:
    PatternFileParser(PatternFile& file, PatternReading* reading) : file_(file), reading_(reading) {}

    void TakeLine(std::string_view line, std::size_t number) {
        if (line.empty() || line.front() == ';') {
            return;
        }
        if (line.front() == '*') {
            TakeHeader(line.substr(1), number);
        } else {
            TakeFamily(line, number);
        }
    }

private:
    // A name that stands there already keeps its first description, and its families go on.
    void TakeHeader(std::string_view text, std::size_t number) {
        Header header = ParseHeader(text);
        current_ = &*file_.patterns.try_emplace(header.name).first;
        file_.descriptions.try_emplace(std::move(header.name), std::move(header.description));
        if (reading_ != nullptr) {
            reading_->headerLines[current_->first].push_back(number);
        }
    }

    void TakeFamily(std::string_view line, std::size_t number) {
        if (current_ == nullptr) {
            if (reading_ != nullptr) {
                reading_->linesBeforeHeaders.push_back(number);
            }
            return;
        }
        current_->second.push_back(ParsePatternLine(line));
        if (reading_ != nullptr) {
            reading_->familyLines[current_->first].push_back(number);
        }
    }

    PatternFile& file_;
    PatternReading* reading_;
    Patterns::value_type* current_ = nullptr; // null before the first header
};

struct CloseFile {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};

// False when an error of the device ends the reading; what came before it is there.
bool ReadBytes(std::FILE* file, std::string& bytes) {
    std::array<char, 65536> block; // not initialised: filled by the reading
    while (const std::size_t count = std::fread(block.data(), 1, block.size(), file)) {
        bytes.append(block.data(), count);
    }
    return std::ferror(file) == 0;
}

} // namespace

void ParsePatternFile(std::string_view bytes, PatternFile& file, PatternReading* reading) {
    file = {};
    if (reading != nullptr) {
        *reading = {};
    }
    PatternFileParser parser(file, reading);
    LineCursor cursor(bytes);
    std::string_view line;
    LineCursor::Step step = cursor.Next(kLongestLine, line);
    for (; step == LineCursor::Step::kLine; step = cursor.Next(kLongestLine, line)) {
        parser.TakeLine(line, cursor.GetLineNumber());
    }
    if (reading != nullptr && step == LineCursor::Step::kTooLong) {
        reading->end = PatternReading::End::kLineTooLong;
        reading->endLine = cursor.GetLineNumber();
    }
}

void ReadPatternFile(const std::wstring& fileName, PatternFile& file, PatternReading* reading) {
    const std::unique_ptr<std::FILE, CloseFile> stream(platform::OpenForReading(fileName.c_str()));
    std::string bytes;
    const bool complete = stream != nullptr && ReadBytes(stream.get(), bytes);
    ParsePatternFile(bytes, file, reading);
    if (reading != nullptr && !complete) {
        reading->end = stream == nullptr ? PatternReading::End::kNotOpened : PatternReading::End::kReadFailed;
    }
}

} // namespace pattern
