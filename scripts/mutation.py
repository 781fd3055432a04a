"""The work behind scripts/mutation.sh, which says what it does.

The product is built as a shared library, so that one change costs one
compilation and one link; no test program is linked again. A change in a
header is first shown to the library alone; if it survives, the tests that
include the header are built again as well.
"""

import collections
import concurrent.futures
import fcntl
import json
import os
import queue
import random
import re
import resource
import shlex
import shutil
import signal
import subprocess
import sys
import time
from collections import Counter
from pathlib import Path

COPIES = ["CMakeLists.txt", "README.md", "cmake", "completions", "doc", "systemd", "src", "tests", "exemples", "fuzz"]
PIECES = ["checks", "messages", "rules", "controle", "driver"]

# Test programs that can notice a change in a room, the most specific first.
PROGRAMMES = {
    "checks": ["tests_checks", "tests_messages", "tests_tables", "tests_rules", "tests_controle", "tests_end_to_end"],
    "messages": ["tests_messages", "tests_tables", "tests_rules", "tests_controle", "tests_checks", "tests_end_to_end"],
    "rules": ["tests_rules", "tests_tables", "tests_messages", "tests_checks", "tests_controle", "tests_driver", "tests_end_to_end"],
    "controle": ["tests_controle", "tests_driver", "tests_end_to_end", "tests_messages"],
    "driver": ["tests_driver", "tests_end_to_end", "tests_fautes"],
}

# What the changed sources are linked into, for a run of its own each a shared library.
BIBLIOTHEQUES = ["quilvane_noyau", "quilvane_produit"]

# Out of 100 sampled changes: how many are rule cells, list entries, code.
PARTS = {"cell": 35, "list": 15, "code": 50}

# This header gives the sizes of what tests and product share: a library that
# was built with another one would be noticed for the wrong reason.
PARTAGES = {"src/vocabulaire/pack.h", "src/vocabulaire/liste.h", "src/vocabulaire/store.h", "src/vocabulaire/avis.h"}

CONTRAIRES = {
    "==": ["!="], "!=": ["=="], "<": ["<=", ">"], "<=": ["<", ">="], ">": [">=", "<"], ">=": [">", "<="],
    "&&": ["||"], "||": ["&&"], "+": ["-"], "-": ["+"], "++": ["--"], "--": ["++"], "+=": ["-="], "-=": ["+="],
    "true": ["false"], "false": ["true"],
}

COLONNES = ["field", "first", "last", "CRE", "DEM", "INV", "EDI", "MOD",
            "check", "list", "dependency", "error"]


Site = collections.namedtuple("Site", "fichier place genre apres cellule jeton")


class Changement:
    """One change of one place."""

    def __init__(self, fichier, debut, fin, avant, apres, ligne, texte, cellule=""):
        self.fichier, self.debut, self.fin, self.avant, self.apres = fichier, debut, fin, avant, apres
        self.ligne, self.texte, self.cellule = ligne, texte, cellule

    def __str__(self):
        quoi = f"{self.cellule} " if self.cellule else ""
        avant, apres = (" ".join(t.split()) for t in (self.avant, self.apres))
        return f"{self.fichier}:{self.ligne}: {quoi}{avant} -> {apres}    | {self.texte}"

    @property
    def piece(self):
        return self.fichier.split("/")[1]


# ------------------------------------------------------------------ the sites

JETONS = re.compile(
    r"""(?P<ignore>//[^\n]*|/\*.*?\*/|^[ \t]*\#[^\n]*|\bstatic_assert\(.*?\);)
      | (?P<ligne>^[ ]+\{[CEF]\d+,[^\n]*\},)
      | (?P<texte>"(?:[^"\\\n]|\\.)*")
      | (?P<carac>'(?:[^'\\\n]|\\.)')
      | (?P<mot>\b(?:true|false)\b)
      | (?P<champ>\b(?:C\d+|CINC|E\d+|F\d)\b)
      | (?P<nombre>(?<![\w.'])(?:0[xX][0-9A-Fa-f]+|\d[\d']*)(?=[uUlL]*\b)(?!['.]))
      | (?P<pas>\+\+|--)
      | (?P<comparaison>==|!=|<=|>=|(?<=\s)[<>](?=\s)|(?<=\s)&&(?=\s)|(?<=\s)\|\|(?=\s)|\+=|-=|(?<=\s)[+-](?=\s))
      | (?P<negation>!(?=[\w(]))
      | (?P<si>\b(?:if|while)\s\()""",
    re.M | re.S | re.X)


def voisins(nombre):
    """A number moved by one, in its own way of writing."""
    base = 16 if nombre[:2] in ("0x", "0X") else 10
    n = int(nombre.replace("'", ""), base)
    ecrire = (lambda v: f"0x{v:02X}") if base == 16 else str
    return [ecrire(n + 1)] + ([ecrire(n - 1)] if n > 0 else [])


def autresChamps(nom):
    if nom == "CINC":
        return ["C1"]
    lettre, n = nom[0], int(nom[1:])
    dernier = {"C": 100, "E": 13, "F": 5}[lettre]
    return [f"{lettre}{v}" for v in (n + 1, n - 1) if 1 <= v <= dernier]


def autresTextes(litteral):
    """A text with one character changed, its width kept."""
    interieur = litteral[1:-1]
    if not interieur:
        return ['"x"']
    protege = {i for m in re.finditer(r"\\.|%[-0-9.*]*[a-zA-Z%]|[^\x20-\x7e]", interieur) for i in range(*m.span())}
    resultats = []
    for i, c in enumerate(interieur):
        if i in protege:
            continue
        if c in "9zZ":
            autre = {"9": "0", "z": "a", "Z": "A"}[c]
        else:
            autre = chr(ord(c) + 1) if c.isalnum() else "x"
        resultats.append(f'"{interieur[:i]}{autre}{interieur[i + 1:]}"')
    return resultats


def autresCaracteres(litteral):
    if litteral[1] == "\\":
        return {"'\\0'": ["'0'"], "'\\n'": ["'\\r'"], "'\\r'": ["'\\n'"]}.get(litteral, [])
    return ["'" + t[1:-1] + "'" for t in autresTextes(f'"{litteral[1:-1]}"') if t[1] not in "'\\"]


def fermante(source, ouvrante):
    """Where the parenthesis closes."""
    profondeur = 0
    for m in re.compile(r"""'(?:[^'\\]|\\.)'|"(?:[^"\\]|\\.)*"|[()]""").finditer(source, ouvrante):
        profondeur += {"(": 1, ")": -1}.get(m.group(), 0)
        if profondeur == 0:
            return m.start()
    raise ValueError("unbalanced parenthesis")


def cellules(source, debut, fin):
    """Start and end of each cell of the row {...}; a cell may hold a call."""
    i, places = source.index("{", debut) + 1, []
    while i < fin and source[i - 1] != "}":
        m = re.compile(r"\s*((?:[^,{}()]|\([^()]*\))*?)\s*[,}]").match(source, i)
        places.append(m.span(1))
        i = m.end()
    return places


def autresCellules(colonne, valeur, table):
    if colonne == "field":
        return autresChamps(valeur)
    if colonne in ("first", "last", "error"):
        return voisins(valeur)
    if colonne in ("CRE", "DEM", "INV", "EDI", "MOD"):
        return [c for c in "012" if c != valeur]
    if colonne == "dependency":
        m = re.fullmatch(r"(\w+)\((\w+)\)", valeur)
        if m is None:
            return ["corps(C1)", "entete(E8)", "fin(F1)"]
        return ["aucune"] + [f"{m[1]}({c})" for c in autresChamps(m[2])]
    defaut = {"check": ["fVerifValAut", "fDATEC"], "list": ["&FR", "&ET2", "&sansListe"]}[colonne]
    return sorted({c for c in table[colonne] | set(defaut) if c != valeur})


def sites(racine):
    """Every place that can be changed: where, its kind, and what it may become."""
    for chemin in sorted(p for piece in PIECES for p in (racine / "src" / piece).iterdir()):
        if chemin.suffix not in (".cpp", ".h"):
            continue
        fichier, source = chemin.relative_to(racine).as_posix(), chemin.read_text(encoding="utf-8")
        lignes = [m for m in JETONS.finditer(source) if m.lastgroup == "ligne"]
        parLigne = [cellules(source, *m.span()) for m in lignes]
        table = {c: {source[slice(*p[n])] for p in parLigne if len(p) == len(COLONNES)}
                 for n, c in enumerate(COLONNES)}
        for m in JETONS.finditer(source):
            genre, avant = m.lastgroup, m.group()
            if genre == "ignore":
                continue
            if genre == "ligne":
                places = cellules(source, *m.span())
                if len(places) != len(COLONNES):
                    sys.exit(f"mutation: {fichier}: not a rule row: {avant.strip()}")
                for colonne, place in zip(COLONNES, places):
                    yield Site(fichier, place, "cell", autresCellules(colonne, source[slice(*place)], table), colonne, genre)
                continue
            place = m.span()
            if genre == "texte":
                apres = autresTextes(avant)
            elif genre == "carac":
                apres = autresCaracteres(avant)
            elif genre == "champ":
                apres = autresChamps(avant) if not declaration(source, place[0]) else []
            elif genre == "nombre":
                apres = voisins(avant)
            elif genre == "negation":
                apres = [""]
            elif genre == "si":
                fin = fermante(source, place[1] - 1)
                condition = source[place[1]:fin]
                if ";" in condition:
                    continue
                place, apres = (place[1], fin), [f"!({condition})"]
            else:
                apres = CONTRAIRES[avant]
            if apres:
                liste = chemin.name == "valautorise.h" and genre == "texte"
                yield Site(fichier, place, "list" if liste else "code", apres, "", genre)


def declaration(source, position):
    """Whether the place lies in an enumeration's list of names."""
    debut = source.rfind("enum ", 0, position)
    return debut >= 0 and "}" not in source[debut:position]


def marquer(source, debut, fin):
    """The source line with the place between two @."""
    avant = source[source.rfind("\n", 0, debut) + 1:debut]
    apres = source[fin:(source + "\n").index("\n", fin)]
    return " ".join(f"{avant}@{source[debut:fin]}@{apres}".split())


def echantillon(racine, nombre, graine):
    """The sampled changes, in an order of their own, and how many places there are."""
    hasard = random.Random(graine)
    parGenre = {genre: [] for genre in PARTS}
    for site in sites(racine):
        parGenre[site[2]].append(site)
    choix = []
    for genre, part in PARTS.items():
        combien = nombre * part // 100 if genre != "code" else nombre - len(choix)
        choix += hasard.sample(parGenre[genre], min(combien, len(parGenre[genre])))
    sources, changements = {}, []
    for fichier, (debut, fin), genre, apres, cellule, _ in choix:
        source = sources.setdefault(fichier, (racine / fichier).read_text(encoding="utf-8"))
        ligne = source.count("\n", 0, debut) + 1
        texte = marquer(source, debut, fin)
        avant = source[debut:fin]
        changements.append(Changement(fichier, debut, fin, avant, hasard.choice(apres), ligne, texte, cellule))
    return changements, sum(map(len, parGenre.values()))


def exclusions(fichier):
    """(regex, reason) pairs: lines of a regex below their reason, a comment line."""
    paires, raison, precedente = [], "", ""
    for n, ligne in enumerate(fichier.read_text(encoding="utf-8").splitlines(), 1):
        if ligne.startswith("#"):
            raison = f"{raison} {ligne[1:].strip()}".strip() if precedente.startswith("#") else ligne[1:].strip()
        elif ligne.strip():
            if not raison:
                sys.exit(f"mutation: {fichier.name}:{n}: a regex without a reason above it")
            paires.append((re.compile(ligne), raison))
        else:
            raison = ""
        precedente = ligne
    return paires


# ------------------------------------------------------------------ the build


def copier(racine, copie, partage=True, sauf=()):
    """Brings the copy up to date but for the files in `sauf`; unchanged files keep their time."""
    vus = set()
    for nom in COPIES:
        origine = racine / nom
        for p in [origine] if origine.is_file() else sorted(q for q in origine.rglob("*") if q.is_file()):
            relatif = p.relative_to(racine)
            vus.add(relatif)
            if relatif.as_posix() in sauf:
                continue
            octets = p.read_bytes()
            if relatif.as_posix() == "CMakeLists.txt" and partage:
                for nomDeCible in BIBLIOTHEQUES:
                    octets = remplacer(octets, f"add_library({nomDeCible} STATIC".encode(),
                                       f"add_library({nomDeCible} SHARED".encode())
            if relatif.as_posix() == "tests/CMakeLists.txt":
                # Each worker has its own program; the runner's tests have a definition of their own.
                octets = remplacer(octets, b'QUILVANE_BINAIRE="$<TARGET_FILE:quilvane>"\n  QUILVANE_LIBFAKETIME',
                                   b'"QUILVANE_BINAIRE=std::getenv(\\"QUILVANE_BINAIRE\\")"\n  QUILVANE_LIBFAKETIME')
            cible = copie / relatif
            if not cible.exists() or cible.read_bytes() != octets:
                cible.parent.mkdir(parents=True, exist_ok=True)
                cible.write_bytes(octets)
    for nom in COPIES:
        for p in (copie / nom).rglob("*"):
            if p.is_file() and p.relative_to(copie) not in vus:
                p.unlink()


def remplacer(octets, avant, apres):
    if octets.count(avant) != 1:
        sys.exit(f"mutation: {avant.decode()} is no longer in the build files: adapt scripts/mutation.py")
    return octets.replace(avant, apres)


def lien(copie):
    return [f"-Wl,--dynamic-list={copie}/horloge.txt", "-Wl,--dynamic-list-data"]


def configurer(copie, construit, partage=True):
    # The libraries use their own functions, inline ones too, but for the clock,
    # which a test replaces.
    reglages = ["-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0", "-DCMAKE_CXX_COMPILER=g++",
                "-DCMAKE_BUILD_RPATH_USE_ORIGIN=ON", "-DQUILVANE_TESTS=ON"]
    if partage:
        (copie / "horloge.txt").write_text(
            '{ extern "C++" { quilvane::maintenant*; quilvane::heureLocale*; }; };\n', encoding="utf-8")
        reglages.append("-DCMAKE_SHARED_LINKER_FLAGS=" + " ".join(lien(copie)))
    if shutil.which("ccache"):
        reglages.append("-DCMAKE_CXX_COMPILER_LAUNCHER=ccache")
    obliger(["cmake", "-G", "Ninja", "-S", copie, "-B", construit, *reglages])


def programmesDe(fichier):
    """The test programs for a change in a file. The proof of a rule table is nothing at run time."""
    return ["tests_tables"] if fichier == "src/rules/preuve.h" else PROGRAMMES[fichier.split("/")[1]]


def cibles():
    return sorted({p for liste in PROGRAMMES.values() for p in liste})


def commandesDe(construit, copie):
    """How each source of the copy's src/ is compiled."""
    commandes = {}
    for entree in json.loads((construit / "compile_commands.json").read_text()):
        source = Path(entree["file"])
        if source.is_relative_to(copie / "src"):
            commandes[source.relative_to(copie).as_posix()] = [
                mot for mot in shlex.split(entree["command"]) if Path(mot).name != "ccache" and mot != "-Werror"] + ["-w"]
    return commandes


def obliger(commande):
    r = subprocess.run(commande, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, errors="replace")
    if r.returncode != 0:
        sys.exit(f"{r.stdout[-3000:]}\nmutation: {' '.join(map(str, commande[:4]))}... failed")
    return r.stdout


def reussit(commande, dossier=None):
    return subprocess.run(commande, cwd=dossier, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode == 0


def limiter():
    """A change may make the program write or take memory without end."""
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    resource.setrlimit(resource.RLIMIT_FSIZE, (1 << 28, 1 << 28))
    resource.setrlimit(resource.RLIMIT_AS, (1 << 32, 1 << 32))


def lancer(programme, binaire, dossier, delai, filtre="*", secondes=None):
    """Whether the test program passes, within `delai` and, each process, `secondes` of work."""
    shutil.rmtree(dossier, ignore_errors=True)
    dossier.mkdir(parents=True)
    milieu = {**os.environ, "TMPDIR": str(dossier), "QUILVANE_BINAIRE": str(binaire)}

    def borner():
        for numero in (signal.SIGINT, signal.SIGHUP, signal.SIGTERM):
            signal.signal(numero, signal.SIG_DFL)  # jobs in the background may have been told to ignore them
        if secondes is not None:
            resource.setrlimit(resource.RLIMIT_CPU, (secondes, secondes))

    p = subprocess.Popen([programme, "--gtest_brief=1", "--gtest_fail_fast", f"--gtest_filter={filtre}"], cwd=dossier,
                         env=milieu, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                         start_new_session=True, preexec_fn=borner)
    try:
        return p.wait(delai) == 0
    except subprocess.TimeoutExpired:
        return False
    finally:
        try:
            os.killpg(p.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        p.wait()


# ------------------------------------------------------------------ the runs


class Atelier:
    """A worker's folder: its sources, its library, its programs."""

    def __init__(self, copie, construit, numero, commandes, dependances):
        self.ici = copie / f"atelier{numero}"
        self.src, self.copie, self.construit = self.ici / "src", copie, construit
        self.commandes, self.dependances = commandes, dependances
        shutil.rmtree(self.ici, ignore_errors=True)
        shutil.copytree(copie / "src", self.src)
        (self.ici / "tests").mkdir()
        for nom in BIBLIOTHEQUES:
            shutil.copy2(construit / f"lib{nom}.so", self.ici)
        shutil.copy2(construit / "quilvane", self.ici)
        for nom in cibles():
            shutil.copy2(construit / "tests" / nom, self.ici / "tests")

    def verdict(self, changement, delais):
        """Who notices the change: "compiler", a test program, or nobody ("")."""
        fichier = self.ici / changement.fichier
        intact = fichier.read_text(encoding="utf-8")
        fichier.write_text(intact[:changement.debut] + changement.apres + intact[changement.fin:], encoding="utf-8")
        try:
            return self.construire(changement) or self.essayer(changement, delais)
        finally:
            fichier.write_text(intact, encoding="utf-8")

    def construire(self, changement):
        for nom in BIBLIOTHEQUES:
            if not self.bibliotheque(nom, changement):
                return "compiler"
        return ""

    def bibliotheque(self, nom, changement):
        """The library with the change; the one that was built when nothing of it is concerned."""
        cible = self.ici / f"lib{nom}.so"
        objets, changes = [], 0
        for source, (commande, objet) in self.commandes.items():
            if not objet.startswith(f"CMakeFiles/{nom}.dir/"):
                continue
            if changement.fichier not in self.dependances[source]:
                objets.append(self.construit / objet)
                continue
            changes += 1
            change = self.ici / (source.replace("/", "_") + ".o")
            mots = [m.replace(f"{self.copie}/src", str(self.src)) for m in commande]
            mots[mots.index("-o") + 1] = str(change)
            if not reussit(mots, self.construit):
                return False
            objets.append(change)
        neuve = self.ici / "neuve.so"
        if changes == 0:
            shutil.copy2(self.construit / cible.name, neuve)
        else:
            autres = [self.ici / "libquilvane_noyau.so"] if nom == "quilvane_produit" else []
            commande = ["g++", "-shared", *lien(self.copie), f"-Wl,-soname,{cible.name}", "-Wl,-rpath,$ORIGIN",
                        "-o", neuve, *objets, *autres]
            if not reussit(commande):
                return False
        neuve.replace(cible)
        return True

    def essayer(self, changement, delais):
        for nom in programmesDe(changement.fichier):
            if not lancer(self.ici / "tests" / nom, self.ici / "quilvane", self.ici / "tmp", delais[nom]):
                return nom
        return ""


def verdictEnEntier(changement, copie, construit, delais):
    """The verdict with the tests built again, for a change in a header."""
    fichier = copie / changement.fichier
    intact = fichier.read_text(encoding="utf-8")
    fichier.write_text(intact[:changement.debut] + changement.apres + intact[changement.fin:], encoding="utf-8")
    try:
        for nom in programmesDe(changement.fichier):
            if not reussit(["ninja", "-C", construit, nom, "quilvane"]):
                return "compiler"
            if not lancer(construit / "tests" / nom, construit / "quilvane", copie / "tmp", delais[nom]):
                return nom
        return ""
    finally:
        fichier.write_text(intact, encoding="utf-8")


def commandesDuProduit(copie, construit):
    """For each product source its compile command and object, and what it includes."""
    prefixes = tuple(f"CMakeFiles/{nom}.dir/" for nom in BIBLIOTHEQUES)
    commandes, dependances = {}, {}
    for entree in json.loads((construit / "compile_commands.json").read_text()):
        mots = shlex.split(entree["command"])
        objet = mots[mots.index("-o") + 1]
        if objet.startswith(prefixes):
            source = Path(entree["file"]).relative_to(copie).as_posix()
            # A changed source is never compiled twice: no use for a cache. A
            # warning, as about && beside ||, shall not spare the tests.
            commandes[source] = ([m for m in mots if Path(m).name != "ccache" and m != "-Werror"] + ["-w"], objet)
            sortie = obliger(["ninja", "-C", construit, "-t", "deps", objet])
            dependances[source] = {source} | {
                p.relative_to(copie).as_posix()
                for p in (Path(os.path.normpath(construit / l.strip())) for l in sortie.splitlines()[1:] if l.strip())
                if p.is_relative_to(copie / "src")}
    return commandes, dependances


def verrouiller(copie):
    """One run at a time; the lock ends with the process."""
    global VERROU
    VERROU = open(copie / "verrou", "w", encoding="utf-8")
    try:
        fcntl.flock(VERROU, fcntl.LOCK_EX | fcntl.LOCK_NB)
    except BlockingIOError:
        sys.exit(f"mutation: another run is using {copie}")


class Plaine:
    """The tree in which one change after the other is compiled."""

    def __init__(self, racine, copie):
        self.copie, self.construit = copie, copie / "build"
        copier(racine, copie)
        configurer(copie, self.construit)
        obliger(["ninja", "-C", self.construit, "quilvane", *cibles()])
        self.commandes, self.dependances = commandesDuProduit(copie, self.construit)
        self.delais = mesurerDelais(copie, self.construit)
        self.atelier = Atelier(copie, self.construit, 0, self.commandes, self.dependances)

    def verdict(self, changement):
        seul = changement.fichier in PARTAGES or changement.fichier == "src/rules/preuve.h"
        verdict = "" if seul else self.atelier.verdict(changement, self.delais)
        if verdict == "" and changement.fichier.endswith(".h"):
            verdict = verdictEnEntier(changement, self.copie, self.construit, self.delais)
        return verdict


def mesurerDelais(copie, construit):
    """How long each test program may take."""
    delais = {}
    for nom in cibles():
        debut = time.monotonic()
        if not lancer(construit / "tests" / nom, construit / "quilvane", copie / "tmp", 600):
            sys.exit(f"mutation: {nom} fails without any change")
        delais[nom] = 20 + 10 * (time.monotonic() - debut)
    return delais


def principal():
    racine, copie = Path(sys.argv[1]), Path(sys.argv[2])
    limiter()
    copie.mkdir(parents=True, exist_ok=True)
    if sys.argv[3:] and sys.argv[3] in ("--suite", "--bilan"):
        import mutation_suite
        if sys.argv[3] == "--suite":
            verrouiller(copie)
        mutation_suite.principal(racine, copie, racine / "scripts" / "mutation.etat", sys.argv[3:])
        return
    try:
        nombre, graine = (int(v) for v in (sys.argv[3:5] + ["300", "1"][len(sys.argv[3:5]):]))
        filtre = re.compile(sys.argv[5] if len(sys.argv) > 5 else "")
    except (ValueError, re.error) as e:
        sys.exit(f"mutation: {e}; arguments are [COUNT [SEED [REGEX]]]")
    exclues = exclusions(racine / "scripts" / "mutation.exclues")
    verrouiller(copie)
    depart = time.monotonic()
    construit = copie / "build"
    copier(racine, copie)
    changements, places = echantillon(copie, nombre, graine)
    changements = [c for c in changements if filtre.search(str(c))]
    print(f"{len(changements)} changes out of {places} places, seed {graine}", flush=True)
    configurer(copie, construit)
    obliger(["ninja", "-C", construit, "quilvane", *cibles()])
    commandes, dependances = commandesDuProduit(copie, construit)

    delais = mesurerDelais(copie, construit)

    ateliers = queue.Queue()
    for n in range(os.cpu_count() or 1):
        ateliers.put(Atelier(copie, construit, n, commandes, dependances))

    def juger(changement):
        if changement.fichier in PARTAGES:
            return ""
        atelier = ateliers.get()
        try:
            return atelier.verdict(changement, delais)
        finally:
            ateliers.put(atelier)

    with concurrent.futures.ThreadPoolExecutor(ateliers.qsize()) as equipe:
        verdicts = []
        for changement, verdict in zip(changements, equipe.map(juger, changements)):
            verdicts.append(verdict)
            if len(verdicts) % 50 == 0:
                print(f"  {len(verdicts)} done, {time.monotonic() - depart:.0f} s", flush=True)
    for n, changement in enumerate(changements):
        if verdicts[n] == "" and changement.fichier.endswith(".h"):
            verdicts[n] = verdictEnEntier(changement, copie, construit, delais)

    (copie / "verdicts.txt").write_text(
        "".join(f"{v or 'nobody'}: {c}\n" for c, v in zip(changements, verdicts)), encoding="utf-8")
    survivants = [c for c, v in zip(changements, verdicts) if v == ""]
    sansEffet = {c: raison for c in survivants for regex, raison in exclues[::-1] if regex.search(str(c))}
    echappes = [c for c in survivants if c not in sansEffet]
    comptes = Counter(verdicts)
    remarques = len(changements) - len(survivants)
    print(f"noticed       {remarques}")
    for nom, compte in comptes.most_common():
        if nom:
            print(f"  by {nom:<18} {compte}" + ("  (did not compile)" if nom == "compiler" else ""))
    print(f"without effect {len(sansEffet)}")
    for c, raison in sansEffet.items():
        print(f"  {c}\n      {raison}")
    print(f"survivors     {len(echappes)}")
    for c in echappes:
        print(f"  {c}")
    print(f"{time.monotonic() - depart:.0f} s")
    sys.exit(1 if echappes else 0)


if __name__ == "__main__":
    principal()
