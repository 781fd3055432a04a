#!/usr/bin/env bash
# Formatting and lint; fails on a difference or a finding and says how to mend it.
#
#   scripts/style.sh          clang-format over everything, clang-tidy over the
#                             sources of the last commit and of what is not
#                             committed yet
#   scripts/style.sh tout     clang-tidy over every source
#
# A changed header is linted through the sources that include it by name. Of
# src/module nothing is linted: it is built by the toolchain for WebAssembly alone.
set -euo pipefail
. "$(dirname "$0")/paquets.sh"
cd "$racine"
[ $# -eq 0 ] || [ "$*" = tout ] || arreter "'$*' is not known; the only word is: tout"
exiger g++ cmake ninja-build rapidjson-dev nettle-dev clang-format clang-tidy git

git rev-parse --git-dir >/dev/null 2>&1 || { echo "Style: no git checkout, so nothing is compared."; exit 0; }

mapfile -t sources < <(git ls-files '*.cpp' '*.h')
clang-format --dry-run --Werror "${sources[@]}" ||
    arreter "the format differs; mend it with: clang-format -i FILE..."

mapfile -t unites < <(git ls-files 'src/*.cpp' ':!src/module')
if [ $# -eq 0 ] && git rev-parse --verify --quiet HEAD~1 >/dev/null; then
    mapfile -t changes < <(git diff --name-only --diff-filter=d HEAD~1 -- src ':!src/module')
    retenues=()
    for fichier in "${changes[@]}"; do
        case $fichier in
        *.cpp) retenues+=("$fichier") ;;
        *.h) mapfile -t -O "${#retenues[@]}" retenues < <(grep -lF "\"${fichier#src/}\"" -- "${unites[@]}") ;;
        esac
    done
    mapfile -t unites < <(printf '%s\n' "${retenues[@]}" | sort -u | sed '/^$/d')
fi
if [ ${#unites[@]} -gt 0 ]; then
    cmake --preset debug -DQUILVANE_TESTS=OFF -B build/style >/dev/null || arreter "the sources cannot be configured"
    printf '%s\n' "${unites[@]}" | xargs -P "$(nproc)" -n 4 clang-tidy --quiet -p build/style ||
        arreter "clang-tidy found something; mend it, or say in .clang-tidy why the check does not fit"
fi
echo "Style: ${#sources[@]} files formatted, ${#unites[@]} sources linted."
