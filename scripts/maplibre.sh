#!/usr/bin/env bash
# Shows the styles of all examples in MapLibre, in a browser without a window, and compares what it shows with drawings of
# the same symbols: maplibre.sh [STYLECONV]. What it needs comes by npm: without npm this is skipped, unless CI is set,
# and where npm has no network, too.
# Where STYLECONV_MORE_FILES names a folder, its .pat and .lin files are tested with the examples.
# "scripts/maplibre.sh --pictures" takes the pictures of docs/maplibre.md anew.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh

pictures=()
if [ "${1:-}" = --pictures ]; then
  pictures=(docs)
  shift
fi
tool=${1:-build/release/bin/styleconv}
packages=(maplibre-gl@5.24.1) # and the validator, which it depends on
modules=build/maplibre

if ! command -v npm >/dev/null && [ -z "${CI:-}" ]; then
  echo "Skipped: npm is not installed. CI=1 scripts/maplibre.sh installs it."
  exit 0
fi
command -v npm >/dev/null || install_packages nodejs npm || { echo "Skipped: npm cannot be installed here."; exit 0; }
install_packages chromium chromium-driver python3-selenium python3-numpy python3-pil librsvg2-2 librsvg2-bin fonts-dejavu-core
[ -x "$tool" ] || { echo "$tool is not there: build it first" >&2; exit 1; }

mkdir -p "$modules"
if ! npm install --prefix "$modules" --no-save --no-audit --no-fund --loglevel=error "${packages[@]}"; then
  echo "Skipped: npm cannot fetch ${packages[*]} here."
  exit 0
fi
timeout 300 /usr/bin/python3 -B tests/maplibre/maplibre_test.py "$tool" examples "$modules/node_modules" "${pictures[@]}"
