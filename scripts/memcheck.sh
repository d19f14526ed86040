#!/usr/bin/env bash
# Runs the tool over all examples, and over files with slips, under valgrind; an error or a leak of memory fails.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh
source scripts/steps.sh
install_packages "${tool_packages[@]}" valgrind

# Unoptimised and without sanitizers, which valgrind cannot run.
step "Configure" cmake -S . -B build/memcheck -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG="-O1 -g1"
step "Build" cmake --build build/memcheck --target styleconv

slips=build/memcheck/slips
mkdir -p "$slips"
cp fuzz/corpus/tolerant_patterns/slips "$slips/slips.pat"
cp fuzz/corpus/tolerant_linetypes/slips "$slips/slips.lin"
cp fuzz/corpus/tolerant_drawings/slips "$slips/slips.json"
cp fuzz/corpus/tolerant_drawings/cut "$slips/cut.json"
head -c -3 examples/shapes/marks.shx >"$slips/no-trailer.shx"

# run STATUS COMMAND...: the status that the tool is to end with.
run() {
  local wanted=$1 status=0
  shift
  echo "styleconv $*"
  valgrind --quiet --leak-check=full --errors-for-leak-kinds=definite,indirect,possible --error-exitcode=99 \
    --num-callers=30 --suppressions=scripts/memcheck.supp build/memcheck/bin/styleconv "$@" --time-limit 600 \
    -o build/memcheck/result || status=$?
  if [ "$status" -ne "$wanted" ]; then
    echo "ended with status $status, and $wanted was expected" >&2
    return 1
  fi
}

pictures() {
  run 0 "$@"
  run 0 "$@" --format svg
  run 0 "$@" --format html
}

for file in examples/patterns/*.pat; do
  pictures patterns "$file"
done
for file in examples/shapes/*.shx; do
  pictures glyphs "$file" --rotation 30 --vertical
done
for file in examples/linetypes/*.lin; do
  pictures linetypes "$file" --drawing examples/linetypes/styles.json --shapes examples/shapes
done
for file in examples/drawings/*.json; do
  pictures blocks "$file" --shapes examples/shapes
done
for file in examples/*/*.pat examples/*/*.shx examples/*/*.lin examples/drawings/*.json; do
  run 0 list "$file"
  status=0
  [ "$file" != examples/patterns/marsh.pat ] || status=1 # shows a pattern that never repeats
  run "$status" check "$file" --drawing examples/linetypes/styles.json --shapes examples/shapes --format json
done

for file in "$slips"/*; do
  run 1 check "$file" --notes
done
run 1 patterns "$slips/slips.pat"
run 0 patterns "$slips/slips.pat" --tolerant --units mm
run 1 linetypes "$slips/slips.lin"
run 0 linetypes "$slips/slips.lin" --tolerant --font txt.shx
run 1 blocks "$slips/slips.json"
run 0 blocks "$slips/slips.json" --tolerant --shapes "$slips"
run 0 blocks "$slips/cut.json" --tolerant
run 1 glyphs "$slips/no-trailer.shx"
run 0 glyphs "$slips/no-trailer.shx" --tolerant
run 1 glyphs "$slips/slips.pat"
run 1 linetypes examples/linetypes/absent.lin
run 2 patterns
echo "no errors"
