"""The scripts that quilvane is measured beside: they refuse nothing that it
accepts, and accept only what their head comment says a schema cannot tell.
"""
import json
import os
import re
import shutil
import subprocess
import sys
import unittest

import banc

try:
    import jsonschema
except ImportError:
    jsonschema = None

NODE = shutil.which("node")
AJV = "/usr/share/nodejs/ajv"
# One field or record against another, and records of other types.
AU_DELA = {50, 52, 100, 109, 135, 182}
CARACTERES = " 09AXx\t"


def records():
    """ACTI records with each column in turn spoilt by each of a few characters, in the three kinds."""
    bon = banc.exemples()["acti_accepte"].decode().splitlines()
    r = list(bon)
    for modele in bon[1:]:
        r += [modele[:i] + c + modele[i + 1:] for i in range(256) for c in CARACTERES if modele[i] != c]
        for debut, texte in ((80, "  022024"), (80, "29022024"), (88, "    2024"), (88, "  022024"), (88, "30022024"), (88, "    1899"),
                             (27, "OFFICE  "), (27, "NORMABEV"), (27, "097IPG  "), (43, "NORM02  "), (19, "ECQ"), (19, "DEM"), (65, "97512345    "),
                             (231, "29022023"), (239, "240000")):
            r.append(modele[:debut - 1] + texte + modele[debut - 1 + len(texte):])
        r.append(modele[:26] + "OFFICE  " + " " * 8 + modele[42:])
        r += [modele[:-1], modele + "*"]
    return r


class Pairs(banc.Cas):
    def accord(self, programme, **env):
        """Compares one script with what quilvane-guide says, in files of as many records as one may hold."""
        tous = records()
        fich = banc.exemples()["acti_accepte"].decode().splitlines()[0]
        refus, manques = 0, set()
        for lot in range(1, len(tous), 9000):
            lignes = [fich, *tous[lot:lot + 9000]]
            self.fichier("recu", "".join(l + "\n" for l in lignes).encode())
            _, sortie, _ = self.guide("verifier", "--format", "json", "recu")
            codes = {}
            for c in json.loads(sortie)["fichiers"][0]["constats"]:
                codes.setdefault(c["ligne"], set()).add(c["numero"])
            codes.pop(1, None)  # the count of the FICH record
            subprocess.run([*programme, "recu", "oui", "non"], cwd=self.dossier, env={**os.environ, **env}, timeout=300)
            non = {int(n) for n in re.findall(r"^(\d+):", (self.dossier / "non").read_text("latin-1"), re.MULTILINE)}
            oui = (self.dossier / "oui").read_text("latin-1").splitlines()
            self.assertEqual(oui, [l if n == 1 else l[:76] + "40" + l[78:] for n, l in enumerate(lignes, 1) if n not in non])
            self.assertEqual(sorted(non - codes.keys())[:5], [], "refused although quilvane accepts it")
            refus += len(non)
            for n in codes.keys() - non:
                manques |= codes[n]
        self.assertGreater(refus, 1000)
        self.assertEqual(sorted(manques - AU_DELA), [])
        self.assertTrue({50, 52} <= manques)

    @unittest.skipUnless(jsonschema, "python3-jsonschema is not installed")
    def test_python(self):
        self.accord([sys.executable, str(banc.RACINE / "bench/valider.py")])

    @unittest.skipUnless(NODE and os.path.isdir(AJV), "node-ajv is not installed")
    def test_node(self):
        self.accord([NODE, str(banc.RACINE / "bench/valider.js")], NODE_PATH=os.path.dirname(AJV))


if __name__ == "__main__":
    unittest.main()
