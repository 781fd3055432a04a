#!/usr/bin/env python3
"""The spool with the real programs: a refused file gets the reports of
quilvane-guide, in text and in HTML, in the language that was asked for.

    rapports.py SOURCE QUILVANE QUILVANE_GUIDE QUILVANE_LOT
"""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

SOURCE, QUILVANE, GUIDE, LOT = (pathlib.Path(p).resolve() for p in sys.argv[1:])
NOM = "-a b.vse"


class Rapports(unittest.TestCase):
    def passer(self, langue, exemple):
        """One pass over a spool with one file; what stands in rejets, by name."""
        dossier = pathlib.Path(tempfile.mkdtemp(prefix="quilvane-rapports-"))
        self.addCleanup(shutil.rmtree, dossier)
        for programme in (QUILVANE, GUIDE, LOT):
            os.makedirs(dossier / "bin", exist_ok=True)
            os.symlink(programme, dossier / "bin" / programme.name)
        os.makedirs(dossier / "depot/arrivee")
        shutil.copyfile(SOURCE / "exemples" / exemple, dossier / "depot/arrivee" / NOM)
        milieu = dict(os.environ, PATH="%s:%s" % (dossier / "bin", os.environ["PATH"]))
        fait = subprocess.run(["quilvane-lot", "--repos", "0", "--langue", langue, "depot"], cwd=dossier,
                              env=milieu, capture_output=True, check=False)
        self.assertEqual(fait.stderr, b"")
        rejets = dossier / "depot/rejets"
        return fait.returncode, {p.name: p.read_bytes() for p in rejets.iterdir()}

    def test_refuse(self):
        for langue, mot in (("fr", "zéros"), ("en", "zeros")):
            statut, rejets = self.passer(langue, "acti_rejete.vse")
            self.assertEqual(statut, 2)
            self.assertEqual(sorted(rejets), [NOM, NOM + ".html", NOM + ".txt"])
            self.assertIn(b"ERRE", rejets[NOM])
            for genre in ("txt", "html"):
                rapport = rejets[NOM + "." + genre].decode("utf-8")
                for attendu in ("I0291", "I0311", "I1311", NOM, mot):
                    self.assertIn(attendu, rapport, (langue, genre))
                self.assertEqual("</html>" in rapport, genre == "html")

    def test_accepte(self):
        self.assertEqual(self.passer("en", "acti_accepte.vse"), (0, {}))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
