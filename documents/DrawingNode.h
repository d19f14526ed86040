// What may stand at one place of a drawing document: nodes take the values as they are read, one by one.
#pragma once

#include "documents/DrawingError.h"
#include "documents/ToleratedErrors.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace drawing {
class Database;
}

namespace documents {

class Node;

/// A number of the document.
struct NumberToken {
    double value = 0.0;
    bool isInteger = false; // written without fraction and exponent, and within 64 bits
    std::int64_t integer = 0;
    std::string_view text; // as written, when it is not an integer
};

/// The number as it stands in a message.
std::string Shown(const NumberToken& number);
/// A text as it stands in a message: in quotes, shortened, control characters as "?".
std::string Shown(std::string_view text);

/// The end of a text that is no value of the document, shortened likewise.
std::string ShownEnd(std::string_view text);

/// Where reading has got to, and what it refused or left out.
class ReadState {
public:
    /// `tolerated` is null for a strict reading.
    ReadState(drawing::Database& database, ToleratedErrors* tolerated)
        : database_(database), tolerated_(tolerated) {}

    drawing::Database& Target() { return database_; }

    /// Keeps the error, at the place that reading has got to, or `below` it ("[3].name"). Always false.
    bool Refuse(diagnostics::Code code, std::vector<std::string> subjects, std::string_view below = {});
    /// Refuses a value that is not `expected`.
    bool RefuseValue(std::string expected, std::string found, std::string_view below = {});
    const DrawingError& Error() const { return error_; }

    ToleratedErrors* Tolerated() { return tolerated_; }
    /// Refuses `part`, which can be missed by itself. A tolerant reading goes on, and the result is true.
    bool RefuseSpare(diagnostics::Code code, std::vector<std::string> subjects, std::string_view below,
                     std::string_view part);
    /// The key met last is none of its object's.
    void RefuseUnknownKey();

    /// After a value was refused, whose node may be null, or an object or array that is complete: leaves out
    /// the smallest part that can be missed. False when there is none, or nothing is tolerated.
    bool TolerateValue(const Node* node, bool isStart);
    bool TolerateEnd(Node& node);
    /// The same after a key.
    bool TolerateKey();
    /// The text is no JSON from here on, and nothing more is read.
    bool TolerateCut();
    /// What comes next belongs to a part that is left out.
    bool IsSkipping() const { return skipsNext_ || skippedLevels_ > 0; }
    void SkipScalar() { skipsNext_ = false; }
    void SkipStart() {
        skipsNext_ = false;
        ++skippedLevels_;
    }
    void SkipEnd() { --skippedLevels_; }

    void Enter(Node& node, bool isArray);
    /// Leaves the innermost object or array and gives its node.
    Node& Leave();
    bool IsAtTop() const { return depth_ == 0; }
    /// Notes a key of the innermost object; false when it has no place.
    bool GoToKey(const std::string& key);
    /// The node of the value that comes next inside the innermost object or array; null when there is no
    /// place for it (the error is kept then).
    Node* NextInside();

private:
    struct Frame {
        Node* node = nullptr;
        bool isArray = false;
        bool hasPlace = false; // a key or an element was met
        std::size_t index = 0;
        std::string key;
        Node* value = nullptr;
    };

    std::string Path() const;
    void LeaveOut(Node& part);
    // Leaves out the innermost part around this place, where `opened` more objects and arrays have begun.
    bool LeaveOutAround(std::size_t opened);

    drawing::Database& database_;
    ToleratedErrors* tolerated_;
    DrawingError error_;
    bool keyIsUnknown_ = false;
    bool skipsNext_ = false;        // the next value
    std::size_t skippedLevels_ = 0; // objects and arrays that have to end before reading goes on
    std::vector<Frame> frames_;     // kept for reuse above depth_
    std::size_t depth_ = 0;
};

/// Base of all nodes. A value of a kind that a node does not take is refused. Each of the taking operations
/// is false when the value was refused.
class Node {
public:
    virtual ~Node() = default;
    Node() = default;
    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;

    /// What a message calls an object that can be left out by itself: "entity". Empty for all else.
    virtual std::string_view Part() const { return {}; }
    /// The same with its name, "linetype GAS", where it has one that is known already.
    virtual std::string Item() const { return {}; }
    /// It is left out, though it has begun.
    virtual void Abandon(ReadState& /*state*/) {}
    /// Whether nothing can be made of a document without this value.
    virtual bool IsNeeded() const { return false; }

    /// What belongs here: "a number".
    virtual std::string Expected() const = 0;

    virtual bool Null(ReadState& state) { return RefuseKind(state, "null"); }
    virtual bool Boolean(ReadState& state, bool value);
    virtual bool Number(ReadState& state, const NumberToken& number);
    virtual bool String(ReadState& state, std::string& value);

    virtual bool BeginObject(ReadState& state) { return RefuseKind(state, "an object"); }
    virtual bool BeginArray(ReadState& state) { return RefuseKind(state, "an array"); }
    /// The node of the value of a key of this object; null when there is no such key.
    virtual Node* Key(ReadState& state, std::string_view key);
    /// The node of the next element of this array.
    virtual Node* Element(ReadState& state);
    /// The object or array is complete.
    virtual bool End(ReadState& state);

    /// Forgets the value, for the next object of the same kind.
    virtual void Reset() {}

protected:
    bool RefuseKind(ReadState& state, std::string_view found) const;
};

} // namespace documents
