#!/usr/bin/env python3
"""Every view of the browser page under axe-core, light and dark.

    tests/page/axe_essai.py AXE.MIN.JS [PAGE]

scripts/accessibilite.sh fetches axe-core and runs this.
"""
import json
import pathlib
import sys

RACINE = pathlib.Path(__file__).resolve().parent.parent.parent
sys.path[:0] = [str(RACINE / "tests" / "page")]
sys.dont_write_bytecode = True

from chromium import Chromium  # noqa: E402

VUES = {
    "accueil": ("", None),
    "rapport": ("#app-exemple-errone", "location.hash === '#rapport' && document.querySelector('#resume')"),
    "correction": (".app-corriger", "document.querySelector('dialog[open] .app-faux')"),
    "catalogue": ('dialog .app-annuler, a[href="#catalogue"]', None),
}


def attendre(navigateur, condition):
    navigateur.evaluer(f"new Promise((r) => {{ const f = () => ({condition}) ? r() : setTimeout(f, 20); f(); }})")


def examiner(navigateur, axe, nom):
    """The violations of what is shown."""
    navigateur.evaluer(axe + ";0")
    fautes = navigateur.evaluer("axe.run(document, { resultTypes: ['violations'] }).then((r) => r.violations.map((v) => "
                                "[v.id, v.help, v.nodes.slice(0, 5).map((n) => n.html.slice(0, 160) + ' | ' + (n.any[0] || n.all[0] || n.none[0] || {}).message)]))")
    for regle, aide, lieux in fautes:
        print(f"{nom}: {regle}: {aide}")
        for lieu in lieux:
            print(f"    {lieu}")
    return len(fautes)


def main():
    axe = pathlib.Path(sys.argv[1]).read_text(encoding="utf-8")
    page = sys.argv[2] if len(sys.argv) > 2 else RACINE / "build/page/quilvane.html"
    fautes = 0
    with Chromium() as navigateur:
        for sombre in (False, True):
            navigateur.milieu(sombre=sombre)
            navigateur.ouvrir(page)
            attendre(navigateur, "document.body.dataset.pret !== undefined")
            for nom, (bouton, condition) in VUES.items():
                if bouton:
                    navigateur.evaluer(f"document.querySelectorAll({json.dumps(bouton)}).forEach((b) => b.click())")
                attendre(navigateur, condition or "true")
                if nom == "catalogue":
                    navigateur.evaluer("location.hash = '#NAIS-C17'")
                    attendre(navigateur, "document.querySelector('#app-fiche tr.vise')")
                navigateur.dessine()
                fautes += examiner(navigateur, axe, f"{nom}, {'dark' if sombre else 'light'}")
    print(f"{2 * len(VUES)} views, {fautes} violations")
    return 1 if fautes else 0


if __name__ == "__main__":
    sys.exit(main())
