#!/usr/bin/env bash
# Line and branch coverage of the product by all tests. Fails when a line or a
# branch of quilvane's own rooms, or a line of the others, is missed that
# scripts/couverture.exclues does not name.
set -euo pipefail
. "$(dirname "$0")/paquets.sh"
cd "$racine"
exiger g++ cmake ninja-build rapidjson-dev nettle-dev libgtest-dev faketime gcovr python3
construire coverage
find build/coverage -name "*.gcda" -delete
# Where files cannot be written the counters cannot be, either.
ctest --preset coverage -E '^(Trouve\.TailleDeFichierLimitee|guide\.fautes)$' -j "$(nproc)" --progress || arreter "tests failed under preset coverage"
# The batch runner is measured by the kills of scripts/lot_epreuve.sh: a killed
# process leaves no counters.
gcovr --root . --filter 'src/' --exclude 'src/lot/' --object-directory build/coverage --exclude-throw-branches \
    --json build/couverture.json
gcovr --root . --add-tracefile build/couverture.json --txt
python3 scripts/couverture.py build/couverture.json scripts/couverture.exclues . || arreter "something is not covered"
