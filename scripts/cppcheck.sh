#!/usr/bin/env bash
# Runs cppcheck over all sources; any finding is an error.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh
install_packages cppcheck

git ls-files '*.cpp' | grep -v -e '^tests/' -e '/windows/' | xargs cppcheck \
  --std=c++20 --language=c++ --enable=warning,performance,portability \
  --inline-suppr --suppressions-list=scripts/cppcheck-suppressions.txt --quiet \
  -I . -I StyleConversion/interfaces -D STYLECONVERSION_STATIC --error-exitcode=1 -j "$(nproc)"
