#!/usr/bin/env bash
# Makes the source archive and the Debian package, and tests the package.
#
#   scripts/paquet.sh              all of it; the results stand in build/paquet
#   scripts/paquet.sh service      then the units and the cron line in a root that is booted
#   scripts/paquet.sh sans-essai   without the test in a fresh Debian root
#
# Both are made twice, in folders of different names, and must be the same byte
# for byte. Their dates are those of SOURCE_DATE_EPOCH, else of the last commit.
# The test in a fresh root needs root; without, the script says so and leaves it out.
set -euo pipefail
. "$(dirname "$0")/paquets.sh"
cd "$racine"

# The one complaint of lintian that stands: no licence has been chosen, which
# paquet/copyright says.
licence='copyright-without-copyright-notice'

essai=oui
service=non
case "$*" in
'') ;;
sans-essai) essai=non ;;
service) service=oui ;;
*) arreter "'$*' is not known; the only words are: service, sans-essai" ;;
esac
if [ $essai = oui ] && [ "$(id -u)" -ne 0 ]; then
    essai=non
    echo "Not root: the test of the package in a fresh Debian root is skipped."
fi
if [ $essai = oui ] && ! unshare --mount --pid --fork true 2>/dev/null; then
    essai=non
    echo "No mount can be made here: the test of the package in a fresh Debian root is skipped."
fi
exiger g++ cmake ninja-build rapidjson-dev nettle-dev dpkg-dev lintian
[ $essai = non ] || exiger mmdebstrap
[ $service = non ] || [ $essai = non ] || exiger systemd-container

dossier=$racine/build/paquet
journal=$dossier/paquet.log
rm -rf "$dossier"
mkdir -p "$dossier"
echo "Everything that is printed on the way stands in build/paquet/paquet.log."
if [ -z "${SOURCE_DATE_EPOCH:-}" ]; then
    SOURCE_DATE_EPOCH=$(git log -1 --format=%ct 2>/dev/null || stat -c %Y CHANGELOG.md)
fi
export SOURCE_DATE_EPOCH CCACHE_DISABLE=1
umask 022
version=$(sed -n 's/^project(quilvane VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
nom=quilvane-$version

# rater WHAT: stops, with the end of what was printed.
rater() {
    tail -n 20 "$journal" >&2
    arreter "$1"
}

# archiver FILE: the sources, in the order of their names, of nobody in particular.
archiver() {
    { git ls-files -z 2>/dev/null || find . \( -path ./build -o -path ./.git \) -prune -o -type f -printf '%P\0'; } |
        LC_ALL=C sort -z |
        tar --null --files-from=- --transform="s,^,$nom/," --mtime="@$SOURCE_DATE_EPOCH" --owner=0 --group=0 \
            --numeric-owner --mode=u+rwX,go+rX,go-w --format=gnu -cf - | gzip -9 -n >"$1"
}

# fabriquer FOLDER: unpacks the sources there and makes the package from them.
fabriquer() {
    mkdir "$1"
    tar -xf "$dossier/$nom.tar.gz" -C "$1"
    (
        cd "$1/$nom"
        cmake -G Ninja -B b -DQUILVANE_ZSH_DIR=share/zsh/vendor-completions
        cmake --build b
        cd b
        cpack -G DEB
    ) >>"$journal" 2>&1 || rater "the package cannot be made"
}

# faireRacine PACKAGES: a fresh Debian root with these, from where this machine takes
# its Debian from, and by the same way; both packages stand in /essai.
faireRacine() {
    # shellcheck disable=SC2016 # the names in parentheses are apt's
    apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Identifier: Packages' 'ORIGIN: Debian' |
        sort -u >"$dossier/sources.list"
    [ -s "$dossier/sources.list" ] || arreter "apt knows no archive of Debian's: run apt-get update"
    apt-config dump | grep -E '^Acquire::(http|https|Check|Retries)' >"$dossier/apt.conf" || true
    local suite
    suite=$(. /etc/os-release && echo "$VERSION_CODENAME")
    mkdir "$dossier/racine"
    echo "Fresh Debian root ($suite), about a minute."
    mmdebstrap --quiet --variant=minbase --aptopt="$dossier/apt.conf" --skip=cleanup/apt --include="$1" \
        "$suite" "$dossier/racine" "$dossier/sources.list" >>"$journal" 2>&1 || rater "the fresh Debian root cannot be made"
    mkdir "$dossier/racine/essai"
    cp "$dossier/$paquet" "$dossier/racine/essai/un.deb"
    cp "$dossier/un/$nom/b/"quilvane_*0local2*.deb "$dossier/racine/essai/deux.deb"
}

# essayerService: boots a root and runs tests/paquet/service.sh in it.
essayerService() {
    faireRacine "$besoins,systemd,systemd-sysv,dbus,cron"
    cp tests/paquet/service.sh "$dossier/racine/essai/"
    local unites=$dossier/racine/etc/systemd/system seul=()
    cat >"$unites/essai.service" <<'fin'
[Unit]
After=multi-user.target
[Service]
Type=oneshot
ExecStart=/bin/bash /essai/service.sh
ExecStopPost=/bin/systemctl poweroff --no-block
fin
    mkdir -p "$unites/multi-user.target.wants"
    ln -s ../essai.service "$unites/multi-user.target.wants/"
    # Where no systemd runs there is none to ask for a place among its units.
    [ -d /run/systemd/system ] || seul=(--keep-unit)
    echo "The root is booted, about three minutes."
    timeout 1800 systemd-nspawn --quiet --directory="$dossier/racine" --boot --register=no "${seul[@]}" </dev/null \
        >>"$journal" 2>&1 || true
    grep -v '^end$' "$dossier/racine/essai/dit" || rater "the root could not be booted"
    tail -n 1 "$dossier/racine/essai/dit" | grep -qx end || rater "the units failed their test"
    rm -rf --one-file-system "$dossier/racine"
}

archiver "$dossier/$nom.tar.gz"
archiver "$dossier/encore.tar.gz"
cmp "$dossier/$nom.tar.gz" "$dossier/encore.tar.gz" || arreter "two source archives differ"
rm "$dossier/encore.tar.gz"
echo "Source archive: build/paquet/$nom.tar.gz, twice the same."

fabriquer "$dossier/un"
fabriquer "$dossier/une-autre-fois"
paquet=$(basename "$dossier/un/$nom/b/"quilvane_*.deb)
cmp "$dossier/un/$nom/b/$paquet" "$dossier/une-autre-fois/$nom/b/$paquet" || arreter "two packages differ"
cp "$dossier/un/$nom/b/$paquet" "$dossier/"
echo "Package: build/paquet/$paquet, twice the same."

lintian --allow-root --tag-display-limit 0 "$dossier/$paquet" >"$dossier/lintian.txt" 2>>"$journal" || true
if grep -v " $licence" "$dossier/lintian.txt"; then arreter "lintian complains"; fi
echo "lintian: nothing, but that no licence has been chosen (paquet/copyright)."

if [ $essai = oui ]; then
    # A later package of the same, to upgrade to.
    (cd "$dossier/un/$nom/b" && cmake -DCPACK_DEBIAN_PACKAGE_RELEASE=0local2 . && cpack -G DEB) >>"$journal" 2>&1 ||
        rater "the later package cannot be made"
    # What the package needs comes with the root, which then needs no network.
    besoins=$(dpkg-deb -f "$dossier/$paquet" Depends | sed 's/([^)]*)//g; s/ //g')
    faireRacine "$besoins"
    cp tests/paquet/essai.sh "$dossier/racine/essai/"
    # shellcheck disable=SC2016 # for the inner shell
    unshare --mount --pid --fork --kill-child sh -c \
        'mount -t proc proc "$1/proc" && exec chroot "$1" bash /essai/essai.sh' sh "$dossier/racine" 2>>"$journal" ||
        rater "the package failed its test"
    rm -rf --one-file-system "$dossier/racine"
    [ $service = non ] || essayerService
fi
rm -rf "$dossier/un" "$dossier/une-autre-fois"
