// JSON text, written straight into one string.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace documents {

/// Appends one value, and what is inside it, to a string. Members of objects and items of lists stand on
/// lines of their own, two blanks further in for each level; what has none is "{}" or "[]". Texts are UTF-8,
/// with escapes only where JSON asks for them.
///
/// Each call is one step through the text, and the caller takes the steps in an order that JSON allows. Only
/// memory can fail: std::bad_alloc reaches the caller, and the string holds what was written until then.
class JsonText {
public:
    /// The value's own first line continues the line that `text` ends in; its further ones are indented by
    /// `level` levels more. `text` must outlive this object.
    explicit JsonText(std::string& text, std::size_t level = 0) : text_(text), level_(level) {}

    void BeginObject() { Begin('{'); }
    void EndObject() { End('}'); }
    void BeginList() { Begin('['); }
    void EndList() { End(']'); }

    /// From here on, members and items stand in the line that is written, as does the bracket behind them; or
    /// on lines of their own again.
    void StayOnLine(bool stays) { staysOnLine_ = stays; }

    /// The name of the next member, of letters alone.
    void Key(std::string_view key);

    /// What is no character, a lone surrogate for one, is written as U+FFFD.
    void Text(std::wstring_view value);
    /// Of letters alone.
    void PlainText(std::string_view value);
    void Integer(std::int64_t value);
    void Boolean(bool value);
    /// The shortest digits that stand for `value`, with a point or an exponent; null where it is not finite.
    void Number(double value);

private:
    void Begin(char bracket);
    void End(char bracket);
    void BeginValue();
    void BeginLine();

    std::string& text_;
    std::size_t level_;
    bool staysOnLine_ = false;
    // Whether the object or list that is open has nothing in it yet.
    bool isEmpty_ = true;
    // Whether the next value stands on a line of its own: it is an item of a list. Behind a key it does not.
    bool isItem_ = false;
};

} // namespace documents
