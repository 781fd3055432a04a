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

# What the document adds to the service holds as well, and is read.
ajout=quilvane-lot@acti.service.d/override.conf
mkdir "${ajout%/*}"
sed -n '/^    # systemctl edit /,/^$/s/^    //p' "$sources/doc/exploitation.md" >$ajout
grep -q '^ReadWritePaths=/' $ajout || manquer "the document shows an addition to the service"
dit=$(verifier ./quilvane-lot@acti.service) && [ -z "$dit" ] || manquer "the document's addition does not hold: $dit"
sed -i 's/^ReadWrite/ReadWrong/' $ajout
verifier ./quilvane-lot@acti.service | grep -q ReadWrong || manquer "the document's addition is read"
rm -r "${ajout%/*}"

# Its command enables units that there are; user and folder are what the service needs.
mkdir -p racine/etc racine/usr/lib/{systemd/system,sysusers.d,tmpfiles.d} racine/var
cp quilvane-lot@.{service,path,timer} racine/usr/lib/systemd/system/
cp "$sources/systemd/sysusers.conf" racine/usr/lib/sysusers.d/quilvane.conf
cp "$sources/systemd/tmpfiles.conf" racine/usr/lib/tmpfiles.d/quilvane.conf
commande=$(sed -n 's/^    systemctl enable --now //p' "$sources/doc/exploitation.md")
[ -n "$commande" ] || manquer "the document enables the units"
# shellcheck disable=SC2086 # several units
systemctl --root="$dossier/racine" enable $commande >/dev/null 2>&1 || manquer "$commande cannot be enabled"
for lien in multi-user.target.wants/quilvane-lot@acti.path timers.target.wants/quilvane-lot@acti.timer; do
    [ -L "racine/etc/systemd/system/$lien" ] || manquer "the document's command makes $lien"
done
if [ "$(id -u)" -eq 0 ] && command -v systemd-sysusers systemd-tmpfiles >/dev/null; then
    systemd-sysusers --root="$dossier/racine" || manquer "systemd-sysusers makes the user"
    grep -q '^quilvane:' racine/etc/passwd || manquer "the user is there"
    systemd-tmpfiles --root="$dossier/racine" --create quilvane.conf || manquer "systemd-tmpfiles makes the folder"
    [ -d racine/var/spool/quilvane ] || manquer "the folder is there"
fi

exposition=$(systemd-analyze security --offline=true ./quilvane-lot@acti.service 2>/dev/null |
    sed -n 's/.*Overall exposure level for .*: \([0-9.]*\) .*/\1/p')
[ -n "$exposition" ] || sauter "this systemd-analyze does not tell the exposure of a unit file"
for document in "$sources"/doc/exploitation{,.fr}.md; do
    dit=$(grep -oE '(exposure|exposition)[^0-9]* [0-9][.,][0-9]' "$document" | grep -oE '[0-9][.,][0-9]$' | tr , .) || true
    [ "$dit" = "$exposition" ] || manquer "$document tells the exposure $exposition, not '$dit'"
done
