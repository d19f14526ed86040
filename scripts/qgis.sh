#!/usr/bin/env bash
# Imports the styles of all examples into QGIS, without a window, and compares its maps with drawings of the same symbols:
# qgis.sh [STYLECONV]. QGIS is large: where it is not installed this is skipped, unless CI is set, which installs it.
# Where STYLECONV_MORE_FILES names a folder, its .pat and .lin files are tested with the examples.
# "scripts/qgis.sh --pictures" takes the pictures of docs/qgis.md anew.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh

pictures=
if [ "${1:-}" = --pictures ]; then
  pictures=docs
  shift
fi
tool=${1:-build/release/bin/styleconv}

if ! dpkg-query -W -f='${Status}' python3-qgis 2>/dev/null | grep -q '^install ok installed$' && [ -z "${CI:-}" ]; then
  echo "Skipped: python3-qgis is not installed. CI=1 scripts/qgis.sh installs it."
  exit 0
fi
install_packages python3-qgis python3-numpy python3-pil librsvg2-bin fonts-dejavu-core
[ -x "$tool" ] || { echo "$tool is not there: build it first" >&2; exit 1; }

export QT_QPA_PLATFORM=offscreen
# Debian's own Python has the modules.
if [ -n "$pictures" ]; then
  /usr/bin/python3 -B tests/qgis/pictures.py "$tool" examples "$pictures"
else
  timeout 900 /usr/bin/python3 -B tests/qgis/qgis_test.py "$tool" examples
fi
