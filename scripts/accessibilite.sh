#!/usr/bin/env bash
# On demand: the built page and its report under axe-core (fetched by npm into
# build/) and tidy. Fails on any violation.
#
#   scripts/page.sh && scripts/accessibilite.sh
set -euo pipefail
. "$(dirname "$0")/paquets.sh"
cd "$racine"
exiger tidy chromium python3 npm

[ -f build/page/quilvane.html ] || arreter "build/page/quilvane.html is missing: scripts/page.sh makes it"
tidy -q -e --drop-empty-elements no build/page/quilvane.html || arreter "tidy finds faults"
npm install --silent --no-audit --no-fund --prefix build/axe axe-core@4 || arreter "npm cannot install axe-core"
tests/page/axe_essai.py build/axe/node_modules/axe-core/axe.min.js
