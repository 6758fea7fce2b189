#!/usr/bin/env bash
# Prints how many lines of each folder of `src` the inputs of the fuzzers reach: those of build/fuzz/corpus, which run.sh
# leaves there, and the seeds. Builds the fuzzers once more, for this only, in build/coverage.
set -euo pipefail
cd "$(dirname "$0")/../../.."
targets=(stream link history settings script text unit)
clang=$(clang++ -dumpversion | cut -d . -f 1)

cmake --preset fuzz -B build/coverage -DOVL_SANITIZE=OFF -DCMAKE_CXX_FLAGS_DEBUG="-O1 -fprofile-instr-generate -fcoverage-mapping" \
  > build/coverage.log 2>&1 || { cat build/coverage.log >&2; exit 1; }
cmake --build build/coverage --target fuzz_seeds "${targets[@]/#/fuzz_}" > build/coverage.log 2>&1 ||
  { cat build/coverage.log >&2; exit 1; }

place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
# Otherwise it would leave a profile in the clone.
LLVM_PROFILE_FILE=/dev/null build/coverage/bin/fuzz_seeds "$place/seeds"
objects=()
for target in "${targets[@]}"; do
  mkdir -p "build/fuzz/corpus/$target"
  LLVM_PROFILE_FILE=$place/$target.profraw "build/coverage/bin/fuzz_$target" -runs=0 "build/fuzz/corpus/$target" \
    "$place/seeds/$target" > "$place/$target.log" 2>&1
  objects+=(-object "build/coverage/bin/fuzz_$target")
done
"llvm-profdata-$clang" merge -o "$place/all" "$place"/*.profraw
"llvm-cov-$clang" export -summary-only -instr-profile "$place/all" "${objects[@]}" 2> /dev/null |
  python3 -c '
import collections, json, os, sys
folders = collections.defaultdict(lambda: [0, 0])
for file in json.load(sys.stdin)["data"][0]["files"]:
    path = os.path.relpath(file["filename"])
    if path.startswith("src/"):
        lines = file["summary"]["lines"]
        folder = folders[path.split("/")[1]]
        folder[0] += lines["covered"]
        folder[1] += lines["count"]
for name, (covered, count) in sorted(folders.items()):
    print(f"{name:12} {covered:6} of {count:6} lines  {100 * covered / count:5.1f} %")
'
