#!/usr/bin/env python3
"""Runs the commands of README.md, doc/exploitation.md and their French twins as
they are written there, in a scratch folder that stands for the machine's own.
What is not run here is listed with where it is; a command that is neither fails.

    commandes.py SOURCE QUILVANE QUILVANE_LOT QUILVANE_GUIDE
"""
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
import unittest

from jumeaux import decouper

SOURCE = pathlib.Path(sys.argv[1]).resolve()
PROGRAMMES = [pathlib.Path(p).resolve() for p in sys.argv[2:5]]
PATIENCE = 120
DOCUMENTS = ("README.md", "LISEZMOI.md", "doc/exploitation.md", "doc/exploitation.fr.md")

# Commands that another test runs, or that only a person can.
AILLEURS = (
    (r"scripts/(demo|paquet|test)\.sh", "they build all anew; the second and third are what runs tests"),
    (r"git clone <this repository> && cd quilvane", "it names no repository"),
    (r"quilvane \[-i\|-d\|-v\] <", "a usage line"),
    (r"(find recus|parallel) .*", "lot.parallele"),
    (r"cmake (-G Ninja -B|--build|--install) build/mine.*", "installation.installation does the same"),
    (r"install -d -o quilvane .*", "the package's test, in a fresh Debian root"),
    (r"apt-get install \./quilvane_VERSION_amd64\.deb", "the package's test"),
    (r"systemctl enable --now .*|systemd-sysusers && systemd-tmpfiles .*", "installation.unites"),
    (r"\[Service\]|ReadWritePaths=/.*", "installation.unites"),
)


class Commandes(unittest.TestCase):
    def setUp(self):
        self.dossier = pathlib.Path(tempfile.mkdtemp(prefix="quilvane-documents-"))
        self.addCleanup(shutil.rmtree, self.dossier)
        (self.dossier / "bin").mkdir()
        for programme in PROGRAMMES:
            (self.dossier / "bin" / programme.name).symlink_to(programme)

    def depot(self, chemin):
        """A spool with an accepted, a refused and a failing file, and with an old day in its archive."""
        depot = self.dossier / chemin
        shutil.rmtree(depot, ignore_errors=True)
        (depot / "arrivee").mkdir(parents=True)
        for nom in ("acti_accepte.vse", "acti_rejete.vse"):
            shutil.copy(SOURCE / "exemples" / nom, depot / "arrivee")
        (depot / "arrivee/rien.vse").write_bytes(b"rien\n")
        vieux = depot / "archive/2001/02/03"
        vieux.mkdir(parents=True)
        (vieux / "a").write_bytes(b"a")
        return depot

    def lancer(self, ligne, attendre=None):
        """Runs a line in a shell, until it ends or what is waited for is there; its status and output."""
        milieu = dict(os.environ, LANG="C", HOME=str(self.dossier), PATH="%s:%s" % (self.dossier / "bin", os.environ["PATH"]))
        p = subprocess.Popen(["sh", "-c", "exec " + ligne], cwd=self.dossier, env=milieu, stdin=subprocess.DEVNULL,
                             stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        self.addCleanup(p.stdout.close)
        if attendre is not None:
            fin = time.monotonic() + PATIENCE
            while not attendre() and p.poll() is None and time.monotonic() < fin:
                time.sleep(0.02)
            p.send_signal(signal.SIGTERM)
        dit, _ = p.communicate(timeout=PATIENCE)
        return p.returncode, dit

    def ici(self, ligne):
        """The line with the machine's folders moved into the scratch folder."""
        for de, vers in (("/srv/vse", "srv"), ("/var/spool/quilvane/acti", "acti"), ("/var/log", "log"), ("/var/lib/node_exporter", "node")):
            ligne = ligne.replace(de, str(self.dossier / vers))
        for vers in ("log", "node"):
            shutil.rmtree(self.dossier / vers, ignore_errors=True)
            (self.dossier / vers).mkdir()
        return ligne

    def verifier_depot(self, depot):
        lieux = {lieu: sorted(p.name for p in (depot / lieu).iterdir() if p.name.endswith(".vse")) for lieu in ("emis", "rejets", "echecs", "arrivee", "encours")}
        self.assertEqual(lieux, {"emis": ["acti_accepte.vse"], "rejets": ["acti_rejete.vse"], "echecs": ["rien.vse"], "arrivee": [], "encours": []})
        lignes = (depot / "journal.jsonl").read_text().splitlines()
        self.assertEqual(len(lignes), 3)
        return [json.loads(l) for l in lignes]

    def essayer_lot(self, ligne):
        """A line that runs quilvane-lot, once or for ever."""
        ligne = self.ici(ligne)
        mots = shlex.split(ligne, comments=True)
        depot = self.depot(next(m for m in mots if m.endswith(("DEPOT", "/srv", "/acti"))))
        journal = depot / "journal.jsonl"
        finis = lambda: journal.exists() and journal.read_bytes().count(b"\n") == 3
        statut, dit = self.lancer(ligne, finis if "--suivre" in mots else None)
        self.assertEqual(statut, 1, dit)
        self.verifier_depot(depot)
        if "--metriques" in mots:
            self.assertIn('quilvane_lot_fichiers_total{issue="emis"} 1', pathlib.Path(mots[mots.index("--metriques") + 1]).read_text())
        self.assertEqual((depot / "archive/2001/02/03/a").exists(), "--garder" not in mots)
        for m in re.findall(r">> (\S+)", ligne):
            self.assertIn("1 accepted, 1 refused, 1 failed", pathlib.Path(m).read_text())
        return dit

    def essayer_cron(self, ligne):
        """A line of crontab: five fields of time, in /etc/cron.d a user as well, and the program
        with its folder, since cron does not look into many."""
        m = re.fullmatch(r"((?:\*(?:/\d+)?|\d+) +){5} ?(?:quilvane +)?/usr/bin/(quilvane-lot .*)", ligne)
        self.assertTrue(m, ligne)
        dit = self.essayer_lot(m[2])
        if m[2].endswith(">/dev/null"):
            # What failed is the one thing that cron would send.
            self.assertEqual(dit, "")

    def essayer_jq(self, ligne):
        depot = self.depot("jq")
        self.lancer("quilvane-lot jq")
        os.chdir(depot)
        self.addCleanup(os.chdir, "/")
        if not shutil.which("jq"):
            self.skipTest("jq is not installed")
        r = subprocess.run(["sh", "-c", ligne], capture_output=True, text=True, check=True)
        self.assertRegex(r.stdout, r"\A\d{4}-\d\d-\d\dT[^\t]+Z\trien\.vse\tstatut\t[^\t]+IG011[^\t]+\n\Z")

    def essayer(self, document):
        lances = 0
        for rang, lignes in decouper((SOURCE / document).read_text(encoding="utf-8"))[1]:
            for ligne in lignes:
                ligne = re.sub(r"\s+# .*", "", ligne)
                if ligne.startswith("#") or lignes[0].startswith("$ ") or any(re.fullmatch(motif + r".*", ligne) for motif, _ in AILLEURS):
                    continue
                with self.subTest(document=document, rang=rang, ligne=ligne):
                    if ligne.startswith("quilvane-lot "):
                        self.essayer_lot(ligne)
                    elif ligne.startswith("*"):
                        self.essayer_cron(ligne)
                    elif ligne.startswith("jq "):
                        self.essayer_jq(ligne)
                    else:
                        self.fail("no test runs this command")
                lances += 1
        return lances

    def test_readme(self):
        self.assertEqual([self.essayer(d) for d in DOCUMENTS[:2]], [2, 2])

    def test_exploitation(self):
        self.assertEqual([self.essayer(d) for d in DOCUMENTS[2:]], [5, 5])

    def test_guide(self):
        """The commands of quilvane-guide in the tables of README answer."""
        for document in DOCUMENTS[:2]:
            texte = (SOURCE / document).read_text(encoding="utf-8")
            vus = re.findall(r"^\| `(quilvane-guide [^`]+)` \|", texte, re.M)
            self.assertEqual(len(vus), 6)
            shutil.copy(SOURCE / "exemples/abat_rejete.vse", self.dossier / "envoi")
            shutil.copy(SOURCE / "exemples/abat_rejete.vse", self.dossier / "recu")
            self.lancer("quilvane recu erreurs log")
            for commande in vus:
                ligne = re.sub(r"(FILE|FICHIER)\.\.\.|--source \w+ \w+|\w+ --source \w+",
                               lambda m: "envoi" if "." in m[0] else "erreurs --source envoi", commande)
                statut, dit = self.lancer(ligne)
                self.assertEqual(statut, 2 if "envoi" in ligne else 0, (ligne, dit))
                self.assertTrue(dit)

    def test_exemple(self):
        """README's first example with the program prints what is shown there."""
        (self.dossier / "exemples").symlink_to(SOURCE / "exemples")
        for document in DOCUMENTS[:2]:
            texte = (SOURCE / document).read_text(encoding="utf-8")
            bloc = next(b for b in re.findall(r"^```\n(.*?)^```$", texte, re.M | re.S) if "\n$ quilvane -i" in b)
            obtenu = ""
            script = "".join("printf '%%s\\n' %s; (exit $s); %s; s=$?\n" % (shlex.quote(l), l[2:]) for l in bloc.splitlines() if l.startswith("$ "))
            _, obtenu = self.lancer("sh -c " + shlex.quote("s=0\n" + script))
            self.assertEqual(obtenu, bloc)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
