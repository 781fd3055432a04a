/**
 * abattage - the checks of the slaughter notice, most of which look at `cp`,
 * the extract of the whole notice, rather than at their own field; and a few
 * small checks that no row names.
 */
#include "checks/abattage.h"

#include "checks/identifiants.h"
#include "checks/lecture.h"
#include "checks/listes.h"
#include "checks/sans_ligne.h"
#include "checks/valautorise.h"
#include "vocabulaire/store.h"

namespace quilvane {

namespace {

bool blancs12(const char* texte) { return egal(texte, DouzeBlancs[0].valeur); }
bool corse(const char* numero) { return memeDebut(numero, "2A", 2) || memeDebut(numero, "2B", 2); }

/** National bodies that notify slaughters beside the slaughterhouses. */
bool estOffice(const char* notifiant) { return memeDebut(notifiant, "OFFICE", 6); }
bool estNational(const char* notifiant) { return estOffice(notifiant) || memeDebut(notifiant, "ONICAB", 6); }

/** Characters before the first blank. */
std::size_t longueurUtile(const char* texte) { return std::strcspn(texte, " "); }

}  // namespace

int presence_C2(const char*, char*, const liste&) {
    // Cut here and not with the body: the row of this check is the first that
    // needs the extract, and one call then does for it and for those behind it.
    getVseCorps();
    return cp.NUME_NATI_BOV[0] != '\0' && !blancs12(cp.NUME_NATI_BOV);
}

int presence_C5(const char*, char*, const liste&) { return !videOuBlanc(cp.NUME_EXPLOIT_PROVENANCE); }

int presence_C8(const char*, char*, const liste&) {
    // The number may be left blank, but not half blank.
    const char* const tuerie = cp.NUME_TUERIE;
    const std::size_t longueur = std::strlen(tuerie);
    if (longueur < 8) return 0;
    if (huitBlancs(tuerie)) return 1;
    if (tuerie[0] == ' ') return 0;
    return tous(tuerie, 1, static_cast<int>(longueur),
                [](char c) { return estLettreOuChiffre(c) || c == ' '; });
}

int presence_C11(const char*, char*, const liste&) {
    return cp.NUME_IDENT_ABAT_NOTIF[0] != '\0' && !blancs12(cp.NUME_IDENT_ABAT_NOTIF);
}

int fVerif_ASDA(const char*, char* champ, const liste&) {
    return dansListeStricte(champ, TP) || dansListeStricte(champ, TCPNOCEE);
}

int fVerif_NUM_ASDA(const char*, char* champ, const liste&) {
    if (!vaut(cp.CODE_EXPLOIT_PROVENANCE, "FR")) return 1;
    if (cp.INDIC_CREA_INVA_ABATT[0] == '\0') return 0;
    return estNational(cp.NUME_IDENT_ABAT_NOTIF) || verifNumExploitFr(champ);
}

int fVerif_NUM_TUE(const char*, char* champ, const liste&) {
    if (huitBlancs(champ)) return 1;
    if (!estOffice(cp.NUME_IDENT_ABAT_NOTIF)) return std::strlen(champ) >= 8 && estLettreOuChiffre(champ[0]);
    // The Office has no slaughterhouse: its number is the two country codes.
    const std::size_t n = longueurUtile(champ);
    const std::size_t premier = std::strlen(cp.CODE_EXPLOIT_PROVENANCE);
    return n == premier + std::strlen(cp.CODE_PAYS_ABAT_NOTIF) &&
           std::memcmp(champ, cp.CODE_EXPLOIT_PROVENANCE, premier) == 0 &&
           std::memcmp(champ + premier, cp.CODE_PAYS_ABAT_NOTIF, n - premier) == 0;
}

int fVerif_chaine_POIDS(const char*, char* champ, const liste&) {
    if (std::strlen(champ) != 7) return 0;
    if (videOuBlanc(champ)) return 1;
    return chiffres(champ, 1, 4) && champ[4] == ',' && chiffres(champ, 6, 7);
}

int fVerif_POIDS(const char*, char* champ, const liste&) {
    if (std::strlen(champ) == 7 && videOuBlanc(champ)) return 1;
    const long long kilos = nombre(champ, 1, 4);
    return kilos < 1000 || (kilos == 1000 && nombre(champ, 6, 2) == 0);
}

int fVerif_CODEPE_ABATNOT(const char*, char* champ, const liste&) {
    if (!estNational(cp.NUME_IDENT_ABAT_NOTIF)) return vaut(champ, "FR");
    const char pays[3] = {carac(cp.NUME_IDENT_ABAT_NOTIF, 7), carac(cp.NUME_IDENT_ABAT_NOTIF, 8), '\0'};
    return egal(cp.CODE_PAYS_ABAT_NOTIF, pays);
}

int fVerif_NUMID_ABATNOT_CONF(const char*, char* champ, const liste&) {
    const std::size_t n = longueurUtile(champ);
    if (n != 7 && n != 8) return 0;
    if (estNational(champ)) return 1;
    if (contientBlanc(champ, 1, 2)) return 0;
    if (!blancs(champ, 11, 12)) return 0;
    return corse(champ) || debutDansListe(champ, TD, 2);
}

int fVerif_NUMID_ABATNOT_COHER(const char*, char*, const liste&) { return 1; }
int fVerif_NUMID_ABATNOT_TABREF(const char*, char*, const liste&) { return 1; }
int fVerif_INDIC_ABAT(const char*, char*, const liste&) { return 1; }
int return_true(const char*, char*, const liste&) { return 1; }

int fichier_C11(const char*, char*, const liste&) {
    char numero[13];
    int n = 0;
    for (const char* p = cp.NUME_IDENT_ABAT_NOTIF; *p != '\0' && n < 12; ++p)
        if (estChiffre(*p)) numero[n++] = *p;
    numero[n] = '\0';
    return egal(numero, bufC11) || estNational(corps(C11)) || corse(corps(C11));
}

int verifSpace(const char*, char* champ, const liste&) { return vaut(champ, "10") || vaut(champ, "  "); }

}  // namespace quilvane
