#!/usr/bin/env bash
# Measures the program on the largest legal file: whole process against cp, cat
# and an awk script (hyperfine) in memory, against cp and sync on a disk, instructions per record and allocations
# (valgrind), peak memory, and the benchmarks of bench/mesures.cpp. Figures are
# for an otherwise idle machine.
#
#   scripts/bench.sh            everything
#   scripts/bench.sh rapport    the table of ratios only
set -euo pipefail
. "$(dirname "$0")/paquets.sh"
cd "$racine"
exiger g++ cmake ninja-build rapidjson-dev nettle-dev libbenchmark-dev hyperfine valgrind gawk time jq
construire bench

programme=$racine/build/bench/quilvane
generateur=$racine/build/bench/bench/generateur
# In memory where the system has a place for it; QUILVANE_DISQUE names a folder
# on a disk, by default one beside the build.
dossier=$(mktemp -d -p "$([ -d /dev/shm ] && echo /dev/shm || echo "${TMPDIR:-/tmp}")")
disque=$(mktemp -d -p "${QUILVANE_DISQUE:-$racine/build}")
trap 'rm -rf "$dossier" "$disque"' EXIT
cp bench/a_la_main.awk "$dossier"
cd "$dossier"
"$generateur" >acceptes
"$generateur" fautes=100 >rejetes
"$generateur" types=ACTI fautes=0 >acti

# mesurer FILE COMMAND: median milliseconds of a command. Before each run the
# file is put back and the output removed: writing over a file costs more.
mesurer() {
    hyperfine -N --style none --warmup 10 --runs 200 --ignore-failure --prepare "sh -c 'cp $1 recu; rm -f emis'" \
        --export-json mesure.json "$2" >/dev/null 2>&1
    jq -r '.results[0].median * 1000' mesure.json
}

echo "== whole process in $(df --output=fstype . | tail -1), median of 200 runs, 10000 records, $(stat -c %s acceptes) bytes"
reference=$(mesurer acceptes "cp recu emis")
printf '%-42s %9s %9s\n' command ms "x cp"
ligne() { printf '%-42s %9.2f %9.2f\n' "$1" "$2" "$(echo "$2 $reference" | awk '{ print $1 / $2 }')"; }
ligne "cp" "$reference"
ligne "cat" "$(mesurer acceptes "sh -c 'cat recu > emis'")"
ligne "awk, framing and header lists only" "$(mesurer acceptes "sh -c 'gawk -f a_la_main.awk recu > emis'")"
ligne "quilvane, all accepted" "$(mesurer acceptes "$programme recu emis log")"
ligne "quilvane, all in error" "$(mesurer rejetes "$programme recu emis log")"
ligne "quilvane -v (start of the process)" "$(mesurer acceptes "$programme -v")"

# What the program does on a disk: the result and its folder are synchronised.
cp acceptes rejetes "$disque"
cd "$disque"
printf '#!/bin/sh\ncp recu emis && sync emis .\n' >copier
chmod +x copier
echo "== the same in $(df --output=fstype . | tail -1), against cp and sync of the copy and its folder"
reference=$(mesurer acceptes ./copier)
printf '%-42s %9s %9s\n' command ms "x cp, sync"
ligne "cp, sync" "$reference"
ligne "quilvane, all accepted" "$(mesurer acceptes "$programme recu emis log")"
ligne "quilvane, all in error" "$(mesurer rejetes "$programme recu emis log")"
cd "$dossier"
[ "${1:-}" != rapport ] || exit 0

echo "== peak memory"
for f in acceptes rejetes; do
    cp $f recu
    env time -q -f "$f %M KiB" "$programme" recu emis log || true
done

echo "== linear in the records: instructions for 10, 1000 and 10000"
instructions() {
    cp "$1" recu
    (valgrind --tool=callgrind --callgrind-out-file=cg "$programme" recu emis log 2>&1 || true) |
        awk '/Collected/ { gsub(",", "", $NF); print $NF }'
}
for n in 10 1000 10000; do
    "$generateur" nombre=$n types=ACTI >f
    printf '%6d records %12d\n' $n "$(instructions f)"
done

echo "== allocations for 10 and for 10000 records"
for n in 10 10000; do
    for p in 0 100; do
        "$generateur" nombre=$n fautes=$p >recu
        printf '%6d records, %3d %% in error: ' $n $p
        (valgrind "$programme" recu emis log 2>&1 || true) | awk '/total heap usage/ { print $5, "allocations,", $9, "bytes" }'
    done
done

echo "== instructions per record, by message type"
for type in ABAT ACTI ASSO DETE DETI ECBO ECHA EGET ENTR ERRE ERTI EXP1 EXP2 GROC IMOC IMPO INFO JALO NAIS NUMA \
    NVMN PASS PICO RACO RATA REBO SORT; do
    "$generateur" nombre=100 types=$type >f
    debut=$(instructions f)
    "$generateur" nombre=1100 types=$type >f
    printf '%s %d\n' $type $((($(instructions f) - debut) / 1000))
done

echo "== several files at once, one process each"
for i in $(seq 40); do cp acceptes f$i; done
for jobs in 1 $(nproc); do
    for i in $(seq 40); do cp acceptes f$i; done
    debut=$(date +%s%N)
    seq 40 | xargs -P "$jobs" -I{} "$programme" f{} e{} l{}
    printf '%d at a time: %d ms for 40 files\n' "$jobs" $((($(date +%s%N) - debut) / 1000000))
done

echo "== in the process"
"$racine/build/bench/bench/mesures"
