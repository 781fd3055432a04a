#!/usr/bin/env bash
# Compares two builds of the program on damaged files.
#
#   scripts/comparer.sh OLD NEW [COUNT [SEED]]    1000 files from seed 1
#
# Each file holds records of some types made from a seed, a part of them
# wrong, and is then damaged byte by byte: characters changed, lost and added,
# lines cut, joined and lost, line ends mixed. Both programs run over it
# without traces, with -i and with -d, on a frozen clock; status, console and
# every byte of every file that is left must be equal. Status 1 at the first
# difference, which is shown and kept.
set -euo pipefail
. "$(dirname "$0")/paquets.sh"
[ $# -ge 2 ] || arreter "two programs are needed: scripts/comparer.sh OLD NEW [COUNT [SEED]]"
ancien=$(realpath "$1") nouveau=$(realpath "$2")
exiger g++ cmake ninja-build libgtest-dev libbenchmark-dev faketime python3
cd "$racine"
cmake --preset bench >/dev/null
cmake --build --preset bench --target generateur >/dev/null
exec python3 scripts/comparer.py build/bench/bench/generateur "$ancien" "$nouveau" "${3:-1000}" "${4:-1}"
