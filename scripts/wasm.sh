#!/usr/bin/env bash
# Compiles the core to WebAssembly and links all of it into one module, to show
# that a page can hold it. Fails when the module asks its host for more than
# the clock.
set -euo pipefail
. "$(dirname "$0")/paquets.sh"
cd "$racine"
exiger cmake ninja-build clang-14 lld-14 llvm-14 wasi-libc libc++-14-dev-wasm32 libclang-rt-14-dev-wasm32
construire wasm

cd build/wasm
# What nothing outside asks for would be left out: every function of ours is
# exported, so that each one is linked with what it needs.
llvm-nm-14 --defined-only --extern-only --format=just-symbols libquilvane_noyau.a |
    sed -n 's/^_ZN[A-Z]*8quilvane/-Wl,--export=&/p' | sort -u >exports.rsp
[ -s exports.rsp ] || arreter "the core exports nothing"
clang++-14 --target=wasm32-wasi -O2 -mexec-model=reactor -o noyau.wasm \
    -Wl,--whole-archive libquilvane_noyau.a -Wl,--no-whole-archive \
    -Wl,--fatal-warnings -Wl,--strip-all @exports.rsp || arreter "the core does not link"

demandes=$(obj2yaml-14 noyau.wasm | awk '
    /^  - Type: / { importe = $3 == "IMPORT" }
    importe && $1 == "Field:" { print $2 }')
echo "noyau.wasm: $(stat -c %s noyau.wasm) bytes, asks its host for ${demandes//$'\n'/ }"
[ "$demandes" = clock_time_get ] || arreter "the core asks for more than the clock"
