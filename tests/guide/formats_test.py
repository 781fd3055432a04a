"""The renderings of a report and of the catalogue: each is what its readers
take, whatever bytes a file holds, and all say the same.
"""
import csv
import io
import json
import random
import subprocess
import sys
import unittest

import banc

sys.path.insert(0, str(banc.RACINE / "tests/page"))
import chromium  # noqa: E402

try:
    import jsonschema
except ImportError:
    jsonschema = None


def schema(nom):
    lu = json.loads((banc.RACINE / "doc" / f"{nom}.schema.json").read_text())
    jsonschema.Draft202012Validator.check_schema(lu)
    return jsonschema.Draft202012Validator(lu)


def fichiers():
    """Files of every kind: accepted, refused, stopped, with every byte value."""
    h = random.Random(7)
    bons = banc.exemples()
    bon = bons["sort_accepte"]
    lignes = bon.split(b"\n")
    octets = bytes(c for c in range(256) if c not in (10, 13, 26))
    plein = b"".join(l + b"\n" for l in [lignes[0]] + [lignes[1][:62] + bytes(h.choices(octets, k=194)) for _ in range(20)])
    guillemets = banc.modifier(bon, 2, 65, b'"\\<b>&;\'\\x')
    exp1 = bons["exp1_accepte"].split(b"\n")
    return {**bons, "octets": plein, "guillemets": guillemets, "rien": b"", "tout_octet": bytes(range(256)), "seul": b"\n".join(exp1[:2]) + b"\n",
            "entete": banc.modifier(bon, 2, 1, b"?" * 18), "melange": lignes[0] + b"\r\n" + lignes[1] + b"\n"}


class Formats(banc.Cas):
    def rapport(self, octets, *mots, langue="fr"):
        statut, sortie, erreur = self.guide("verifier", "--format", "json", *mots, "-", entree=octets, langue=langue)
        self.assertEqual(erreur, b"")
        lu = json.loads(sortie.decode())
        self.assertEqual(lu["fichiers"][0]["statut"], statut)
        return lu

    @unittest.skipIf(jsonschema is None, "python3-jsonschema is not installed")
    def test_schema_du_rapport(self):
        valide = schema("rapport")
        for nom, octets in fichiers().items():
            for langue in "fr", "en":
                with self.subTest(nom=nom, langue=langue):
                    valide.validate(self.rapport(octets, "--tout", langue=langue))
        rapport = self.rapport(fichiers()["octets"])
        rapport["fichiers"][0]["constats"][0]["numero"] = "68"
        self.assertFalse(valide.is_valid(rapport))
        del rapport["fichiers"]
        self.assertFalse(valide.is_valid(rapport))

    @unittest.skipIf(jsonschema is None, "python3-jsonschema is not installed")
    def test_schema_du_catalogue(self):
        valide = schema("catalogue")
        for mots in [], ["NAIS"], ["E"], ["FICH"]:
            for langue in "fr", "en":
                statut, sortie, _ = self.guide("catalogue", *mots, "--format", "json", langue=langue)
                self.assertEqual(statut, 0)
                catalogue = json.loads(sortie)
                valide.validate(catalogue)
        catalogue["tables"] = []
        self.assertFalse(valide.is_valid(catalogue))

    def test_memes_constats(self):
        """JSON, JSON lines and CSV tell the same errors."""
        for nom, octets in fichiers().items():
            with self.subTest(nom):
                constats = self.rapport(octets, "--tout")["fichiers"][0]["constats"]
                _, lignes, _ = self.guide("verifier", "--format", "jsonl", "--tout", "-", entree=octets)
                self.assertEqual([json.loads(l) for l in lignes.splitlines()], [{"nom": "-", **c} for c in constats])
                _, tableau, _ = self.guide("verifier", "--format", "csv", "--tout", "-", entree=octets)
                self.assertTrue(tableau.startswith(b"\xef\xbb\xbf"))
                lu = list(csv.DictReader(io.StringIO(tableau.decode("utf-8-sig"), newline=""), delimiter=";"))
                self.assertEqual(len(lu), len(constats))
                for c, l in zip(constats, lu):
                    for cle in ("ligne", "colonne", "enregistrement", "type", "genre", "cle", "partie", "champ", "libelle", "fente", "valeur",
                                "numero", "code", "origine", "verification", "liste", "titre", "message", "remede"):
                        self.assertEqual(l[cle], "" if c[cle] is None else str(c[cle]), cle)

    def test_langues(self):
        """The languages differ in their texts and in nothing else."""
        fr, en = (self.rapport(fichiers()["octets"], langue=l)["fichiers"][0]["constats"] for l in ("fr", "en"))
        textes = ("libelle", "titre", "message", "remede")
        self.assertNotEqual([c["message"] for c in fr], [c["message"] for c in en])
        self.assertEqual([{k: v for k, v in c.items() if k not in textes} for c in fr], [{k: v for k, v in c.items() if k not in textes} for c in en])

    def test_liens(self):
        """An error follows from one of the same record, never in a circle."""
        vus = 0
        for octets in fichiers().values():
            constats = self.rapport(octets, "--tout")["fichiers"][0]["constats"]
            for i, c in enumerate(constats):
                if c["decoule_de"] is None:
                    continue
                vus += 1
                cause = constats[c["decoule_de"]]
                self.assertEqual((cause["enregistrement"], cause["origine"] == "compagnon"), (c["enregistrement"], c["origine"] == "compagnon"))
                self.assertNotEqual(cause["decoule_de"], i)
        self.assertGreater(vus, 10)

    def test_page(self):
        """The page holds the report and the catalogue, and no markup of the input's."""
        statut, page, _ = self.guide("verifier", "--format", "html", "-", entree=fichiers()["guillemets"])
        self.assertEqual(statut, 2)
        self.assertNotIn(b"<b>&", page)
        self.assertIn(b"\\u003Cb>&", page)
        self.assertIn(b"default-src 'none'", page)
        donnees = [m for m in page.split(b"</script>") if b"quilvane-rapport/1" in m]
        rapport = json.loads(donnees[0][donnees[0].index(b'{"format":"quilvane-rapport/1"'):])
        self.assertEqual(list(rapport["fichiers"][0]["textes"]), ["2"])
        self.assertEqual(len(rapport["fichiers"][0]["textes"]["2"]), 256)

    @unittest.skipIf(chromium.manquant(), "chromium is not installed")
    def test_navigateur(self):
        """A real report, read by the page that carries it."""
        octets = banc.exemples()["nais_rejete"]
        self.fichier("lot.vse", octets)
        self.guide("verifier", "--format", "html", "lot.vse", "-o", "page.html")
        constats = self.rapport(octets)["fichiers"][0]["constats"]
        self.assertGreater(len(constats), 1)
        with chromium.Chromium() as navigateur:
            navigateur.ouvrir(self.dossier / "page.html")
            vus = "[...document.querySelectorAll('tr.constat')].map(l => [l.dataset.ligne, l.dataset.numero, l.dataset.champ].join(' ')).join()"
            self.assertEqual(navigateur.evaluer(vus), ",".join(f"{c['ligne']} {c['numero']} {c['champ']}" for c in constats))

    @unittest.skipIf(banc.ASSAINI, "sanitizers need address space of their own")
    def test_memoire(self):
        """JSON of ten times as many refused records fits into the same memory."""
        lignes = banc.exemples()["sort_rejete"].split(b"\n")
        for n in 1000, 10000:
            self.fichier(f"{n}", lignes[0] + b"\n" + (lignes[1] + b"\n") * n)

        def tient(n, kio):
            commande = f"ulimit -v {kio}; exec {banc.GUIDE} verifier --format json {n} -o sortie --remplacer"
            return subprocess.run(["sh", "-c", commande], cwd=self.dossier, capture_output=True).returncode == 2

        assez = next(kio for kio in range(4096, 65536, 512) if tient(1000, kio))
        petit = (self.dossier / "sortie").stat().st_size
        self.assertTrue(tient(10000, assez + 1024))
        self.assertGreater((self.dossier / "sortie").stat().st_size, 9 * petit)
        self.assertGreater(petit, 700000)


if __name__ == "__main__":
    unittest.main(verbosity=2)
