#!/usr/bin/env bash
# Builds the tool and converts the example files, each to JSON and to a gallery. The results are in build/demo/.
# With --picture, it also takes the README's picture of one of the galleries, docs/gallery.png.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh
source scripts/steps.sh
install_packages "${tool_packages[@]}"

step "Configure" cmake -S . -B build/demo-tool -G Ninja
step "Build styleconv" cmake --build build/demo-tool --target styleconv
tool=build/demo-tool/bin/styleconv

results=build/demo
mkdir -p "$results"

# convert RESULT COMMAND ARGUMENT...
convert() {
  "$tool" "${@:2}" -o "$results/$1.json"
  "$tool" "${@:2}" --format html -o "$results/$1.html"
}

convert_all() {
  local file
  for file in examples/patterns/*.pat; do
    convert "$(basename "$file" .pat)" patterns "$file"
  done
  for file in examples/linetypes/*.lin; do
    convert "$(basename "$file" .lin)-linetypes" linetypes "$file" \
      --drawing examples/linetypes/styles.json --shapes examples/shapes
  done
  for file in examples/shapes/*.shx; do
    convert "$(basename "$file" .shx)-glyphs" glyphs "$file"
  done
  for file in examples/drawings/*.json; do
    convert "$(basename "$file" .json)-blocks" blocks "$file" --shapes examples/shapes
  done
}
step "Convert the examples" convert_all
echo "The converted examples are in $results/; open a .html file in a browser to see its symbols:"
ls "$results"

# photograph GALLERY PICTURE: false where the browser fails
photograph() {
  local profile picture options status=0
  profile=$(mktemp -d)
  picture=$(realpath "$2")
  options=(--headless --disable-gpu --disable-quic --no-first-run --disable-background-networking
    --disable-component-update --disable-sync --disable-dev-shm-usage --hide-scrollbars
    --force-device-scale-factor=1 --window-size=1280,860 --user-data-dir="$profile/data"
    --virtual-time-budget=3000 --screenshot="$profile/gallery.png"
    # The same bytes every time.
    --run-all-compositor-stages-before-draw --num-raster-threads=1 --disable-partial-raster)
  # The browser's sandbox refuses to start for root.
  [ "$(id -u)" -ne 0 ] || options+=(--no-sandbox)
  HOME=$profile chromium "${options[@]}" "file://$(realpath "$1")" >/dev/null 2>&1 || status=1
  [ -s "$profile/gallery.png" ] && mv "$profile/gallery.png" "$picture" || status=1
  rm -rf "$profile"
  return $status
}

if [ "${1-}" = --picture ]; then
  install_packages chromium fonts-dejavu-core
  step "Take a picture of a gallery" photograph "$results/complex-linetypes.html" docs/gallery.png
fi
