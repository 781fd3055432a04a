#!/usr/bin/env python3
"""What people write in a scripting language: the columns of a record cut into
a dictionary, and a validator for JSON schemas. A yardstick for scripts/bench.sh;
bench/valider.js is the same for Node.

    valider.py FILE ACCEPTED REFUSED

For files of ACTI records only. The records that the schema accepts go to one
file, stamped, the others to another, with what the validator says. Exit status
0 when all are accepted, 2 otherwise.

A schema looks at one field at a time. What it cannot say, and quilvane checks:
- one field against another: a holding's number and header E8 (error 50), a date
  and the date of the record (52);
- one record against another: E8 and the file's emitter (135), what a partner
  may send (182), the count in the FICH record (100), a second FICH record (109);
- line ends that are mixed or missing, a CR or Ctrl-Z in a line;
- error numbers, in a fixed order, at most ten, and the ERRE records they make.
"""
import calendar
import json
import pathlib
import re
import sys

import jsonschema

SCHEMA = json.loads((pathlib.Path(__file__).parent / "acti.schema.json").read_text())
FORMATS = jsonschema.FormatChecker(formats=())


def existe(jour, mois, annee):
    return annee >= 1900 and 1 <= mois <= 12 and 1 <= jour <= calendar.monthrange(annee, mois)[1]


@FORMATS.checks("jour")
def jour(t):
    return re.fullmatch("[0-9]{8}", t) is not None and existe(int(t[:2]), int(t[2:4]), int(t[4:]))


@FORMATS.checks("jour_incomplet")
def jour_incomplet(t):
    """The day, or day and month, may be blank: they then count as the first."""
    return jour(re.sub("^ {2}", "01", re.sub("^ {4}", "0101", t)))


def lecteur(nom):
    """The fields of a record type with their columns, and what validates them."""
    schema = SCHEMA["definitions"][nom]
    champs = [(c, s["colonnes"][0] - 1, s["colonnes"][1]) for c, s in schema["properties"].items() if "colonnes" in s]
    return champs, jsonschema.Draft7Validator(schema, format_checker=FORMATS)


def main(recu, acceptes, refuses):
    fich, acti = lecteur("FICH"), lecteur("ACTI")
    fautes = 0
    with open(recu, encoding="latin-1", newline="\n") as f, open(acceptes, "w", encoding="latin-1", newline="") as oui, \
            open(refuses, "w", encoding="latin-1", newline="") as non:
        for n, ligne in enumerate(f):
            texte = ligne.rstrip("\r\n")
            champs, validateur = acti if n else fich
            erreurs = list(validateur.iter_errors({"ligne": texte, **{c: texte[debut:fin] for c, debut, fin in champs}}))
            if erreurs:
                fautes += 1
                non.write(f"{n + 1}:{texte}\n" + "".join(f"  {'.'.join(map(str, e.path))}: {e.message}\n" for e in erreurs))
            else:
                oui.write(texte[:76] + "40" + texte[78:] + "\n" if n else ligne)
    return 2 if fautes else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
