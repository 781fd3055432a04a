"""Each subcommand, end to end: every byte of its answer, in both languages.

The answers stand in attendus/; with QUILVANE_ECRIRE=1 they are written anew,
to be read before they are committed.
"""
import json
import os
import pathlib
import stat
import subprocess
import unittest

import banc

ATTENDUS = pathlib.Path(__file__).parent / "attendus"
ECRIRE = os.environ.get("QUILVANE_ECRIRE") == "1"
FIN = b"\n"


def lignes(nom):
    return banc.exemples()[nom].replace(b"\r", b"").split(FIN)[:-1]


def lot(*records):
    """A file of these records; its FICH record counts them."""
    fich = records[0][:94] + b"%06d" % (len(records) - 1) + records[0][100:]
    return b"".join(r + FIN for r in (fich, *records[1:]))


def changer(record, *zones):
    for colonne, valeur in zones:
        record = record[:colonne - 1] + valeur + record[colonne - 1 + len(valeur):]
    return record


def cas():
    """Files by name: one for each kind of error and warning."""
    fich, sort = lignes("sort_accepte")[:2]
    exp_fich, exp1, exp2 = lignes("exp1_accepte")[:3]
    info_fich, info = lignes("info_accepte")[:2]
    abat = lignes("abat_accepte")[1]
    plein = changer(lignes("nais_accepte")[1], *((c, b"?") for c in range(63, 231)))
    return {
        "accepte": lot(fich, sort),
        "table": lot(fich, changer(sort, (65, b"FX12345612  "), (63, b"ZF"))),
        "proches": lot(fich, changer(sort, (22, b"S0RT"))),
        "genre": lot(fich, changer(sort, (19, b"ZZZ"))),
        "cadrage": lot(fich, sort[:250], sort + b"AB", changer(sort, (100, b"\t"))),
        "admission": lot(changer(info_fich, (3, b"089ARS  "), (11, b"089ARS  ")), info, changer(abat, (27, b"078IPG  ")), info_fich),
        "partenaire": lot(changer(fich, (3, b"NORMABEV"), (11, b"031BDN  ")), sort),
        "c3": lot(fich, changer(sort, (77, b"xx"))),
        "compagnon": lot(exp_fich, exp1, changer(exp2, (65, b"99")), exp1),
        "compte": fich[:94] + b"000007" + fich[100:] + FIN + sort + FIN,
        "tout": lot(fich, plein),
        "bom": b"\xef\xbb\xbf" + lot(fich, sort),
        "utf16": b"\xff\xfe" + lot(fich, sort).decode("ascii").encode("utf-16-le"),
        "sans_type": lot(fich, changer(sort, (22, b"    "))),
        "utf8": lot(fich, changer(sort, (100, "é".encode()))),
        "octets": lot(fich, changer(sort, (100, b"\xe9")), changer(sort, (100, b"\0")), changer(sort, (100, b"\7")), changer(sort, (300, b""))),
        "cr_seul": fich + FIN + sort + b"\r" + sort + FIN,
        "melange": fich + FIN + sort + b"\r\n" + sort + FIN,
        "vide": fich + FIN + FIN + sort + FIN,
        "sans_fin": fich + FIN + sort,
        "ctrl_z": fich + FIN + sort + b"\x1a" + sort + FIN,
        "court": lot(fich, sort[:66], sort[:20], changer(sort, (63, b"ZZ")), changer(sort, (63, b"ZZ"), (65, b"7812340009"))),
        "rien": b"",
        "sans_fich": sort + FIN,
        "repete": lot(fich, *[changer(sort, (100, b"\t"))] * 25),
    }


class Commandes(banc.Cas):
    def attendre(self, nom, langue, statut, sortie):
        """Compares an answer with the one in attendus/."""
        chemin = ATTENDUS / f"{nom}.{langue}.txt"
        lu = b"%d\n" % statut + sortie
        if ECRIRE:
            chemin.parent.mkdir(exist_ok=True)
            chemin.write_bytes(lu)
        with self.subTest(nom=nom, langue=langue):
            banc.comparer(self, chemin, lu, "tests/guide/commandes_test.py")

    def repondre(self, nom, *mots, **options):
        for langue in "fr", "en":
            statut, sortie, erreur = self.guide(*mots, langue=langue, **options)
            self.attendre(nom, langue, statut, sortie + erreur)

    def test_verifier(self):
        for nom, octets in cas().items():
            self.fichier(f"{nom}.vse", octets)
            mots = ["--tout"] if nom == "tout" else []
            self.repondre(f"verifier_{nom}", "verifier", *mots, f"{nom}.vse")

    def test_verifier_rendus(self):
        for format in "json", "jsonl", "csv":
            self.fichier("lot.vse", cas()["table"])
            self.repondre(f"verifier_{format}", "verifier", "--format", format, "lot.vse", "absent.vse")

    def test_verifier_plusieurs(self):
        """The gravest status of 1, 2, 0 in that order."""
        for nom in "accepte", "table", "melange":
            self.fichier(nom, cas()[nom])
        self.repondre("verifier_plusieurs", "verifier", "accepte", "melange", "table")
        for noms, statut in ((["accepte", "accepte"], 0), (["table", "accepte"], 2), (["melange", "table"], 1), (["absent", "accepte"], 1), ([".", "accepte"], 1)):
            self.assertEqual(self.guide("verifier", *noms)[0], statut, noms)

    def test_entree_standard(self):
        for nom, statut in (("accepte", 0), ("table", 2), ("melange", 1)):
            lu, sortie, _ = self.guide("verifier", "-", entree=cas()[nom])
            self.assertEqual(lu, statut)
            self.assertIn(b"-: ", sortie)

    def test_rien_n_est_touche(self):
        """Neither the input nor its folder changes, even where nothing may be written."""
        self.fichier("lot.vse", cas()["table"])
        avant = (self.dossier / "lot.vse").stat()
        (self.dossier / "lot.vse").chmod(0o400)
        for mots in (["verifier", "lot.vse"], ["verifier", "--format", "html", "lot.vse"], ["retour", "lot.vse"], ["retour", "lot.vse", "--source", "lot.vse"]):
            self.guide(*mots)
        apres = (self.dossier / "lot.vse").stat()
        self.assertEqual([p.name for p in self.dossier.iterdir()], ["lot.vse"])
        self.assertEqual((avant.st_mtime_ns, avant.st_ino, avant.st_size), (apres.st_mtime_ns, apres.st_ino, apres.st_size))
        self.assertEqual((self.dossier / "lot.vse").read_bytes(), cas()["table"])

    def refuser(self, mots, raison):
        statut, sortie, erreur = self.guide("verifier", *mots)
        self.assertEqual((statut, sortie, erreur.decode()), (1, b"", f"quilvane-guide: {raison}\n"))

    def test_sortie(self):
        """-o makes a file, replaces one when asked, and never writes over an input, a folder or a FIFO."""
        table = cas()["table"]
        self.fichier("lot", table)
        _, attendu, _ = self.guide("verifier", "lot")
        self.assertEqual(self.guide("verifier", "lot", "-o", "s"), (2, b"", b""))
        self.assertEqual((self.dossier / "s").read_bytes(), attendu)
        self.refuser(["lot", "-o", "s"], "s existe déjà (--remplacer pour le remplacer)")
        self.fichier("s", b"x" * 100000)
        self.assertEqual(self.guide("verifier", "lot", "--sortie", "s", "--remplacer"), (2, b"", b""))
        self.assertEqual((self.dossier / "s").read_bytes(), attendu)
        os.link(self.dossier / "lot", self.dossier / "lien")
        os.symlink("lot", self.dossier / "symbole")
        for nom in "lot", "lien", "symbole":
            self.refuser(["lot", "-o", nom, "--remplacer"], f"{nom} ne peut être écrit : c'est un des fichiers à lire")
        os.mkfifo(self.dossier / "fifo")
        self.refuser(["lot", "-o", "fifo", "--remplacer"], "fifo ne peut être écrit : ce n'est pas un fichier ordinaire")
        self.refuser(["lot", "-o", "fifo"], "fifo existe déjà (--remplacer pour le remplacer)")
        self.refuser(["lot", "-o", ".", "--remplacer"], ". ne peut être écrit : c'est un dossier")
        self.refuser(["lot", "-o", "absent/s"], "absent/s ne peut être écrit : son dossier n'existe pas")
        self.assertTrue(stat.S_ISFIFO((self.dossier / "fifo").stat().st_mode))
        self.assertEqual((self.dossier / "lot").read_bytes(), table)

    def test_entree_speciale(self):
        """A FIFO or a folder is refused at once, not waited for."""
        os.mkfifo(self.dossier / "fifo")
        for nom, raison in (("fifo", "ce n'est pas un fichier ordinaire"), (".", "c'est un dossier"), ("absent", "ce fichier n'existe pas")):
            statut, sortie, _ = self.guide("verifier", nom)
            self.assertEqual(statut, 1)
            self.assertIn(raison, sortie.decode())
            self.assertEqual(self.guide("retour", nom), (1, b"", f"quilvane-guide: {nom} ne peut être lu : {raison}\n".encode()))

    def test_retour(self):
        for nom in "table", "compagnon", "tout", "compte", "court":
            self.fichier(f"{nom}.vse", cas()[nom])
            self.fichier(f"{nom}.retour", banc.quilvane(cas()[nom])[1])
            self.repondre(f"retour_{nom}", "retour", f"{nom}.retour")
            self.repondre(f"retour_{nom}_source", "retour", f"{nom}.retour", "--source", f"{nom}.vse")
        self.repondre("retour_autre", "retour", "tout.retour", "--source", "table.vse")
        self.repondre("retour_faux", "retour", "table.vse")
        self.fichier("accepte.retour", banc.quilvane(cas()["accepte"])[1])
        self.repondre("retour_accepte", "retour", "accepte.retour")

    def test_retour_sans_sa_source(self):
        """A source that cannot be read ends the command before anything is written."""
        statut, erreurs, _, _ = banc.quilvane(banc.exemples()["abat_rejete"])
        self.assertEqual(statut, 2)
        self.fichier("erreurs.vse", erreurs)
        lu, sortie, erreur = banc.guide("retour", "--source", "absente", "erreurs.vse", dossier=self.dossier, langue="en")
        self.assertEqual((lu, sortie), (1, b""))
        self.assertIn(b"absente cannot be read", erreur)

    def test_retour_de_tout(self):
        """Every error file is led back to its source, whatever the types and the faults."""
        vus = 0
        for nom, octets in {**banc.exemples(), **cas()}.items():
            statut, emis, _, _ = banc.quilvane(octets)
            # The error file of an empty file lacks the FICH record's columns, too.
            if statut != 2 or octets == b"":
                continue
            vus += 1
            with self.subTest(nom):
                self.fichier("source", octets)
                self.fichier("retour", emis)
                statut, sortie, erreur = self.guide("retour", "retour", "--source", "source")
                self.assertEqual((statut, erreur), (2, b""))
                self.assertEqual(sortie.count(b"\nenregistrement "), len(emis.splitlines()) - 1)
        self.assertGreater(vus, 35)

    def test_expliquer(self):
        for mots in ("68", "I0681", "IG008", "I073", "86 NAIS", "67 NAIS C2", "67 NAIS C1", "100", "999", "67 ZZZZ", "67 NAIS C99"):
            self.repondre("expliquer_" + mots.replace(" ", "_"), "expliquer", *mots.split())
        for autre in "I068", "i0681", "I68", "068":
            self.assertEqual(self.guide("expliquer", autre), self.guide("expliquer", "68"), autre)
        # No table holds what the order of the records gives: its sheet says where it arises.
        for numero, table in (("138", "EGET"), ("105", "EXP1")):
            self.assertEqual(self.guide("expliquer", numero, table), self.guide("expliquer", numero))

    def test_listes(self):
        self.repondre("listes", "listes")
        for nom in "SEX", "TEDC", "IND_M", "tE6":
            self.repondre(f"listes_{nom}", "listes", nom)
        self.assertEqual(self.guide("listes", "sex"), self.guide("listes", "SEX"))
        self.assertEqual(self.guide("listes", "zz"), (3, b"", "quilvane-guide: liste inconnue : zz\n".encode()))

    def test_erreurs(self):
        self.repondre("erreurs", "erreurs")

    def test_catalogue(self):
        for type_ in "NAIS", "E", "F", "FICH", "ERRE":
            self.repondre(f"catalogue_{type_}", "catalogue", type_)
        self.assertEqual(self.guide("catalogue", "nais"), self.guide("catalogue", "NAIS"))
        self.repondre("catalogue_PASS_markdown", "catalogue", "PASS", "--format", "markdown")
        self.assertEqual(self.guide("catalogue", "zz"), (3, b"", "quilvane-guide: type de message inconnu : zz\n".encode()))
        page = self.guide("catalogue", "--format", "html")[1]
        self.assertTrue(page.startswith(b"<!DOCTYPE html>") or page.startswith(b"<!doctype html>"))
        self.assertIn(b"quilvane-catalogue/1", page)

    def test_exemple(self):
        """Every example of every type and kind is accepted by quilvane; with no kind, the first one."""
        catalogue = json.loads(self.guide("catalogue", "--format", "json")[1])
        vus = 0
        for table in catalogue["tables"]:
            for genre in table["genres"]:
                statut, octets, erreur = self.guide("exemple", table["table"].lower(), genre.lower())
                self.assertEqual((statut, erreur), (0, b""))
                self.assertEqual(banc.quilvane(octets)[0], 0, (table["table"], genre))
                self.assertEqual(octets[275:275 + 7], genre.encode() + table["table"].encode())
                vus += 1
            if table["genres"]:
                self.assertEqual(self.guide("exemple", table["table"]), self.guide("exemple", table["table"], table["genres"][0]))
        self.assertGreater(vus, 60)
        self.assertEqual(self.guide("exemple", "ZZ"), (3, b"", "quilvane-guide: type de message inconnu : ZZ\n".encode()))
        self.assertEqual(self.guide("exemple", "INFO", "CRE")[0], 3)
        self.repondre("exemple_genre", "exemple", "NAIS", "EDI")

    def test_disque_plein(self):
        """An answer that cannot be written is told, and the status says so."""
        lit, ecrit = os.pipe()
        os.close(lit)
        r = subprocess.run([banc.GUIDE, "erreurs"], stdout=ecrit, stderr=subprocess.PIPE, env=banc.milieu(LC_ALL="fr"), restore_signals=False)
        os.close(ecrit)
        self.assertEqual(r.returncode, 1)
        self.assertIn("la sortie standard ne peut être écrit", r.stderr.decode())

    def test_rien_de_trop(self):
        """Every file of attendus/ belongs to a test."""
        for chemin in ATTENDUS.glob("*"):
            self.assertRegex(chemin.name, r"^(verifier|retour|expliquer|listes|erreurs|catalogue|exemple)\w*\.(fr|en)\.txt$")
        self.assertEqual({p.name[:-7] for p in ATTENDUS.glob("verifier_*")} - {f"verifier_{n}" for n in (*cas(), "json", "jsonl", "csv", "plusieurs")}, set())


if __name__ == "__main__":
    unittest.main(verbosity=2)
