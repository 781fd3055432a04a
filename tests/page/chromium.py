"""Drives Debian's Chromium over its DevTools pipe, with Python's standard library alone.

    with Chromium() as navigateur:
        navigateur.ouvrir(chemin)
        navigateur.evaluer("document.title")

Each browser has a profile of its own in a scratch folder that is removed with
it. Console messages, exceptions and requests are kept for the test to look at.
"""
import base64
import json
import os
import pathlib
import select
import shutil
import signal
import subprocess
import tempfile
import time

ATTENTE = 60  # seconds without a sign of life after which a test gives up
TOUCHES = {
    "Enter": (13, "\r"),
    "Tab": (9, ""),
    "Escape": (27, ""),
    "Home": (36, ""),
    "End": (35, ""),
    "ArrowUp": (38, ""),
    "ArrowDown": (40, ""),
    " ": (32, " "),
}


def manquant():
    """Why no browser can be driven here, or None."""
    return None if shutil.which("chromium") else "chromium is not installed (Debian package chromium)"


class Chromium:
    def __init__(self, largeur=1440, hauteur=900):
        self.dossier = tempfile.mkdtemp(prefix="quilvane-page-")
        self.taille = (largeur, hauteur)

    def __enter__(self):
        # The browser reads commands from its descriptor 3 and answers on 4.
        lit, self.vers = os.pipe()
        self.de, ecrit = os.pipe()
        options = [
            "--headless",
            *(["--no-sandbox"] if os.geteuid() == 0 else []),
            "--disable-gpu",
            "--disable-quic",
            "--no-first-run",
            "--disable-background-networking",
            "--disable-component-update",
            "--disable-sync",
            "--disable-extensions",
            "--disable-dev-shm-usage",
            "--hide-scrollbars",
            "--remote-debugging-pipe",
            f"--user-data-dir={self.dossier}",
            f"--window-size={self.taille[0]},{self.taille[1]}",
            "about:blank",
        ]
        self.programme = subprocess.Popen(
            ["sh", "-c", 'exec chromium "$@" 3<&0 4>&1 </dev/null >/dev/null', "sh", *options],
            start_new_session=True,
            stdin=lit,
            stdout=ecrit,
            stderr=subprocess.DEVNULL,
            env={**os.environ, "HOME": self.dossier},
        )
        os.close(lit)
        os.close(ecrit)
        self.tampon = b""
        self.compteur = 0
        self.onglet = None
        self.console, self.requetes, self.charges = [], [], 0
        try:
            cible = self.demander("Target.createTarget", url="about:blank")["targetId"]
            self.onglet = self.demander("Target.attachToTarget", targetId=cible, flatten=True)["sessionId"]
            for domaine in ("Page", "Runtime", "Network", "Log"):
                self.demander(f"{domaine}.enable")
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for d in (self.vers, self.de):
            os.close(d)
        try:
            self.programme.wait(5)
        except subprocess.TimeoutExpired:
            pass
        # What the browser started belongs to its process group and goes with it.
        try:
            os.killpg(self.programme.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        self.programme.wait()
        shutil.rmtree(self.dossier, ignore_errors=True)

    # ------------------------------------------------------------- protocol

    def demander(self, methode, **parametres):
        """Sends a command and returns its result."""
        self.compteur += 1
        message = {"id": self.compteur, "method": methode, "params": parametres}
        if self.onglet:
            message["sessionId"] = self.onglet
        donnees = json.dumps(message).encode() + b"\0"
        while donnees:
            donnees = donnees[os.write(self.vers, donnees) :]
        while True:
            reponse = self.recevoir()
            if reponse.get("id") == self.compteur:
                if "error" in reponse:
                    raise RuntimeError(f"{methode}: {reponse['error']['message']}")
                return reponse["result"]

    def recevoir(self):
        """The next message of the browser; events are kept as they come."""
        while b"\0" not in self.tampon:
            if not select.select([self.de], [], [], ATTENTE)[0]:
                raise RuntimeError(f"the browser says nothing for {ATTENTE} s")
            morceau = os.read(self.de, 1 << 20)
            if not morceau:
                raise RuntimeError("the browser has ended")
            self.tampon += morceau
        brut, self.tampon = self.tampon.split(b"\0", 1)
        message = json.loads(brut)
        methode, p = message.get("method"), message.get("params", {})
        if methode == "Runtime.exceptionThrown":
            d = p["exceptionDetails"]
            self.console.append(d.get("exception", {}).get("description", d["text"]))
        elif methode == "Runtime.consoleAPICalled" and p["type"] in ("error", "warning", "assert"):
            self.console.append(" ".join(str(a.get("value", a.get("description"))) for a in p["args"]))
        elif methode == "Log.entryAdded" and p["entry"]["level"] in ("error", "warning"):
            self.console.append(p["entry"]["text"])
        elif methode == "Network.requestWillBeSent":
            self.requetes.append(p["request"]["url"])
        elif methode == "Page.loadEventFired":
            self.charges += 1
        return message

    # ------------------------------------------------------------ the page

    def ouvrir(self, chemin, ancre=""):
        """Opens a file and waits until it is loaded and drawn; forgets what earlier pages said."""
        self.demander("Page.navigate", url="about:blank")
        self.console.clear()
        self.requetes.clear()
        avant = self.charges
        self.demander("Page.navigate", url=pathlib.Path(chemin).resolve().as_uri() + ancre)
        fin = time.monotonic() + ATTENTE
        while (
            self.charges == avant
            or self.evaluer("location.protocol + document.readyState") != "file:complete"
        ):
            if time.monotonic() > fin:
                raise RuntimeError(f"{chemin} does not load")
            if self.charges == avant:
                self.recevoir()
        self.dessine()

    def dessine(self):
        """Waits for the next drawn frame."""
        self.evaluer("new Promise((r) => requestAnimationFrame(() => setTimeout(r)))")

    def evaluer(self, expression):
        """The value of a JavaScript expression; a promise is waited for."""
        r = self.demander("Runtime.evaluate", expression=expression, returnByValue=True, awaitPromise=True)
        if "exceptionDetails" in r:
            d = r["exceptionDetails"]
            raise RuntimeError(d.get("exception", {}).get("description", d["text"]))
        return r["result"].get("value")

    def textes(self, selecteur):
        """The shown text of every element that a selector finds."""
        return self.evaluer(
            f"[...document.querySelectorAll({json.dumps(selecteur)})].map((e) => e.innerText)"
        )

    def texte(self, selecteur):
        return self.evaluer(f"document.querySelector({json.dumps(selecteur)}).innerText")

    def compter(self, selecteur):
        return self.evaluer(f"document.querySelectorAll({json.dumps(selecteur)}).length")

    def cliquer(self, selecteur):
        """A real click in the middle of an element."""
        x, y = self.evaluer(
            f"""(() => {{ const e = document.querySelector({json.dumps(selecteur)});
            e.scrollIntoView({{block: "center"}}); const r = e.getClientRects()[0]; return [r.x + r.width / 2, r.y + r.height / 2]; }})()"""
        )
        for evenement in ("mousePressed", "mouseReleased"):
            self.demander("Input.dispatchMouseEvent", type=evenement, x=x, y=y, button="left", clickCount=1)
        self.dessine()

    def touche(self, nom, majuscule=False):
        """A key of TOUCHES, pressed and let go."""
        code, texte = TOUCHES[nom]
        commun = {
            "key": nom,
            "code": "Space" if nom == " " else nom,
            "windowsVirtualKeyCode": code,
            "modifiers": 8 if majuscule else 0,
        }
        self.demander(
            "Input.dispatchKeyEvent",
            type="keyDown" if texte else "rawKeyDown",
            **({"text": texte} if texte else {}),
            **commun,
        )
        self.demander("Input.dispatchKeyEvent", type="keyUp", **commun)
        self.dessine()

    def ecrire(self, texte):
        """Types a text where the focus is."""
        self.demander("Input.insertText", text=texte)
        self.dessine()

    def milieu(self, largeur=None, hauteur=900, sombre=False, imprime=False):
        """Width of the screen, colour scheme and medium, as a reader's machine would have them."""
        largeur = largeur or self.taille[0]
        self.demander(
            "Emulation.setDeviceMetricsOverride",
            width=largeur,
            height=hauteur,
            deviceScaleFactor=1,
            mobile=False,
        )
        self.demander(
            "Emulation.setEmulatedMedia",
            media="print" if imprime else "",
            features=[{"name": "prefers-color-scheme", "value": "dark" if sombre else "light"}],
        )
        self.dessine()

    def photographier(self, chemin, entiere=True):
        """A PNG of the page, all of it or what the screen shows."""
        r = self.demander("Page.captureScreenshot", format="png", captureBeyondViewport=entiere)
        pathlib.Path(chemin).write_bytes(base64.b64decode(r["data"]))

    def imprimer(self):
        """The PDF that the page prints."""
        return base64.b64decode(
            self.demander("Page.printToPDF", printBackground=False, preferCSSPageSize=True)["data"]
        )
