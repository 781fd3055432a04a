#!/usr/bin/env python3
"""The runner on a pseudo-terminal: a bar with counts that add up, lines for what
needs a look, a clean screen behind it; plain lines where there is no terminal.

    terminal.py SOURCE QUILVANE QUILVANE_LOT
"""
import fcntl
import os
import pathlib
import pty
import re
import select
import shutil
import struct
import subprocess
import sys
import tempfile
import termios
import time
import unittest

SOURCE, QUILVANE, LOT = (pathlib.Path(p).resolve() for p in sys.argv[1:])
# Longer than any run takes: what does not end is a fault, and the test does not hang.
PATIENCE = 120
ATTEND = "#!/bin/sh\ntouch ../../../../parti\nwhile ! test -e ../../../../aller; do sleep 0.01; done\nexec %s \"$@\"\n"
COULEUR = re.compile(r"\x1b\[\d*m")


def ecran(octets, colonnes):
    """The lines that a terminal shows once it has got these bytes: line ends, return,
    clearing to the end of the line and colours are all that may come."""
    lignes, x = [""], 0
    for morceau in re.findall(r"\x1b\[\d*[A-Za-z]|\^C|.|\s", octets.decode("utf-8"), re.S):
        if morceau == "\r":
            x = 0
        elif morceau == "\n":
            lignes.append("")
        elif morceau == "\x1b[K":
            lignes[-1] = lignes[-1][:x]
        elif COULEUR.fullmatch(morceau):
            pass
        elif morceau.startswith("\x1b") or (len(morceau) == 1 and ord(morceau) < 32):
            raise AssertionError("not for a terminal: %r" % morceau)
        else:
            lignes[-1] = lignes[-1].ljust(x)[:x] + morceau + lignes[-1][x + len(morceau):]
            x += len(morceau)
    return lignes


class Terminal(unittest.TestCase):
    def setUp(self, paires=12):
        self.dossier = pathlib.Path(tempfile.mkdtemp(prefix="quilvane-terminal-"))
        self.addCleanup(shutil.rmtree, self.dossier)
        (self.dossier / "bin").mkdir()
        (self.dossier / "depot/arrivee").mkdir(parents=True)
        for programme in (QUILVANE, LOT):
            shutil.copy(programme, self.dossier / "bin")  # beside no quilvane-guide
        for i in range(paires):
            for sorte in ("accepte", "rejete"):
                shutil.copyfile(SOURCE / ("exemples/acti_%s.vse" % sorte), self.dossier / ("depot/arrivee/%s_%02d.vse" % (sorte, i)))
        (self.dossier / "depot/arrivee/rien.vse").write_bytes(b"rien\n")

    def milieu(self, **autres):
        return {"PATH": "%s:/usr/bin:/bin" % (self.dossier / "bin"), "LANG": "C", "TERM": "xterm", **autres}

    MOTS = ("quilvane-lot", "--repos", "0", "-j", "1")

    def lancer(self, mots, colonnes, **autres):
        """Starts it on a terminal of its own; the terminal and its number."""
        pid, fd = pty.fork()
        if pid == 0:
            try:
                fcntl.ioctl(0, termios.TIOCSWINSZ, struct.pack("HHHH", 25, colonnes, 0, 0))
                os.chdir(self.dossier)
                os.execve("bin/quilvane-lot", [*self.MOTS, *mots, "depot"], self.milieu(**autres))
            finally:
                os._exit(127)
        return pid, fd

    def lire(self, pid, fd, jusqua=None):
        """What it writes, up to its end or up to a text."""
        octets = b""
        while jusqua is None or jusqua not in octets:
            self.assertTrue(select.select([fd], [], [], PATIENCE)[0], "it does not get on")
            try:
                bloc = os.read(fd, 65536)
            except OSError:
                bloc = b""  # its end of the terminal is closed
            if not bloc:
                break
            octets += bloc
        return octets

    def passer(self, *mots, colonnes=100, **autres):
        """A pass on a terminal; its status and what it has written."""
        pid, fd = self.lancer(mots, colonnes, **autres)
        avant = termios.tcgetattr(fd)
        octets = self.lire(pid, fd)
        self.assertEqual(termios.tcgetattr(fd), avant)
        statut = os.waitstatus_to_exitcode(os.waitpid(pid, 0)[1])
        os.close(fd)
        return statut, octets

    def barres(self, octets):
        """The bars in the order in which they were drawn."""
        return [m.decode() for m in re.findall(rb"\r([^\r\n\x1b]+)\x1b\[K", octets)]

    def test_barre(self):
        statut, octets = self.passer()
        self.assertEqual(statut, 1)
        barres = self.barres(octets)
        self.assertGreater(len(barres), 5)
        dernier = 0
        for barre in barres:
            m = re.fullmatch(r"\[([=>]*) *\] (\d+)/25; (\d+) accepted, (\d+) refused, (\d+) failed(; [\d.]+/s)?(; \d+:\d\d left)?", barre)
            self.assertTrue(m, barre)
            finis, emis, rejets, echecs = (int(n) for n in m.groups()[1:5])
            self.assertEqual(finis, emis + rejets + echecs)
            self.assertGreaterEqual(finis, dernier)
            self.assertEqual(m[6] is not None, finis >= 3)
            self.assertEqual(barre.index("]"), barres[0].index("]"))
            self.assertLess(len(barre), 100)
            dernier = finis
        self.assertGreater(dernier, 10)
        # What stays: a line for each file that was not accepted, and the sum.
        lignes = ecran(octets, 100)
        self.assertEqual(lignes[-1], "")
        self.assertRegex(lignes[-2], r"^Files: 25 in [\d.]+ s \([\d.]+/s\); 12 accepted, 12 refused, 1 failed\.$")
        genres = [l.split()[0] for l in lignes[:-2]]
        self.assertEqual((genres.count("refused"), genres.count("failed"), len(genres)), (12, 1, 14))
        avis = [l for l in lignes if l.startswith("quilvane-lot:")]
        self.assertEqual(avis, ["quilvane-lot: quilvane-guide is not installed: refused files get no report"])
        # Colours, each put back.
        self.assertEqual(len(re.findall(rb"\x1b\[3[13]m[^\x1b]+\x1b\[0m\r\n", octets)), 13)

    def test_couleurs(self):
        for mots, autres, couleurs in (((), {"NO_COLOR": "1"}, False), ((), {"NO_COLOR": ""}, True), (("--couleur", "jamais"), {}, False),
                                       (("--couleur", "toujours"), {"NO_COLOR": "1"}, True)):
            self.setUp(2)
            _, octets = self.passer(*mots, **autres)
            self.assertTrue(self.barres(octets))
            self.assertEqual(COULEUR.search(octets.decode()) is not None, couleurs, (mots, autres))

    def test_etroit(self):
        """No line of the bar is ever wider than the terminal."""
        for colonnes in (20, 45, 60, 300):
            self.setUp(2)
            _, octets = self.passer(colonnes=colonnes)
            barres = self.barres(octets)
            self.assertTrue(barres)
            self.assertTrue(all(len(b) < colonnes for b in barres))

    def test_francais(self):
        self.setUp(3)
        _, octets = self.passer("--langue", "fr")
        self.assertRegex(self.barres(octets)[-1], r"^\[=+>? *\] \d+/7 ; acceptés \d+, refusés \d+, échecs \d ; [\d,]+/s ; reste \d+:\d\d$")
        self.assertRegex(ecran(octets, 100)[-2], r"^Fichiers : 7 en [\d,]+ s \([\d,]+/s\) ; acceptés 3, refusés 3, en échec 1\.$")

    def test_sans_barre(self):
        """A terminal that cannot move its cursor, a file, a pipe: plain lines, one a file."""
        for muet in ("dumb", ""):
            self.setUp(2)
            self.assertNotIn(b"\x1b", self.passer(TERM=muet)[1])
        self.setUp()  # a spool that is full again
        r = subprocess.run([*self.MOTS, "depot"], executable=self.dossier / "bin/quilvane-lot", cwd=self.dossier, env=self.milieu(), capture_output=True, check=False)
        self.assertEqual(r.returncode, 1)
        self.assertNotIn(b"\x1b", r.stdout + r.stderr)
        self.assertNotIn(b"\r", r.stdout + r.stderr)
        genres = [l.split()[0] for l in r.stdout.decode().splitlines()]
        self.assertEqual(genres.count("accepted"), 12)
        self.assertEqual(genres.count("refused"), 12)
        self.assertEqual(genres[-1], "Files:")

    def test_interrompu(self):
        """Ctrl-C while the bar stands there: the file that was begun is ended, the screen is clean."""
        (self.dossier / "bin/quilvane").write_text(ATTEND % QUILVANE, encoding="ascii")
        (self.dossier / "bin/quilvane").chmod(0o755)
        pid, fd = self.lancer((), 100)
        octets = self.lire(pid, fd, b"0/25")
        while not (self.dossier / "parti").exists():
            time.sleep(0.01)
        os.write(fd, b"\x03")
        octets += self.lire(pid, fd, b"puts them back into arrivee\r\n")
        (self.dossier / "aller").touch()
        octets += self.lire(pid, fd)
        self.assertEqual(os.waitstatus_to_exitcode(os.waitpid(pid, 0)[1]), 0)
        os.close(fd)
        lignes = ecran(octets, 100)
        self.assertEqual(len(lignes), 3, lignes)
        self.assertTrue(lignes[0].startswith("quilvane-lot: asked to stop: "), lignes)
        self.assertTrue(lignes[1].startswith("Files: 1 in "), lignes)
        self.assertEqual(lignes[2], "")
        self.assertEqual(len(os.listdir(self.dossier / "depot/arrivee")), 24)


if __name__ == "__main__":
    try:
        for extremite in os.openpty():
            os.close(extremite)
    except OSError:
        print("skipped: there are no pseudo-terminals here")
        sys.exit(77)
    unittest.main(argv=sys.argv[:1])
