#!/usr/bin/env bash
# Runs clang-tidy over the given sources; over all but the tests with --all; or over what every test run looks at:
# all but the tool, the fuzz targets and the benchmarks, whose libraries take it several minutes more.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

cmake --preset tidy >/dev/null

case ${1-} in
  "") folders='StyleConversion|drawing|documents|preview' ;;
  --all) folders='StyleConversion|drawing|documents|preview|styleconv|fuzz|benchmarks' ;;
  *) exec python3 scripts/tidy.py build/tidy "$@" ;;
esac
mapfile -t sources < <(git ls-files '*.cpp' | grep -E "^($folders)/" | grep -v '/windows/')
exec python3 scripts/tidy.py build/tidy "${sources[@]}"
