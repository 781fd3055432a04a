#!/usr/bin/env bash
# Runs every fuzz target.
#
#   scripts/fuzz.sh [SECONDS [TARGET...]]      30 seconds each by default
#
# New inputs are kept in build/fuzz/trouvailles, crashes in build/fuzz.
set -euo pipefail
. "$(dirname "$0")/paquets.sh"
cd "$racine"
exiger clang libclang-rt-dev cmake ninja-build rapidjson-dev nettle-dev

duree=${1:-30}
[ $# -gt 0 ] && shift
[ $# -gt 0 ] || set -- arguments enregistrement fichier guide lot module verifs
cmake --preset fuzz >/dev/null || arreter "preset fuzz cannot be configured"
cmake --build --preset fuzz -- --quiet || arreter "preset fuzz does not build"

for cible in "$@"; do
    # Absolute paths: the targets work in a scratch folder.
    trouvailles=$racine/build/fuzz/trouvailles/$cible
    mkdir -p "$trouvailles"
    echo "== fuzz $cible, $duree s"
    if ! build/fuzz/fuzz/"${cible}_fuzz" -max_total_time="$duree" -max_len=8192 -print_final_stats=1 \
        -artifact_prefix="$racine/build/fuzz/$cible-" "$trouvailles" "$racine/fuzz/corpus/$cible" >"build/fuzz/$cible.log" 2>&1; then
        tail -n 60 "build/fuzz/$cible.log"
        arreter "target $cible found a fault"
    fi
    grep -E 'stat::number_of_executed_units|stat::average_exec_per_sec|stat::new_units_added' "build/fuzz/$cible.log"
done
