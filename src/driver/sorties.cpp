#include "driver/sorties.h"

#include <stdio_ext.h>

#include <cstring>

#include "calendar/horloge.h"
#include "checks/lecture.h"
#include "checks/valautorise.h"
#include "driver/etat.h"
#include "messages/aiguillage.h"
#include "rules/moteur.h"

namespace quilvane {

namespace {

constexpr const char* BLANCS_2 = "  ";
constexpr const char* BLANCS_12 = "            ";
constexpr int COL_RESULTAT = 77;  // result code of an accepted record, two columns
constexpr int BLANCS_FICH = 105;  // columns 126 to 230
constexpr int ZONE_CODES = 119;   // columns 112 to 230 of an error record
constexpr int LARGEUR_CODE = 5;   // "I%03d1"

/** A record being put together. What does not fit is dropped: no field of a
 *  record is that wide. */
struct ligneVSE {
    ligneVSE& texte(const char* t) { return octets(t, std::strlen(t)); }
    ligneVSE& champ(const valeurVSE& v) {
        // Few fields are wider than a step; what is copied too much lies behind
        // `longueur`, where the next field is put.
        constexpr std::size_t PAS = 16;
        const std::size_t n = std::strlen(v.valeur);
        if (n > PAS || sizeof tampon - longueur < PAS) return octets(v.valeur, n);
        std::memcpy(tampon + longueur, v.valeur, PAS);
        longueur += n;
        return *this;
    }
    ligneVSE& blancs(std::size_t n) {
        n = reste(n);
        std::memset(tampon + longueur, ' ', n);
        longueur += n;
        return *this;
    }
    ligneVSE& code(int numero) {
        const auto chiffre = [](int n) { return static_cast<char>('0' + n % 10); };
        const char c[LARGEUR_CODE] = {'I', chiffre(numero / 100), chiffre(numero / 10), chiffre(numero), '1'};
        return octets(c, LARGEUR_CODE);
    }
    ligneVSE& compteur(int n) {
        char c[16];
        std::snprintf(c, sizeof c, "%06d", n);
        return texte(c);
    }
    void ecrire(std::FILE* fp) const { std::fwrite(tampon, 1, longueur, fp); }
    void copier(char* destination, std::size_t taille) const {
        const std::size_t n = longueur < taille ? longueur : taille - 1;
        std::memcpy(destination, tampon, n);
        destination[n] = '\0';
    }

    ligneVSE& octets(const char* o, std::size_t n) {
        n = reste(n);
        std::memcpy(tampon + longueur, o, n);
        longueur += n;
        return *this;
    }
    /** `n`, or what still fits. */
    std::size_t reste(std::size_t n) const {
        return n <= sizeof tampon - longueur ? n : sizeof tampon - longueur;
    }

    char tampon[4 * LARGEUR_VSE];
    std::size_t longueur = 0;
};

bool estRetourECQ(const valeurVSE* enteteVSE) {
    return vaut(enteteVSE[E6].valeur, "ERRE") && vaut(enteteVSE[E5].valeur, "ECQ");
}

/** The ERRE record of a record in error, with 0 to 10 codes. */
ligneVSE vseERR(const char* champC7, const char* champC8, int nbCodes, const valeurVSE* e, const valeurVSE* c,
                const int* codes) {
    ligneVSE l;
    l.champ(e[E1]).champ(e[E2]).champ(e[E4]).champ(e[E3]).texte("ERR").texte("ERRE").champ(e[E7]);
    l.texte("INTERFAC").champ(e[E9]).champ(valFichEnteteVSE[E3]).champ(e[E11]).champ(e[E12]).champ(e[E13]);
    l.champ(e[E6]).champ(e[E5]).champ(c[C1]).champ(c[C2]);
    // C1 and C2 of an error return are 4 and 3 columns wide: the blanks keep
    // the columns below in place.
    if (estRetourECQ(e)) l.blancs(7);
    l.blancs(2).blancs(12).texte(champC7).texte(champC8);
    for (int i = 0; i < nbCodes; ++i)
        l.code(codes[i]);
    l.blancs(static_cast<std::size_t>(ZONE_CODES - LARGEUR_CODE * nbCodes)).texte(VSEDate);
    return l;
}

/** The two fields that name the holding concerned. */
struct clesDeLigne {
    const char* c7;
    const char* c8;
};

/** Key fields of the current record; clears C1 and C2 of an unknown type. */
clesDeLigne clesCourantes(int itAiguil) {
    if (itAiguil == ERR_AIGUILLAGE) {
        std::strcpy(valCorpsVSE[C1].valeur, BLANCS_2);
        std::strcpy(valCorpsVSE[C2].valeur, BLANCS_12);
    }
    const sAiguillage& ligne = tAiguillage[itAiguil];
    return {ligne.champErrC7 == CINC ? BLANCS_2 : corps(ligne.champErrC7),
            ligne.champErrC8 == CINC ? BLANCS_12 : corps(ligne.champErrC8)};
}

ligneVSE enteteVSEFICHNok() {
    const valeurVSE* const e = valFichEnteteVSE;
    ligneVSE l;
    l.champ(e[E1]).champ(e[E2]).champ(e[E4]).champ(e[E3]).texte("INF").champ(e[E6]).champ(e[E7]);
    l.champ(e[E8]).champ(e[E9]).champ(e[E10]).champ(e[E11]).champ(e[E12]).champ(e[E13]);
    return l;
}

}  // namespace

void faireVSEDate(char* tampon) {
    const std::tm t = heureLocale();
    char date[128];
    std::snprintf(date, sizeof date, "%02d%02d%04d%02d%02d%02d%s%s%s", t.tm_mday, t.tm_mon + 1,
                  t.tm_year + 1900, t.tm_hour, t.tm_min, t.tm_sec, versionVSE[0].valeur, HuitBlancs[0].valeur,
                  ET1[0].valeur);
    const std::size_t n = strnlen(date, sizeof VSEDate - 1);
    std::memcpy(tampon, date, n);
    tampon[n] = '\0';
}

void preparerSorties() {
    constexpr std::size_t TAILLE_BLOC = 1 << 16;
    static char blocs[2][TAILLE_BLOC];
    std::setvbuf(fp_emis, blocs[0], _IOFBF, TAILLE_BLOC);
    std::setvbuf(fp_erre, blocs[1], _IOFBF, TAILLE_BLOC);
    __fsetlocking(fp_emis, FSETLOCKING_BYCALLER);
    __fsetlocking(fp_erre, FSETLOCKING_BYCALLER);
}

void faireFinDeLigne(std::FILE* fp, int formatDeFichier) {
    if (formatDeFichier == CVERSE_DOS || formatDeFichier == CVERSE_MAC) std::putc('\r', fp);
    if (formatDeFichier != CVERSE_MAC) std::putc('\n', fp);
}

void reserverVSEFICH(std::FILE* fp) { ligneVSE().blancs(LARGEUR_VSE).ecrire(fp); }

const char* quilvaneRES() { return "4"; }

void faireVSEValide(const char* tampon, int formatDeFichier) {
    faireFinDeLigne(fp_emis, formatDeFichier);
    char emise[LARGEUR_VSE];
    const std::size_t n = strnlen(tampon, LARGEUR_VSE);
    std::memcpy(emise, tampon, n);
    if (!estRetourECQ(valEnteteVSE)) {
        emise[COL_RESULTAT - 1] = quilvaneRES()[0];
        emise[COL_RESULTAT] = '0';
    }
    std::fwrite(emise, 1, n, fp_emis);
}

void faireVSEERR(const char* champC7, const char* champC8, int nbErreurPassee, const valeurVSE* lvalEnteteVSE,
                 const valeurVSE* lvalCorpsVSE, const int* lcodeErreur) {
    if (nbErreurPassee > MAX_ERREURS) nbErreurPassee = nbErreur = MAX_ERREURS;
    if (nbErreurPassee < 0) nbErreurPassee = 0;
    vseERR(champC7, champC8, nbErreurPassee, lvalEnteteVSE, lvalCorpsVSE, lcodeErreur).ecrire(fp_erre);
}

void faireVSEERRCourante(int itAiguil, int nbErreurPassee) {
    const clesDeLigne cles = clesCourantes(itAiguil);
    faireVSEERR(cles.c7, cles.c8, nbErreurPassee, valEnteteVSE, valCorpsVSE, codeErreur);
}

void faireTamponVSEERR(int codeErr, int itAiguil) {
    const clesDeLigne cles = clesCourantes(itAiguil);
    vseERR(cles.c7, cles.c8, 1, valEnteteVSE, valCorpsVSE, &codeErr)
        .copier(sauvTamponVSE, sizeof sauvTamponVSE);
}

void faireVSEERRFich() {
    valeurVSE corpsBlanc[2];
    std::strcpy(corpsBlanc[C1].valeur, BLANCS_2);
    std::strcpy(corpsBlanc[C2].valeur, BLANCS_12);
    faireVSEERR(BLANCS_2, BLANCS_12, errFich, valFichEnteteVSE, corpsBlanc, codeFichErreur);
}

void faireVSEFICHOk(int nombreDeVSE) {
    const valeurVSE* const e = valFichEnteteVSE;
    const valeurVSE* const c = valFichCorpsVSE;
    ligneVSE l;
    l.champ(e[E1]).champ(e[E2]).champ(e[E3]).champ(e[E4]).texte("INF").champ(e[E6]).champ(e[E7]);
    l.champ(e[E8]).champ(e[E9]).champ(e[E10]).champ(e[E11]).champ(e[E12]).champ(e[E13]);
    l.champ(c[C1]).champ(c[C2]).champ(c[C3]).champ(c[C4]).champ(c[C5]).compteur(nombreDeVSE);
    l.champ(c[C7]).champ(c[C8]).blancs(BLANCS_FICH);
    for (const valeurVSE& f : valFichFinVSE)
        l.champ(f);
    std::fseek(fp_emis, 0, SEEK_SET);
    l.ecrire(fp_emis);
}

void faireEnteteVSEFICHNok(std::FILE* fp) { enteteVSEFICHNok().ecrire(fp); }

void finVSENok(std::FILE* fp) {
    char date[sizeof VSEDate];
    faireVSEDate(date);
    ligneVSE().blancs(BLANCS_FICH).texte(date).ecrire(fp);
}

void faireVSEFICHNok(int nombreDeVSE, int nbVSE_Err) {
    const valeurVSE* const c = valFichCorpsVSE;
    // The FICH record counts among the records in error, not among the messages.
    const int valides = nombreDeVSE - nbVSE_Err + (errFich > 0 ? 1 : 0);
    std::fseek(fp_erre, 0, SEEK_SET);
    faireEnteteVSEFICHNok(fp_erre);
    ligneVSE l;
    // C1 stands twice: its second copy takes the place of C2.
    l.champ(c[C1]).champ(c[C1]).compteur(nbVSE_Err).compteur(nombreDeVSE).compteur(nbVSE_Err);
    l.compteur(valides).champ(c[C7]).texte("1").ecrire(fp_erre);
    finVSENok(fp_erre);
}

void affichageVSE(const char* tampon, int mode) {
    retenirVSE(tampon);
    if (mode == VISU_DECRIPTEE) std::printf("VSE=|%s|\n", xdebug);
}

void tracer(const char* s) { std::printf("    [****] xdebug message:\"%s\" [****]\n", s); }

}  // namespace quilvane
