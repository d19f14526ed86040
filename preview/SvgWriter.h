// Writes elements of SVG.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace preview {

/// Appends markup to a text: Open an element, Set its attributes, then open others inside it or give it text,
/// then Close it. Attribute values and texts are escaped here and nowhere else.
class SvgWriter {
public:
    explicit SvgWriter(std::string& out) : out_(out) {}

    SvgWriter& Open(const char* element);
    SvgWriter& Set(std::string_view attribute, std::string_view utf8);
    SvgWriter& Set(std::string_view attribute, std::wstring_view value);
    /// In pixels, to a hundredth.
    SvgWriter& Set(std::string_view attribute, double pixels);
    SvgWriter& Text(std::wstring_view text);
    SvgWriter& Text(std::string_view utf8);
    SvgWriter& Close();

private:
    void EndStartTag();

    std::string& out_;
    std::vector<const char*> open_;
    bool inStartTag_ = false;
};

} // namespace preview
