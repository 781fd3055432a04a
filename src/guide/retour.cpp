/**
 * retour - explains an error file that quilvane published. An ERRE record
 * carries its codes but neither column nor value; the file that it answers,
 * when it is given, is examined again and leads each one back to its record.
 */
#include <cerrno>
#include <cstdio>

#include "catalogue/erreurs.h"
#include "checks/lecture.h"
#include "guide/commandes.h"
#include "guide/fiches.h"
#include "guide/fichiers.h"
#include "messages/aiguillage.h"
#include "rapport/diagnostic.h"
#include "rapport/mots.h"

namespace quilvane::guide {

namespace {

constexpr texte T_ILLISIBLE = {"{0} ne peut être lu : {1}", "{0} cannot be read: {1}"};
constexpr texte T_PAS_ERREURS = {"{0} n'est pas un fichier d'erreurs de quilvane (ligne {1})",
                                 "{0} is not an error file of quilvane (line {1})"};
constexpr texte T_TITRE = {"{0} : {1}, {2}", "{0}: {1}, {2}"};
constexpr accord RECUS = {{"{0} message reçu", "{0} message received"},
                          {"{0} messages reçus", "{0} messages received"}};
constexpr accord EN_ERREUR = {{"{0} enregistrement en erreur", "{0} record in error"},
                              {"{0} enregistrements en erreur", "{0} records in error"}};
constexpr texte T_LIGNE = {"ligne {0} : {1}", "line {0}: {1}"};
constexpr texte T_SANS_SOURCE = {
    "Donnez le fichier d'origine avec --source pour voir la ligne et la colonne de chaque erreur.",
    "Give the file that was sent with --source to see the line and column of each error."};
constexpr texte T_AUTRE = {
    "Ce fichier n'est pas celui auquel {0} répond : l'enregistrement en erreur n° {1} n'a pas son pareil.",
    "This file is not the one that {0} answers: its error record no. {1} has no equal."};

constexpr int COL_RECUS = 101;
constexpr int LARGEUR_COMPTE = 6;
constexpr int COL_TYPE = 63;
constexpr int COL_GENRE = 67;
constexpr int COL_CLE = 72;
constexpr int LARGEUR_CLE = 12;
constexpr int COL_CODES = 112;
constexpr int LARGEUR_CODE = 5;

/** One ERRE record. */
struct sErre {
    long long ligne;
    std::string type, genre, cle;
    std::vector<int> numeros;
};

std::string zone(std::string_view t, int debut, int largeur) {
    return std::string(
        sansBlancs(t.substr(static_cast<std::size_t>(debut - 1), static_cast<std::size_t>(largeur))));
}

/** The codes "I%03d1" from column 112 on. */
std::vector<int> numerosDe(std::string_view t) {
    std::vector<int> r;
    for (int k = 0; k < MAX_ERREURS; ++k) {
        const std::string c = zone(t, COL_CODES + k * LARGEUR_CODE, LARGEUR_CODE);
        if (c.size() != LARGEUR_CODE || c[0] != 'I' ||
            c.find_first_not_of("0123456789", 1) != std::string::npos)
            break;
        r.push_back(std::stoi(c.substr(1, 3)));
    }
    return r;
}

struct sRetour {
    std::vector<sErre> erres;
    long long recus;  // messages received, as the FICH record counts them
};

/** Reads an error file; the line that is none in `faux`, 0 when all is well. */
sRetour lireErreurs(lecteur& source, long long& faux) {
    sRetour r = {};
    static ligneLue ligne;
    bool premiere = true;
    faux = 0;
    for (cverseFgetsRet fin; (fin = cverseFgets(source, ligne)) != CVERSE_EOF && fin != CVERSE_CTRLZ;) {
        const std::string_view t(
            ligne.texte,
            static_cast<std::size_t>(ligne.longueur < LARGEUR_VSE ? ligne.longueur : LARGEUR_VSE));
        const bool court = t.size() < COL_CODES + LARGEUR_CODE;
        const std::string type = court ? "" : zone(t, 22, 4);
        if (type != (premiere ? "FICH" : "ERRE")) {
            faux = ligne.numero;
            return r;
        }
        if (premiere) {
            r.recus = nombre(zone(t, COL_RECUS, LARGEUR_COMPTE).c_str());
            premiere = false;
            continue;
        }
        r.erres.push_back({ligne.numero, zone(t, COL_TYPE, 4), zone(t, COL_GENRE, 3),
                           zone(t, COL_CLE, LARGEUR_CLE), numerosDe(t)});
    }
    if (premiere) faux = 1;
    return r;
}

int plaindre(const texte& m, eLangue langue, std::initializer_list<std::string_view> arguments) {
    std::fprintf(stderr, "quilvane-guide: %s\n", remplir(m, langue, arguments).c_str());
    return STATUT_ARRET;
}

std::string sansSource(const sRetour& r, const sDemandeLue& d, const sStyles& s) {
    std::string t;
    for (const sErre& e : r.erres) {
        t += std::string("\n") + s.fort +
             remplir(T_LIGNE, d.langue,
                     {std::to_string(e.ligne), visible(e.type + " " + e.genre + " " + e.cle)}) +
             s.fin + "\n";
        const sTable* const table = tableNommee(e.type);
        for (const int n : e.numeros) {
            const sErreur* const texte = erreurDe(n);
            t += s.erreur + std::string("  ") + codeDErreur(n) + "  " +
                 (texte != nullptr ? texte->titre.en_langue(d.langue) : "") + s.fin + "\n";
            if (texte == nullptr) continue;
            t += enPages(texte->sens.en_langue(d.langue), "    ") +
                 enPages(texte->remede.en_langue(d.langue), "    ");
            t += reglesDuNumero(n, {.table = table, .genre = e.genre}, d.langue, s);
        }
    }
    return t + "\n" + T_SANS_SOURCE.en_langue(d.langue) + "\n";
}

/** The comparison of an error file with what examining its source finds. */
struct sRapprochement {
    const sRetour* retour;
    const sDemandeLue* demande;
    bool couleur;
    std::vector<bool> vus;
    std::string texte;
};

bool repond(const sErre& e, const sRecordVu& r) {
    if (e.type != r.type || e.genre != r.genre || e.numeros.size() != r.erreurs.size()) return false;
    for (std::size_t i = 0; i < e.numeros.size(); ++i)
        if (e.numeros[i] != r.erreurs[i].numero) return false;
    return true;
}

void rapprocher(void* qui, const sRecordVu& r) {
    sRapprochement& x = *static_cast<sRapprochement*>(qui);
    for (std::size_t k = 0; k < x.retour->erres.size(); ++k) {
        if (x.vus[k] || !repond(x.retour->erres[k], r)) continue;
        x.vus[k] = true;
        x.texte += refusEnTexte(r, visible(x.demande->source), x.demande->langue, x.couleur);
        return;
    }
}

}  // namespace

int retour(const sDemandeLue& d) {
    sFichier fichier;
    if (!ouvrir(fichier, d.arguments[0]))
        return plaindre(T_ILLISIBLE, d.langue, {visible(d.arguments[0]), raisonDe(errno, d.langue)});
    long long faux = 0;
    const sRetour r = lireErreurs(fichier.lecture, faux);
    fermer(fichier);
    if (faux != 0) return plaindre(T_PAS_ERREURS, d.langue, {visible(d.arguments[0]), std::to_string(faux)});

    const bool couleur = enCouleur(d);
    const sStyles& s = styles(couleur);
    std::string t = s.fort +
                    remplir(T_TITRE, d.langue,
                            {visible(d.arguments[0]), accorder(RECUS, r.recus, d.langue),
                             accorder(EN_ERREUR, static_cast<long long>(r.erres.size()), d.langue)}) +
                    s.fin + "\n";
    int statut = r.erres.empty() ? STATUT_ACCEPTE : STATUT_REFUSE;
    if (d.source.empty()) {
        t += sansSource(r, d, s);
    } else {
        sFichier source;
        if (!ouvrir(source, d.source))
            return plaindre(T_ILLISIBLE, d.langue, {visible(d.source), raisonDe(errno, d.langue)});
        sRapprochement x = {&r, &d, couleur, std::vector<bool>(r.erres.size()), "\n"};
        examiner(source.lecture, d.source, {.langue = d.langue}, {nullptr, rapprocher, &x});
        fermer(source);
        t += x.texte;
        for (std::size_t k = 0; k < x.vus.size() && statut != STATUT_ARRET; ++k) {
            if (x.vus[k]) continue;
            statut = plaindre(T_AUTRE, d.langue, {visible(d.arguments[0]), std::to_string(k + 1)});
        }
    }
    return imprimer(t, d.langue) ? statut : STATUT_ARRET;
}

}  // namespace quilvane::guide
