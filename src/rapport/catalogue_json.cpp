#include "rapport/catalogue_json.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <algorithm>
#include <vector>

#include "catalogue/erreurs.h"
#include "catalogue/exemples.h"
#include "catalogue/verifs.h"
#include "messages/aiguillage.h"
#include "rapport/mots.h"
#include "rapport/phrases.h"

namespace quilvane {

namespace {

using ecrivain = rapidjson::Writer<rapidjson::StringBuffer>;

void chaine(ecrivain& w, std::string_view t) {
    w.String(t.data(), static_cast<rapidjson::SizeType>(t.size()));
}
void membre(ecrivain& w, const char* cle, std::string_view valeur) {
    w.Key(cle);
    chaine(w, valeur);
}
void membreOuNul(ecrivain& w, const char* cle, const std::string& valeur) {
    w.Key(cle);
    if (valeur.empty())
        w.Null();
    else
        chaine(w, valeur);
}

constexpr texte T_ENTETE = {"en-tête de tout enregistrement", "header of every record"};
constexpr texte T_PIED = {"pied de tout enregistrement", "footer of every record"};

void regle(ecrivain& w, const sTable& t, const sCorps* ligne, eLangue langue) {
    const sRegle& r = regleDe(ligne, langue);
    w.StartObject();
    membre(w, "verification", r.verif != nullptr ? r.verif->nom : "");
    membreOuNul(w, "liste", r.liste != nullptr ? r.liste->nom : "");
    membreOuNul(w, "dependance", r.dependance.table != nullptr ? nomDuChamp(r.dependance) : "");
    w.Key("numero");
    w.Int(ligne->noErr);
    w.Key("genres");
    w.StartObject();
    for (const char* genre : GENRES_A_COLONNE) {
        constexpr const char* CODES[] = {"verifie", "ignore", "interdit"};
        membre(w, genre, CODES[presenceDe(t, ligne, genre)]);
    }
    w.EndObject();
    membre(w, "phrase", r.phrase);
    w.EndObject();
}

void table(ecrivain& w, const sTable& t, eLangue langue) {
    w.StartObject();
    membre(w, "table", t.nom);
    membre(w, "titre", titreDeTable(t, langue));
    w.Key("genres");
    w.StartArray();
    for (const std::string_view genre : genresDe(t.nom))
        chaine(w, genre);
    w.EndArray();
    w.Key("cle");
    const sAiguillage& route = tAiguillage[aiguiller(t.nom)];
    if (route.code != CODE_INCONNU && route.champErrC7 != CINC) {
        w.StartObject();
        membre(w, "pays", "C" + std::to_string(route.champErrC7 + 1));
        membre(w, "numero", "C" + std::to_string(route.champErrC8 + 1));
        w.EndObject();
    } else {
        w.Null();
    }
    w.Key("champs");
    w.StartArray();
    for (const sCorps* ligne = t.lignes; ligne != t.lignes + t.nombre;) {
        const sPlace p = placeDe(ligne);
        w.StartObject();
        membre(w, "champ", nomDuChamp(p));
        w.Key("fente");
        w.Int(p.emplacement + 1);
        w.Key("colonnes");
        w.StartArray();
        w.Int(ligne->debut);
        w.Int(ligne->fin);
        w.EndArray();
        membre(w, "libelle", libelleDuChamp(p, langue));
        w.Key("regles");
        w.StartArray();
        do {
            if (ligne->pfVerif != nullptr) regle(w, t, ligne, langue);
        } while (++ligne != t.lignes + t.nombre && ligne->debut == 0);
        w.EndArray();
        w.EndObject();
    }
    w.EndArray();
    w.EndObject();
}

void lesErreurs(ecrivain& w, eLangue langue) {
    w.Key("erreurs");
    w.StartArray();
    for (const sErreur& e : erreurs) {
        w.StartObject();
        w.Key("numero");
        w.Int(e.numero);
        membre(w, "code", codeDErreur(e.numero));
        membre(w, "titre", e.titre.en_langue(langue));
        membre(w, "sens", e.sens.en_langue(langue));
        membre(w, "remede", e.remede.en_langue(langue));
        w.Key("ou");
        w.StartArray();
        for (const std::string& lieu : lieuxDe(e.numero))
            chaine(w, lieu);
        w.EndArray();
        w.EndObject();
    }
    w.EndArray();
    w.Key("fatals");
    w.StartArray();
    for (const sFatal& f : fatals) {
        w.StartObject();
        membre(w, "code", f.code);
        membre(w, "titre", f.titre.en_langue(langue));
        membre(w, "sens", f.sens.en_langue(langue));
        membre(w, "remede", f.remede.en_langue(langue));
        w.EndObject();
    }
    w.EndArray();
}

void lesListes(ecrivain& w, eLangue langue) {
    w.Key("listes");
    w.StartArray();
    for (const sListe& l : listes) {
        w.StartObject();
        membre(w, "nom", l.nom);
        membre(w, "titre", l.titre.en_langue(langue));
        membre(w, "contenu", l.contenu.en_langue(langue));
        w.Key("colonnes");
        w.Int(l.colonnes);
        w.Key("valeurs");
        w.StartArray();
        for (int i = 0; i < l.nombre; ++i)
            chaine(w, l.entrees[i].valeur);
        w.EndArray();
        w.EndObject();
    }
    w.EndArray();
}

void lesExemples(ecrivain& w, const sTable* seule) {
    w.Key("exemples");
    w.StartArray();
    for (const sTable& t : tables()) {
        if (seule != nullptr && seule != &t) continue;
        for (const std::string_view genre : genresDe(t.nom)) {
            w.StartObject();
            membre(w, "type", t.nom);
            membre(w, "genre", genre);
            membre(w, "texte", exemple(t.nom, genre));
            w.EndObject();
        }
    }
    w.EndArray();
}

}  // namespace

std::string titreDeTable(const sTable& t, eLangue langue) {
    if (std::string_view(t.nom) == "E") return T_ENTETE.en_langue(langue);
    if (std::string_view(t.nom) == "F") return T_PIED.en_langue(langue);
    const sNom* const type = typeDe(t.nom);
    return type != nullptr ? type->libelle.en_langue(langue) : "";
}

std::vector<std::string> lieuxDe(int numero) {
    std::vector<std::string> r;
    for (const sTable& t : tables()) {
        for (int i = 0; i < t.nombre; ++i) {
            if (t.lignes[i].pfVerif == nullptr || t.lignes[i].noErr != numero) continue;
            const std::string lieu =
                (t.partie[0] == 'C' ? std::string(t.nom) + " " : "") + nomDuChamp(placeDe(&t.lignes[i]));
            if (r.empty() || r.back() != lieu) r.push_back(lieu);
        }
    }
    return r;
}

std::string catalogueJson(eLangue langue, const sTable* seule) {
    rapidjson::StringBuffer tampon;
    ecrivain w(tampon);
    w.StartObject();
    membre(w, "format", "quilvane-catalogue/1");
    membre(w, "langue", langue == FRANCAIS ? "fr" : "en");
    w.Key("tables");
    w.StartArray();
    for (const sTable& t : tables())
        if (seule == nullptr || seule == &t) table(w, t, langue);
    w.EndArray();
    if (seule == nullptr) {
        lesErreurs(w, langue);
        lesListes(w, langue);
    }
    lesExemples(w, seule);
    w.EndObject();
    return {tampon.GetString(), tampon.GetSize()};
}

}  // namespace quilvane
