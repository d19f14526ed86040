// Reads drawing documents: hands the JSON parser's events to the nodes of the document.
#include "documents/DrawingReader.h"

#include "documents/DrawingBlocks.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <limits>
#include <nlohmann/json.hpp>

namespace documents {
namespace {

constexpr std::size_t kChunkSize = 65536; // bytes read from the file at a time
constexpr int kNumberOutOfRange = 406;    // the JSON library's code for a number that no double can hold

/// A file as a sequence of characters.
class FileBytes {
public:
    explicit FileBytes(std::FILE* file) : file_(file) { Fill(); }
    bool AtEnd() const { return position_ == size_; }
    char Current() const { return chunk_[position_]; }
    void Advance() {
        if (++position_ == size_) {
            Fill();
        }
    }

private:
    void Fill() {
        size_ = std::fread(chunk_.data(), 1, chunk_.size(), file_);
        position_ = 0;
    }

    std::FILE* file_;
    std::array<char, kChunkSize> chunk_;
    std::size_t position_ = 0;
    std::size_t size_ = 0;
};

/// Input iterator over a file; a default one is the end.
class FileIterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = char;

    FileIterator() = default;
    explicit FileIterator(FileBytes& bytes) : bytes_(&bytes) {}
    char operator*() const { return bytes_->Current(); }
    FileIterator& operator++() {
        bytes_->Advance();
        return *this;
    }
    bool operator==(const FileIterator& other) const { return IsEnd() == other.IsEnd(); }
    bool operator!=(const FileIterator& other) const { return !(*this == other); }

private:
    bool IsEnd() const { return bytes_ == nullptr || bytes_->AtEnd(); }

    FileBytes* bytes_ = nullptr;
};

/// Receives the JSON parser's events.
class EventReceiver : public nlohmann::json_sax<nlohmann::json> {
public:
    EventReceiver(drawing::Database& database, ToleratedErrors* tolerated) : state_(database, tolerated) {}

    const DrawingError& Error() const { return state_.Error(); }
    /// After the parser gave up: whether what was read before is a drawing that may be kept.
    bool KeepsWhatWasRead() { return isCut_ && document_.EndCut(state_); }

    bool null() override {
        return Scalar([&](Node& node) { return node.Null(state_); });
    }
    bool boolean(bool value) override {
        return Scalar([&](Node& node) { return node.Boolean(state_, value); });
    }
    bool number_integer(number_integer_t value) override {
        return Number({static_cast<double>(value), true, value, {}});
    }
    bool number_unsigned(number_unsigned_t value) override {
        if (value <= static_cast<number_unsigned_t>(std::numeric_limits<std::int64_t>::max())) {
            return number_integer(static_cast<std::int64_t>(value));
        }
        const std::string text = std::to_string(value);
        return Number({static_cast<double>(value), false, 0, text});
    }
    bool number_float(number_float_t value, const string_t& text) override {
        return Number({value, false, 0, text});
    }
    bool string(string_t& value) override {
        return Scalar([&](Node& node) { return node.String(state_, value); });
    }
    bool binary(binary_t& /*value*/) override { return false; } // JSON text has none
    bool start_object(std::size_t /*elements*/) override {
        return Start(false, [&](Node& node) { return node.BeginObject(state_); });
    }
    bool key(string_t& value) override {
        return state_.IsSkipping() || state_.GoToKey(value) || state_.TolerateKey();
    }
    bool end_object() override { return End(); }
    bool start_array(std::size_t /*elements*/) override {
        return Start(true, [&](Node& node) { return node.BeginArray(state_); });
    }
    bool end_array() override { return End(); }

    bool parse_error(std::size_t /*position*/, const std::string& lastToken,
                     const nlohmann::json::exception& error) override {
        if (error.id == kNumberOutOfRange) {
            if (!state_.IsSkipping()) {
                Next(); // the place is the number's own
            }
            state_.RefuseValue("a number that is finite", ShownEnd(lastToken));
        } else {
            // "[json.exception.parse_error.101] parse error at line 1, column 5: ..."
            // with what was read last, which may be of any length.
            std::string text = error.what();
            text.erase(0, std::min(text.find("line "), text.size()));
            const std::size_t token = text.find(lastToken);
            if (token != std::string::npos) {
                text.replace(token, lastToken.size(), ShownEnd(lastToken));
            }
            state_.Refuse(diagnostics::Code::kInvalidJson, {std::move(text)});
        }
        isCut_ = state_.TolerateCut();
        return false;
    }

private:
    Node* Next() { return state_.IsAtTop() ? &document_ : state_.NextInside(); }

    // `take` hands the value to its node.
    template <class Take>
    bool Scalar(Take take) {
        if (state_.IsSkipping()) {
            state_.SkipScalar();
            return true;
        }
        Node* const node = Next();
        return (node != nullptr && take(*node)) || state_.TolerateValue(node, false);
    }
    bool Number(const NumberToken& number) {
        return Scalar([&](Node& node) { return node.Number(state_, number); });
    }
    template <class Begin>
    bool Start(bool isArray, Begin begin) {
        if (state_.IsSkipping()) {
            state_.SkipStart();
            return true;
        }
        Node* const node = Next();
        if (node == nullptr || !begin(*node)) {
            return state_.TolerateValue(node, true);
        }
        state_.Enter(*node, isArray);
        return true;
    }
    bool End() {
        if (state_.IsSkipping()) {
            state_.SkipEnd();
            return true;
        }
        Node& node = state_.Leave();
        return node.End(state_) || state_.TolerateEnd(node);
    }

    ReadState state_;
    DrawingNode document_;
    bool isCut_ = false;
};

template <class Iterator>
std::unique_ptr<drawing::Database> Read(Iterator begin, Iterator end, DrawingError& error,
                                        ToleratedErrors* tolerated) {
    auto database = std::make_unique<drawing::Database>();
    EventReceiver receiver(*database, tolerated);
    if (!nlohmann::json::sax_parse(begin, end, &receiver) && !receiver.KeepsWhatWasRead()) {
        error = receiver.Error();
        return nullptr;
    }
    return database;
}

} // namespace

std::unique_ptr<drawing::Database> ReadDrawing(std::FILE* file, DrawingError& error,
                                               ToleratedErrors* tolerated) {
    FileBytes bytes(file);
    std::unique_ptr<drawing::Database> database = Read(FileIterator(bytes), FileIterator(), error, tolerated);
    if (std::ferror(file) != 0) {
        error = {diagnostics::Code::kUnreadableFile, {"reading failed before its end"}};
        return nullptr;
    }
    return database;
}

std::unique_ptr<drawing::Database> ReadDrawing(std::string_view text, DrawingError& error,
                                               ToleratedErrors* tolerated) {
    return Read(text.begin(), text.end(), error, tolerated);
}

} // namespace documents
