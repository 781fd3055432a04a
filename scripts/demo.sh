#!/usr/bin/env bash
# Builds the program and runs it on example files: an accepted movement, birth
# and slaughter notice, and a rejected one of each.
set -euo pipefail
. "$(dirname "$0")/paquets.sh"
cd "$racine"
exiger g++ cmake ninja-build rapidjson-dev nettle-dev

cmake --preset release -DQUILVANE_TESTS=OFF -B build/demo >/dev/null || arreter "cannot be configured"
cmake --build build/demo -- --quiet || arreter "does not build"

dossier=$(mktemp -d)
trap 'rm -rf "$dossier"' EXIT

# montrer NOM: runs the program on a copy of exemples/NOM.vse and shows what came of it.
montrer() {
    cp "exemples/$1.vse" "$dossier/"
    echo "\$ quilvane $1.vse $1.out $1.log"
    local statut=0
    (cd "$dossier" && "$racine/build/demo/quilvane" "$1.vse" "$1.out" "$1.log") || statut=$?
    echo "exit status $statut"
    echo "published:"
    sed 's/\r$//; s/^/  |/; s/$/|/' "$dossier/$1.out"
    if [ "$statut" -eq 2 ]; then
        echo "errors:"
        # An error record names the record's type (63-66), kind (67-69) and key
        # (72-83), and up to ten codes from column 112 on, five columns each.
        tail -n +2 "$dossier/$1.out" | sed 's/\r$//' | awk '{
            codes = ""
            for (i = 112; substr($0, i, 1) == "I"; i += 5) codes = codes " " substr($0, i + 1, 3) + 0
            printf "  %s %s %s:%s\n", substr($0, 63, 4), substr($0, 67, 3), substr($0, 72, 12), codes
        }'
    fi
    echo
}

for type in entr nais abat; do
    montrer "${type}_accepte"
    montrer "${type}_rejete"
done
