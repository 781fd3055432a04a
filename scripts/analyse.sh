#!/usr/bin/env bash
# clang's static analyzer, all of its checks, over every source, the programs
# beside `quilvane` included.
#
#   scripts/analyse.sh      the findings, one a line
#
# What they came to stands in doc/qualite.md.
set -euo pipefail
. "$(dirname "$0")/paquets.sh"
cd "$racine"
exiger clang clang-tidy cmake ninja-build rapidjson-dev nettle-dev git
cmake -G Ninja -B build/analyse -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_COMPILER=clang++ >/dev/null || arreter "cannot be configured"
# The module is compiled for the browser, and for tests only here.
mapfile -t sources < <(git ls-files 'src/*.cpp' | grep -v '^src/module/')
mapfile -t module < <(git ls-files 'src/module/*.cpp' | grep -v '/copier.cpp$')
printf '%s\n' "${sources[@]}" | xargs -P "${TACHES:-$(nproc)}" -n 4 clang-tidy --quiet -p build/analyse --config='' \
    --checks='-*,clang-analyzer-*' --header-filter='src/.*' >build/analyse/trouve.txt 2>build/analyse/dit.txt || true
clang-tidy --quiet --config='' --checks='-*,clang-analyzer-*' --header-filter='src/.*' "${module[@]}" -- \
    -std=c++20 -Isrc >>build/analyse/trouve.txt 2>>build/analyse/dit.txt || true
if grep -q "Error while processing" build/analyse/dit.txt; then
    cat build/analyse/dit.txt
    arreter "a source could not be read"
fi
grep -hE '(warning|error): ' build/analyse/trouve.txt | sort -u || true
echo "${#sources[@]} and ${#module[@]} sources, $(grep -hE '(warning|error): ' build/analyse/trouve.txt | sort -u | wc -l) findings"
