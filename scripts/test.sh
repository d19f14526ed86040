#!/usr/bin/env bash
# Builds everything with sanitizers and optimised, checks formatting, runs clang-tidy and then all tests.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh
install_packages "${tool_packages[@]}" "${test_packages[@]}"

echo "== formatting"
git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run --Werror

for preset in debug release; do
  echo "== $preset: build"
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset"
done

echo "== clang-tidy"
scripts/tidy.sh

for preset in debug release; do
  echo "== $preset: tests"
  ctest --preset "$preset" --progress
done
