// The layout of shape files, as text.
#include "tests/support/ShapeFileBuilder.h"

#include <algorithm>

namespace test_support {
namespace {

void AppendWord(std::string& text, std::size_t value) {
    text += static_cast<char>(value & 0xff);
    text += static_cast<char>(value >> 8 & 0xff);
}

} // namespace

ShapeFileBuilder& ShapeFileBuilder::Shape(std::uint16_t number, const std::string& name, Bytes program) {
    entries_.push_back({number, name, std::move(program), false, {}});
    return *this;
}

ShapeFileBuilder& ShapeFileBuilder::Magic(std::string bytes) {
    magic_ = std::move(bytes);
    return *this;
}

ShapeFileBuilder& ShapeFileBuilder::KindWord(std::string bytes) {
    kindWord_ = std::move(bytes);
    return *this;
}

ShapeFileBuilder& ShapeFileBuilder::Version(std::string bytes) {
    version_ = std::move(bytes);
    return *this;
}

ShapeFileBuilder& ShapeFileBuilder::Count(std::uint16_t count) {
    count_ = count;
    return *this;
}

ShapeFileBuilder& ShapeFileBuilder::LastLength(std::uint16_t length) {
    entries_.back().length = length;
    return *this;
}

ShapeFileBuilder& ShapeFileBuilder::LastNameOpen() {
    entries_.back().nameOpen = true;
    return *this;
}

ShapeFileBuilder& ShapeFileBuilder::Trailer(std::string bytes) {
    trailer_ = std::move(bytes);
    return *this;
}

ShapeFileBuilder& ShapeFileBuilder::Append(const std::string& bytes) {
    behind_ += bytes;
    return *this;
}

std::string ShapeFileBuilder::NameText(const Entry& entry) {
    return entry.nameOpen ? entry.name : entry.name + '\0';
}

std::string ShapeFileBuilder::HeadText(const Entry& entry) const {
    const std::size_t length = NameText(entry).size() + entry.program.size();
    std::string text;
    AppendWord(text, entry.number);
    AppendWord(text, entry.length.value_or(static_cast<std::uint16_t>(length)));
    return text;
}

// What stands between the version and the first entry.
std::string ShapeFileBuilder::IndexText() const {
    std::string text;
    const std::size_t count = count_.value_or(static_cast<std::uint16_t>(entries_.size()));
    if (!HasIndex()) {
        AppendWord(text, count);
        return text;
    }
    const auto byNumber = [](const Entry& a, const Entry& b) { return a.number < b.number; };
    const auto range = std::minmax_element(entries_.begin(), entries_.end(), byNumber);
    AppendWord(text, entries_.empty() ? 0 : range.first->number);
    AppendWord(text, entries_.empty() ? 0 : range.second->number);
    AppendWord(text, count);
    for (const Entry& entry : entries_) {
        text += HeadText(entry);
    }
    return text;
}

std::string ShapeFileBuilder::Text() const {
    std::string text = HeaderText() + IndexText();
    for (const Entry& entry : entries_) {
        if (!HasIndex()) {
            text += HeadText(entry);
        }
        text += NameText(entry);
        text.append(entry.program.begin(), entry.program.end());
    }
    if (HasIndex()) {
        text += trailer_;
    }
    return text + behind_;
}

std::size_t ShapeFileBuilder::CountOffset() const {
    return HeaderText().size() + (HasIndex() ? 4 : 0);
}

std::size_t ShapeFileBuilder::IndexOffset() const {
    return CountOffset() + 2;
}

std::size_t ShapeFileBuilder::EntryOffset(std::size_t position) const {
    std::size_t offset = HeaderText().size() + IndexText().size();
    for (std::size_t i = 0; i < position; ++i) {
        offset += (HasIndex() ? 0 : 4) + NameText(entries_[i]).size() + entries_[i].program.size();
    }
    return offset;
}

std::size_t ShapeFileBuilder::ProgramOffset(std::size_t position) const {
    return EntryOffset(position) + (HasIndex() ? 0 : 4) + NameText(entries_[position]).size();
}

} // namespace test_support
