#include "preview/SvgWriter.h"

#include "preview/Markup.h"
#include "preview/NumberTexts.h"

namespace preview {

void SvgWriter::EndStartTag() {
    if (inStartTag_) {
        out_ += '>';
        inStartTag_ = false;
    }
}

SvgWriter& SvgWriter::Open(const char* element) {
    EndStartTag();
    out_ += '<';
    out_ += element;
    open_.push_back(element);
    inStartTag_ = true;
    return *this;
}

SvgWriter& SvgWriter::Set(std::string_view attribute, std::string_view utf8) {
    out_ += ' ';
    out_ += attribute;
    out_ += "=\"";
    out_ += Escaped(utf8);
    out_ += '"';
    return *this;
}

SvgWriter& SvgWriter::Set(std::string_view attribute, std::wstring_view value) {
    out_ += ' ';
    out_ += attribute;
    out_ += "=\"";
    out_ += Escaped(value);
    out_ += '"';
    return *this;
}

SvgWriter& SvgWriter::Set(std::string_view attribute, double pixels) {
    out_ += ' ';
    out_ += attribute;
    out_ += "=\"";
    AppendPixels(out_, pixels);
    out_ += '"';
    return *this;
}

SvgWriter& SvgWriter::Text(std::wstring_view text) {
    EndStartTag();
    out_ += Escaped(text);
    return *this;
}

SvgWriter& SvgWriter::Text(std::string_view utf8) {
    EndStartTag();
    out_ += Escaped(utf8);
    return *this;
}

SvgWriter& SvgWriter::Close() {
    if (inStartTag_) {
        out_ += "/>";
        inStartTag_ = false;
    } else {
        out_ += "</";
        out_ += open_.back();
        out_ += '>';
    }
    open_.pop_back();
    return *this;
}

} // namespace preview
