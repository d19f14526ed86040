// What the tool says on standard error: one line a fault or note, beginning with the file that it is about.
#pragma once

#include <string>
#include <string_view>

namespace styleconv {

/// "file: what"
void Say(std::string_view file, std::string_view what);

/// One line as it stands.
void SayLine(std::string line);

/// "file: line 14: what"
void SayAtLine(std::string_view file, std::size_t line, std::string_view what);

/// "file: byte 412: what"
void SayAtByte(std::string_view file, std::size_t byte, std::string_view what);

/// What was asked for and is not there: a warning to a tolerant conversion, which goes on without it.
void SayMissing(std::string_view file, std::string_view what, bool isTolerant);

/// A name as it stands in a message: UTF-8, with control characters shown as "?", so that no file can move
/// the cursor of the terminal.
std::string Shown(std::string_view name);
std::string Shown(std::wstring_view name);

/// A name or a line in the file's encoding as a message shows it: of a very long one, its first characters
/// and "…".
std::string ShownName(std::string_view name);
std::string ShownLine(std::string_view text);

/// A number for people, rounded to so many parts of one.
std::string RoundedText(double value, double parts);

} // namespace styleconv
