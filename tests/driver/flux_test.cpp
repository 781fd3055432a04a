#include "driver/flux.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "support/banc.h"
#include "support/generateur.h"
#include "vocabulaire/store.h"

using namespace quilvane;

namespace {

/** One read: how it ended, what it holds, and the flags it raised. */
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

/** Reads `octets` up to its end; the text of a line ends at its first zero byte. */
std::vector<ligne> lire(const std::string& octets) {
    std::FILE* const f = std::tmpfile();
    if (f == nullptr || std::fwrite(octets.data(), 1, octets.size(), f) != octets.size()) throw 1;
    std::rewind(f);
    ouvrirFlux(f);
    std::vector<ligne> lignes;
    char tampon[TAILLE_TAMPON] = {};
    int fin = 0;
    do {
        std::memset(tampon, '?', sizeof tampon - 1);
        codLong = codCaract = 7;
        fin = cverseFgets(tampon);
        lignes.push_back({fin, tampon, codLong, codCaract});
        // At most 256 characters and the terminator are written.
        if (std::strspn(tampon + 257, "?") != sizeof tampon - 258)
            ADD_FAILURE() << "too many characters stored";
    } while (fin != CVERSE_EOF && fin != CVERSE_CTRLZ);
    EXPECT_FALSE(fluxEnErreur());
    std::fclose(f);
    return lignes;
}

/** The same read byte by byte, as plainly as can be. */
std::vector<ligne> modele(const std::string& octets) {
    std::vector<ligne> lignes;
    std::string texte;
    int longueur = 0;
    int caract = 0;
    const auto rendre = [&](int fin) {
        const bool finDeLigne = fin == CVERSE_DOS || fin == CVERSE_UNIX || fin == CVERSE_MAC;
        if (fin != CVERSE_EOF && !texte.empty() && texte.size() < 256) longueur = 2;
        lignes.push_back(
            {finDeLigne && texte.empty() ? CVERSE_LONGNULLE : fin, texte.c_str(), longueur, caract});
        texte.clear();
        longueur = caract = 0;
    };
    for (std::size_t i = 0; i < octets.size(); ++i) {
        const auto o = static_cast<unsigned char>(octets[i]);
        if (o == 0x1A) {
            rendre(CVERSE_CTRLZ);
            return lignes;
        }
        if (o == '\n') {
            rendre(CVERSE_UNIX);
        } else if (o == '\r') {
            const bool dos = i + 1 < octets.size() && octets[i + 1] == '\n';
            i += dos ? 1 : 0;
            rendre(dos ? CVERSE_DOS : CVERSE_MAC);
        } else {
            if (o < 0x20 || o > 0x7E) caract = 1;
            if (texte.size() == 256)
                longueur = 1;
            else
                texte += octets[i];
        }
    }
    rendre(CVERSE_EOF);
    return lignes;
}

constexpr std::size_t BLOC = 65536;

std::string x(std::size_t n, char c = 'x') { return std::string(n, c); }

using lignes = std::vector<ligne>;

}  // namespace

TEST(Flux, FinsDeLigne) {
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

TEST(Flux, CtrlZ) {
    EXPECT_EQ(lire("\x1Ax\n"), lignes{ligne(CVERSE_CTRLZ, "")});
    EXPECT_EQ(lire("ab\x1Ax\n"), lignes{ligne(CVERSE_CTRLZ, "ab", 2)});
    EXPECT_EQ(lire("a\r\x1A\n"), (lignes{{CVERSE_MAC, "a", 2}, {CVERSE_CTRLZ, ""}}));
    EXPECT_EQ(lire(x(256) + "\x1A"), lignes{ligne(CVERSE_CTRLZ, x(256))});
    EXPECT_EQ(lire(x(290) + "\x1A"), lignes{ligne(CVERSE_CTRLZ, x(256), 1)});
}

TEST(Flux, Longueurs) {
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

TEST(Flux, UneLigneSansFinNEstPasTropCourte) {
    EXPECT_EQ(lire(x(10)), lignes{ligne(CVERSE_EOF, x(10), 0)});
    EXPECT_EQ(lire(x(257)), lignes{ligne(CVERSE_EOF, x(256), 1)});
}

TEST(Flux, OctetsInterdits) {
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

TEST(Flux, UnOctetNulCompteDansLaLongueur) {
    EXPECT_EQ(lire(x(3, '\0') + "\n")[0], ligne(CVERSE_UNIX, "", 2, 1));
    EXPECT_EQ(lire(x(200) + x(56, '\0') + "\n")[0], ligne(CVERSE_UNIX, x(200), 0, 1));
    EXPECT_EQ(lire(x(200) + x(57, '\0') + "\n")[0], ligne(CVERSE_UNIX, x(200), 1, 1));
}

TEST(Flux, BordsDeBloc) {
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
                    ASSERT_EQ(lire(octets), modele(octets)) << ecart << " " << suite.size();
                }
            }
        }
    }
}

TEST(Flux, UnFichierDUnBlocEntier) {
    for (const std::size_t n : {BLOC - 1, BLOC, BLOC + 1, 2 * BLOC}) {
        SCOPED_TRACE(n);
        for (const char* fin : {"\n", "\r", "\r\n", "", "\x1A"}) {
            const std::string octets = x(n - std::strlen(fin)) + fin;
            EXPECT_EQ(lire(octets), modele(octets));
        }
    }
}

TEST(Flux, OctetsAuHasard) {
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
        ASSERT_EQ(lire(octets), modele(octets)) << "essai " << essai;
    }
}

TEST(Flux, OuvrirRecommence) {
    const lignes attendues = {{CVERSE_UNIX, "a", 2}, {CVERSE_EOF, ""}};
    EXPECT_EQ(lire("a\n"), attendues);
    EXPECT_EQ(lire("b\x1A" + x(1000)), lignes{ligne(CVERSE_CTRLZ, "b", 2)});
    EXPECT_EQ(lire("a\n"), attendues);  // nothing of the file before is left
}

TEST(Flux, ErreurDeLecture) {
    // A folder can be opened but not read.
    const essai::dossier d;
    std::FILE* const f = std::fopen(d.chemin.c_str(), "rb");
    ASSERT_NE(f, nullptr);
    ouvrirFlux(f);
    char tampon[TAILLE_TAMPON];
    EXPECT_FALSE(fluxEnErreur());
    EXPECT_EQ(cverseFgets(tampon), CVERSE_EOF);
    EXPECT_STREQ(tampon, "");
    EXPECT_TRUE(fluxEnErreur());
    std::fclose(f);
    EXPECT_EQ(lire("a\n").size(), 2U);
}
