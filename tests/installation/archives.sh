#!/usr/bin/env bash
# The package is the same byte for byte whenever and by whomever it is made.
#
#   archives.sh BUILD SOURCE
set -euo pipefail
. "$(dirname "$0")/communs.sh"
command -v dpkg-shlibdeps >/dev/null || sauter "dpkg-shlibdeps is not installed (package dpkg-dev)"

cd "$construction"
export SOURCE_DATE_EPOCH=1000000000
umask 022
cpack -G DEB -B "$dossier/un" >/dev/null 2>&1 || manquer "the package is made"
sleep 1
TZ=Asia/Tokyo LC_ALL=C.UTF-8 cpack -G DEB -B "$dossier/deux" >/dev/null 2>&1 || manquer "the package is made again"
cmp "$dossier"/un/*.deb "$dossier"/deux/*.deb || manquer "the two are the same"
# A strict umask shows in the frame of the archive alone.
(umask 077 && cpack -G DEB -B "$dossier/strict" >/dev/null 2>&1) || manquer "the package is made under a strict umask"
for partie in --fsys-tarfile --ctrl-tarfile; do
    cmp <(dpkg-deb $partie "$dossier"/un/*.deb) <(dpkg-deb $partie "$dossier"/strict/*.deb) ||
        manquer "what it holds does not depend on the umask"
done
export SOURCE_DATE_EPOCH=1000000001
cpack -G DEB -B "$dossier/trois" >/dev/null 2>&1
if cmp -s "$dossier"/un/*.deb "$dossier"/trois/*.deb; then manquer "another date is seen in it"; fi
dpkg-deb -f "$dossier"/un/*.deb Depends | grep -qE '^adduser, libc6 \([^)]*\), libnettle8( \([^)]*\))?$' ||
    manquer "the package needs the C library, nettle and adduser alone"
