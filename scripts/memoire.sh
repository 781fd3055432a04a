#!/usr/bin/env bash
# Reads of memory that nothing was written to: `quilvane` under clang's
# MemorySanitizer over the examples, damaged copies of them and the fuzz corpus,
# in its three modes.
#
#   scripts/memoire.sh [COUNT]      damaged copies of each example, 20 by default
#
# Only the batch program: it uses nothing of the C++ library that is not compiled
# with it. The library's own code is not instrumented, and what the others take
# from it counts as never written. clang 14 knows stat, not stat64, hence the last flag.
set -euo pipefail
. "$(dirname "$0")/paquets.sh"
cd "$racine"
exiger clang libclang-rt-dev cmake ninja-build python3
construit=build/memoire
cmake -G Ninja -B "$construit" -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=Debug \
    -DCMAKE_CXX_FLAGS_DEBUG="-g -O1 -fsanitize=memory -fsanitize-memory-track-origins -fno-omit-frame-pointer -U_FILE_OFFSET_BITS" \
    >/dev/null || arreter "cannot be configured"
journaliser "$construit/construction.log" cmake --build "$construit" --target quilvane -- --quiet || arreter "does not build"
python3 -B scripts/memoire.py "$construit/quilvane" "${1:-20}"
