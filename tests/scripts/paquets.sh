#!/usr/bin/env bash
# What scripts/paquets.sh does where a package is missing, on a machine that is
# made up: a path of its own, with an `id`, a dpkg-query, an apt-get that tell
# what they are asked.
#
#   paquets.sh SOURCE
set -euo pipefail
sources=$1
dossier=$(mktemp -d)
trap 'rm -rf "$dossier"' EXIT
mkdir "$dossier/bin"
for p in bash sh env grep dirname basename tail; do ln -s "$(command -v $p)" "$dossier/bin/$p"; done

# placer NAME TEXT: a program of the made-up machine.
placer() {
    printf '#!/bin/sh\n%s\n' "$2" >"$dossier/bin/$1"
    chmod +x "$dossier/bin/$1"
}

# essayer STATUS TEXT: `exiger present absent` ends so, and prints exactly this.
essayer() {
    local statut=0
    PATH=$dossier/bin bash -c '. "$1/scripts/paquets.sh"; exiger present absent; echo goes on' essai "$sources" \
        >"$dossier/dit" 2>&1 || statut=$?
    if [ $statut -ne "$1" ] || [ "$(cat "$dossier/dit")" != "$2" ]; then
        printf 'status %s and "%s"; expected were %s and "%s"\n' $statut "$(cat "$dossier/dit")" "$1" "$2"
        exit 1
    fi
}

# shellcheck disable=SC2016 # for the made-up machine
placer dpkg-query '[ "$3" = present ] && echo "install ok installed"'
placer id 'echo 1000'
essayer 1 'essai: absent: not installed, and neither root nor sudo is at hand to install. Have root run: apt-get install --no-install-recommends absent'
placer id 'echo 0'
essayer 1 'essai: absent: not installed, and this machine has no apt-get'

# shellcheck disable=SC2016
placer apt-get 'echo "apt-get $*" >>"${0%/bin/*}/demandes"'
essayer 0 'Installing absent
goes on'
placer id 'echo 1000'
# shellcheck disable=SC2016
placer sudo 'echo sudo >>"${0%/bin/*}/demandes"; exec "$@"'
essayer 0 'Installing absent
goes on'
[ "$(cat "$dossier/demandes")" = 'apt-get update -qq
apt-get install -y -qq --no-install-recommends absent
sudo
apt-get update -qq
apt-get install -y -qq --no-install-recommends absent' ] || {
    cat "$dossier/demandes"
    exit 1
}

placer apt-get 'echo "what apt-get says"; exit 100'
essayer 1 'Installing absent
what apt-get says
essai: absent: apt-get could not install'

placer dpkg-query 'echo "install ok installed"'
essayer 0 'goes on'
