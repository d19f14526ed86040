#include "documents/DrawingSlips.h"

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

void DrawingSlips::Add(const DrawingFault& fault, std::string_view consequence, std::string_view item) {
    std::string kind = WithoutPlaces(fault.path) + '\n' + fault.what;
    kind.append("\n").append(consequence).append("\n").append(item);
    const auto [known, isNew] = kinds_.try_emplace(std::move(kind), slips_.size());
    if (isNew) {
        slips_.push_back({fault, std::string(consequence), std::string(item)});
    } else {
        ++slips_[known->second].count;
    }
}

void DrawingSlips::BeginBlock() {
    kinds_.clear();
    blockStart_ = slips_.size();
}

void DrawingSlips::EndBlock(const std::string& item) {
    kinds_.clear();
    for (std::size_t i = blockStart_; i < slips_.size(); ++i) {
        slips_[i].item = item;
    }
    blockStart_ = slips_.size();
}

} // namespace documents
