#include "driver/etat.h"

#include <cstring>

#include "vocabulaire/store.h"

namespace quilvane {

constinit const char* name_recu = nullptr;
constinit const char* name_emis = nullptr;
constinit const char* name_log = nullptr;
constinit const char* name_tmp_recu = nullptr;
constinit const char* name_tmp_emis = nullptr;
constinit const char* name_erre = nullptr;

constinit std::FILE* fp_log = nullptr;
constinit std::FILE* fp_recu = nullptr;
constinit std::FILE* fp_emis = nullptr;
constinit std::FILE* fp_erre = nullptr;

constinit const char* VARIANTE = "QUILVANE  ";
constinit char VSEDate[36] = {};
constinit int visu = 0;

constinit char sauvEmetteur[9] = "XXXXXXXX";
constinit char sauvRecepteur[9] = "XXXXXXXX";
constinit int codeFichErreur[MAX_ERREURS + 1] = {};
constinit int errFich = 0;

constinit char sauvCodeVSE[5] = {};
constinit char sauvTypeVSE[4] = {};
constinit int sauvCodeVSEerr = 0;
constinit char sauvLienVSE[13] = {};
constinit char sauvTamponVSE[LARGEUR_VSE + 1] = {};
constinit int existDependanceVSEerr = 0;
constinit int err_aux = 0;

void initialiserEtat() {
    name_recu = name_emis = name_log = nullptr;
    name_tmp_recu = name_tmp_emis = name_erre = nullptr;
    fp_log = fp_recu = fp_emis = fp_erre = nullptr;
    VARIANTE = "QUILVANE  ";
    std::memset(VSEDate, 0, sizeof VSEDate);
    visu = 0;
    std::memcpy(sauvEmetteur, "XXXXXXXX", sizeof sauvEmetteur);
    std::memcpy(sauvRecepteur, "XXXXXXXX", sizeof sauvRecepteur);
    std::memset(codeFichErreur, 0, sizeof codeFichErreur);
    errFich = 0;
    std::memset(sauvCodeVSE, 0, sizeof sauvCodeVSE);
    std::memset(sauvTypeVSE, 0, sizeof sauvTypeVSE);
    sauvCodeVSEerr = 0;
    std::memset(sauvLienVSE, 0, sizeof sauvLienVSE);
    std::memset(sauvTamponVSE, 0, sizeof sauvTamponVSE);
    existDependanceVSEerr = 0;
    err_aux = 0;
    // What is known of the record in hand belongs to the run as well.
    leStore = {};
}

}  // namespace quilvane
