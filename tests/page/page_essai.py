#!/usr/bin/env python3
"""The browser page in a real Chromium, its module beside the native programs.

    tests/page/page_essai.py [--page PAGE] [--programmes FOLDER] [--photos FOLDER] [unittest options]

--programmes is where quilvane and quilvane-guide were built; --photos keeps
screenshots (light, dark, narrow, print) for people to look at. Times are
printed and never asserted.
"""
import argparse
import base64
import functools
import json
import pathlib
import random
import re
import subprocess
import sys
import tempfile
import time
import unittest

RACINE = pathlib.Path(__file__).resolve().parent.parent.parent
sys.path[:0] = [str(RACINE / "tests" / "page")]
sys.dont_write_bytecode = True

from chromium import Chromium, manquant  # noqa: E402

SAUTE = 77  # what CTest takes for "skipped"
EXEMPLES = RACINE / "exemples"
ESTAMPILLE = slice(230, 244)  # date and time in the footer of a record that the program makes
options = argparse.Namespace(page=RACINE / "build/page/quilvane.html", programmes=RACINE / "build/release", photos=None)
navigateur = None
dossier = None


def setUpModule():
    global navigateur, dossier
    temporaire = tempfile.TemporaryDirectory(prefix="quilvane-page-")
    unittest.addModuleCleanup(temporaire.cleanup)
    dossier = pathlib.Path(temporaire.name)
    navigateur = Chromium().__enter__()
    unittest.addModuleCleanup(navigateur.__exit__)


# ------------------------------------------------------------- the native side

def quilvane(octets):
    """Status and published bytes of the native program."""
    with tempfile.TemporaryDirectory(dir=dossier) as d:
        (pathlib.Path(d) / "in").write_bytes(octets)
        statut = subprocess.run([options.programmes / "quilvane", "in", "out", "log"], cwd=d, capture_output=True).returncode
        sortie = pathlib.Path(d) / "out"
        return statut, sortie.read_bytes() if statut != 1 and sortie.exists() else b""


def guide(fichiers, langue, mise_en_forme):
    """The native report on files of one folder, by their bare names."""
    return subprocess.run([options.programmes / "quilvane-guide", "verifier", "--langue", langue, "--format", mise_en_forme,
                           *[f.name for f in fichiers]], cwd=fichiers[0].parent, capture_output=True).stdout


def sans_heure(octets):
    """A published file without the moment at which it was made."""
    lignes = re.split(rb"(\r\n|\n|\r)", octets)
    return b"".join(x[:ESTAMPILLE.start] + b"." * 14 + x[ESTAMPILLE.stop:] if len(x) == 256 else x for x in lignes)


def abimer(octets, hasard):
    """A damaged copy: bytes, columns, line ends, lines."""
    b = bytearray(octets)
    for _ in range(hasard.randint(1, 4)):
        i = hasard.randrange(len(b))
        quoi = hasard.randrange(9)
        if quoi < 4:
            b[i] = hasard.choice(b" 0129AZ")
        elif quoi == 4:
            b[i] = hasard.randrange(256)
        elif quoi == 5:
            del b[i:i + hasard.randint(1, 3)]
        elif quoi == 6:
            b[i:i] = hasard.choice([b"\n", b"\r", b"\r\n", b"\x1a", b" ", b"\xc3\xa9"])
        elif quoi == 7:
            lignes = bytes(b).splitlines(keepends=True)
            lignes.insert(hasard.randint(0, len(lignes)), hasard.choice(lignes))
            b = bytearray(b"".join(lignes))
        else:
            b = bytearray(bytes(b).replace(b"\n", b"\r\n", hasard.choice([1, 100])))
        if not b:
            b = bytearray(b"\n")
    return bytes(b)


@functools.cache
def entrees():
    """Inputs by name: the examples, the corpus of the fuzz target, damaged copies, frames gone wrong."""
    tous = {f.name: f.read_bytes() for f in sorted(EXEMPLES.glob("*.vse"))}
    exemples = list(tous.values())
    tous |= {f"corpus-{f.name}": f.read_bytes() for f in sorted((RACINE / "fuzz/corpus/fichier").iterdir()) if f.is_file()}
    hasard = random.Random(13)
    tous |= {f"abime-{k}": abimer(hasard.choice(exemples), hasard) for k in range(400)}
    lignes = exemples[0].splitlines(keepends=True)
    tous |= {"vide": b"", "fin-seule": b"\n", "fich-seul": lignes[0], "sans-fich": b"".join(lignes[1:]),
             "bom": b"\xef\xbb\xbf" + exemples[0], "longue": b"A" * 70000, "trop": lignes[0] + lignes[1] * 10002,
             "tous-les-octets": bytes(range(256)) * 20}
    return tous


# --------------------------------------------------------------------- the page

class Page(unittest.TestCase):
    """Opens the page anew; what it complains of or asks for fails the test."""

    langue = "fr"

    def setUp(self):
        self.ouvrir()

    def ouvrir(self, ancre=""):
        navigateur.milieu()
        navigateur.ouvrir(options.page, ancre)
        self.attendre("document.body.dataset.pret !== undefined || document.querySelector('.app-alerte') !== null")
        if navigateur.evaluer("document.documentElement.lang") != self.langue:
            navigateur.cliquer(f"[data-app-langue={self.langue}]")
            self.attendre(f"document.documentElement.lang === '{self.langue}'")

    def tearDown(self):
        self.assertEqual(navigateur.console, [])
        demandes = {u.split("#")[0] for u in navigateur.requetes if not u.startswith(("data:", "blob:"))}
        self.assertEqual(demandes, {pathlib.Path(options.page).resolve().as_uri()})

    def attendre(self, condition):
        """Waits until a JavaScript condition holds; the browser gives up by itself when nothing comes."""
        navigateur.evaluer(f"new Promise((r) => {{ const f = () => ({condition}) ? r() : setTimeout(f, 15); f(); }})")
        navigateur.dessine()

    def attendre_rapport(self, avant=None):
        self.attendre("location.hash === '#rapport' && document.querySelector('#app-travail').hidden "
                      "&& document.querySelector('#resume') !== null"
                      + (f" && document.querySelector('#resume') !== {avant}" if avant else ""))

    def choisir(self, *fichiers, selecteur="#app-fichiers"):
        """Chooses files as the browser's own dialog would."""
        racine = navigateur.demander("DOM.getDocument", depth=1)["root"]["nodeId"]
        noeud = navigateur.demander("DOM.querySelector", nodeId=racine, selector=selecteur)["nodeId"]
        navigateur.demander("DOM.setFileInputFiles", nodeId=noeud, files=[str(f) for f in fichiers])
        self.attendre_rapport()

    def deposer(self, *fichiers):
        """A real drop in the middle of the page."""
        donnees = {"items": [], "files": [str(f) for f in fichiers], "dragOperationsMask": 1}
        for evenement in ("dragEnter", "dragOver", "drop"):
            navigateur.demander("Input.dispatchDragEvent", type=evenement, x=500, y=400, data=donnees)
        self.attendre_rapport()

    def recevoir(self, selecteur):
        """Clicks and returns name and bytes of the file that the browser saves."""
        with tempfile.TemporaryDirectory(dir=dossier) as d:
            navigateur.demander("Page.setDownloadBehavior", behavior="allow", downloadPath=d)
            navigateur.cliquer(selecteur)
            fin = time.monotonic() + 60
            while time.monotonic() < fin:
                prets = [f for f in pathlib.Path(d).iterdir() if f.suffix != ".crdownload" and not f.name.startswith(".")]
                if prets:
                    return prets[0].name, prets[0].read_bytes()
                time.sleep(0.05)
        raise AssertionError(f"{selecteur}: nothing is saved")

    def fichier(self, nom, octets):
        chemin = dossier / nom
        chemin.write_bytes(octets)
        return chemin

    def foyer(self):
        return navigateur.evaluer("document.activeElement.id || document.activeElement.className || document.activeElement.tagName")

    def tabuler(self, selecteur, au_plus=80):
        """Presses Tab until an element has the focus."""
        for _ in range(au_plus):
            navigateur.touche("Tab")
            if navigateur.evaluer(f"document.activeElement.matches({json.dumps(selecteur)})"):
                return
        self.fail(f"{selecteur} is not reached by the keyboard; the focus is on {self.foyer()}")

    def photo(self, nom, entiere=False):
        if options.photos:
            navigateur.photographier(pathlib.Path(options.photos) / f"{nom}.png", entiere)


class Verifier(Page):
    def test_deposer(self):
        self.deposer(EXEMPLES / "nais_rejete.vse")
        self.assertEqual(navigateur.textes("#resume h1"), ["2 enregistrements à corriger"])
        self.assertIn("nais_rejete.vse", navigateur.texte("#resume"))

    def test_deposer_accepte(self):
        self.deposer(EXEMPLES / "nais_accepte.vse")
        self.assertEqual(navigateur.textes("#resume h1"), ["Ce fichier serait accepté"])
        self.assertEqual(navigateur.compter("tr.constat"), 0)

    def test_choisir_plusieurs(self):
        self.choisir(EXEMPLES / "nais_accepte.vse", EXEMPLES / "nais_rejete.vse", EXEMPLES / "abat_rejete.vse")
        self.assertEqual(navigateur.textes("#resume h1"), ["2 fichiers sur 3 demandent une correction"])
        self.assertEqual(navigateur.compter("table.fichiers tbody tr"), 3)

    def test_un_fichier_chasse_l_autre(self):
        """Files that come while others are being checked take their place."""
        lignes = (EXEMPLES / "nais_rejete.vse").read_bytes().splitlines(keepends=True)
        racine = navigateur.demander("DOM.getDocument", depth=1)["root"]["nodeId"]
        noeud = navigateur.demander("DOM.querySelector", nodeId=racine, selector="#app-fichiers")["nodeId"]
        for fichier in (self.fichier("long.vse", lignes[0] + lignes[1] * 9000), EXEMPLES / "nais_accepte.vse"):
            navigateur.demander("DOM.setFileInputFiles", nodeId=noeud, files=[str(fichier)])
        self.attendre_rapport()
        self.assertEqual(navigateur.textes("#resume h1"), ["Ce fichier serait accepté"])

    def test_retour_en_arriere(self):
        """The browser's way back leads from the start to the report."""
        self.choisir(EXEMPLES / "nais_rejete.vse")
        navigateur.cliquer("#app-autres")
        self.attendre("!document.querySelector('#app-accueil').hidden")
        navigateur.evaluer("history.back()")
        self.attendre("!document.querySelector('#vue').hidden")
        self.assertEqual(navigateur.textes("#resume h1"), ["2 enregistrements à corriger"])

    def test_filtrer(self):
        self.choisir(EXEMPLES / "nais_rejete.vse")
        avant = navigateur.compter("tr.constat")
        navigateur.cliquer("#filtre")
        navigateur.ecrire("sexe")
        self.assertEqual(navigateur.compter("tr.constat"), 1)
        self.assertGreater(avant, 1)

    def test_langue(self):
        self.choisir(EXEMPLES / "nais_rejete.vse")
        francais = navigateur.texte("tr.constat .message")
        navigateur.cliquer("[data-app-langue=en]")
        self.attendre("document.querySelector('#resume h1')?.innerText === '2 records to mend'")
        self.assertNotEqual(navigateur.texte("tr.constat .message"), francais)
        self.assertIn("Check other files", navigateur.texte("#app-outils"))

    def test_essais(self):
        for bouton, titre in (("correct", "Ce fichier serait accepté"), ("errone", "1 enregistrement à corriger")):
            navigateur.cliquer(f"#app-exemple-{bouton}")
            self.attendre_rapport()
            self.assertEqual(navigateur.textes("#resume h1"), [titre])
            navigateur.cliquer("#app-autres")
            self.attendre("!document.querySelector('#app-accueil').hidden")
            navigateur.evaluer("document.querySelector('#resume').remove()")

    def test_dix_mille(self):
        """Ten thousand refused records: all told, the page answering while they come."""
        lignes = (EXEMPLES / "nais_rejete.vse").read_bytes().splitlines(keepends=True)
        chemin = self.fichier("dixmille.vse", lignes[0] + lignes[1] * 10000)
        navigateur.evaluer("""(() => { const taches = (globalThis.taches = []);
            new PerformanceObserver((l) => l.getEntries().forEach((e) => taches.push(e.duration))).observe({ type: "longtask" }); })()""")
        self.choisir(chemin)
        self.assertIn("10 00", re.sub(r"\s", " ", navigateur.texte("#resume h1")))
        mesure = navigateur.evaluer("performance.getEntriesByName('quilvane:jusquAuRapport').at(-1).duration")
        natifs = []
        for mise_en_forme in ("html", "json"):
            debut = time.monotonic()
            guide([chemin], "fr", mise_en_forme)
            natifs.append(f"{mise_en_forme} {1000 * (time.monotonic() - debut):.0f} ms")
        taches = navigateur.evaluer("new Promise((r) => setTimeout(() => r(globalThis.taches), 100))")
        print(f"\n10,000 refused records: {mesure:.0f} ms from drop to report, native guide {', '.join(natifs)}; "
              f"longest task of the page {max(taches, default=0):.0f} ms")

    def test_cent_mega(self):
        """A hundred megabytes of anything: an answer, and the page still works."""
        for nom, bloc in (("sans_fin.bin", b"A" * (1 << 20)), ("octets.bin", random.Random(1).randbytes(1 << 20))):
            with open(dossier / nom, "wb") as f:
                for _ in range(100):
                    f.write(bloc)
            self.choisir(dossier / nom)
            natif = json.loads(guide([dossier / nom], "fr", "json"))["fichiers"][0]
            self.assertIn(natif["resultat"]["phrase"], navigateur.texte("#resume"))
            (dossier / nom).unlink()
            navigateur.cliquer("#app-autres")
            navigateur.evaluer("document.querySelector('#resume').remove()")

    def test_clavier(self):
        self.tabuler("#app-exemple-errone")
        navigateur.touche("Enter")
        self.attendre_rapport()
        self.assertEqual(self.foyer(), "resume")
        self.tabuler("#filtre")
        self.tabuler(".app-corriger")
        navigateur.touche("Enter")
        self.attendre("document.querySelector('dialog[open] .app-faux') !== null")
        self.tabuler("dialog .app-faux input")
        navigateur.touche("Escape")
        self.attendre("document.querySelector('dialog[open]') === null")
        self.assertTrue(navigateur.evaluer("document.activeElement.matches('.app-corriger')"))


class Enregistrer(Page):
    def test_rapports(self):
        """The saved reports are the native guide's, byte for byte."""
        fichiers = [EXEMPLES / f"{nom}.vse" for nom in ("nais_rejete", "abat_rejete", "sort_accepte")]
        self.choisir(*fichiers)
        for mise_en_forme in ("json", "csv", "html"):
            nom, octets = self.recevoir(f"#app-{mise_en_forme}")
            self.assertEqual(nom, f"quilvane.{mise_en_forme}")
            self.assertEqual(octets, guide(fichiers, "fr", mise_en_forme))

    def test_resultats(self):
        for exemple, nom in (("nais_accepte", "nais_accepte.accepte.vse"), ("nais_rejete", "nais_rejete.erreurs.vse")):
            self.choisir(EXEMPLES / f"{exemple}.vse")
            recu = self.recevoir(".app-resultat")
            statut, natif = quilvane((EXEMPLES / f"{exemple}.vse").read_bytes())
            self.assertEqual(recu[0], nom)
            self.assertIn(statut, (0, 2))
            self.assertEqual(sans_heure(recu[1]), sans_heure(natif))
            if statut == 0:
                self.assertEqual(recu[1], natif)
            navigateur.cliquer("#app-autres")
            navigateur.evaluer("document.querySelector('#resume').remove()")


class Module(Page):
    PUBLIER = """(async (nom, base64) => {
        const octets = Uint8Array.from(atob(base64), (c) => c.charCodeAt(0));
        const { statut, sortie } = await Quilvane.moteur.publier({ nom, blob: new Blob([octets]) });
        return [statut, btoa(Array.from(new Uint8Array(await sortie.arrayBuffer()), (o) => String.fromCharCode(o)).join(""))]; })"""

    def test_comme_le_programme(self):
        """Statuses and published bytes of the module and of the native program: no difference."""
        for nom, octets in entrees().items():
            with self.subTest(nom):
                natif = quilvane(octets)
                statut, sortie = navigateur.evaluer(f"{self.PUBLIER}({json.dumps(nom)}, {json.dumps(base64.b64encode(octets).decode())})")
                self.assertEqual(statut, natif[0])
                self.assertEqual(sans_heure(base64.b64decode(sortie)), sans_heure(natif[1]))

    def test_comme_le_guide(self):
        """The report on all inputs at once is the guide's, byte for byte."""
        fichiers = [self.fichier(nom, octets) for nom, octets in entrees().items() if len(octets) < 100000]
        self.choisir(*fichiers)
        for langue in ("fr", "en"):
            navigateur.cliquer(f"[data-app-langue={langue}]")
            self.attendre(f"document.documentElement.lang === '{langue}'")
            self.attendre("document.querySelector('#app-travail').hidden")
            self.assertEqual(self.recevoir("#app-json")[1], guide(fichiers, langue, "json"))


    def test_illisible(self):
        """A file that can no longer be read ends as one does natively, and the next one is served."""
        publier = "Quilvane.moteur.publier({ nom: 'x', blob: %s }).then((r) => r.statut)"
        self.assertEqual(navigateur.evaluer(publier % "{ size: 10 }"), 1)
        texte = json.dumps((EXEMPLES / "nais_accepte.vse").read_text())
        self.assertEqual(navigateur.evaluer(publier % f"new Blob([{texte}])"), 0)


class Catalogue(Page):
    def test_chercher(self):
        navigateur.cliquer('a[href="#catalogue"]')
        self.attendre("!document.querySelector('#app-catalogue').hidden")
        tous = navigateur.compter(".app-entrees a")
        navigateur.cliquer("#app-recherche")
        navigateur.ecrire("corse")
        self.assertLess(navigateur.compter(".app-entrees a"), tous / 10)
        navigateur.cliquer(".app-entrees a")
        self.attendre("location.hash.startsWith('#erreur-')")
        self.assertIn("Numéro", navigateur.texte("#app-fiche h2"))
        navigateur.evaluer("document.querySelector('#app-recherche').select()")
        navigateur.ecrire("motquinexistepas")
        self.assertEqual(navigateur.texte("#app-compte"), "Aucune fiche ne correspond")

    def test_adresses(self):
        for ancre, titre in (("#erreur-68", "Numéro 68"), ("#NAIS-C17", "NAIS"), ("#liste-TD", "TD"), ("#fatal-IG008", "IG008")):
            with self.subTest(ancre):
                self.ouvrir(ancre)
                self.attendre("!document.querySelector('#app-catalogue').hidden")
                self.assertTrue(navigateur.texte("#app-fiche h2").startswith(titre))
        self.assertEqual(navigateur.compter("#app-fiche tr.vise"), 0)
        self.ouvrir("#NAIS-C17")
        self.attendre("document.querySelector('#app-fiche tr.vise') !== null")
        self.ouvrir("#n-importe-quoi")
        self.assertFalse(navigateur.evaluer("document.querySelector('#app-accueil').hidden"))

    def test_suivre_des_liens(self):
        """From entry to entry and back, and between report and catalogue."""
        self.ouvrir("#NAIS")
        self.attendre("!document.querySelector('#app-catalogue').hidden")
        navigateur.cliquer('#app-fiche a[href^="#erreur-"]')
        self.attendre("document.querySelector('#app-fiche h2').innerText.startsWith('Numéro')")
        navigateur.evaluer("history.back()")
        self.attendre("document.querySelector('#app-fiche h2').innerText.startsWith('NAIS')")
        navigateur.cliquer(".app-verifier-exemple")
        self.attendre_rapport()
        self.assertEqual(navigateur.textes("#resume h1"), ["Ce fichier serait accepté"])
        navigateur.cliquer('header a[href="#catalogue"]')
        self.attendre("!document.querySelector('#app-catalogue').hidden")
        navigateur.cliquer('header a[href="#verifier"]')
        self.attendre("!document.querySelector('#vue').hidden")

    def test_exemples(self):
        """Every example of the catalogue would be accepted."""
        statuts = navigateur.evaluer("""(async () => { const r = [];
            for (const e of (await Quilvane.moteur.catalogue("fr")).exemples)
                r.push([e.type, e.genre, (await Quilvane.moteur.publier({ nom: "e", blob: new Blob([e.texte]) })).statut]);
            return r; })()""")
        self.assertGreater(len(statuts), 50)
        self.assertEqual([s for s in statuts if s[2] != 0], [])


class Corriger(Page):
    def ecrire_champ(self, champ, valeur):
        navigateur.cliquer(f'[data-champ="{champ}"] input')
        navigateur.evaluer(f"document.querySelector('[data-champ=\"{champ}\"] input').select()")
        navigateur.ecrire(valeur)

    def champs_faux(self):
        """The fields marked as wrong, with their columns."""
        return [(champ, *(int(n) for n in re.search(r"· (\d+)(?:–(\d+))? ·", detail).groups(re.search(r"· (\d+)", detail)[1])))
                for champ, detail in navigateur.evaluer(
                    "[...document.querySelectorAll('dialog .app-faux')].map((e) => [e.dataset.champ, e.querySelector('.detail').innerText])")]

    def test_corriger_et_verifier(self):
        source = self.fichier("lot.vse", (EXEMPLES / "nais_rejete.vse").read_bytes())
        avant = source.read_bytes()
        bonne = (EXEMPLES / "nais_accepte.vse").read_bytes().splitlines()[1]
        self.choisir(source)
        for _ in range(2):
            navigateur.cliquer(".app-corriger")
            self.attendre("document.querySelector('dialog[open] .app-faux') !== null")
            self.assertIn("reste", navigateur.texte(".app-etat"))
            for _ in range(5):  # what is put right may uncover what follows from it
                for champ, a, b in self.champs_faux():
                    self.ecrire_champ(champ, bonne[a - 1:b].decode().rstrip())
                time.sleep(0.3)
            self.attendre("document.querySelector('.app-etat').classList.contains('app-bon')")
            self.assertGreater(navigateur.compter("dialog .app-verdict .app-bon"), 0)
            navigateur.cliquer(".app-garder")
            navigateur.evaluer("document.querySelector('.voisins a:last-child')?.click()")
            navigateur.dessine()
        self.assertIn("2 enregistrements corrigés", navigateur.texte("#app-outils"))
        navigateur.cliquer("#app-verifier-corrige")
        self.attendre("document.querySelector('#resume h1')?.innerText === 'Ce fichier serait accepté'")
        nom, octets = self.recevoir("#app-enregistrer-corrige")
        self.assertEqual(nom, "lot.corrige.vse")
        self.assertEqual(quilvane(octets)[0], 0)
        self.assertEqual(source.read_bytes(), avant)

    def test_compte_du_fich(self):
        """A wrong count is put right in the corrected file, which keeps its line ends."""
        lignes = (EXEMPLES / "nais_accepte.vse").read_bytes().splitlines()
        faux = lignes[1][:62] + b"ZZ" + lignes[1][64:]
        self.choisir(self.fichier("compte.vse", b"".join(x + b"\r\n" for x in [lignes[0], faux, lignes[1]])))
        navigateur.evaluer("document.querySelector('tr.constat[data-ligne=\"2\"] a').click()")
        navigateur.cliquer(".app-corriger")
        self.attendre("document.querySelector('dialog[open] .app-faux') !== null")
        self.ecrire_champ("C1", "FR")
        self.attendre("document.querySelector('.app-etat').classList.contains('app-bon')")
        navigateur.cliquer(".app-garder")
        navigateur.cliquer("#app-verifier-corrige")
        self.attendre("document.querySelector('#app-enregistrer-corrige') !== null")
        octets = self.recevoir("#app-enregistrer-corrige")[1]
        self.assertEqual(octets.count(b"\r\n"), 3)
        self.assertEqual(octets.splitlines()[1:], [lignes[1], lignes[1]])
        self.assertEqual(quilvane(octets)[0], 0)

    def test_verdict_et_abandon(self):
        self.choisir(EXEMPLES / "nais_rejete.vse")
        navigateur.cliquer(".app-corriger")
        self.attendre("document.querySelector('dialog[open] .app-faux') !== null")
        champ = navigateur.evaluer("document.querySelector('dialog .app-faux').dataset.champ")
        self.assertEqual(navigateur.evaluer(f"document.querySelector('[data-champ=\"{champ}\"] input').getAttribute('aria-invalid')"), "true")
        navigateur.cliquer(".app-annuler")
        self.attendre("document.querySelector('dialog[open]') === null")
        self.assertEqual(navigateur.compter("#app-verifier-corrige"), 0)


class Retour(Page):
    def setUp(self):
        super().setUp()
        self.source = self.fichier("envoi.vse", (EXEMPLES / "nais_rejete.vse").read_bytes())
        self.erreurs = self.fichier("revenu.vse", quilvane(self.source.read_bytes())[1])

    def test_ensemble(self):
        self.deposer(self.erreurs, self.source)
        self.assertIn("revenu.vse répond à envoi.vse", navigateur.texte(".app-retour"))
        self.assertEqual(navigateur.textes("#resume h1"), ["2 enregistrements à corriger"])
        self.assertIn("envoi.vse", navigateur.texte("#resume"))
        self.assertGreater(navigateur.compter("tr.constat"), 1)

    def test_seul_puis_origine(self):
        self.choisir(self.erreurs)
        self.assertIn("a la forme d’un fichier d’erreurs", navigateur.texte(".app-retour"))
        self.choisir(EXEMPLES / "abat_rejete.vse", selecteur="#app-origine")
        self.attendre("document.querySelector('.app-retour .app-alerte') !== null")
        self.choisir(self.source, selecteur="#app-origine")
        self.attendre("document.querySelector('.app-retour')?.innerText.includes('répond à envoi.vse')")

    def test_autre(self):
        self.choisir(self.erreurs, EXEMPLES / "abat_rejete.vse")
        self.assertIn("Donnez le fichier auquel il répond", navigateur.texte(".app-retour"))
        self.assertEqual(navigateur.compter("table.fichiers tbody tr"), 2)


class Vues(Page):
    def test_vues(self):
        """Nothing is wider than the screen; what people see is kept when asked for."""
        def vue(nom, preparer):
            for ecran, reglages in (("clair", {}), ("sombre", {"sombre": True}), ("etroit", {"largeur": 390}), ("papier", {"imprime": True})):
                self.ouvrir()
                navigateur.milieu(**reglages)
                preparer()
                self.assertEqual(navigateur.evaluer("document.documentElement.scrollWidth > innerWidth"), False, f"{nom} {ecran}")
                self.photo(f"page-{nom}-{ecran}", entiere=ecran != "papier")

        vue("accueil", lambda: None)
        vue("rapport", lambda: self.choisir(EXEMPLES / "nais_rejete.vse"))

        def catalogue():
            navigateur.evaluer("location.hash = '#erreur-68'")
            self.attendre("!document.querySelector('#app-catalogue').hidden")
        vue("catalogue", catalogue)

        def correction():
            self.choisir(EXEMPLES / "nais_rejete.vse")
            navigateur.evaluer("document.querySelector('.app-corriger').click()")
            self.attendre("document.querySelector('dialog[open] .app-faux') !== null")
        vue("correction", correction)

    def test_sans_stockage(self):
        self.choisir(EXEMPLES / "nais_rejete.vse")
        self.assertEqual(navigateur.evaluer("document.cookie + (() => { try { return localStorage.length + sessionStorage.length; } catch { return 0; } })()"), "0")

    def test_politique(self):
        """What comes from elsewhere is refused."""
        refus = navigateur.evaluer("fetch('https://exemple.invalid/').then(() => 'sent', () => 'refused')")
        self.assertEqual(refus, "refused")
        self.assertTrue(any("Content Security Policy" in c for c in navigateur.console))
        navigateur.console.clear()
        navigateur.requetes[:] = [u for u in navigateur.requetes if "exemple.invalid" not in u]


if __name__ == "__main__":
    analyse = argparse.ArgumentParser(add_help=False)
    analyse.add_argument("--page", type=pathlib.Path, default=options.page)
    analyse.add_argument("--programmes", type=pathlib.Path, default=options.programmes)
    analyse.add_argument("--photos", type=pathlib.Path)
    choisies, reste = analyse.parse_known_args()
    options.__dict__.update(vars(choisies))
    options.programmes = options.programmes.resolve()
    if manquant():
        print(f"skipped: {manquant()}")
        sys.exit(SAUTE)
    unittest.main(argv=[sys.argv[0], *reste])
