#!/usr/bin/env bash
# Shows that the core has neither files nor a console, and that its rooms lean
# on each other in one direction. Names every line that says otherwise.
#
#   scripts/sans_fichiers.sh [SOURCES]     by default src/ beside scripts/
set -euo pipefail
racine=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
sources=${1:-$racine/src}

# Each room of the core, and what it may include.
regles='
vocabulaire vocabulaire
calendar    calendar
checks      checks calendar vocabulaire
rules       rules checks calendar vocabulaire
messages    messages rules checks calendar vocabulaire
controle    controle messages rules checks calendar vocabulaire
'

# Reads one room's files. Comments and texts are taken off first, so that they
# may name what the code must not use.
# shellcheck disable=SC2016
lire='
function dire(quoi) { printf "%s:%d: %s\n", FILENAME, FNR, quoi; fautes = 1 }
function inclus(nom,    i, piece) {
    piece = nom
    sub(/\/.*/, "", piece)
    for (i in permis)
        if (permis[i] == piece || permis[i] == nom) return
    dire("includes " nom ", which the room " salle " may not")
}
BEGIN {
    split(autorises, permis, " ")
    entetes = "^(cstdio|stdio\\.h|stdio_ext\\.h|fstream|iostream|istream|ostream|sstream|filesystem|" \
              "unistd\\.h|fcntl\\.h|dirent\\.h|sys/.*)$"
    appels = "(^|[^A-Za-z0-9_.>])(open|openat|creat|close|read|write|fopen|freopen|fdopen|tmpfile|fmemopen|" \
             "open_memstream|fclose|fread|fwrite|fflush|fseek|rewind|getc|fgetc|getchar|fgets|ungetc|putc|" \
             "fputc|putchar|puts|fputs|perror|v?(f|d|s|sn|as)?printf|v?f?scanf|remove|rename|renameat|unlink|" \
             "unlinkat|link|symlink|mkdir|rmdir|stat|lstat|fstat|access|tempnam|tmpnam|mkstemp|mkdtemp|" \
             "system|popen|exit|abort|getenv)[ \t]*\\("
}
FNR == 1 { bloc = 0 }
{
    code = $0
    if (bloc) {
        if (!sub(/^.*\*\//, "", code)) next
        bloc = 0
    }
    if (match(code, /^[ \t]*#[ \t]*include[ \t]*[<"][^>"]*[>"]/)) {
        nom = substr(code, 1, RLENGTH)
        propre = nom ~ /"/
        sub(/^[^<"]*[<"]/, "", nom)
        sub(/[>"]$/, "", nom)
        if (propre)
            inclus(nom)
        else if (nom ~ entetes)
            dire("includes <" nom ">")
        next
    }
    gsub(/\047(\\.|[^\047\\])\047/, "0", code)
    gsub(/"(\\.|[^"\\])*"/, "\"\"", code)
    sub(/\/\/.*/, "", code)
    gsub(/\/\*([^*]|\*[^\/])*\*\//, " ", code)
    if (sub(/\/\*.*/, "", code)) bloc = 1
    while (match(code, appels)) {
        nom = substr(code, RSTART, RLENGTH)
        gsub(/[^a-z_]/, "", nom)
        dire("calls " nom)
        code = substr(code, RSTART + RLENGTH)
    }
}
END { exit fautes }'

fautes=0
while read -r salle autorises; do
    [ -n "$salle" ] || continue
    shopt -s nullglob
    fichiers=("$sources/$salle"/*.cpp "$sources/$salle"/*.h)
    if [ ${#fichiers[@]} -eq 0 ]; then
        echo "$sources/$salle: no sources" >&2
        fautes=1
        continue
    fi
    awk -v salle="$salle" -v autorises="$autorises" "$lire" "${fichiers[@]}" >&2 || fautes=1
done <<<"$regles"
[ $fautes -eq 0 ] || { echo "$(basename "$0"): the core is not what it should be" >&2; exit 1; }
echo "The core uses no files and its rooms are in order."
