#!/usr/bin/env bash
# Runs the tool over all examples under valgrind; an error or a leak of memory fails.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh
install_packages "${tool_packages[@]}" valgrind

# Unoptimised and without sanitizers, which valgrind cannot run.
cmake -S . -B build/memcheck -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG="-O1 -g1" \
  -DSTYLECONVERSION_TESTS=OFF -DSTYLECONVERSION_BENCHMARKS=OFF >/dev/null
cmake --build build/memcheck --target styleconv

check() {
  echo "styleconv $*"
  valgrind --quiet --leak-check=full --errors-for-leak-kinds=definite,indirect,possible --error-exitcode=99 \
    --num-callers=30 --suppressions=scripts/memcheck.supp build/memcheck/bin/styleconv "$@" --time-limit 600 -o build/memcheck/result
}

for file in examples/patterns/*.pat; do
  check patterns "$file"
done
for file in examples/shapes/*.shx; do
  check glyphs "$file" --rotation 30 --vertical
done
for file in examples/linetypes/*.lin; do
  check linetypes "$file" --drawing examples/linetypes/styles.json --shapes examples/shapes
done
for file in examples/drawings/*.json; do
  check blocks "$file" --shapes examples/shapes
done
for file in examples/*/*.pat examples/*/*.shx examples/*/*.lin; do
  check list "$file"
done
echo "no errors"
