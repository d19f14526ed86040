#!/usr/bin/env bash
# Runs the tests of conversions on two threads, and the tool on all examples, under ThreadSanitizer; a race fails.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh
source scripts/steps.sh
install_packages "${tool_packages[@]}" "${test_packages[@]}"

step "Configure" cmake -S . -B build/threads -G Ninja -DCMAKE_BUILD_TYPE=Debug -DSTYLECONVERSION_TESTS=ON \
  -DCMAKE_CXX_FLAGS_DEBUG="-O1 -g1 -fsanitize=thread"
step "Build" cmake --build build/threads --target thread_tests styleconv_workers_tests styleconv
export TSAN_OPTIONS="halt_on_error=1 exitcode=66"
build/threads/bin/thread_tests
build/threads/bin/styleconv_workers_tests

# Some of the examples show errors, which is status 1.
results=$(mktemp -d)
for command in "convert examples -o $results/all.html" "convert examples --tolerant --faithful -o $results/all.xml" \
  "check examples" "list examples"; do
  status=0
  # shellcheck disable=SC2086 # words of a command
  build/threads/bin/styleconv $command > "$results/output" 2> "$results/errors" || status=$?
  [ "$status" -le 1 ] || { cat "$results/errors"; exit "$status"; }
done
rm -rf "$results"
