#!/usr/bin/env bash
# Builds the browser page, build/page/quilvane.html: one file, no network.
#
#   scripts/page.sh               builds the page
#   scripts/page.sh --comparer    builds it twice, in two places; the bytes must be the same
set -euo pipefail
. "$(dirname "$0")/paquets.sh"
cd "$racine"

exiger clang-14 lld-14 llvm-14 wasi-libc libc++-14-dev-wasm32 libclang-rt-14-dev-wasm32 \
    rapidjson-dev cmake ninja-build python3

# faire FOLDER PAGE: compiles the module in a folder and packs the page.
faire() {
    cmake -G Ninja -S . -B "$1" -DCMAKE_TOOLCHAIN_FILE="$racine/cmake/wasm32-wasi.cmake" \
        -DCMAKE_BUILD_TYPE=MinSizeRel -DCMAKE_CXX_FLAGS_MINSIZEREL="-O2 -DNDEBUG" -DQUILVANE_TESTS=OFF \
        >/dev/null || arreter "the module cannot be configured"
    cmake --build "$1" --target quilvane_module -- --quiet || arreter "the module does not build"
    scripts/empaqueter_page.py --module "$1/src/module/quilvane_module.wasm" -o "$2"
}

faire build/page/wasm build/page/quilvane.html
echo "build/page/quilvane.html: $(stat -c %s build/page/quilvane.html) bytes"
if [ "${1-}" = --comparer ]; then
    ailleurs=$(mktemp -d)
    trap 'rm -rf "$ailleurs"' EXIT
    faire "$ailleurs/wasm" "$ailleurs/quilvane.html"
    cmp build/page/quilvane.html "$ailleurs/quilvane.html" || arreter "two builds differ"
    echo "A second build gives the same bytes"
fi
