# Sourced by the tests of what is installed. Takes the build and the source
# folder, makes a scratch folder that is removed afterwards.
# shellcheck shell=bash disable=SC2034
construction=$1
sources=$2
dossier=$(mktemp -d)
trap 'rm -rf "$dossier"' EXIT

# sauter WHY: ends a test that cannot run here, with the reason.
sauter() {
    echo "skipped: $*"
    exit 77
}

manquer() {
    echo "failed: $*"
    exit 1
}
