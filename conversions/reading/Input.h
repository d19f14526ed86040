// The file that a job works on.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace conversions {

/// Its bytes, which must outlive the job, and how it is called.
struct Input {
    std::string name; // as messages call it
    std::string_view bytes;
    /// The character encoding of names and texts, which IsKnownEncoding knows. Empty: UTF-8 for a file that
    /// is UTF-8 throughout, WINDOWS-1252 for any other. Drawings are UTF-8 whatever it says.
    std::string encoding;
    /// Instead of the bytes, for drawings only: an open stream that is read as far as the drawing goes. Large
    /// drawings need never be held as a whole.
    std::FILE* stream = nullptr;
    /// The stream is a file that stands at its first byte, and can be set there again.
    bool canRewind = false;
};

/// Whether text of that encoding can be read.
bool IsKnownEncoding(const std::string& encoding);

/// The encoding of the input's names and texts: its own, where it names one that is known.
std::string EncodingOf(const Input& input);

} // namespace conversions
