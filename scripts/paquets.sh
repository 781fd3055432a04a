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
        command -v sudo >/dev/null || arreter "${manquants[*]}: not installed, and neither root nor sudo is at hand to install. Have root run: apt-get install --no-install-recommends ${manquants[*]}"
        sudo=(sudo)
    fi
    command -v apt-get >/dev/null || arreter "${manquants[*]}: not installed, and this machine has no apt-get"
    echo "Installing ${manquants[*]}"
    # What debconf and dpkg say on the way is of interest only when they fail.
    local dit
    dit=$("${sudo[@]}" env DEBIAN_FRONTEND=noninteractive sh -c '
        apt-get update -qq && apt-get install -y -qq --no-install-recommends "$@"' sh "${manquants[@]}" 2>&1) || {
        printf '%s\n' "$dit" | tail -n 20 >&2
        arreter "${manquants[*]}: apt-get could not install"
    }
}

arreter() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}

# journaliser FILE COMMAND...: runs a command that prints into a file; when it
# fails, shows the end of it and fails.
journaliser() {
    local fichier=$1
    shift
    mkdir -p "$(dirname "$fichier")"
    "$@" >"$fichier" 2>&1 && return 0
    tail -n 40 "$fichier" >&2
    echo "All of it stands in $fichier" >&2
    return 1
}

# construire PRESET [TARGET...]: configures and builds one preset, or these targets of it. What compiler and linker
# say stands in build/PRESET/construction.log; of a build that succeeds that is
# the linker's warning of tempnam, which CONTRIBUTING.md explains.
construire() {
    local preset=$1 cibles=()
    shift
    [ $# -eq 0 ] || cibles=(--target "$@")
    journaliser "build/$preset/configuration.log" cmake --preset "$preset" || arreter "preset $preset cannot be configured"
    journaliser "build/$preset/construction.log" cmake --build --preset "$preset" "${cibles[@]}" -- --quiet ||
        arreter "preset $preset does not build"
}
