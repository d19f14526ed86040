#!/usr/bin/env bash
# Runs clang-tidy over the given sources; over everything with --all; or over what every test run looks at: all but the
# tool, the tests, the fuzz targets and the benchmarks, whose libraries take it half an hour more.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh
source scripts/steps.sh
install_packages "${tool_packages[@]}" "${test_packages[@]}"

step "Configure" cmake --preset tidy

case ${1-} in
  "") folders='c|StyleConversion|drawing|diagnostics|documents|exchange|preview|styles|conversions' ;;
  --all) folders='c|StyleConversion|drawing|diagnostics|documents|exchange|preview|styles|conversions|styleconv|tests|fuzz|benchmarks' ;;
  *) exec python3 scripts/tidy.py build/tidy "$@" ;;
esac
mapfile -t sources < <(git ls-files '*.cpp' | grep -E "^($folders)/" | grep -vE '/(windows|wasi)/')
exec python3 scripts/tidy.py build/tidy "${sources[@]}"
