#!/usr/bin/env bash
# Builds the libFuzzer targets with clang and runs each on its corpus, one
# after the other, at the lowest priority.
#   scripts/fuzz.sh [SECONDS] [FORMAT...]   default: 30 s for every format
# An input that fails is left under build-fuzz/artifacts/; once fixed, it
# belongs under tests/data/fuzz/FORMAT/, which ctest reads on every run.
set -euo pipefail

cd "$(dirname "$0")/.."
seconds=${1:-30}
shift || true
formats=("$@")
[ ${#formats[@]} -gt 0 ] ||
  formats=(constraints logicalarch metadata traffic nocconstraints solution compilersolution)

build=build-fuzz
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ \
  -DIPCONFIG_RW_FUZZ=ON -DIPCONFIG_RW_BUILD_TESTS=OFF -DIPCONFIG_RW_BUILD_BENCH=OFF >/dev/null
nice cmake --build "$build" -j 2 --target "${formats[@]/#/fuzz_}"

# Seeds: the examples and test files of each format.
declare -A seeds=(
  [constraints]="examples/constraints.json examples/area_groups.json examples/placement.json
                 tests/data/constraints_*.json tests/data/area_group*.json tests/data/placement_*.json"
  [logicalarch]="examples/logical_arch.json tests/data/logical_arch_*.json"
  [metadata]="examples/metadata.json tests/data/metadata_*.json"
  [traffic]="examples/traffic.json examples/traffic.json.gz"
  [nocconstraints]="examples/noc_constraints.json"
  [solution]="examples/solution.json examples/solution_written.json"
  [compilersolution]="examples/compiler_solution.json"
)

export UBSAN_OPTIONS="suppressions=$PWD/tests/fuzz/ubsan.supp:halt_on_error=1:print_stacktrace=1"
mkdir -p "$build/artifacts"
for format in "${formats[@]}"; do
  corpus=$build/corpus/$format
  mkdir -p "$corpus"
  # shellcheck disable=SC2086
  cp -n ${seeds[$format]} tests/data/fuzz/"$format"/* "$corpus"/
  echo "== fuzz_$format: ${seconds}s"
  nice -n 19 "$build/tests/fuzz/fuzz_$format" "$corpus" -max_total_time="$seconds" \
    -dict="tests/fuzz/$format.dict" -max_len=65536 -timeout=10 -rss_limit_mb=2048 \
    -artifact_prefix="$build/artifacts/${format}-" -print_final_stats=1
done
