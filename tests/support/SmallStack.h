// Runs a piece of code on a stack of a given size and measures what it uses of it.
#pragma once

#include <cstddef>
#include <functional>

namespace test_support {

/// Runs `code` on a thread whose stack has `size` bytes, and returns how many of them were written to, those
/// that the thread itself needs included. A stack that is too small ends the program.
std::size_t RunOnStack(std::size_t size, const std::function<void()>& code);

} // namespace test_support
