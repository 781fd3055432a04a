"""The command line of quilvane-guide: one table of subcommands and options
feeds parser, help, manual page and completions; none can be forgotten.
"""
import os
import re
import shutil
import subprocess
import unittest

import banc

LANGUES = ("fr", "en")


def manquant(programme):
    return unittest.skipIf(shutil.which(programme) is None, f"{programme} is not installed")


def terminalAbsent():
    """Whether no pseudo-terminal can be had here."""
    try:
        for fd in os.openpty():
            os.close(fd)
    except OSError:
        return True
    return False


def table():
    """The subcommands and options that the source's tables hold."""
    source = (banc.RACINE / "src/guide/options.cpp").read_text()
    commandes = source[source.index("COMMANDES[] = {"):source.index("OPTIONS[] = {")]
    options = source[source.index("OPTIONS[] = {"):source.index("T_USAGE")]
    noms = re.findall(r'^    \{"(\w+)",', commandes, re.M)
    longues = re.findall(r"""\{'\w',\s*"(\w+)",\s*(?:nullptr|"(\w+)")""", options)
    assert len(noms) == 9 and len(longues) == len(re.findall(r"\{'\w'", options)), (noms, longues)
    return noms, [n for paire in longues for n in paire if n]


class Options(banc.Cas):
    def sortie(self, *mots, statut=0, langue="fr", **env):
        lu, sortie, erreur = self.guide(*mots, langue=langue, **env)
        self.assertEqual((lu, erreur), (statut, b""), mots)
        return sortie.decode()

    def refus(self, *mots, langue="fr"):
        """Standard error of wrong usage."""
        lu, sortie, erreur = self.guide(*mots, langue=langue)
        self.assertEqual((lu, sortie), (3, b""), mots)
        return erreur.decode()

    def test_rien_n_est_oublie(self):
        noms, options = table()
        for langue in LANGUES:
            aide = self.sortie("--help", langue=langue)
            manuel = self.sortie("manuel", langue=langue)
            coquilles = [self.sortie("completion", c, langue=langue) for c in ("bash", "zsh", "fish")]
            for nom in noms:
                self.assertRegex(aide, rf"(?m)^  {nom} ")
                self.assertIn(f"\n.It Cm {nom}", manuel)
                for c in coquilles:
                    self.assertRegex(c, rf"\b{nom}\b")
            for option in options:
                self.assertIn(f"--{option}", aide)
                self.assertIn(f"Fl \\-{option}", manuel)
            for option in set(options) - {"aide", "output"}:
                self.assertIn(f"--{option}", coquilles[0])
                self.assertIn(f"--{option}", coquilles[1])
                self.assertIn(f"-l {option}", coquilles[2])

    def test_aide_d_une_commande(self):
        for nom in table()[0]:
            for langue, usage in zip(LANGUES, ("Usage : ", "Usage: ")):
                aide = self.sortie(nom, "--aide", langue=langue)
                self.assertTrue(aide.startswith(f"{usage}quilvane-guide {nom} "))
                self.assertEqual("--source" in aide, nom == "retour")
                self.assertEqual("--format" in aide, nom in ("verifier", "erreurs", "catalogue"))

    def test_version(self):
        version = re.search(r"project\(quilvane VERSION ([\d.]+)", (banc.RACINE / "CMakeLists.txt").read_text())[1]
        self.assertEqual(self.sortie("--version"), f"quilvane-guide {version}\n")

    def test_sortie_impossible(self):
        """What cannot be written is no success."""
        for mot in ("--version", "--help"):
            r = subprocess.run(["sh", "-c", 'exec "$0" "$@" 1<&0', banc.GUIDE, mot], input=b"", capture_output=True,
                               env=banc.milieu(LC_ALL="C"), timeout=120)
            self.assertEqual(r.returncode, 1, mot)
            self.assertIn(b"standard output cannot be written", r.stderr)

    def test_langue(self):
        fr, en = "Usage : ", "Usage: "
        for env, attendu in (({"LC_ALL": "fr_FR.UTF-8"}, fr), ({"LC_ALL": "fr"}, fr), ({"LC_ALL": "de_DE"}, en), ({"LC_ALL": "", "LC_MESSAGES": "fr_CA"}, fr),
                             ({"LC_ALL": "", "LANG": "fr_BE"}, fr), ({"LC_ALL": "C", "LANG": "fr_BE"}, en), ({"LC_ALL": ""}, en)):
            self.assertTrue(self.sortie("--help", **env).startswith(attendu), env)
        self.assertTrue(self.sortie("--langue", "fr", "--help", langue="en").startswith(fr))
        self.assertTrue(self.sortie("--help", "--langue=en").startswith(en))

    def test_mauvais_usage(self):
        voir = "Voir quilvane-guide --aide\n"
        for mots, raison in (([], "il manque une commande"), (["zz"], "commande inconnue : zz"), (["verifier"], "la commande verifier attend : FICHIER..."),
                             (["verifier", "--zz", "x"], "option inconnue ou incomplète : --zz"), (["erreurs", "x"], "la commande erreurs attend : -"),
                             (["retour", "a", "b"], "la commande retour attend : FICHIER"), (["erreurs", "--tout"], "la commande erreurs n'a pas d'option --tout"),
                             (["verifier", "--format", "xml", "x"], "--format : valeurs admises texte|json|jsonl|csv|html"),
                             (["verifier", "--langue", "de", "x"], "--langue : valeurs admises fr|en"), (["catalogue", "--format"], "option inconnue ou incomplète : --format"),
                             (["--couleur=oui", "erreurs"], "--couleur : valeurs admises auto|toujours|jamais")):
            self.assertEqual(self.refus(*mots), f"quilvane-guide: {raison}\n{voir}")
        self.assertEqual(self.refus("zz", langue="en"), "quilvane-guide: unknown command: zz\nSee quilvane-guide --help\n")
        self.assertEqual(self.refus("completion", "tcsh"), "quilvane-guide: completion : valeurs admises bash|zsh|fish\n")

    def test_couleur(self):
        """Colours when asked for; never by themselves in a file or pipe."""
        self.fichier("f", banc.exemples()["sort_rejete"])
        echappe = "\x1b["
        self.assertNotIn(echappe, self.sortie("verifier", "f", statut=2))
        self.assertIn(echappe, self.sortie("verifier", "--couleur", "toujours", "f", statut=2, NO_COLOR="1"))
        self.assertNotIn(echappe, self.sortie("verifier", "--couleur", "jamais", "f", statut=2))

    @unittest.skipIf(terminalAbsent(), "there are no pseudo-terminals here")
    @manquant("script")
    def test_terminal(self):
        """On a terminal with colours, without when NO_COLOR asks for that."""
        self.fichier("f", banc.exemples()["sort_rejete"])
        for env, couleur in (({"TERM": "xterm"}, True), ({"TERM": "xterm", "NO_COLOR": "1"}, False), ({"TERM": "xterm", "NO_COLOR": ""}, True), ({"TERM": "dumb"}, False)):
            r = subprocess.run(["script", "-qec", f"{banc.GUIDE} verifier f", "/dev/null"], cwd=self.dossier, stdin=subprocess.DEVNULL,
                               capture_output=True, env=banc.milieu(**env))
            self.assertEqual(b"\x1b[1;31m" in r.stdout, couleur, env)

    @unittest.skipIf(terminalAbsent(), "there are no pseudo-terminals here")
    @manquant("script")
    def test_barre(self):
        """Much to read shows a bar on a terminal, and takes it away."""
        bon = banc.exemples()["sort_accepte"].split(b"\n")
        self.fichier("f", bon[0] + b"\n" + (bon[1] + b"\n") * 9000)
        for n, montree in ((10, True), (1, False)):
            r = subprocess.run(["script", "-qec", f"{banc.GUIDE} verifier --format json -o sortie --remplacer {'f ' * n}", "/dev/null"], cwd=self.dossier,
                               stdin=subprocess.DEVNULL, capture_output=True, env=banc.milieu(TERM="xterm"))
            self.assertEqual(b"%" in r.stdout, montree, r.stdout)
            if montree:
                self.assertRegex(r.stdout, rb"\r\[#{30}\] 100 %")
                self.assertTrue(r.stdout.endswith(b"\r\x1b[K"))

    @manquant("mandoc")
    def test_manuel(self):
        for langue in LANGUES:
            self.fichier("m.1", self.sortie("manuel", langue=langue).encode())
            r = subprocess.run(["mandoc", "-T", "lint", "m.1"], cwd=self.dossier, capture_output=True, text=True)
            # Whether the pages referred to are installed is the machine's affair.
            # mandoc expects English titles, as man does not.
            fautes = [l for l in r.stdout.splitlines() if not re.search(
                r'referenced manual not found|first section is not "NAME": Sh (NOM|SYNOPSIS)|outside NAME section: Nd|section name: Sh (NOM|EXEMPLES) ', l)]
            self.assertEqual(fautes, [])
            page = subprocess.run(["mandoc", "-T", "utf8", "m.1"], cwd=self.dossier, capture_output=True, text=True).stdout
            self.assertIn("quilvane-guide", page)
            titres = re.findall(r"(?m)^\.Sh (.*)", (self.dossier / "m.1").read_text())
            # The same sections in the same order as the other pages, which are written by hand.
            autre = re.findall(r"(?m)^\.Sh (.*)", (banc.RACINE / f"doc/man/{langue}/quilvane.1").read_text())
            self.assertEqual([t for t in titres if t in autre], [t for t in autre if t in titres])
            self.assertEqual(set(titres) - set(autre), {"OPTIONS", {"fr": "COMMANDES", "en": "COMMANDS"}[langue]})

    def completer(self, *mots):
        """What bash proposes behind these words."""
        script = 'source ./c; COMP_WORDS=(quilvane-guide "$@"); COMP_CWORD=$#; _quilvane_guide; printf "%s\\n" "${COMPREPLY[@]}"'
        r = subprocess.run(["bash", "-c", script, "bash", *mots], cwd=self.dossier, capture_output=True, text=True, check=True)
        self.assertEqual(r.stderr, "")
        return r.stdout.split()

    def test_bash(self):
        self.fichier("c", self.sortie("completion", "bash").encode())
        self.fichier("lot.vse", b"")
        self.assertEqual(self.completer(""), table()[0] + ["--help", "--version"])
        self.assertEqual(self.completer("ver"), ["verifier"])
        self.assertEqual(self.completer("verifier", "l"), ["lot.vse"])
        self.assertEqual(self.completer("verifier", "--format", "j"), ["json", "jsonl"])
        self.assertEqual(self.completer("erreurs", "--format", ""), ["texte", "markdown"])
        self.assertEqual(self.completer("retour", "--so"), ["--source"])
        self.assertEqual(self.completer("exemple", "NA"), ["NAIS"])
        self.assertEqual(self.completer("listes", "SE"), ["SEX"])
        self.assertEqual(self.completer("completion", ""), ["bash", "zsh", "fish"])
        self.assertEqual(self.completer("erreurs", "l"), [])

    @manquant("zsh")
    def test_zsh(self):
        for langue in LANGUES:
            self.fichier("c", self.sortie("completion", "zsh", langue=langue).encode())
            subprocess.run(["zsh", "-n", "c"], cwd=self.dossier, check=True)

    @manquant("fish")
    def test_fish(self):
        self.fichier("c.fish", self.sortie("completion", "fish", langue="en").encode())
        # fish completes a command only when it finds one of that name.
        self.fichier("quilvane-guide", b"#!/bin/sh\n")
        (self.dossier / "quilvane-guide").chmod(0o755)
        env = {"PATH": f"{self.dossier}:/usr/bin:/bin", "HOME": str(self.dossier)}
        for mots, attendu in (("ver", ["verifier"]), ("verifier --format js", ["json", "jsonl"]), ("exemple NA", ["NAIS"])):
            r = subprocess.run(["fish", "-c", f'source c.fish; complete -C "quilvane-guide {mots}"'], cwd=self.dossier, capture_output=True, text=True, env=env)
            self.assertEqual([l.split("\t")[0] for l in r.stdout.splitlines()], attendu, r.stderr)


if __name__ == "__main__":
    unittest.main(verbosity=2)
