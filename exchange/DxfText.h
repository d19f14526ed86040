// Texts of a DXF file: bytes in the file's encoding, with codes for characters that it lacks.
#pragma once

#include "StyleConversion/platform/CodePage.h"

#include <string>
#include <string_view>

namespace exchange {

class DxfTextDecoder {
public:
    /// UTF-8 where `isUtf8`; else the code page that the file names ("ANSI_1252"), or WINDOWS-1252 where that
    /// is empty or not known.
    DxfTextDecoder(bool isUtf8, std::string_view pageOfFile);

    /// The characters of a value. "\U+" and four hexadecimal digits are a UTF-16 unit, "\M+", a digit from 1
    /// to 5 and four hexadecimal digits a character of an East Asian code page, in any case of the letters;
    /// "^" and a character from "@" to "_" is a control character, "^ " is "^". A character 0 ends the text.
    std::wstring Decode(std::string_view bytes) const;

    /// Whether it reads the ASCII characters as what they are. Some East Asian pages have others in the place
    /// of one or two.
    bool ReadsAscii() const;

private:
    platform::PageDecoder page_;
};

} // namespace exchange
