#!/usr/bin/env bash
# Builds and runs every test.
#
#   scripts/test.sh                    release and sanitize
#   scripts/test.sh PRESET...          these presets: debug release sanitize clang
#   scripts/test.sh page               the browser page, beside the native programs
#
# What is printed is short; all of it stands in build/PRESET: configuration.log,
# construction.log and tests.log.
set -euo pipefail
. "$(dirname "$0")/paquets.sh"
cd "$racine"

[ $# -gt 0 ] || set -- release sanitize
paquets=(g++ cmake ninja-build rapidjson-dev nettle-dev libgtest-dev faketime parallel python3
    python3-jsonschema)
case " $* " in *" clang "*) paquets+=(clang) ;; esac
case " $* " in *" page "*) paquets+=(chromium) ;; esac
exiger "${paquets[@]}"

# duree SECONDS: in minutes and seconds.
duree() { echo "$(($1 / 60)) min $(($1 % 60)) s"; }

# sauter LOG: why tests were skipped, from ctest's own log of their output: the
# line behind gtest's "Skipped", a line that begins with "skipped: ", or what
# Python's unittest says behind the name of a test.
sauter() {
    awk '/^[0-9]+\/[0-9]+ (Testing|Test): / { nom = $3 }
         /^skipped: / { sub(/^skipped: /, ""); print "skipped: " nom ": " $0 }
         / \.\.\. skipped / { sub(/.* \.\.\. skipped ./, ""); sub(/.$/, ""); print "skipped: " nom ", one of its tests: " $0 }
         suivante { print "skipped: " nom ": " $0; suivante = 0 }
         /: Skipped$/ { suivante = 1 }' "$1"
}

scripts/style.sh || arreter "the style is not ours"
echo "Building and testing $*: from nothing about five minutes a preset on two free cores."
# essayerPage: the page is built twice and tried in a browser.
essayerPage() {
    local depart=$SECONDS
    construire release
    scripts/page.sh --comparer
    tests/page/page_essai.py || arreter "tests of the page failed"
    echo "== page: built and tested in $(duree $((SECONDS - depart)))"
}

for preset in "$@"; do
    [ "$preset" != page ] || continue
    depart=$SECONDS
    construire "$preset"
    echo "== $preset: built in $(duree $((SECONDS - depart)))"
done
case " $* " in *" page "*) essayerPage ;; esac
for preset in "$@"; do
    [ "$preset" != page ] || continue
    depart=$SECONDS
    statut=0
    ctest --preset "$preset" -j "$(nproc)" >"build/$preset/tests.log" 2>&1 || statut=$?
    echo "== $preset: tested in $(duree $((SECONDS - depart))), all of it in build/$preset/tests.log"
    sauter "build/$preset/Testing/Temporary/LastTest.log"
    if [ $statut -ne 0 ]; then
        # What the tests that failed have printed.
        awk '/\*\*\*(Failed|Timeout|Exception|Not Run)/ { montrer = 1 } /^ *Start +[0-9]+:/ { montrer = 0 } montrer' \
            "build/$preset/tests.log" | head -n 200
    fi
    # ctest's closing lines.
    sed -n '/tests passed, /,$p' "build/$preset/tests.log"
    [ $statut -eq 0 ] || arreter "tests failed under preset $preset"
done
echo "All of it took $(duree $SECONDS)."
