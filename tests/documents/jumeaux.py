#!/usr/bin/env python3
"""Holds the English and the French documents together: the same headings in
the same order, the same commands and examples, the same tables row by row.

    jumeaux.py SOURCE

What a French document lacks is told heading by heading. Words are not compared;
what both languages write alike is: code, numbers, names of options and files.
"""
import pathlib
import re
import sys

PAIRES = [("README.md", "LISEZMOI.md"), ("doc/exploitation.md", "doc/exploitation.fr.md")]

# What is written between backticks and is translated all the same.
TRADUITS = {
    "README.md": "LISEZMOI.md", "doc/exploitation.md": "doc/exploitation.fr.md",
    "exploitation.md": "exploitation.fr.md", "exploitation.fr.md": "exploitation.md",
    "LISEZMOI.md": "README.md", "<input>": "<entree>", "--langue en": "--langue fr",
}


def traduit(code):
    """The code of an English document as the French one writes it."""
    if code in TRADUITS:
        return TRADUITS[code]
    return code.replace("<input>", "<entree>").replace("--langue en", "--langue fr")


def decouper(texte):
    """The headings, commands and tables of a document, in order: (kind, level or
    lines, line number) with what they hold."""
    titres, blocs, tables = [], [], []
    lignes = texte.split("\n")
    i = 0
    while i < len(lignes):
        ligne = lignes[i]
        if ligne.startswith("```"):
            debut = i
            i += 1
            while i < len(lignes) and not lignes[i].startswith("```"):
                i += 1
            blocs.append((debut + 1, [l.rstrip() for l in lignes[debut + 1:i]]))
        elif ligne.startswith("    ") and (i == 0 or not lignes[i - 1].strip()):
            debut = i
            while i < len(lignes) and (lignes[i].startswith("    ") or not lignes[i].strip()):
                i += 1
            if not dans_une_liste(lignes, debut):
                blocs.append((debut + 1, [l.strip() for l in lignes[debut:i] if l.strip()]))
            continue
        elif re.match(r"#+ ", ligne):
            titres.append((i + 1, len(ligne) - len(ligne.lstrip("#")), ligne.lstrip("# ")))
        elif ligne.startswith("|"):
            debut = i
            while i < len(lignes) and lignes[i].startswith("|"):
                i += 1
            tables.append((debut + 1, [cellules(l) for l in lignes[debut:i]]))
            continue
        i += 1
    return titres, blocs, tables


def dans_une_liste(lignes, i):
    """Whether the line goes on with an item of a list."""
    for ligne in reversed(lignes[:i]):
        if ligne.strip():
            return bool(re.match(r"\s*([-*]|\d+\.) ", ligne))
    return False


def cellules(ligne):
    return [c.strip() for c in re.split(r"(?<!\\)\|", ligne.strip())[1:-1]]


def commandes(lignes):
    """The lines of a block without comments, in English or French; of an example what
    was typed, since the answer has a language of its own."""
    if any(l.startswith("$ ") for l in lignes):
        lignes = [l for l in lignes if l.startswith("$ ")]
    return [traduit(re.sub(r"\s+# .*", "", l)) for l in lignes if not l.startswith("# ")]


def invariant(cellule):
    """What of a cell both languages write alike."""
    codes = [traduit(c) for c in re.findall(r"`([^`]*)`", cellule)]
    reste = re.sub(r"`[^`]*`", "", cellule)
    return sorted(codes) + sorted(re.findall(r"\b(?:\d+|IG\d{3}|I\d{3}|[A-Z]{3,4}\d?)\b", reste))


def comparer(anglais, francais):
    """What the French text lacks, as lines of text."""
    manques = []
    (ta, ba, na), (tf, bf, nf) = decouper(anglais), decouper(francais)
    for k in range(max(len(ta), len(tf))):
        if k >= len(tf):
            manques.append(f"the heading “{ta[k][2]}” (line {ta[k][0]}) has no equal")
        elif k >= len(ta):
            manques.append(f"the French heading “{tf[k][2]}” (line {tf[k][0]}) has no equal")
        elif ta[k][1] != tf[k][1]:
            manques.append(f"the heading “{ta[k][2]}” (line {ta[k][0]}) stands against “{tf[k][2]}” of another level")
            break
    for k in range(max(len(ba), len(bf))):
        if k >= len(bf):
            manques.append(f"the commands of line {ba[k][0]} are missing: {ba[k][1][:1]}")
        elif k >= len(ba):
            manques.append(f"the French commands of line {bf[k][0]} have no equal: {bf[k][1][:1]}")
        elif commandes(ba[k][1]) != [traduit(c) for c in commandes(bf[k][1])]:
            manques.append(f"the commands of line {ba[k][0]} differ from those of French line {bf[k][0]}")
    for k in range(max(len(na), len(nf))):
        if k >= len(nf):
            manques.append(f"the table of line {na[k][0]} is missing")
        elif k >= len(na):
            manques.append(f"the French table of line {nf[k][0]} has no equal")
        else:
            manques += comparer_tables(na[k], nf[k])
    return manques


def comparer_tables(a, f):
    if len(a[1]) != len(f[1]):
        return [f"the table of line {a[0]} has {len(a[1])} rows, French line {f[0]} has {len(f[1])}"]
    manques = []
    for k, (ra, rf) in enumerate(zip(a[1], f[1])):
        # What names a row stands in its first cell; behind it, the words may need more or fewer names.
        if len(ra) != len(rf) or (k > 1 and invariant(ra[0]) != [traduit(c) for c in invariant(rf[0])]):
            manques.append(f"the row “{ra[0]}” (line {a[0] + k}) differs from “{rf[0]}” (French line {f[0] + k})")
    return manques


def essayer_le_juge(texte):
    """The comparison must notice a document that lacks something."""
    lignes = texte.split("\n")
    for motif in (r"## ", r"    \S", r"\| `"):
        rang = next((i for i, l in enumerate(lignes) if re.match(motif, l)), None)
        if rang is not None and not comparer(texte, "\n".join(lignes[:rang] + lignes[rang + 1:])):
            return f"a document without its line {rang + 1} would pass"
    return ""


def main():
    racine = pathlib.Path(sys.argv[1])
    rate = False
    for anglais, francais in PAIRES:
        texte = (racine / anglais).read_text(encoding="utf-8")
        faille = essayer_le_juge(texte)
        if not (racine / francais).exists():
            manques = ["it does not exist"]
        else:
            manques = comparer(texte, (racine / francais).read_text(encoding="utf-8"))
        for manque in manques + ([faille] if faille else []):
            print(f"{francais} beside {anglais}: {manque}")
            rate = True
    return 1 if rate else 0


if __name__ == "__main__":
    sys.exit(main())
