#!/bin/sh
# What people write by hand for a spool: a yardstick for quilvane-lot. Takes the
# same steps in the same order and has each on the disk before the next, with as
# few programs as that takes; makes no digests, reads no result, and survives no
# kill.
#
#   boucle.sh DEPOT QUILVANE [GUIDE]    GUIDE writes two reports on refused files
cd "$1" || exit 1
quilvane=$2
guide=${3:-}
jour=archive/$(date -u +%Y/%m/%d)
mkdir -p encours emis rejets echecs "$jour"
for f in arrivee/*; do
    nom=${f##*/}
    c=encours/$nom
    mkdir "$c" "$c/entree" "$c/travail"
    sync "$c" encours
    mv "$f" "$c/entree/$nom"
    sync "$c/entree" arrivee
    cp "$c/entree/$nom" "$c/copie"
    sync "$c/copie" "$c"
    ln "$c/copie" "$jour/$nom"
    sync "$jour"
    ln "$c/copie" "$c/travail/recu"
    (cd "$c/travail" && exec "$quilvane" recu emis log >console 2>&1)
    case $? in
        0) ou=emis ;;
        2) ou=rejets ;;
        *) ou=echecs ;;
    esac
    sync "$c/travail/emis" "$c/travail"
    if [ $ou = rejets ] && [ -n "$guide" ]; then
        "$guide" verifier --format texte "$jour/$nom" >"$c/rapport.txt"
        "$guide" verifier --format html "$jour/$nom" >"$c/rapport.html"
        sync "$c/rapport.txt" "$c/rapport.html" "$c"
        mv "$c/rapport.txt" "rejets/$nom.txt"
        mv "$c/rapport.html" "rejets/$nom.html"
    fi
    echo "$nom $ou" >"$c/verdict"
    sync "$c/verdict" "$c"
    mv "$c/travail/emis" "$ou/$nom"
    sync "$ou" "$c/entree" "$c/travail" "$c"
    echo "{\"nom\":\"$nom\",\"issue\":\"$ou\"}" >>journal.jsonl
    sync journal.jsonl
    rm -r "$c"
done
