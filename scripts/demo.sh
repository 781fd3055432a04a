#!/usr/bin/env bash
# Builds the programs and runs quilvane on example files: an accepted movement,
# birth and slaughter notice, and a rejected one of each; the last of these is
# then explained in words by quilvane-guide.
set -euo pipefail
. "$(dirname "$0")/paquets.sh"
cd "$racine"
exiger g++ cmake ninja-build rapidjson-dev nettle-dev

echo "Building, which takes a minute or two the first time."
journaliser build/demo/configuration.log cmake -G Ninja -B build/demo ||
    arreter "cannot be configured"
journaliser build/demo/construction.log cmake --build build/demo -- --quiet || arreter "does not build"

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

echo "\$ quilvane-guide retour --source exemples/abat_rejete.vse abat_rejete.out"
cp -r exemples "$dossier/"
(cd "$dossier" && "$racine/build/demo/quilvane-guide" retour --langue en --source exemples/abat_rejete.vse \
    abat_rejete.out) || true
echo
echo "The programs stand in $racine/build/demo: quilvane, quilvane-guide, quilvane-lot."
