#!/usr/bin/env python3
"""The HTML report in a real Chromium.

    tests/page/rapport_essai.py [--photos DOSSIER] [--source page_rapport.cpp] [unittest options]

--photos keeps screenshots (light, dark, narrow, print) for people to look at;
--source names the C++ source made by src/page/Embarquer.cmake, whose bytes are
then compared. Times are printed and never asserted.
"""
import argparse
import base64
import hashlib
import json
import pathlib
import re
import sys
import tempfile
import unittest

RACINE = pathlib.Path(__file__).resolve().parent.parent.parent
sys.path[:0] = [str(RACINE / "scripts"), str(RACINE / "tests" / "page")]
sys.dont_write_bytecode = True

import donnees  # noqa: E402
import empaqueter  # noqa: E402
from chromium import Chromium, manquant  # noqa: E402

SAUTE = 77  # what CTest takes for "skipped"
options = argparse.Namespace(photos=None, source=None)
navigateur = None
dossier = None


def setUpModule():
    global navigateur, dossier
    dossier = tempfile.TemporaryDirectory(prefix="quilvane-rapport-")
    unittest.addModuleCleanup(dossier.cleanup)
    navigateur = Chromium().__enter__()
    unittest.addModuleCleanup(navigateur.__exit__)


def deux_catalogues(complet=False):
    return [donnees.catalogue("fr", complet), donnees.catalogue("en", complet)]


class Rapport(unittest.TestCase):
    """Opens pages; what a page complains of or asks for fails the test that opened it."""

    def ouvrir(self, rapport, catalogue=None, langue="fr", ancre="", page=None):
        self.chemin = pathlib.Path(dossier.name) / f"{self.id().rsplit('.', 1)[1]}.html"
        self.chemin.write_text(page or empaqueter.page(rapport, catalogue, langue), encoding="utf-8")
        navigateur.milieu()
        navigateur.ouvrir(self.chemin, ancre)

    def tearDown(self):
        if getattr(self, "chemin", None) and not getattr(self, "plaintes_attendues", False):
            self.assertEqual(navigateur.console, [])
            self.assertEqual(
                {u.split("#")[0] for u in navigateur.requetes if not u.startswith("data:")},
                {self.chemin.as_uri()},
            )

    def filtrer(self, texte):
        """Types into the search field, over what stood there."""
        navigateur.cliquer("#filtre")
        navigateur.evaluer("document.querySelector('#filtre').select()")
        if texte:
            navigateur.ecrire(texte)
        else:
            navigateur.evaluer("document.execCommand('delete')")
        navigateur.dessine()

    def lignes(self):
        return navigateur.evaluer(
            "[...document.querySelectorAll('tr.constat')].map((t) => [+t.dataset.ligne, +t.dataset.numero, t.dataset.champ])"
        )

    def foyer(self):
        return navigateur.evaluer(
            "document.activeElement.id || document.activeElement.getAttribute('href') || document.activeElement.tagName"
        )

    def photo(self, nom, entiere=True):
        if options.photos:
            navigateur.photographier(pathlib.Path(options.photos) / f"{nom}.png", entiere)


class Enonce(Rapport):
    def test_a_corriger(self):
        self.ouvrir(donnees.petit(), deux_catalogues())
        self.assertEqual(navigateur.textes("h1"), ["2 enregistrements à corriger"])
        resume = navigateur.texte("#resume")
        for attendu in (
            "lot.vse",
            "sur 3 lus",
            "1 enregistrement est correct, 2 sont à corriger.",
            "5 points sont signalés",
            "un d’eux découle sans doute d’un autre",
            "Numéro d’animal mal formé",
            "quilvane publierait un fichier d’erreurs",
        ):
            self.assertIn(attendu, resume)
        self.assertEqual(navigateur.compter("#resume.corriger svg.corriger"), 1)

    def test_un_seul(self):
        rapport = donnees.petit()
        f = rapport["fichiers"][0]
        f.update(constats=f["constats"][:1], enregistrements=1, acceptes=0, refuses=1)
        self.ouvrir(rapport)
        self.assertEqual(navigateur.textes("h1"), ["1 enregistrement à corriger"])
        self.assertIn(
            "Aucun enregistrement n’est correct, 1 est à corriger. Un point est signalé.",
            navigateur.texte("#resume"),
        )

    def test_accepte(self):
        self.ouvrir(donnees.accepte(), deux_catalogues())
        self.assertEqual(navigateur.textes("h1"), ["Ce fichier serait accepté"])
        self.assertIn("4 enregistrements lus, rien à corriger.", navigateur.texte("#resume"))
        self.assertEqual(
            [navigateur.compter(s) for s in ("#resume.accepte", "#constats", "#enregistrement", "#arret")],
            [1, 0, 0, 0],
        )

    def test_fatal(self):
        self.ouvrir(donnees.fatal(), deux_catalogues())
        self.assertEqual(navigateur.textes("h1"), ["Ce fichier ne peut pas être traité tel quel"])
        arret = navigateur.texte("#arret")
        for attendu in (
            "Fins de ligne mélangées",
            "Ligne 12 · IG008",
            "La ligne 12 finit par CR LF",
            "Enregistrez le fichier avec une seule forme",
        ):
            self.assertIn(attendu, arret)
        navigateur.cliquer("#arret .liens a")
        self.assertIn("Le fichier a deux formes de fin de ligne.", navigateur.texte("dialog[open]"))

    def test_statut_inconnu(self):
        rapport = donnees.accepte()
        rapport["fichiers"][0]["statut"] = 9
        self.ouvrir(rapport)
        self.assertEqual(navigateur.textes("h1"), ["Ce fichier ne peut pas être traité tel quel"])

    def test_avertissements(self):
        rapport = donnees.petit()
        rapport["fichiers"][0]["avertissements"] = donnees.avertissements(7)
        self.ouvrir(rapport)
        self.assertEqual(navigateur.texte("#titre-avertissements"), "À savoir sur ce fichier (7)")
        self.assertEqual(navigateur.textes("#avertissements > ul li")[0][:18], "Ligne 1, colonne 1")
        self.assertEqual(navigateur.compter("#avertissements > ul li"), 5)
        navigateur.cliquer("#avertissements summary")
        self.assertEqual(navigateur.compter("#avertissements details li"), 2)

    def test_milliers_d_avertissements_et_de_types(self):
        """A file of anything: what is shown on demand is made on demand, and has an end."""
        rapport = donnees.petit()
        f = rapport["fichiers"][0]
        f["avertissements"] = donnees.avertissements(3000)
        f["constats"] = [{**f["constats"][0], "type": f"{i:04}", "ligne": i + 2} for i in range(3000)]
        self.ouvrir(rapport, deux_catalogues())
        self.assertLess(navigateur.compter("*"), 3000)
        navigateur.cliquer("#avertissements summary")
        self.assertEqual(navigateur.compter("#avertissements li"), 505)
        self.assertIn("2\u202f495 autres ne sont pas montrés", navigateur.texte("#avertissements"))
        navigateur.cliquer("#barres-type summary")
        navigateur.cliquer("#barres-type button[data-cle='0300']")
        self.assertEqual(self.lignes(), [[302, 67, "C2"]])
        self.assertEqual(navigateur.compter("#barres-type button[aria-pressed=true]"), 1)

    def test_forme_inconnue(self):
        self.ouvrir({"format": "autre/1"})
        self.assertEqual(navigateur.textes("h1"), ["Ce rapport ne peut pas être lu"])

    def test_json_tronque(self):
        bonne = empaqueter.page(donnees.petit(), None, "en")
        self.ouvrir(None, page=bonne.replace('"format":"quilvane-rapport/1",', '"format":', 1))
        self.assertEqual(navigateur.textes("h1"), ["This report cannot be read"])

    def test_aucun_fichier(self):
        self.ouvrir(donnees.rapport([], "en"), langue="en")
        self.assertEqual(navigateur.textes("h1"), ["No file in this report"])

    def test_plusieurs_fichiers(self):
        self.ouvrir(donnees.plusieurs(), deux_catalogues())
        self.assertEqual(navigateur.textes("h1"), ["3 fichiers sur 4 demandent une correction"])
        self.assertEqual(navigateur.compter("table.fichiers tbody tr"), 4)
        self.assertEqual(navigateur.textes("table.fichiers tbody tr:nth-child(2) td")[0].strip(), "accepté")
        navigateur.cliquer("table.fichiers tbody tr:nth-child(3) a")
        self.assertIn("lot_windows.vse", navigateur.texte("#fichier"))
        self.assertEqual([navigateur.compter("#arret"), navigateur.compter("#constats")], [1, 0])
        self.assertEqual(navigateur.evaluer("location.hash"), "#fichier-3")
        navigateur.evaluer("history.back()")
        navigateur.cliquer("table.fichiers tbody tr:nth-child(4) a")
        self.assertEqual(navigateur.compter("tr.constat"), 5)
        self.assertEqual(navigateur.compter("#avertissements"), 1)


class Liste(Rapport):
    def test_crochets(self):
        self.ouvrir(donnees.petit(), deux_catalogues())
        self.assertEqual(
            self.lignes(), [[2, 67, "C2"], [2, 3, "C4"], [3, 6, "C10"], [3, 67, "C11"], [3, 68, "C17"]]
        )
        self.assertEqual(navigateur.textes("#compte"), ["5 points dans 2 enregistrements"])

    def test_barres(self):
        self.ouvrir(donnees.petit(), deux_catalogues())
        self.assertEqual([t.split() for t in navigateur.textes("#barres-numero button")][0][::5], ["67", "2"])
        largeurs = navigateur.evaluer(
            "[...document.querySelectorAll('#barres-numero .barre span')].map((e) => e.style.width)"
        )
        self.assertEqual(largeurs, ["100%", "50%", "50%", "50%"])
        pixels = navigateur.evaluer(
            "[...document.querySelectorAll('#barres-numero .barre span')].map((e) => Math.round(e.getBoundingClientRect().width))"
        )
        self.assertAlmostEqual(pixels[0], 2 * pixels[1], delta=2)
        navigateur.cliquer("#barres-numero button[data-cle='68']")
        self.assertEqual(self.lignes(), [[3, 68, "C17"]])
        self.assertEqual(navigateur.evaluer("document.querySelector('#filtre-numero').value"), "68")
        self.assertEqual(navigateur.textes("#barres-numero button[aria-pressed=true] .n"), ["1"])
        navigateur.cliquer("#barres-numero button[data-cle='68']")
        self.assertEqual(len(self.lignes()), 5)

    def test_recherche(self):
        self.ouvrir(donnees.petit(), deux_catalogues())
        for texte, attendu in (
            ("00123456", [68]),
            ("EXPLOITATION", [68]),
            ("numero mere", [67]),
            ("sexe", [3]),
            ("I0061", [6]),
            ("c4 cre", [3]),
            ("aucun-de-ceux-ci", []),
        ):
            self.filtrer(texte)
            self.assertEqual([n for _, n, _ in self.lignes()], attendu, texte)
            self.assertIn(f"{len(attendu)} point", navigateur.texte("#compte"))
        self.assertIn("Rien ne correspond", navigateur.texte("p.rien"))
        navigateur.cliquer("button.discret")
        self.assertEqual(len(self.lignes()), 5)

    def test_premieres_causes(self):
        self.ouvrir(donnees.petit(), deux_catalogues())
        navigateur.cliquer("#filtre-causes")
        self.assertEqual([c for _, _, c in self.lignes()], ["C2", "C4", "C10", "C17"])

    def test_type(self):
        rapport = donnees.petit()
        rapport["fichiers"][0]["constats"][0]["type"] = "ABAT"
        self.ouvrir(rapport, deux_catalogues())
        navigateur.cliquer("#barres-type button[data-cle='ABAT']")
        self.assertEqual(self.lignes(), [[2, 67, "C2"]])

    def test_textes_du_catalogue(self):
        """A report that leaves out what the catalogue says shows the same words."""
        rapport = donnees.petit()
        for c in rapport["fichiers"][0]["constats"]:
            for cle in ("titre", "remede", "libelle"):
                del c[cle]
        self.ouvrir(rapport, deux_catalogues())
        self.filtrer("sexe inconnu")
        self.assertEqual(self.lignes(), [[2, 3, "C4"]])
        self.assertIn("Écrivez 1 pour un mâle", navigateur.texte("#enregistrement"))

    def test_langue(self):
        self.ouvrir(donnees.petit(), deux_catalogues())
        navigateur.cliquer("button[data-langue=en]")
        self.assertEqual(navigateur.evaluer("document.documentElement.lang"), "en")
        self.assertEqual(navigateur.textes("h1"), ["2 records to mend"])
        self.assertIn("Unknown sex", navigateur.texte("table.constats"))
        # A sentence with values exists in the report's own language only, and says so.
        self.assertEqual(navigateur.evaluer("document.querySelector('tr.constat .message').lang"), "fr")
        self.ouvrir([donnees.petit("fr"), donnees.petit("en")], deux_catalogues(), "en")
        self.assertIn("“3” is no code of a sex.", navigateur.texte("table.constats"))
        self.ouvrir(donnees.petit("en"), donnees.catalogue("en"), "en")
        self.assertEqual(navigateur.compter("button[data-langue]"), 0)
        self.assertEqual(navigateur.textes("h1"), ["2 records to mend"])

    def test_nouvelles_donnees(self):
        """A page may show other data at any time."""
        self.ouvrir(donnees.petit(), deux_catalogues())
        suivant = json.dumps([donnees.accepte("en"), donnees.catalogue("en")])
        navigateur.evaluer(
            f"(() => {{ const [r, c] = {suivant}; QuilvaneVue.afficher(document.getElementById('vue'), r, c, 'en'); }})()"
        )
        self.assertEqual(navigateur.textes("h1"), ["This file would be accepted"])


class Enregistrement(Rapport):
    def marquees(self):
        """The columns that are marked in the shown record, from the elements themselves."""
        return navigateur.evaluer(
            """[...document.querySelectorAll('#enregistrement .texte mark')].map((m) =>
            [+m.dataset.colonne, +m.dataset.colonne + m.textContent.length - 1, m.textContent])"""
        )

    def test_colonnes(self):
        self.ouvrir(donnees.petit(), deux_catalogues())
        self.assertEqual(self.marquees(), [[65, 76, "ZZ12345678  "], [79, 79, "3"]])
        navigateur.cliquer("tr.constat[data-ligne='3'] a")
        self.assertEqual(
            self.marquees(), [[105, 106, "ZZ"], [107, 118, "7800000012  "], [139, 150, "00123456    "]]
        )
        self.assertEqual(
            navigateur.evaluer("document.querySelector('#enregistrement .octet').title"), "\\xC9"
        )
        # More than colour: underlined, and the number of the explanation below.
        self.assertIn(
            "underline",
            navigateur.evaluer(
                "getComputedStyle(document.querySelector('#enregistrement mark')).textDecorationLine"
            ),
        )
        pieces = navigateur.evaluer(
            "[...document.querySelectorAll('#enregistrement .piece')].map((p) => p.textContent.split('\\n'))"
        )
        _, _, texte, marques = pieces[1]
        self.assertEqual(texte[105 - 65 : 118 - 64], "ZZ7800000012  ")
        self.assertEqual(marques, " " * 40 + "1^3" + "^" * 11)
        nombres, echelle = pieces[1][:2]
        self.assertEqual((nombres[68 - 64 : 70 - 64], echelle[70 - 65]), ("70", "|"))

    def test_explication(self):
        self.ouvrir(donnees.petit(), deux_catalogues(), ancre="#ligne-3")
        textes = navigateur.textes("#enregistrement li.explication")
        self.assertEqual(len(textes), 3)
        for attendu in (
            "Pays de la mère",
            "C10 · colonnes 105 à 106 · numéro 6",
            "« ZZ » n’est pas un pays de la liste.",
            "Valeur reçue",
            "Valeurs proches admises",
            "FI",
            "Écrivez le code du pays sur deux lettres.",
        ):
            self.assertIn(attendu, textes[0])
        # What follows from another comes last and names its cause.
        self.assertRegex(textes[2], r"(?s)Numéro de la mère.*Découle sans doute de\s+1\. Pays de la mère")
        self.assertRegex(textes[2], r"Vérifié avec\s+C10 ZZ")

    def test_valeur_vide(self):
        rapport = donnees.petit()
        rapport["fichiers"][0]["constats"][0].update(valeur=" " * 12)
        self.ouvrir(rapport)
        self.assertIn("vide (12 espaces)", navigateur.texte("tr.constat"))

    def test_derriere_et_sans_texte(self):
        rapport = donnees.petit()
        f = rapport["fichiers"][0]
        f["constats"][0]["derriere"] = True
        f["constats"][1].update(champ=None, colonnes=None, partie=None, valeur=None, libelle=None)
        f["textes"] = {}
        self.ouvrir(rapport, deux_catalogues())
        self.assertIn("Trouvé après le dixième point", navigateur.texte("#enregistrement"))
        self.assertIn("n’est pas dans ce rapport", navigateur.texte("#enregistrement"))
        self.assertEqual(navigateur.evaluer("document.querySelectorAll('tr.constat')[1].dataset.champ"), "")

    def test_longueurs(self):
        """Records cut short or too long keep their columns."""
        rapport = donnees.petit()
        f = rapport["fichiers"][0]
        f["textes"]["2"] = f["textes"]["2"][:70]
        f["textes"]["3"] += "x" * 3000
        self.ouvrir(rapport)
        self.assertEqual(self.marquees(), [[65, 70, "ZZ1234"]])
        navigateur.cliquer("a[href='#ligne-3']")
        self.assertIn("caractères de plus", navigateur.texte("#enregistrement"))

    def test_lien_profond(self):
        self.ouvrir(donnees.petit(), deux_catalogues(), ancre="#ligne-3")
        self.assertIn("Ligne 3", navigateur.texte("#titre-enregistrement"))
        self.assertEqual(navigateur.compter("tr.constat[aria-current]"), 3)
        navigateur.cliquer(".voisins a")
        self.assertEqual(navigateur.evaluer("location.hash"), "#ligne-2")
        navigateur.evaluer(
            "new Promise((r) => { addEventListener('popstate', () => setTimeout(r)); history.back(); })"
        )
        self.assertIn("Ligne 3", navigateur.texte("#titre-enregistrement"))
        self.ouvrir(donnees.plusieurs(), deux_catalogues(), ancre="#fichier-4-ligne-3")
        self.assertIn("fevrier.vse", navigateur.texte("#fichier"))
        self.assertIn("Ligne 3", navigateur.texte("#titre-enregistrement"))

    def test_liens_sans_but(self):
        """An address that names nothing shows the report as it is."""
        for ancre in ("#ligne-999", "#fichier-9", "#NAIS2", "#%E0%A4%A", "#erreur-999"):
            self.ouvrir(donnees.petit(), deux_catalogues(), ancre=ancre)
            self.assertIn("Ligne 2", navigateur.texte("#titre-enregistrement"), ancre)
        self.assertIn("pas d’entrée de ce nom", navigateur.texte("dialog[open]"))

    def test_catalogue(self):
        self.ouvrir(donnees.petit(), deux_catalogues())
        navigateur.cliquer("#enregistrement .voir-type")
        self.assertIn("NAIS naissance", navigateur.texte("dialog[open] h2"))
        navigateur.cliquer("dialog .fermer")
        self.assertEqual(navigateur.compter("dialog[open]"), 0)
        navigateur.cliquer("#enregistrement .voir-champ")
        self.assertEqual(navigateur.textes("dialog tr.vise th"), ["C2\n65–76"])
        navigateur.cliquer("dialog tr.vise a[href='#liste-TD']")
        self.assertIn("Départements", navigateur.texte("dialog h2"))
        self.assertEqual(navigateur.compter("dialog .valeurs li"), 95)
        navigateur.cliquer("dialog .fermer")
        navigateur.cliquer("#enregistrement .voir-erreur")
        self.assertIn("Le champ n’a pas la forme attendue.", navigateur.texte("dialog[open]"))
        self.ouvrir(donnees.petit(), deux_catalogues(), ancre="#NAIS-C17")
        self.assertEqual(navigateur.textes("dialog[open] tr.vise th"), ["C17\n139–150"])

    def test_sans_catalogue(self):
        self.ouvrir(donnees.petit())
        self.assertEqual(navigateur.compter("#enregistrement .voir-champ, #enregistrement .voir-type"), 0)
        self.assertEqual(navigateur.compter("tr.constat"), 5)


class Clavier(Rapport):
    def test_clavier_seul(self):
        self.ouvrir(donnees.petit(), deux_catalogues())
        navigateur.touche("Tab")
        self.assertEqual(self.foyer(), "#resume")
        self.assertGreater(navigateur.evaluer("document.activeElement.getBoundingClientRect().left"), 0)
        navigateur.touche("Tab")
        self.assertEqual(self.foyer(), "#constats")
        navigateur.touche("Enter")
        self.assertEqual(self.foyer(), "#ligne-2")
        self.assertNotEqual(
            navigateur.evaluer("getComputedStyle(document.activeElement).outlineStyle"), "none"
        )
        for touche, attendu in (
            ("ArrowDown", [1]),
            ("ArrowDown", [2]),
            ("End", [4]),
            ("ArrowDown", [4]),
            ("Home", [0]),
            ("ArrowUp", [0]),
            ("End", [4]),
        ):
            navigateur.touche(touche)
            self.assertEqual(
                navigateur.evaluer(
                    "[...document.querySelectorAll('tr.constat')].flatMap((t, i) => t.contains(document.activeElement) ? [i] : [])"
                ),
                attendu,
                touche,
            )
        navigateur.touche("Enter")
        self.assertEqual(self.foyer(), "titre-enregistrement")
        self.assertIn("Ligne 3", navigateur.texte("#titre-enregistrement"))
        navigateur.touche("Tab")
        self.assertEqual(self.foyer(), "#ligne-2")
        navigateur.touche("Tab")
        self.assertEqual(self.foyer(), "#NAIS-C10")
        navigateur.touche("Enter")
        self.assertEqual(navigateur.compter("dialog[open] tr.vise"), 1)
        navigateur.touche("Escape")
        self.assertEqual(navigateur.compter("dialog[open]"), 0)
        self.assertEqual(self.foyer(), "#NAIS-C10")
        navigateur.touche("Escape")
        self.assertEqual(self.foyer(), "#ligne-3")

    def test_lecteur_d_ecran(self):
        """Landmarks, one h1, headings without a gap, names of controls, a live count."""
        self.ouvrir(donnees.plusieurs(), deux_catalogues())
        niveaux = [
            int(n)
            for n in navigateur.evaluer(
                "[...document.querySelectorAll('h1,h2,h3,h4')].map((h) => h.tagName[1])"
            )
        ]
        self.assertEqual(niveaux.count(1), 1)
        self.assertEqual([(a, b) for a, b in zip(niveaux, niveaux[1:]) if b > a + 1 and (a, b) != (2, 4)], [])
        self.assertEqual(
            [
                navigateur.compter(s)
                for s in ("main", "header.page", "form[role=search]", "#compte[aria-live=polite]")
            ],
            [1, 1, 1, 1],
        )
        self.assertEqual(
            navigateur.evaluer(
                "[...document.querySelectorAll('input, select')].filter((e) => !e.labels.length).length"
            ),
            0,
        )
        self.assertEqual(navigateur.compter("table.constats th[scope=col]"), 4)
        self.assertEqual(
            navigateur.evaluer(
                "[...document.querySelectorAll('button, a')].filter((e) => !(e.innerText.trim() || e.ariaLabel)).length"
            ),
            0,
        )
        self.assertEqual(
            navigateur.evaluer(
                "(() => { const ids = [...document.querySelectorAll('[id]')].map((e) => e.id); return ids.length - new Set(ids).size; })()"
            ),
            0,
        )
        self.assertEqual(
            navigateur.evaluer(
                "[...document.querySelectorAll('[aria-labelledby]')].filter((e) => !document.getElementById(e.getAttribute('aria-labelledby'))).length"
            ),
            0,
        )


class Surete(Rapport):
    def test_politique(self):
        """The policy stands in the page, names the true digests, and stops what is not ours."""
        self.ouvrir(donnees.petit(), deux_catalogues())
        texte = self.chemin.read_text(encoding="utf-8")
        csp = re.search(r'Content-Security-Policy" content="([^"]*)"', texte)[1]
        self.assertTrue(csp.startswith("default-src 'none'; style-src 'sha256-"))
        self.assertNotIn("unsafe", csp)
        for balise, directive in (("style", "style-src"), ("script", "script-src")):
            contenu = re.search(rf"<{balise}>(.*?)</{balise}>", texte, re.S)[1]
            condense = base64.b64encode(hashlib.sha256(contenu.encode()).digest()).decode()
            self.assertIn(f"{directive} 'sha256-{condense}';", csp)
        self.assertEqual(
            navigateur.evaluer("getComputedStyle(document.querySelector('main')).display"), "grid"
        )
        self.plaintes_attendues = True
        essais = navigateur.evaluer(
            """new Promise(async (fini) => {
            const vus = [];
            document.addEventListener('securitypolicyviolation', (e) => vus.push(e.effectiveDirective));
            const s = document.createElement('script'); s.textContent = 'window.intrus = 1'; document.body.append(s);
            const b = document.createElement('b'); b.setAttribute('style', 'color: red'); b.setAttribute('onclick', 'window.intrus = 2'); document.body.append(b); b.click();
            const i = new Image(); i.src = 'http://localhost:9/x.png';
            await fetch('http://localhost:9/').catch(() => 0);
            setTimeout(() => fini([typeof window.intrus, vus.sort()]), 100); })"""
        )
        self.assertEqual(essais[0], "undefined")
        self.assertEqual(
            set(essais[1]), {"script-src-elem", "script-src-attr", "style-src-attr", "img-src", "connect-src"}
        )

    def test_politique_sans_notre_style(self):
        """A style or a script that was changed is not taken."""
        self.plaintes_attendues = True
        page = empaqueter.page(donnees.petit(), None, "fr")
        self.ouvrir(None, page=page.replace("main { display: grid;", "main { display: flex;", 1))
        self.assertEqual(
            navigateur.evaluer("getComputedStyle(document.querySelector('main')).display"), "block"
        )
        self.ouvrir(None, page=page.replace('"use strict";', '"use strict"; ', 1))
        self.assertEqual(navigateur.compter("h1"), 0)

    def test_valeurs_hostiles(self):
        self.ouvrir(donnees.hostile(), deux_catalogues())
        self.assertEqual(navigateur.compter("tr.constat"), 6)
        self.assertTrue(navigateur.evaluer("document.title").startswith("6 enregistrements"))
        self.assertEqual(navigateur.compter("#vue img, #vue script, #vue b > b, #vue [onerror]"), 0)
        self.assertIn("<script>nom</script>\\u202Eesv.vse", navigateur.texte("#resume"))
        for i, v in enumerate(donnees.HOSTILE[:5]):
            montre = v.replace("\u202e", "\\u202E").replace("\u202c", "\\u202C")
            self.assertIn(
                montre, navigateur.evaluer(f"document.querySelectorAll('tr.constat')[{i}].textContent")
            )
            navigateur.cliquer(f"a[href='#ligne-{i + 2}']")
            self.assertIn(
                montre,
                navigateur.evaluer("document.querySelector('#enregistrement .explication').textContent"),
            )
        self.assertEqual(navigateur.evaluer("/[\\u202a-\\u202e]/.test(document.body.textContent)"), False)
        navigateur.cliquer("a[href='#ligne-7']")
        self.assertLess(navigateur.evaluer("document.querySelector('#vue').scrollWidth - innerWidth"), 1)
        self.photo("hostile")

    def test_donnees_dans_la_page(self):
        texte = empaqueter.dans_la_page(donnees.hostile())
        self.assertNotIn("<", texte)
        self.assertLess(max(texte), "\u0100")
        self.assertEqual(json.loads(texte), donnees.hostile())
        self.assertEqual(empaqueter.dans_la_page("é’<\U0001f404"), '"é\\u2019\\u003C\\uD83D\\uDC04"')


class Construction(unittest.TestCase):
    def test_source_engendree(self):
        """The program carries the bytes that the script makes."""
        if not options.source:
            self.skipTest("--source is not given")
        source = pathlib.Path(options.source).read_text(encoding="utf-8")
        parties = {
            nom: bytes.fromhex("".join(re.findall(r"'\\x([0-9a-f]{2})'", octets))).decode()
            for nom, octets in re.findall(r"constexpr char octets(\w+)\[\] = \{\n(.*?)\n\};", source, re.S)
        }
        self.assertEqual(list(parties), ["pageDebut", "pageRapport", "pageCatalogue", "pageFin"])
        for (nom, octets), attendus in zip(parties.items(), empaqueter.parties()):
            self.assertTrue(octets == attendus, f"{nom}: {len(octets)} characters, expected {len(attendus)}")


class Grand(Rapport):
    def test_dix_mille(self):
        rapport = donnees.grand(10000)
        constats = rapport["fichiers"][0]["constats"]
        self.ouvrir(rapport, deux_catalogues(complet=True))
        self.assertEqual(navigateur.textes("h1"), ["10\u202f000 enregistrements à corriger"])
        self.assertLess(navigateur.compter("*"), 5000)
        premiere = navigateur.evaluer("performance.getEntriesByName('first-contentful-paint')[0].startTime")
        attendu = sum("exploitation" in c["libelle"] and c["type"] == "ABAT" for c in constats)
        self.filtrer("exploitation abat")
        self.assertIn(f"{attendu:,} points".replace(",", "\u202f"), navigateur.texte("#compte"))
        for texte in ("ZZ1234", "c17 mod", "9999"):
            self.filtrer(texte)
        self.filtrer("7812349999")
        self.assertTrue(self.lignes())
        navigateur.cliquer("tr.constat a")
        self.assertIn(
            f"Ligne {self.lignes()[0][0]} ", navigateur.texte("#titre-enregistrement").replace("\u202f", "")
        )
        self.filtrer("")
        navigateur.cliquer("button.plus")
        self.assertEqual(navigateur.compter("tr.constat"), 180)
        filtres = navigateur.evaluer(
            "performance.getEntriesByName('quilvane:filtrer').map((m) => m.duration)"
        )
        print(
            f"\n{len(constats)} findings, {self.chemin.stat().st_size / 1e6:.1f} MB: first paint of the report after {premiere:.0f} ms, "
            f"filtering {sorted(filtres)[len(filtres) // 2]:.0f} ms, {max(filtres):.0f} at most"
        )
        navigateur.evaluer("dispatchEvent(new Event('beforeprint'))")
        self.assertEqual(navigateur.compter("tr.constat"), 2000)
        self.assertIn(
            "2\u202f000 points sur", navigateur.evaluer("document.querySelector('.note.imprime').textContent")
        )


class Milieux(Rapport):
    def test_clair(self):
        for nom, rapport in (
            ("clair", donnees.petit()),
            ("accepte", donnees.accepte()),
            ("fatal", donnees.fatal()),
            ("plusieurs", donnees.plusieurs()),
        ):
            self.ouvrir(rapport, deux_catalogues())
            self.photo(nom)

    def test_sombre(self):
        self.ouvrir(donnees.petit(), deux_catalogues())
        clair = navigateur.evaluer("getComputedStyle(document.body).backgroundColor")
        navigateur.milieu(sombre=True)
        self.assertNotEqual(navigateur.evaluer("getComputedStyle(document.body).backgroundColor"), clair)
        self.photo("sombre")
        navigateur.cliquer(".voir-champ")
        self.photo("sombre_fiche", entiere=False)

    def test_etroit(self):
        self.ouvrir(donnees.plusieurs(), deux_catalogues())
        for largeur in (380, 320):
            navigateur.milieu(largeur, 800)
            self.assertEqual(navigateur.evaluer("document.documentElement.scrollWidth"), largeur)
            # The ruler is cut into pieces that fit.
            self.assertEqual(
                navigateur.evaluer(
                    "Math.max(...[...document.querySelectorAll('.piece .texte')].map((p) => p.textContent.length))"
                ),
                32,
            )
        navigateur.milieu(380, 800)
        self.photo("etroit")
        navigateur.cliquer("tr.constat[data-ligne='3'] a")
        self.assertTrue(
            navigateur.evaluer(
                "document.querySelector('#titre-enregistrement').getBoundingClientRect().top < innerHeight"
            )
        )

    def test_imprime(self):
        self.ouvrir(donnees.petit(), deux_catalogues())
        pdf = navigateur.imprimer()
        self.assertEqual(pdf[:5], b"%PDF-")
        navigateur.evaluer("dispatchEvent(new Event('beforeprint'))")
        navigateur.milieu(700, 1000, imprime=True)
        self.assertEqual(navigateur.textes(".fiche-imprimee h3"), ["Ligne 2 NAIS CRE", "Ligne 3 NAIS MOD"])
        self.assertEqual(
            navigateur.evaluer("getComputedStyle(document.querySelector('#enregistrement')).display"), "none"
        )
        self.assertEqual(
            navigateur.evaluer("getComputedStyle(document.querySelector('.filtres')).display"), "none"
        )
        self.assertIn("Écrivez 1 pour un mâle", navigateur.texte("tr.constat[data-champ=C4]"))
        self.photo("imprime")
        navigateur.milieu()
        navigateur.evaluer("dispatchEvent(new Event('afterprint'))")
        self.assertEqual(navigateur.compter(".fiche-imprimee, #enregistrement.ecran"), 0)
        if options.photos:
            (pathlib.Path(options.photos) / "imprime.pdf").write_bytes(pdf)


def main():
    lecteur = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    lecteur.add_argument("--photos", help="folder that keeps the screenshots")
    lecteur.add_argument("--source", help="the C++ source made by src/page/Embarquer.cmake")
    reste = lecteur.parse_known_args(namespace=options)[1]
    if options.photos:
        pathlib.Path(options.photos).mkdir(parents=True, exist_ok=True)
    if manquant():
        print(f"skipped: {manquant()}")
        return SAUTE
    return 0 if unittest.main(argv=[sys.argv[0], *reste], exit=False).result.wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main())
