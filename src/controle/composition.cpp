#include "controle/composition.h"

#include <charconv>
#include <cstring>

#include "checks/lecture.h"
#include "checks/valautorise.h"
#include "messages/aiguillage.h"

namespace quilvane {

namespace {

constexpr const char* BLANCS_2 = "  ";
constexpr const char* BLANCS_12 = "            ";
constexpr int COL_RESULTAT = 77;  // result code of an accepted record, two columns
constexpr int BLANCS_FICH = 105;  // columns 126 to 230
constexpr int ZONE_CODES = 119;   // columns 112 to 230 of an error record
constexpr int LARGEUR_CODE = 5;   // "I%03d1"
constexpr int LARGEUR_COMPTE = 6;

bool estRetourECQ(const valeurVSE* enteteVSE) {
    return vaut(enteteVSE[E6].valeur, "ERRE") && vaut(enteteVSE[E5].valeur, "ECQ");
}

/** The two fields that name the holding concerned. */
struct clesDeLigne {
    const char* c7;
    const char* c8;
};
clesDeLigne clesCourantes(int itAiguil) {
    const sAiguillage& ligne = tAiguillage[itAiguil];
    return {ligne.champErrC7 == CINC ? BLANCS_2 : corps(ligne.champErrC7),
            ligne.champErrC8 == CINC ? BLANCS_12 : corps(ligne.champErrC8)};
}

}  // namespace

ligneVSE& ligneVSE::octets(const char* o, std::size_t n) {
    if (n > sizeof tampon - longueur) n = sizeof tampon - longueur;
    std::memcpy(tampon + longueur, o, n);
    longueur += n;
    return *this;
}

ligneVSE& ligneVSE::texte(const char* t) { return octets(t, std::strlen(t)); }

ligneVSE& ligneVSE::champ(const valeurVSE& v) {
    // Few fields are wider than a step; what is copied too much lies behind
    // `longueur`, where the next field is put.
    constexpr std::size_t PAS = 16;
    const std::size_t n = std::strlen(v.valeur);
    if (n > PAS || sizeof tampon - longueur < PAS) return octets(v.valeur, n);
    std::memcpy(tampon + longueur, v.valeur, PAS);
    longueur += n;
    return *this;
}

ligneVSE& ligneVSE::blancs(std::size_t n) {
    if (n > sizeof tampon - longueur) n = sizeof tampon - longueur;
    std::memset(tampon + longueur, ' ', n);
    longueur += n;
    return *this;
}

ligneVSE& ligneVSE::code(int numero) {
    const auto chiffre = [](int n) { return static_cast<char>('0' + n % 10); };
    const char c[LARGEUR_CODE] = {'I', chiffre(numero / 100), chiffre(numero / 10), chiffre(numero), '1'};
    return octets(c, LARGEUR_CODE);
}

ligneVSE& ligneVSE::nombre(int n, int largeur) {
    char chiffres[16];
    const char* debut = chiffres;
    const char* const fin = std::to_chars(chiffres, chiffres + sizeof chiffres, n).ptr;
    if (n < 0) {
        octet(*debut++);
        --largeur;
    }
    for (auto presents = fin - debut; presents < largeur; ++presents)
        octet('0');
    return octets(debut, static_cast<std::size_t>(fin - debut));
}

void faireVSEDate(char* tampon, const std::tm& t) {
    ligneVSE l;
    l.nombre(t.tm_mday, 2).nombre(t.tm_mon + 1, 2).nombre(t.tm_year + 1900, 4);
    l.nombre(t.tm_hour, 2).nombre(t.tm_min, 2).nombre(t.tm_sec, 2);
    l.texte(versionVSE[0].valeur).texte(HuitBlancs[0].valeur).texte(ET1[0].valeur);
    const std::size_t place = sizeof lot::VSEDate - 1;
    const std::size_t n = l.longueur < place ? l.longueur : place;
    std::memcpy(tampon, l.tampon, n);
    tampon[n] = '\0';
}

void faireFinDeLigne(ligneVSE& l, int formatDeFichier) {
    if (formatDeFichier == CVERSE_DOS || formatDeFichier == CVERSE_MAC) l.octet('\r');
    if (formatDeFichier != CVERSE_MAC) l.octet('\n');
}

const char* quilvaneRES() { return "4"; }

void faireVSEValide(ligneVSE& l, const char* tampon, std::size_t n) {
    char* const emise = l.tampon + l.longueur;
    l.octets(tampon, n);
    if (estRetourECQ(valEnteteVSE)) return;
    emise[COL_RESULTAT - 1] = quilvaneRES()[0];
    emise[COL_RESULTAT] = '0';
}

void faireVSEERR(ligneVSE& l, const char* champC7, const char* champC8, int nbCodes, const valeurVSE* e,
                 const valeurVSE* c, const int* codes, const char* estampille) {
    if (nbCodes > MAX_ERREURS) nbCodes = MAX_ERREURS;
    if (nbCodes < 0) nbCodes = 0;
    l.champ(e[E1]).champ(e[E2]).champ(e[E4]).champ(e[E3]).texte("ERR").texte("ERRE").champ(e[E7]);
    l.texte("INTERFAC").champ(e[E9]).champ(valFichEnteteVSE[E3]).champ(e[E11]).champ(e[E12]).champ(e[E13]);
    l.champ(e[E6]).champ(e[E5]).champ(c[C1]).champ(c[C2]);
    // C1 and C2 of an error return are 4 and 3 columns wide: the blanks keep
    // the columns below in place.
    if (estRetourECQ(e)) l.blancs(7);
    l.blancs(2).blancs(12).texte(champC7).texte(champC8);
    for (int i = 0; i < nbCodes; ++i)
        l.code(codes[i]);
    l.blancs(static_cast<std::size_t>(ZONE_CODES - LARGEUR_CODE * nbCodes)).texte(estampille);
}

void faireVSEERRCourante(ligneVSE& l, int itAiguil, int nbCodes, const int* codes, const char* estampille) {
    const clesDeLigne cles = clesCourantes(itAiguil);
    faireVSEERR(l, cles.c7, cles.c8, nbCodes, valEnteteVSE, valCorpsVSE, codes, estampille);
}

void faireVSEERRFich(ligneVSE& l, const lot& de) {
    valeurVSE corpsBlanc[2];
    std::strcpy(corpsBlanc[C1].valeur, BLANCS_2);
    std::strcpy(corpsBlanc[C2].valeur, BLANCS_12);
    faireVSEERR(l, BLANCS_2, BLANCS_12, de.errFich, valFichEnteteVSE, corpsBlanc, de.codeFichErreur,
                de.VSEDate);
}

void faireTamponVSEERR(lot& l, int codeErr, int itAiguil) {
    ligneVSE r;
    faireVSEERRCourante(r, itAiguil, 1, &codeErr, l.VSEDate);
    constexpr std::size_t place = sizeof l.sauvTamponVSE - 1;
    const std::size_t n = r.longueur < place ? r.longueur : place;
    std::memcpy(l.sauvTamponVSE, r.tampon, n);
    l.sauvTamponVSE[n] = '\0';
}

void faireVSEFICHOk(ligneVSE& l, const lot& de) {
    const valeurVSE* const e = valFichEnteteVSE;
    const valeurVSE* const c = valFichCorpsVSE;
    l.champ(e[E1]).champ(e[E2]).champ(e[E3]).champ(e[E4]).texte("INF").champ(e[E6]).champ(e[E7]);
    l.champ(e[E8]).champ(e[E9]).champ(e[E10]).champ(e[E11]).champ(e[E12]).champ(e[E13]);
    l.champ(c[C1]).champ(c[C2]).champ(c[C3]).champ(c[C4]).champ(c[C5]);
    l.nombre(de.nombreDeVSE, LARGEUR_COMPTE).champ(c[C7]).champ(c[C8]).blancs(BLANCS_FICH);
    for (const valeurVSE& f : valFichFinVSE)
        l.champ(f);
}

void faireEnteteVSEFICHNok(ligneVSE& l) {
    const valeurVSE* const e = valFichEnteteVSE;
    l.champ(e[E1]).champ(e[E2]).champ(e[E4]).champ(e[E3]).texte("INF").champ(e[E6]).champ(e[E7]);
    l.champ(e[E8]).champ(e[E9]).champ(e[E10]).champ(e[E11]).champ(e[E12]).champ(e[E13]);
}

void finVSENok(ligneVSE& l, const char* estampille) { l.blancs(BLANCS_FICH).texte(estampille); }

void faireVSEFICHNok(ligneVSE& l, const lot& de, const char* estampille) {
    const valeurVSE* const c = valFichCorpsVSE;
    // The FICH record counts among the records in error, not among the messages.
    const int valides = de.nombreDeVSE - de.nbVSE_Err + (de.errFich > 0 ? 1 : 0);
    faireEnteteVSEFICHNok(l);
    // C1 stands twice: its second copy takes the place of C2.
    l.champ(c[C1]).champ(c[C1]).nombre(de.nbVSE_Err, LARGEUR_COMPTE).nombre(de.nombreDeVSE, LARGEUR_COMPTE);
    l.nombre(de.nbVSE_Err, LARGEUR_COMPTE).nombre(valides, LARGEUR_COMPTE).champ(c[C7]).texte("1");
    finVSENok(l, estampille);
}

void ajouterVerdict(ajouts& a, const lot& de, const verdict& v) {
    if (v.rang > 1 && v.erreurs == 0) {
        faireFinDeLigne(a.emis, de.formatDuFichier);
        // Neither too short nor holding a zero: both are errors.
        faireVSEValide(a.emis, de.ligne.texte, LARGEUR_VSE);
    } else if (v.rang > 1) {
        faireFinDeLigne(a.erre, de.formatDuFichier);
        faireVSEERRCourante(a.erre, v.itAiguil, v.erreurs, codeErreur, de.VSEDate);
    }
    if (v.sansCompagnon == 0) return;
    faireFinDeLigne(a.erre, de.formatDuFichier);
    a.erre.texte(de.tamponSansCompagnon);
}

void ajouterFin(ajouts& a, const lot& de, const bilan& b) {
    if (fichierValide(de)) {
        faireFinDeLigne(a.emis, de.formatDuFichier);
        return;
    }
    if (b.sansCompagnon != 0) {
        faireFinDeLigne(a.erre, de.formatDuFichier);
        a.erre.texte(de.tamponSansCompagnon);
    }
    if (de.errFich > 0) {
        faireFinDeLigne(a.erre, de.formatDuFichier);
        faireVSEERRFich(a.erre, de);
    }
    faireFinDeLigne(a.erre, de.formatDuFichier);
}

}  // namespace quilvane
