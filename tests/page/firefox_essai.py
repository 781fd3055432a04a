#!/usr/bin/env python3
"""The browser page in Debian's Firefox, on demand: files are chosen, checked and published as in Chromium.

    tests/page/firefox_essai.py [--page PAGE] [--programmes FOLDER]

Drives Firefox by its Marionette protocol (length, colon, JSON) with Python's
standard library alone. The profile is a scratch folder that is removed.
"""
import argparse
import base64
import json
import os
import pathlib
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time

RACINE = pathlib.Path(__file__).resolve().parent.parent.parent
sys.path[:0] = [str(RACINE / "tests" / "page")]
sys.dont_write_bytecode = True

import page_essai  # noqa: E402

ATTENTE = 60  # seconds after which a step has failed
ATTENDRE = """const [condition, fini] = arguments;
    const f = () => (new Function(`return ${condition}`)() ? fini(true) : setTimeout(f, 20)); f();"""
PUBLIER = """const [nom, base64, fini] = arguments;
    const octets = Uint8Array.from(atob(base64), (c) => c.charCodeAt(0));
    const moteur = window.wrappedJSObject ? window.wrappedJSObject.Quilvane.moteur : Quilvane.moteur;
    moteur.publier({ nom, blob: new Blob([octets]) }).then(async ({ statut, sortie }) =>
        fini([statut, btoa(Array.from(new Uint8Array(await sortie.arrayBuffer()), (o) => String.fromCharCode(o)).join(""))]));"""


class Firefox:
    def __enter__(self):
        self.profil = tempfile.mkdtemp(prefix="quilvane-firefox-")
        with socket.socket() as libre:
            libre.bind(("127.0.0.1", 0))
            port = libre.getsockname()[1]
        (pathlib.Path(self.profil) / "user.js").write_text(f'user_pref("marionette.port", {port});\n')
        self.programme = subprocess.Popen(["firefox-esr", "--headless", "--marionette", "--no-remote", "--profile", self.profil, "about:blank"],
                                          stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True,
                                          env={**os.environ, "HOME": self.profil})
        fin = time.monotonic() + ATTENTE
        while True:
            try:
                self.prise = socket.create_connection(("127.0.0.1", port), ATTENTE)
                break
            except OSError:
                if time.monotonic() > fin:
                    self.__exit__()
                    raise
                time.sleep(0.2)
        self.tampon = b""
        self.compteur = 0
        self.recevoir()
        self.demander("WebDriver:NewSession", {})
        self.demander("WebDriver:SetTimeouts", {"script": ATTENTE * 1000})
        return self

    def __exit__(self, *_):
        try:
            os.killpg(self.programme.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        self.programme.wait()
        shutil.rmtree(self.profil, ignore_errors=True)

    def recevoir(self):
        while b":" not in self.tampon:
            self.tampon += self.prise.recv(1 << 16)
        longueur, self.tampon = self.tampon.split(b":", 1)
        while len(self.tampon) < int(longueur):
            self.tampon += self.prise.recv(1 << 16)
        message, self.tampon = self.tampon[:int(longueur)], self.tampon[int(longueur):]
        return json.loads(message)

    def demander(self, commande, parametres):
        self.compteur += 1
        message = json.dumps([0, self.compteur, commande, parametres]).encode()
        self.prise.sendall(str(len(message)).encode() + b":" + message)
        _, _, faute, resultat = self.recevoir()
        if faute:
            raise RuntimeError(f"{commande}: {faute['message']}")
        return resultat

    def executer(self, script, *arguments):
        return self.demander("WebDriver:ExecuteAsyncScript", {"script": script, "args": list(arguments)})["value"]

    def attendre(self, condition):
        self.executer(ATTENDRE, condition)

    def evaluer(self, expression):
        return self.demander("WebDriver:ExecuteScript", {"script": f"return {expression}", "args": []})["value"]

    def element(self, selecteur):
        valeur = self.demander("WebDriver:FindElement", {"using": "css selector", "value": selecteur})["value"]
        return next(iter(valeur.values()))


def verifier(condition, quoi):
    print(f"{'ok' if condition else 'FAILED'}: {quoi}")
    return 0 if condition else 1


def main():
    options = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    options.add_argument("--page", type=pathlib.Path, default=RACINE / "build/page/quilvane.html")
    options.add_argument("--programmes", type=pathlib.Path, default=RACINE / "build/release")
    choix = options.parse_args()
    page_essai.options.programmes = choix.programmes.resolve()
    fautes = 0
    with tempfile.TemporaryDirectory(prefix="quilvane-page-") as d, Firefox() as f:
        page_essai.dossier = pathlib.Path(d)
        f.demander("WebDriver:Navigate", {"url": choix.page.resolve().as_uri()})
        f.attendre("document.body.dataset.pret !== undefined || document.querySelector('.app-alerte') !== null")
        fautes += verifier(f.evaluer("document.querySelector('.app-alerte') === null"), "the page gets ready from file://")
        f.demander("WebDriver:ElementSendKeys", {"id": f.element("#app-fichiers"), "text": str(RACINE / "exemples/nais_rejete.vse")})
        f.attendre("location.hash === '#rapport' && document.querySelector('#resume h1') !== null")
        fautes += verifier(f.evaluer("document.querySelectorAll('tr.constat').length") == 3, "a chosen file is reported")
        f.executer("const [fini] = arguments; document.querySelector('.app-corriger').click(); fini();")
        f.attendre("document.querySelector('dialog[open] .app-faux') !== null")
        fautes += verifier(f.evaluer("document.querySelectorAll('dialog .app-faux').length") == 2, "a record can be corrected")
        differents = 0
        for nom, octets in page_essai.entrees().items():
            statut, sortie = f.executer(PUBLIER, nom, base64.b64encode(octets).decode())
            natif = page_essai.quilvane(octets)
            if (statut, page_essai.sans_heure(base64.b64decode(sortie))) != (natif[0], page_essai.sans_heure(natif[1])):
                print(f"    {nom}: differs")
                differents += 1
        fautes += verifier(differents == 0, f"{len(page_essai.entrees())} inputs: status and published bytes of the native program")
    return 1 if fautes else 0


if __name__ == "__main__":
    sys.exit(main())
