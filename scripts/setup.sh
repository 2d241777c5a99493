#!/usr/bin/env bash
# Sets up a fresh Debian machine, builds, and runs the main job or the tests.
#   scripts/setup.sh          install what is missing, build, run ipconfig-rw on examples/
#   scripts/setup.sh --test   install what is missing, build, run the whole test suite,
#                             then again built with -fsanitize=address,undefined, then
#                             each fuzz target for 30 s on its corpus (clang)
set -euo pipefail

mode=run
case "${1:-}" in
  "") ;;
  --test) mode=test ;;
  *) echo "usage: $0 [--test]" >&2; exit 2 ;;
esac

cd "$(dirname "$0")/.."

packages=(cmake g++ ninja-build pkg-config rapidjson-dev libboost-dev libboost-filesystem-dev
          libboost-iostreams-dev libgtest-dev libgmock-dev libbenchmark-dev graphviz librsvg2-bin
          clang libclang-rt-dev)
missing=()
for package in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" ||
    missing+=("$package")
done
if [ ${#missing[@]} -gt 0 ]; then
  sudo=""
  [ "$(id -u)" -eq 0 ] || sudo=sudo
  echo "Installing: ${missing[*]}"
  $sudo apt-get update -q
  $sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
fi

jobs=$(nproc)
build() {
  local dir=$1; shift
  cmake -S . -B "$dir" -G Ninja "$@"
  cmake --build "$dir" -j "$jobs"
}

if [ "$mode" = run ]; then
  build build -DCMAKE_BUILD_TYPE=Release
  scripts/run-examples.sh build/tools/ipconfig-rw
else
  build build -DCMAKE_BUILD_TYPE=Release
  ctest --test-dir build --output-on-failure -j "$jobs"
  build build-sanitize -DCMAKE_BUILD_TYPE=Debug -DIPCONFIG_RW_SANITIZE=ON -DIPCONFIG_RW_BUILD_BENCH=OFF
  ctest --test-dir build-sanitize --output-on-failure -j "$jobs"
  if command -v clang++ >/dev/null; then
    scripts/fuzz.sh 30
  fi
fi
