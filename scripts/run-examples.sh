#!/usr/bin/env bash
# The main job: runs ipconfig-rw on every bundled example and prints what it
# read, then draws the pictures of the examples into the build's pictures/.
# Usage: scripts/run-examples.sh [path/to/ipconfig-rw]
set -euo pipefail

here=$(cd "$(dirname "$0")/.." && pwd)
tool=${1:-$here/build/tools/ipconfig-rw}
# Absolute, since some runs change the working directory.
tool=$(cd "$(dirname "$tool")" && pwd)/$(basename "$tool")
examples=$here/examples
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
pictures=$(cd "$(dirname "$tool")/.." && pwd)/pictures

# A format that is read only: the example must read cleanly.
check() {
  local format=$1 file=$2
  "$tool" "$format" check "$examples/$file"
}

# A format that is read and written: the round trip must give the same bytes.
run() {
  local format=$1 file=$2
  "$tool" "$format" check "$examples/$file"
  "$tool" "$format" roundtrip "$examples/$file" "$out/$file"
  cmp "$examples/$file" "$out/$file"
}

# A file that its first write merges or puts in order: the second write must
# give the bytes of the first.
settle() {
  local format=$1 file=$2
  "$tool" "$format" check "$examples/$file"
  "$tool" "$format" roundtrip "$examples/$file" "$out/once-$file"
  "$tool" "$format" roundtrip "$out/once-$file" "$out/$file"
  cmp "$out/once-$file" "$out/$file"
}

run metadata metadata.json
run logicalarch logical_arch.json
"$tool" partition write "$examples/logical_arch.json" "$out/partition.json" \
  --array-start 0 --array-size 50 --partition-start 10 --partition-size 4 \
  --uuid 12345678-9abc-def0-1234-56789abcdef0 --intf-id 0x2a --namespace radar
cmp "$examples/partition.json" "$out/partition.json"
run traffic traffic.json
check traffic traffic.json.gz
# The compressed copy still joins its connection groups without a blank; its
# first write puts it in the written form of the plain example.
"$tool" traffic roundtrip "$examples/traffic.json.gz" "$out/from-gz.json"
cmp "$examples/traffic.json" "$out/from-gz.json"
"$tool" solution check "$examples/traffic.json" "$examples/solution.json"
"$tool" solution check "$examples/traffic.json" "$examples/solution_written.json"
# The compiler's own file takes its written form at the first write, and the
# written form gives itself again. Paths follow the traffic model's order,
# whatever the addresses its nets get: the same bytes come from absolute
# paths and from relative ones in another working directory.
"$tool" solution roundtrip "$examples/traffic.json" "$examples/solution.json" "$out/solution.json"
cmp "$examples/solution_written.json" "$out/solution.json"
"$tool" solution roundtrip "$examples/traffic.json" "$examples/solution_written.json" \
  "$out/solution_written.json"
cmp "$examples/solution_written.json" "$out/solution_written.json"
(cd "$examples" && "$tool" solution roundtrip traffic.json solution_written.json \
  "$out/relative.json")
cmp "$examples/solution_written.json" "$out/relative.json"
run nocconstraints noc_constraints.json
"$tool" nocconstraints check "$examples/noc_constraints_on_device.json" \
  --traffic "$examples/traffic.json"
run constraints constraints.json
run constraints placement.json
run constraints colocation.json
run constraints every_kind.json
settle constraints area_groups.json
run constraints array_placement.json
"$tool" constraints areagroups "$examples/area_groups.json" "$out/groups.json"
cmp "$out/area_groups.json" "$out/groups.json"

# The compiler hand-off: a solution against the logical architecture and the
# traffic example on the shipped device; the files written from it must give
# the bytes of their examples.
handoff=(qpe_demo "$examples/logical_arch.json" "$examples/traffic.json")
solution=$examples/compiler_solution.json
"$tool" compilersolution check "${handoff[@]}" "$solution"
"$tool" compilersolution roundtrip "${handoff[@]}" "$solution" "$out/compiler_solution.json"
cmp "$solution" "$out/compiler_solution.json"
"$tool" shimconstraints write "${handoff[@]}" "$solution" top/array "$out/shim_constraints.json"
cmp "$examples/shim_constraints.json" "$out/shim_constraints.json"
"$tool" shimconstraints interfaceid "${handoff[@]}" "$solution" top/array
"$tool" plinterface write "${handoff[@]}" "$solution" "$out/pl_interface.json"
cmp "$examples/pl_interface.json" "$out/pl_interface.json"

# A picture: its DOT text must be the checked-in one; with Graphviz at hand
# it is rendered as SVG too.
picture() {
  local format=$1 file=$2 name=${2%.json}
  "$tool" "$format" dot "$examples/$file" > "$pictures/$name.dot"
  cmp "$examples/$name.dot" "$pictures/$name.dot"
  if command -v dot > /dev/null; then
    dot -Tsvg "$pictures/$name.dot" -o "$pictures/$name.svg"
  fi
}

mkdir -p "$pictures"
picture logicalarch logical_arch.json
picture traffic traffic.json

# The constraints as SVG pictures of the array; the one on the shipped device
# must be the checked-in picture. With rsvg-convert at hand they are rendered
# as PNG too.
drawing() {
  local file=$1 name=${1%.json}
  shift
  "$tool" constraints draw "$examples/$file" "$pictures/$name.svg" "$@"
  if command -v rsvg-convert > /dev/null; then
    rsvg-convert "$pictures/$name.svg" -o "$pictures/$name.png"
  fi
}
drawing array_placement.json --device qpe_demo
cmp "$examples/array_placement.svg" "$pictures/array_placement.svg"
drawing placement.json
# Ties: a colocation of two pinned nodes, a node put by its offset.
drawing colocation.json
drawing every_kind.json
drawing area_groups.json
echo "Pictures of the examples: $pictures"
