#!/usr/bin/env bash
# Builds everything with sanitizers, optimised and for Windows, checks formatting, runs clang-tidy, shows what is built
# for Windows to clang for the Microsoft compiler's target, and runs all tests: those of Windows under wine.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh
install_packages "${tool_packages[@]}" "${test_packages[@]}" "${windows_packages[@]}"

echo "== formatting"
git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run --Werror

presets=(debug release windows)
for preset in "${presets[@]}"; do
  echo "== $preset: build"
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset"
done

echo "== clang-tidy"
scripts/tidy.sh

echo "== the Microsoft compiler's target"
scripts/msvc.sh

for preset in "${presets[@]}"; do
  echo "== $preset: tests"
  ctest --preset "$preset" --progress
done
