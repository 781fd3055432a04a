"""Compares a gcovr JSON report with scripts/couverture.exclues.

Prints every line and branch that no test reached and that is not named there,
and every entry that names nothing any more; exit status 1 if there is one.
Branches count in the rooms of quilvane; in the others lines do: there most
branches are those of the C++ library's texts.
"""
import json
import sys


CHAMBRES = ("attgetopt", "calendar", "checks", "controle", "driver", "messages", "rules", "vocabulaire")


def main(rapport, exclues, racine):
    entrees = []
    with open(exclues, encoding="utf-8") as f:
        for ligne in f:
            if ligne.strip() and not ligne.startswith("#"):
                fichier, texte, _ = (p.strip() for p in ligne.split(" | "))
                entrees.append([fichier, texte, 0])
    manques = 0
    lignes = lues = branches = atteintes = 0
    with open(rapport, encoding="utf-8") as f:
        donnees = json.load(f)
    for fichier in donnees["files"]:
        with open(f"{racine}/{fichier['file']}", encoding="utf-8") as f:
            source = f.read().split("\n")
        for ligne in fichier["lines"]:
            texte = source[ligne["line_number"] - 1].strip()
            if ligne.get("gcovr/noncode"):
                continue
            comptes = [b["count"] for b in ligne.get("branches", []) if not b.get("throw")]
            if fichier["file"].split("/")[1] not in CHAMBRES:
                comptes = []
            lignes += 1
            lues += ligne["count"] > 0
            branches += len(comptes)
            atteintes += sum(1 for c in comptes if c)
            if ligne["count"] and all(comptes):
                continue
            excuse = [e for e in entrees if e[0] == fichier["file"] and e[1] in texte]
            for e in excuse:
                e[2] += 1
            if not excuse:
                manques += 1
                print(f"not reached: {fichier['file']}:{ligne['line_number']}: {texte}")
    for fichier, texte, fois in entrees:
        if fois == 0:
            manques += 1
            print(f"reached after all, or gone: {fichier} | {texte}")
    print(f"{lues} of {lignes} lines, {atteintes} of {branches} branches; {sum(e[2] for e in entrees)} lines cannot be reached in every way")
    return 1 if manques else 0


sys.exit(main(*sys.argv[1:]))
