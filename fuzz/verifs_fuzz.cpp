/**
 * The check functions with arbitrary texts and lengths. Texts stand in blocks
 * of their exact size, so that a look behind a terminator is seen.
 */
#include "calendar/datecalc.h"
#include "checks/abattage.h"
#include "checks/coherence.h"
#include "checks/conformite.h"
#include "checks/dates.h"
#include "checks/identifiants.h"
#include "checks/lecture.h"
#include "checks/listes.h"
#include "checks/reference.h"
#include "checks/sans_ligne.h"
#include "checks/valautorise.h"
#include "cible.h"
#include "messages/aiguillage.h"
#include "rules/entete.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

#include <cstring>
#include <memory>
#include <vector>

using namespace quilvane;

namespace {

/** Every check that a row names, with its list, and the checks that none names. */
struct catalogue {
    std::vector<fVerif*> verifs;
    std::vector<const liste*> listes;
    catalogue() {
        const auto ajouter = [this](const sCorps* table, int lignes) {
            for (int i = 0; i < lignes; ++i) {
                if (table[i].pfVerif != nullptr) verifs.push_back(table[i].pfVerif);
                listes.push_back(table[i].sverif);
            }
        };
        for (const sAiguillage& a : tAiguillage)
            if (a.tabVerif != nullptr) ajouter(a.tabVerif, *a.pLenTabVerif);
        ajouter(tEntete, lEntete);
        ajouter(tFin, lFin);
        for (fVerif* v : {fVerifAucunBlanc, fVerifAucunBlanc_SD,  fVerifAucunBlanc_SDN,
                          fConformSiren,    fConformSiret,        fConform8C,
                          fConform,         fConform10FRnonUEnon, fConform10FRnonUEoui,
                          fCoherenCCDR,     fDATEC_xad,           fDatRecCorr_O_P18,
                          fDATEHEUREC,      fVerifDateInput,      fVerifDateInputCvse,
                          fVDIFF2B,         fVEGALDNULLVTAB,      fCONFORM8FRP6,
                          fCONFORM10FRP5,   fPaysNonCEE,          fVTYPE,
                          fVEGDS,           fichier_C11,          verifSpace,
                          return_true})
            verifs.push_back(v);
        listes.insert(listes.end(), {&sansListe, &D7F10, &NUM});
    }
};

/** A text in a block of its exact size. */
std::unique_ptr<char[]> bloc(const std::string& octets) {
    const std::size_t n = std::strlen(octets.c_str());
    auto b = std::make_unique<char[]>(n + 1);
    std::memcpy(b.get(), octets.c_str(), n + 1);
    return b;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const catalogue C;
    cible::octets o{data, size};
    fVerif* const verif = C.verifs[(o.un() * 256U + o.un()) % C.verifs.size()];
    const liste& sverif = *C.listes[o.un() % C.listes.size()];
    // The record that some checks look at, and the slots that others read.
    const std::string record = o.texte(o.un());
    std::memset(xdebug, 0, sizeof xdebug);
    std::memcpy(xdebug, record.data(), record.size());
    for (valeurVSE& v : valCorpsVSE)
        v.valeur[0] = '\0';
    for (const numCorpsVSE c : {C4, C5, C8, C9, C10, C11, C12, C13, C15, C16}) {
        const std::string t = o.texte(o.un() % 16U);
        std::memcpy(valCorpsVSE[c].valeur, t.c_str(), t.size() + 1);
    }
    getVseCorps();
    const auto dependance = bloc(o.texte(o.un() % 110U));
    const auto champ = bloc(o.tout());
    const std::string avant = champ.get();

    const int verdict = verif(dependance.get(), champ.get(), sverif);
    const std::string apres = champ.get();
    cible::verifier(apres.size() == avant.size(), "a check does not change a field's length");
    cible::verifier(apres.compare(0, std::string::npos, avant) == 0 ||
                        (avant.size() >= 2 && apres.substr(std::min<std::size_t>(4, apres.size())) ==
                                                  avant.substr(std::min<std::size_t>(4, avant.size()))),
                    "only the first four characters of a date are rewritten");
    if (apres == avant)
        cible::verifier(verif(dependance.get(), champ.get(), sverif) == verdict, "a check has no memory");

    // The functions of other signatures.
    const char* const a = champ.get();
    const char* const b = dependance.get();
    fVerifLuhn(a);
    appartient_UE(a);
    verifNumAgrementSanitaireFr(a);
    verifNumExploitFr(a);
    verifNumBovinFrOuImporte(a);
    verifDateCompleteEtCorrecte(a);
    fCoherenCCE(b, a);
    fVTABP(b, a);
    fVerifDiffZero(a, static_cast<int>(size % 120), static_cast<int>(size % 130));
    champVide(a);
    nombre(a, 1 + static_cast<int>(size % 9), static_cast<int>(size % 20));
    DateCalc_check_date(static_cast<int>(nombre(a, 1, 9)), static_cast<int>(nombre(b, 1, 9)), 29);
    return 0;
}
