#!/usr/bin/env python3
"""Puts an HTML report together from src/page/ and from JSON files.

    scripts/empaqueter.py --rapport R.json [--catalogue C.json ...] [--langue fr] -o SORTIE.html

--rapport and --catalogue may be given once per language. The program carries
the same constant parts (src/page/Embarquer.cmake); this script is for working
on the page without building it.
"""
import argparse
import base64
import hashlib
import json
import pathlib
import re
import sys

DOSSIER = pathlib.Path(__file__).resolve().parent.parent / "src" / "page"
INTERDITS = {"CSS": "</style", "JS": "</script"}


def empreinte(texte):
    """The digest of a style or script as a content security policy names it."""
    return "sha256-" + base64.b64encode(hashlib.sha256(texte.encode()).digest()).decode()


def parties(dossier=DOSSIER, modele="rapport.html"):
    """The constant parts of the page, in order: before the language, the report, the catalogue, and the end."""
    page = (dossier / modele).read_text(encoding="utf-8")
    empreintes = {}
    for marque, interdit in INTERDITS.items():
        place = re.search(rf"@{marque} ([^@]*)@", page)
        contenu = "".join((dossier / nom).read_text(encoding="utf-8") for nom in place[1].split())
        if interdit in contenu:
            raise SystemExit(f"{place[1]}: the text {interdit} would end the element")
        empreintes[marque] = empreinte(contenu)
        page = page.replace(place[0], contenu)
    page = page.replace(
        "@CSP@",
        f"default-src 'none'; style-src '{empreintes['CSS']}'; script-src '{empreintes['JS']}'; "
        "img-src data:; base-uri 'none'; form-action 'none'",
    )
    morceaux = []
    for marque in ("@LANGUE@", "@RAPPORT@", "@CATALOGUE@"):
        avant, trouve, page = page.partition(marque)
        if not trouve:
            raise SystemExit(f"{modele}: {marque} is missing")
        morceaux.append(avant)
    return [*morceaux, page]


def dans_la_page(donnees):
    """The JSON text of `donnees`, fit to stand inside a script element: as `dansLaPage` of page.h writes it."""
    texte = json.dumps(donnees, ensure_ascii=False, separators=(",", ":"))
    return re.sub("[<\u0100-\U0010ffff]", lambda c: "".join(f"\\u{u:04X}" for u in unites(c[0])), texte)


def unites(caractere):
    """The UTF-16 units of a character."""
    octets = caractere.encode("utf-16-be")
    return [int.from_bytes(octets[i : i + 2], "big") for i in range(0, len(octets), 2)]


def page(rapport, catalogue, langue):
    """A whole report; `rapport` and `catalogue` are one object or a list with one per language."""
    debut, avant, entre, fin = parties()
    return debut + langue + avant + dans_la_page(rapport) + entre + dans_la_page(catalogue) + fin


def lire(noms):
    """The objects of JSON files: none, one, or a list."""
    objets = [json.loads(pathlib.Path(nom).read_text(encoding="utf-8")) for nom in noms]
    return objets[0] if len(objets) == 1 else objets or None


def main():
    options = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    options.add_argument("--rapport", action="append", required=True, help="report, once per language")
    options.add_argument("--catalogue", action="append", default=[], help="catalogue, once per language")
    options.add_argument("--langue", choices=("fr", "en"), default="fr")
    options.add_argument("-o", "--sortie", required=True)
    choix = options.parse_args()
    pathlib.Path(choix.sortie).write_text(
        page(lire(choix.rapport), lire(choix.catalogue), choix.langue), encoding="utf-8"
    )


if __name__ == "__main__":
    sys.exit(main())
