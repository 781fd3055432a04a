#!/usr/bin/env bash
# Installs into a scratch folder: every file that should be there is, and nothing
# else; manuals and completions know the options that the programs know; after
# the target `uninstall` nothing is left.
#
#   installation.sh BUILD SOURCE
set -euo pipefail
. "$(dirname "$0")/communs.sh"
cp "$construction/install_manifest.txt" "$dossier/manifeste" 2>/dev/null || true
trap 'cp "$dossier/manifeste" "$construction/install_manifest.txt" 2>/dev/null ||
    rm -f "$construction/install_manifest.txt"; rm -rf "$dossier"' EXIT

rm -f "$construction/install_manifest.txt"
if cmake --build "$construction" --target uninstall >"$dossier/sans" 2>&1; then
    manquer "uninstall says that nothing was installed"
fi
grep -q 'Nothing to remove' "$dossier/sans" || manquer "uninstall says that there is nothing to remove"

export DESTDIR=$dossier/racine
cmake --install "$construction" --prefix /usr >/dev/null
(cd "$DESTDIR" && find . ! -type d -printf '%P\n' | grep -v '/quilvane\.html$' | LC_ALL=C sort) >"$dossier/obtenus"
{
    cat "$sources/tests/installation/fichiers.txt"
    (cd "$sources" && ls ./*.md | grep -v CONTRIBUTING; find doc -maxdepth 1 -type f) | sed 's,.*/,usr/share/doc/quilvane/,'
    (cd "$sources" && ls exemples/*) | sed 's,^,usr/share/doc/quilvane/,'
} | LC_ALL=C sort >"$dossier/attendus"
diff "$dossier/attendus" "$dossier/obtenus" || manquer "the files installed are not those expected (<)"
grep -q '^ExecStart=/usr/bin/quilvane-lot ' "$DESTDIR/usr/lib/systemd/system/quilvane-lot@.service" ||
    manquer "the unit names the program under the prefix"

# The long options of quilvane-lot, from its help.
"$construction/quilvane-lot" --langue en --help | grep -oE '^ +(-[a-z], )?--[a-z]+' | grep -oE '[a-z]{2,}$' |
    sort >"$dossier/options"
[ "$(wc -l <"$dossier/options")" -gt 5 ] || manquer "quilvane-lot --help shows options"
comparer() { # FILE WHAT: the options found are those of the help
    sort -u | diff "$dossier/options" - || manquer "$1 knows the options of quilvane-lot --help (<)"
}
partage=$DESTDIR/usr/share
for langue in "" fr/; do
    grep '^\.It Fl' "$partage/man/${langue}man1/quilvane-lot.1" | grep -oE '\\-[a-z]+' | cut -c3- |
        comparer "the manual page ${langue}quilvane-lot(1)"
done
grep -oE -- '--[a-z]+' "$partage/bash-completion/completions/quilvane-lot" | cut -c3- | comparer "the bash completion"
grep -oE -- '--[a-z]+' "$partage/zsh/site-functions/_quilvane-lot" | cut -c3- | comparer "the zsh completion"
grep -oE -- '-l [a-z]+' "$partage/fish/vendor_completions.d/quilvane-lot.fish" | cut -c4- | comparer "the fish completion"

for f in "$partage"/bash-completion/completions/*; do bash -n "$f" || manquer "$f is no bash"; done
if command -v zsh >/dev/null; then
    for f in "$partage"/zsh/site-functions/*; do zsh -n "$f" || manquer "$f is no zsh"; done
fi
if command -v fish >/dev/null; then
    for f in "$partage"/fish/vendor_completions.d/*; do fish -n "$f" || manquer "$f is no fish"; done
fi
# The names of sections are French in a French page, which man knows and mandoc
# does not expect; whether the pages referred to are installed is the machine's affair.
if command -v mandoc >/dev/null; then
    find "$partage/man" -name '*.1' -exec mandoc -T lint {} + |
        grep -vE '/fr/.*: WARNING: (first section is not "NAME": Sh (NOM|SYNOPSIS)|description line outside NAME section: Nd)$' |
        grep -vE '/fr/.*: STYLE: possible typo in section name: Sh (NOM|EXEMPLES) instead of ' |
        grep -vE 'STYLE: referenced manual not found: Xr quilvane' >"$dossier/plaintes" || true
    [ ! -s "$dossier/plaintes" ] || { cat "$dossier/plaintes"; manquer "mandoc complains"; }
fi

# What man -k and whatis read of each page.
if command -v lexgrog >/dev/null; then
    for f in "$partage"/man/man1/*.1 "$partage"/man/fr/man1/*.1; do
        lexgrog "$f" | grep -qE "^$f: \"$(basename "$f" .1) - .+\"$" || manquer "man finds the name and purpose of $f"
    done
fi

touch "$partage/doc/quilvane-autre"
cmake --build "$construction" --target uninstall >/dev/null
[ "$(find "$DESTDIR" ! -type d -printf '%P\n')" = usr/share/doc/quilvane-autre ] ||
    manquer "uninstall removes what was installed and nothing else"
[ -z "$(find "$DESTDIR" -type d -name '*quilvane*')" ] || manquer "uninstall leaves no folder of ours"
