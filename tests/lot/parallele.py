#!/usr/bin/env python3
"""README's commands for GNU parallel, run as they are written there, stopped in
between and given again: every file ends once, with the status the text tells.
Ends with 77 when parallel is not installed.

    parallele.py SOURCE QUILVANE QUILVANE_LOT QUILVANE_GUIDE
"""
import glob
import json
import os
import pathlib
import re
import shlex
import shutil
import signal
import subprocess
import sys
import tempfile
import time

FICHIERS = 200
# Longer than any run takes: what does not end is a fault, and the test does not hang.
PATIENCE = 120
COUREURS = []


def commandes(source):
    """The lines of README's section, in order."""
    texte = (source / "README.md").read_text(encoding="utf-8")
    section = texte.split("\n### With GNU parallel\n")[1].split("\n## ")[0]
    return re.findall(r"^    (\S.*)$", section, re.M)


def exiger(condition, *mots):
    if not condition:
        raise AssertionError(" ".join(str(m) for m in mots))


def lire(chemin):
    return pathlib.Path(chemin).read_bytes()


def modeles(source):
    """Files with the status of quilvane they end with."""
    r = []
    for nom in sorted(glob.glob(str(source / "exemples" / "*_accepte.vse"))):
        r += [(0, lire(nom)), (2, lire(nom.replace("_accepte", "_rejete")))]
    return r[:12] + [(1, b"rien\n")]


def deposer(dossier, choix):
    """Writes the files; their status and bytes by name."""
    os.makedirs(dossier)
    entrees = {}
    for i in range(FICHIERS):
        nom = ("-%d a'b.vse" if i % 10 == 0 else "f%d.vse") % i
        entrees[nom] = choix[i % len(choix)]
        pathlib.Path(dossier, nom).write_bytes(entrees[nom][1])
    return entrees


def lancer(ligne, sorties):
    """Parallel, in a session of its own, to which all that it starts belongs."""
    COUREURS.append(subprocess.Popen(["sh", "-c", "exec " + ligne], stdin=subprocess.DEVNULL, stdout=sorties,
                                     stderr=sorties, start_new_session=True))
    return COUREURS[-1]


def session(numero):
    """The living processes of a session."""
    r = []
    for stat in glob.glob("/proc/[0-9]*/stat"):
        try:
            champs = lire(stat).rsplit(b")", 1)[1].split()
        except OSError:
            continue  # it has ended meanwhile
        if int(champs[3]) == numero and champs[0] != b"Z":
            r.append(int(stat.split("/")[2]))
    return r


def tuer(coureur):
    """Kills parallel first, so that it notes nothing, then what it had started."""
    coureur.kill()
    coureur.wait()
    while restes := session(coureur.pid):
        for pid in restes:
            try:
                os.kill(pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
        time.sleep(0.01)


def arreter_quand(coureur, condition, numero):
    """Stops parallel by a signal once the condition holds; its status."""
    fin = time.monotonic() + PATIENCE
    while not condition():
        exiger(coureur.poll() is None, "it ended before it was stopped")
        exiger(time.monotonic() < fin, "it does not get on")
        time.sleep(0.005)
    if numero == signal.SIGKILL:
        tuer(coureur)
    else:
        coureur.send_signal(numero)
    return coureur.wait(PATIENCE)


def notes(joblog):
    """(number, status, signal) of each job that parallel has noted."""
    if not os.path.exists(joblog):
        return []
    lignes = lire(joblog).decode("latin-1").split("\n")[1:-1]
    return [tuple(int(l.split("\t")[k]) for k in (0, 6, 7)) for l in lignes]


def essayer_fichiers(ecrire_liste, passer, choix, sorties):
    """quilvane itself over many files, stopped and resumed three times."""
    entrees = deposer("recus", choix)
    subprocess.run(["sh", "-c", ecrire_liste], check=True)
    noms = [os.path.basename(n) for n in lire("liste").decode().split("\0")[:-1]]
    exiger(sorted(noms) == sorted(entrees), "the list does not hold the files")
    for numero, faits in ((signal.SIGTERM, 20), (signal.SIGINT, 60), (signal.SIGKILL, 100)):
        statut = arreter_quand(lancer(passer, sorties), lambda: len(notes("passages")) >= faits, numero)
        attendu = -9 if numero == signal.SIGKILL else 255
        exiger(statut == attendu, "stopped by signal", numero, "it ended with status", statut)
        exiger(len(notes("passages")) < FICHIERS, "nothing was left to resume")
    deja = {n for n, _, _ in notes("passages")}
    statut = lancer(passer, sorties).wait(PATIENCE)
    autres = sum(s != 0 for n, s, _ in notes("passages") if n not in deja)
    exiger(statut == min(autres, 101) > 0, autres, "files did not end with 0, parallel with", statut)

    obtenus = notes("passages")
    exiger(sorted(n for n, _, _ in obtenus) == list(range(1, FICHIERS + 1)), "not every file is noted once")
    for numero, statut, recu in obtenus:
        nom = noms[numero - 1]
        exiger((statut, recu) == (entrees[nom][0], 0), nom, "ended with", statut, recu)
        contenu = sorted(os.listdir("faits/" + nom))
        exiger(contenu == (["log", "recu"] if statut == 1 else ["emis", "log"]), nom, "left", contenu)
        exiger((os.path.getsize("faits/%s/log" % nom) == 0) == (statut != 1), nom, "has a wrong log")
        if statut != 1:
            # Error records have ERRE as their type; no accepted file among these has.
            exiger((b"ERRE" in lire("faits/%s/emis" % nom)) == (statut == 2), nom, "has a wrong result")
        exiger(lire("recus/" + nom) == entrees[nom][1], nom, "was changed in recus")
    exiger(sorted(os.listdir("faits")) == sorted(entrees), "there are more folders than files")
    exiger({s for _, s, _ in obtenus} == {0, 1, 2}, "not every status was tried")

    # Given once more it finds nothing to do.
    exiger(lancer(passer, sorties).wait(PATIENCE) == 0, "it cannot be given again")
    exiger(notes("passages") == obtenus, "what is done was done again")


def essayer_log(ecrire_liste, passer, sorties):
    """A publication that failed leaves status 0 and a line in the log: noted as 1."""
    os.makedirs("echec_tu/bin")
    os.makedirs("echec_tu/recus")
    os.chdir("echec_tu")
    pathlib.Path("bin/quilvane").write_text("#!/bin/sh\necho IG010 > log\n", encoding="ascii")
    os.chmod("bin/quilvane", 0o755)
    pathlib.Path("recus/a").write_bytes(b"x\n")
    ligne = ecrire_liste + "; PATH=$PWD/bin:$PATH; exec " + passer
    statut = lancer("sh -c " + shlex.quote(ligne), sorties).wait(PATIENCE)
    exiger((statut, notes("passages")) == (1, [(1, 1, 0)]), "a line in the log was not seen")
    os.chdir("..")


def essayer_depot(passer, choix, sorties):
    """Four runners on one spool, all of them killed, then given again."""
    entrees = deposer("DEPOT/arrivee", choix)
    statut = arreter_quand(lancer(passer, sorties),
                           lambda: os.path.exists("DEPOT/journal.jsonl") and
                           lire("DEPOT/journal.jsonl").count(b"\n") > 20, signal.SIGKILL)
    exiger(statut == -9 and os.listdir("DEPOT/arrivee"), "it was not stopped half way")
    statut = lancer(passer, sorties).wait(PATIENCE)
    exiger(statut in range(1, 5), "the runners end with status", statut)
    exiger(len(notes("coureurs")) == 4, "there were not four runners")
    exiger(all(s in (0, 1, 2) for _, s, _ in notes("coureurs")), "a runner ended otherwise than told")

    exiger(not os.listdir("DEPOT/arrivee") and not os.listdir("DEPOT/encours"), "something was left")
    lieux = {0: "emis", 2: "rejets", 1: "echecs"}
    for statut, lieu in lieux.items():
        attendus = sorted(n for n, e in entrees.items() if e[0] == statut)
        presents = sorted(n for n in os.listdir("DEPOT/" + lieu) if n.endswith(".vse"))
        exiger(presents == attendus, lieu, "holds", len(presents), "files instead of", len(attendus))
    lignes = [json.loads(l) for l in lire("DEPOT/journal.jsonl").splitlines()]
    exiger(sorted(l["nom"] for l in lignes) == sorted(entrees), "the journal has not one line for each")
    archives = {os.path.basename(n): lire(n) for n in glob.glob("DEPOT/archive/*/*/*/*")}
    exiger(archives == {n: e[1] for n, e in entrees.items()}, "the archive is not what came")


def main():
    source, binaires = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2:]
    if not shutil.which("parallel"):
        print("skipped: parallel is not installed")
        return 77
    dossiers = [os.path.dirname(os.path.abspath(b)) for b in binaires]
    os.environ["PATH"] = os.pathsep.join(dossiers + [os.environ["PATH"]])
    dossier = tempfile.mkdtemp(prefix="quilvane-parallele-")
    os.environ["HOME"] = os.environ["TMPDIR"] = dossier
    os.chdir(dossier)
    try:
        with open("sorties", "wb") as sorties:
            liste, passer, depot = commandes(source)
            choix = modeles(source)
            essayer_log(liste, passer, sorties)
            essayer_fichiers(liste, passer, choix, sorties)
            essayer_depot(depot, choix, sorties)
    except AssertionError as faute:
        print(faute)
        return 1
    finally:
        for coureur in COUREURS:
            tuer(coureur)
        os.chdir("/")
        shutil.rmtree(dossier)
    return 0


if __name__ == "__main__":
    sys.exit(main())
