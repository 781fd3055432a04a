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
#include "rapport/diagnostic.h"
#include "rapport/mots.h"
#include "rapport/retour.h"

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
    "Ce fichier n'est pas celui auquel {0} répond : l'enregistrement en erreur n° {1} n'y correspond à rien.",
    "This file is not the one that {0} answers: its error record no. {1} has no counterpart there."};

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

void voirRefus(void* qui, const sRecordVu& r) {
    sRapprochement& x = *static_cast<sRapprochement*>(qui);
    if (rapprocher(*x.retour, r, x.vus) < x.vus.size())
        x.texte += refusEnTexte(r, visible(x.demande->source), x.demande->langue, x.couleur);
}

}  // namespace

int retour(const sDemandeLue& d) {
    sFichier fichier;
    if (!ouvrir(fichier, d.arguments[0]))
        return plaindre(T_ILLISIBLE, d.langue, {visible(d.arguments[0]), raisonDe(errno, d.langue)});
    long long faux = 0;
    const sRetour r = lireErreurs(fichier.lecture, faux);
    fermer(fichier);
    if (fichier.lecture.erreur)
        return plaindre(T_ILLISIBLE, d.langue, {visible(d.arguments[0]), raisonDe(fichier.cause, d.langue)});
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
        examiner(source.lecture, d.source, {.langue = d.langue}, {nullptr, voirRefus, &x});
        fermer(source);
        if (source.lecture.erreur)
            return plaindre(T_ILLISIBLE, d.langue, {visible(d.source), raisonDe(source.cause, d.langue)});
        t += x.texte;
        for (std::size_t k = 0; k < x.vus.size() && statut != STATUT_ARRET; ++k) {
            if (x.vus[k]) continue;
            statut = plaindre(T_AUTRE, d.langue, {visible(d.arguments[0]), std::to_string(k + 1)});
        }
    }
    return imprimer(t, d.langue) ? statut : STATUT_ARRET;
}

}  // namespace quilvane::guide
