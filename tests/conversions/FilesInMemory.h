// A front whose files are in memory.
#pragma once

#include "conversions/reading/Front.h"
#include "diagnostics/Sentences.h"

#include <map>
#include <string>
#include <vector>

namespace conversions_test {

class FilesInMemory : public conversions::Front {
public:
    std::map<std::wstring, std::string> files; // by the names that are asked for
    std::vector<std::wstring> asked;
    std::vector<std::string> items;

    conversions::FoundFile FindShapeFile(const std::wstring& name) override {
        asked.push_back(name);
        const auto found = files.find(name);
        return found == files.end() ? conversions::FoundFile()
                                    : conversions::FoundFile{true, "memory", "", found->second};
    }
    std::string PlacesSearched(const std::wstring& /*name*/) override { return "in memory"; }
    void AtItem(std::string_view item) override { items.emplace_back(item); }
};

/// The messages, a line each.
inline std::string Messages(const diagnostics::Diagnostics& found) {
    std::string messages;
    for (const diagnostics::Diagnostic& diagnostic : found) {
        messages += diagnostics::MessageWithCode(diagnostic) + "\n";
    }
    return messages;
}

inline conversions::Input Named(const std::string& name, std::string_view bytes) {
    conversions::Input input;
    input.name = name;
    input.bytes = bytes;
    return input;
}

} // namespace conversions_test
