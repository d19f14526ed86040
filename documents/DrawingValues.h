// The plain values of a drawing document: numbers, texts, colours, points and lists of them.
#pragma once

#include "OxDb/OxCmColor.h"
#include "OxDb/OxGePoint.h"
#include "documents/DrawingNode.h"

#include <array>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace documents {

class NumberNode : public Node {
public:
    explicit NumberNode(double fallback = 0.0) : fallback_(fallback), value_(fallback) {}
    std::string Expected() const override { return "a number"; }
    bool Number(ReadState& state, const NumberToken& number) override;
    void Reset() override { value_ = fallback_; }
    double Value() const { return value_; }

private:
    double fallback_;
    double value_;
};

/// A number above 0, 1 where it is left out.
class ScaleNode : public NumberNode {
public:
    ScaleNode() : NumberNode(1.0) {}
    std::string Expected() const override { return "a number above 0"; }
    bool Number(ReadState& state, const NumberToken& number) override;
};

/// A whole number within bounds.
class IntegerNode : public Node {
public:
    explicit IntegerNode(std::int32_t fallback = 0,
                         std::int32_t lowest = std::numeric_limits<std::int32_t>::min(),
                         std::int32_t highest = std::numeric_limits<std::int32_t>::max())
        : fallback_(fallback), value_(fallback), lowest_(lowest), highest_(highest) {}
    std::string Expected() const override;
    bool Number(ReadState& state, const NumberToken& number) override;
    void Reset() override { value_ = fallback_; }
    bool IsNeeded() const override { return lowest_ == highest_; }
    std::int32_t Value() const { return value_; }

private:
    std::int32_t fallback_;
    std::int32_t value_;
    std::int32_t lowest_;
    std::int32_t highest_;
};

/// True or false; false when it is not given.
class BooleanNode : public Node {
public:
    std::string Expected() const override { return "true or false"; }
    bool Boolean(ReadState& state, bool value) override;
    void Reset() override { value_ = false; }
    bool Value() const { return value_; }

private:
    bool value_ = false;
};

/// A text, which may not hold the character 0: names and texts of a drawing end there.
class TextNode : public Node {
public:
    explicit TextNode(std::wstring fallback = {}) : fallback_(std::move(fallback)), value_(fallback_) {}
    std::string Expected() const override { return "a string"; }
    bool String(ReadState& state, std::string& value) override;
    void Reset() override { value_ = fallback_; }
    const std::wstring& Value() const { return value_; }
    std::wstring& Value() { return value_; }

private:
    std::wstring fallback_;
    std::wstring value_;
};

/// A text of the document that is no text of the drawing: an identifier or a word of the format, as UTF-8.
class WordNode : public Node {
public:
    std::string Expected() const override { return "a string"; }
    bool String(ReadState& state, std::string& value) override;
    void Reset() override { value_.clear(); }
    const std::string& Value() const { return value_; }

private:
    std::string value_;
};

/// Must be just this text.
class FixedTextNode : public Node {
public:
    explicit FixedTextNode(std::string_view text) : text_(text) {}
    std::string Expected() const override { return Shown(text_); }
    bool String(ReadState& state, std::string& value) override;
    bool IsNeeded() const override { return true; }

private:
    std::string_view text_;
};

/// "ByLayer", "ByBlock", an index from 1 to 255, or "#rrggbb".
class ColorNode : public Node {
public:
    explicit ColorNode(const OxCmColor& fallback) : fallback_(fallback), value_(fallback) {}
    std::string Expected() const override {
        return R"(a color ("ByLayer", "ByBlock", an index from 1 to 255 or "#rrggbb"))";
    }
    bool Number(ReadState& state, const NumberToken& number) override;
    bool String(ReadState& state, std::string& value) override;
    void Reset() override { value_ = fallback_; }
    const OxCmColor& Value() const { return value_; }

private:
    OxCmColor fallback_;
    OxCmColor value_;
};

OxCmColor ByLayerColor();
OxCmColor IndexColor(std::uint8_t index);

/// A few numbers in brackets.
class TupleNode : public Node {
public:
    static constexpr std::size_t kMostNumbers = 4;

    /// Takes the tuples of a list.
    class Owner {
    public:
        virtual ~Owner() = default;
        virtual void Take(const TupleNode& tuple) = 0;
    };

    /// From `fewest` to `most` (at most kMostNumbers) numbers; `form` shows them: "[x, y]". `owner` may be
    /// null.
    TupleNode(std::size_t fewest, std::size_t most, std::string_view form, Owner* owner = nullptr,
              const std::array<double, kMostNumbers>& fallback = {});

    std::string Expected() const override { return std::string(form_); }
    bool BeginArray(ReadState& state) override;
    Node* Element(ReadState& state) override;
    bool End(ReadState& state) override;
    void Reset() override { values_ = fallback_; }

    double operator[](std::size_t index) const { return values_[index]; }
    std::size_t Count() const { return count_; }
    OxGePoint2d Point2d() const { return {values_[0], values_[1]}; }
    OxGeVector2d Vector2d() const { return {values_[0], values_[1]}; }
    OxGePoint3d Point3d() const { return {values_[0], values_[1], values_[2]}; }
    OxGeVector3d Vector3d() const { return {values_[0], values_[1], values_[2]}; }

private:
    class Cell : public Node {
    public:
        explicit Cell(TupleNode& tuple) : tuple_(tuple) {}
        std::string Expected() const override { return "a number"; }
        bool Number(ReadState& state, const NumberToken& number) override;

    private:
        TupleNode& tuple_;
    };

    Cell cell_{*this};
    std::size_t fewest_;
    std::size_t most_;
    std::string_view form_;
    Owner* owner_;
    std::array<double, kMostNumbers> fallback_;
    std::array<double, kMostNumbers> values_;
    std::size_t count_ = 0;
};

/// [x, y] or [x, y, z].
class PointNode : public TupleNode {
public:
    explicit PointNode(Owner* owner = nullptr, const std::array<double, kMostNumbers>& fallback = {})
        : TupleNode(2, 3, "a point [x, y] or [x, y, z]", owner, fallback) {}
};

/// A list of numbers.
class NumbersNode : public Node {
public:
    std::string Expected() const override { return "an array of numbers"; }
    bool BeginArray(ReadState& state) override;
    Node* Element(ReadState& state) override;
    void Reset() override { values_.clear(); }
    std::vector<double>& Values() { return values_; }

private:
    class Cell : public Node {
    public:
        explicit Cell(NumbersNode& list) : list_(list) {}
        std::string Expected() const override { return "a number"; }
        bool Number(ReadState& state, const NumberToken& number) override;

    private:
        NumbersNode& list_;
    };

    Cell cell_{*this};
    std::vector<double> values_;
};

/// A list of texts, as UTF-8.
class WordsNode : public Node {
public:
    std::string Expected() const override { return "an array of strings"; }
    bool BeginArray(ReadState& state) override;
    Node* Element(ReadState& state) override;
    void Reset() override { values_.clear(); }
    const std::vector<std::string>& Values() const { return values_; }

private:
    class Cell : public Node {
    public:
        explicit Cell(WordsNode& list) : list_(list) {}
        std::string Expected() const override { return "a string"; }
        bool String(ReadState& state, std::string& value) override;

    private:
        WordsNode& list_;
    };

    Cell cell_{*this};
    std::vector<std::string> values_;
};

/// A list of tuples, each turned into a T.
template <class T>
class TuplesNode : public Node, private TupleNode::Owner {
public:
    TuplesNode(std::size_t fewest, std::size_t most, std::string_view form)
        : tuple_(fewest, most, form, this) {}
    std::string Expected() const override { return "an array"; }
    bool BeginArray(ReadState& /*state*/) override {
        values_.clear();
        return true;
    }
    Node* Element(ReadState& /*state*/) override { return &tuple_; }
    void Reset() override { values_.clear(); }
    std::vector<T>& Values() { return values_; }

protected:
    virtual T Make(const TupleNode& tuple) = 0;

private:
    void Take(const TupleNode& tuple) override { values_.push_back(Make(tuple)); }

    TupleNode tuple_;
    std::vector<T> values_;
};

class PointsNode : public TuplesNode<OxGePoint3d> {
public:
    PointsNode() : TuplesNode(2, 3, "a point [x, y] or [x, y, z]") {}

protected:
    OxGePoint3d Make(const TupleNode& tuple) override { return tuple.Point3d(); }
};

/// A list whose elements are objects of one kind.
template <class ItemNode>
class ListNode : public Node {
public:
    template <class... Args>
    explicit ListNode(Args&... args) : item_(args...) {}
    std::string Expected() const override { return "an array"; }
    bool BeginArray(ReadState& /*state*/) override { return true; }
    Node* Element(ReadState& /*state*/) override { return &item_; }

private:
    ItemNode item_;
};

} // namespace documents
