#!/usr/bin/env bash
# Changes one thing in the rules at a time and counts how many of the changes
# the tests notice.
#
#   scripts/mutation.sh [COUNT [SEED [REGEX]]]    300 changes from seed 1
#   scripts/mutation.sh --suite [COUNT [REGEX]]   the next 300 of all changes
#   scripts/mutation.sh --bilan                   what all changes came to so far
#
# A change is one cell of a rule row, one list entry, or one operator,
# constant or text in src/checks, src/rules, src/messages and src/driver; a
# seed always gives the same changes of the same sources. With REGEX only those
# of the changes run whose line in the report matches it. Survivors that
# cannot change behaviour are named in scripts/mutation.exclues. Status 1 when
# any other change survives.
#
# The sources are changed in a copy, ${TMPDIR:-/tmp}/quilvane-mutation-UID,
# which stays for the next run; it can be removed at any time. Its file
# verdicts.txt names for each change who noticed it.
set -euo pipefail
. "$(dirname "$0")/paquets.sh"
cd "$racine"
exiger g++ cmake ninja-build rapidjson-dev nettle-dev libgtest-dev faketime python3
exec python3 scripts/mutation.py "$racine" "${TMPDIR:-/tmp}/quilvane-mutation-$(id -u)" "$@"
