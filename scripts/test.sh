#!/usr/bin/env bash
# Builds and runs every test.
#
#   scripts/test.sh                    release and sanitize
#   scripts/test.sh PRESET...          these presets: debug release sanitize clang
set -euo pipefail
. "$(dirname "$0")/paquets.sh"
cd "$racine"

[ $# -gt 0 ] || set -- release sanitize
paquets=(g++ cmake ninja-build rapidjson-dev nettle-dev libgtest-dev faketime)
case " $* " in *" clang "*) paquets+=(clang) ;; esac
exiger "${paquets[@]}"
scripts/style.sh

for preset in "$@"; do
    echo "== $preset"
    construire "$preset"
done
for preset in "$@"; do
    echo "== $preset"
    ctest --preset "$preset" -j "$(nproc)" --progress || arreter "tests failed under preset $preset"
done
