#!/usr/bin/env bash
# Builds the fuzzers, divides SECONDS among them and prints runs, coverage and findings of each. Findings are in
# build/fuzz/findings. Inputs that cover something new are in build/fuzz/corpus, where the next run continues.
# With names of targets after the seconds only these run.
set -euo pipefail
cd "$(dirname "$0")/../../.."
seconds=${1:?"Usage: tests/search/fuzz/run.sh SECONDS [TARGET]..."}
shift
targets=("$@")
[ ${#targets[@]} -gt 0 ] || targets=(stream link history settings script text unit)

cmake --preset fuzz > build/fuzz.log 2>&1 || { cat build/fuzz.log >&2; exit 1; }
cmake --build --preset fuzz --target fuzz_seeds $(printf 'fuzz_%s ' "${targets[@]}") > build/fuzz.log 2>&1 ||
  { cat build/fuzz.log >&2; exit 1; }

bin=$PWD/build/fuzz/bin
corpus=$PWD/build/fuzz/corpus
findings=$PWD/build/fuzz/findings
TMPDIR=$(mktemp -d -p /dev/shm 2> /dev/null || mktemp -d)
export TMPDIR ASAN_OPTIONS=malloc_context_size=4:quarantine_size_mb=16
trap 'rm -rf "$TMPDIR"' EXIT
mkdir -p "$findings"
"$bin/fuzz_seeds" "$TMPDIR/seeds"

share=$((seconds / ${#targets[@]}))
all=0
found=0
printf '%-10s %12s %10s %10s %9s\n' target runs runs/s coverage findings
for target in "${targets[@]}"; do
  mkdir -p "$corpus/$target"
  log=$TMPDIR/$target.log
  words=(-max_total_time="$share" -max_len=512 -timeout=20 -rss_limit_mb=2048 -detect_leaks=0
    -entropic=0 -print_final_stats=1)
  [ ! -f "$TMPDIR/seeds/$target.dict" ] || words+=(-dict="$TMPDIR/seeds/$target.dict")
  status=0
  "$bin/fuzz_$target" "${words[@]}" -artifact_prefix="$findings/$target-" "$corpus/$target" \
    "$TMPDIR/seeds/$target" > "$log" 2>&1 || status=$?
  runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
  speed=$(sed -n 's/^stat::average_exec_per_sec: *//p' "$log")
  coverage=$(sed -n 's/.* cov: \([0-9]*\) .*/\1/p' "$log" | tail -n 1)
  new=0
  # A target ends at its first finding. An interrupted one has found nothing.
  if [ "$status" -ne 0 ] && ! grep -q 'run interrupted' "$log"; then
    new=1
    cp "$log" "$findings/$target.log"
  fi
  printf '%-10s %12s %10s %10s %9s\n' "$target" "${runs:-0}" "${speed:-0}" "${coverage:-0}" "$new"
  all=$((all + ${runs:-0}))
  found=$((found + new))
done
printf '%-10s %12s %31s\n' all "$all" "$found"
[ "$found" -eq 0 ] || { echo "What was found: $findings"; exit 1; }
