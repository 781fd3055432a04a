"""Every place once, in slices: the work behind scripts/mutation.sh --suite.

Most changes are compiled together, each behind a switch: `a < b` becomes an
operator that is "<" unless its number has been switched on, so that one build
serves them all and a change costs only the tests that come by. Which these are
is found by running every test once. What cannot be switched - tables, array
sizes, cases, what the compiler works out by itself - is changed in the sources
and compiled, as for a sample.

A verdict is kept under a key made of the file, the line's text with the place
marked in it, and the change: it stays valid when other lines move.
"""

import hashlib
import os
import re
import subprocess
import sys
import time
from collections import Counter, defaultdict
from pathlib import Path

import mutation as m

# Of table cells and list entries one in so many is changed, chosen by this seed.
UN_SUR = 10
GRAINE = "2026"

# Test programs that start quilvane.
LANCEURS = ("tests_end_to_end", "tests_fautes")

EN_TETE = r"""#pragma once
// Changes that can be switched on one at a time.
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <type_traits>
namespace mut {
inline int lire() {
    // By system calls: nobody who counts the library's shall see this.
    const long fd = syscall(SYS_openat, AT_FDCWD, "@NUMERO@", O_RDONLY);
    char c[16] = {};
    if (fd < 0) return 0;
    const long n = syscall(SYS_read, fd, c, sizeof c - 1);
    syscall(SYS_close, fd);
    int r = 0;
    for (long i = 0; i < n && c[i] >= '0' && c[i] <= '9'; ++i) r = r * 10 + (c[i] - '0');
    return r;
}
inline unsigned char rien[@PLACES@];
inline unsigned char* ouvrir() {
    const long fd = syscall(SYS_openat, AT_FDCWD, "@CARTE@", O_RDWR);
    if (fd < 0) return rien;
    void* const p = reinterpret_cast<void*>(syscall(SYS_mmap, 0, sizeof rien, PROT_READ | PROT_WRITE, MAP_SHARED, fd, 0));
    syscall(SYS_close, fd);
    return static_cast<unsigned char*>(p);
}
inline int actif = lire();
inline unsigned char* carte = ouvrir();
inline bool la(int n) {
    if (carte != nullptr) carte[n] = 1;
    return actif == n;
}
constexpr bool m(int n) { return std::is_constant_evaluated() ? false : la(n); }
template <class T> constexpr T v(int n, T a, T b) { return m(n) ? b : a; }
constexpr bool c(int n, bool b) { return m(n) ? !b : b; }
constexpr int s(int n) { return m(n) ? -1 : 1; }
struct op { int n; char que; };
template <class T> struct avec { const T& a; op o; };
template <class T> struct valeur { T a; op o; };
constexpr op o(int n, char que) { return {n, que}; }
template <class T, class U> constexpr bool rel(char que, const T& a, const U& b) {
    switch (que) {
        case 'l': return a < b;
        case 'L': return a <= b;
        case 'g': return a > b;
        default: return a >= b;
    }
}
// que: what it becomes; the operator itself says what it is.
template <class T> constexpr avec<T> operator<(const T& a, op o) { return {a, o}; }
template <class T> constexpr avec<T> operator<=(const T& a, op o) { return {a, o}; }
template <class T> constexpr avec<T> operator>(const T& a, op o) { return {a, o}; }
template <class T> constexpr avec<T> operator>=(const T& a, op o) { return {a, o}; }
template <class T> constexpr avec<T> operator==(const T& a, op o) { return {a, o}; }
template <class T> constexpr avec<T> operator!=(const T& a, op o) { return {a, o}; }
template <class T, class U> constexpr bool operator<(avec<T> x, const U& b) { return m(x.o.n) ? rel(x.o.que, x.a, b) : x.a < b; }
template <class T, class U> constexpr bool operator<=(avec<T> x, const U& b) { return m(x.o.n) ? rel(x.o.que, x.a, b) : x.a <= b; }
template <class T, class U> constexpr bool operator>(avec<T> x, const U& b) { return m(x.o.n) ? rel(x.o.que, x.a, b) : x.a > b; }
template <class T, class U> constexpr bool operator>=(avec<T> x, const U& b) { return m(x.o.n) ? rel(x.o.que, x.a, b) : x.a >= b; }
template <class T, class U> constexpr bool operator==(avec<T> x, const U& b) { return m(x.o.n) ? x.a != b : x.a == b; }
template <class T, class U> constexpr bool operator!=(avec<T> x, const U& b) { return m(x.o.n) ? x.a == b : x.a != b; }
template <class T> constexpr valeur<std::decay_t<T>> operator+(const T& a, op o) { return {a, o}; }
template <class T> constexpr valeur<std::decay_t<T>> operator-(const T& a, op o) { return {a, o}; }
template <class T, class U> constexpr auto operator+(valeur<T> x, const U& b) { return m(x.o.n) ? x.a - b : x.a + b; }
template <class T, class U> constexpr auto operator-(valeur<T> x, const U& b) { return m(x.o.n) ? x.a + b : x.a - b; }
struct pasNon { int n; };
struct pasAvant { int n; bool plus; };
struct pasApres { int n; bool plus; };
template <class T> constexpr bool operator->*(pasNon d, const T& x) { return m(d.n) ? static_cast<bool>(x) : !x; }
template <class T> constexpr T& operator->*(pasAvant d, T& x) { return m(d.n) != d.plus ? ++x : --x; }
template <class T> constexpr T operator->*(pasApres d, T& x) { return m(d.n) != d.plus ? x++ : x--; }
}  // namespace mut
"""


# ------------------------------------------------------------------ the places


class Place:
    """A place and the change that it gets, under a key that outlives edits elsewhere."""

    def __init__(self, site, source, fois):
        self.site, self.fichier, self.genre = site, site.fichier, site.genre
        (self.debut, self.fin) = site.place
        self.texte = m.marquer(source, self.debut, self.fin)
        cle = "|".join((site.fichier, site.genre, site.cellule, self.texte, str(fois[(site.fichier, site.cellule, self.texte)])))
        fois[(site.fichier, site.cellule, self.texte)] += 1
        tirage = int(hashlib.sha1((GRAINE + cle).encode()).hexdigest(), 16)
        self.retenue = site.genre == "code" or tirage // 1009 % UN_SUR == 0
        self.apres = site.apres[tirage % len(site.apres)]
        self.cle = hashlib.sha1(f"{cle}|{self.apres}".encode()).hexdigest()[:12]
        self.numero = 0

    def changement(self, source):
        ligne = source.count("\n", 0, self.debut) + 1
        return m.Changement(self.fichier, self.debut, self.fin, source[self.debut:self.fin], self.apres, ligne,
                            self.texte, self.site.cellule)


def places(racine, sources):
    """All that is to be changed once, in the order of the sources."""
    fois, resultat = Counter(), []
    for site in m.sites(racine):
        source = sources.setdefault(site.fichier, (racine / site.fichier).read_text(encoding="utf-8"))
        p = Place(site, source, fois)
        if p.retenue:
            resultat.append(p)
    return resultat


# ------------------------------------------------------------------ the switches


def masquer(source):
    """The source with texts and comments blanked, of the same length."""
    return re.sub(r"""//[^\n]*|/\*.*?\*/|"(?:[^"\\\n]|\\.)*"|'(?:[^'\\\n]|\\.)'""",
                  lambda t: re.sub(r"[^\n]", "_", t.group()), source, flags=re.S)


FERME = {")": "(", "]": "[", "}": "{"}


def gauche(masque, i, et):
    """Where the left operand of && or || at `i` begins."""
    profondeur = 0
    while i > 0:
        c = masque[i - 1]
        if c in ")]}":
            if c == "}" and profondeur == 0 and masque[i:i + 1] == "\n":
                break
            profondeur += 1
        elif c in "([{":
            if profondeur == 0:
                break
            profondeur -= 1
        elif profondeur == 0:
            if c in ";,?":
                break
            if c == ":" and masque[i - 2] != ":" and masque[i] != ":":
                break
            if c == "=" and masque[i - 2] not in "=!<>" and masque[i] != "=":
                break
            if et and masque[i - 2:i] == "||":
                break
            if re.search(r"\breturn\s$", masque[max(0, i - 8):i]):
                break
        i -= 1
    while masque[i].isspace():
        i += 1
    return i


def droite(masque, i, et):
    """Where the right operand behind `i` ends."""
    profondeur = 0
    while i < len(masque):
        c = masque[i]
        if c in "([{":
            profondeur += 1
        elif c in ")]}":
            if profondeur == 0:
                break
            profondeur -= 1
        elif profondeur == 0:
            if c in ";,?":
                break
            if c == ":" and masque[i + 1] != ":" and masque[i - 1] != ":":
                break
            if masque[i:i + 2] == "||" or (et and masque[i:i + 2] == "&&"):
                break
        i += 1
    while masque[i - 1].isspace():
        i -= 1
    return i


RELATIONS = {"<": "l", "<=": "L", ">": "g", ">=": "G"}


def aiguillages(p, source, masque):
    """The edits that put a place behind its switch: (start, end, text), and pairs
    (start, end, opening, closing) around a span. None when it cannot be."""
    n, avant, apres = p.numero, source[p.debut:p.fin], p.apres
    jeton = p.site.jeton
    if jeton in ("nombre", "carac", "mot", "champ"):
        suffixe = re.match(r"[uUlL]*", source[p.fin:]).group() if jeton == "nombre" else ""
        return [(p.debut, p.fin + len(suffixe), f"::mut::v({n}, {avant}{suffixe}, {apres}{suffixe})")], []
    if jeton == "texte":
        return [(p.debut, p.fin, f"(::mut::m({n}) ? {apres} : {avant})")], []
    if jeton == "negation":
        return [(p.debut, p.fin, f"::mut::pasNon{{{n}}}->*")], []
    if jeton == "si":
        return [], [(p.debut, p.fin, f"::mut::c({n}, static_cast<bool>(", "))")]
    if jeton == "pas":
        plus = "true" if avant == "++" else "false"
        if re.match(r"[\w(*]", source[p.fin:]) and not re.search(r"[\w)\]]$", source[:p.debut]):
            return [(p.debut, p.fin, f"::mut::pasAvant{{{n}, {plus}}}->*")], []
        nom = re.search(r"(?:\w+(?:\.|->))*\w+$", source[:p.debut])
        if nom is None:
            return None
        return [(p.debut, p.fin, "")], [(nom.start(), p.debut, f"(::mut::pasApres{{{n}, {plus}}}->*", ")")]
    if avant in ("&&", "||"):
        a, b = gauche(masque, p.debut, avant == "&&"), droite(masque, p.fin, avant == "&&")
        faux = f")) != ::mut::m({n}))"
        debutDroite = p.fin + len(masque[p.fin:]) - len(masque[p.fin:].lstrip())
        finGauche = len(masque[:p.debut].rstrip())
        return [], [(a, b, "((", f") != ::mut::m({n}))"), (a, finGauche, "((static_cast<bool>(", faux),
                    (debutDroite, b, "((static_cast<bool>(", faux)]
    if avant in ("+=", "-="):
        b = droite(masque, p.fin, False)
        a = p.fin + len(masque[p.fin:]) - len(masque[p.fin:].lstrip())
        return [], [(a, b, f"::mut::s({n}) * (", ")")]
    que = RELATIONS.get(apres, "x")
    return [(p.debut, p.fin, f"{avant} ::mut::o({n}, '{que}') {avant}")], []


def reecrire(source, ceux):
    """The source with the places of `ceux` behind their switches."""
    masque, remplacements, insertions = masquer(source), [], []
    for p in ceux:
        edits = aiguillages(p, source, masque)
        if edits is None:
            p.numero = 0
            continue
        remplacements += edits[0]
        for rang, (a, b, ouvre, ferme) in enumerate(edits[1]):
            # At one position: what closes first, the inner before the outer;
            # then what opens, the outer before the inner.
            exterieur = 0 if p.site.jeton == "si" else 1
            insertions.append(((b, 0, -a, -exterieur, -rang), ferme))
            insertions.append(((a, 1, -b, exterieur, rang), ouvre))
    insertions.sort()
    morceaux, ici, r = [], 0, sorted(remplacements)
    marques = [(cle[0], texte, None) for cle, texte in insertions]
    k = 0
    for a, b, texte in r + [(len(source), len(source), "")]:
        while k < len(marques) and marques[k][0] <= a:
            morceaux += [source[ici:marques[k][0]], marques[k][1]]
            ici = marques[k][0]
            k += 1
        morceaux += [source[ici:a], texte]
        ici = b
    return "".join(morceaux)


# ------------------------------------------------------------------ the two trees


class Commutee:
    """The tree whose changes are switched on, one at a time."""

    def __init__(self, racine, copie, toutes, sources):
        self.copie, self.construit, self.sources = copie, copie / "build", sources
        self.numero, self.carte = copie / "numero", copie / "carte"
        self.places = [p for p in toutes if p.genre == "code" and p.fichier not in m.PARTAGES
                       and p.fichier != "src/rules/preuve.h"]
        m.copier(racine, copie, partage=False, sauf={p.fichier for p in self.places})
        for n, p in enumerate(self.places, 1):
            p.numero = n
        self.taille = (len(self.places) // 4096 + 1) * 4096
        self.ecrire("mutation.h", EN_TETE.replace("@NUMERO@", str(self.numero)).replace("@CARTE@", str(self.carte))
                    .replace("@PLACES@", str(self.taille)))
        self.adapter()
        m.obliger(["ninja", "-C", self.construit, "quilvane", *m.cibles()])
        self.portee()

    def ecrire(self, fichier, texte):
        """Writes a file; one that is the same keeps its time."""
        cible = self.copie / fichier
        if cible.exists() and cible.read_text(encoding="utf-8") == texte:
            return False
        cible.parent.mkdir(parents=True, exist_ok=True)
        cible.write_text(texte, encoding="utf-8")
        return True

    def adapter(self):
        """Writes the sources with their switches; a line that does not compile with them goes without."""
        parFichier = defaultdict(list)
        for p in self.places:
            parFichier[p.fichier].append(p)
        sans = self.copie / "sans"  # what did not compile the last time
        ecartes = set(sans.read_text().split()) if sans.exists() else set()
        mauvaises = None  # the sources that are to be looked at again
        for passe in range(20):
            neuf = not sans.exists()
            for fichier, ceux in parFichier.items():
                for p in ceux:
                    if p.cle in ecartes:
                        p.numero = 0
                texte = reecrire(self.sources[fichier], [p for p in ceux if p.numero])
                neuf |= self.ecrire(fichier, f'#include "{self.copie}/mutation.h"\n#line 1\n{texte}')
            if not neuf:
                return
            sans.unlink(missing_ok=True)
            if passe == 0:
                m.configurer(self.copie, self.construit, partage=False)
            fautes, mauvaises = self.fautes(mauvaises)
            print(f"  {sum(map(len, fautes.values()))} lines go without switches", flush=True)
            if not fautes:
                sans.write_text(" ".join(sorted(ecartes)))
                return
            for fichier, lignes in fautes.items():
                print(f"    {fichier}: {' '.join(map(str, sorted(lignes)))}", flush=True)
            avant = len(ecartes)
            for fichier, lignes in fautes.items():
                ecartes |= {p.cle for p in parFichier[fichier]
                            if passe > 12 or self.sources[fichier].count("\n", 0, p.debut) + 1 in lignes}
            if len(ecartes) == avant and passe > 12:
                break
        sys.exit(f"mutation: the switches do not compile: {fautes}")

    def fautes(self, sources):
        """Lines of our files that the compiler names, and the sources that it refuses."""
        def essayer(commande):
            return subprocess.run([*commande, "-fsyntax-only"], cwd=self.construit, stdout=subprocess.DEVNULL,
                                  stderr=subprocess.PIPE, text=True, errors="replace", check=False)
        fautes, refusees = defaultdict(set), []
        for source, commande in m.commandesDe(self.construit, self.copie).items():
            if dossierDe(source) not in m.PIECES or (sources is not None and source not in sources):
                continue
            r = essayer(commande)
            if r.returncode == 0:
                continue
            refusees.append(source)
            trouve = False
            for chemin, ligne in re.findall(r"^(\S+?):(\d+):(?:\d+:)? (?:error|note|  required)", r.stderr, re.M):
                chemin = Path(os.path.normpath(self.construit / chemin))
                if chemin.is_relative_to(self.copie / "src"):
                    fautes[chemin.relative_to(self.copie).as_posix()].add(int(ligne))
                    trouve = True
            if not trouve:
                sys.exit(f"mutation: {source}: {r.stderr[:3000]}")
        return fautes, refusees

    def lancer(self, programme, filtre, limite):
        """Whether the tests of a program that the filter names pass."""
        return m.lancer(self.construit / "tests" / programme, self.construit / "quilvane", self.copie / "tmp",
                        60 + 20 * limite, filtre, int(3 + 6 * limite))

    def portee(self):
        """Runs every test once: which places it comes by. A program that is the same is not run again."""
        self.tests = []  # (program, test, seconds, places)
        (self.copie / "portee").mkdir(exist_ok=True)
        quilvane = (self.construit / "quilvane").read_bytes()
        self.numero.write_text("0")
        for programme in m.cibles():
            octets = (self.construit / "tests" / programme).read_bytes()
            if programme in LANCEURS:
                octets += quilvane
            empreinte = hashlib.sha1(octets).hexdigest()
            garde = self.copie / "portee" / f"{programme}.tsv"
            lignes = garde.read_text().splitlines() if garde.exists() else []
            if lignes[:1] != [empreinte]:
                lignes = [empreinte, *self.arpenter(programme)]
                garde.write_text("\n".join(lignes) + "\n")
            for ligne in lignes[1:]:
                test, duree, ceux = ligne.split("\t")
                self.tests.append((programme, test, float(duree), frozenset(map(int, ceux.split()))))
        self.carte.unlink(missing_ok=True)

    def arpenter(self, programme):
        """A line for each test of a program: its name, seconds, the places it comes by."""
        suite = ""
        for ligne in m.obliger([self.construit / "tests" / programme, "--gtest_list_tests"]).splitlines():
            ligne = ligne.split("#")[0].rstrip()
            if not ligne.startswith(" "):
                suite = ligne
                continue
            test = suite + ligne.strip()
            self.carte.write_bytes(bytes(self.taille))
            debut = time.monotonic()
            # A busy machine may fail a test that waits for a moment.
            if not any(self.lancer(programme, test, 60) for _ in range(3)):
                sys.exit(f"mutation: {programme} {test} fails without any change")
            duree = time.monotonic() - debut
            yield f"{test}\t{duree:.3f}\t{' '.join(str(i) for i, b in enumerate(self.carte.read_bytes()) if b)}"

    def atteintes(self):
        return frozenset().union(*(t[3] for t in self.tests)) if self.tests else frozenset()

    def verdict(self, p):
        """The program that notices, or ""."""
        self.numero.write_text(str(p.numero))
        try:
            ordre = m.programmesDe(p.fichier)
            ceux = [t for t in self.tests if p.numero in t[3] and t[0] in ordre]
            # The most specific tests first: those that come by few places, and fast ones.
            ceux.sort(key=lambda t: (ordre.index(t[0]), t[2] > 1, len(t[3])))
            tas = [ceux[:8], ceux[8:]]
            for lot in tas:
                for programme in ordre:
                    noms = [t for t in lot if t[0] == programme]
                    for k in range(0, len(noms), 400):
                        bout = noms[k:k + 400]
                        nommes, duree = ":".join(t[1] for t in bout), sum(t[2] for t in bout)
                        # Tests that start processes may fail for want of time: such a failure is to happen twice.
                        essais = 2 if programme in LANCEURS else 1
                        if not any(self.lancer(programme, nommes, duree) for _ in range(essais)):
                            return programme
            return ""
        finally:
            self.numero.write_text("0")


# ------------------------------------------------------------------ the state


def lireEtat(fichier):
    """Verdicts by key; the file holds one block for each source."""
    etat, source = {}, ""
    if fichier.exists():
        for ligne in fichier.read_text(encoding="utf-8").splitlines():
            if not ligne.startswith(" "):
                source = ligne
            else:
                cle, verdict = ligne.split()
                etat[(source, cle)] = verdict
    return etat


def ecrireEtat(fichier, etat):
    lignes, source = [], None
    for (f, cle), verdict in sorted(etat.items()):
        if f != source:
            lignes.append(f)
            source = f
        lignes.append(f"  {cle} {verdict}")
    fichier.parent.mkdir(parents=True, exist_ok=True)
    neuf = fichier.with_suffix(".part")
    neuf.write_text("\n".join(lignes) + "\n", encoding="utf-8")
    neuf.replace(fichier)


def dossierDe(fichier):
    return fichier.split("/")[1]


def bilan(racine, toutes, etat, exclues, sources):
    """A tally by folder and kind, for doc/qualite.md, and what went unnoticed."""
    comptes, echappes = defaultdict(Counter), []
    for p in toutes:
        ligne = comptes[(dossierDe(p.fichier), p.genre)]
        ligne["places"] += 1
        verdict = etat.get((p.fichier, p.cle))
        if verdict is None:
            continue
        ligne["tried"] += 1
        if verdict == "nobody":
            c = p.changement(sources[p.fichier])
            if any(regex.search(str(c)) for regex, _ in exclues):
                ligne["without effect"] += 1
            else:
                ligne["unnoticed"] += 1
                echappes.append(c)
        else:
            ligne["compiler" if verdict == "compiler" else "noticed"] += 1
    colonnes = ["places", "tried", "noticed", "compiler", "without effect", "unnoticed"]
    print("| folder | " + " | ".join(colonnes) + " |\n" + "| --- " * (len(colonnes) + 1) + "|")
    for (dossier, genre), ligne in sorted(comptes.items()):
        print(f"| `{dossier}/`, {genre} | " + " | ".join(str(ligne[c]) for c in colonnes) + " |")
    somme = sum(comptes.values(), Counter())
    print("| all | " + " | ".join(str(somme[c]) for c in colonnes) + " |")
    for c in echappes:
        print(f"  {c}")
    return not echappes


def principal(racine, copie, fichierEtat, arguments):
    exclues = m.exclusions(racine / "scripts" / "mutation.exclues")
    etat, sources = lireEtat(fichierEtat), {}
    if arguments and arguments[0] == "--bilan":
        sys.exit(0 if bilan(racine, places(racine, sources), etat, exclues, sources) else 1)
    nombre = int(arguments[1]) if len(arguments) > 1 else 300
    filtre = re.compile(arguments[2] if len(arguments) > 2 else "")
    depart = time.monotonic()
    toutes = places(racine, sources)
    # What went unnoticed is tried again: it may have its test by now.
    aFaire = [p for p in toutes if etat.get((p.fichier, p.cle), "nobody") == "nobody"
              and filtre.search(str(p.changement(sources[p.fichier])))
              and not (etat.get((p.fichier, p.cle)) == "nobody"
                       and any(r.search(str(p.changement(sources[p.fichier]))) for r, _ in exclues))]
    print(f"{len(toutes)} places, {len(aFaire)} to be tried", flush=True)
    if not aFaire:
        return
    commutee = Commutee(racine, copie / "commutee", toutes, sources)
    atteintes = commutee.atteintes()
    print(f"{sum(p.numero > 0 for p in toutes)} behind switches, {len(atteintes)} of them come by; "
          f"{time.monotonic() - depart:.0f} s", flush=True)
    aFaire.sort(key=lambda p: p.numero not in atteintes)
    plaine, faits = None, 0
    for p in aFaire[:nombre]:
        if p.numero in atteintes:
            verdict = commutee.verdict(p)
        else:
            if plaine is None:
                plaine = m.Plaine(racine, copie)
            verdict = plaine.verdict(p.changement(sources[p.fichier]))
        etat[(p.fichier, p.cle)] = verdict or "nobody"
        if verdict == "":
            c = p.changement(sources[p.fichier])
            if not any(regex.search(str(c)) for regex, _ in exclues):
                print(f"  unnoticed: {c}", flush=True)
        faits += 1
        if faits % 20 == 0:
            ecrireEtat(fichierEtat, etat)
        if faits % 100 == 0:
            print(f"  {faits} done, {time.monotonic() - depart:.0f} s", flush=True)
    ecrireEtat(fichierEtat, etat)
    print(f"{faits} done, {max(0, len(aFaire) - faits)} left, {time.monotonic() - depart:.0f} s")
