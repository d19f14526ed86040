#!/usr/bin/env bash
# Fuzzes every target, one after the other, for SECONDS in all (default 600).
# Usage: scripts/fuzz.sh [SECONDS [TARGET...]]
#
# New inputs that reach new code are kept in build/fuzz/corpus/. An input that ends a target is a finding: it is
# left in build/fuzz/found/, and belongs, made small, into fuzz/findings/<target>/ with the mend.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh
source scripts/steps.sh
install_packages "${tool_packages[@]}" clang ccache

seconds=${1:-600}
if [ $# -gt 1 ]; then
  targets=("${@:2}")
else
  mapfile -t targets < <(ls fuzz/corpus)
fi

step "Configure" cmake --preset fuzz
step "Build" cmake --build --preset fuzz --target "${targets[@]/#/fuzz_}"

share=$((seconds / ${#targets[@]}))
found=0
mkdir -p build/fuzz/found build/fuzz/logs
for target in "${targets[@]}"; do
  corpus=build/fuzz/corpus/$target
  mkdir -p "$corpus"
  # Weighing inputs by how rare what they reach is takes a third of the time and comes upon no more.
  options=(-entropic=0 -max_total_time="$share" -timeout=10 -rss_limit_mb=2048 -max_len=4096 -print_final_stats=1
    -artifact_prefix="build/fuzz/found/$target-")
  [ ! -e "fuzz/dictionaries/$target.dict" ] || options+=(-dict="fuzz/dictionaries/$target.dict")
  log=build/fuzz/logs/$target-$(date +%s).log
  if "build/fuzz/bin/fuzz_$target" "${options[@]}" "$corpus" "fuzz/corpus/$target" "fuzz/findings/$target" \
    >"$log" 2>&1; then
    outcome="nothing found"
  else
    outcome="FOUND SOMETHING: see $log"
    found=1
  fi
  executions=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
  echo "$target: $share seconds, ${executions:-?} executions, $outcome"
done
exit $found
