#!/usr/bin/env bash
# The long trial of quilvane-lot: runners that are killed before each of their
# file calls and at random moments, and four runners on one spool of which some
# are killed. Nothing may be lost and nothing doubled. It takes a quarter of an
# hour; a short version of it is among the tests.
#
#   scripts/lot_epreuve.sh                 200 kills over 500 files, then 2,000 files
#   scripts/lot_epreuve.sh --graine N      with these random moments
#   scripts/lot_epreuve.sh --fichiers N --coups N --partages N
set -euo pipefail
. "$(dirname "$0")/paquets.sh"
cd "$racine"
exiger g++ cmake ninja-build rapidjson-dev nettle-dev libgtest-dev faketime python3
construire release quilvane quilvane-guide quilvane-lot tests_lot
echo "a runner killed before, and refused, each of its file calls"
QUILVANE_LOT_PAS=1 build/release/tests/tests_lot --gtest_brief=1 --gtest_filter='RepriseLot.*' ||
    arreter "something was lost or doubled"
exec python3 scripts/lot_epreuve.py build/release exemples "$@"
