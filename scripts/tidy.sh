#!/usr/bin/env bash
# Runs clang-tidy over the given sources; over everything with --all; or over what every test run looks at: all but the
# tool, the tests, the fuzz targets and the benchmarks, whose libraries take it half an hour more.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

cmake --preset tidy >/dev/null

case ${1-} in
  "") folders='StyleConversion|drawing|documents|preview' ;;
  --all) folders='StyleConversion|drawing|documents|preview|styleconv|tests|fuzz|benchmarks' ;;
  *) exec python3 scripts/tidy.py build/tidy "$@" ;;
esac
mapfile -t sources < <(git ls-files '*.cpp' | grep -E "^($folders)/" | grep -v '/windows/')
exec python3 scripts/tidy.py build/tidy "${sources[@]}"
