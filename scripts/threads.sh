#!/usr/bin/env bash
# Runs the tests of conversions on two threads under ThreadSanitizer; a race fails.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh
source scripts/steps.sh
install_packages "${tool_packages[@]}" "${test_packages[@]}"

step "Configure" cmake -S . -B build/threads -G Ninja -DCMAKE_BUILD_TYPE=Debug -DSTYLECONVERSION_TESTS=ON \
  -DCMAKE_CXX_FLAGS_DEBUG="-O1 -g1 -fsanitize=thread"
step "Build" cmake --build build/threads --target thread_tests
TSAN_OPTIONS="halt_on_error=1 exitcode=66" build/threads/bin/thread_tests
