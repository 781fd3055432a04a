"""Kills runners of quilvane-lot at random moments and proves what they leave.

lot_epreuve.py BUILD EXAMPLES [--graine N] [--fichiers N] [--coups N] [--partages N]
"""
import argparse
import fcntl
import glob
import hashlib
import json
import os
import random
import re
import shutil
import subprocess
import sys
import tempfile
import time

LIEUX = ("emis", "rejets", "echecs")


def sha256(octets):
    return hashlib.sha256(octets).hexdigest()


def lire(chemin):
    with open(chemin, "rb") as f:
        return f.read()


class Depot:
    """A spool, and all that was ever put into it."""

    def __init__(self, racine, exemples):
        self.racine = racine
        self.recus = {}
        self.modeles = [lire(n) for n in sorted(glob.glob(exemples + "/*.vse"))] + [b"rien\n"]
        os.makedirs(racine + "/arrivee")

    def deposer(self, nombre):
        for _ in range(nombre):
            nom = "f%05d.vse" % len(self.recus)
            octets = self.modeles[len(self.recus) % len(self.modeles)]
            with open(self.racine + "/arrivee/" + nom, "wb") as f:
                f.write(octets)
            self.recus[nom] = octets

    def attente(self):
        return len(os.listdir(self.racine + "/arrivee"))

    def journal(self):
        """How long the journal is."""
        nom = self.racine + "/journal.jsonl"
        return os.path.getsize(nom) if os.path.exists(nom) else 0

    def verifier(self):
        """Every input once in one place, one journal line, one archived copy."""
        fautes = []
        for lieu in ("arrivee", "encours"):
            for nom in os.listdir(self.racine + "/" + lieu):
                fautes.append("%s/%s is left" % (lieu, nom))
        places = {}
        publies = set()
        for lieu in LIEUX:
            for nom in os.listdir(self.racine + "/" + lieu):
                publies.add(lieu + "/" + nom)
                # Beside a file its reason, or its reports.
                if not re.fullmatch(r"f\d+\.vse\.(raison\.txt|txt|html)", nom):
                    places.setdefault(nom, []).append(lieu)
        archives = {}
        for dossier, _, noms in os.walk(self.racine + "/archive"):
            for nom in noms:
                archives.setdefault(nom, []).append(lire(dossier + "/" + nom))
        lignes = {}
        with open(self.racine + "/journal.jsonl", "rb") as f:
            for ligne in f:
                try:
                    objet = json.loads(ligne)
                    lignes.setdefault(objet["nom"], []).append(objet)
                except ValueError:
                    print("  a line of the journal was cut short: %r" % ligne[:60])
        for nom in sorted(set(self.recus) | set(places) | set(archives) | set(lignes)):
            la = places.get(nom, [])
            if nom not in self.recus or len(la) != 1:
                fautes.append("%s ended in %s" % (nom, la or "nothing"))
                continue
            if archives.get(nom) != [self.recus[nom]]:
                fautes.append("%s: %d archived copies" % (nom, len(archives.get(nom, []))))
            if len(lignes.get(nom, [])) != 1:
                fautes.append("%s: %d journal lines" % (nom, len(lignes.get(nom, []))))
                continue
            ligne = lignes[nom][0]
            fichier = lire("%s/%s/%s" % (self.racine, la[0], nom))
            if ligne["issue"] != la[0] or ligne["fichiers"][-1] != la[0] + "/" + nom:
                fautes.append("%s: the journal says %s" % (nom, ligne["fichiers"]))
            if ligne["entree"]["sha256"] != sha256(self.recus[nom]):
                fautes.append("%s: wrong digest of the input" % nom)
            attendu = self.recus[nom] if la[0] == "echecs" else None
            if attendu is not None and fichier != attendu:
                fautes.append("%s: changed in echecs" % nom)
            if attendu is None and ligne["resultat"]["sha256"] != sha256(fichier):
                fautes.append("%s: wrong digest of the result" % nom)
        dits = [f for l in lignes.values() for f in l[0]["fichiers"]]
        for nom in sorted(publies ^ set(dits)):
            fautes.append("%s is %s" % (nom, "in no line of the journal" if nom in publies else "missing"))
        if len(dits) != len(set(dits)):
            fautes.append("a file stands in two lines of the journal")
        for faute in fautes[:20]:
            print("  " + faute)
        repris = sum(l[0]["repris"] for l in lignes.values())
        print("  %d files, %d ended by another runner, %d faults" % (len(self.recus), repris, len(fautes)))
        return not fautes


def lancer(lot, depot, *options):
    return subprocess.Popen([lot, "--repos", "0", *options, depot], stdout=subprocess.DEVNULL,
                            stderr=subprocess.DEVNULL)


def finir(lot, depot):
    """Undisturbed passes until nothing is left to take over. What a killed runner had
    started dies with it, but a moment later, and holds the lock of its folder until then."""
    for _ in range(3):
        for verrou in glob.glob(glob.escape(depot) + "/encours/*/verrou"):
            with open(verrou, "rb+") as f:
                fcntl.flock(f, fcntl.LOCK_EX)
        lancer(lot, depot, "-j", "2").wait()


def coups(lot, dossier, exemples, fichiers, nombre):
    print("%d files, a runner killed %d times" % (fichiers, nombre))
    depot = Depot(dossier + "/coups", exemples)
    depot.deposer(fichiers)
    for _ in range(nombre):
        if depot.attente() == 0:
            depot.deposer(fichiers)
        lignes = depot.journal()
        coureur = lancer(lot, depot.racine, "-j", "2")
        # Some while they start, most in the midst of files, however slow the machine is.
        if random.random() < 0.8:
            while coureur.poll() is None and depot.journal() == lignes:
                time.sleep(0.001)
        time.sleep(random.uniform(0, 0.12))
        coureur.kill()
        coureur.wait()
    finir(lot, depot.racine)
    return depot.verifier()


def partage(lot, dossier, exemples, fichiers):
    print("%d files, four runners, some killed" % fichiers)
    depot = Depot(dossier + "/partage", exemples)
    depot.deposer(fichiers)
    coureurs = [lancer(lot, depot.racine, "-j", "1") for _ in range(4)]
    tues = 0
    while depot.attente() > 0:
        time.sleep(random.uniform(0.05, 0.6))
        i = random.randrange(len(coureurs))
        if coureurs[i].poll() is None:
            coureurs[i].kill()
            tues += 1
        coureurs[i].wait()
        coureurs[i] = lancer(lot, depot.racine, "-j", "1")
    for coureur in coureurs:
        coureur.wait()
    print("  %d runners killed" % tues)
    finir(lot, depot.racine)
    return depot.verifier()


def main():
    p = argparse.ArgumentParser()
    p.add_argument("build")
    p.add_argument("exemples")
    p.add_argument("--graine", type=int, default=random.randrange(1 << 32))
    p.add_argument("--fichiers", type=int, default=500)
    p.add_argument("--coups", type=int, default=200)
    p.add_argument("--partages", type=int, default=2000)
    a = p.parse_args()
    print("graine %d" % a.graine)
    random.seed(a.graine)
    lot = os.path.abspath(a.build + "/quilvane-lot")
    dossier = tempfile.mkdtemp(prefix="quilvane-lot-")
    try:
        bon = coups(lot, dossier, a.exemples, a.fichiers, a.coups)
        bon = partage(lot, dossier, a.exemples, a.partages) and bon
    finally:
        shutil.rmtree(dossier)
    print("nothing lost, nothing doubled" if bon else "FAILED")
    sys.exit(0 if bon else 1)


if __name__ == "__main__":
    main()
