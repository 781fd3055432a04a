"""What quilvane-guide says is what quilvane says: the same status, the same
log code, and for every record the same numbers in the same order.

Examples, fuzz corpus, odd files, and generated files of many damaged records:
some 200,000 records.
"""
import json
import pathlib
import random
import re
import unittest

import banc

FIN = b"\n"


def records(emis):
    """The numbers of each error record of a published file."""
    lus = []
    for r in filter(None, re.split(rb"\r\n|\n|\r", emis)[1:]):
        # A record cut short leaves fields empty, and the codes stand farther left.
        codes = r[111:161] if len(r) == 256 else re.findall(rb"(?:I\d{3}1)+", r)[-1]
        lus.append([int(c[1:4]) for c in re.findall(rb"I\d{3}1", codes)])
    return lus


def attendus(constats):
    """The records in error of a report, in the order of the published file: a
    record that lacks its companion behind the one that stands there, the FICH
    record last."""
    par_record = {}
    for c in constats:
        par_record.setdefault((c["enregistrement"], c["origine"] == "compagnon"), []).append(c["numero"])
    cle = lambda rc: rc[0] + 1.5 if rc[1] else rc[0] if rc[0] > 1 else float("inf")
    return [par_record[rc] for rc in sorted(par_record, key=cle)]


class Concordance(unittest.TestCase):
    records = 0

    def comparer(self, nom, octets):
        statut, emis, log, _ = banc.quilvane(octets)
        with self.subTest(nom):
            dit, sortie, erreur = banc.guide("verifier", "--format", "json", "-", entree=octets)
            self.assertEqual(erreur, b"")
            rapport = json.loads(sortie)["fichiers"][0]
            self.assertEqual((dit, rapport["statut"]), (statut, statut), log)
            Concordance.records += rapport["enregistrements"]
            code = re.search(rb"\b(IG\d{3}|I073|I099)\b", log)
            self.assertEqual(rapport["fatal"] and rapport["fatal"]["code"], code and code[1].decode() if statut == 1 else None)
            if statut == 2:
                publies = records(emis)
                self.assertEqual(attendus(rapport["constats"]), publies)
                self.assertEqual(rapport["refuses"], len(publies))
            elif statut == 0:
                self.assertEqual(rapport["constats"], [])

    def test_exemples(self):
        for nom, octets in banc.exemples().items():
            self.comparer(nom, octets)

    def test_corpus(self):
        for chemin in sorted((banc.RACINE / "fuzz/corpus").glob("*/*")):
            if chemin.parent.name in ("fichier", "guide"):
                self.comparer(str(chemin), chemin.read_bytes())

    def test_cadre(self):
        """Bytes and line ends: everything that a file can have wrong as a whole."""
        bon = banc.exemples()["sort_accepte"]
        lignes = bon.split(FIN)[:-1]
        pair = banc.exemples()["exp1_accepte"]
        premier = pair.split(FIN)
        cas = {
            "rien": b"", "bom": b"\xef\xbb\xbf" + bon, "utf16": bon.decode("ascii").encode("utf-16-be"), "sans fin": bon[:-1], "dos": bon.replace(FIN, b"\r\n"), "cr": bon.replace(FIN, b"\r"),
            "melange": lignes[0] + b"\r\n" + lignes[1] + FIN, "melange plus loin": bon + lignes[1] + b"\r\n",
            "vide": bon + FIN, "vide au debut": FIN + bon, "ctrl-z": bon + b"\x1a" + bon, "ctrl-z colle": bon[:-1] + b"\x1a",
            "cr seul au milieu": lignes[0] + FIN + lignes[1] + b"\r" + lignes[1] + FIN,
            "court": lignes[0] + FIN + lignes[1][:200] + FIN, "long": lignes[0] + FIN + lignes[1] + b"XY" + FIN,
            "tres long": lignes[0] + FIN + lignes[1] * 300 + FIN, "tabulation": banc.modifier(bon, 2, 100, b"\t"),
            "nul": banc.modifier(bon, 2, 100, b"\0"), "accent": banc.modifier(bon, 2, 100, "é".encode()),
            "latin1": banc.modifier(bon, 2, 100, b"\xe9"), "commande": banc.modifier(bon, 2, 30, b"\x07"),
            "sans FICH": lignes[1] + FIN, "numero de fichier vide": banc.modifier(bon, 1, 63, b" " * 16),
            "deux FICH": lignes[0] + FIN + lignes[0] + FIN + lignes[1] + FIN, "FICH seul": lignes[0] + FIN,
            "compte": banc.modifier(bon, 1, 95, b"000007"), "compte vide": banc.modifier(bon, 1, 95, b"      "),
            "type inconnu": banc.modifier(bon, 2, 22, b"XXXX"), "genre inconnu": banc.modifier(bon, 2, 19, b"ZZZ"),
            "FICH fausse": banc.modifier(bon, 1, 3, b"ZZZZZZZZ"), "FICH pleine d'erreurs": banc.modifier(bon, 1, 1, b"?" * 18 + b"INFFICH" + b"?" * 37),
            "trop": lignes[0] + FIN + (lignes[1] + FIN) * 10001, "juste assez": lignes[0] + FIN + (lignes[1] + FIN) * 10000,
            "sans compagnon": FIN.join(premier[:2]) + FIN, "autre compagnon": FIN.join(premier[:2]) + FIN + lignes[1] + FIN,
            "compagnon saute": FIN.join(premier[:2]) + FIN + premier[2] + b"\r" + premier[2] + FIN,
            "compagnon faux": banc.modifier(pair, 3, 65, b"ZZ"), "premier faux": banc.modifier(pair, 2, 65, b"ZZ"),
        }
        for nom, octets in cas.items():
            self.comparer(nom, octets)

    def test_records_abimes(self):
        """Files of 2,500 records each, damaged in all the ways that a record can be."""
        h = random.Random(20261122)
        tous = [o.replace(b"\r", b"").split(FIN)[:-1] for o in banc.exemples().values()]
        fichs = [l[0] for l in tous]
        messages = [r for l in tous for r in l[1:]]
        caracteres = b" 0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ*,.xyz"
        for tour in range(80):
            lignes = [h.choice(fichs)]
            for _ in range(2500):
                r = bytearray(h.choice(messages))
                # The damage grows from file to file: from one column to a tenth of the record.
                for _ in range(h.randrange(1 + tour % 25)):
                    quoi = h.randrange(20)
                    place = h.randrange(256)
                    if quoi < 15:
                        r[place:place + 1] = bytes([h.choice(caracteres)])
                    elif quoi == 15:
                        autre = h.choice(messages)
                        largeur = h.randrange(1, 40)
                        r[place:place + largeur] = autre[place:place + largeur]
                    elif quoi == 16:
                        r[place:place + 12] = b" " * len(r[place:place + 12])
                    elif quoi == 17:
                        r[18:21] = h.choice([b"CRE", b"DEM", b"INV", b"EDI", b"MOD", b"INF", b"ECQ", b"zzz"])
                    elif quoi == 18 and tour % 3 == 0:
                        r = r[:place] if h.randrange(2) else r + bytes([h.choice(caracteres)])
                    elif quoi == 19 and tour % 3 == 0:
                        r[place:place + 1] = bytes([h.choice([c for c in range(256) if c not in (10, 13, 26)])])
                lignes.append(bytes(r) or b" ")
            self.comparer(f"tour {tour}", FIN.join(lignes) + FIN)

    @classmethod
    def tearDownClass(cls):
        print(f"{cls.records} records compared")
        assert cls.records > 200000, f"only {cls.records} records were compared"


if __name__ == "__main__":
    unittest.main(verbosity=2)
