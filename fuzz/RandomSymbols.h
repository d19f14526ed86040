// Symbols documents made of any bytes: each is read without a refusal, whatever the bytes are.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace fuzzing {

/// A document of at most three symbols; the same bytes make the same document.
std::string RandomSymbolsDocument(const std::uint8_t* data, std::size_t size);

} // namespace fuzzing
