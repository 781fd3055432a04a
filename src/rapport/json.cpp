#include "rapport/json.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <algorithm>
#include <unordered_map>

#include "catalogue/erreurs.h"
#include "rapport/mots.h"

namespace quilvane {

namespace {

/** A JSON object being written. A null text is written as null. */
struct objet {
    rapidjson::StringBuffer tampon;
    rapidjson::Writer<rapidjson::StringBuffer> w{tampon};

    void cle(std::string_view c) { w.Key(c.data(), static_cast<rapidjson::SizeType>(c.size())); }
    void texte(std::string_view t) { w.String(t.data(), static_cast<rapidjson::SizeType>(t.size())); }
    void texte(std::string_view c, std::string_view t) {
        cle(c);
        texte(t);
    }
    void texteOuNul(std::string_view c, const char* t) {
        cle(c);
        if (t != nullptr)
            texte(t);
        else
            w.Null();
    }
    void entier(std::string_view c, long long n) {
        cle(c);
        w.Int64(n);
    }
    void entierOuNul(std::string_view c, long long n, bool present) {
        cle(c);
        if (present)
            w.Int64(n);
        else
            w.Null();
    }
    std::string prendre() const { return {tampon.GetString(), tampon.GetSize()}; }
};

/** Written members without the braces around them, and a comma before. */
std::string membres(const objet& o) {
    std::string r = o.prendre();
    r.front() = ',';
    r.pop_back();
    return r;
}

/** The text within a JSON string, without the quotes. */
std::string interieur(std::string_view t) {
    const std::string chaine = chaineJson(t);
    return chaine.substr(1, chaine.size() - 2);
}

/** The members about a field, or only those that tell which one it is. */
std::string membresDuChamp(const sPlace& p, eLangue langue, bool bref) {
    const bool present = p.table != nullptr;
    objet o;
    o.w.StartObject();
    o.texteOuNul("partie", present ? p.table->partie : nullptr);
    o.texteOuNul("champ", present ? nomDuChamp(p).c_str() : nullptr);
    if (!bref) {
        o.texteOuNul("libelle", present ? libelleDuChamp(p, langue) : nullptr);
        o.entierOuNul("fente", p.emplacement + 1, present);
    }
    o.w.EndObject();
    return membres(o);
}

/** What an error number adds, written once for each number and language. */
struct sNumeroJson {
    std::string code, titre, remede;
};
const sNumeroJson& jsonDuNumero(int numero, eLangue langue) {
    static std::unordered_map<int, sNumeroJson> faits[2];
    sNumeroJson& r = faits[langue][numero];
    if (!r.code.empty()) return r;
    const sErreur* const texte = erreurDe(numero);
    r.code = ",\"numero\":" + std::to_string(numero) + ",\"code\":" + chaineJson(codeDErreur(numero));
    r.titre = ",\"titre\":" + chaineJson(texte != nullptr ? texte->titre.en_langue(langue) : "");
    r.remede = ",\"remede\":" + chaineJson(texte != nullptr ? texte->remede.en_langue(langue) : "");
    return r;
}

/** The members of an error that do not change from record to record, in order:
 *  between them stand the columns, the value depended on, the links. */
struct sPartsJson {
    std::string champ;
    std::string champBref;
    std::string numero;      // number, origin, check, list
    std::string numeroBref;  // number
    std::string dependance;  // up to the value; empty for none
    std::string titre;
    std::string debut;                 // the message up to its first value
    std::vector<std::string> message;  // the message behind each value
    std::string remede;
};

sPartsJson faireParts(const sErreurVue& e, eLangue langue) {
    const sNumeroJson& numero = jsonDuNumero(e.numero, langue);
    const bool verif = e.regle != nullptr && e.regle->verif != nullptr;
    objet o;
    o.w.StartObject();
    o.texte("origine", nomDOrigine(e.origine));
    o.texteOuNul("verification", verif ? e.regle->verif->nom : nullptr);
    o.texteOuNul("liste", verif && e.regle->liste != nullptr ? e.regle->liste->nom : nullptr);
    o.w.EndObject();
    sPartsJson p = {.champ = membresDuChamp(e.place, langue, false),
                    .champBref = membresDuChamp(e.place, langue, true),
                    .numero = numero.code + membres(o),
                    .numeroBref = numero.code,
                    .dependance = "",
                    .titre = numero.titre,
                    .debut = "",
                    .message = {},
                    .remede = numero.remede};
    if (e.regle != nullptr && e.regle->dependance.table != nullptr)
        p.dependance =
            ",\"dependance\":{\"champ\":" + chaineJson(nomDuChamp(e.regle->dependance)) + ",\"valeur\":\"";
    p.debut = ",\"message\":\"" + interieur(e.regle != nullptr ? e.regle->morceaux.front() : e.phrase);
    for (std::size_t i = 1; e.regle != nullptr && i < e.regle->morceaux.size(); ++i)
        p.message.push_back(guillemets(langue).apres + interieur(e.regle->morceaux[i]));
    return p;
}

/** Those of an error; a row's are made once. */
const sPartsJson& partsDe(const sErreurVue& e, eLangue langue) {
    static std::unordered_map<const sRegle*, sPartsJson> faites;
    static sPartsJson seule;
    if (e.regle == nullptr) return seule = faireParts(e, langue);
    const auto trouvee = faites.find(e.regle);
    if (trouvee != faites.end()) return trouvee->second;
    return faites.emplace(e.regle, faireParts(e, langue)).first->second;
}

void ajouterColonnes(std::string& s, const sErreurVue& e) {
    if (e.debut == 0) {
        s += ",\"colonnes\":null,\"valeur\":null";
        return;
    }
    s += ",\"colonnes\":[";
    s += std::to_string(e.debut);
    s += ',';
    s += std::to_string(e.fin);
    s += "],\"valeur\":\"";
    ajouterOctets(s, e.valeur);
    s += '"';
}

void ajouterDependance(std::string& s, const sErreurVue& e, const sPartsJson& parts) {
    if (parts.dependance.empty()) {
        s += ",\"dependance\":null";
        return;
    }
    s += parts.dependance;
    ajouterOctets(s, e.valeurDependance);
    s += "\"}";
}

void ajouterProches(std::string& s, const sProches& proches) {
    for (int i = 0; i < proches.nombre; ++i) {
        s += i == 0 ? ",\"proches\":[" : ",";
        s += chaineJson(proches.valeurs[i]);
    }
    if (proches.nombre > 0) s += ']';
}

/** The members of an error behind those of its record. */
void ajouterErreurVue(std::string& s, const sErreurVue& e, long long premier, eLangue langue, bool bref) {
    const sPartsJson& parts = partsDe(e, langue);
    s += bref ? parts.champBref : parts.champ;
    ajouterColonnes(s, e);
    s += bref ? parts.numeroBref : parts.numero;
    if (!bref || !parts.dependance.empty()) ajouterDependance(s, e, parts);
    if (!bref || e.decouleDe >= 0) {
        s += ",\"decoule_de\":";
        s += e.decouleDe >= 0 ? std::to_string(premier + e.decouleDe) : "null";
    }
    if (e.derriere) s += ",\"derriere\":true";
    if (!bref) s += parts.titre;
    s += parts.debut;
    for (const std::string& morceau : parts.message) {
        s += guillemets(langue).avant;
        ajouterOctets(s, e.valeurDependance);
        s += morceau;
    }
    s += '"';
    if (!bref) s += parts.remede;
    ajouterProches(s, e.proches);
    s += '}';
}

}  // namespace

void ajouterOctets(std::string& s, std::string_view octets) {
    const auto simple = [](char c) { return c >= 0x20 && c <= 0x7E && c != '"' && c != '\\'; };
    if (std::all_of(octets.begin(), octets.end(), simple))
        s += octets;
    else
        s += interieur(visible(octets));
}

const char* nomDOrigine(eOrigine origine) {
    constexpr const char* NOMS[] = {"table", "cadrage", "admission", "partenaire", "compagnon", "compte"};
    return NOMS[origine];
}

void ajouterConstats(std::string& s, const sRecordVu& r, long long premier, eLangue langue,
                     std::string_view separateur, const std::string* nom, bool bref) {
    const std::string ligne = (nom != nullptr ? "{\"nom\":" + chaineJson(*nom) + "," : "{") +
                              "\"ligne\":" + std::to_string(r.ligne) + ",\"colonne\":";
    std::string record = ",\"enregistrement\":" + std::to_string(r.rang) + ",\"type\":\"";
    ajouterOctets(record, r.type);
    record += "\",\"genre\":\"";
    ajouterOctets(record, r.genre);
    record += "\",\"cle\":\"";
    ajouterOctets(record, r.cle);
    record += '"';
    for (const sErreurVue& e : r.erreurs) {
        if (&e != &r.erreurs.front()) s += separateur;
        s += ligne;
        s += std::to_string(e.colonne);
        s += record;
        ajouterErreurVue(s, e, premier, langue, bref);
    }
}

std::string avertissementJson(const sAvertissement& a) {
    objet o;
    o.w.StartObject();
    o.entier("ligne", a.ligne);
    o.entier("colonne", a.colonne);
    o.texte("code", a.code);
    o.texte("message", a.message);
    o.w.EndObject();
    return o.prendre();
}

std::string resumeJson(const sResume& r, eLangue langue) {
    objet o;
    o.w.StartObject();
    o.entier("statut", r.statut);
    const int f = r.formatDuFichier;
    o.texteOuNul("fin_de_ligne", f == CVERSE_DOS ? "CRLF" : f == CVERSE_UNIX ? "LF" : nullptr);
    o.cle("fatal");
    const sFatal* const fatal = fatalDe(codeDe(r.fatal));
    if (fatal != nullptr) {
        o.w.StartObject();
        o.texte("code", fatal->code);
        o.entier("ligne", r.ligneFatale);
        o.texte("titre", fatal->titre.en_langue(langue));
        o.texte("message", fatal->sens.en_langue(langue));
        o.texte("remede", fatal->remede.en_langue(langue));
        o.w.EndObject();
    } else {
        o.w.Null();
    }
    o.entier("enregistrements", r.enregistrements);
    o.entier("acceptes", r.acceptes);
    o.entier("refuses", r.refuses);
    o.cle("resultat");
    o.w.StartObject();
    o.entier("statut", r.statut);
    o.texteOuNul("fichier", r.statut == 0 ? "accepte" : r.statut == 2 ? "erreurs" : nullptr);
    o.texte("phrase", issueDe(r, langue));
    o.w.EndObject();
    o.w.EndObject();
    const std::string entier = o.prendre();
    return entier.substr(1, entier.size() - 2);
}

std::string chaineJson(std::string_view utf8) {
    static rapidjson::StringBuffer tampon;
    tampon.Clear();
    rapidjson::Writer<rapidjson::StringBuffer> w(tampon);
    w.String(utf8.data(), static_cast<rapidjson::SizeType>(utf8.size()));
    return {tampon.GetString(), tampon.GetSize()};
}

}  // namespace quilvane
