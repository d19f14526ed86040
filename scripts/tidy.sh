#!/usr/bin/env bash
# Runs clang-tidy over the given sources, or over the library's.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

cmake --preset tidy >/dev/null

if [ $# -gt 0 ]; then
  printf '%s\n' "$@"
else
  git ls-files 'StyleConversion/*.cpp' | grep -v '/windows/'
fi | xargs -P "$(nproc)" -n 1 clang-tidy --quiet -p build/tidy 2>/dev/null
