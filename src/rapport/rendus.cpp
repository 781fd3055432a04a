#include "rapport/rendus.h"

#include "catalogue/erreurs.h"
#include "page/page.h"
#include "rapport/catalogue_json.h"
#include "rapport/diagnostic.h"
#include "rapport/explication.h"
#include "rapport/json.h"
#include "rapport/mots.h"

namespace quilvane {

namespace {

constexpr std::string_view BOM = "\xEF\xBB\xBF";

bool estJson(const sRapport& r) { return r.format == FORMAT_JSON || r.format == FORMAT_HTML; }

/** Writes a piece of JSON; inside a page it may hold no "<". */
void donner(const sRapport& r, std::string_view json) {
    if (r.format == FORMAT_HTML)
        r.sortie(dansLaPage(json));
    else
        r.sortie(json);
}

const char* codeDeLangue(eLangue langue) { return langue == FRANCAIS ? "fr" : "en"; }

/** A CSV cell: always quoted, its quotes doubled. */
void cellule(std::string& ligne, std::string_view t) {
    ligne += ligne.empty() || ligne.ends_with('\n') ? "\"" : ";\"";
    for (const char c : t) {
        if (c == '"') ligne += '"';
        ligne += c;
    }
    ligne += '"';
}

constexpr const char* COLONNES_CSV[] = {
    "nom",          "ligne",   "colonne",    "enregistrement",    "type",     "genre",  "cle",     "partie",
    "champ",        "libelle", "fente",      "colonnes",          "valeur",   "numero", "code",    "origine",
    "verification", "liste",   "dependance", "valeur_dependance", "derriere", "titre",  "message", "remede",
    "proches"};

void constatCsv(std::string& s, const sRapport& r, const sRecordVu& v, const sErreurVue& e) {
    const bool champ = e.place.table != nullptr;
    const sRegle regle = e.regle != nullptr ? *e.regle : sRegle{};
    const sErreur* const texte = erreurDe(e.numero);
    std::string proches;
    for (int i = 0; i < e.proches.nombre; ++i)
        proches += (i > 0 ? ", " : "") + std::string(e.proches.valeurs[i]);
    cellule(s, r.nom);
    cellule(s, std::to_string(v.ligne));
    cellule(s, std::to_string(e.colonne));
    cellule(s, std::to_string(v.rang));
    cellule(s, visible(v.type));
    cellule(s, visible(v.genre));
    cellule(s, visible(v.cle));
    cellule(s, champ ? e.place.table->partie : "");
    cellule(s, champ ? nomDuChamp(e.place) : "");
    cellule(s, champ ? libelleDuChamp(e.place, r.langue) : "");
    cellule(s, champ ? std::to_string(e.place.emplacement + 1) : "");
    cellule(s, e.debut != 0 ? std::to_string(e.debut) + "-" + std::to_string(e.fin) : "");
    cellule(s, visible(e.valeur));
    cellule(s, std::to_string(e.numero));
    cellule(s, codeDErreur(e.numero));
    cellule(s, nomDOrigine(e.origine));
    cellule(s, regle.verif != nullptr ? regle.verif->nom : "");
    cellule(s, regle.liste != nullptr ? regle.liste->nom : "");
    cellule(s, regle.dependance.table != nullptr ? nomDuChamp(regle.dependance) : "");
    cellule(s, visible(e.valeurDependance));
    cellule(s, e.derriere ? "1" : "");
    cellule(s, texte != nullptr ? texte->titre.en_langue(r.langue) : "");
    cellule(s, messageDe(e, r.langue));
    cellule(s, texte != nullptr ? texte->remede.en_langue(r.langue) : "");
    cellule(s, proches);
    s += "\r\n";
}

void voirRefus(void* qui, const sRecordVu& v) {
    sRapport& r = *static_cast<sRapport*>(qui);
    if (r.format == FORMAT_TEXTE) {
        r.sortie(refusEnTexte(v, r.nom, r.langue, r.couleur));
        r.constats += static_cast<long long>(v.erreurs.size());
        return;
    }
    std::string& s = r.tampon;
    s.clear();
    if (r.format == FORMAT_CSV)
        for (const sErreurVue& e : v.erreurs)
            constatCsv(s, r, v, e);
    if (r.format == FORMAT_JSONL) {
        ajouterConstats(s, v, r.constats, r.langue, "\n", &r.nom);
        s += '\n';
    }
    if (estJson(r)) {
        s += r.constats > 0 ? ",\n" : "\n";
        ajouterConstats(s, v, r.constats, r.langue, ",\n");
    }
    r.constats += static_cast<long long>(v.erreurs.size());
    donner(r, s);
    if (r.avecTextes)
        r.textes +=
            (r.textes.empty() ? "\"" : ",\"") + std::to_string(v.rang) + "\":" + chaineJson(visible(v.texte));
}

void voirAvertissement(void* qui, const sAvertissement& a) {
    sRapport& r = *static_cast<sRapport*>(qui);
    if (r.format == FORMAT_TEXTE)
        r.sortie(avertissementEnTexte(a, r.nom, r.langue, r.couleur));
    else if (estJson(r))
        r.avertissements += (r.avertissements.empty() ? "" : ",") + avertissementJson(a);
}

}  // namespace

void commencerRapport(sRapport& r) {
    r.avecTextes = r.avecTextes || r.format == FORMAT_HTML;
    if (r.format == FORMAT_HTML) {
        r.sortie(pageDebut);
        r.sortie(codeDeLangue(r.langue));
        r.sortie(pageRapport);
    }
    if (estJson(r))
        donner(r, std::string(R"({"format":"quilvane-rapport/1","langue":")") + codeDeLangue(r.langue) +
                      R"(","fichiers":[)");
    if (r.format == FORMAT_CSV) {
        std::string s(BOM);
        std::string titres;
        for (const char* c : COLONNES_CSV)
            cellule(titres, c);
        r.sortie(s + titres + "\r\n");
    }
}

void commencerFichier(sRapport& r, std::string_view nom) {
    r.nom = visible(nom);
    r.constats = 0;
    r.avertissements.clear();
    r.textes.clear();
    if (estJson(r))
        donner(r,
               (r.premierFichier ? "\n{\"nom\":" : ",\n{\"nom\":") + chaineJson(r.nom) + ",\"constats\":[");
    r.premierFichier = false;
}

sRendu renduDe(sRapport& r) { return {voirAvertissement, voirRefus, &r}; }

void terminerFichier(sRapport& r, const sResume& resume) {
    if (r.format == FORMAT_TEXTE) return r.sortie(resumeEnTexte(resume, r.nom, r.langue, r.couleur));
    if (!estJson(r)) return;
    std::string s = "],\"avertissements\":[" + r.avertissements + "],";
    if (r.avecTextes) s += "\"textes\":{" + r.textes + "},";
    donner(r, s + resumeJson(resume, r.langue) + "}");
}

void fichierIllisible(sRapport& r, std::string_view nom, std::string_view raison) {
    commencerFichier(r, nom);
    sResume resume;
    resume.nom = nom;
    resume.statut = 1;
    resume.fatal = eFatal::IG003;
    voirAvertissement(&r, {0, 0, "illisible", visible(raison)});
    terminerFichier(r, resume);
}

void terminerRapport(sRapport& r, std::span<const sResume> fichiers) {
    if (r.format == FORMAT_TEXTE && fichiers.size() > 1)
        r.sortie(bilanEnTexte(fichiers, r.langue, r.couleur));
    if (estJson(r)) r.sortie("\n]}\n");
    if (r.format == FORMAT_HTML) {
        r.sortie(pageCatalogue);
        r.sortie(dansLaPage(catalogueJson(r.langue)));
        r.sortie(pageFin);
    }
}

}  // namespace quilvane
