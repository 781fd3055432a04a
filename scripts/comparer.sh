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
#
# The program of an older commit is made beside the checkout:
#
#   git worktree add ../ancien COMMIT && cd ../ancien
#   cmake --preset release -DQUILVANE_TESTS=OFF
#   cmake --build --preset release --target quilvane
set -euo pipefail
. "$(dirname "$0")/paquets.sh"
[ $# -ge 2 ] || arreter "two programs are needed: scripts/comparer.sh OLD NEW [COUNT [SEED]]"
for programme in "$1" "$2"; do
    [[ -f $programme && -x $programme ]] || arreter "'$programme' is no program"
done
for nombre in "${3:-1000}" "${4:-1}"; do
    [[ $nombre =~ ^[1-9][0-9]{0,8}$ ]] || arreter "'$nombre' is no whole number from 1 on"
done
ancien=$(realpath "$1") nouveau=$(realpath "$2")
exiger g++ cmake ninja-build libgtest-dev libbenchmark-dev faketime python3
cd "$racine"
journaliser build/bench/configuration.log cmake --preset bench || arreter "preset bench cannot be configured"
journaliser build/bench/construction.log cmake --build --preset bench --target generateur ||
    arreter "the generator does not build"
exec python3 scripts/comparer.py build/bench/bench/generateur "$ancien" "$nouveau" "${3:-1000}" "${4:-1}"
