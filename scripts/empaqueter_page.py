#!/usr/bin/env python3
"""Puts the browser page together: src/page/quilvane.html, its style and script, and the WebAssembly module.

    scripts/empaqueter_page.py --module quilvane_module.wasm -o quilvane.html

The module stands in the page as gzip in base64. The same inputs give the same
bytes. A content security policy names style and script by their digests and
allows nothing from anywhere.
"""
import argparse
import base64
import gzip
import pathlib
import re
import sys

sys.dont_write_bytecode = True

from empaqueter import DOSSIER, INTERDITS, empreinte  # noqa: E402

POLITIQUE = ("default-src 'none'; style-src '{CSS}'; script-src '{JS}' 'wasm-unsafe-eval'; worker-src blob:; "
             "img-src data:; base-uri 'none'; form-action 'none'")


def alleger(texte, nom):
    """A style or script without comments of their own lines, indentation and empty lines."""
    texte = re.sub(r"^[ \t]*/\*.*?\*/[ \t]*\n", "", texte, flags=re.MULTILINE | re.DOTALL)
    lignes = [ligne.strip() for ligne in texte.splitlines()]
    for ligne in lignes:
        if ligne.count("`") % 2:
            raise SystemExit(f"{nom}: a text over several lines would lose its indentation: {ligne}")
    return "".join(ligne + "\n" for ligne in lignes if ligne and not ligne.startswith("//"))


def fichiers(marque, noms, dossier):
    """The files of a mark; the name of another template stands for the files of its mark."""
    for nom in noms.split():
        if nom.endswith(".html"):
            autre = re.search(rf"@{marque} ([^@]*)@", (dossier / nom).read_text(encoding="utf-8"))
            yield from fichiers(marque, autre[1], dossier)
        else:
            yield nom


def contenu(marque, noms, dossier):
    """The files of a mark, one behind the other."""
    texte = "".join(alleger((dossier / nom).read_text(encoding="utf-8"), nom) for nom in fichiers(marque, noms, dossier))
    if INTERDITS[marque] in texte:
        raise SystemExit(f"{noms}: the text {INTERDITS[marque]} would end the element")
    return texte


def page(module, dossier=DOSSIER):
    """The whole page; `module` is the bytes of the WebAssembly module."""
    modele = (dossier / "quilvane.html").read_text(encoding="utf-8")
    contenus = {m[1]: (m[0], contenu(m[1], m[2], dossier)) for m in re.finditer(r"@(CSS|JS) ([^@]*)@", modele)}
    modele = modele.replace("@CSP@", POLITIQUE.format(**{m: empreinte(texte) for m, (_, texte) in contenus.items()}))
    modele = modele.replace("@MODULE@", base64.b64encode(gzip.compress(module, 9, mtime=0)).decode())
    for place, texte in contenus.values():
        modele = modele.replace(place, texte)
    return modele


def main():
    options = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    options.add_argument("--module", required=True, help="the compiled module")
    options.add_argument("-o", "--sortie", required=True)
    choix = options.parse_args()
    pathlib.Path(choix.sortie).write_text(page(pathlib.Path(choix.module).read_bytes()), encoding="utf-8")


if __name__ == "__main__":
    sys.exit(main())
