#!/usr/bin/env bash
# Builds the tool and converts the example files. The results are in build/demo/.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh
install_packages "${tool_packages[@]}"

echo "Building styleconv"
cmake -S . -B build/demo-tool -G Ninja -DCMAKE_BUILD_TYPE=Release \
  -DSTYLECONVERSION_TESTS=OFF -DSTYLECONVERSION_BENCHMARKS=OFF >/dev/null
cmake --build build/demo-tool --target styleconv >/dev/null
tool=build/demo-tool/bin/styleconv

results=build/demo
mkdir -p "$results"
for file in examples/patterns/*.pat; do
  "$tool" patterns "$file" -o "$results/$(basename "$file" .pat).json"
done
for file in examples/linetypes/*.lin; do
  "$tool" linetypes "$file" --drawing examples/linetypes/styles.json --shapes examples/shapes \
    -o "$results/$(basename "$file" .lin)-linetypes.json"
done
for file in examples/shapes/*.shx; do
  "$tool" glyphs "$file" -o "$results/$(basename "$file" .shx)-glyphs.json"
done
for file in examples/drawings/*.json; do
  "$tool" blocks "$file" --shapes examples/shapes -o "$results/$(basename "$file" .json)-blocks.json"
done
echo "The converted examples are in $results/:"
ls "$results"
