#!/usr/bin/env bash
# The units hold before systemd-analyze, which finds nothing to say of them; what
# it calls their exposure is not above the figure of doc/exploitation.md.
#
#   unites.sh BUILD SOURCE
set -euo pipefail
. "$(dirname "$0")/communs.sh"
command -v systemd-analyze >/dev/null || sauter "systemd-analyze is not installed (package systemd)"

sed "s,@BINDIR@,$dossier," "$sources/systemd/quilvane-lot@.service.in" >"$dossier/quilvane-lot@.service"
cp "$sources"/systemd/quilvane-lot@.{path,timer} "$dossier/"
cp "$construction/quilvane-lot" "$dossier/"
cd "$dossier"

verifier() { SYSTEMD_UNIT_PATH="$dossier:" systemd-analyze verify --man=no "$@" 2>&1; }
for unite in quilvane-lot@acti.service quilvane-lot@acti.path quilvane-lot@acti.timer; do
    cp "${unite/acti/}" "$unite"
    dit=$(verifier "./$unite") || manquer "$unite does not hold: $dit"
    [ -z "$dit" ] || manquer "systemd-analyze says of $unite: $dit"
done

# It does look: a key that does not exist is seen.
sed 's/^ProtectHome=/ProtectHouse=/' quilvane-lot@.service >quilvane-lot@faux.service
verifier ./quilvane-lot@faux.service | grep -q ProtectHouse || manquer "a wrong key is noticed"

exposition=$(systemd-analyze security --offline=true ./quilvane-lot@acti.service 2>/dev/null |
    sed -n 's/.*Overall exposure level for .*: \([0-9.]*\) .*/\1/p')
[ -n "$exposition" ] || sauter "this systemd-analyze does not tell the exposure of a unit file"
for document in "$sources"/doc/exploitation{,.fr}.md; do
    dit=$(grep -oE '(exposure|exposition)[^0-9]* [0-9][.,][0-9]' "$document" | grep -oE '[0-9][.,][0-9]$' | tr , .) || true
    [ "$dit" = "$exposition" ] || manquer "$document tells the exposure $exposition, not '$dit'"
done
