#!/usr/bin/env bash
# Measures the programs on an otherwise idle machine. quilvane on the largest
# legal file: whole process against cp, cat and an awk script (hyperfine) in
# memory, against cp and sync on a disk, instructions per record and allocations
# (valgrind), peak memory, and the benchmarks of bench/mesures.cpp.
#
#   scripts/bench.sh            all of that
#   scripts/bench.sh rapport    the table of ratios only
#   scripts/bench.sh pairs      quilvane beside awk, Python and Node on ACTI records
#   scripts/bench.sh guide      quilvane-guide verifier over 100 files of 10,000 records
#   scripts/bench.sh lot        quilvane-lot against bench/boucle.sh and with two cores
#
# The last three run what they compare in turns and print the median of the turns
# as rows for doc/performance.md. QUILVANE_TOURS is their number (5).
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
cp bench/a_la_main.awk bench/acti.schema.json bench/valider.py bench/valider.js bench/boucle.sh "$dossier"
cd "$dossier"
tours=${QUILVANE_TOURS:-5}

# secondes COMMAND...: seconds that it took, whatever its status; nothing of
# what it says is kept.
secondes() {
    local debut=${EPOCHREALTIME//[.,]/} fin
    "$@" >/dev/null 2>&1 || true
    fin=${EPOCHREALTIME//[.,]/}
    printf '%d.%06d\n' $(((fin - debut) / 1000000)) $(((fin - debut) % 1000000))
}

# processeur COMMAND...: the seconds of a core that it used.
processeur() {
    env time -q -f '%U %S' -o usage "$@" >/dev/null 2>&1 || true
    awk 'END { print $1 + $2 }' usage
}

# mediane FILE: of its lines.
mediane() { sort -g "$1" | awk '{ v[NR] = $1 } END { print (v[int((NR + 1) / 2)] + v[int(NR / 2) + 1]) / 2 }'; }

calculer() { awk "BEGIN { printf \"$1\", $2 }"; }

# mesurer FILE COMMAND [RUNS [WARM-UPS]]: median milliseconds of a command. Before
# each run the file is put back and the output removed: writing over a file costs
# more.
mesurer() {
    hyperfine -N --style none --warmup "${4:-10}" --runs "${3:-200}" --ignore-failure --prepare "sh -c 'cp $1 recu; rm -f emis'" \
        --export-json mesure.json "$2" >/dev/null 2>&1
    jq -r '.results[0].median * 1000' mesure.json
}

mesurer_pairs() {
    exiger python3 python3-jsonschema nodejs node-ajv
    export NODE_PATH=/usr/share/nodejs
    local fautes i p
    # Accepted records go to one file, the others to another; quilvane makes
    # error records of them. By name: the command and how it is called below.
    local -A commandes=(
        [quilvane]="$programme recu emis log"
        [awk]="sh -c 'gawk -f a_la_main.awk recu > emis'"
        [python]="/usr/bin/python3 -B valider.py recu emis refus"
        [node]="node valider.js recu emis refus"
    ) noms=(
        [quilvane]="\`quilvane\`, every rule"
        [awk]="awk, framing and header lists only"
        [python]="Python $(/usr/bin/python3 -c 'import platform; print(platform.python_version())') and jsonschema $(
            dpkg-query -W -f '${Version}' python3-jsonschema), the rules of one field"
        [node]="Node $(node -p process.versions.node) and ajv $(dpkg-query -W -f '${Version}' node-ajv), the same"
    )
    for fautes in 0 100; do
        "$generateur" types=ACTI fautes=$fautes >acti.$fautes
        for i in $(seq "$tours"); do
            for p in quilvane awk python node; do
                mesurer acti.$fautes "${commandes[$p]}" 10 1 >>temps.$p.$fautes
            done
        done
    done
    echo "== peers in $(df --output=fstype . | tail -1), 10000 ACTI records, whole process, median of $tours turns of 10 runs"
    echo "| command | accepted, ms | x \`quilvane\` | all in error, ms | x \`quilvane\` |"
    echo "| --- | --- | --- | --- | --- |"
    for p in quilvane awk python node; do
        printf '| %s |' "${noms[$p]}"
        for fautes in 0 100; do
            calculer ' %.1f | %.1f |' "$(mediane temps.$p.$fautes), $(mediane temps.$p.$fautes) / $(mediane temps.quilvane.$fautes)"
        done
        echo
    done
}

mesurer_guide() {
    local guide=$racine/build/bench/quilvane-guide coeur fautes format i s p
    # The last core of those that this process may use.
    coeur=$(taskset -cp $$ | grep -o '[0-9]*$')
    echo "== quilvane-guide verifier, 100 files of 10000 records, core $coeur alone, median of $tours turns"
    echo "| records in error | format | seconds | million records a second | seconds of the processor |"
    echo "| --- | --- | --- | --- | --- |"
    for fautes in 0 1 100; do
        mkdir lus
        for i in $(seq 100); do "$generateur" graine="$i" fautes=$fautes >lus/f"$i"; done
        for i in $(seq "$tours"); do
            for format in texte json; do
                secondes taskset -c "$coeur" "$guide" verifier --format $format lus/* >>temps.$format.$fautes
                processeur taskset -c "$coeur" "$guide" verifier --format $format lus/* >>usage.$format.$fautes
            done
        done
        for format in texte json; do
            s=$(mediane temps.$format.$fautes)
            p=$(mediane usage.$format.$fautes)
            calculer "| $fautes %% | $format | %.2f | %.2f | %.2f |\n" "$s, 1 / $s, $p"
        done
        rm -r lus
    done
}

# mesurer_lot FOLDER FILES RECORDS FAULTS: bench/boucle.sh and quilvane-lot over
# the same files in that folder, half of them with FAULTS per cent in error.
mesurer_lot() {
    local ici=$1 nombre=$2 records=$3 fautes=$4 i qui quoi b u d guide=()
    rm -rf "$ici/modele" temps.boucle temps.j1 temps.j2
    mkdir "$ici/modele"
    for i in $(seq "$nombre"); do
        "$generateur" graine="$i" nombre="$records" fautes=$((i % 2 * fautes)) >"$ici/modele/f$i"
    done
    quoi=accepted
    if [ "$fautes" -gt 0 ]; then
        quoi="half of them refused, with their reports"
        guide=("$racine/build/bench/quilvane-guide")
    fi
    deposer() {
        rm -rf "$ici/depot"
        mkdir -p "$ici/depot/arrivee"
        cp "$ici"/modele/* "$ici/depot/arrivee"
        sync -f "$ici"
    }
    boucle_seule() { ./boucle.sh "$ici/depot" "$programme" "${guide[@]}"; }
    lot_seul() { "$racine/build/bench/quilvane-lot" --repos 0 -j "$1" "$ici/depot"; }
    for i in $(seq "$tours"); do
        deposer
        secondes boucle_seule >>temps.boucle
        verifier_depot "$ici/depot" "$nombre"
        for qui in 1 2; do
            deposer
            secondes lot_seul $qui >>temps.j$qui
            verifier_depot "$ici/depot" "$nombre"
        done
    done
    rm -rf "$ici/depot" "$ici/modele"
    b=$(mediane temps.boucle)
    u=$(mediane temps.j1)
    d=$(mediane temps.j2)
    printf '| %s | %d of %d records, %s |' "$(df --output=fstype "$ici" | tail -1)" "$nombre" "$records" "$quoi"
    calculer ' %.1f | %.1f | %.1f | %.2f | %.2f |\n' "$nombre / $b, $nombre / $u, $nombre / $d, $u / $b, $u / $d"
}

# verifier_depot DEPOT FILES: a figure for work that was not done is none.
verifier_depot() {
    [ "$(find "$1/emis" "$1/rejets" -type f ! -name '*.txt' ! -name '*.html' | wc -l)" -eq "$2" ] &&
        [ "$(wc -l <"$1/journal.jsonl")" -eq "$2" ] || arreter "$1: not all $2 files were processed"
}

case ${1:-} in
    pairs)
        mesurer_pairs
        exit
        ;;
    guide)
        mesurer_guide
        exit
        ;;
    lot)
        echo "== files a second through a spool, $(nproc) cores, median of $tours turns"
        echo "| file system | files | shell loop | \`-j 1\` | \`-j 2\` | time of \`-j 1\` / loop | \`-j 1\` / \`-j 2\` |"
        echo "| --- | --- | --- | --- | --- | --- | --- |"
        mesurer_lot "$dossier" 1000 20 0
        mesurer_lot "$dossier" 1000 20 50
        mesurer_lot "$dossier" 100 10000 0
        mesurer_lot "$disque" "${QUILVANE_FICHIERS:-1000}" 20 0
        mesurer_lot "$disque" 100 10000 0
        exit
        ;;
esac

"$generateur" >acceptes
"$generateur" fautes=100 >rejetes
"$generateur" types=ACTI fautes=0 >acti

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
