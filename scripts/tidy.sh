#!/usr/bin/env bash
# Runs clang-tidy over the given sources, or over all but the tool, the tests and what stands beside them.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

cmake --preset tidy >/dev/null

if [ $# -eq 0 ]; then
  mapfile -t sources < <(git ls-files '*.cpp' | grep -E '^(StyleConversion|drawing|documents|preview)/' |
    grep -v '/windows/')
  set -- "${sources[@]}"
fi
exec python3 scripts/tidy.py build/tidy "$@"
