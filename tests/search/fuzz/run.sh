#!/usr/bin/env bash
# Builds the fuzzers, runs them for SECONDS in turns, and prints runs, coverage and findings of each. Every other turn
# goes to the target that gained the most coverage in its last turn, the others to the target with the fewest runs.
# Findings are in build/fuzz/findings. Inputs that cover something new are in build/fuzz/corpus, where the next run
# continues; at the end only those are kept that the coverage needs. With names of targets after the seconds only these
# run. With --plain before the seconds the fuzzers have the checks of the standard library instead of the sanitizers, which
# makes them faster; their build is in build/fuzz-plain.
set -euo pipefail
cd "$(dirname "$0")/../../.."
build=build/fuzz options=()
if [ "${1:-}" = --plain ]; then
  build=build/fuzz-plain options=(-DOVL_SANITIZE=OFF "-DCMAKE_CXX_FLAGS_DEBUG=-O2 -g1 -D_GLIBCXX_ASSERTIONS")
  shift
fi
seconds=${1:?"Usage: tests/search/fuzz/run.sh [--plain] SECONDS [TARGET]..."}
shift
targets=("$@")
[ ${#targets[@]} -gt 0 ] || targets=(stream link history settings script text unit)

mkdir -p build
{ cmake --preset fuzz -B "$build" "${options[@]}" &&
  cmake --build "$build" --target fuzz_seeds "${targets[@]/#/fuzz_}"; } > build/fuzz.log 2>&1 ||
  { cat build/fuzz.log >&2; exit 1; }

bin=$PWD/$build/bin
corpus=$PWD/build/fuzz/corpus
findings=$PWD/build/fuzz/findings
TMPDIR=$(mktemp -d -p /dev/shm 2> /dev/null || mktemp -d)
export TMPDIR ASAN_OPTIONS=malloc_context_size=4:quarantine_size_mb=16
trap 'rm -rf "$TMPDIR"' EXIT
mkdir -p "$findings"
"$bin/fuzz_seeds" "$TMPDIR/seeds"

declare -A runs coverage gained found
for target in "${targets[@]}"; do
  mkdir -p "$corpus/$target"
  runs[$target]=0 coverage[$target]=0 gained[$target]=0 found[$target]=0
done

# The target without a finding whose number in the array is the largest, or with "least" the smallest.
pick() {
  local -n numbers=$1
  local target best=
  for target in "${targets[@]}"; do
    [ "${found[$target]}" = 0 ] || continue
    if [ -z "$best" ] || { [ "$2" = least ] && [ "${numbers[$target]}" -lt "${numbers[$best]}" ]; } ||
      { [ "$2" = most ] && [ "${numbers[$target]}" -gt "${numbers[$best]}" ]; }; then
      best=$target
    fi
  done
  echo "$best"
}

# Runs a target for some seconds. It ends at its first finding.
# shellcheck disable=SC2034 # pick reads `gained` by its name
turn() {
  local target=$1 log=$TMPDIR/$1.log status=0 covers words
  words=(-max_total_time="$2" -max_len=512 -timeout=20 -rss_limit_mb=2048 -detect_leaks=0 -entropic=0
    -print_final_stats=1 -artifact_prefix="$findings/$target-")
  [ ! -f "$TMPDIR/seeds/$target.dict" ] || words+=(-dict="$TMPDIR/seeds/$target.dict")
  "$bin/fuzz_$target" "${words[@]}" "$corpus/$target" "$TMPDIR/seeds/$target" > "$log" 2>&1 || status=$?
  runs[$target]=$((runs[$target] + $(sed -n 's/^stat::number_of_executed_units: *//p' "$log" || echo 0)))
  covers=$(sed -n 's/.* cov: \([0-9]*\) .*/\1/p' "$log" | tail -n 1)
  gained[$target]=$((${covers:-0} - coverage[$target]))
  coverage[$target]=${covers:-0}
  # An interrupted target has found nothing.
  if [ "$status" -ne 0 ] && ! grep -q 'run interrupted' "$log"; then
    found[$target]=1
    cp "$log" "$findings/$target.log"
  fi
}

# Leaves the inputs that the coverage needs.
minimise() {
  local least=$TMPDIR/least
  mkdir "$least"
  if "$bin/fuzz_$1" -merge=1 -max_len=512 -detect_leaks=0 "$least" "$corpus/$1" > "$TMPDIR/merge.log" 2>&1; then
    rm -rf "${corpus:?}/$1"
    mv "$least" "$corpus/$1"
  else
    rm -rf "$least"
  fi
}

for target in "${targets[@]}"; do
  turn "$target" $((seconds / ${#targets[@]} / 4 + 1))
done
by_gain=false
while [ $SECONDS -lt "$seconds" ]; do
  if $by_gain; then target=$(pick gained most); by_gain=false; else target=$(pick runs least); by_gain=true; fi
  [ -n "$target" ] || break
  turn "$target" $((seconds / 40 + 1))
done

all=0
status=0
printf '%-10s %12s %10s %9s %9s\n' target runs coverage findings inputs
for target in "${targets[@]}"; do
  [ "${found[$target]}" != 0 ] || minimise "$target"
  printf '%-10s %12s %10s %9s %9s\n' "$target" "${runs[$target]}" "${coverage[$target]}" "${found[$target]}" \
    "$(find "$corpus/$target" -type f | wc -l)"
  all=$((all + runs[$target]))
  [ "${found[$target]}" = 0 ] || status=1
done
printf '%-10s %12s\n' all "$all"
[ $status -eq 0 ] || echo "What was found: $findings"
exit $status
