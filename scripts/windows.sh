#!/usr/bin/env bash
# Builds the libraries, the tool and the tests for 64-bit Windows, and runs the tests under wine.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh
source scripts/steps.sh
install_packages "${tool_packages[@]}" "${test_packages[@]}" "${windows_packages[@]}"

step "Configure" cmake --preset windows
step "Build" cmake --build --preset windows
shown_step "Test" ctest --preset windows --progress
