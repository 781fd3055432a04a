#!/usr/bin/env bash
# The long trial of quilvane-lot: runners that are killed at random moments, and
# four runners on one spool of which some are killed. Nothing may be lost and
# nothing doubled. A short version of it is among the tests.
#
#   scripts/lot_epreuve.sh                 200 kills over 500 files, then 2,000 files
#   scripts/lot_epreuve.sh --graine N      with these random moments
#   scripts/lot_epreuve.sh --fichiers N --coups N --partages N
set -euo pipefail
. "$(dirname "$0")/paquets.sh"
cd "$racine"
exiger g++ cmake ninja-build rapidjson-dev nettle-dev python3
cmake --preset release -DQUILVANE_TESTS=OFF -B build/epreuve >/dev/null || arreter "cannot be configured"
cmake --build build/epreuve --target quilvane quilvane-lot -- --quiet || arreter "does not build"
exec python3 scripts/lot_epreuve.py build/epreuve exemples "$@"
