#include "documents/ToleratedErrors.h"

#include "diagnostics/ShownText.h"

#include <utility>

namespace documents {
namespace {

// "blocks[2].entities[10].color" and "blocks[2].entities[11].color" are of one kind.
std::string WithoutPlaces(std::string_view path) {
    std::string kind;
    bool isPlace = false;
    for (const char c : path) {
        isPlace = isPlace && c != ']';
        if (!isPlace) {
            kind += c;
        }
        isPlace = isPlace || c == '[';
    }
    return kind;
}

} // namespace

void ToleratedErrors::Add(const DrawingError& error, std::string_view part, std::string_view item) {
    std::string kind = WithoutPlaces(error.path) + '\n' + diagnostics::SentenceOf(error.code, error.subjects);
    kind.append("\n").append(part).append("\n").append(item);
    const auto [known, isNew] = kinds_.try_emplace(std::move(kind), all_.size());
    if (!isNew) {
        ++all_[known->second].count;
        return;
    }
    diagnostics::Diagnostic diagnostic;
    diagnostic.severity = diagnostics::Severity::kWarning;
    diagnostic.code = error.code;
    diagnostic.place.path = error.path;
    diagnostic.place.item = diagnostics::ShownText(item);
    diagnostic.subjects = error.subjects;
    diagnostic.subjects.emplace_back(part);
    diagnostic.outcome = diagnostics::Outcome::kRepaired;
    all_.push_back(std::move(diagnostic));
}

void ToleratedErrors::BeginBlock() {
    kinds_.clear();
    blockStart_ = all_.size();
}

void ToleratedErrors::EndBlock(const std::string& item) {
    kinds_.clear();
    for (std::size_t i = blockStart_; i < all_.size(); ++i) {
        all_[i].place.item = diagnostics::ShownText(item);
    }
    blockStart_ = all_.size();
}

} // namespace documents
