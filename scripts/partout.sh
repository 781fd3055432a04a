#!/usr/bin/env bash
# The same bytes everywhere: the end-to-end tests with both compilers, without
# and with full optimisation, and under valgrind. (Locales and time zones are
# part of every run.)
set -euo pipefail
. "$(dirname "$0")/paquets.sh"
cd "$racine"
exiger g++ clang cmake ninja-build rapidjson-dev nettle-dev libgtest-dev faketime valgrind

for compilateur in g++ clang++; do
    for niveau in -O0 -O3; do
        dossier=build/partout/$compilateur$niveau
        echo "== $compilateur $niveau"
        cmake -G Ninja -B "$dossier" -DCMAKE_BUILD_TYPE=None -DQUILVANE_TESTS=ON -DQUILVANE_STRICT=ON -DCMAKE_CXX_COMPILER="$compilateur" \
            -DCMAKE_CXX_FLAGS="$niveau" >/dev/null || arreter "$compilateur $niveau cannot be configured"
        cmake --build "$dossier" --target tests_end_to_end -- --quiet || arreter "$compilateur $niveau does not build"
        "$dossier/tests/tests_end_to_end" --gtest_brief=1 || arreter "tests failed with $compilateur $niveau"
    done
done
echo "== valgrind"
QUILVANE_VALGRIND=$(command -v valgrind) build/partout/g++-O3/tests/tests_end_to_end --gtest_brief=1 ||
    arreter "tests failed under valgrind"
