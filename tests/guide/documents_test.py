"""The documents that the program writes are what it would write now, and the
excerpt in README.md is what it says.

With QUILVANE_ECRIRE=1 the documents are written anew.
"""
import os
import unittest

import banc

ECRIRE = os.environ.get("QUILVANE_ECRIRE") == "1"


class Documents(banc.Cas):
    def test_documents(self):
        for nom in "catalogue", "erreurs":
            for langue in "fr", "en":
                with self.subTest(f"{nom}.{langue}"):
                    statut, sortie, _ = self.guide(nom, "--format", "markdown", "--langue", langue)
                    self.assertEqual(statut, 0)
                    chemin = banc.RACINE / "doc" / f"{nom}.{langue}.md"
                    if ECRIRE:
                        chemin.write_bytes(sortie)
                    banc.comparer(self, chemin, sortie, "tests/guide/documents_test.py")

    def test_forme(self):
        """Tables of Markdown have as many cells in each row; every number and type is there."""
        catalogue = (banc.RACINE / "doc/catalogue.fr.md").read_text()
        rangs = [l.replace("\\|", "") for l in catalogue.splitlines() if l.startswith("|")]
        self.assertEqual({l.count("|") for l in rangs}, {7})
        self.assertGreater(len(rangs), 600)
        erreurs = (banc.RACINE / "doc/erreurs.en.md").read_text()
        for ligne in self.guide("erreurs", langue="en")[1].decode().splitlines():
            self.assertIn(ligne.split("  ")[-1], erreurs)

    def test_extrait(self):
        """README.md and LISEZMOI.md show what the program answers to the command above it."""
        (self.dossier / "exemples").symlink_to(banc.RACINE / "exemples")
        for document, langue in ("README.md", "en"), ("LISEZMOI.md", "fr"):
            with self.subTest(document):
                lisez = (banc.RACINE / document).read_text()
                debut = lisez.index("$ quilvane-guide verifier ")
                extrait = lisez[debut:lisez.index("```", debut)]
                commande, attendu = extrait.split("\n", 1)
                statut, sortie, _ = self.guide(*commande.split()[2:], langue=langue)
                self.assertEqual(statut, 2)
                self.assertEqual(attendu, sortie.decode())
                # French punctuation stays on the line of the word before it.
                self.assertNotRegex(attendu, "(?m)^ *[:;!?]")


if __name__ == "__main__":
    unittest.main()
