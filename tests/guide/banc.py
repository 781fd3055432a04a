"""Runs both programs in scratch folders, for the tests of quilvane-guide.

    banc.guide("verifier", "lot.vse")      status, standard output, standard error
    banc.quilvane(octets)                  status, published file, log, messages

The paths of the programs come from the environment, set by CTest.
"""
import itertools
import os
import pathlib
import subprocess
import tempfile
import unittest

RACINE = pathlib.Path(__file__).resolve().parents[2]
GUIDE = os.environ.get("QUILVANE_GUIDE", str(RACINE / "build/release/quilvane-guide"))
QUILVANE = os.environ.get("QUILVANE_BINAIRE", str(RACINE / "build/release/quilvane"))
FAKETIME = os.environ.get("QUILVANE_LIBFAKETIME", "/usr/lib/x86_64-linux-gnu/faketime/libfaketime.so.1")
ASSAINI = os.environ.get("QUILVANE_ASSAINI") == "ON"
# Records are dated: what is in the future depends on the day.
JOUR = "2026-11-22 12:00:00"


def milieu(**autres):
    """The environment of a run: the clock stands still, nothing of the caller's shows through."""
    base = {"PATH": os.environ.get("PATH", ""), "TZ": "UTC", "LD_PRELOAD": FAKETIME, "NO_FAKE_STAT": "1", "FAKETIME": JOUR}
    return {**base, **autres}


def guide(*mots, dossier=None, entree=b"", langue="fr", **env):
    """Runs quilvane-guide; its status, standard output and standard error (bytes)."""
    env.setdefault("LC_ALL", {"fr": "fr_FR.UTF-8", "en": "C"}[langue])
    r = subprocess.run([GUIDE, *mots], cwd=dossier, input=entree, capture_output=True, env=milieu(**env), timeout=120)
    return r.returncode, r.stdout, r.stderr


def quilvane(octets):
    """Runs quilvane on a file; status, published file, log, standard output (bytes)."""
    with tempfile.TemporaryDirectory(prefix="quilvane-guide-") as d:
        dossier = pathlib.Path(d)
        (dossier / "recu").write_bytes(octets)
        r = subprocess.run([QUILVANE, "recu", "emis", "log"], cwd=d, capture_output=True, env=milieu(), timeout=120)
        lu = {n: (dossier / n).read_bytes() if (dossier / n).exists() else b"" for n in ("emis", "log")}
        return r.returncode, lu["emis"], lu["log"], r.stdout


def exemples():
    """The example files by name: accepted and rejected, one of each message type."""
    return {p.stem: p.read_bytes() for p in sorted((RACINE / "exemples").glob("*.vse"))}


def comparer(cas, chemin, octets, essai):
    """The file holds these bytes. The texts are long: a difference is told by its first line."""
    ici, la = (t.decode().splitlines(keepends=True) for t in (chemin.read_bytes(), octets))
    for i, (a, b) in enumerate(itertools.zip_longest(ici, la, fillvalue="(nothing)"), 1):
        if a != b:
            cas.fail(f"{chemin.relative_to(RACINE)}, line {i}, has\n  {a.rstrip()}\nand the program writes\n  {b.rstrip()}\n"
                     f"If that is meant: QUILVANE_ECRIRE=1 python3 {essai}, read the difference, commit it.")


class Cas(unittest.TestCase):
    """A test with a scratch folder."""

    def setUp(self):
        scratch = tempfile.TemporaryDirectory(prefix="quilvane-guide-")
        self.addCleanup(scratch.cleanup)
        self.dossier = pathlib.Path(scratch.name)

    def fichier(self, nom, octets):
        (self.dossier / nom).write_bytes(octets)
        return nom

    def guide(self, *mots, **options):
        return guide(*mots, dossier=self.dossier, **options)


def modifier(octets, ligne, colonne, valeur):
    """A file with a text put over columns of a line (both from 1)."""
    lignes = octets.split(b"\n")
    r = lignes[ligne - 1]
    lignes[ligne - 1] = r[:colonne - 1] + valeur + r[colonne - 1 + len(valeur):]
    return b"\n".join(lignes)
