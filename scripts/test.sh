#!/usr/bin/env bash
# Does what a new user does in a fresh clone, builds everything with sanitizers, optimised and for Windows, checks
# formatting, runs clang-tidy, shows what is built for Windows to clang for the Microsoft compiler's target, builds a host
# in the ways that hosts are built, and runs all tests: those of Windows under wine.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh
source scripts/steps.sh

shown_step "A new user" scripts/newcomer.sh
install_packages "${tool_packages[@]}" "${test_packages[@]}" "${windows_packages[@]}"

check_formatting() {
  git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run --Werror
}
step "Formatting" check_formatting

presets=(debug release windows)
for preset in "${presets[@]}"; do
  step "Configure $preset" cmake --preset "$preset"
  shown_step "Build $preset" cmake --build --preset "$preset"
done

shown_step "The documents' commands" python3 tests/commands/commands.py checkout .
shown_step "clang-tidy" scripts/tidy.sh
shown_step "The Microsoft compiler's target" scripts/msvc.sh
shown_step "Ways of building" scripts/builds.sh --quick
shown_step "Styles in QGIS" scripts/qgis.sh
shown_step "Styles in MapLibre" scripts/maplibre.sh
shown_step "The page in a browser" scripts/web.sh

# The foreign pair is built and tested with sanitizers and for Windows.
shown_step "Test debug" ctest --preset debug --progress
shown_step "Test windows" ctest --preset windows --progress
shown_step "Test release" ctest --preset release --progress -E '^host\.'
