#!/usr/bin/env bash
# Builds the libraries, the tool and the tests for 64-bit Windows, and runs the tests under wine.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh
install_packages "${tool_packages[@]}" "${test_packages[@]}" "${windows_packages[@]}"

cmake --preset windows >/dev/null
cmake --build --preset windows
ctest --preset windows --progress
