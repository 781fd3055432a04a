# Sourced by the other scripts: installs the Debian packages they need.
# shellcheck shell=bash

racine=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# exiger PAQUET...: makes sure that the packages are installed; stops with one
# clear line when one is missing and cannot be installed.
exiger() {
    local manquants=() paquet
    for paquet in "$@"; do
        dpkg-query -W -f='${Status}' "$paquet" 2>/dev/null | grep -q '^install ok installed' ||
            manquants+=("$paquet")
    done
    [ ${#manquants[@]} -eq 0 ] && return 0
    local sudo=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || arreter "${manquants[*]}: not installed, and neither root nor sudo is at hand to install"
        sudo=(sudo)
    fi
    command -v apt-get >/dev/null || arreter "${manquants[*]}: not installed, and this machine has no apt-get"
    echo "Installing ${manquants[*]}"
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive sh -c '
        apt-get update -qq && apt-get install -y -qq --no-install-recommends "$@"' sh "${manquants[@]}" >/dev/null ||
        arreter "${manquants[*]}: apt-get could not install"
}

arreter() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}

# construire PRESET: configures and builds one preset.
construire() {
    cmake --preset "$1" >/dev/null || arreter "preset $1 cannot be configured"
    cmake --build --preset "$1" -- --quiet || arreter "preset $1 does not build"
}
