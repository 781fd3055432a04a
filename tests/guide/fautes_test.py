"""File calls of quilvane-guide that fail, one by one and all from one on, kills
before each of them, a full disk and signals: a status, a line that says why, and
under the name of -o what was there before or the whole answer.
"""
import os
import resource
import shutil
import signal
import subprocess
import time
import unittest

import banc

INJECTEUR = os.environ.get("QUILVANE_INJECTEUR_GUIDE", str(banc.RACINE / "build/release/tests/libinjecteur_guide.so"))
ANCIEN = b"what was there before\n"
# More calls than any of these runs makes.
ASSEZ = 100
# Under sanitizers each run takes long: every third call only.
PAS = 3 if banc.ASSAINI else 1


class Fautes(banc.Cas):
    def setUp(self):
        super().setUp()
        exemples = banc.exemples()
        (self.dossier / "travail").mkdir()
        self.fichier("travail/bon", exemples["sort_accepte"])
        self.fichier("travail/faux", exemples["sort_rejete"])
        self.fichier("travail/retour", banc.quilvane(exemples["sort_rejete"])[1])

    def courir(self, mots, faute, ancien=None, **env):
        """A run under a fault; status, standard output and error, what stands under the
        name of -o (None: nothing), other names that were left, calls that were met."""
        travail = self.dossier / "travail"
        for chemin in travail.glob(".*"):
            chemin.unlink()
        sortie, temoin = travail / "s", self.dossier / "temoin"
        for chemin in (sortie, temoin):
            chemin.unlink(missing_ok=True)
        if ancien is not None:
            sortie.write_bytes(ancien)
        env = banc.milieu(LC_ALL="C", QUILVANE_GUIDE_FAUTE=faute, QUILVANE_GUIDE_TEMOIN=str(temoin), **env)
        env["LD_PRELOAD"] = INJECTEUR + ":" + banc.FAKETIME
        r = subprocess.run([banc.GUIDE, *mots], cwd=travail, stdin=subprocess.DEVNULL, capture_output=True, env=env, timeout=120)
        restes = sorted({p.name for p in travail.iterdir()} - {"bon", "faux", "retour", "s"})
        return (r.returncode, r.stdout, r.stderr.decode(), sortie.read_bytes() if sortie.exists() else None, restes,
                temoin.read_text().split() if temoin.exists() else [])

    def partout(self, mots, action, juger, ancien=None, **env):
        """Disturbs a run at each of its calls; the names of the calls that were met first."""
        entier = self.courir(mots, "0:rien", ancien, **env)
        vus = []
        for n in range(1, ASSEZ * PAS, PAS):
            obtenu = self.courir(mots, f"{n}:{action}", ancien, **env)
            with self.subTest(mots=mots, action=action, n=n, appels=obtenu[5]):
                juger(entier, obtenu)
            if not obtenu[5]:
                return vus
            vus.append(obtenu[5][0])
        self.fail("it does not end")

    COMMANDES = (["verifier", "bon"], ["verifier", "faux", "bon"], ["verifier", "--format", "json", "faux"], ["verifier", "--format", "html", "faux"])

    def juger(self, entier, obtenu, ancien):
        """What holds under any refused call."""
        statut, sortie, erreur, fichier, restes, appels = obtenu
        self.assertEqual(sortie, b"")
        # The second name of the whole file that could not be removed, where it was given by a link.
        self.assertTrue(restes == [] or appels == ["unlink"] and fichier == entier[3], restes)
        if statut == entier[0]:
            self.assertEqual((fichier, erreur), (entier[3], ""))
            return
        self.assertEqual(statut, 1)
        if fichier == ancien:
            self.assertRegex(erreur, r"\Aquilvane-guide: (s cannot be written: .+|s exists already .+)\n\Z")
        else:
            # A whole answer that tells which file cannot be read.
            self.assertEqual(erreur, "")
            self.assertIn(appels[0], ("open", "fstat", "read"))
            self.assertIsNotNone(fichier)
            self.assertIn(b"IG003", fichier)
            self.assertEqual(fichier[-1:], entier[3][-1:])
            if b"<html" in fichier:
                self.assertTrue(fichier.endswith(entier[3][-16:]))

    def test_sans_faute(self):
        """The library alone changes nothing, and every way of naming the file gives the same."""
        for mots in self.COMMANDES:
            entier = self.courir(mots + ["-o", "s"], "0:rien")
            self.assertEqual(entier[1:3] + entier[4:], (b"", "", [], []))
            self.assertEqual(entier[3], self.courir(mots, "0:rien")[1])
            self.assertEqual(entier, self.courir(mots + ["-o", "s"], "0:rien", QUILVANE_GUIDE_SANS_RENAMEAT2="1"))
            self.assertEqual(entier, self.courir(mots + ["-o", "s", "--remplacer"], "0:rien", ANCIEN))

    def test_appels_refuses(self):
        for mots in self.COMMANDES:
            for ancien, options in ((None, []), (ANCIEN, ["--remplacer"])):
                juger = lambda entier, obtenu: self.juger(entier, obtenu, ancien)
                for env in ({}, {"QUILVANE_GUIDE_SANS_RENAMEAT2": "1"}) if ancien is None else ({},):
                    vus = self.partout(mots + ["-o", "s", *options], "refuser", juger, ancien, **env)
                    if PAS == 1:
                        attendus = {"open", "read", "write", "fsync", "close", "stat", "fstat"}
                        attendus |= {"rename", "fchmod", "realpath"} if ancien else {"link", "unlink"} if env else {"renameat2"}
                        self.assertLessEqual(attendus, set(vus))

    def test_tout_refuse(self):
        """From one call on everything fails, the removal of the unfinished file too: that may stay, hidden."""
        def juger(entier, obtenu):
            statut, _, erreur, fichier, restes, appels = obtenu
            if not appels:
                return
            self.assertIn(statut, (1, entier[0]))
            self.assertTrue(fichier in (None, ANCIEN, entier[3]), fichier)
            self.assertTrue(fichier == entier[3] or erreur)
            self.assertTrue(all(r.startswith(".quilvane-guide-") for r in restes), restes)
        self.partout(["verifier", "faux", "-o", "s"], "toujours", juger)
        self.partout(["verifier", "faux", "-o", "s", "--remplacer"], "toujours", juger, ANCIEN)

    def test_tue(self):
        """A kill leaves the old file, none, or the whole answer; and no more than one hidden file."""
        for ancien, options in ((None, []), (ANCIEN, ["--remplacer"])):
            def juger(entier, obtenu):
                statut, sortie, erreur, fichier, restes, appels = obtenu
                self.assertEqual((statut, sortie, erreur), (-9, b"", "") if appels else entier[:3])
                self.assertTrue(fichier in (ancien, entier[3]), fichier)
                self.assertLessEqual(len(restes), 1)
                self.assertTrue(all(r.startswith(".quilvane-guide-") for r in restes), restes)
            vus = self.partout(["verifier", "faux", "-o", "s", *options], "tuer", juger, ancien)
            self.assertGreater(len(vus), 4)

    def test_sans_fichier(self):
        """Standard output, and the command that explains an error file."""
        def juger(entier, obtenu):
            statut, sortie, erreur, fichier, restes, appels = obtenu
            self.assertEqual((fichier, restes), (None, []))
            if statut == entier[0]:
                self.assertEqual((sortie, erreur), (entier[1], ""))
                return
            self.assertEqual(statut, 1)
            if appels == ["write"]:
                self.assertEqual(erreur, "quilvane-guide: standard output cannot be written: there is no space left\n")
            elif "IG003" not in sortie.decode():
                self.assertEqual(sortie, b"")
                self.assertRegex(erreur, r"\Aquilvane-guide: (retour|faux) cannot be read: .+\n\Z")
        for mots in (["verifier", "faux"], ["retour", "retour"], ["retour", "retour", "--source", "faux"]):
            vus = self.partout(mots, "refuser", juger)
            self.assertLessEqual({"read", "write"} if PAS == 1 else set(), set(vus))

    def test_disque_plein(self):
        """A file that may not grow: told, the old one left as it was, nothing made."""
        for ancien, options in ((None, []), (ANCIEN, ["--remplacer"])):
            travail = self.dossier / "travail"
            if ancien:
                (travail / "s").write_bytes(ancien)
            r = subprocess.run([banc.GUIDE, "verifier", "--format", "html", "faux", "-o", "s", *options], cwd=travail, capture_output=True,
                               env=banc.milieu(LC_ALL="C"), preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (5000, 5000)))
            self.assertEqual((r.returncode, r.stdout, r.stderr), (1, b"", b"quilvane-guide: s cannot be written: File too large\n"))
            self.assertEqual(sorted(p.name for p in travail.iterdir()), ["bon", "faux", "retour"] + (["s"] if ancien else []))
            if ancien:
                self.assertEqual((travail / "s").read_bytes(), ancien)

    def test_disque_vraiment_plein(self):
        """The same on a file system of a few pages."""
        (self.dossier / "petit").mkdir()
        commande = ["unshare", "--mount", "--map-root-user", "sh", "-c",
                    'mount -t tmpfs -o size=16k petit petit && "$1" verifier --format html travail/faux -o petit/s; echo "$?"; ls -A petit', "sh", banc.GUIDE]
        r = subprocess.run(commande, cwd=self.dossier, capture_output=True, env=banc.milieu(LC_ALL="C"))
        if b"mount:" in r.stderr or b"unshare:" in r.stderr:
            self.skipTest("no file system may be mounted here")
        self.assertEqual((r.stdout, r.stderr), (b"1\n", b"quilvane-guide: petit/s cannot be written: there is no space left\n"))

    def test_signaux(self):
        """A run that is asked to end removes what it has begun."""
        os.mkfifo(self.dossier / "tube")
        for numero in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            lit = os.open(self.dossier / "tube", os.O_RDWR)
            p = subprocess.Popen([banc.GUIDE, "verifier", "-", "-o", "s"], cwd=self.dossier / "travail", stdin=lit, stderr=subprocess.PIPE,
                                 env=banc.milieu(LC_ALL="C"))
            while not list((self.dossier / "travail").glob(".quilvane-guide-*")):
                self.assertIsNone(p.poll())
                time.sleep(0.01)
            # It now waits for its input; the signal is its end in any case.
            p.send_signal(numero)
            self.assertEqual((p.wait(120), p.stderr.read()), (-numero, b""))
            p.stderr.close()
            os.close(lit)
            self.assertEqual(sorted(x.name for x in (self.dossier / "travail").iterdir()), ["bon", "faux", "retour"])

    def test_sorties_fermees(self):
        """Closed descriptors are not taken for the files of the run."""
        travail = self.dossier / "travail"
        # Without the clock's library, which opens files of its own.
        env = {"PATH": os.environ["PATH"], "LC_ALL": "C"}
        for fermes, attendu in ((">&-", 1), ("2>&-", 2), (">&- 2>&-", 1), ("<&-", 2)):
            r = subprocess.run(["sh", "-c", f'exec "$1" verifier faux {fermes}', "sh", banc.GUIDE], cwd=travail, capture_output=True, env=env)
            self.assertEqual(r.returncode, attendu, fermes)
            r = subprocess.run(["sh", "-c", f'exec "$1" verifier faux absent -o s --remplacer {fermes}', "sh", banc.GUIDE], cwd=travail, capture_output=True, env=env)
            self.assertEqual((r.returncode, r.stdout, r.stderr), (1, b"", b""), fermes)
            self.assertNotIn(b"quilvane-guide:", (travail / "s").read_bytes())
            r = subprocess.run(["sh", "-c", f'exec "$1" verifier - {fermes}', "sh", banc.GUIDE], cwd=travail, input=b"", capture_output=True, env=env)
            self.assertEqual(r.returncode, 1 if ">" in fermes.replace("2>", "") or "<" in fermes else 2, fermes)

    def test_remplacer(self):
        """What is replaced keeps its rights; a link stays, and leads to the new file."""
        travail = self.dossier / "travail"
        (travail / "s").write_bytes(ANCIEN)
        (travail / "s").chmod(0o640)
        (travail / "lien").symlink_to("s")
        (travail / "rompu").symlink_to("absent")
        entier = self.courir(["verifier", "faux"], "0:rien")[1]
        (travail / "s").write_bytes(ANCIEN)
        (travail / "s").chmod(0o640)
        for nom in ("lien", "s"):
            self.assertEqual(banc.guide("verifier", "faux", "-o", nom, "--remplacer", dossier=travail, langue="en")[0], 2)
            self.assertEqual((travail / "s").read_bytes(), entier)
            self.assertEqual((travail / "s").stat().st_mode & 0o7777, 0o640)
            self.assertTrue((travail / "lien").is_symlink())
        self.assertEqual(banc.guide("verifier", "faux", "-o", "rompu", dossier=travail, langue="en")[::2],
                         (1, b"quilvane-guide: rompu exists already (--remplacer to replace it)\n"))
        self.assertEqual(banc.guide("verifier", "faux", "-o", "rompu", "--remplacer", dossier=travail, langue="en")[0], 2)
        self.assertFalse((travail / "absent").exists())
        self.assertEqual((travail / "rompu").read_bytes(), entier)
        # A protected file is not replaced, though its folder would allow it.
        if os.geteuid() == 0:
            travail.chmod(0o777)
            self.dossier.chmod(0o755)
            (travail / "s").chmod(0o444)
            shutil.copy(banc.GUIDE, self.dossier / "guide")  # where everybody may go
            r = subprocess.run([self.dossier / "guide", "verifier", "faux", "-o", "s", "--remplacer"], cwd=travail, capture_output=True,
                               env={"LC_ALL": "C"}, user=65534, group=65534, extra_groups=[])
            self.assertEqual((r.returncode, r.stderr), (1, b"quilvane-guide: s cannot be written: permission denied\n"))
        # A new file has the rights that the umask leaves.
        self.assertEqual(subprocess.run(["sh", "-c", 'umask 027; exec "$1" verifier faux -o neuf', "sh", banc.GUIDE], cwd=travail, env=banc.milieu()).returncode, 2)
        self.assertEqual((travail / "neuf").stat().st_mode & 0o7777, 0o640)
        self.assertEqual(sorted(p.name for p in travail.iterdir()), ["bon", "faux", "lien", "neuf", "retour", "rompu", "s"])


if __name__ == "__main__":
    unittest.main(verbosity=2)
