#include "controle/lecteur.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "support/generateur.h"
#include "support/memoire.h"

using namespace quilvane;

namespace {

/** One read: how it ended, what it holds, and the faults that it noted. */
struct ligne {
    int fin;
    std::string texte;
    int longueur;  // codLong
    int caract;    // codCaract
    ligne(int f, std::string t, int l = 0, int c = 0) : fin(f), texte(std::move(t)), longueur(l), caract(c) {}
    bool operator==(const ligne&) const = default;
};

std::ostream& operator<<(std::ostream& o, const ligne& l) {
    return o << "{" << l.fin << " \"" << l.texte << "\" " << l.longueur << " " << l.caract << "}";
}

/** Where a read stood in the file. */
struct place {
    long long numero, debut, octets, interdite;
    bool operator==(const place&) const = default;
};

std::ostream& operator<<(std::ostream& o, const place& p) {
    return o << "{" << p.numero << " " << p.debut << " " << p.octets << " " << p.interdite << "}";
}

struct lecture {
    std::vector<ligne> lignes;
    std::vector<place> places;
    bool erreur = false;
    bool operator==(const lecture&) const = default;
};

std::ostream& operator<<(std::ostream& o, const lecture& l) {
    return o << testing::PrintToString(l.lignes) << testing::PrintToString(l.places) << l.erreur;
}

/** Reads `source` to its end; the text of a line ends at its first zero byte. */
lecture parcourir(essai::memoire& source) {
    static lecteur flux;
    source.ouvrir(flux);
    lecture lu;
    for (;;) {
        ligneLue l;
        std::memset(&l, '?', sizeof l);
        const cverseFgetsRet fin = cverseFgets(flux, l);
        EXPECT_EQ(l.fin, fin);
        lu.lignes.push_back({fin, std::string(l.texte, strnlen(l.texte, 257)), l.codLong, l.codCaract});
        lu.places.push_back({l.numero, l.debut, l.longueur, l.colonneInterdite});
        EXPECT_EQ(l.colonneInterdite != 0, l.codCaract == 1);
        // At most 256 characters and the terminator are written.
        EXPECT_EQ(std::string(l.texte + 257, sizeof l.texte - 257), std::string(sizeof l.texte - 257, '?'))
            << "too many characters stored";
        if (fin == CVERSE_EOF || fin == CVERSE_CTRLZ) break;
    }
    lu.erreur = flux.erreur;
    return lu;
}

std::vector<ligne> lire(const std::string& octets) {
    essai::memoire source(octets);
    const lecture lu = parcourir(source);
    EXPECT_FALSE(lu.erreur);
    return lu.lignes;
}

std::vector<place> places(const std::string& octets) {
    essai::memoire source(octets);
    return parcourir(source).places;
}

/** The same read byte by byte, as plainly as can be. */
lecture modele(const std::string& octets) {
    lecture lu;
    std::string texte;
    int longueur = 0;
    place ici = {1, 0, 0, 0};
    const auto rendre = [&](int fin, std::size_t suivante) {
        const bool finDeLigne = fin == CVERSE_DOS || fin == CVERSE_UNIX || fin == CVERSE_MAC;
        if (fin != CVERSE_EOF && !texte.empty() && texte.size() < 256) longueur = 2;
        lu.lignes.push_back({finDeLigne && texte.empty() ? CVERSE_LONGNULLE : fin, texte.c_str(), longueur,
                             ici.interdite != 0 ? 1 : 0});
        lu.places.push_back(ici);
        texte.clear();
        longueur = 0;
        ici = {ici.numero + 1, static_cast<long long>(suivante), 0, 0};
    };
    for (std::size_t i = 0; i < octets.size(); ++i) {
        const auto o = static_cast<unsigned char>(octets[i]);
        if (o == 0x1A) {
            rendre(CVERSE_CTRLZ, i + 1);
            return lu;
        }
        if (o == '\n') {
            rendre(CVERSE_UNIX, i + 1);
        } else if (o == '\r') {
            const bool dos = i + 1 < octets.size() && octets[i + 1] == '\n';
            i += dos ? 1 : 0;
            rendre(dos ? CVERSE_DOS : CVERSE_MAC, i + 1);
        } else {
            ++ici.octets;
            if ((o < 0x20 || o > 0x7E) && ici.interdite == 0) ici.interdite = ici.octets;
            if (texte.size() == 256)
                longueur = 1;
            else
                texte += octets[i];
        }
    }
    rendre(CVERSE_EOF, octets.size());
    return lu;
}

/** The stream and the plain reading agree. */
void comparer(const std::string& octets, const std::string& nom) {
    essai::memoire source(octets);
    ASSERT_EQ(parcourir(source), modele(octets)) << nom;
}

constexpr std::size_t BLOC = 65536;

std::string x(std::size_t n, char c = 'x') { return std::string(n, c); }

using lignes = std::vector<ligne>;

}  // namespace

TEST(Lecteur, FinsDeLigne) {
    EXPECT_EQ(lire("a\nb\r\nc\rd"),
              (lignes{{CVERSE_UNIX, "a", 2}, {CVERSE_DOS, "b", 2}, {CVERSE_MAC, "c", 2}, {CVERSE_EOF, "d"}}));
    EXPECT_EQ(lire(""), lignes{ligne(CVERSE_EOF, "")});
    EXPECT_EQ(lire("a\r"), (lignes{{CVERSE_MAC, "a", 2}, {CVERSE_EOF, ""}}));
    EXPECT_EQ(lire("a\r\r\n"), (lignes{{CVERSE_MAC, "a", 2}, {CVERSE_LONGNULLE, ""}, {CVERSE_EOF, ""}}));
    EXPECT_EQ(lire("a\n\r"), (lignes{{CVERSE_UNIX, "a", 2}, {CVERSE_LONGNULLE, ""}, {CVERSE_EOF, ""}}));
    EXPECT_EQ(
        lire("\n\r\n\r"),
        (lignes{{CVERSE_LONGNULLE, ""}, {CVERSE_LONGNULLE, ""}, {CVERSE_LONGNULLE, ""}, {CVERSE_EOF, ""}}));
}

TEST(Lecteur, CtrlZ) {
    EXPECT_EQ(lire("\x1Ax\n"), lignes{ligne(CVERSE_CTRLZ, "")});
    EXPECT_EQ(lire("ab\x1Ax\n"), lignes{ligne(CVERSE_CTRLZ, "ab", 2)});
    EXPECT_EQ(lire("a\r\x1A\n"), (lignes{{CVERSE_MAC, "a", 2}, {CVERSE_CTRLZ, ""}}));
    EXPECT_EQ(lire(x(256) + "\x1A"), lignes{ligne(CVERSE_CTRLZ, x(256))});
    EXPECT_EQ(lire(x(290) + "\x1A"), lignes{ligne(CVERSE_CTRLZ, x(256), 1)});
}

TEST(Lecteur, Longueurs) {
    for (const char* fin : {"\n", "\r\n", "\r"}) {
        const int genre = fin[0] == '\n' ? CVERSE_UNIX : fin[1] == '\n' ? CVERSE_DOS : CVERSE_MAC;
        for (const std::size_t n :
             {1U, 2U, 255U, 256U, 257U, 300U, 512U, 513U, 600U, 65535U, 65536U, 65537U, 200000U}) {
            SCOPED_TRACE(n);
            const int attendue = n < 256 ? 2 : n > 256 ? 1 : 0;
            EXPECT_EQ(lire(x(n) + fin), (lignes{{genre, x(n < 256 ? n : 256), attendue}, {CVERSE_EOF, ""}}));
        }
    }
}

TEST(Lecteur, UneLigneSansFinNEstPasTropCourte) {
    EXPECT_EQ(lire(x(10)), lignes{ligne(CVERSE_EOF, x(10), 0)});
    EXPECT_EQ(lire(x(257)), lignes{ligne(CVERSE_EOF, x(256), 1)});
}

TEST(Lecteur, OctetsInterdits) {
    for (int o = 0; o < 256; ++o) {
        if (o == '\n' || o == '\r' || o == 0x1A) continue;
        SCOPED_TRACE(o);
        const int faux = o < 0x20 || o > 0x7E ? 1 : 0;
        const std::string c(1, static_cast<char>(o));
        // First, in the middle, last, and in what is dropped; told of one line only.
        const auto texte = [](const std::string& s) { return std::string(s.c_str()); };
        EXPECT_EQ(lire(c + x(255) + "\n" + x(256) + "\n"), (lignes{{CVERSE_UNIX, texte(c + x(255)), 0, faux},
                                                                   {CVERSE_UNIX, x(256), 0, 0},
                                                                   {CVERSE_EOF, ""}}));
        EXPECT_EQ(lire(x(100) + c + x(155) + "\n")[0],
                  ligne(CVERSE_UNIX, texte(x(100) + c + x(155)), 0, faux));
        EXPECT_EQ(lire(x(255) + c + "\n")[0], ligne(CVERSE_UNIX, texte(x(255) + c), 0, faux));
        EXPECT_EQ(lire(x(256) + c + "\n")[0], ligne(CVERSE_UNIX, x(256), 1, faux));
        EXPECT_EQ(lire(x(299) + c + "\n")[0], ligne(CVERSE_UNIX, x(256), 1, faux));
        EXPECT_EQ(lire("x" + c + "\n")[0], ligne(CVERSE_UNIX, texte("x" + c), 2, faux));
    }
}

TEST(Lecteur, UnOctetNulCompteDansLaLongueur) {
    EXPECT_EQ(lire(x(3, '\0') + "\n")[0], ligne(CVERSE_UNIX, "", 2, 1));
    EXPECT_EQ(lire(x(200) + x(56, '\0') + "\n")[0], ligne(CVERSE_UNIX, x(200), 0, 1));
    EXPECT_EQ(lire(x(200) + x(57, '\0') + "\n")[0], ligne(CVERSE_UNIX, x(200), 1, 1));
}

TEST(Lecteur, BordsDeBloc) {
    // A record whose line end stands before, on and behind the end of a block.
    for (const std::size_t bord : {BLOC, 2 * BLOC}) {
        for (const int ecart : {-258, -257, -256, -255, -100, -3, -2, -1, 0, 1, 2, 100, 255, 256, 257, 258}) {
            if (bord != BLOC && (ecart < -2 || ecart > 1)) continue;
            const std::size_t fin = bord + static_cast<std::size_t>(ecart + 512) - 512;
            std::string debut;
            while (debut.size() + 600 < fin)
                debut += x(256) + "\n";
            debut += x(fin - 256 - debut.size() - 1, 'y') + "\n";
            ASSERT_EQ(debut.size() + 256, fin);
            for (const char* finDeLigne : {"\n", "\r\n", "\r", "\x1A"}) {
                for (const std::string& suite : {std::string(), x(256, 'z') + "\n"}) {
                    const std::string octets = debut + x(256, 'w') + finDeLigne + suite;
                    comparer(octets, std::to_string(ecart) + " " + std::to_string(suite.size()));
                }
            }
        }
    }
}

TEST(Lecteur, UnFichierDUnBlocEntier) {
    for (const std::size_t n : {BLOC - 1, BLOC, BLOC + 1, 2 * BLOC}) {
        SCOPED_TRACE(n);
        for (const char* fin : {"\n", "\r", "\r\n", "", "\x1A"}) {
            const std::string octets = x(n - std::strlen(fin)) + fin;
            comparer(octets, std::to_string(n) + fin);
        }
    }
}

TEST(Lecteur, OctetsAuHasard) {
    essai::hasard h(20240316);
    const char* const FINS[] = {"\n", "\r\n", "\r", "\n", "\r\n", "\r\r\n", "\n\r"};
    for (int essai = 0; essai < 60; ++essai) {
        std::string octets;
        const int pollution = h.jusqua(3);
        const std::size_t taille =
            static_cast<std::size_t>(h.jusqua(3) == 0 ? h.jusqua(600) : 60000 + h.jusqua(90000));
        while (octets.size() < taille) {
            const int n = h.jusqua(4) != 0 ? 256 : h.jusqua(520);
            for (int i = 0; i < n; ++i)
                octets += static_cast<char>(
                    pollution != 0 && h.jusqua(500 * pollution) == 0 ? h.jusqua(256) : 0x20 + h.jusqua(0x5F));
            octets += FINS[h.jusqua(7)];
        }
        // A Ctrl-Z ends the file early: most files have none.
        if (essai % 5 != 0)
            for (char& c : octets)
                if (c == 0x1A) c = '\x1B';
        comparer(octets, "essai " + std::to_string(essai));
    }
}

TEST(Lecteur, UnAutreFichierRecommence) {
    const lignes attendues = {{CVERSE_UNIX, "a", 2}, {CVERSE_EOF, ""}};
    EXPECT_EQ(lire("a\n"), attendues);
    EXPECT_EQ(lire("b\x1A" + x(1000)), lignes{ligne(CVERSE_CTRLZ, "b", 2)});
    EXPECT_EQ(lire("a\n"), attendues);  // nothing of the file before is left
}

// ------------------------------------------------- where a line stood

TEST(Lecteur, Places) {
    // Number, offset, bytes before the end, first forbidden column.
    EXPECT_EQ(places("a\nbcd\r\ne\rfg"),
              (std::vector<place>{{1, 0, 1, 0}, {2, 2, 3, 0}, {3, 7, 1, 0}, {4, 9, 2, 0}}));
    EXPECT_EQ(places(""), (std::vector<place>{{1, 0, 0, 0}}));
    EXPECT_EQ(places("\n\r\n\r"),
              (std::vector<place>{{1, 0, 0, 0}, {2, 1, 0, 0}, {3, 3, 0, 0}, {4, 4, 0, 0}}));
    EXPECT_EQ(places("ab\ncd\x1A" + x(10)), (std::vector<place>{{1, 0, 2, 0}, {2, 3, 2, 0}}));
    // Every byte of a long line counts, and a zero byte is one.
    EXPECT_EQ(places(x(300) + "\n" + x(5, '\0') + "\n"),
              (std::vector<place>{{1, 0, 300, 0}, {2, 301, 5, 1}, {3, 307, 0, 0}}));
    EXPECT_EQ(places(x(256) + "\r\n" + x(256) + "\r\n"),
              (std::vector<place>{{1, 0, 256, 0}, {2, 258, 256, 0}, {3, 516, 0, 0}}));
}

TEST(Lecteur, PremiereColonneInterdite) {
    for (const std::size_t colonne : {1U, 2U, 255U, 256U, 257U, 300U, 70000U}) {
        std::string r = x(colonne < 256 ? 256 : colonne);
        r[colonne - 1] = '\t';
        const std::string autre = r + "\x80";
        EXPECT_EQ(places(r + "\n")[0].interdite, static_cast<long long>(colonne));
        EXPECT_EQ(places(autre + "\nx\n")[0].interdite, static_cast<long long>(colonne))
            << "the first of two";
        EXPECT_EQ(places(autre + "\nx\n")[1].interdite, 0) << "of one line only";
    }
}

TEST(Lecteur, PlacesAuDelaDUnBloc) {
    std::string octets;
    while (octets.size() < 3 * BLOC)
        octets += x(256) + "\r\n";
    const std::vector<place> p = places(octets);
    ASSERT_EQ(p.size(), octets.size() / 258 + 1);
    for (std::size_t i = 0; i < p.size(); ++i) {
        const auto n = static_cast<long long>(i);
        EXPECT_EQ(p[i], (place{n + 1, 258 * n, i + 1 < p.size() ? 256 : 0, 0}));
    }
}

// -------------------------------------------------------- read errors

TEST(Lecteur, ErreurDeLecture) {
    const std::string octets = x(256) + "\n" + x(256) + "\n";
    const struct {
        std::size_t lisibles;
        lignes attendues;
    } cas[] = {
        {0, {{CVERSE_EOF, ""}}},
        {10, {{CVERSE_EOF, x(10)}}},
        {256, {{CVERSE_EOF, x(256)}}},
        {257, {{CVERSE_UNIX, x(256)}, {CVERSE_EOF, ""}}},
        {300, {{CVERSE_UNIX, x(256)}, {CVERSE_EOF, x(43)}}},
        {514, {{CVERSE_UNIX, x(256)}, {CVERSE_UNIX, x(256)}, {CVERSE_EOF, ""}}},
    };
    for (const auto& c : cas) {
        essai::memoire source(octets, c.lisibles);
        const lecture lu = parcourir(source);
        EXPECT_EQ(lu.lignes, c.attendues) << c.lisibles;
        EXPECT_TRUE(lu.erreur) << c.lisibles;
        EXPECT_EQ(source.appels, 1) << "a source that has failed is not asked again";
    }
    EXPECT_EQ(lire("a\n").size(), 2U);
}

TEST(Lecteur, ErreurDeLectureDerriereUnBlocEntier) {
    // The first block comes whole, the next one not at all.
    std::string octets;
    while (octets.size() < 2 * BLOC)
        octets += x(255) + "\n";
    essai::memoire source(octets, BLOC);
    const lecture lu = parcourir(source);
    EXPECT_EQ(lu.lignes.size(), BLOC / 256 + 1);
    EXPECT_EQ(lu.lignes.back(), ligne(CVERSE_EOF, ""));
    EXPECT_TRUE(lu.erreur);
    EXPECT_EQ(source.appels, 2);
}

TEST(Lecteur, UnCRDevantLErreurFinitSaLigne) {
    essai::memoire source("ab\r\n", 3);
    const lecture lu = parcourir(source);
    EXPECT_EQ(lu.lignes, (lignes{{CVERSE_MAC, "ab", 2}, {CVERSE_EOF, ""}}));
    EXPECT_TRUE(lu.erreur);
}

TEST(Lecteur, UnCtrlZDevantLErreurFinitLeFichier) {
    essai::memoire source("ab\x1Axyz", 3);
    EXPECT_EQ(parcourir(source).lignes, lignes{ligne(CVERSE_CTRLZ, "ab", 2)});
}

TEST(Lecteur, LaSourceEstLueParBlocsEtSaFinUneFois) {
    const struct {
        std::size_t taille;
        int appels;
    } cas[] = {{0, 1}, {10, 1}, {BLOC - 1, 1}, {BLOC, 2}, {BLOC + 1, 2}, {2 * BLOC, 3}};
    for (const auto& c : cas) {
        essai::memoire source(x(c.taille));
        EXPECT_EQ(parcourir(source).lignes.size(), 1U);
        EXPECT_EQ(source.appels, c.appels) << c.taille;
    }
}
